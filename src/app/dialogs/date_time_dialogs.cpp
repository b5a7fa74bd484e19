#include "app/dialogs/date_time_dialogs.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include "app/dialogs/ui_text.h"
#include "engine/function_ids.h"
#include "engine/numeric/date_fields.h"
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
    DurationRow{reg::DaysPerYear, QT_TRANSLATE_NOOP("Ui", "Days per year (dpy):")},
    DurationRow{reg::DaysPerMonth, QT_TRANSLATE_NOOP("Ui", "Days per month (dpm):")},
    DurationRow{reg::DaysPerWeek, QT_TRANSLATE_NOOP("Ui", "Days per week (dpw):")},
    DurationRow{reg::HoursPerDay, QT_TRANSLATE_NOOP("Ui", "Hours per day (hpd):")},
    DurationRow{reg::FramesPerSecond, QT_TRANSLATE_NOOP("Ui", "Frames per second (fps):")},
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
    setWindowTitle(Ui::tr("Enter Date"));
    m_calendar->setAccessibleName(Ui::tr("Date"));
    m_calendar->setDateRange(QDate(1904, 1, 1), QDate(2031, 12, 31));
    connect(m_calendar, &QCalendarWidget::activated, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_calendar);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "enterdate", help));
}

void EnterDateDialog::SetDate(int year, int month, int day) {
    m_calendar->setSelectedDate(QDate(year, month, day));
}

EnterTimeDialog::EnterTimeDialog(const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_hours(NumberList(1, 12)), m_tens(NumberList(0, 5)), m_units(NumberList(0, 9)),
      m_halfDay(new QButtonGroup(this)) {
    setWindowTitle(Ui::tr("Enter Time"));
    // Three narrow lists read as "hour : minute", each just wide enough for its numbers.
    const int listWidth = fontMetrics().horizontalAdvance(QStringLiteral("000")) +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    m_hours->setAccessibleName(Ui::tr("Hour"));
    m_tens->setAccessibleName(Ui::tr("Tens of minutes"));
    m_units->setAccessibleName(Ui::tr("Minutes"));
    auto* lists = new QGridLayout;
    const auto addList = [&](QListWidget* list, int column, const char* caption) {
        list->setFixedWidth(listWidth);
        auto* label = new QLabel(Ui::tr(caption), this);
        label->setBuddy(list);
        lists->addWidget(label, 0, column);
        lists->addWidget(list, 1, column);
    };
    addList(m_hours, 0, QT_TRANSLATE_NOOP("Ui", "&Hour:"));
    auto* colon = new QLabel(QStringLiteral(":"), this);
    QFont large = colon->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.5);
    colon->setFont(large);
    lists->addWidget(colon, 1, 1, Qt::AlignCenter);
    addList(m_tens, 2, QT_TRANSLATE_NOOP("Ui", "&Minute:"));
    addList(m_units, 3, "");
    auto* halfDay = new QVBoxLayout;
    int id = 0;
    for (const char* caption : {QT_TRANSLATE_NOOP("Ui", "AM"), QT_TRANSLATE_NOOP("Ui", "PM")}) {
        auto* button = new QRadioButton(Ui::tr(caption));
        m_halfDay->addButton(button, id++);
        halfDay->addWidget(button);
    }
    halfDay->addStretch(1);
    lists->addLayout(halfDay, 1, 4);
    lists->setColumnStretch(5, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(lists);
    column->addWidget(MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "enterdate", help));
    resize(sizeHint().width(), 320);
}

void EnterTimeDialog::SetTime(int hour, int minute) {
    const auto choose = [](QListWidget* list, int row) {
        list->clearSelection();
        list->setCurrentRow(row);
        if (row < 0) list->clearSelection();
    };
    choose(m_hours, HourRow(hour));
    choose(m_tens, minute / 10);
    choose(m_units, minute % 10);
    m_halfDay->button(hour < 12 ? 0 : 1)->setChecked(true);
}

namespace {

// The row chosen in a list, -1 when none is. The selection counts, not the current row: a list
// that takes the focus makes its first row current without choosing it.
int ChosenRow(const QListWidget* list) {
    const QList<QListWidgetItem*> chosen = list->selectedItems();
    return chosen.isEmpty() ? -1 : list->row(chosen.front());
}

}  // namespace

int EnterTimeDialog::Hour() const { return HourOf(ChosenRow(m_hours), m_halfDay->checkedId() == 1); }

int EnterTimeDialog::Minute() const {
    return std::max(0, ChosenRow(m_tens)) * 10 + std::max(0, ChosenRow(m_units));
}

DurationsDialog::DurationsDialog(Session& session, const HelpFunction& help, QWidget* parent)
    : QDialog(parent), m_session(session), m_problem(MakeProblemLine(this)) {
    setWindowTitle(Ui::tr("Durations"));
    auto* form = new QFormLayout;
    for (std::size_t i = 0; i < kDurationRows.size(); ++i) {
        m_fields[i] = new QLineEdit(this);
        m_fields[i]->setAlignment(Qt::AlignRight);
        WatchNumberField(m_fields[i], session.engine(), FieldKind::Positive, m_problem);
        form->addRow(Ui::tr(kDurationRows[i].label), m_fields[i]);
    }
    QDialogButtonBox* buttons =
        MakeButtonRow(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, "durations", help);
    QPushButton* defaults = buttons->addButton(Ui::tr("Default"), QDialogButtonBox::ResetRole);
    connect(defaults, &QPushButton::clicked, this, [this] {
        const Engine& e = m_session.engine();
        for (std::size_t i = 0; i < m_fields.size(); ++i) m_fields[i]->setText(DisplayNumber(e, kDurationDefaults[i]));
    });
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_problem);
    column->addWidget(buttons);
    Load();
}

void DurationsDialog::Load() {
    const Engine& e = m_session.engine();
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i]->setText(DisplayNumber(e, e.DurationSetting(kDurationRows[i].number)));
    }
}

// All five are stored as one step, or none: a refused field keeps the dialog open on it, saying why.
// A field left as it was shown keeps its exact value (the display may round it), and OK on an
// untouched dialog stores nothing, so it is no step to undo.
void DurationsDialog::accept() {
    const Engine& e = m_session.engine();
    std::array<double, 5> settings{};
    bool edited = false;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        settings[i] = e.DurationSetting(kDurationRows[i].number);
        if (m_fields[i]->text() == DisplayNumber(e, settings[i])) continue;
        const FieldReading reading = ReadNumberField(e, m_fields[i]->text(), FieldKind::Positive);
        if (!reading.value) {
            m_problem->setText(MessageText(reading.problem));
            m_problem->show();
            m_fields[i]->setFocus();
            m_fields[i]->selectAll();
            return;
        }
        settings[i] = *reading.value;
        edited = true;
    }
    if (edited && m_session.StoreRegisters(reg::DaysPerYear, settings)) emit changed();
    QDialog::accept();
}

}  // namespace brinto::dialogs
