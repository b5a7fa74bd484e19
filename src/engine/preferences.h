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

// Stored number-format codes in the order the format list shows them.
inline constexpr NumberFormat kFormatList[] = {NumberFormat::Standard, NumberFormat::Fixed,
                                               NumberFormat::Scientific, NumberFormat::Engineering};

struct Preferences {
    std::array<u16, 7> words;

    // Word 1: theme identifier (0 means theme 1).
    constexpr u16 Theme() const { return words[1]; }
    constexpr void SetTheme(u16 id) { words[1] = id; }

    // Word 2.
    constexpr InputMethod Method() const {
        if (words[2] & 1) return InputMethod::Rpn;  // bit 0 wins when both are set
        if (words[2] & 2) return InputMethod::Precedence;
        return InputMethod::Simple;
    }
    constexpr void SetMethod(InputMethod m) {
        SetBit(2, 0, m == InputMethod::Rpn);
        SetBit(2, 1, m == InputMethod::Precedence);
    }
    constexpr int StackDepth() const { return (words[2] >> 2) & 0x1F; }
    constexpr void SetStackDepth(int depth) { Set(2, 2, 5, static_cast<u16>(depth)); }
    constexpr int IntegerFormat() const { return (words[2] >> 7) & 0x7; }  // 0..5: u8 .. s32
    constexpr void SetIntegerFormat(int f) { Set(2, 7, 3, static_cast<u16>(f)); }
    constexpr NumberFormat Format() const { return static_cast<NumberFormat>((words[2] >> 10) & 0x3); }
    constexpr void SetFormat(NumberFormat f) { Set(2, 10, 2, static_cast<u16>(f)); }
    constexpr int DigitField() const { return words[2] >> 12; }  // 0 "All", else digits + 1
    constexpr void SetDigitField(int d) { Set(2, 12, 4, static_cast<u16>(d)); }
    // The choices as the "General" page lists them: formats "Standard", "Fixed", "Scientific",
    // "Engineering" (stored as 0, 3, 1, 2) and depths "4", "8", "12", "16", "20".
    constexpr int FormatListIndex() const {
        for (int i = 0; i < 4; ++i) {
            if (kFormatList[i] == Format()) return i;
        }
        return 0;  // unreachable: the two-bit field holds one of the four codes
    }
    constexpr void SetFormatListIndex(int index) {
        SetFormat(index >= 0 && index < 4 ? kFormatList[index] : NumberFormat::Standard);
    }
    constexpr int StackDepthListIndex() const { return StackDepth() / 4 - 1; }
    constexpr void SetStackDepthListIndex(int index) { SetStackDepth((index + 1) * 4); }

    // Word 3.
    constexpr bool LongDate() const { return Bit(3, 0); }
    constexpr void SetLongDate(bool on) { SetBit(3, 0, on); }
    constexpr bool HundredRegisters() const { return Bit(3, 1); }
    constexpr void SetHundredRegisters(bool on) { SetBit(3, 1, on); }
    constexpr bool BackspaceDrops() const { return Bit(3, 2); }
    constexpr void SetBackspaceDrops(bool on) { SetBit(3, 2, on); }
    constexpr ShiftMode Shift() const {
        if (Bit(3, 3)) return ShiftMode::Sticky;  // bit 3 wins when both are set
        if (Bit(3, 4)) return ShiftMode::Locking;
        return ShiftMode::Standard;
    }
    constexpr void SetShift(ShiftMode m) {
        SetBit(3, 3, m == ShiftMode::Sticky);
        SetBit(3, 4, m == ShiftMode::Locking);
    }
    constexpr bool StickyShift() const { return Bit(3, 3); }
    constexpr bool LockingShift() const { return Bit(3, 4); }
    constexpr int DisplayFont() const { return (words[3] >> 5) & 0x7; }
    constexpr void SetDisplayFont(int v) { Set(3, 5, 3, static_cast<u16>(v)); }
    constexpr int DisplayLines() const { return (words[3] >> 8) & 0x7; }
    constexpr void SetDisplayLines(int v) { Set(3, 8, 3, static_cast<u16>(v)); }
    constexpr bool BasicAlso() const { return Bit(3, 11); }
    constexpr void SetBasicAlso(bool on) { SetBit(3, 11, on); }
    constexpr int Border() const { return (words[3] >> 12) & 0x3; }
    constexpr void SetBorder(int v) { Set(3, 12, 2, static_cast<u16>(v)); }
    constexpr int KeyboardShow() const { return (words[3] >> 14) & 0x3; }
    constexpr void SetKeyboardShow(int v) { Set(3, 14, 2, static_cast<u16>(v)); }

