#include "session/session.h"

#include <algorithm>

#include "display/display_text.h"
#include "engine/function_ids.h"
#include "engine/keyboards.h"
#include "engine/numeric/date_fields.h"
#include "engine/numeric/integer_format.h"
#include "ops/constants.h"
#include "session/key_legends.h"
#include "session/paste.h"

namespace brinto {

Session::Session(Engine& engine, Host& host) : m_engine(engine), m_host(host) { m_engine.SetPlatform(&host); }

Session::Command::Command(Session& session) : m_session(session) {
    if (m_session.m_commandDepth == 0 && m_session.m_observer) m_session.m_observer->BeforeCommand();
    ++m_session.m_commandDepth;
}

Session::Waiting::Waiting(Session& session) : m_session(session) {
    if (m_session.m_commandDepth > 0 && m_session.m_observer) m_session.m_observer->PauseCommand();
}

Session::Waiting::~Waiting() {
    if (m_session.m_commandDepth > 0 && m_session.m_observer) m_session.m_observer->ResumeCommand();
}

void Session::Show(std::string_view caption, std::string_view text) {
    const Waiting waiting(*this);
    m_host.ShowMessage(caption, text);
}

Session::Command::~Command() {
    if (--m_session.m_commandDepth == 0 && m_session.m_observer) m_session.m_observer->AfterCommand();
}

bool Session::Execute(FunctionId id) {
    const bool wasRecording = m_engine.state.engineFlags & flags::Recording;
    m_tape.BeforeKey(m_engine);
    const bool accepted = m_engine.Dispatch(id);
    const KeyLegend* legend = FindLegend(id);
    const bool shiftKey = id == fid::Shift || id == fid::FirstShift || id == fid::SecondShift;
    m_tape.AfterKey(m_engine, legend ? legend->legend : std::string_view(), accepted, shiftKey);
    if (id == fid::MacroPlay && m_engine.macro.macroLength < 3 &&
        !(m_engine.state.engineFlags & flags::Playing)) {
        Show(message::NoMacroCaption, message::NoMacroText);
    }
    const bool recording = m_engine.state.engineFlags & flags::Recording;
    if (wasRecording && !recording && !accepted) {
        Show(message::MacroFullCaption, message::MacroFullText);
    }
    m_host.Repaint();
    return accepted;
}

bool Session::Tap(FunctionId id) {
    const Command command(*this);
    if (id == kNoKey) {
        Show(message::NoFunctionCaption, message::NoFunctionText);
        return false;
    }
    if (id == fid::ClearAll || id == fid::SecondClearAll) {
        const Waiting waiting(*this);
        if (!m_host.Confirm(message::ClearAllCaption, message::ClearAllText)) return false;
        id = fid::ClearAll;
    }
    return Execute(id);
}

FunctionId Session::Remap(FunctionId id) const {
    if (m_engine.IntegerEntryAllowed()) id = IntegerVariant(id);
    return RegisterVariant(id, m_engine.prefs.HundredRegisters() ? RegisterSet::Large : RegisterSet::Small);
}

bool Session::TapBlockKey(int k) {
    const Command command(*this);
    if (k < 1 || k > kBlockKeys) return false;
    const bool shifted = m_engine.state.status & status::FirstShift;
    const KeyBlock block = KeyLayout(m_engine.Keyboard(), shifted ? 1 : 0, m_userKeys);
    return TapKey(block[k - 1]);
}

bool Session::TapKey(FunctionId id) {
    const Command command(*this);
    return Tap(Remap(id));
}

bool Session::CharacterKey(char32_t c) {
    const Command command(*this);
    FunctionId id = kNoKey;
    const bool integerBase = m_engine.state.status & status::BaseMask;
    if (c >= '0' && c <= '9') {
        id = DigitKey(static_cast<int>(c - '0'));
    } else if ((c == 'E' || c == 'e') && !integerBase) {
        id = fid::Exponent;
    } else if (c >= 'A' && c <= 'F') {
        id = DigitKey(10 + static_cast<int>(c - 'A'));
    } else if (c >= 'a' && c <= 'f') {
        id = DigitKey(10 + static_cast<int>(c - 'a'));
    } else {
        switch (c) {
            case '.': case ',': id = fid::Point; break;
            case '=': id = fid::Equals; break;
            case '+': id = fid::Add; break;
            case '-': id = fid::Subtract; break;
            case '*': case 'X': case 'x': id = fid::Multiply; break;
            case '/': id = fid::Divide; break;
            case '%': id = fid::Percent; break;
            case '(': id = fid::OpenParen; break;
            case ')': id = fid::CloseParen; break;
            case 'S': case 's': id = fid::Recall; break;
            case 'R': case 'r': id = fid::Exchange; break;
            case '\b': return Special(SpecialKey::Backspace);
            case '\r': case '\n': return Special(SpecialKey::Enter);
            case 0x7F: return Special(SpecialKey::Delete);
            case 0x18: Cut(); return true;
            case 0x03: Copy(); return true;
            case 0x16: Paste(); return true;
            case 0x1A: Undo(); return true;
            case 0x19: Redo(); return true;
            default: break;
        }
    }
    if (id == kNoKey) {
        m_host.Beep();
        return false;
    }
    // Typed keys are remapped as tapped ones: "+" on the Programmer keyboard is the integer add.
    const bool accepted = Execute(Remap(id));
    if (!accepted) m_host.Beep();
    return accepted;
}

bool Session::Special(SpecialKey key) {
    const Command command(*this);
    const bool advanced = !(m_engine.state.viewFlags & view::ModeMask);
    switch (key) {
        case SpecialKey::Backspace:
        case SpecialKey::Delete: {
            const bool accepted = Execute(key == SpecialKey::Backspace ? fid::Backspace : fid::ClearStack);
            if (!accepted) m_host.Beep();
            return accepted;
        }
        case SpecialKey::Enter: ActionButton(); return true;
        case SpecialKey::Up:
            if (advanced) SelectKeyboard((m_engine.Keyboard() + kKeyboardCount - 1) % kKeyboardCount);
            return true;
        case SpecialKey::Down:
            if (advanced) SelectKeyboard((m_engine.Keyboard() + 1) % kKeyboardCount);
            return true;
        case SpecialKey::Left:
        case SpecialKey::Right:
            advanced ? Basic() : Advanced();
            return true;
    }
    return false;
}

void Session::ActionButton() {
    const Command command(*this);
    const CalcState& s = m_engine.state;
    switch (m_engine.prefs.Action()) {
        case ActionChoice::Default: Execute(m_engine.IsRpn() ? fid::Enter : fid::Equals); break;
        case ActionChoice::Nothing: break;
        case ActionChoice::ShiftKeyboard:
            if (s.viewFlags & view::ShiftKeyboardMask) Execute(fid::Shift);
            break;
        case ActionChoice::RepeatLastKey:
            if (s.lastCommand != kNoKey) Execute(s.lastCommand);
            break;
        case ActionChoice::OpenLastForm:
            // A stored number that names no view (a damaged or foreign record) opens the first one.
            m_host.OpenView(s.lastView <= static_cast<u16>(View::Statistical) ? static_cast<View>(s.lastView)
                                                                              : View::Preferences);
            break;
        case ActionChoice::PlayMacro: Execute(fid::MacroPlay); break;
    }
}

void Session::AfterRestore() {
    SelectKeyboard(m_engine.Keyboard());
    m_engine.RequestRedraw();
    m_engine.dirty.state = true;
    m_engine.dirty.registers = true;
    m_engine.dirty.macro = true;
    m_host.Repaint();
}

// Undo and redo are commands, not keys: the last-key words keep what the user last pressed, so
// "Repeat last key" still repeats it.
bool Session::Restore(HistoryStep step) {
    CalcState& s = m_engine.state;
    const FunctionId lastKey = s.lastKey, lastCommand = s.lastCommand;
    const bool keepShift = m_engine.prefs.StickyShift();
    const bool restored = step == HistoryStep::Undo ? m_engine.history.Undo(m_engine.Records(), keepShift)
                               : m_engine.history.Redo(m_engine.Records(), keepShift);
    if (!restored) return false;
    s.lastKey = lastKey;
    s.lastCommand = lastCommand;
    AfterRestore();
    return true;
}

void Session::Undo() {
    const Command command(*this);
    if (!Restore(HistoryStep::Undo)) {
        Show(message::NothingToUndoCaption, message::NothingToUndoText);
        return;
    }
    m_tape.Command(m_engine, "Undo");
}

void Session::Redo() {
    const Command command(*this);
    if (!Restore(HistoryStep::Redo)) {
        Show(message::NothingToRedoCaption, message::NothingToRedoText);
        return;
    }
    m_tape.Command(m_engine, "Redo");
}

void Session::Copy() {
    const Command command(*this);
    if (const auto text = ClipboardText(m_engine)) m_host.PutOnClipboard(*text);
}

void Session::Cut() {
    const Command command(*this);
    const auto text = ClipboardText(m_engine);
    if (!text) return;
    m_host.PutOnClipboard(*text);
    Execute(fid::Drop);
}

void Session::Paste() {
    const Command command(*this);
    std::optional<std::string> text;
    {
        const Waiting waiting(*this);
        text = m_host.ClipboardText();
    }
    if (text) PasteText(*text);
}

bool Session::RecallConstant(int index, u16 topRow) {
    const Command command(*this);
    Engine& e = m_engine;
    e.history.TakeSnapshot(e.Records());
    if (!brinto::RecallConstant(e, index, topRow)) return false;
    e.history.Commit(e.Records());
    m_tape.Command(e, "Constant " + std::string(ConstantName(index)));
    m_host.Repaint();
    return true;
}

void Session::EnterValue(double value, ValueTag tag) {
    Engine& e = m_engine;
    e.history.TakeSnapshot(e.Records());
    // A number being typed is completed first, then the value arrives like a recall, and the next
    // digit lifts it.
    e.RecallLift();
    e.FinishEntry();
    e.SetX(value);
    e.SetXTag(tag);
    e.EnableLift();
    e.dirty.state = true;
    e.RequestRedraw();
    e.history.Commit(e.Records());
    m_host.Repaint();
}

void Session::PasteText(std::string_view text) {
    const Command command(*this);
    const u16 base = m_engine.EntryBase();
    const auto value = ParsePasted(PasteSpan(text), base);
    if (!value) return;
    if (base == 0) {
        EnterValue(*value, ValueTag::None);
    } else {
        const ValueTag format = IntegerFormatOf(m_engine.prefs, ValueTag::None);
        EnterValue(Narrow(*value, ValueTag::U32, format), format);  // the pasted digits are an unsigned word
    }
    m_tape.Command(m_engine, "Paste");
}

void Session::RecallValue(double value, ValueTag tag) {
    const Command command(*this);
    EnterValue(value, tag);
    m_tape.Command(m_engine, "Recall");
}

bool Session::EnterDate(int year, int month, int day) {
    const Command command(*this);
    if (month < 1 || month > 12 || day < 1 || day > 31) return false;
    DateFields fields;
    fields.year = year;
    fields.month = month;
    fields.day = day;
    const double value = ComposeDate(fields);
    if (!IsDateInRange(value) || SplitDate(value).day != day) return false;  // 31 April is no date
    EnterValue(value, fid::TagDate);
    m_tape.Command(m_engine, "Enter Date");
    return true;
}

bool Session::EnterTime(int hour, int minute) {
    const Command command(*this);
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59) return false;
    EnterValue(hour * 3600.0 + minute * 60.0, fid::TagTime);
    m_tape.Command(m_engine, "Enter Time");
    return true;
}

