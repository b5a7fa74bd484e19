#pragma once
// Session: what the main window does besides drawing. It turns key taps, hardware keys and
// commands into engine work and raises the program's messages through its Host. The desktop
// program and brinto-cli are thin views over it, so both behave alike.
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "engine/user_key_map.h"
#include "session/host.h"
#include "session/tape.h"

namespace brinto {

// Hardware keys that are not characters.
enum class SpecialKey { Backspace, Delete, Enter, Up, Down, Left, Right };

// The two halves of the User keyboard: the keys shown without and with the shift latch.
enum class KeyHalf { Unshifted, Shifted };

// Told of every command a front end gives, so that a calculator shared with other programs stays
// one calculator: before the command, to pick up what they saved; after it, to keep the change at
// once. A command given within another (Cut's Copy, a key's message box) is part of it.
class CommandObserver {
public:
    virtual void BeforeCommand() = 0;
    virtual void AfterCommand() = 0;
    // Within a command, around a message box or the clipboard, which may keep everyone waiting.
    virtual void PauseCommand() {}
    virtual void ResumeCommand() {}

protected:
    ~CommandObserver() = default;
};

// Every change a front end makes goes through a command here, which marks the changed record
// for the next save and asks the host for a repaint; front ends read the records through const
// references only.
class Session {
public:
    // Points the engine at the host for its clock and date texts.
    Session(Engine& engine, Host& host);

    const Engine& engine() const { return m_engine; }
    const UserKeyMap& userKeys() const { return m_userKeys; }
    Host& host() { return m_host; }

    // A tap on an on-screen key carrying this FunctionId: 255 raises "No Function", 29 and 32 ask
    // first. True when the dispatcher accepted the key. The id is dispatched as it is.
    bool Tap(FunctionId id);
    // A tap on a key of the keypad: the id remapped as the keyboard does (integer variants on the
    // Programmer keyboard, register variants), then as Tap.
    bool TapKey(FunctionId id);
    // Key k (1..12) of the current keyboard's variable block, shifted while the shift latch is set,
    // remapped as the keyboard does (integer variants, register variants).
    bool TapBlockKey(int k);
    // The keyboard's remapping of a key before it is dispatched; 255 stays 255.
    FunctionId Remap(FunctionId id) const;

    // Hardware keys of the main window. Characters that are no key beep.
    bool CharacterKey(char32_t c);
    bool Special(SpecialKey key);
    void ActionButton();

    // Menu commands.
    void Undo();
    void Redo();
    void Copy();
    void Cut();
    void Paste();
    void PasteText(std::string_view text);
    void SelectKeyboard(int index);
    // The "Constants" list's OK on constant `index` (0..32) while `topRow` is its first visible
    // row; an undoable step. False for an index outside the list.
    bool RecallConstant(int index, u16 topRow);
    void Basic();
    void Advanced();

    // The first run's "Input Method" dialog's OK: the preferences and the engine switch at once.
    void ChooseInputMethod(InputMethod method);
    // The "Preferences" sheet's OK: the record as the pages left it. The input method of the
    // "General" page is then sent through the dispatcher as its key (also when it did not
    // change), and the display recomputes its layout.
    void SetPreferences(const Preferences& prefs);
    // Preferences given for this run only (brinto-cli's --pref): not marked changed, so they are
    // saved only along with a later change.
    void OverridePreferences(const Preferences& prefs);

    // The "Customize Keyboard" dialog. `key` is 1..12 of the half; false for a key outside it.
    bool AssignUserKey(KeyHalf half, int key, FunctionId id);
    void SetIntegerUserKeys(bool on);

