#include "app/faces.h"

#include "engine/function_ids.h"
#include "engine/key_table.h"

namespace brinto {

namespace {

struct Legend {
    FunctionId id;
    const char* legend;
    const char* fullName;
};

// Faces in the calculator's own notation.
constexpr Legend kLegends[] = {
    {fid::Point, ".", "Decimal point"},
    {fid::Exponent, "EEX", "Enter exponent"},
    {fid::ChangeSign, "±", "Change sign"},
    {fid::Backspace, "⌫", "Backspace"},
    {fid::Enter, "Enter", "Enter"},
    {fid::Add, "+", "Add"},
    {fid::Subtract, "−", "Subtract"},
    {fid::Multiply, "×", "Multiply"},
    {fid::Divide, "÷", "Divide"},
    {fid::Equals, "=", "Equals"},
    {fid::Shift, "Shift", "Shift"},
    {fid::ClearAll2, "CA", "Clear all"},
    {fid::ClearStack, "CS", "Clear stack"},
    {fid::ClearX, "CX", "Clear X"},
    {fid::RollDown, "R↓", "Roll down"},
    {fid::RollUp, "R↑", "Roll up"},
    {fid::Swap, "x↔y", "Swap X and Y"},
    {fid::Store, "STO", "Store"},
    {fid::Recall, "RCL", "Recall"},
    {fid::LastX, "LASTx", "Last X"},
    {fid::OpenParen, "(", "Open parenthesis"},
    {fid::CloseParen, ")", "Close parenthesis"},
    {fid::Percent, "%", "Percent"},
    {fid::SquareRoot, "√x", "Square root"},
    {fid::Square, "x²", "Square"},
    {fid::Power, "yˣ", "Power"},
    {fid::Reciprocal, "1/x", "Reciprocal"},
};

const Legend* Find(FunctionId id) {
    for (const Legend& l : kLegends) {
        if (l.id == id) return &l;
    }
    return nullptr;
}

QString TableName(FunctionId id) {
    for (const KeyInfo& k : kKeyTable) {
        if (k.id == id) return QString::fromUtf8(k.name.data(), static_cast<qsizetype>(k.name.size()));
    }
    return {};
}

QColor Rgb(unsigned rgb) { return QColor::fromRgb(rgb); }

}  // namespace

QString LegendOf(FunctionId id) {
    if (id == kNoKey) return {};
    if (const Legend* l = Find(id)) return QString::fromUtf8(l->legend);
    return TableName(id);
}

QString FullNameOf(FunctionId id) {
    if (id == kNoKey) return QStringLiteral("No function");
    if (const Legend* l = Find(id)) return QString::fromUtf8(l->fullName);
    return TableName(id);
}

QString HardwareKeyOf(FunctionId id) {
    if (id <= fid::Digit9) return QString::number(id);
    if (id >= fid::HexA && id <= fid::HexF) return QString(QChar('A' + (id - fid::HexA)));
    switch (id) {
        case fid::Point: return QStringLiteral(".");
        case fid::Exponent: return QStringLiteral("E");
        case fid::Backspace: return QStringLiteral("Backspace");
        case fid::ClearStack: return QStringLiteral("Delete");
        case fid::Equals: return QStringLiteral("=");
        case fid::Add: return QStringLiteral("+");
        case fid::Subtract: return QStringLiteral("-");
        case fid::Multiply: return QStringLiteral("*");
        case fid::Divide: return QStringLiteral("/");
        case fid::Percent: return QStringLiteral("%");
        case fid::OpenParen: return QStringLiteral("(");
        case fid::CloseParen: return QStringLiteral(")");
        case fid::Recall: return QStringLiteral("S");
        case fid::Exchange: return QStringLiteral("R");
        default: return {};
    }
}

KeyRole RoleOf(FunctionId id) {
    if (id <= fid::Point || id == fid::ChangeSign || id == fid::Exponent) return KeyRole::Number;
    if (id == fid::Store || id == fid::Recall || id == fid::Exchange) return KeyRole::Register;
    if (id >= fid::ClearAll && id <= fid::ClearStatistics) return KeyRole::Clear;
    if (id == fid::Backspace) return KeyRole::Clear;
    return KeyRole::Standard;
}

Colours ColoursFor(const Preferences& prefs) {
    const bool dark = prefs.Theme() == 8;
    Colours c;
    const KeyColours light{Rgb(0xE8EAF0), Rgb(0x1F2430), Rgb(0x9A3D1E), Rgb(0xB8C0D8), Rgb(0x1F2430),
                           Rgb(0x9098A8), Rgb(0xA0A8B8)};
    const KeyColours darkKeys{Rgb(0x3A3F4A), Rgb(0xF0F0F0), Rgb(0xF2B35E), Rgb(0x5A6070), Rgb(0xFFFFFF),
                              Rgb(0x15171C), Rgb(0x20232A)};
    const KeyColours base = dark ? darkKeys : light;
    c.window = dark ? Rgb(0x202329) : Rgb(0xD8DCE4);
    c.displayBackground = dark ? Rgb(0x101214) : Rgb(0xF4F7EE);
    c.displayText = dark ? Rgb(0xE8E8E8) : Rgb(0x101010);
    c.displayNegative = dark ? Rgb(0xFF8080) : Rgb(0x990000);
    c.displayInteger = dark ? Rgb(0x9090FF) : Rgb(0x000099);
    c.displayLabel = dark ? Rgb(0xA0A0A0) : Rgb(0x555555);
    c.annunciator = base.shiftedText;
    c.keyboardBackground = c.window;
    c.keys.fill(base);
    c.keys[static_cast<int>(KeyRole::Number)].face = dark ? Rgb(0x4A505C) : Rgb(0xFFFFFF);
    c.keys[static_cast<int>(KeyRole::Register)].face = dark ? Rgb(0x2E4A6A) : Rgb(0xD4E2F4);
    c.keys[static_cast<int>(KeyRole::Clear)].face = dark ? Rgb(0x7A2E2E) : Rgb(0xF2D0C8);
    return c;
}

const std::vector<PadKey>& SharedKeypad() {
    static const std::vector<PadKey> keys = {
        {fid::Shift, fid::Shift},   {fid::ClearX, fid::ClearAll2},  {fid::Backspace, fid::ClearStack},
        {fid::OpenParen, fid::RollDown}, {fid::CloseParen, fid::RollUp}, {fid::Divide, fid::Reciprocal},
        {fid::Store, fid::Store},   {7, 7}, {8, 8}, {9, 9}, {fid::Multiply, fid::Power}, {fid::Swap, fid::LastX},
        {fid::Recall, fid::Recall}, {4, 4}, {5, 5}, {6, 6}, {fid::Subtract, fid::Square}, {fid::Percent, fid::SquareRoot},
        {fid::Exchange, fid::Exchange}, {1, 1}, {2, 2}, {3, 3}, {fid::Add, fid::Add}, {fid::Equals, fid::Equals},
        {fid::Drop, fid::Fill}, {0, 0}, {fid::Point, fid::Point}, {fid::ChangeSign, fid::Exponent},
        {fid::Exponent, fid::Exponent}, {fid::Enter, fid::Enter},
    };
    return keys;
}

std::vector<PadKey> BasicKeypad(InputMethod method) {
    const FunctionId finish = method == InputMethod::Rpn ? fid::Enter : fid::Equals;
    return {
        {fid::ClearX, fid::ClearX}, {fid::Backspace, fid::Backspace}, {fid::Percent, fid::Percent}, {fid::Divide, fid::Divide},
        {7, 7}, {8, 8}, {9, 9}, {fid::Multiply, fid::Multiply},
        {4, 4}, {5, 5}, {6, 6}, {fid::Subtract, fid::Subtract},
        {1, 1}, {2, 2}, {3, 3}, {fid::Add, fid::Add},
        {0, 0}, {fid::Point, fid::Point}, {fid::ChangeSign, fid::ChangeSign}, {finish, finish},
    };
}

}  // namespace brinto
