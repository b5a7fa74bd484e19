#pragma once
// Session: what the main window does besides drawing. It turns key taps, hardware keys and
// commands into engine work and raises the program's messages through its Host. The desktop
// program and brinto-cli are thin views over it, so both behave alike.
#include <optional>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "engine/user_key_map.h"
#include "session/host.h"

namespace brinto {

// Hardware keys that are not characters.
enum class SpecialKey { Backspace, Delete, Enter, Up, Down, Left, Right };

class Session {
public:
    Session(Engine& engine, Host& host);

    Engine& engine() { return m_engine; }
    const Engine& engine() const { return m_engine; }
    UserKeyMap userKeys = EmptyUserKeyMap();

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

private:
    // Dispatches one key and raises the macro messages that the key caused.
    bool Execute(FunctionId id);
    bool Restore(bool undo);
    void AfterRestore();

    Engine& m_engine;
    Host& m_host;
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
