#pragma once
// Preferences: the user's settings, seven 16-bit words of bit fields saved as a 14-byte image.
// Fields are read and written through the named accessors below, which keep the codings of the
// stored format (the number-format order, the tap-target code 1, the stack-depth field).
#include <array>
#include <cstddef>
#include <type_traits>

#include "engine/types.h"

namespace brinto {

inline constexpr u16 kPreferencesVersion = 7;

enum class InputMethod : u16 { Simple = 0, Precedence = 1, Rpn = 2 };
// Stored codes of the number format (not the order of the list that shows them).
enum class NumberFormat : u16 { Standard = 0, Scientific = 1, Engineering = 2, Fixed = 3 };
enum class ShiftMode : u16 { Standard = 0, Sticky = 1, Locking = 2 };
enum class ActionChoice : u16 { Default = 0, Nothing = 1, ShiftKeyboard = 2, RepeatLastKey = 3,
                                OpenLastForm = 4, PlayMacro = 5 };
enum class TapTarget : u16 { Preferences = 0, Keyboard, Stack, UserRegisters, Constants, Tvm,
                             Amortization, CashFlow, Statistical };
enum class TapArea : u16 { Left = 0, Center = 1, Right = 2 };

struct Preferences {
    std::array<u16, 7> words;

    // Word 1: theme identifier (0 means theme 1).
    u16 Theme() const { return words[1]; }
    void SetTheme(u16 id) { words[1] = id; }

    // Word 2.
    InputMethod Method() const;
    void SetMethod(InputMethod m);
    int StackDepth() const { return (words[2] >> 2) & 0x1F; }
    void SetStackDepth(int depth) { Set(2, 2, 5, static_cast<u16>(depth)); }
    int IntegerFormat() const { return (words[2] >> 7) & 0x7; }  // 0..5: u8 .. s32
    void SetIntegerFormat(int f) { Set(2, 7, 3, static_cast<u16>(f)); }
    NumberFormat Format() const { return static_cast<NumberFormat>((words[2] >> 10) & 0x3); }
    void SetFormat(NumberFormat f) { Set(2, 10, 2, static_cast<u16>(f)); }
    int DigitField() const { return words[2] >> 12; }  // 0 "All", else digits + 1
    void SetDigitField(int d) { Set(2, 12, 4, static_cast<u16>(d)); }
    // The choices as the "General" page lists them: formats "Standard", "Fixed", "Scientific",
    // "Engineering" (stored as 0, 3, 1, 2) and depths "4", "8", "12", "16", "20".
    int FormatListIndex() const;
    void SetFormatListIndex(int index);
    int StackDepthListIndex() const { return StackDepth() / 4 - 1; }
    void SetStackDepthListIndex(int index) { SetStackDepth((index + 1) * 4); }

    // Word 3.
    bool LongDate() const { return Bit(3, 0); }
    void SetLongDate(bool on) { SetBit(3, 0, on); }
    bool HundredRegisters() const { return Bit(3, 1); }
    void SetHundredRegisters(bool on) { SetBit(3, 1, on); }
    bool BackspaceDrops() const { return Bit(3, 2); }
    void SetBackspaceDrops(bool on) { SetBit(3, 2, on); }
    ShiftMode Shift() const;
    void SetShift(ShiftMode m);
    bool StickyShift() const { return Bit(3, 3); }
    bool LockingShift() const { return Bit(3, 4); }
    int DisplayFont() const { return (words[3] >> 5) & 0x7; }
    void SetDisplayFont(int v) { Set(3, 5, 3, static_cast<u16>(v)); }
    int DisplayLines() const { return (words[3] >> 8) & 0x7; }
    void SetDisplayLines(int v) { Set(3, 8, 3, static_cast<u16>(v)); }
    bool BasicAlso() const { return Bit(3, 11); }
    void SetBasicAlso(bool on) { SetBit(3, 11, on); }
    int Border() const { return (words[3] >> 12) & 0x3; }
    void SetBorder(int v) { Set(3, 12, 2, static_cast<u16>(v)); }
    int KeyboardShow() const { return (words[3] >> 14) & 0x3; }
    void SetKeyboardShow(int v) { Set(3, 14, 2, static_cast<u16>(v)); }

    // Word 4.
    bool QuickSwitch() const { return Bit(4, 0); }
    void SetQuickSwitch(bool on) { SetBit(4, 0, on); }
    TapTarget Tap(TapArea area) const;
    void SetTap(TapArea area, TapTarget target);

    // Word 5.
    int KeyColor() const { return words[5] & 0x3; }
    void SetKeyColor(int v) { Set(5, 0, 2, static_cast<u16>(v)); }
    int ActiveKey() const { return (words[5] >> 2) & 0x3; }
    void SetActiveKey(int v) { Set(5, 2, 2, static_cast<u16>(v)); }
    int KeyLabels() const { return (words[5] >> 4) & 0x3; }
    void SetKeyLabels(int v) { Set(5, 4, 2, static_cast<u16>(v)); }
    int KeySize() const { return (words[5] >> 6) & 0x3; }
    void SetKeySize(int v) { Set(5, 6, 2, static_cast<u16>(v)); }
    int KeyShadow() const { return (words[5] >> 8) & 0x7; }
    void SetKeyShadow(int v) { Set(5, 8, 3, static_cast<u16>(v)); }
    ActionChoice Action() const { return static_cast<ActionChoice>((words[5] >> 11) & 0x7); }
    void SetAction(ActionChoice a) { Set(5, 11, 3, static_cast<u16>(a)); }
    bool IntegerUserKeys() const { return Bit(5, 14); }
    void SetIntegerUserKeys(bool on) { SetBit(5, 14, on); }

    // Word 6.
    bool CommaRadix() const { return Bit(6, 0); }
    void SetCommaRadix(bool on) { SetBit(6, 0, on); }
    bool ClearType() const { return Bit(6, 1); }
    void SetClearType(bool on) { SetBit(6, 1, on); }

private:
    bool Bit(int w, int b) const { return (words[w] >> b) & 1; }
    void SetBit(int w, int b, bool on) {
        words[w] = static_cast<u16>(on ? words[w] | (1u << b) : words[w] & ~(1u << b));
    }
    void Set(int w, int shift, int width, u16 v) {
        const u16 mask = static_cast<u16>(((1u << width) - 1) << shift);
        words[w] = static_cast<u16>((words[w] & ~mask) | ((v << shift) & mask));
    }
};

static_assert(std::is_trivially_copyable_v<Preferences>);
static_assert(sizeof(Preferences) == 14);

// A fresh record: Simple, depth 4, "32-bit signed", Standard, all digits, "100 Registers" on.
Preferences DefaultPreferences();

}  // namespace brinto
