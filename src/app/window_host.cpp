#include "app/window_host.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QLocale>
#include <QMessageBox>

#include "app/dialogs/ui_text.h"
#include "app/input_method_dialog.h"
#include "app/main_window.h"
#include "session/session.h"

namespace brinto {

namespace {

QString Text(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// Every message of the calculator informs, except the two that warn before something is lost.
QMessageBox::Icon IconFor(std::string_view caption) {
    if (caption == message::ClearAllCaption || caption == message::MacroFullCaption) return QMessageBox::Warning;
    return QMessageBox::Information;
}

}  // namespace

void WindowHost::ShowMessage(std::string_view caption, std::string_view text) {
    QMessageBox box(IconFor(caption), MessageText(caption), MessageText(text), QMessageBox::Ok, window);
    box.exec();
}

bool WindowHost::Confirm(std::string_view caption, std::string_view text) {
    QMessageBox box(IconFor(caption), MessageText(caption), MessageText(text),
                    QMessageBox::Ok | QMessageBox::Cancel, window);
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Ok;
}

void WindowHost::PutOnClipboard(std::string_view text) { QGuiApplication::clipboard()->setText(Text(text)); }

std::optional<std::string> WindowHost::ClipboardText() {
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty()) return std::nullopt;
    return text.toStdString();
}

void WindowHost::Beep() const { QApplication::beep(); }

InputMethodChoice WindowHost::AskInputMethod() {
    if (!askInputMethod) return {};
    InputMethodDialog dialog(window);
    dialog.exec();  // closing the window counts as OK
    return {dialog.Chosen(), dialog.PreferencesAfterwards()};
}

void WindowHost::ReportTrouble(std::string_view text) {
    QMessageBox::warning(window, QStringLiteral("Brinto"), NoticeText(text));
}

void WindowHost::ReportSaveFailure(std::string_view text) {
    const bool first = saveFailure.empty();
    saveFailure = std::string(text);
    if (!window) return;
    window->ShowSaveFailure(NoticeText(text));
    if (first && !quitting) QMessageBox::warning(window, QStringLiteral("Brinto"), NoticeText(text));
}

void WindowHost::SaveRecovered() {
    saveFailure.clear();
    if (window) window->ShowSaveFailure({});
}

void WindowHost::PickedUp(bool preferences) {
    if (window) window->PickedUp(preferences);
}

void WindowHost::TapeChanged() {
    if (window) window->TapeChanged();
}

void WindowHost::Repaint() {
    if (window) window->Refresh();
}

void WindowHost::OpenView(View view) {
    if (window) window->OpenView(view);
}

DateFields WindowHost::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate d = now.date();
    const QTime t = now.time();
    return {d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second(), d.dayOfWeek() % 7};
}

std::string WindowHost::DateText(const DateFields& date, bool longForm) const {
    const QDate d(date.year, date.month, date.day);
    return QLocale::system().toString(d, longForm ? QLocale::LongFormat : QLocale::ShortFormat).toStdString();
}

std::string WindowHost::TimeText(const DateFields& time) const {
    return QLocale::system().toString(QTime(time.hour, time.minute), QLocale::ShortFormat).toStdString();
}

}  // namespace brinto
