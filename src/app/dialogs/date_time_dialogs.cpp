#include "app/dialogs/date_time_dialogs.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "engine/numeric/date_fields.h"
#include "engine/function_ids.h"
#include "engine/register_bank.h"

namespace brinto::dialogs {
namespace {

QListWidget* NumberList(int first, int last) {
    auto* list = new QListWidget;
    for (int n = first; n <= last; ++n) list->addItem(QString::number(n));
    return list;
}

struct DurationRow {
    int number;
    const char* label;
};
constexpr std::array kDurationRows = {
    DurationRow{reg::DaysPerYear, "dpy"},  DurationRow{reg::DaysPerMonth, "dpm"},
    DurationRow{reg::DaysPerWeek, "dpw"},  DurationRow{reg::HoursPerDay, "hpd"},
    DurationRow{reg::FramesPerSecond, "fps"},
};

}  // namespace

DateFields DateTimeToOffer(const Engine& e, Offer offer) {
    const ValueTag tag = e.XTag();
    const bool fits = offer == Offer::Date ? tag == fid::TagDate || tag == fid::TagDateTime
                                           : tag == fid::TagTime || tag == fid::TagDateTime;
    if (fits && IsDateInRange(e.X())) return SplitDate(e.X());
    return e.platform().Now();
}

EnterDateDialog::EnterDateDialog(const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_calendar(new QCalendarWidget(this)) {
    setWindowTitle(QStringLiteral("Enter Date"));
    m_calendar->setAccessibleName(QStringLiteral("Date"));
    m_calendar->setDateRange(QDate(1904, 1, 1), QDate(2031, 12, 31));
    connect(m_calendar, &QCalendarWidget::activated, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_calendar);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "Main_Contents", help));
}

void EnterDateDialog::SetDate(int year, int month, int day) {
    m_calendar->setSelectedDate(QDate(year, month, day));
}

EnterTimeDialog::EnterTimeDialog(const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_hours(NumberList(1, 12)), m_tens(NumberList(0, 5)), m_units(NumberList(0, 9)),
      m_halfDay(new QButtonGroup(this)) {
    setWindowTitle(QStringLiteral("Enter Time"));
    m_hours->setAccessibleName(QStringLiteral("Hour"));
    m_tens->setAccessibleName(QStringLiteral("Tens of minutes"));
    m_units->setAccessibleName(QStringLiteral("Minutes"));
    auto* lists = new QHBoxLayout;
    for (QListWidget* list : {m_hours, m_tens, m_units}) lists->addWidget(list);
    auto* halfDay = new QVBoxLayout;
    int id = 0;
    for (const char* caption : {"AM", "PM"}) {
        auto* button = new QRadioButton(QString::fromUtf8(caption));
        m_halfDay->addButton(button, id++);
        halfDay->addWidget(button);
    }
    halfDay->addStretch(1);
    lists->addLayout(halfDay);
    auto* column = new QVBoxLayout(this);
    column->addLayout(lists);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "Main_Contents", help));
}

void EnterTimeDialog::SetTime(int hour, int minute) {
    m_hours->setCurrentRow(HourRow(hour));
    if (HourRow(hour) < 0) m_hours->clearSelection();
    m_tens->setCurrentRow(minute / 10);
    m_units->setCurrentRow(minute % 10);
    m_halfDay->button(hour < 12 ? 0 : 1)->setChecked(true);
}

int EnterTimeDialog::Hour() const { return HourOf(m_hours->currentRow(), m_halfDay->checkedId() == 1); }

int EnterTimeDialog::Minute() const {
    return std::max(0, m_tens->currentRow()) * 10 + std::max(0, m_units->currentRow());
}

DurationsDialog::DurationsDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session) {
    setWindowTitle(QStringLiteral("Durations"));
    auto* form = new QFormLayout;
    for (std::size_t i = 0; i < kDurationRows.size(); ++i) {
        m_fields[i] = new QLineEdit(this);
        m_fields[i]->setAlignment(Qt::AlignRight);
        form->addRow(QString::fromUtf8(kDurationRows[i].label), m_fields[i]);
    }
    QDialogButtonBox* buttons =
        MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "Main_Contents", help);
    QPushButton* defaults = buttons->addButton(QStringLiteral("Default"), QDialogButtonBox::ResetRole);
    connect(defaults, &QPushButton::clicked, this, [this] {
        const Engine& e = m_session.engine();
        for (std::size_t i = 0; i < m_fields.size(); ++i) m_fields[i]->setText(DisplayNumber(e, kDurationDefaults[i]));
    });
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(buttons);
    Load();
}

void DurationsDialog::Load() {
    const Engine& e = m_session.engine();
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i]->setText(DisplayNumber(e, e.DurationSetting(kDurationRows[i].number)));
    }
}

// A field that is not a positive number keeps its setting; the rest are stored as one step.
void DurationsDialog::accept() {
    const Engine& e = m_session.engine();
    std::array<double, 5> settings{};
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const auto value = ReadNumber(e, m_fields[i]->text());
        settings[i] = value && *value > 0 ? *value : e.DurationSetting(kDurationRows[i].number);
    }
    if (m_session.StoreRegisters(reg::DaysPerYear, settings)) emit changed();
    QDialog::accept();
}

}  // namespace brinto::dialogs
