#include "session/session.h"

#include "display/display_text.h"
#include "engine/function_ids.h"
#include "ops/constants.h"
#include "ops/integer_format.h"
#include "session/keyboards.h"
#include "session/paste.h"

namespace brinto {

Session::Session(Engine& engine, Host& host) : m_engine(engine), m_host(host) {}

bool Session::Execute(FunctionId id) {
    const bool wasRecording = m_engine.state.engineFlags & flags::Recording;
    const bool accepted = m_engine.Dispatch(id) != 0;
    if (id == fid::MacroPlay && m_engine.macro.macroLength < 3 &&
        !(m_engine.state.engineFlags & flags::Playing)) {
        m_host.ShowMessage(message::NoMacroCaption, message::NoMacroText);
    }
    const bool recording = m_engine.state.engineFlags & flags::Recording;
    if (wasRecording && !recording && !accepted) {
        m_host.ShowMessage(message::MacroFullCaption, message::MacroFullText);
    }
    m_host.Repaint();
    return accepted;
}

bool Session::Tap(FunctionId id) {
    if (id == kNoKey) {
        m_host.ShowMessage(message::NoFunctionCaption, message::NoFunctionText);
        return false;
    }
    if (id == fid::ClearAll || id == fid::ClearAll2) {
        if (!m_host.Confirm(message::ClearAllCaption, message::ClearAllText)) return false;
        id = fid::ClearAll;
    }
    return Execute(id);
}

FunctionId Session::Remap(FunctionId id) const {
    if (m_engine.IntegerEntryAllowed()) id = IntegerVariant(id);
    return RegisterVariant(id, m_engine.prefs.HundredRegisters() ? RegisterSet::Large : RegisterSet::Small);
}

bool Session::TapBlockKey(int k) {
    if (k < 1 || k > kBlockKeys) return false;
    const bool shifted = m_engine.state.status & status::FirstShift;
    const KeyBlock block = KeyLayout(m_engine.Keyboard(), shifted ? 1 : 0, userKeys);
    const FunctionId id = block[k - 1];
    return Tap(id == kNoKey ? id : Remap(id));
}

bool Session::CharacterKey(char32_t c) {
    FunctionId id = kNoKey;
    const bool integerBase = m_engine.state.status & status::BaseMask;
    if (c >= '0' && c <= '9') {
        id = DigitKey(static_cast<int>(c - '0'));
    } else if ((c == 'E' || c == 'e') && !integerBase) {
        id = fid::Exponent;
    } else if (c >= 'A' && c <= 'F') {
        id = DigitKey(10 + static_cast<int>(c - 'A'));
    } else if (c >= 'a' && c <= 'f') {
        id = DigitKey(10 + static_cast<int>(c - 'a'));
    } else {
        switch (c) {
            case '.': case ',': id = fid::Point; break;
            case '=': id = fid::Equals; break;
            case '+': id = fid::Add; break;
            case '-': id = fid::Subtract; break;
            case '*': case 'X': case 'x': id = fid::Multiply; break;
            case '/': id = fid::Divide; break;
            case '%': id = fid::Percent; break;
            case '(': id = fid::OpenParen; break;
            case ')': id = fid::CloseParen; break;
            case 'S': case 's': id = fid::Recall; break;
            case 'R': case 'r': id = fid::Exchange; break;
            case '\b': return Special(SpecialKey::Backspace);
            case '\r': case '\n': return Special(SpecialKey::Enter);
            case 0x7F: return Special(SpecialKey::Delete);
            case 0x18: Cut(); return true;
            case 0x03: Copy(); return true;
            case 0x16: Paste(); return true;
            case 0x1A: Undo(); return true;
            case 0x19: Redo(); return true;
            default: break;
        }
    }
    if (id == kNoKey) {
        m_host.Beep();
        return false;
    }
    const bool accepted = Execute(id);
    if (!accepted) m_host.Beep();
    return accepted;
}

bool Session::Special(SpecialKey key) {
    const bool advanced = !(m_engine.state.viewFlags & view::ModeMask);
    switch (key) {
        case SpecialKey::Backspace:
        case SpecialKey::Delete: {
            const bool accepted = Execute(key == SpecialKey::Backspace ? fid::Backspace : fid::ClearStack);
            if (!accepted) m_host.Beep();
            return accepted;
        }
        case SpecialKey::Enter: ActionButton(); return true;
        case SpecialKey::Up:
            if (advanced) SelectKeyboard((m_engine.Keyboard() + kKeyboardCount - 1) % kKeyboardCount);
            return true;
        case SpecialKey::Down:
            if (advanced) SelectKeyboard((m_engine.Keyboard() + 1) % kKeyboardCount);
            return true;
        case SpecialKey::Left:
        case SpecialKey::Right:
            advanced ? Basic() : Advanced();
            return true;
    }
    return false;
}

void Session::ActionButton() {
    const CalcState& s = m_engine.state;
    switch (m_engine.prefs.Action()) {
        case ActionChoice::Default: Execute(m_engine.IsRpn() ? fid::Enter : fid::Equals); break;
        case ActionChoice::Nothing: break;
        case ActionChoice::ShiftKeyboard:
            if (s.viewFlags & view::ShiftKeyboardMask) Execute(fid::Shift);
            break;
        case ActionChoice::RepeatLastKey:
            if (s.lastCommand != kNoKey) Execute(s.lastCommand);
            break;
        case ActionChoice::OpenLastForm: m_host.OpenView(s.lastView); break;
        case ActionChoice::PlayMacro: Execute(fid::MacroPlay); break;
    }
}

void Session::AfterRestore() {
    SelectKeyboard(m_engine.Keyboard());
    m_engine.RequestRedraw();
    m_engine.dirty.state = true;
    m_engine.dirty.registers = true;
    m_engine.dirty.macro = true;
    m_host.Repaint();
}

// Undo and redo are commands, not keys: the last-key words keep what the user last pressed, so
// "Repeat last key" still repeats it.
bool Session::Restore(bool undo) {
    CalcState& s = m_engine.state;
    const FunctionId lastKey = s.lastKey, lastCommand = s.lastCommand;
    const bool keepShift = m_engine.prefs.StickyShift();
    const bool restored = undo ? m_engine.history.Undo(m_engine.Records(), keepShift)
                               : m_engine.history.Redo(m_engine.Records(), keepShift);
    if (!restored) return false;
    s.lastKey = lastKey;
    s.lastCommand = lastCommand;
    AfterRestore();
    return true;
}

void Session::Undo() {
    if (!Restore(true)) m_host.ShowMessage(message::NothingToUndoCaption, message::NothingToUndoText);
}

void Session::Redo() {
    if (!Restore(false)) m_host.ShowMessage(message::NothingToRedoCaption, message::NothingToRedoText);
}

void Session::Copy() {
    if (const auto text = ClipboardText(m_engine)) m_host.PutOnClipboard(*text);
}

void Session::Cut() {
    const auto text = ClipboardText(m_engine);
    if (!text) return;
    m_host.PutOnClipboard(*text);
    Execute(fid::Drop);
}

void Session::Paste() {
    if (const auto text = m_host.ClipboardText()) PasteText(*text);
}

bool Session::RecallConstant(int index, u16 topRow) {
    Engine& e = m_engine;
    e.history.TakeSnapshot(e.Records());
    if (!brinto::RecallConstant(e, index, topRow)) return false;
    e.history.Commit(e.Records());
    m_host.Repaint();
    return true;
}

void Session::PasteText(std::string_view text) {
    Engine& e = m_engine;
    const u16 base = e.EntryBase();
    const auto value = ParsePasted(PasteSpan(text), base);
    if (!value) return;
    e.history.TakeSnapshot(e.Records());
    // A number being typed is completed first, then the pasted number arrives like a recall.
    e.RecallLift();
    e.FinishEntry();
    if (base != 0) {
        const ValueTag format = IntegerFormatOf(e.prefs, ValueTag::None);
        e.SetX(Narrow(*value, ValueTag::U32, format));  // the pasted digits are an unsigned word
        e.SetXTag(format);
    } else {
        e.SetX(*value);
    }
    e.state.status |= status::LiftEnabled;
    e.state.status &= static_cast<u16>(~(status::NoLift | status::KeepLift));
    e.dirty.state = true;
    e.RequestRedraw();
    e.history.Commit(e.Records());
    m_host.Repaint();
}

void Session::SelectKeyboard(int index) {
    if (index < 0 || index >= kKeyboardCount) return;
    CalcState& s = m_engine.state;
    s.status = static_cast<u16>((s.status & ~status::KeyboardMask) | index);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

void Session::Basic() {
    CalcState& s = m_engine.state;
    s.viewFlags = static_cast<u16>((s.viewFlags & ~view::ModeMask) | view::Basic);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

void Session::Advanced() {
    m_engine.state.viewFlags &= static_cast<u16>(~view::ModeMask);
    m_engine.dirty.state = true;
    m_host.Repaint();
}

}  // namespace brinto