void Session::ChooseInputMethod(InputMethod method) {
    const Command command(*this);
    m_engine.prefs.SetMethod(method);
    const u16 bits = method == InputMethod::Rpn ? flags::Rpn : method == InputMethod::Precedence ? flags::Precedence : 0;
    CalcState& s = m_engine.state;
    ReplaceBits(s.engineFlags, flags::MethodMask, bits);
    m_engine.dirty.preferences = true;
    m_engine.dirty.state = true;
    m_engine.RequestRedraw();
    m_host.Repaint();
}

void Session::SetPreferences(const Preferences& prefs) {
    const Command command(*this);
    m_engine.prefs = prefs;
    m_engine.prefs.words[0] = kPreferencesVersion;
    m_engine.dirty.preferences = true;
    // The full-display toggle is dropped, so the display lays itself out afresh.
    ClearBits(m_engine.state.status, status::FullDisplay);
    m_engine.dirty.state = true;
    Execute(m_engine.prefs.Method() == InputMethod::Rpn          ? fid::MethodRpn
            : m_engine.prefs.Method() == InputMethod::Precedence ? fid::MethodPrecedence
                                                                 : fid::MethodSimple);
}

void Session::OverridePreferences(const Preferences& prefs) {
    m_engine.prefs = prefs;
    m_host.Repaint();
}

