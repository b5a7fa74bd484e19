#pragma once
// Helpers for driving an engine with keys, as a user does.
#include <initializer_list>

#include "engine/engine.h"

namespace brinto::test {

inline Engine MakeEngine(InputMethod method) {
    Engine e;
    e.prefs.SetMethod(method);
    e.ClearStack();
    return e;
}

inline void Press(Engine& e, std::initializer_list<FunctionId> keys) {
    for (const FunctionId k : keys) e.Dispatch(k);
}

}  // namespace brinto::test
