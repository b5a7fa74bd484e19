// The codings of the preferences record, which the saved file and the dialog pages share, checked
// where they are compiled: a field that strays into its neighbour's bits, or a list order or a
// stored code that changes, stops the build instead of garbling saved settings.
#include "engine/preferences.h"

namespace brinto {
namespace {

// Each writer changes its own bits and nothing else: set to its largest value on a zeroed record
// it fills exactly `mask` of `word`; set to zero on a record of ones it clears exactly that mask.
template <typename Writer>
constexpr bool Owns(int word, u16 mask, Writer set) {
    Preferences zeros{};
    set(zeros, true);
    Preferences ones{};
    ones.words.fill(0xFFFF);
    set(ones, false);
    for (int w = 0; w < 7; ++w) {
        if (zeros.words[w] != (w == word ? mask : 0)) return false;
        if (ones.words[w] != (w == word ? static_cast<u16>(~mask) : 0xFFFF)) return false;
    }
    return true;
}
template <typename Setter>
constexpr bool OwnsField(int word, u16 mask, Setter setter, int largest) {
    return Owns(word, mask, [&](Preferences& p, bool most) { (p.*setter)(most ? largest : 0); });
}
template <typename Setter>
constexpr bool OwnsFlag(int word, u16 mask, Setter setter) {
    return Owns(word, mask, [&](Preferences& p, bool on) { (p.*setter)(on); });
}
static_assert(OwnsField(1, 0xFFFF, &Preferences::SetTheme, 0xFFFF));
static_assert(OwnsField(2, 0x007C, &Preferences::SetStackDepth, 31));
static_assert(OwnsField(2, 0x0380, &Preferences::SetIntegerFormat, 7));
static_assert(Owns(2, 0x0C00, [](Preferences& p, bool m) {
    p.SetFormat(m ? NumberFormat::Fixed : NumberFormat::Standard);
}));
static_assert(OwnsField(2, 0xF000, &Preferences::SetDigitField, 15));
static_assert(OwnsFlag(3, 0x0001, &Preferences::SetLongDate));
static_assert(OwnsFlag(3, 0x0002, &Preferences::SetHundredRegisters));
static_assert(OwnsFlag(3, 0x0004, &Preferences::SetBackspaceDrops));
static_assert(OwnsField(3, 0x00E0, &Preferences::SetDisplayFont, 7));
static_assert(OwnsField(3, 0x0700, &Preferences::SetDisplayLines, 7));
static_assert(OwnsFlag(3, 0x0800, &Preferences::SetBasicAlso));
static_assert(OwnsField(3, 0x3000, &Preferences::SetBorder, 3));
static_assert(OwnsField(3, 0xC000, &Preferences::SetKeyboardShow, 3));
static_assert(OwnsFlag(4, 0x0001, &Preferences::SetQuickSwitch));
static_assert(OwnsField(5, 0x0003, &Preferences::SetKeyColor, 3));
static_assert(OwnsField(5, 0x000C, &Preferences::SetActiveKey, 3));
static_assert(OwnsField(5, 0x0030, &Preferences::SetKeyLabels, 3));
static_assert(OwnsField(5, 0x00C0, &Preferences::SetKeySize, 3));
static_assert(OwnsField(5, 0x0700, &Preferences::SetKeyShadow, 7));
static_assert(Owns(5, 0x3800, [](Preferences& p, bool m) { p.SetAction(static_cast<ActionChoice>(m ? 7 : 0)); }));
static_assert(OwnsFlag(5, 0x4000, &Preferences::SetIntegerUserKeys));
static_assert(OwnsFlag(6, 0x0001, &Preferences::SetCommaRadix));
static_assert(OwnsFlag(6, 0x0002, &Preferences::SetClearType));

// What each reader makes of what a writer stored: the lists' orders ("Standard", "Fixed",
// "Scientific", "Engineering" stored as 0, 3, 1, 2; depths 4 to 20 by fours), tap targets stored
// with code 1 skipped (and read as the first entry), and of two contradictory bits the first wins.
constexpr bool ListsAndCodesReadBack() {
    Preferences p = DefaultPreferences();
    constexpr int kStoredFormat[] = {0, 3, 1, 2};
    for (int index = 0; index < 4; ++index) {
        p.SetFormatListIndex(index);
        if (((p.words[2] >> 10) & 3) != kStoredFormat[index] || p.FormatListIndex() != index) return false;
    }
    for (int index = 0; index < 5; ++index) {
        p.SetStackDepthListIndex(index);
        if ((p.words[2] & 0x7C) != 16 * (index + 1) || p.StackDepthListIndex() != index) return false;
    }
    for (const TapArea area : {TapArea::Left, TapArea::Center, TapArea::Right}) {
        for (int entry = 0; entry <= static_cast<int>(TapTarget::Statistical); ++entry) {
            p.SetTap(area, static_cast<TapTarget>(entry));
            const int code = (p.words[4] >> (1 + 5 * static_cast<int>(area))) & 0x1F;
            if (code != (entry == 0 ? 0 : entry + 1) || p.Tap(area) != static_cast<TapTarget>(entry)) return false;
        }
    }
    Preferences one{};
    one.words[4] = static_cast<u16>(1 << 6 | 1);  // centre code 1, quick switch on
    if (one.Tap(TapArea::Center) != TapTarget::Preferences) return false;
    one.SetTap(TapArea::Center, one.Tap(TapArea::Center));
    if (one.words[4] != 1) return false;
    Preferences both{};
    both.words[2] = 3;     // both input-method bits
    both.words[3] = 0x18;  // both shift bits
    if (both.Method() != InputMethod::Rpn || both.Shift() != ShiftMode::Sticky) return false;
    for (const InputMethod m : {InputMethod::Simple, InputMethod::Precedence, InputMethod::Rpn}) {
        both.SetMethod(m);
        if (both.Method() != m) return false;
    }
    for (const ShiftMode m : {ShiftMode::Standard, ShiftMode::Sticky, ShiftMode::Locking}) {
        both.SetShift(m);
        if (both.Shift() != m) return false;
    }
    return true;
}
static_assert(ListsAndCodesReadBack());

// Simple input, stack depth 4, "32-bit signed", 100 registers.
static_assert(DefaultPreferences().words == std::array<u16, 7>{7, 0, 0x0290, 0x0002, 0, 0, 0});

}  // namespace
}  // namespace brinto
