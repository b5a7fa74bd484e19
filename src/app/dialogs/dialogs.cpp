#include "app/dialogs/dialogs.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/constants_dialog.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/help_viewer.h"
#include "app/dialogs/keyboard_dialog.h"
#include "app/dialogs/preferences_dialog.h"
#include "app/dialogs/register_view.h"
#include "app/dialogs/schedule_window.h"
#include "app/dialogs/stack_view.h"
#include "app/dialogs/ui_text.h"

namespace brinto::dialogs {
namespace {

constexpr const char* kLicenceLine =
    "Copyright (c) 2026 The Brinto developers. MIT License: provided \"as is\", without warranty of any kind.";

QDialog* MakeAbout(const HelpFunction& help, QWidget* parent) {
    auto* about = new QDialog(parent);
    about->setWindowTitle(Ui::tr("About Brinto"));
    auto* icon = new QLabel(about);
    const QIcon appIcon = QApplication::windowIcon().isNull()
                              ? about->style()->standardIcon(QStyle::SP_ComputerIcon)
                              : QApplication::windowIcon();
    icon->setPixmap(appIcon.pixmap(48, 48));
    auto* text = new QVBoxLayout;
    text->addWidget(new QLabel(QStringLiteral("Brinto\u2122 for Linux"), about));
    text->addWidget(new QLabel(Ui::tr("Version %1").arg(QStringLiteral(BRINTO_VERSION)), about));
    // The user guide is written in English only; a translated window says so, an English one
    // has nothing to add.
    const char* guideNote = QT_TRANSLATE_NOOP("Ui", "The user guide is in English.");
    if (const QString note = Ui::tr(guideNote); note != QLatin1String(guideNote)) {
        auto* noteLabel = new QLabel(note, about);
        noteLabel->setObjectName(QStringLiteral("guideLanguage"));
        text->addWidget(noteLabel);
    }
    // The licence is quoted as it is granted, in English.
    auto* licence = new QLabel(QString::fromUtf8(kLicenceLine), about);
    licence->setWordWrap(true);
    text->addWidget(licence);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(text, 1);
    auto* column = new QVBoxLayout(about);
    column->addLayout(top);
    column->addWidget(MakeButtonRow(about, QDialogButtonBox::Ok, "about", help));
    return about;
}

}  // namespace

DialogHost::DialogHost(Session& session, QWidget* parent, HelpFunction help, SessionStore* store)
    : QObject(parent), m_session(session), m_store(store), m_parent(parent), m_help(std::move(help)) {
    if (!m_help) m_help = [this](std::string_view anchor) { OpenHelp(anchor); };
    if (m_store) {
        if (const auto saved = m_store->FrontEndSetting(kCustomColoursSetting)) m_customColours = UnpackColours(*saved);
    }
}

// Windows made with a parent go with it; without one (tests, a host with no main window) they
// are this host's to delete.
DialogHost::~DialogHost() {
    if (m_helpViewer) delete m_helpViewer.data();
    if (m_parent) return;
    QWidget* const windows[] = {m_preferences, m_keyboard, m_stack,    m_constants, m_enterDate,
                                m_enterTime,   m_durations, m_about,  m_colours,   m_schedule,
                                m_noCashFlows};
    for (QWidget* window : windows) delete window;
    for (RegisterView* view : m_registers) delete view;
}

QDialog* DialogHost::Show(QDialog* dialog) {
    Place(dialog);
    if (dialog == m_stack) {
        dialog->show();  // modeless: the calculator stays usable beside it
    } else {
        dialog->open();
    }
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

// The Stack view opens beside the calculator (right of it, else left of it, where the screen has
// room), so that both are seen at once; every other window opens centred on the calculator.
void DialogHost::Place(QWidget* window) const {
    if (!m_parent) return;
    if (!window->testAttribute(Qt::WA_Resized)) window->adjustSize();
    QWidget* main = m_parent->window();
    const QRect calculator = main->frameGeometry();
    const QSize size = window->frameGeometry().size();
    QPoint where(calculator.center().x() - size.width() / 2, calculator.center().y() - size.height() / 2);
    if (window == m_stack) {
        const QScreen* screen = main->screen();
        const QRect room = screen ? screen->availableGeometry() : QRect();
        constexpr int kGap = 8;
        where = QPoint(calculator.right() + kGap, calculator.top());
        if (room.isValid() && where.x() + size.width() > room.right()) {
            where.setX(calculator.left() - kGap - size.width());
            if (where.x() < room.left()) where.setX(room.right() - size.width());
        }
    }
    window->move(where);
}

QWidget* DialogHost::Open(View view) {
    m_session.SetLastView(view);
    switch (view) {
        case View::Preferences: {
            PreferencesDialog* sheet = PreferencesSheet();
            sheet->Load();
            return Show(sheet);
        }
        case View::Keyboard:
            if (!m_keyboard) m_keyboard = new KeyboardDialog(m_session, m_help, m_parent);
            m_keyboard->Load();
            return Show(m_keyboard);
        case View::Stack:
            if (!m_stack) {
                m_stack = new StackView(m_session, m_help, m_parent);
                connect(m_stack, &StackView::changed, this, &DialogHost::changed);
            }
            m_stack->Refresh();
            return Show(m_stack);
        case View::Constants:
            if (!m_constants) {
                m_constants = new ConstantsDialog(m_session, m_help, m_parent);
                connect(m_constants, &ConstantsDialog::changed, this, &DialogHost::changed);
            }
            Show(m_constants);
            m_constants->Load();
            return m_constants;
        case View::CashFlow:
            if (CashFlowRows(m_session.engine()) < 2) return NoCashFlows();
            return Show(Registers(view));
        case View::UserRegisters:
        case View::Tvm:
        case View::Amortization:
        case View::Statistical: return Show(Registers(view));
    }
    return nullptr;
}

PreferencesDialog* DialogHost::PreferencesSheet() {
    if (m_preferences) return m_preferences;
    m_preferences = new PreferencesDialog(m_session, m_help, m_parent);
    connect(m_preferences, &QDialog::accepted, this, [this] {
        m_session.SetPreferences(m_preferences->Edited());
        if (m_sheetColours) KeepColours(*m_sheetColours);
        m_sheetColours.reset();
        emit changed();
    });
    // Colours chosen from the sheet belong to it: its Cancel drops them with the rest.
    connect(m_preferences, &QDialog::rejected, this, [this] { m_sheetColours.reset(); });
    connect(m_preferences, &QDialog::finished, this, &DialogHost::preferencesClosed);
    connect(m_preferences, &PreferencesDialog::colorsRequested, this, &DialogHost::OpenColours);
    return m_preferences;
}

RegisterView* DialogHost::Registers(View view) {
    RegisterView*& slot = m_registers[static_cast<int>(view)];
    if (!slot) {
        const RegisterList list = view == View::Tvm            ? RegisterList::Tvm
                                  : view == View::Amortization ? RegisterList::Amortization
                                  : view == View::CashFlow     ? RegisterList::CashFlow
                                  : view == View::Statistical  ? RegisterList::Statistical
                                                               : RegisterList::UserRegisters;
        slot = new RegisterView(m_session, list, m_help, m_parent);
        if (m_screenColours) slot->SetChartColours(MakeChartColours(*m_screenColours));
        connect(slot, &RegisterView::changed, this, &DialogHost::changed);
        connect(slot, &RegisterView::scheduleRequested, this, &DialogHost::OpenSchedule);
    }
    slot->Refresh();
    return slot;
}

QMessageBox* DialogHost::NoCashFlows() {
    if (!m_noCashFlows) {
        m_noCashFlows =
            new QMessageBox(QMessageBox::Information, Ui::tr("No Cash Flow Entries"),
                            Ui::tr("There are no cash flow entries to display."), QMessageBox::Ok, m_parent);
    }
    m_noCashFlows->open();
    return m_noCashFlows;
}

QDialog* DialogHost::OpenAbout() {
    if (!m_about) m_about = MakeAbout(m_help, m_parent);
    return Show(m_about);
}

EnterDateDialog* DialogHost::OpenEnterDate() {
    if (!m_enterDate) {
        m_enterDate = new EnterDateDialog(m_help, m_parent);
        connect(m_enterDate, &QDialog::accepted, this, [this] {
            const QDate date = m_enterDate->calendar()->selectedDate();
            if (m_session.EnterDate(date.year(), date.month(), date.day())) emit changed();
        });
    }
    const DateFields offer = DateTimeToOffer(m_session.engine(), Offer::Date);
    m_enterDate->SetDate(offer.year, offer.month, offer.day);
    Show(m_enterDate);
    return m_enterDate;
}

EnterTimeDialog* DialogHost::OpenEnterTime() {
    if (!m_enterTime) {
        m_enterTime = new EnterTimeDialog(m_help, m_parent);
        connect(m_enterTime, &QDialog::accepted, this, [this] {
            if (m_session.EnterTime(m_enterTime->Hour(), m_enterTime->Minute())) emit changed();
        });
    }
    const DateFields offer = DateTimeToOffer(m_session.engine(), Offer::Time);
    m_enterTime->SetTime(offer.hour, offer.minute);
    Show(m_enterTime);
    return m_enterTime;
}

DurationsDialog* DialogHost::OpenDurations() {
    if (!m_durations) {
        m_durations = new DurationsDialog(m_session, m_help, m_parent);
        connect(m_durations, &DurationsDialog::changed, this, &DialogHost::changed);
    }
    m_durations->Load();
    Show(m_durations);
    return m_durations;
}

CustomizeColours* DialogHost::OpenColours() {
    if (!m_colours) {
        m_colours = new CustomizeColours(m_help, m_parent);
        connect(m_colours, &QDialog::accepted, this, [this] {
            if (m_preferences && m_preferences->isVisible()) {
                m_sheetColours = m_colours->Edited();
            } else {
                KeepColours(m_colours->Edited());
            }
        });
    }
    // The colours of the theme chosen on the sheet, as the key classes show them without custom ones.
    const Preferences& prefs = m_session.engine().prefs;
    ThemeSet themes;
    themes.ApplyTheme(themes.SelectTheme(prefs.Theme()));
    m_colours->Load(MakeScreenColours(themes, prefs, DefaultDisplayStyle(themes)), m_sheetColours.value_or(m_customColours));
    Show(m_colours);
    return m_colours;
}

void DialogHost::KeepColours(const CustomColours& colours) {
    m_customColours = colours;
    if (m_store) m_store->SetFrontEndSetting(kCustomColoursSetting, PackColours(m_customColours));
    emit coloursChanged(m_customColours);
}

ScheduleWindow* DialogHost::OpenSchedule() {
    if (!m_schedule) {
        m_schedule = new ScheduleWindow(m_session.engine(), m_help, m_parent);
        if (m_screenColours) m_schedule->SetChartColours(MakeChartColours(*m_screenColours));
    }
    m_schedule->Refresh();
    Show(m_schedule);
    return m_schedule;
}

HelpViewer* DialogHost::OpenHelp(std::string_view anchor) {
    if (!m_helpViewer) m_helpViewer = new HelpViewer;
    m_helpViewer->ShowAnchor(anchor);
    m_helpViewer->show();
    m_helpViewer->raise();
    return m_helpViewer;
}

void DialogHost::Refresh() {
    if (m_stack && m_stack->isVisible()) m_stack->Refresh();
    for (RegisterView* view : m_registers) {
        if (view && view->isVisible()) view->Refresh();
    }
}

void DialogHost::SetScreenColours(const ScreenColours& colours) {
    m_screenColours = colours;
    const ChartColours chart = MakeChartColours(colours);
    if (m_schedule) m_schedule->SetChartColours(chart);
    for (RegisterView* view : m_registers) {
        if (view) view->SetChartColours(chart);
    }
}

}  // namespace brinto::dialogs
