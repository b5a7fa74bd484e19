#include "ops/date_time.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

#include "ops/date_fields.h"
#include "ops_test_support.h"

namespace brinto {
namespace {

using namespace test;
using namespace test::unit;

double DateOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return ComposeDate(DateFields{year, month, day, hour, minute, second, 0});
}

constexpr FunctionId kDpy = 198, kHpd = 201;

TEST(DateEntry, ReadsYearMonthDayWithItsYearRules) {
    const double err = kErrorValue;
    struct Case { std::string_view name; double typed; double date; };
    const Case cases[] = {
        {"5.0315",            5.0315,    DateOf(2005, 3, 15)},
        {"99.1231",           99.1231,   DateOf(1999, 12, 31)},
        {"31.0101",           31.0101,   DateOf(2031, 1, 1)},
        {"32.0101",           32.0101,   DateOf(1932, 1, 1)},
        {"0.0101",            0.0101,    DateOf(2000, 1, 1)},
        {"1800.0101",         1800.0101, DateOf(1904, 1, 1)},
        {"1904.0101 is 0",    1904.0101, 0},
        {"leap day 2000",     2000.0229, DateOf(2000, 2, 29)},
        {"leap day 2004",     4.0229,    DateOf(2004, 2, 29)},
        {"no 2001-02-29",     2001.0229, DateOf(2001, 3, 1)},
        {"month 0 and day 0", 2005.0000, DateOf(2005, 1, 1)},
        {"month 13 rolls",    2004.1301, DateOf(2005, 1, 1)},
        {"day 32 rolls",      2004.0132, DateOf(2004, 2, 1)},
        {"last day",          2031.1231, DateOf(2031, 12, 31)},
        {"past the range",    2031.1232, err},
        {"year 2032",         2032.0101, err},
        {"not finite",        kErrorValue, err},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.typed, 0}});
        e.Dispatch(fid::Date);
        EXPECT_EQ(e.X(), c.date);
        EXPECT_EQ(e.XTag(), IsErrorValue(c.date) ? 0 : Date);
    }
}

TEST(DateEntry, TypedDigitsBecomeADateShownByThePlatform) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {5, fid::Point, 0, 3, 1, 5, fid::Date});
    EXPECT_EQ(XText(e), "2005-03-15");
    EXPECT_EQ(XLabel(e), "date");
    e.prefs.SetLongDate(true);
    EXPECT_EQ(XText(e), "Tuesday, 15 March 2005");
    e.state.status |= status::FullDisplay;  // dates shown as their number of seconds
    EXPECT_EQ(XText(e), "3193689600.");
}

TEST(TimeEntry, ReadsHoursMinutesSeconds) {
    struct Case { std::string_view name; double typed; double seconds; };
    const Case cases[] = {
        {"13.3015",  13.3015, 48615},
        {"0.0001",   0.0001,  1},
        {"25 hours", 25,      90000},
        {"23.5959",  23.5959, 86399},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({{c.typed, 0}});
        e.Dispatch(fid::Time);
        EXPECT_EQ(e.X(), c.seconds);
        EXPECT_EQ(e.XTag(), Time);
    }
    Engine e = Holding({{13.3015, 0}});
    e.Dispatch(fid::Time);
    EXPECT_EQ(XText(e), "13:30");
}

