#pragma once
#include "engine/engine.h"

namespace brinto {

// The shift keys: mode 0 for key 27 (which chooses a latch), 1 for the first shift (250) and 2
// for the second (251). With "Standard" a shift lasts one key, with "Sticky" until pressed again,
// and with "Locking" a double press holds it.
void ShiftKey(Engine& e, int mode);

}  // namespace brinto
