// Key sequences through a session: taps of every FunctionId (known and unknown), hardware keys,
// undo and redo, pastes, Clear All, keyboard selection, block keys and preference words changed
// between keys. After every step the engine's invariants are checked, and a second session fed
// the same steps from the same start must hold byte-identical records.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculator/assembly.h"
#include "display/display_text.h"
#include "engine/engine.h"
#include "engine_invariants.h"
#include "fuzz_check.h"
#include "fuzz_input.h"
#include "session/session.h"

namespace {

using namespace brinto;

enum class Step : std::uint8_t {
    TapKey,        // a key of any keyboard: ids 0..255 hold every family's keys
    TapRawId,      // any 32-bit id, mostly unknown ones
    DispatchKey,   // straight to the engine, as a dialog's key does
    Character,
    Special,
    Action,
    Undo,
    Redo,
    Copy,
    Cut,
    Paste,
    PasteText,
    SelectKeyboard,
    BlockKey,
    BasicOrAdvanced,
    PreferenceWord,
    PreferenceField,
    UserKey,
    HostAnswers,
    Count
};

struct Action {
    Step step = Step::TapKey;
    std::uint32_t value = 0;
    std::uint32_t extra = 0;
    std::string text;
};

// Keys are common; the other steps take a small share each.
std::vector<Action> ReadActions(brinto::fuzz::ByteReader& in) {
    std::vector<Action> actions;
    while (!in.Done()) {
        const std::uint8_t op = in.U8();
        Action a;
        a.step = op < 96 ? Step::TapKey : static_cast<Step>(1 + (op - 96) % (static_cast<int>(Step::Count) - 1));
        switch (a.step) {
            case Step::TapKey: a.value = in.U8(); break;
            case Step::TapRawId: a.value = in.U32(); break;
            case Step::DispatchKey: a.value = in.U8(); break;
            case Step::Character: a.value = in.U8(); break;
            case Step::Special: a.value = in.U8() % 7; break;
            case Step::PasteText: a.text = in.Text(64); break;
            case Step::SelectKeyboard: a.value = in.U8() % 12; break;  // a few beyond the nine
            case Step::BlockKey: a.value = in.U8() % 14; break;        // 0 and 13 are no key
            case Step::BasicOrAdvanced: a.value = in.U8() & 1; break;
            case Step::PreferenceWord: a.value = in.U8() % 7; a.extra = in.U16(); break;
            case Step::PreferenceField: a.value = in.U8(); a.extra = in.U8(); break;
            case Step::UserKey: a.value = in.U8() % 24; a.extra = in.U8(); break;
            case Step::HostAnswers: a.value = in.U8() & 1; a.text = in.Text(48); break;
            default: break;
        }
        actions.push_back(std::move(a));
    }
    return actions;
}

class FuzzHost : public Host {
public:
    bool confirm = true;
    std::optional<std::string> clipboard;
    int messages = 0;

    void ShowMessage(std::string_view, std::string_view) override { ++messages; }
    bool Confirm(std::string_view, std::string_view) override { return confirm; }
    void PutOnClipboard(std::string_view text) override { clipboard = std::string(text); }
    std::optional<std::string> ClipboardText() override { return clipboard; }
    void ReportTrouble(std::string_view) override {}
    DateFields Now() const override { return DefaultPlatform().Now(); }
    std::string DateText(const DateFields& d, bool longForm) const override { return DefaultPlatform().DateText(d, longForm); }
    std::string TimeText(const DateFields& t) const override { return DefaultPlatform().TimeText(t); }
};

// The fields a user changes through the preference pages, one choice at a time.
void SetPreferenceField(Preferences& p, std::uint32_t field, std::uint32_t v) {
    switch (field % 10) {
        case 0: p.SetMethod(static_cast<InputMethod>(v % 3)); break;
        case 1: p.SetStackDepth(4 * (1 + v % 5)); break;
        case 2: p.SetIntegerFormat(static_cast<int>(v % 6)); break;
        case 3: p.SetFormat(static_cast<NumberFormat>(v % 4)); break;
        case 4: p.SetDigitField(static_cast<int>(v % 14)); break;
        case 5: p.SetShift(static_cast<ShiftMode>(v % 3)); break;
        case 6: p.SetAction(static_cast<ActionChoice>(v % 6)); break;
        case 7: p.SetHundredRegisters(v & 1); p.SetBackspaceDrops(v & 2); p.SetLongDate(v & 4); break;
        case 8: p.SetCommaRadix(v & 1); p.SetIntegerUserKeys(v & 2); break;
        case 9: p.SetTap(static_cast<TapArea>(v % 3), static_cast<TapTarget>((v >> 2) % 9)); break;
    }
}

struct Calculator {
    Engine engine{CalculatorFamilies()};
    FuzzHost host;
    Session session{engine, host};

