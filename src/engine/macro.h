#pragma once
// The keystroke macro: one recorded list of keys, played back through Dispatch. A recording
// starts with the input-method key, so playback runs in the method it was recorded in and the
// user's own method is restored at the end.
#include "engine/engine.h"

namespace brinto {

// Appends a key to the macro being recorded; false when it is full (recording then stops).
bool MacroRecordKey(Engine& e, FunctionId id);
void MacroStartRecording(Engine& e);
void MacroPlay(Engine& e);
void MacroPause(Engine& e);
void MacroStop(Engine& e);

// Shortest macro that can be played: the method key, one key and the stop key.
inline constexpr int kMinimumMacroLength = 3;

}  // namespace brinto
