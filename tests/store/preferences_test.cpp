// The codings of the preferences record, which the saved file and the dialog pages share.
#include "engine/preferences.h"

#include <gtest/gtest.h>

#include <functional>

namespace brinto::test {
namespace {

TEST(Preferences, DefaultsAreTheFreshRecord) {
    // Simple input, stack depth 4, "32-bit signed", 100 registers.
    EXPECT_EQ(DefaultPreferences().words, (std::array<u16, 7>{7, 0, 0x0290, 0x0002, 0, 0, 0}));
}

// Each writer changes its own bits and nothing else: set to its largest value on a zeroed record
// it fills exactly its mask; set to zero on a record of ones it clears exactly its mask.
TEST(Preferences, EveryFieldOwnsExactlyItsBits) {
    using Set = std::function<void(Preferences&, bool)>;  // true: the largest value
    const auto field = [](auto setter, int largest) -> Set {
        return [=](Preferences& p, bool m) { (p.*setter)(m ? largest : 0); };
    };
    const auto flag = [](auto setter) -> Set { return [=](Preferences& p, bool m) { (p.*setter)(m); }; };
    const std::tuple<const char*, int, u16, Set> cases[] = {
        {"theme", 1, 0xFFFF, field(&Preferences::SetTheme, 0xFFFF)},
        {"stack depth", 2, 0x007C, field(&Preferences::SetStackDepth, 31)},
        {"integer format", 2, 0x0380, field(&Preferences::SetIntegerFormat, 7)},
        {"number format", 2, 0x0C00,
         [](Preferences& p, bool m) { p.SetFormat(m ? NumberFormat::Fixed : NumberFormat::Standard); }},
        {"digits", 2, 0xF000, field(&Preferences::SetDigitField, 15)},
        {"long date", 3, 0x0001, flag(&Preferences::SetLongDate)},
        {"100 registers", 3, 0x0002, flag(&Preferences::SetHundredRegisters)},
        {"backspace drops", 3, 0x0004, flag(&Preferences::SetBackspaceDrops)},
        {"display font", 3, 0x00E0, field(&Preferences::SetDisplayFont, 7)},
        {"display lines", 3, 0x0700, field(&Preferences::SetDisplayLines, 7)},
        {"basic also", 3, 0x0800, flag(&Preferences::SetBasicAlso)},
        {"border", 3, 0x3000, field(&Preferences::SetBorder, 3)},
        {"keyboard show", 3, 0xC000, field(&Preferences::SetKeyboardShow, 3)},
        {"quick switch", 4, 0x0001, flag(&Preferences::SetQuickSwitch)},
        {"key colour", 5, 0x0003, field(&Preferences::SetKeyColor, 3)},
        {"active key", 5, 0x000C, field(&Preferences::SetActiveKey, 3)},
        {"key labels", 5, 0x0030, field(&Preferences::SetKeyLabels, 3)},
        {"key size", 5, 0x00C0, field(&Preferences::SetKeySize, 3)},
        {"key shadow", 5, 0x0700, field(&Preferences::SetKeyShadow, 7)},
        {"action", 5, 0x3800,
         [](Preferences& p, bool m) { p.SetAction(static_cast<ActionChoice>(m ? 7 : 0)); }},
        {"integer user keys", 5, 0x4000, flag(&Preferences::SetIntegerUserKeys)},
        {"comma radix", 6, 0x0001, flag(&Preferences::SetCommaRadix)},
        {"ClearType", 6, 0x0002, flag(&Preferences::SetClearType)},
    };
    for (const auto& [name, word, mask, set] : cases) {
        SCOPED_TRACE(name);
        Preferences zeros{};
        set(zeros, true);
        Preferences ones{};
        ones.words.fill(0xFFFF);
        set(ones, false);
        for (int w = 0; w < 7; ++w) {
            EXPECT_EQ(zeros.words[w], w == word ? mask : 0) << "word " << w;
            EXPECT_EQ(ones.words[w], w == word ? static_cast<u16>(~mask) : 0xFFFF) << "word " << w;
        }
    }
}

TEST(Preferences, ListOrderCodings) {
    Preferences p = DefaultPreferences();
    // "Standard", "Fixed", "Scientific", "Engineering" are stored as 0, 3, 1, 2.
    const std::pair<int, int> formats[] = {{0, 0}, {1, 3}, {2, 1}, {3, 2}};
    for (const auto& [listIndex, stored] : formats) {
        SCOPED_TRACE(listIndex);
        p.SetFormatListIndex(listIndex);
        EXPECT_EQ((p.words[2] >> 10) & 3, stored);
        EXPECT_EQ(p.FormatListIndex(), listIndex);
    }
    for (int index = 0; index < 5; ++index) {  // depths 4, 8, ..., 20
        p.SetStackDepthListIndex(index);
        EXPECT_EQ(p.words[2] & 0x7C, 16 * (index + 1));
        EXPECT_EQ(p.StackDepthListIndex(), index);
    }
}

TEST(Preferences, TapTargetsSkipCodeOne) {
    Preferences p{};
    for (const TapArea area : {TapArea::Left, TapArea::Center, TapArea::Right}) {
        const int shift = 1 + 5 * static_cast<int>(area);
        SCOPED_TRACE(shift);
        for (int entry = 0; entry <= static_cast<int>(TapTarget::Statistical); ++entry) {
            p.SetTap(area, static_cast<TapTarget>(entry));
            EXPECT_EQ((p.words[4] >> shift) & 0x1F, entry == 0 ? 0 : entry + 1);
            EXPECT_EQ(p.Tap(area), static_cast<TapTarget>(entry));
        }
    }
    // A field holding 1 shows the first entry and is written back as 0.
    Preferences one{};
    one.words[4] = static_cast<u16>(1 << 6 | 1);  // centre 1, quick switch on
    EXPECT_EQ(one.Tap(TapArea::Center), TapTarget::Preferences);
    one.SetTap(TapArea::Center, one.Tap(TapArea::Center));
    EXPECT_EQ(one.words[4], 1);
}

TEST(Preferences, TheFirstOfTwoContradictoryBitsWins) {
    Preferences p{};
    p.words[2] = 3;     // both input-method bits
    p.words[3] = 0x18;  // both shift bits
    EXPECT_EQ(p.Method(), InputMethod::Rpn);
    EXPECT_EQ(p.Shift(), ShiftMode::Sticky);
    // Setting either clears the other bit.
    for (const InputMethod m : {InputMethod::Simple, InputMethod::Precedence, InputMethod::Rpn}) {
        p.SetMethod(m);
        EXPECT_EQ(p.Method(), m);
    }
    for (const ShiftMode m : {ShiftMode::Standard, ShiftMode::Sticky, ShiftMode::Locking}) {
        p.SetShift(m);
        EXPECT_EQ(p.Shift(), m);
    }
}

}  // namespace
}  // namespace brinto::test
