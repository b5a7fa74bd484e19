#include "app/run_app.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTimer>
#include <csignal>
#include <cstdio>

#include "app/desktop_look.h"
#include "app/dialogs/ui_text.h"
#include "app/main_window.h"
#include "app/screenshots.h"
#include "app/translations.h"
#include "app/window_host.h"

namespace brinto {

namespace {

constexpr const char* kHelp =
    "Usage: brinto [OPTIONS]\n"
    "The Brinto calculator.\n\n"
    "  --db PATH     keep the calculator in the database file at PATH\n"
    "                (default: $XDG_DATA_HOME/brinto/brinto.db, shared with brinto-cli:\n"
    "                every key is kept at once, and what brinto-cli or another window\n"
    "                does shows within a second)\n"
    "  --memory      start from the defaults and save nothing\n"
    "  --keys TEXT   type TEXT on the keyboard once the window is up (for scripts)\n"
    "  --screenshot DIR\n"
    "                draw every window, off screen, to DIR/NAME.png on a calculator\n"
    "                in memory with sample values, and exit\n"
    "  -h, --help    show this help and exit\n"
    "  --version     show the version and exit\n";

// SIGTERM, SIGHUP, SIGINT and SIGQUIT only write a byte into this pipe; the event loop reads it,
// saves and ends the program.
int g_signalPipe[2] = {-1, -1};

// How often an idle window looks whether another program saved.
constexpr int kPickUpMilliseconds = 500;

void OnSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(g_signalPipe[1], &byte, 1);
}

void WatchSignals(QObject* parent, const std::function<void()>& stop) {
    // A write beyond the file-size limit fails like a full disk, and is said so, instead of
    // ending the program without a word.
    std::signal(SIGXFSZ, SIG_IGN);
    if (pipe2(g_signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(g_signalPipe[0], QSocketNotifier::Read, parent);
    QObject::connect(notifier, &QSocketNotifier::activated, parent, [stop] {
        char buffer[16];
        while (read(g_signalPipe[0], buffer, sizeof buffer) > 0) {
        }
        stop();
    });
    struct sigaction action {};
    action.sa_handler = OnSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGQUIT}) sigaction(signal, &action, nullptr);
}

// The last save before the program ends. After a failed one the user chooses between trying
// again and quitting without saving; false when the user would rather stay. Once this returns
// true nothing more is written, whatever windows go on closing.
bool SaveBeforeQuit(MainWindow& window, Calculator& calculator, WindowHost& host) {
    host.quitting = true;
    while (!calculator.Save(window.saveGeometry())) {
        QMessageBox box(QMessageBox::Warning, QStringLiteral("Brinto"),
                        Ui::tr("The calculator could not be saved."),
                        QMessageBox::Retry | QMessageBox::Discard | QMessageBox::Cancel, &window);
        box.setInformativeText(NoticeText(host.saveFailure) + QStringLiteral("\n\n") +
                               Ui::tr("Try again, or quit without saving what changed since the last save?"));
        box.button(QMessageBox::Discard)->setText(Ui::tr("Quit Without Saving"));
        box.setDefaultButton(QMessageBox::Retry);
        const int answer = box.exec();
        if (answer == QMessageBox::Cancel) {
            host.quitting = false;
            return false;
        }
        if (answer == QMessageBox::Discard) break;
    }
    calculator.store.Finish();
    return true;
}

// Each character as the hardware key that types it.
void TypeKeys(QWidget* window, const QString& text) {
    for (const QChar c : text) {
        const int key = c == QLatin1Char('\n') ? int(Qt::Key_Return) : int(c.toUpper().unicode());
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, c == QLatin1Char('\n') ? QString() : QString(c));
        QApplication::sendEvent(window, &press);
    }
}

}  // namespace

