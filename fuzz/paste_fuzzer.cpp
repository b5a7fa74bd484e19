// Pasted text: the span that is read (PasteSpan), the number read from it in every entry base
// (ParsePasted), and the paste command of a session in each base, which must leave X as read.
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "calculator/assembly.h"
#include "engine/engine.h"
#include "engine_invariants.h"
#include "fuzz_check.h"
#include "fuzz_input.h"
#include "session/paste.h"
#include "session/session.h"

namespace {

using namespace brinto;

class QuietHost : public Host {
public:
    void ShowMessage(std::string_view, std::string_view) override {}
    bool Confirm(std::string_view, std::string_view) override { return true; }
    void PutOnClipboard(std::string_view) override {}
    std::optional<std::string> ClipboardText() override { return std::nullopt; }
    void ReportTrouble(std::string_view) override {}
    DateFields Now() const override { return DefaultPlatform().Now(); }
    std::string DateText(const DateFields& d, bool longForm) const override { return DefaultPlatform().DateText(d, longForm); }
    std::string TimeText(const DateFields& t) const override { return DefaultPlatform().TimeText(t); }
};

constexpr u16 kBases[] = {0, status::BaseBinary, status::BaseOctal, status::BaseHex};

void CheckSpan(std::string_view text, std::string_view span) {
    FUZZ_CHECK(span.size() <= 47, "paste span longer than 47 characters");
    FUZZ_CHECK(span.empty() || (span[0] >= '0' && span[0] <= '9'), "paste span starts before a digit");
    FUZZ_CHECK(span.empty() || (span.data() >= text.data() && span.data() + span.size() <= text.data() + text.size()),
               "paste span outside the pasted text");
    if (span.empty()) {
        for (const char c : text) FUZZ_CHECK(!(c >= '0' && c <= '9'), "a digit was skipped");
    }
}

void CheckValue(const std::optional<double>& value, u16 base) {
    if (!value) return;
    FUZZ_CHECK(!std::isnan(*value), "pasted text read as NaN");
    FUZZ_CHECK(*value >= 0.0, "pasted text read as negative");  // signs before the first digit are dropped
    if (base != 0) {
        FUZZ_CHECK(*value == std::floor(*value) && *value <= 4294967295.0, "integer paste not a 32-bit word");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brinto::fuzz::ByteReader in(data, size);
    const std::uint8_t setup = in.U8();
    const std::string text(in.Rest());

    const std::string_view span = PasteSpan(text);
    CheckSpan(text, span);
    for (const u16 base : kBases) {
        CheckValue(ParsePasted(span, base), base);
        CheckValue(ParsePasted(text, base), base);
    }

    // Through a session: the base comes from the programmer keyboard's base keys, the input method
    // and a number being typed from the setup byte.
    Engine engine(CalculatorFamilies());
    QuietHost host;
    Session session(engine, host);
    engine.prefs.SetMethod(static_cast<InputMethod>(setup % 3));
    engine.ClearStack();
    session.SelectKeyboard(4);
    constexpr FunctionId kBases[] = {fid::BaseBinary, fid::BaseOctal, fid::BaseDecimal, fid::BaseHex};
    engine.Dispatch(kBases[(setup >> 2) % 4]);
    if (setup & 0x40) engine.Dispatch(fid::Digit1);     // a number is being typed
    const u16 base = engine.EntryBase();
    const auto expected = ParsePasted(span, base);
    const double before = engine.X();
    session.PasteText(text);
    brinto::fuzz::CheckEngineInvariants(engine);
    if (!expected) {
        FUZZ_CHECK(engine.X() == before || (std::isnan(before) && std::isnan(engine.X())),
                   "a paste without a number changed X");
    } else if (base == 0) {
        FUZZ_CHECK(engine.X() == *expected, "a decimal paste left another value in X");
        FUZZ_CHECK(engine.LiftEnabled(), "a paste left the lift disabled");
    }
    return 0;
}