    // A value typed into a register of a dialog (user registers, TVM, cash flows): one undoable
    // step. False for a register number outside 0..123.
    bool StoreRegister(int number, double value);
    // Consecutive registers from `first` (the duration settings dpy..fps) as one undoable step.
    // False when they do not all lie within 0..123, or nothing would change.
    bool StoreRegisters(int first, std::span<const double> values);
    // A cash-flow entry (0 up to the last one made) edited in a dialog: its amount and group count,
    // one undoable step. A group count below 1 is refused, so every entry made keeps a count of
    // at least 1 and the series keeps its length.
    bool StoreCashFlow(int entry, double amount, int groupCount);
    // The payments Start and End (1..32767) as the amortization key would keep them; one
    // undoable step.
    bool SetAmortizationRange(int start, int end);
    // A dialog's "Solve" for a TVM register: the register's key computing it from the others, as
    // the key does when no number is being typed (a number being typed is closed first).
    bool Solve(FunctionId registerKey);
    // A key of a dialog's own key row (the "Stack" view): dispatched as Tap; any key but shift and
    // the display key also ends the one-key full display, as on the main window's keys.
    bool TapViewKey(FunctionId id);
    // Where the "Constants" list was scrolled to, and the last dialog view shown.
    void SetConstantsTopRow(u16 row);
    void SetLastView(View view);
    // The "Enter Date" and "Enter Time" dialogs' results entering X as a date (midnight) or a clock
    // time, like a recalled value: one undoable step. False for fields outside the date range or
    // a clock time outside 0:00..23:59; X is then unchanged.
    bool EnterDate(int year, int month, int day);
    bool EnterTime(int hour, int minute);
    // The stored random seed (brinto-cli's --seed).
    void SetRandomSeed(u32 seed);
    // A value recalled into X from the history tape, as a recall does: one undoable step.
    void RecallValue(double value, ValueTag tag);
    // The tape lines made since the last call (the store keeps them).
    std::vector<TapeLine> TakeTapeLines() { return m_tape.Take(); }

    // At most one observer; nullptr removes it.
    void SetCommandObserver(CommandObserver* observer) { m_observer = observer; }
    // Whether a command is being carried out (a message box of a key is open, say).
    bool InCommand() const { return m_commandDepth > 0; }

private:
    // Around a wait for the user or the clipboard within a command.
    class Waiting {
    public:
        explicit Waiting(Session& session);
        ~Waiting();
        Waiting(const Waiting&) = delete;
        Waiting& operator=(const Waiting&) = delete;

    private:
        Session& m_session;
    };
    void Show(std::string_view caption, std::string_view text);

    // Brackets one command for the observer; nested brackets join the outermost.
    class Command {
    public:
        explicit Command(Session& session);
        ~Command();
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

    private:
        Session& m_session;
    };

    friend class SessionStore;  // loading replaces the records wholesale

    // Dispatches one key and raises the macro messages that the key caused.
    bool Execute(FunctionId id);
    enum class HistoryStep { Undo, Redo };
    bool Restore(HistoryStep step);
    void AfterRestore();
    // Enters a value into X as a recall does, as one undoable step.
    void EnterValue(double value, ValueTag tag);
    FunctionId* Half(KeyHalf half);

    Engine& m_engine;
    Host& m_host;
    UserKeyMap m_userKeys = EmptyUserKeyMap();
    CommandObserver* m_observer = nullptr;
    int m_commandDepth = 0;
    TapeWriter m_tape;
};

// Message texts.
namespace message {
inline constexpr std::string_view NoFunctionCaption = "No Function";
inline constexpr std::string_view NoFunctionText = "The Keyboard dialog can be used to assign a function to this button.";
inline constexpr std::string_view ClearAllCaption = "Clear All";
inline constexpr std::string_view ClearAllText =
    "This operation will clear the operating stack and all user, financial, statistical, and date "
    "registers, and the keyboard macro.";
inline constexpr std::string_view NothingToUndoCaption = "Nothing to Undo";
inline constexpr std::string_view NothingToUndoText = "There are no operations to be undone.";
inline constexpr std::string_view NothingToRedoCaption = "Nothing to Redo";
inline constexpr std::string_view NothingToRedoText = "There are no undo actions to be redone.";
inline constexpr std::string_view NoMacroCaption = "No Macro";
inline constexpr std::string_view NoMacroText = "A macro must be recorded before it can be played back.";
inline constexpr std::string_view MacroFullCaption = "Macro Length Exceeded";
inline constexpr std::string_view MacroFullText =
    "The macro length has been exceeded and the last key could not be recorded.";
}  // namespace message

}  // namespace brinto