std::optional<AppOptions> ParseAppOptions(const std::vector<std::string>& args, std::string& message, int& exitCode) {
    AppOptions o;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--help" || a == "-h") {
            message = kHelp;
            exitCode = 0;
            return std::nullopt;
        } else if (a == "--version") {
            message = std::string("brinto ") + BRINTO_VERSION + "\n";
            exitCode = 0;
            return std::nullopt;
        } else if (a == "--memory") {
            o.memory = true;
        } else if (a == "--db" && hasValue) {
            o.db = args[++i];
        } else if (a == "--keys" && hasValue) {
            o.keys = args[++i];
        } else if (a == "--screenshot" && hasValue) {
            o.screenshots = args[++i];
        } else {
            message = (a == "--db" || a == "--keys" || a == "--screenshot") ? "brinto: " + a + " needs a value\n"
                                                     : "brinto: unknown option " + a + " (see --help)\n";
            exitCode = 2;
            return std::nullopt;
        }
    }
    return o;
}

int RunApp(int argc, char** argv) {
    std::string message;
    int exitCode = 0;
    const auto options = ParseAppOptions(std::vector<std::string>(argv + 1, argv + argc), message, exitCode);
    if (!options) {
        std::fputs(message.c_str(), exitCode == 0 ? stdout : stderr);
        return exitCode;
    }

    PrepareDesktopLook(options->screenshots ? LookFor::Screenshots : LookFor::Desktop);
    QApplication app(argc, argv);
    DesktopLookStarted();
    InstallTranslations();
    QApplication::setApplicationName(QStringLiteral("Brinto"));
    QApplication::setApplicationVersion(QStringLiteral(BRINTO_VERSION));
    // Names the installed desktop entry, so that docks and task switchers show its icon and name.
    QGuiApplication::setDesktopFileName(QStringLiteral(BRINTO_APP_ID));
    if (options->screenshots) return WriteScreenshots(QString::fromStdString(*options->screenshots));

    WindowHost host;
    host.askInputMethod = !options->memory;
    Calculator calculator(host);
    MainWindow window(calculator.session);
    host.window = &window;
    window.onSave = [&] { calculator.Save(window.saveGeometry()); };
    window.onActivate = [&] { calculator.store.Refresh(); };
    window.onQuit = [&] { return SaveBeforeQuit(window, calculator, host); };

    // A signal ends every event loop, also the first run's dialog, after a last save; a save that
    // fails then is said on standard error, as no box can wait for an answer.
    bool stopping = false;
    const auto stop = [&] {
        if (calculator.store.Finished()) return;
        host.quitting = true;
        if (!calculator.Save(window.saveGeometry())) std::fprintf(stderr, "brinto: %s\n", host.saveFailure.c_str());
        calculator.store.Finish();
    };
    WatchSignals(&window, [&] {
        stopping = true;
        stop();
        QCoreApplication::exit(0);  // every loop, also a dialog's that runs before the main one
    });
    const StartOutcome outcome = calculator.Start(*options);
    if (stopping) {
        stop();
        return 0;
    }
    // From now on every key is kept as it is made, on the calculator as other programs left it.
    calculator.store.KeepEachCommand();
    window.UseStore(&calculator.store);
    for (const std::string& notice : outcome.notices) {
        QMessageBox::information(&window, QStringLiteral("Brinto"), NoticeText(notice));
    }
    if (const QByteArray geometry = calculator.SavedGeometry(); !geometry.isEmpty()) window.restoreGeometry(geometry);
    window.ApplyTheme();
    window.show();
    if (outcome.openPreferences) window.OpenView(View::Preferences);
    // What brinto-cli or another window saved shows within a second, also while this window
    // is not the active one.
    QTimer pickUp;
    QObject::connect(&pickUp, &QTimer::timeout, &window, [&] {
        if (window.isVisible()) calculator.store.Refresh();
    });
    pickUp.start(kPickUpMilliseconds);

    if (!options->keys.empty()) {
        const QString keys = QString::fromStdString(options->keys);
        QTimer::singleShot(0, &window, [&window, keys] { TypeKeys(&window, keys); });
    }
    const int result = QApplication::exec();
    stop();  // nothing when the window's close or a signal has saved already
    return result;
}

}  // namespace brinto
