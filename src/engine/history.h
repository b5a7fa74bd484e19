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
    void TakeSnapshot(const EngineRecords& live);
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
    int NewestUndo() const { return m_undo[(m_undoHead + m_undoCount - 1) % kHistoryRecords]; }

    // Ten history records and the staging snapshot. Steps move between the lists by index, so a
    // commit copies nothing: the staging record becomes the step and a free record the new stage.
    std::array<EngineRecords, kHistoryRecords + 1> m_slots{};
    std::array<int, kHistoryRecords> m_undo{};  // ring, oldest at m_undoHead
    std::array<int, kHistoryRecords> m_redo{};  // stack, newest last
    std::array<int, kHistoryRecords> m_free{};  // stack
    int m_undoHead = 0;
    int m_undoCount = 0;
    int m_redoCount = 0;
    int m_freeCount = 0;
    int m_staging = kHistoryRecords;
    bool m_stagingFresh = false;  // a staging snapshot is kept at most once
};

}  // namespace brinto
