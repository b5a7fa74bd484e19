#include "app/screenshots.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QAbstractButton>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "app/calculator.h"
#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/dialogs.h"
#include "app/dialogs/help_viewer.h"
#include "app/dialogs/register_view.h"
#include "app/dialogs/schedule_window.h"
#include "app/input_method_dialog.h"
#include "app/main_window.h"
#include "app/window_host.h"
#include "engine/function_ids.h"
#include "engine/keyboards.h"

namespace brinto {

namespace {

const char* const kKeyboardShots[kKeyboardCount] = {
    "main-general",      "main-financial",    "main-scientific", "main-statistical", "main-programmer",
    "main-conversion-1", "main-conversion-2", "main-date-time",  "main-user"};

const char* const kPreferencePages[] = {"preferences-general", "preferences-display", "preferences-keyboard"};

// The views in the order of their pictures, after the "Customize Keyboard" dialog.
const std::pair<const char*, View> kViewShots[] = {
    {"stack", View::Stack},         {"user-registers", View::UserRegisters},
    {"constants", View::Constants}, {"tvm", View::Tvm},
    {"amortization", View::Amortization}, {"cash-flows", View::CashFlow},
    {"statistical-registers", View::Statistical}};

// The program's message boxes, each raised as the user raises it, on a calculator of its own
// where that matters (nothing to undo, no macro, no cash flows).
struct MessageShot {
    const char* name;
    std::function<void(Session&)> raise;
    bool freshCalculator;
};
const MessageShot kMessageShots[] = {
    {"message-no-function", [](Session& s) { s.Tap(kNoKey); }, false},
    {"message-clear-all", [](Session& s) { s.Tap(fid::ClearAll); }, false},
    {"message-nothing-to-redo", [](Session& s) { s.Redo(); }, false},
    {"message-nothing-to-undo", [](Session& s) { s.Undo(); }, true},
    {"message-no-macro", [](Session& s) { s.Tap(fid::MacroPlay); }, true},
    {"message-macro-length-exceeded",
     [](Session& s) {
         // Keys into a recording until it is full: the message ends the loop.
         s.Tap(fid::MacroRecord);
         for (int i = 0; i < 10000 && (s.engine().state.engineFlags & flags::Recording); ++i) s.Tap(fid::Swap);
     },
     true},
};

// The same moment on every run, so the date pictures do not change by themselves.
class ScreenshotHost : public WindowHost {
public:
    ScreenshotHost() { askInputMethod = false; }
    DateFields Now() const override { return {2026, 3, 15, 14, 5, 0, 0}; }
};

// Enough in every register list that no view is empty: a value on each stack level, a loan in
// the TVM registers, a few cash flows and data points, two user registers and two user keys.
void FillSamples(Session& session) {
    // A leading minus is the change-sign key, not a subtraction.
    const auto type = [&session](const char* digits) {
        const bool negative = *digits == '-';
        for (const char* c = digits + negative; *c; ++c) session.CharacterKey(static_cast<char32_t>(*c));
        if (negative) session.Tap(fid::ChangeSign);
    };
    const auto enter = [&](const char* digits, FunctionId key) {
        type(digits);
        session.Tap(key);
    };
    session.ChooseInputMethod(InputMethod::Rpn);
    // A 30-year loan of 250 000 at 6.5 %, paid monthly; its payment solved.
    enter("12", fid::PYr);
    enter("360", fid::N);
    enter("6.5", fid::IYr);
    enter("250000", fid::PV);
    enter("0", fid::FV);
    session.Solve(fid::PMT);
    session.SetAmortizationRange(1, 12);
    // Cash flows: an outlay and three returns, the second of them for two years running.
    enter("-15000", fid::CashFlow);
    for (const char* amount : {"4000", "5500", "7000"}) {
        enter(amount, fid::CashFlow);
        if (*amount == '5') enter("2", fid::GroupCount);
    }
    // Statistics: four (x, y) pairs, y typed first.
    for (const auto& [y, x] : {std::pair{"2.1", "1"}, {"3.9", "2"}, {"6.2", "3"}, {"7.8", "4"}}) {
        type(y);
        session.Tap(fid::Enter);
        enter(x, fid::SigmaPlus);
    }
    // The cash flows live in the first user registers; these two stand clear of them.
    session.StoreRegister(10, 42.5);
    session.StoreRegister(11, 1.5e-3);
    session.AssignUserKey(KeyHalf::Unshifted, 1, fid::Sin);
    session.AssignUserKey(KeyHalf::Unshifted, 2, fid::Pi);
    // The stack: four levels filled.
    for (const char* value : {"1.25", "-8", "365", "3.14159"}) {
        type(value);
        session.Tap(fid::Enter);
    }
    type("1024");
}

bool Save(QWidget* widget, const QString& directory, const QString& name) {
    const QString path = QDir(directory).filePath(name + QStringLiteral(".png"));
    if (widget->grab().save(path)) return true;
    std::fprintf(stderr, "brinto: cannot write %s\n", qPrintable(path));
    return false;
}

// Each message box is drawn while it waits for its answer, then answered: OK, except that
// "Clear All" is cancelled, so the sample values stay.
int ShootMessages(const QString& directory, Session& session) {
    ScreenshotHost freshHost;
    Calculator fresh(freshHost);
    fresh.Start(AppOptions::InMemory());
    MainWindow freshWindow(fresh.session);
    freshHost.window = &freshWindow;
    int failures = 0;
    for (const MessageShot& shot : kMessageShots) {
        bool shown = false;
        // A timer of this loop's own: should no box come, it dies here instead of firing later.
        QTimer answer;
        answer.setSingleShot(true);
        QObject::connect(&answer, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            shown = true;
            if (!Save(box, directory, QString::fromLatin1(shot.name))) ++failures;
            QAbstractButton* button = box->button(QMessageBox::Cancel) ? box->button(QMessageBox::Cancel)
                                                                        : box->button(QMessageBox::Ok);
            if (button) button->click();
        });
        answer.start(0);
        shot.raise(shot.freshCalculator ? fresh.session : session);
        if (!shown) {
            std::fprintf(stderr, "brinto: no message box for %s\n", shot.name);
            ++failures;
        }
    }
    // The one message a view raises instead of opening: on the fresh calculator, with no cash flows.
    QWidget* noCashFlows = freshWindow.Dialogs().Open(View::CashFlow);
    QApplication::processEvents();
    if (!Save(noCashFlows, directory, QStringLiteral("message-no-cash-flow"))) ++failures;
    noCashFlows->close();
    return failures;
}

}  // namespace

