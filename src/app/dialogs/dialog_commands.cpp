#include "app/dialogs/dialog_commands.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "engine/function_ids.h"
#include "engine/numeric/date_fields.h"

namespace brinto::dialogs {
namespace {

// Runs one change to the engine's records as an undo step, and repaints through the session.
template <typename Change>
bool Undoable(Session& session, Change change) {
    Engine& e = session.engine();
    e.history.TakeSnapshot(e.Records());
    if (!change(e)) return false;
    e.history.Commit(e.Records());
    e.RequestRedraw();
    return true;
}

// A value arriving in X as a recalled number does: lift by the recall rule, close the entry, and
// leave lift enabled so the next digit lifts it.
void RecallIntoX(Engine& e, double value, ValueTag tag) {
    CalcState& s = e.state;
    e.RecallLift();
    e.SetX(value);
    e.SetXTag(tag);
    e.FinishEntry();
    s.status = static_cast<u16>((s.status | status::LiftEnabled) & ~(status::NoLift | status::KeepLift));
    s.engineFlags &= static_cast<u16>(~flags::OperatorLast);
    e.dirty.state = true;
}


}  // namespace

void ApplyPreferences(Session& session, const Preferences& next) {
    Engine& e = session.engine();
    e.prefs = next;
    e.dirty.preferences = true;
    e.state.status &= static_cast<u16>(~status::FullDisplay);
    e.RequestRedraw();
    session.Tap(e.prefs.Method() == InputMethod::Rpn          ? fid::MethodRpn
                : e.prefs.Method() == InputMethod::Precedence ? fid::MethodPrecedence
                                                              : fid::MethodSimple);
}

bool ApplyUserKeys(Session& session, const UserKeyMap& keys, bool integerKeys) {
    Engine& e = session.engine();
    bool changed = false;
    if (std::memcmp(&keys, &session.userKeys, sizeof keys) != 0) {
        session.userKeys = keys;
        e.dirty.userKeys = true;
        changed = true;
    }
    if (integerKeys != e.prefs.IntegerUserKeys()) {
        e.prefs.SetIntegerUserKeys(integerKeys);
        e.dirty.preferences = true;
        changed = true;
    }
    return changed;
}

bool StoreRegister(Session& session, int number, double value) {
    if (number < 0 || number >= kRegisterCount) return false;
    return Undoable(session, [&](Engine& e) {
        e.registers.values[number] = value;
        e.dirty.registers = true;
        return true;
    });
}

bool StoreDurations(Session& session, const std::array<double, 5>& settings) {
    const double* r = session.engine().registers.values;
    if (std::equal(settings.begin(), settings.end(), r + reg::DaysPerYear)) return false;
    return Undoable(session, [&](Engine& e) {
        std::copy(settings.begin(), settings.end(), e.registers.values + reg::DaysPerYear);
        e.dirty.registers = true;
        return true;
    });
}

bool StoreCashFlow(Session& session, int entry, double amount, int groupCount) {
    if (entry < 0 || entry > session.engine().registers.cashFlowCount || groupCount < 1) return false;
    return Undoable(session, [&](Engine& e) {
        e.registers.values[entry] = amount;
        e.registers.aux[entry] = static_cast<u32>(groupCount);
        e.dirty.registers = true;
        return true;
    });
}

bool StoreAmortizationRange(Session& session, int start, int end) {
    if (start < 1 || end < 1 || start > 0x7FFF || end > 0x7FFF) return false;
    return Undoable(session, [&](Engine& e) {
        e.state.amortStart = static_cast<i16>(start);
        e.state.amortEnd = static_cast<i16>(end);
        e.dirty.state = true;
        return true;
    });
}

bool EnterDate(Session& session, int year, int month, int day) {
    DateFields fields;
    fields.year = year;
    fields.month = month;
    fields.day = day;
    const double value = ComposeDate(fields);
    if (month < 1 || month > 12 || day < 1 || day > 31 || !IsDateInRange(value)) return false;
    return Undoable(session, [&](Engine& e) {
        RecallIntoX(e, value, fid::TagDate);
        return true;
    });
}

bool EnterTime(Session& session, int hour, int minute) {
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59) return false;
    return Undoable(session, [&](Engine& e) {
        RecallIntoX(e, hour * 3600.0 + minute * 60.0, fid::TagTime);
        return true;
    });
}

DateFields DateTimeToOffer(const Engine& e, Offer offer) {
    const ValueTag tag = e.XTag();
    const bool fits = offer == Offer::Date ? tag == fid::TagDate || tag == fid::TagDateTime
                                           : tag == fid::TagTime || tag == fid::TagDateTime;
    if (fits && IsDateInRange(e.X())) return SplitDate(e.X());
    return e.platform().Now();
}

void RememberView(Session& session, u16 view) {
    Engine& e = session.engine();
    if (e.state.lastView == view) return;
    e.state.lastView = view;
    e.dirty.state = true;
}

void EndFullDisplay(Session& session) {
    Engine& e = session.engine();
    if (!(e.state.status & status::FullDisplay)) return;
    e.state.status &= static_cast<u16>(~status::FullDisplay);
    e.dirty.state = true;
    e.RequestRedraw();
}

}  // namespace brinto::dialogs
