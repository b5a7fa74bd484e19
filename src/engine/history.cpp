#include "engine/history.h"

#include <cstddef>
#include <cstring>

namespace brinto {

namespace {
// A snapshot is taken before nearly every key. The library's vector copy moves a record of this
// size several times faster than the string-move instruction the compiler would inline, so the
// copy goes through the library routine.
void CopyRecords(EngineRecords& to, const EngineRecords& from) {
    static void* (*const volatile copy)(void*, const void*, std::size_t) = std::memcpy;
    copy(&to, &from, sizeof to);
}
}  // namespace

void History::TakeSnapshot(const EngineRecords& live) {
    CopyRecords(m_slots[m_staging], live);
    m_stagingFresh = true;
}

void History::Init(const EngineRecords* live) {
    m_undoHead = 0;
    m_undoCount = 0;
    m_redoCount = 0;
    m_freeCount = kHistoryRecords;
    for (int i = 0; i < kHistoryRecords; ++i) m_free[i] = i;
    m_staging = kHistoryRecords;
    m_stagingFresh = live != nullptr;
    if (live) m_slots[m_staging] = *live;
}

// The first-shift latch is not a change of its own: a shift press alone is never an undo step.
// CalcState is compared first since it is where nearly every key leaves its mark.
bool History::SameIgnoringShift(const EngineRecords& a, const EngineRecords& b) {
    constexpr std::size_t kStatus = offsetof(CalcState, status);
    constexpr std::size_t kAfterStatus = kStatus + sizeof(u16);
    const auto* sa = reinterpret_cast<const unsigned char*>(&a.state);
    const auto* sb = reinterpret_cast<const unsigned char*>(&b.state);
    if (((a.state.status ^ b.state.status) & ~0x0040) != 0) return false;
    if (std::memcmp(sa + kAfterStatus, sb + kAfterStatus, sizeof(CalcState) - kAfterStatus) != 0) return false;
    if (std::memcmp(sa, sb, kStatus) != 0) return false;
    if (std::memcmp(&a.macro, &b.macro, sizeof a.macro) != 0) return false;
    return std::memcmp(&a.registers, &b.registers, sizeof a.registers) == 0;
}

void History::Commit(const EngineRecords& live) {
    if (!m_stagingFresh) return;
    // The live records are compared with the newest step, not with the staging snapshot.
    const EngineRecords& newest = m_undoCount ? m_slots[NewestUndo()] : m_slots[m_staging];
    if (SameIgnoringShift(live, newest)) return;
    int stage;
    if (m_freeCount > 0) {
        stage = m_free[--m_freeCount];
    } else if (m_undoCount > 0) {
        // No record free: the oldest step is given up, so the history keeps the ten newest.
        stage = m_undo[m_undoHead];
        m_undoHead = (m_undoHead + 1) % kHistoryRecords;
        --m_undoCount;
    } else {
        return;
    }
    m_undo[(m_undoHead + m_undoCount) % kHistoryRecords] = m_staging;
    ++m_undoCount;
    m_staging = stage;
    m_stagingFresh = false;
    // A new operation ends the redo chain.
    while (m_redoCount > 0) m_free[m_freeCount++] = m_redo[--m_redoCount];
}

namespace {
void RestoreShift(EngineRecords& live, bool keepShift) {
    if (!keepShift) ClearBits(live.state.status, 0x0040);
}
}  // namespace

bool History::Undo(EngineRecords& live, bool keepShift) {
    if (m_undoCount == 0) return false;
    const int step = NewestUndo();
    --m_undoCount;
    m_slots[m_staging] = live;  // the state before the undo becomes the redo step
    live = m_slots[step];
    RestoreShift(live, keepShift);
    m_redo[m_redoCount++] = m_staging;
    m_staging = step;
    m_slots[m_staging] = m_slots[m_redo[m_redoCount - 1]];
    m_stagingFresh = true;
    return true;
}

bool History::Redo(EngineRecords& live, bool keepShift) {
    if (m_redoCount == 0) return false;
    const int step = m_redo[--m_redoCount];
    m_slots[m_staging] = live;  // the state before the redo becomes an undo step again
    live = m_slots[step];
    RestoreShift(live, keepShift);
    m_undo[(m_undoHead + m_undoCount) % kHistoryRecords] = m_staging;
    ++m_undoCount;
    m_staging = step;
    m_slots[m_staging] = m_slots[NewestUndo()];
    m_stagingFresh = true;
    return true;
}

}  // namespace brinto
