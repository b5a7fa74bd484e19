#pragma once
// The changes the secondary windows make to the calculator, as commands over a Session: each
// marks the record it changes, so the next save keeps it, and each change to the engine's records
// is one undoable step. The windows change nothing except through these and the Session itself;
// the caller repaints the main window afterwards.
#include <array>

#include "engine/preferences.h"
#include "engine/user_key_map.h"
#include "session/session.h"

namespace brinto::dialogs {

// The "Preferences" sheet's OK: the whole record replaces the old one, then the input method's key
// goes through the dispatcher, so the engine changes mode exactly as if it had been pressed (sent
// also when the method did not change). The display recomputes its layout.
void ApplyPreferences(Session& session, const Preferences& next);

// The "Customize Keyboard" OK: writes back only what differs. True when anything changed.
bool ApplyUserKeys(Session& session, const UserKeyMap& keys, bool integerKeys);

// An edited register value, one undoable step. False for a number outside 0..123.
bool StoreRegister(Session& session, int number, double value);

// The duration settings dpy, dpm, dpw, hpd and fps, as one undoable step. False when nothing
// changed.
bool StoreDurations(Session& session, const std::array<double, 5>& settings);

// An edited cash-flow entry (0..count): its amount and group count. A group count below 1 is
// refused, so entries 0..count keep counts of at least 1 and the series keeps its length.
bool StoreCashFlow(Session& session, int entry, double amount, int groupCount);

// The amortization range as the AMORT key would have stored it (1..65535 each).
bool StoreAmortizationRange(Session& session, int start, int end);

// A date (midnight) or a clock time entered into X like a recalled value, tagged "date" or
// "time", as one undoable step. False, changing nothing, for a date outside the date range or a
// time outside 0:00..23:59.
bool EnterDate(Session& session, int year, int month, int day);
bool EnterTime(Session& session, int hour, int minute);

// The fields the "Enter Date" and "Enter Time" windows open on: those of X when X holds a date
// (for Date) or a clock time (for Time) or a date and time, else the current local time.
enum class Offer { Date, Time };
DateFields DateTimeToOffer(const Engine& e, Offer offer);

// The view last opened, for the Action button's "Open last form".
void RememberView(Session& session, u16 view);

// A key of the "Stack" view ends the one-key full display, as any key but shift and the display
// key does on the main window.
void EndFullDisplay(Session& session);

}  // namespace brinto::dialogs