TEST(DateAndTimeKeys, ReduceDateKindsAndLeaveTheirOwnKindAlone) {
    const double moment = DateOf(2024, 2, 29, 13, 45, 10);
    struct Case { std::string_view name; FunctionId key; TaggedValue x; TaggedValue result; bool savesLastX; };
    const Case cases[] = {
        {"date of dt",        fid::Date,     {moment, DateTime},  {DateOf(2024, 2, 29), Date}, false},
        {"time of dt",        fid::Time,     {moment, DateTime},  {49510, Time},               false},
        {"date of a date",    fid::Date,     {12345, Date},       {12345, Date},               false},
        {"time of a time",    fid::Time,     {2.5, Time},         {2.5, Time},                 false},
        {"date part",         fid::DatePart, {moment, DateTime},  {DateOf(2024, 2, 29), Date}, true},
        {"time part",         fid::TimePart, {moment, DateTime},  {49510, Time},               true},
        {"date part of time", fid::DatePart, {49510, Time},       {0, Date},                   true},
        {"date part, plain",  fid::DatePart, {moment, 0},         {kErrorValue, 0},            false},
        {"time part, hours",  fid::TimePart, {3, Hours},          {kErrorValue, 0},            false},
        {"date part, past",   fid::DatePart, {4039372800.0, DateTime}, {kErrorValue, 0},       true},
        {"time part, below",  fid::TimePart, {-1, DateTime},      {kErrorValue, 0},            true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({c.x});
        e.state.lastX = 7;
        e.Dispatch(c.key);
        EXPECT_EQ(e.X(), c.result.value);
        EXPECT_EQ(e.XTag(), c.result.tag);
        EXPECT_EQ(e.state.lastX, c.savesLastX ? c.x.value : 7.0);
    }
}

TEST(Now, ReadsTheInjectedClockAndLiftsOnlyWhenLiftIsEnabled) {
    FixedPlatform platform;
    platform.now = {2024, 2, 29, 13, 45, 10, 4};
    Engine e = MakeEngine(InputMethod::Rpn);
    e.SetPlatform(&platform);
    Press(e, {7, fid::Enter, fid::Now});  // Enter disabled the lift: the copy of 7 is replaced
    EXPECT_EQ(e.X(), DateOf(2024, 2, 29, 13, 45, 10));
    EXPECT_EQ(e.Y(), 7.0);
    EXPECT_EQ(XText(e), "2024-02-29 13:45");
    EXPECT_EQ(XLabel(e), "dt");
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.Y(), e.X());

    platform.now = {2032, 1, 1, 0, 0, 0, 4};  // a clock beyond the date range
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.X(), kErrorValue);
    platform.now = {2024, 99, -5, 77, 0, 0, 4};  // a broken clock
    e.Dispatch(fid::Now);
    EXPECT_EQ(e.X(), kErrorValue);
}