    void Run(const Action& a) {
        switch (a.step) {
            case Step::TapKey:
            case Step::TapRawId: session.Tap(FunctionIdFrom(a.value)); break;
            case Step::DispatchKey: engine.Dispatch(FunctionIdFrom(a.value)); break;
            case Step::Character: session.CharacterKey(a.value); break;
            case Step::Special: session.Special(static_cast<SpecialKey>(a.value)); break;
            case Step::Action: session.ActionButton(); break;
            case Step::Undo: session.Undo(); break;
            case Step::Redo: session.Redo(); break;
            case Step::Copy: session.Copy(); break;
            case Step::Cut: session.Cut(); break;
            case Step::Paste: session.Paste(); break;
            case Step::PasteText: session.PasteText(a.text); break;
            case Step::SelectKeyboard: session.SelectKeyboard(static_cast<int>(a.value) - 1); break;
            case Step::BlockKey: session.TapBlockKey(static_cast<int>(a.value)); break;
            case Step::BasicOrAdvanced: a.value ? session.Basic() : session.Advanced(); break;
            case Step::PreferenceWord: engine.prefs.words[a.value] = static_cast<u16>(a.extra); break;
            case Step::PreferenceField: SetPreferenceField(engine.prefs, a.value, a.extra); break;
            case Step::UserKey:
                session.AssignUserKey(a.value < 12 ? KeyHalf::Unshifted : KeyHalf::Shifted,
                                      static_cast<int>(a.value % 12) + 1, FunctionIdFrom(a.extra));
                break;
            case Step::HostAnswers:
                host.confirm = a.value;
                host.clipboard = a.text;
                break;
            case Step::Count: break;
        }
    }

    // What the display and the clipboard would draw from this state; their own checks are the
    // sanitizers'. X changes with nearly every key; the other levels are drawn at the end only,
    // as formatting them all after every key would take most of the fuzzer's time.
    void Show(int levels) const {
        for (int level = 0; level < levels; ++level) {
            const DisplayLine line = DisplayLevel(engine, level);
            FUZZ_CHECK(!line.text.empty(), "a stack level that shows nothing");
        }
        (void)ClipboardText(engine);
    }
};

bool SameRecords(const Calculator& a, const Calculator& b) {
    return std::memcmp(&a.engine.Records(), &b.engine.Records(), sizeof(EngineRecords)) == 0 &&
           a.engine.prefs.words == b.engine.prefs.words && a.host.messages == b.host.messages &&
           a.host.clipboard == b.host.clipboard;
}

}  // namespace

namespace {

// With BRINTO_FUZZ_TRACE set, every step and the X it leaves are printed: the way to read a
// crashing input before turning it into a test.
void Trace(const Action& a, const Calculator& c) {
    static const bool on = std::getenv("BRINTO_FUZZ_TRACE") != nullptr;
    if (!on) return;
    const CalcState& s = c.engine.state;
    std::fprintf(stderr, "step %2d value %u extra %u text \"%s\" -> X %.17g entry \"%s\" status %04x flags %04x\n",
                 static_cast<int>(a.step), a.value, a.extra, a.text.c_str(), c.engine.X(), s.entryText, s.status,
                 s.engineFlags);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brinto::fuzz::ByteReader in(data, size);
    const std::vector<Action> actions = ReadActions(in);
    auto first = std::make_unique<Calculator>();
    auto second = std::make_unique<Calculator>();
    for (const Action& a : actions) {
        first->Run(a);
        Trace(a, *first);
        brinto::fuzz::CheckEngineInvariants(first->engine);
        first->Show(1);
        second->Run(a);
        FUZZ_CHECK(SameRecords(*first, *second), "the same keys from the same start gave different records");
    }
    first->Show(kStackLevels);
    return 0;
}
