#include "app/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace brinto {

void InstallTranslations() {
    const QLocale locale = QLocale::system();
    const QStringList languages = locale.uiLanguages();
    if (languages.isEmpty() || languages.first() == QLatin1String("C") ||
        languages.first().startsWith(QLatin1String("en"))) {
        return;
    }
    // Built into the program, so an uninstalled build is translated too.
    auto* own = new QTranslator(QCoreApplication::instance());
    if (own->load(locale, QStringLiteral("brinto"), QStringLiteral("_"), QStringLiteral(":/i18n"))) {
        QCoreApplication::installTranslator(own);
    } else {
        delete own;
        return;  // a language Brinto does not speak: all in English, also Qt's buttons
    }
    // OK, Cancel and the other texts of Qt's own buttons and dialogs, where the system has them.
    auto* qt = new QTranslator(QCoreApplication::instance());
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt);
    } else {
        delete qt;
    }
}

}  // namespace brinto
