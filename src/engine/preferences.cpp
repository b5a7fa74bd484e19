#include "engine/preferences.h"

namespace brinto {

Preferences DefaultPreferences() {
    Preferences p{};
    p.words[0] = kPreferencesVersion;
    p.words[2] = 0x0290;
    p.words[3] = 0x0002;
    return p;
}

namespace {
// Stored number-format codes in the order the format list shows them.
constexpr NumberFormat kFormatList[] = {NumberFormat::Standard, NumberFormat::Fixed, NumberFormat::Scientific,
                                        NumberFormat::Engineering};
}  // namespace

int Preferences::FormatListIndex() const {
    for (int i = 0; i < 4; ++i) {
        if (kFormatList[i] == Format()) return i;
    }
    return 0;  // unreachable: the two-bit field holds one of the four codes
}

void Preferences::SetFormatListIndex(int index) {
    SetFormat(index >= 0 && index < 4 ? kFormatList[index] : NumberFormat::Standard);
}

InputMethod Preferences::Method() const {
    if (words[2] & 1) return InputMethod::Rpn;  // bit 0 wins when both are set
    if (words[2] & 2) return InputMethod::Precedence;
    return InputMethod::Simple;
}

void Preferences::SetMethod(InputMethod m) {
    SetBit(2, 0, m == InputMethod::Rpn);
    SetBit(2, 1, m == InputMethod::Precedence);
}

ShiftMode Preferences::Shift() const {
    if (Bit(3, 3)) return ShiftMode::Sticky;  // bit 3 wins when both are set
    if (Bit(3, 4)) return ShiftMode::Locking;
    return ShiftMode::Standard;
}

void Preferences::SetShift(ShiftMode m) {
    SetBit(3, 3, m == ShiftMode::Sticky);
    SetBit(3, 4, m == ShiftMode::Locking);
}

// Tap targets are stored with a gap: the first entry as 0, entry i (1..8) as i + 1; code 1 also
// reads as the first entry.
TapTarget Preferences::Tap(TapArea area) const {
    const int shift = 1 + 5 * static_cast<int>(area);
    const int code = (words[4] >> shift) & 0x1F;
    if (code <= 1) return TapTarget::Preferences;
    const int entry = code - 1;
    return entry > static_cast<int>(TapTarget::Statistical) ? TapTarget::Preferences
                                                             : static_cast<TapTarget>(entry);
}

void Preferences::SetTap(TapArea area, TapTarget target) {
    const int entry = static_cast<int>(target);
    Set(4, 1 + 5 * static_cast<int>(area), 5, static_cast<u16>(entry == 0 ? 0 : entry + 1));
}

}  // namespace brinto
