#include "engine_invariants.h"

#include <cmath>
#include <cstring>

#include "display/display_text.h"
#include "engine/algebraic.h"
#include "engine/numeric/integer_format.h"
#include "fuzz_check.h"

namespace brinto::fuzz {

namespace {
bool IsMantissaChar(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); }
bool IsDecimalDigit(char c) { return c >= '0' && c <= '9'; }

bool IsIntegerResult(FunctionId id) {
    return id == fid::Not || (id >= fid::And && id <= fid::Xor) || (id >= fid::ShiftLeft && id <= fid::RotateRight) ||
           (id >= fid::FormatU8 && id <= fid::FormatS32) || id == fid::ToDefaultFormat ||
           (id >= fid::IntegerNegate && id <= fid::IntegerDivide);
}
}  // namespace

bool WellFormedEntryText(const char* text, std::size_t capacity) {
    const void* end = std::memchr(text, '\0', capacity);
    if (!end) return false;
    const std::size_t length = static_cast<const char*>(end) - text;
    std::size_t i = 0;
    if (i < length && text[i] == '-') ++i;
    bool point = false;
    for (; i < length && text[i] != 'e'; ++i) {
        if (text[i] == '.') {
            if (point) return false;
            point = true;
        } else if (!IsMantissaChar(text[i])) {
            return false;
        }
    }
    if (i == length) return true;
    ++i;  // the "e"
    if (i < length && text[i] == '-') ++i;
    int exponentDigits = 0;
    for (; i < length; ++i) {
        if (!IsDecimalDigit(text[i])) return false;
        ++exponentDigits;
    }
    return exponentDigits <= 3;
}

void CheckEngineInvariants(const Engine& e) {
    const CalcState& s = e.state;
    FUZZ_CHECK(s.pendingCount <= kMaxPending, "pending-operator stack beyond its 40 entries");
    FUZZ_CHECK(WellFormedEntryText(s.entryText, sizeof s.entryText), "entry text unterminated or malformed");
    FUZZ_CHECK(s.entryDigits <= 32, "more mantissa digits than any base allows");
    FUZZ_CHECK(s.exponentDigits <= 3, "more than three exponent digits");
    FUZZ_CHECK(e.StackDepth() >= 1 && e.StackDepth() <= kStackLevels, "stack depth outside 1..20");
    FUZZ_CHECK(e.RollDepth() >= 1 && e.RollDepth() <= kStackLevels, "roll depth outside 1..20");
    FUZZ_CHECK(e.macro.macroLength <= kMacroSlots, "macro longer than its 63 slots");
    const int undo = e.history.UndoCount();
    const int redo = e.history.RedoCount();
    FUZZ_CHECK(undo >= 0 && redo >= 0, "negative history count");
    FUZZ_CHECK(undo + redo <= kHistoryRecords, "more history steps than the ten records");
    FUZZ_CHECK(e.history.CanUndo() == (undo > 0) && e.history.CanRedo() == (redo > 0),
               "history answers disagree with its counts");
}

void CheckKeyResult(const Engine& e, FunctionId key, bool acted) {
    FUZZ_CHECK(!DisplayLevel(e, 0).text.empty(), "X shows nothing");
    // In Simple and Precedence a two-operand key only waits on the pending stack.
    if (!acted || !IsIntegerResult(key) || (!e.IsRpn() && IsBinaryOperator(key))) return;
    if (IsIntegerFormatTag(e.XTag()) && std::isfinite(e.X())) {
        FUZZ_CHECK(Narrow(e.X(), e.XTag(), e.XTag()) == e.X(), "an integer key left no whole number of its format");
    }
}

}  // namespace brinto::fuzz
