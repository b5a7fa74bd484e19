#pragma once

#include <QCoreApplication>
#include <string>
#include <string_view>

namespace brinto {

// Every text of the desktop program is looked up under this one context, `Ui::tr("&View")`, so a
// text used in several windows ("&Copy", "Default") is translated once. Tables of texts mark theirs
// with QT_TRANSLATE_NOOP("Ui", ...) and look them up where they are shown.
struct Ui {
    Q_DECLARE_TR_FUNCTIONS(Ui)
};

// The key meanings and the calculator's messages come from the session, which knows no Qt: they are
// looked up by their English text under these contexts where the window shows them.
// The list of them that the translation tools read is src/app/dialogs/session_texts.cpp.
inline QString KeyMeaningText(std::string_view english) {
    return QCoreApplication::translate("KeyMeaning", std::string(english).c_str());
}
inline QString MessageText(std::string_view english) {
    return QCoreApplication::translate("Message", std::string(english).c_str());
}
// The physical constants' names, and the built-in themes' names (a theme of the user's own keeps
// the name it was given).
inline QString ConstantText(std::string_view english) {
    return QCoreApplication::translate("Constant", std::string(english).c_str());
}
inline QString ThemeText(std::string_view english) {
    return QCoreApplication::translate("Theme", std::string(english).c_str());
}

// A notice of the store or the session (a file that cannot be used, a save that failed) in the
// user's language: its sentence is found by its English words, and what fills it (a file's name,
// the system's own words for an error) is kept, itself translated where it is such a notice.
QString NoticeText(std::string_view english);

}  // namespace brinto