int WriteScreenshots(const QString& directory) {
    if (!QDir().mkpath(directory)) {
        std::fprintf(stderr, "brinto: cannot make the folder %s\n", qPrintable(directory));
        return 1;
    }
    ScreenshotHost host;
    Calculator calculator(host);
    calculator.Start(AppOptions::InMemory());
    MainWindow window(calculator.session);
    host.window = &window;
    Session& session = calculator.session;
    FillSamples(session);

    int failures = 0;
    const auto shoot = [&](QWidget* widget, const QString& name) {
        if (!widget->isVisible()) widget->show();
        QApplication::processEvents();
        const QString path = QDir(directory).filePath(name + QStringLiteral(".png"));
        if (!widget->grab().save(path)) {
            std::fprintf(stderr, "brinto: cannot write %s\n", qPrintable(path));
            ++failures;
        }
    };
    const auto close = [](QWidget* widget) {
        if (auto* dialog = qobject_cast<QDialog*>(widget)) {
            dialog->reject();
        } else {
            widget->hide();
        }
    };

    window.resize(360, 480);
    window.ApplyTheme();
    for (int keyboard = 0; keyboard < kKeyboardCount; ++keyboard) {
        session.SelectKeyboard(keyboard);
        shoot(&window, QString::fromLatin1(kKeyboardShots[keyboard]));
    }
    session.SelectKeyboard(0);
    session.Basic();
    shoot(&window, QStringLiteral("main-basic"));
    session.Advanced();

    dialogs::DialogHost& windows = window.Dialogs();
    QWidget* sheet = windows.Open(View::Preferences);
    auto* pages = sheet->findChild<QTabWidget*>();
    for (int page = 0; page < static_cast<int>(std::size(kPreferencePages)); ++page) {
        if (pages) pages->setCurrentIndex(page);
        shoot(sheet, QString::fromLatin1(kPreferencePages[page]));
    }
    close(sheet);
    QWidget* keyboard = windows.Open(View::Keyboard);
    shoot(keyboard, QStringLiteral("customize-keyboard"));
    close(keyboard);
    for (const auto& [name, view] : kViewShots) {
        QWidget* shown = windows.Open(view);
        shoot(shown, QString::fromLatin1(name));
        close(shown);
    }
    dialogs::ScheduleWindow* schedule = windows.OpenSchedule();
    shoot(schedule, QStringLiteral("amortization-schedule"));
    close(schedule);
    // The diagram alone, as the guide shows it beside the text about cash flows.
    if (auto* flows = qobject_cast<dialogs::RegisterView*>(windows.Open(View::CashFlow)); flows && flows->diagram()) {
        shoot(flows->diagram(), QStringLiteral("cash-flow-diagram"));
        close(flows);
    } else {
        std::fprintf(stderr, "brinto: the sample cash flows did not open their view\n");
        ++failures;
    }
    {
        InputMethodDialog dialog(&window);
        shoot(&dialog, QStringLiteral("input-method"));
    }
    const std::pair<const char*, std::function<QWidget*()>> rest[] = {
        {"enter-date", [&]() -> QWidget* { return windows.OpenEnterDate(); }},
        {"enter-time", [&]() -> QWidget* { return windows.OpenEnterTime(); }},
        {"about", [&]() -> QWidget* { return windows.OpenAbout(); }}};
    for (const auto& [name, open] : rest) {
        QWidget* shown = open();
        shoot(shown, QString::fromLatin1(name));
        close(shown);
    }
    QWidget* durations = windows.OpenDurations();
    shoot(durations, QStringLiteral("durations"));
    close(durations);
    dialogs::CustomizeColours* colours = windows.OpenColours();
    shoot(colours, QStringLiteral("customize-colors"));
    QWidget* chooser = colours->Choose(0);
    shoot(chooser, QStringLiteral("color-chooser"));
    close(chooser);
    close(colours);
    QWidget* help = windows.OpenHelp("Main_Contents");
    help->resize(640, 480);
    shoot(help, QStringLiteral("help"));
    close(help);
    failures += ShootMessages(directory, session);
    // The history tape of the sample keys, beside the calculator in a wide window.
    window.UseStore(&calculator.store);
    calculator.store.Save();
    window.resize(640, 480);
    window.ShowTape(true);
    shoot(&window, QStringLiteral("history"));
    return failures == 0 ? 0 : 1;
}

}  // namespace brinto