FunctionId* Session::Half(KeyHalf half) { return m_userKeys.keys + (half == KeyHalf::Shifted ? kBlockKeys : 0); }

bool Session::AssignUserKey(KeyHalf half, int key, FunctionId id) {
    const Command command(*this);
    if (key < 1 || key > kBlockKeys) return false;
    Half(half)[key - 1] = id;
    m_engine.dirty.userKeys = true;
    m_host.Repaint();
    return true;
}

void Session::SetIntegerUserKeys(bool on) {
    const Command command(*this);
    if (m_engine.prefs.IntegerUserKeys() == on) return;
    m_engine.prefs.SetIntegerUserKeys(on);
    m_engine.dirty.preferences = true;
    m_host.Repaint();
}

bool Session::StoreRegister(int number, double value) {
    const Command command(*this);
    if (number < 0 || number >= kRegisterCount) return false;
    Engine& e = m_engine;
    e.history.TakeSnapshot(e.Records());
    e.registers.values[number] = value;
    e.dirty.registers = true;
    e.history.Commit(e.Records());
    m_host.Repaint();
    return true;
}

bool Session::StoreRegisters(int first, std::span<const double> values) {
    const Command command(*this);
    const auto count = static_cast<int>(values.size());
    if (first < 0 || count < 1 || first + count > kRegisterCount) return false;
    Engine& e = m_engine;
    if (std::equal(values.begin(), values.end(), e.registers.values + first)) return false;
    e.history.TakeSnapshot(e.Records());
    std::copy(values.begin(), values.end(), e.registers.values + first);
    e.dirty.registers = true;
    e.history.Commit(e.Records());
    m_host.Repaint();
    return true;
}

