#pragma once
// The undo and redo history: ten full copies of the engine records, taken before a key and kept
// when the key changed something.
#include <array>

#include "engine/calc_state.h"
#include "engine/macro_record.h"
#include "engine/register_bank.h"

namespace brinto {

struct EngineRecords {
    RegisterBank registers;
    CalcState state;
    MacroRecord macro;
};

inline constexpr int kHistoryRecords = 10;

class History {
public:
    History() { Init(); }

    // Empties both lists and takes a staging snapshot of `live` (when given).
    void Init(const EngineRecords* live = nullptr);
    void TakeSnapshot(const EngineRecords& live) { m_staging = live; }
    // Keeps the staging snapshot as an undo step if `live` differs from the newest step.
    void Commit(const EngineRecords& live);
    bool CanUndo() const { return m_undoCount > 0; }
    bool CanRedo() const { return m_redoCount > 0; }
    int UndoCount() const { return m_undoCount; }
    int RedoCount() const { return m_redoCount; }
    // Restore the newest step into `live`; `keepShift` keeps a restored first-shift latch.
    bool Undo(EngineRecords& live, bool keepShift);
    bool Redo(EngineRecords& live, bool keepShift);

private:
    static bool SameIgnoringShift(const EngineRecords& a, const EngineRecords& b);
    // Each list is a ring of slots, newest last; the two share the ten slots.
    std::array<EngineRecords, kHistoryRecords> m_undo{};
    std::array<EngineRecords, kHistoryRecords> m_redo{};
    int m_undoCount = 0;
    int m_undoHead = 0;  // index of the oldest undo step
    int m_redoCount = 0;
    EngineRecords m_staging{};
};

}  // namespace brinto
