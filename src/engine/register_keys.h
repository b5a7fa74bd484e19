#pragma once
// Store, recall and exchange with a numbered register.
#include <optional>

#include "engine/engine.h"

namespace brinto {

// A register operation: `base` is 43 (store), 45 (recall) or 46 (exchange); `op` is an
// arithmetic key 22..25 or kNoKey for the plain operation.
void RegisterOperation(Engine& e, FunctionId base, FunctionId op, int registerNumber);

// The label a recalled register carries in X (0 for none).
ValueTag RegisterLabel(const Engine& e, int registerNumber);

// The register that a financial, statistical or date key names after a register prefix, or -1.
int RegisterOfKey(FunctionId id);

// A register prefix (STO, RCL, exchange, ...) waiting for its register: the prefix key, the
// arithmetic key typed after it (kNoKey for none) and the first of two digits (-1 for none).
struct PendingRegister {
    FunctionId prefix;
    FunctionId op;
    int firstDigit;
};
std::optional<PendingRegister> PendingRegisterOf(const Engine& e);

}  // namespace brinto
