#pragma once
#include "engine/engine.h"

namespace brinto {

// The shift keys: mode 0 for the shift key (which chooses a latch), 1 for the first shift and 2
// for the second. With "Standard" a shift lasts one key, with "Sticky" until pressed again,
// and with "Locking" a double press holds it.
void ShiftKey(Engine& e, int mode);

}  // namespace brinto