TEST(DateArithmetic, AddForEveryPairOfKinds) {
    const double day = 86400, err = kErrorValue;
    const double d = DateOf(2005, 3, 15), t = 49510, dt = DateOf(2005, 3, 15, 13, 45, 10);
    struct Case { std::string_view name; TaggedValue y; TaggedValue x; TaggedValue result; };
    const Case cases[] = {
        {"date + 1 is a day",        {d, Date},            {1, 0},             {d + day, Date}},
        {"1 + date",                 {1, 0},               {d, Date},          {d + day, Date}},
        {"leap: 2000-02-28 + 1",     {DateOf(2000, 2, 28), Date}, {1, 0},      {DateOf(2000, 2, 29), Date}},
        {"no leap: 2001-02-28 + 1",  {DateOf(2001, 2, 28), Date}, {1, 0},      {DateOf(2001, 3, 1), Date}},
        {"date + 2 weeks",           {d, Date},            {2, Weeks},         {d + 14 * day, Date}},
        {"date + 36 hours",          {d, Date},            {36, Hours},        {d + 1.5 * day, Date}},
        {"date + 1 years",           {d, Date},            {1, Years},         {d + 365.25 * day, Date}},
        {"date + meters is days",    {d, Date},            {1, Meters},        {d + day, Date}},
        {"time + 1.5 is hours",      {t, Time},            {1.5, 0},           {t + 5400, Time}},
        {"time + h.mmss",            {t, Time},            {1.3, Hms},         {t + 5400, Time}},
        {"time + 30 frames",         {t, Time},            {30, Frames},       {t + 1, Time}},
        {"time past midnight",       {t, Time},            {24, 0},            {t + day, Time}},
        {"dt + 1 is a day",          {dt, DateTime},       {1, 0},             {dt + day, DateTime}},
        {"date + time",              {d, Date},            {t, Time},          {dt, DateTime}},
        {"time + date",              {t, Time},            {d, Date},          {dt, DateTime}},
        {"date + date",              {d, Date},            {d, Date},          {err, 0}},
        {"dt + time",                {dt, DateTime},       {t, Time},          {err, 0}},
        {"2031-12-31 + 1",           {DateOf(2031, 12, 31), Date}, {1, 0},     {err, 0}},
        {"last second + 1 s",        {kMaxDateValue, DateTime}, {1, Seconds},  {err, 0}},
        {"1904-01-01 - 1 by adding", {0, Date},            {-1, 0},            {err, 0}},
        {"date + nan",               {d, Date},            {NAN, 0},           {err, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        for (const FunctionId op : {fid::Add, fid::IntegerAdd}) {
            Engine e = Holding({c.y, c.x});
            e.Dispatch(op);
            EXPECT_EQ(e.X(), c.result.value);
            EXPECT_EQ(e.XTag(), c.result.tag);
        }
    }
}

TEST(DateArithmetic, SubtractForEveryPairOfKinds) {
    const double day = 86400, err = kErrorValue;
    const double d = DateOf(2005, 3, 15), t = 49510, dt = DateOf(2005, 3, 15, 13, 45, 10);
    struct Case { std::string_view name; TaggedValue y; TaggedValue x; TaggedValue result; };
    const Case cases[] = {
        {"2005-03-15 - 2005-01-01",  {d, Date},      {DateOf(2005, 1, 1), Date},  {73, Days}},
        {"negative difference",      {DateOf(2005, 1, 1), Date}, {d, Date},        {-73, Days}},
        {"over a leap day",          {DateOf(2004, 3, 1), Date}, {DateOf(2004, 2, 28), Date}, {2, Days}},
        {"time - time",              {t, Time},      {t - 5400, Time},            {1.5, Hours}},
        {"dt - dt",                  {dt, DateTime}, {dt - day, DateTime},        {24, Hours}},
        {"dt - date",                {dt, DateTime}, {d, Date},                   {49510 / day, Days}},
        {"date - dt",                {d, Date},      {dt, DateTime},              {err, 0}},
        {"date - time",              {d, Date},      {t, Time},                   {err, 0}},
        {"date - 1",                 {d, Date},      {1, 0},                      {d - day, Date}},
        {"date - 0.5 keeps a date",  {d, Date},      {0.5, 0},                    {d - day, Date}},
        {"date - 12 hours",          {d, Date},      {12, Hours},                 {d - day, Date}},
        {"time - 1 is an hour",      {t, Time},      {1, 0},                      {t - 3600, Time}},
        {"dt - 1 is a day",          {dt, DateTime}, {1, 0},                      {dt - day, DateTime}},
        {"1904-01-01 - 1",           {0, Date},      {1, 0},                      {err, 0}},
        {"time below midnight",      {t, Time},      {14, Hours},                 {err, 0}},
        {"date - -1 past the range", {DateOf(2031, 12, 31), Date}, {-1, 0},       {err, 0}},
        {"number - date",            {5, 0},         {d, Date},                   {err, 0}},
        {"hours - time",             {5, Hours},     {t, Time},                   {err, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        for (const FunctionId op : {fid::Subtract, fid::IntegerSubtract}) {
            Engine e = Holding({c.y, c.x});
            e.Dispatch(op);
            EXPECT_DOUBLE_EQ(e.X(), c.result.value);
            EXPECT_EQ(e.XTag(), c.result.tag);
        }
    }
}

TEST(DateArithmetic, MultiplyAndDivideOfADateAreErrors) {
    for (const FunctionId op : {fid::Multiply, fid::Divide, fid::IntegerMultiply, fid::IntegerDivide}) {
        for (const bool dateInY : {true, false}) {
            SCOPED_TRACE(testing::Message() << "op " << op << (dateInY ? " date in Y" : " date in X"));
            Engine e = dateInY ? Holding({{100, Date}, {2, 0}}) : Holding({{2, 0}, {100, Time}});
            e.Dispatch(op);
            EXPECT_EQ(e.X(), kErrorValue);
        }
    }
}

TEST(Hms, ConversionsBothWays) {
    struct Case { std::string_view name; FunctionId key; TaggedValue x; std::string_view text; ValueTag tag; };
    const Case cases[] = {
        {"1.5 hours to h.mmss",     fid::ToHms,       {1.5, Hours},     "1.3",           Hms},
        {"90 minutes to h.mmss",    fid::ToHms,       {90, Minutes},    "1.3",           Hms},
        {"1 day to h.mmss",         fid::ToHms,       {1, Days},        "24.",           Hms},
        {"plain hours to h.mmss",   fid::ToHms,       {2.75, 0},        "2.45",          Hms},
        {"1.3 to hours",            fid::ToHours,     {1.3, Hms},       "1.5",           Hours},
        {"2.5959 to hours",         fid::ToHours,     {2.5959, 0},      "2.99972222222", Hours},
        {"-1.3 to hours",           fid::ToHours,     {-1.3, 0},        "-1.5",          Hours},
        {"one second in frames",    fid::HmsToFrames, {0.0001, 0},      "30.",           Frames},
        {"1.3 in frames",           fid::HmsToFrames, {1.3, Hms},       "162,000.",       Frames},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({c.x});
        e.Dispatch(c.key);
        EXPECT_EQ(XText(e), c.text);
        EXPECT_EQ(e.XTag(), c.tag);
        EXPECT_EQ(e.state.lastX, c.x.value);
    }
}

TEST(FractionToNextUnit, StepsDownOneUnit) {
    struct Case { std::string_view name; TaggedValue x; TaggedValue result; };
    const Case cases[] = {
        {"2.5 years",    {2.5, Years},   {6, Months}},
        {"1.5 months",   {1.5, Months},  {15.21875, Days}},
        {"1.5 weeks",    {1.5, Weeks},   {3.5, Days}},
        {"1.25 days",    {1.25, Days},   {6, Hours}},
        {"2.5 hours",    {2.5, Hours},   {30, Minutes}},
        {"3.25 minutes", {3.25, Minutes}, {15, Seconds}},
        {"0.5 seconds",  {0.5, Seconds}, {15, Frames}},
        {"2.5 frames",   {2.5, Frames},  {0.5, Frames}},
        {"1.3 h.mmss",   {1.3, Hms},     {0.3, Hms}},
        {"-2.5 hours",   {-2.5, Hours},  {-30, Minutes}},
        {"plain",        {2.5, 0},       {kErrorValue, 0}},
        {"a date",       {2.5, Date},    {kErrorValue, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Engine e = Holding({c.x});
        e.Dispatch(fid::FractionToNextUnit);
        EXPECT_DOUBLE_EQ(e.X(), c.result.value);
        EXPECT_EQ(e.XTag(), c.result.tag);
        EXPECT_EQ(e.state.lastX, c.x.value);
    }
}

TEST(DurationSettings, StoreWhileTypingRecallOtherwise) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {3, 6, 0, kDpy});
    EXPECT_EQ(e.registers.values[reg::DaysPerYear], 360.0);
    EXPECT_EQ(XLabel(e), "dpy");
    EXPECT_TRUE(e.dirty.registers);
    Press(e, {2});  // storing disabled the lift: 2 replaces X
    EXPECT_EQ(e.Y(), 0.0);
    Press(e, {kHpd});  // typing 2 then hpd stores 2 hours per day
    EXPECT_EQ(e.registers.values[reg::HoursPerDay], 2.0);

    e = Holding({{5, 0}});
    e.Dispatch(kDpy);  // nothing typed: recalled, lifting the 5
    EXPECT_EQ(e.X(), 365.25);
    EXPECT_EQ(e.Y(), 5.0);
    EXPECT_EQ(e.XTag(), fid::TagDpy);

    e = MakeEngine(InputMethod::Rpn);
    Press(e, {3, 6, 0, kDpy, 1, fid::Years, 192});  // 192: the days key  // the stored setting is used
    EXPECT_EQ(e.X(), 360.0);
}

TEST(DurationSettings, ClearDateRestoresTheDefaultsAndShowsFps) {
    Engine e = MakeEngine(InputMethod::Rpn);
    Press(e, {2, 5, 202, fid::ClearDate});
    EXPECT_EQ(e.X(), 30.0);
    EXPECT_EQ(XLabel(e), "fps");
    EXPECT_EQ(e.registers.values[reg::FramesPerSecond], 30.0);
}

TEST(DateFunctions, PureFunctionsHoldForEveryDouble) {
    const double values[] = {NAN, kErrorValue, -kErrorValue, -0.0, 4.9e-324, 1e300, -1e300, 4039372800.0};
    for (const double v : values) {
        SCOPED_TRACE(v);
        EXPECT_TRUE(IsErrorValue(DatePartOf(v)) || IsDateInRange(DatePartOf(v)));
        EXPECT_TRUE(IsErrorValue(DateFromEntry(v)) || IsDateInRange(DateFromEntry(v)));
        const TaggedValue sum = DateSum({v, Date}, {v, 0});
        EXPECT_TRUE(IsErrorValue(sum.value) || IsDateInRange(sum.value));
        const TaggedValue difference = DateDifference({v, DateTime}, {v, Years});
        EXPECT_TRUE(IsErrorValue(difference.value) || IsDateInRange(difference.value));
    }
}

}  // namespace
}  // namespace brinto