bool Session::StoreCashFlow(int entry, double amount, int groupCount) {
    const Command command(*this);
    Engine& e = m_engine;
    if (entry < 0 || entry > e.registers.cashFlowCount || groupCount < 1) return false;
    e.history.TakeSnapshot(e.Records());
    e.registers.values[entry] = amount;
    e.registers.aux[entry] = static_cast<u32>(groupCount);
    e.dirty.registers = true;
    e.history.Commit(e.Records());
    m_host.Repaint();
    return true;
}

bool Session::SetAmortizationRange(int start, int end) {
    const Command command(*this);
    constexpr int kLastPayment = 32767;
    if (start < 1 || end < 1 || start > kLastPayment || end > kLastPayment) return false;
    Engine& e = m_engine;
    e.history.TakeSnapshot(e.Records());
    e.state.amortStart = static_cast<i16>(start);
    e.state.amortEnd = static_cast<i16>(end);
    e.dirty.state = true;
    e.history.Commit(e.Records());
    m_host.Repaint();
    return true;
}

bool Session::Solve(FunctionId registerKey) {
    const Command command(*this);
    m_engine.FinishEntry();
    return Execute(registerKey);
}

bool Session::TapViewKey(FunctionId id) {
    const Command command(*this);
    const bool accepted = Tap(id);
    if (id != fid::Shift && id != fid::DisplayToggle && (m_engine.state.status & status::FullDisplay)) {
        ClearBits(m_engine.state.status, status::FullDisplay);
        m_engine.dirty.state = true;
        m_engine.RequestRedraw();
        m_host.Repaint();
    }
    return accepted;
}

void Session::SetConstantsTopRow(u16 row) {
    const Command command(*this);
    m_engine.state.constantsTopRow = row;
    m_engine.dirty.state = true;
}

void Session::SetLastView(View view) {
    const Command command(*this);
    m_engine.state.lastView = static_cast<u16>(view);
    m_engine.dirty.state = true;
}

void Session::SetRandomSeed(u32 seed) {
    const Command command(*this);
    m_engine.state.randomSeed = seed;
    m_engine.dirty.state = true;
}

void Session::SelectKeyboard(int index) {
    const Command command(*this);
    if (index < 0 || index >= kKeyboardCount) return;
    CalcState& s = m_engine.state;
    ReplaceBits(s.status, status::KeyboardMask, index);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

void Session::Basic() {
    const Command command(*this);
    CalcState& s = m_engine.state;
    s.viewFlags = static_cast<u16>((s.viewFlags & ~view::ModeMask) | view::Basic);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

void Session::Advanced() {
    const Command command(*this);
    ClearBits(m_engine.state.viewFlags, view::ModeMask);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

}  // namespace brinto
