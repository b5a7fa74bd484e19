#include "session/theme.h"

#include <algorithm>
#include <cassert>
#include <span>

namespace brinto {

namespace {

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kWhite{255, 255, 255};

// One change to the palette: the slot takes `colour`, or a copy of slot `copyOf` as it is at that
// moment (so the order of the rows matters).
struct PaletteStep {
    u8 slot;
    Rgb colour;
    int copyOf = -1;
};
constexpr PaletteStep Set(u8 slot, Rgb colour) { return {slot, colour}; }
constexpr PaletteStep Copy(u8 slot, int from) { return {slot, {}, from}; }

struct ValueStep {
    int index;
    int value;
};

// Every theme starts from black, with these slots white.
constexpr std::array<u8, 11> kWhiteBaseSlots = {1, 3, 5, 7, 15, 17, 22, 24, 25, 27, 29};

constexpr Rgb kGray51{51, 51, 51}, kGray102{102, 102, 102}, kGray153{153, 153, 153},
    kGray170{170, 170, 170}, kGray204{204, 204, 204};
constexpr Rgb kIndigo{51, 51, 153}, kNavy{0, 0, 153}, kDarkNavy{0, 0, 102}, kDarkRed{153, 0, 0},
    kBrick{153, 51, 51}, kLightBlue{153, 153, 255}, kYellow{255, 255, 102}, kGreen{102, 255, 102};

// What each slot paints is listed in screen_colours.h.
constexpr std::array kDefaultColorPalette = {
    Set(7, kWhite),    Set(15, kWhite),  Set(10, kDarkRed),  Set(9, kNavy),   Set(12, kBrick),
    Set(11, kGray102), Set(13, kNavy),   Set(16, kGray102),  Set(17, kIndigo), Set(18, kWhite),
    Set(19, kYellow),  Set(20, kGreen),  Copy(21, 19),       Copy(22, 17),     Copy(23, 20),
    Copy(24, 17),      Set(25, kLightBlue), Set(26, kBlack), Copy(27, 17),     Copy(28, 18),
    Set(29, kBrick),   Copy(30, 18),
};
constexpr std::array kDefaultGrayscalePalette = {
    Set(17, kGray204), Set(19, kGray51), Set(20, kGray51), Copy(21, 19),      Copy(22, 17),
    Copy(23, 20),      Copy(24, 17),     Set(25, kGray170), Set(27, kGray204), Set(29, kGray102),
    Set(30, kWhite),
};
constexpr std::array kOriginalColorPalette = {
    Set(17, kIndigo),    Set(18, kWhite),     Set(19, kYellow),  Set(20, kGreen), Copy(21, 18),
    Copy(22, 17),        Copy(23, 18),        Copy(24, 17),      Set(25, kLightBlue),
    Set(26, kDarkNavy),  Set(27, kIndigo),    Set(28, kWhite),   Set(29, kBrick), Set(30, kWhite),
};
constexpr std::array kOriginalGrayscalePalette = {
    Set(17, kGray204), Set(19, kGray51), Set(20, kGray51), Copy(21, 18),      Copy(22, 17),
    Copy(23, 18),      Copy(24, 17),     Set(25, kGray170), Set(27, kGray204), Set(29, kGray102),
    Set(30, kWhite),
};
constexpr std::array kLightBackgroundPalette = {Set(15, kGray204)};
// Slots 9 to 13 keep the colours of "Default Color", on which this theme is laid.
constexpr std::array kDarkBackgroundPalette = {
    Set(7, kGray204),  Set(15, kGray51),  Set(16, kBlack),    Set(17, kGray102), Set(18, kGray204),
    Set(19, {204, 204, 0}), Set(20, {0, 204, 0}), Copy(21, 19), Copy(22, 17),    Copy(23, 20),
    Copy(24, 17),      Set(25, kGray153), Set(26, kBlack),    Copy(27, 17),      Copy(28, 18),
    Set(29, kBrick),   Copy(30, 18),
};

constexpr std::array kGrayStyles = {ValueStep{style::Font, 3}, ValueStep{style::Keys, 1}};
constexpr std::array kOriginalStyles = {
    ValueStep{style::Show, 3}, ValueStep{style::Font, 2}, ValueStep{style::PlainDisplay, 1},
    ValueStep{style::Lines, 1}, ValueStep{style::Keys, 1}};
constexpr std::array kLightStyles = {
    ValueStep{style::Lines, 2}, ValueStep{style::Size, 1}, ValueStep{style::Show, 1},
    ValueStep{style::Border, 3}};
constexpr std::array kDarkStyles = {
    ValueStep{style::Lines, 2}, ValueStep{style::Font, 2}, ValueStep{style::Size, 1},
    ValueStep{style::Show, 1}, ValueStep{style::Border, 1}};
// Key style values 0 to 4, in order.
constexpr std::array kOriginalKeyStyle = {ValueStep{0, 2}, ValueStep{1, 2}, ValueStep{2, 0},
                                          ValueStep{3, 1}, ValueStep{4, 1}};
constexpr std::array kOriginalBlackWhiteKeyStyle = {ValueStep{0, 2}, ValueStep{1, 2},
                                                    ValueStep{2, 1}, ValueStep{3, 0},
                                                    ValueStep{4, 1}};
// Flat keys on the dark background: a shadow would not show.
constexpr std::array kDarkKeyStyle = {ValueStep{key_style::Shadow, 0}};

// Grayscale and black-and-white keys cannot be told apart from the background by colour, so they
// are outlined, and the outline takes one step of the shadow.
enum class OutlineKeys { No, Yes };

struct ThemeRow {
    u16 id;
    std::string_view name;
    std::span<const PaletteStep> underlay;  // the palette this theme is laid on, applied first
    std::span<const PaletteStep> palette;
    std::span<const ValueStep> styles;
    std::span<const ValueStep> keyStyle;    // applied after the palette
    OutlineKeys outline;
};

constexpr std::array<ThemeRow, 8> kThemeRows = {{
    {theme_id::DefaultColor, "Default Color", {}, kDefaultColorPalette, {}, {}, OutlineKeys::No},
    {theme_id::DefaultGrayscale, "Default Grayscale", {}, kDefaultGrayscalePalette, kGrayStyles, {},
     OutlineKeys::Yes},
    {theme_id::DefaultBlackWhite, "Default B&W", {}, {}, kGrayStyles, {}, OutlineKeys::Yes},
    {theme_id::OriginalColor, "Original Color", {}, kOriginalColorPalette, kOriginalStyles,
     kOriginalKeyStyle, OutlineKeys::No},
    {theme_id::OriginalGrayscale, "Original Grayscale", {}, kOriginalGrayscalePalette,
     kOriginalStyles, kOriginalKeyStyle, OutlineKeys::No},
    {theme_id::OriginalBlackWhite, "Original B&W", {}, {}, kOriginalStyles,
     kOriginalBlackWhiteKeyStyle, OutlineKeys::No},
    {theme_id::LightBackground, "Light Background", kDefaultColorPalette, kLightBackgroundPalette,
     kLightStyles, {}, OutlineKeys::No},
    {theme_id::DarkBackground, "Dark Background", kDefaultColorPalette, kDarkBackgroundPalette,
     kDarkStyles, kDarkKeyStyle, OutlineKeys::No},
}};

consteval bool RowsInIdOrder() {
    for (std::size_t i = 0; i < kThemeRows.size(); ++i)
        if (kThemeRows[i].id != i + 1) return false;
    return true;
}
static_assert(RowsInIdOrder(), "theme rows must be listed by identifier, 1 to 8");

const ThemeRow& RowOf(u16 id) {
    assert(id >= 1 && id <= kThemeRows.size());
    return kThemeRows[id - 1];
}

void ApplySteps(Palette& palette, std::span<const PaletteStep> steps) {
    for (const PaletteStep& s : steps) palette[s.slot] = s.copyOf >= 0 ? palette[s.copyOf] : s.colour;
}

template <std::size_t N>
void ApplyValues(std::array<int, N>& values, std::span<const ValueStep> steps) {
    for (const ValueStep& s : steps) values[s.index] = s.value;
}

}  // namespace

ThemeSet::ThemeSet() {
    BuildThemes(ColourDisplay::Yes);
    ResetToBase();
}

void ThemeSet::ResetToBase() {
    m_palette.fill(kBlack);
    for (const u8 slot : kWhiteBaseSlots) m_palette[slot] = kWhite;
    m_keyStyle = kDefaultKeyStyle;
}

void ThemeSet::BuildThemes(ColourDisplay colour) {
    m_themes.clear();
    m_current = m_applied = -1;
    for (const ThemeRow& row : kThemeRows) {
        const bool blackWhite =
            row.id == theme_id::DefaultBlackWhite || row.id == theme_id::OriginalBlackWhite;
        if (colour == ColourDisplay::Yes || blackWhite)
            m_themes.push_back(Theme{row.id, std::string(row.name), 0, kDefaultStyles});
    }
}

Theme* ThemeSet::FindTheme(u16 id) {
    for (Theme& t : m_themes)
        if (t.id == id) return &t;
    return nullptr;
}

int ThemeSet::IndexOf(const Theme* theme) const {
    return theme == nullptr ? -1 : static_cast<int>(theme - m_themes.data());
}

Theme& ThemeSet::SelectTheme(u16 id) {
    if (id == 0) id = theme_id::DefaultColor;
    if (const Theme* found = FindTheme(id)) m_current = IndexOf(found);
    return CurrentTheme();
}

Theme& ThemeSet::CurrentTheme() {
    // A black-and-white list has no "Default Color": its first theme stands in.
    if (m_current < 0) m_current = std::max(0, IndexOf(FindTheme(theme_id::DefaultColor)));
    return m_themes[m_current];
}

void ThemeSet::ApplyTheme(Theme& theme) {
    assert(IndexOf(&theme) >= 0 && IndexOf(&theme) < static_cast<int>(m_themes.size()));
    const ThemeRow& row = RowOf(theme.id);
    theme.styles = kDefaultStyles;
    ResetToBase();

    ApplyValues(theme.styles, row.styles);
    ApplySteps(m_palette, row.underlay);
    ApplySteps(m_palette, row.palette);
    ApplyValues(m_keyStyle, row.keyStyle);
    if (row.outline == OutlineKeys::Yes && m_keyStyle[key_style::Outline] == 0) {
        m_keyStyle[key_style::Outline] = 1;
        if (m_keyStyle[key_style::Shadow] > 0) --m_keyStyle[key_style::Shadow];
    }
    m_applied = IndexOf(&theme);
}

const ThemeStyles& ThemeSet::styles() const {
    return m_applied >= 0 ? m_themes[m_applied].styles : kDefaultStyles;
}

}  // namespace brinto
