#include "engine/history.h"

#include <cstring>

namespace brinto {

void History::Init(const EngineRecords* live) {
    m_undoCount = 0;
    m_undoHead = 0;
    m_redoCount = 0;
    if (live) m_staging = *live;
}

// The first-shift latch is not a change of its own: a shift press alone is never an undo step.
bool History::SameIgnoringShift(const EngineRecords& a, const EngineRecords& b) {
    if (std::memcmp(&a.registers, &b.registers, sizeof a.registers) != 0) return false;
    if (std::memcmp(&a.macro, &b.macro, sizeof a.macro) != 0) return false;
    CalcState sa = a.state;
    CalcState sb = b.state;
    sa.status &= static_cast<u16>(~0x0040);
    sb.status &= static_cast<u16>(~0x0040);
    return std::memcmp(&sa, &sb, sizeof sa) == 0;
}

void History::Commit(const EngineRecords& live) {
    // The live records are compared with the newest step, not with the staging snapshot.
    const EngineRecords& newest =
        m_undoCount ? m_undo[(m_undoHead + m_undoCount - 1) % kHistoryRecords] : m_staging;
    if (SameIgnoringShift(live, newest)) return;
    // Undo and redo steps share ten records; with none free the oldest undo step is reused.
    if (m_undoCount + m_redoCount >= kHistoryRecords) {
        if (m_undoCount == 0) return;
        m_undoHead = (m_undoHead + 1) % kHistoryRecords;
        --m_undoCount;
    }
    m_undo[(m_undoHead + m_undoCount) % kHistoryRecords] = m_staging;
    ++m_undoCount;
    m_redoCount = 0;  // a new operation ends the redo chain
}

namespace {
void RestoreShift(EngineRecords& live, bool restoredLatch, bool keepShift) {
    if (restoredLatch && keepShift) {
        live.state.status |= 0x0040;
    } else {
        live.state.status &= static_cast<u16>(~0x0040);
    }
}
}  // namespace

bool History::Undo(EngineRecords& live, bool keepShift) {
    if (m_undoCount == 0) return false;
    m_staging = live;
    --m_undoCount;
    live = m_undo[(m_undoHead + m_undoCount) % kHistoryRecords];
    RestoreShift(live, live.state.status & 0x0040, keepShift);
    m_redo[m_redoCount++] = m_staging;
    return true;
}

bool History::Redo(EngineRecords& live, bool keepShift) {
    if (m_redoCount == 0) return false;
    m_staging = live;
    live = m_redo[--m_redoCount];
    RestoreShift(live, live.state.status & 0x0040, keepShift);
    m_undo[(m_undoHead + m_undoCount) % kHistoryRecords] = m_staging;
    ++m_undoCount;
    return true;
}

}  // namespace brinto
