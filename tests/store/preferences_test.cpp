// The codings of the preferences record, which the saved file and the dialog pages share.
#include "engine/preferences.h"

#include <gtest/gtest.h>

#include <functional>

namespace brinto {
namespace {

TEST(Preferences, DefaultsAreTheFreshRecord) {
    const Preferences p = DefaultPreferences();
    const std::array<u16, 7> expected = {7, 0, 0x0290, 0x0002, 0, 0, 0};
    EXPECT_EQ(p.words, expected);
    EXPECT_EQ(p.Method(), InputMethod::Simple);
    EXPECT_EQ(p.StackDepth(), 4);
    EXPECT_EQ(p.IntegerFormat(), 5);  // "32-bit signed"
    EXPECT_EQ(p.Format(), NumberFormat::Standard);
    EXPECT_EQ(p.DigitField(), 0);
    EXPECT_TRUE(p.HundredRegisters());
}

// Each writer changes its own bits and nothing else: set to its largest value on a zeroed record
// it fills exactly its mask; set to zero on a record of ones it clears exactly its mask.
TEST(Preferences, EveryFieldOwnsExactlyItsBits) {
    struct Case {
        const char* name;
        int word;
        u16 mask;
        std::function<void(Preferences&, bool)> set;  // true: the largest value
    };
    const Case cases[] = {
        {"theme", 1, 0xFFFF, [](Preferences& p, bool m) { p.SetTheme(m ? 0xFFFF : 0); }},
        {"stack depth", 2, 0x007C, [](Preferences& p, bool m) { p.SetStackDepth(m ? 31 : 0); }},
        {"integer format", 2, 0x0380, [](Preferences& p, bool m) { p.SetIntegerFormat(m ? 7 : 0); }},
        {"number format", 2, 0x0C00,
         [](Preferences& p, bool m) { p.SetFormat(m ? NumberFormat::Fixed : NumberFormat::Standard); }},
        {"digits", 2, 0xF000, [](Preferences& p, bool m) { p.SetDigitField(m ? 15 : 0); }},
        {"long date", 3, 0x0001, [](Preferences& p, bool m) { p.SetLongDate(m); }},
        {"100 registers", 3, 0x0002, [](Preferences& p, bool m) { p.SetHundredRegisters(m); }},
        {"backspace drops", 3, 0x0004, [](Preferences& p, bool m) { p.SetBackspaceDrops(m); }},
        {"display font", 3, 0x00E0, [](Preferences& p, bool m) { p.SetDisplayFont(m ? 7 : 0); }},
        {"display lines", 3, 0x0700, [](Preferences& p, bool m) { p.SetDisplayLines(m ? 7 : 0); }},
        {"basic also", 3, 0x0800, [](Preferences& p, bool m) { p.SetBasicAlso(m); }},
        {"border", 3, 0x3000, [](Preferences& p, bool m) { p.SetBorder(m ? 3 : 0); }},
        {"keyboard show", 3, 0xC000, [](Preferences& p, bool m) { p.SetKeyboardShow(m ? 3 : 0); }},
        {"quick switch", 4, 0x0001, [](Preferences& p, bool m) { p.SetQuickSwitch(m); }},
        {"key colour", 5, 0x0003, [](Preferences& p, bool m) { p.SetKeyColor(m ? 3 : 0); }},
        {"active key", 5, 0x000C, [](Preferences& p, bool m) { p.SetActiveKey(m ? 3 : 0); }},
        {"key labels", 5, 0x0030, [](Preferences& p, bool m) { p.SetKeyLabels(m ? 3 : 0); }},
        {"key size", 5, 0x00C0, [](Preferences& p, bool m) { p.SetKeySize(m ? 3 : 0); }},
        {"key shadow", 5, 0x0700, [](Preferences& p, bool m) { p.SetKeyShadow(m ? 7 : 0); }},
        {"action", 5, 0x3800,
         [](Preferences& p, bool m) { p.SetAction(static_cast<ActionChoice>(m ? 7 : 0)); }},
        {"integer user keys", 5, 0x4000, [](Preferences& p, bool m) { p.SetIntegerUserKeys(m); }},
        {"comma radix", 6, 0x0001, [](Preferences& p, bool m) { p.SetCommaRadix(m); }},
        {"ClearType", 6, 0x0002, [](Preferences& p, bool m) { p.SetClearType(m); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Preferences zeros{};
        c.set(zeros, true);
        Preferences ones{};
        ones.words.fill(0xFFFF);
        c.set(ones, false);
        for (int w = 0; w < 7; ++w) {
            EXPECT_EQ(zeros.words[w], w == c.word ? c.mask : 0) << "word " << w;
            EXPECT_EQ(ones.words[w], w == c.word ? static_cast<u16>(~c.mask) : 0xFFFF) << "word " << w;
        }
    }
}

TEST(Preferences, NumberFormatIsStoredOutOfListOrder) {
    struct Case {
        int listIndex;
        u16 stored;
    };
    // "Standard", "Fixed", "Scientific", "Engineering" are stored as 0, 3, 1, 2.
    for (const Case c : {Case{0, 0}, Case{1, 3}, Case{2, 1}, Case{3, 2}}) {
        SCOPED_TRACE(c.listIndex);
        Preferences p = DefaultPreferences();
        p.SetFormatListIndex(c.listIndex);
        EXPECT_EQ((p.words[2] >> 10) & 3, c.stored);
        EXPECT_EQ(p.FormatListIndex(), c.listIndex);
    }
}

TEST(Preferences, StackDepthListChoices) {
    Preferences p = DefaultPreferences();
    p.SetStackDepthListIndex(4);
    EXPECT_EQ(p.words[2] & 0x7C, 0x50);  // depth 20
    EXPECT_EQ(p.StackDepth(), 20);
    for (int index = 0; index < 5; ++index) {
        p.SetStackDepthListIndex(index);
        EXPECT_EQ(p.StackDepth(), 4 * (index + 1));
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
    p.words[2] = 3;
    EXPECT_EQ(p.Method(), InputMethod::Rpn);
    p.words[3] = 0x18;
    EXPECT_EQ(p.Shift(), ShiftMode::Sticky);
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
}  // namespace brinto