    // Word 4.
    constexpr bool QuickSwitch() const { return Bit(4, 0); }
    constexpr void SetQuickSwitch(bool on) { SetBit(4, 0, on); }
    // Tap targets are stored with a gap: the first entry as 0, entry i (1..8) as i + 1; code 1 also
    // reads as the first entry.
    constexpr TapTarget Tap(TapArea area) const {
        const int code = (words[4] >> (1 + 5 * static_cast<int>(area))) & 0x1F;
        if (code <= 1 || code - 1 > static_cast<int>(TapTarget::Statistical)) return TapTarget::Preferences;
        return static_cast<TapTarget>(code - 1);
    }
    constexpr void SetTap(TapArea area, TapTarget target) {
        const int entry = static_cast<int>(target);
        Set(4, 1 + 5 * static_cast<int>(area), 5, static_cast<u16>(entry == 0 ? 0 : entry + 1));
    }

    // Word 5.
    constexpr int KeyColor() const { return words[5] & 0x3; }
    constexpr void SetKeyColor(int v) { Set(5, 0, 2, static_cast<u16>(v)); }
    constexpr int ActiveKey() const { return (words[5] >> 2) & 0x3; }
    constexpr void SetActiveKey(int v) { Set(5, 2, 2, static_cast<u16>(v)); }
    constexpr int KeyLabels() const { return (words[5] >> 4) & 0x3; }
    constexpr void SetKeyLabels(int v) { Set(5, 4, 2, static_cast<u16>(v)); }
    constexpr int KeySize() const { return (words[5] >> 6) & 0x3; }
    constexpr void SetKeySize(int v) { Set(5, 6, 2, static_cast<u16>(v)); }
    constexpr int KeyShadow() const { return (words[5] >> 8) & 0x7; }
    constexpr void SetKeyShadow(int v) { Set(5, 8, 3, static_cast<u16>(v)); }
    constexpr ActionChoice Action() const { return static_cast<ActionChoice>((words[5] >> 11) & 0x7); }
    constexpr void SetAction(ActionChoice a) { Set(5, 11, 3, static_cast<u16>(a)); }
    constexpr bool IntegerUserKeys() const { return Bit(5, 14); }
    constexpr void SetIntegerUserKeys(bool on) { SetBit(5, 14, on); }

    // Word 6.
    constexpr bool CommaRadix() const { return Bit(6, 0); }
    constexpr void SetCommaRadix(bool on) { SetBit(6, 0, on); }
    constexpr bool ClearType() const { return Bit(6, 1); }
    constexpr void SetClearType(bool on) { SetBit(6, 1, on); }

private:
    constexpr bool Bit(int w, int b) const { return (words[w] >> b) & 1; }
    constexpr void SetBit(int w, int b, bool on) {
        words[w] = static_cast<u16>(on ? words[w] | (1u << b) : words[w] & ~(1u << b));
    }
    constexpr void Set(int w, int shift, int width, u16 v) {
        const u16 mask = static_cast<u16>(((1u << width) - 1) << shift);
        words[w] = static_cast<u16>((words[w] & ~mask) | ((v << shift) & mask));
    }
};

static_assert(std::is_trivially_copyable_v<Preferences>);
static_assert(sizeof(Preferences) == 14);

// A fresh record: Simple, depth 4, "32-bit signed", Standard, all digits, "100 Registers" on.
constexpr Preferences DefaultPreferences() { return {{kPreferencesVersion, 0, 0x0290, 0x0002, 0, 0, 0}}; }

}  // namespace brinto
