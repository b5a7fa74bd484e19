// The window in other languages: the German one as a German user starts it, and the texts that come
// from the session, which every translation must carry.
#include <gtest/gtest.h>

#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTranslator>
#include <algorithm>
#include <cctype>

#include "app/dialogs/ui_text.h"
#include "app/translations.h"
#include "app_fixture.h"
#include "engine/keyboards.h"
#include "ops/constants.h"
#include "session/key_legends.h"
#include "session/number_reader.h"
#include "session/session.h"

namespace brinto {
extern const char* const kNoticeSentences[];
extern const int kNoticeSentenceCount;
}  // namespace brinto

namespace brinto::test {
namespace {

// Runs in a process of its own under LANGUAGE=de (the app_german test); skipped under any other
// language, as translations are installed once per program.
TEST(German, TheWindowStartsInGermanUnderAGermanLocale) {
    if (!QLocale::system().uiLanguages().value(0).startsWith(QLatin1String("de"))) {
        GTEST_SKIP() << "run under LANGUAGE=de";
    }
    InstallTranslations();
    Desk desk;
    QStringList menus;
    for (const QAction* menu : desk.window.menuBar()->actions()) menus << menu->text();
    EXPECT_EQ(menus, QStringList({QStringLiteral("&Ansicht"), QStringLiteral("&Bearbeiten"),
                                  QStringLiteral("&Optionen")}));
    EXPECT_EQ(Menus(desk.window).value(1)->actions().value(0)->text(), QString::fromUtf8("&Rückgängig"));
    // A key's tooltip says what it does in German; its face stays the calculator's.
    EXPECT_EQ(KeyMeaningText("Square root"), QStringLiteral("Quadratwurzel"));
    EXPECT_EQ(MessageText(message::NothingToUndoCaption), QString::fromUtf8("Nichts rückgängig zu machen"));
    // Numbers and dates in the windows follow the locale too.
    EXPECT_EQ(QLocale::system().decimalPoint(), QStringLiteral(","));
    // A notice about the file: its sentences in German, within one another, the name and the
    // system's own words kept as they are.
    EXPECT_EQ(NoticeText("cannot open /a (b)/c.db: Permission denied; the calculator runs in memory and nothing "
                         "will be saved"),
              QString::fromUtf8("/a (b)/c.db kann nicht geöffnet werden: Permission denied; der Rechner läuft im "
                                "Speicher, nichts wird gespeichert"));
    EXPECT_EQ(NoticeText("no notice"), QStringLiteral("no notice"));
}

// Every text the window takes from the session and the engine has its translation in each language:
// key meanings and the keyboard keys named beside them, the messages, why a number field refuses a
// text, the constants and the keyboard names.
TEST(Translations, EachLanguageCarriesEveryTextFromTheSession) {
    const auto wordy = [](std::string_view text) {  // "0", "+", "A" name themselves in every language
        return std::count_if(text.begin(), text.end(),
                             [](char c) { return std::isalpha(static_cast<unsigned char>(c)); }) >= 2;
    };
    for (const char* language : {"de", "fr", "es", "it", "pt"}) {
        SCOPED_TRACE(language);
        QTranslator translation;
        ASSERT_TRUE(translation.load(QStringLiteral(":/i18n/brinto_%1.qm").arg(QLatin1String(language))));
        const auto translated = [&](const char* context, std::string_view english) {
            return !translation.translate(context, std::string(english).c_str()).isEmpty();
        };
        for (const KeyLegend& legend : AllLegends()) {
            EXPECT_TRUE(translated("KeyMeaning", legend.fullName)) << legend.fullName;
            if (wordy(legend.hardwareKey)) {
                EXPECT_TRUE(translated("KeyMeaning", legend.hardwareKey)) << legend.hardwareKey;
            }
        }
        for (const std::string_view text :
             {message::NoFunctionCaption, message::NoFunctionText, message::ClearAllCaption,
              message::ClearAllText, message::NothingToUndoCaption, message::NothingToUndoText,
              message::NothingToRedoCaption, message::NothingToRedoText, message::NoMacroCaption,
              message::NoMacroText, message::MacroFullCaption, message::MacroFullText}) {
            EXPECT_TRUE(translated("Message", text)) << text;
        }
        // Why a number field refuses what was typed.
        const std::pair<const char*, FieldKind> refused[] = {{"abc", FieldKind::Value},
                                                             {"1e999", FieldKind::Value},
                                                             {"0", FieldKind::Positive},
                                                             {"0", FieldKind::Payment},
                                                             {"0", FieldKind::GroupCount}};
        for (const auto& [text, kind] : refused) {
            const FieldReading reading = ReadField(text, NumberSyntax{}, kind);
            ASSERT_FALSE(reading.value) << text;
            EXPECT_TRUE(translated("Message", reading.problem)) << reading.problem;
        }
        for (int i = 0; i < kConstantCount; ++i) {
            EXPECT_TRUE(translated("Constant", ConstantName(i))) << ConstantName(i);
        }
        for (std::string_view keyboard : kKeyboardNames) EXPECT_TRUE(translated("Ui", keyboard)) << keyboard;
        for (int i = 0; i < kNoticeSentenceCount; ++i) {
            EXPECT_TRUE(translated("Notice", kNoticeSentences[i])) << kNoticeSentences[i];
        }
        EXPECT_TRUE(translated("Ui", "&View"));
    }
}

// In every language each menu's entries, and the menu titles, each underline a letter, a different
// one, so Alt and a letter reach one entry.
TEST(Translations, EachMenuUnderlinesEachLetterOnce) {
    for (const char* language : {"en", "de", "fr", "es", "it", "pt"}) {
        SCOPED_TRACE(language);
        QTranslator translation;
        const bool english = QLatin1String(language) == QLatin1String("en");
        if (!english) {
            ASSERT_TRUE(translation.load(QStringLiteral(":/i18n/brinto_%1.qm").arg(QLatin1String(language))));
            QCoreApplication::installTranslator(&translation);
        }
        {
            Desk desk;
            const auto underlined = [](const QList<QAction*>& actions) {
                QStringList letters;
                for (const QAction* action : actions) {
                    const QString text = action->text();
                    const qsizetype at = text.indexOf(QLatin1Char('&'));
                    if (!action->isSeparator() && at >= 0) letters << text.mid(at + 1, 1).toLower();
                }
                return letters;
            };
            QList<QList<QAction*>> menus = {desk.window.menuBar()->actions()};
            for (QMenu* menu : Menus(desk.window)) menus << menu->actions();
            for (const QList<QAction*>& actions : menus) {
                const QStringList letters = underlined(actions);
                const auto entries = std::count_if(actions.begin(), actions.end(), [](QAction* a) { return !a->isSeparator(); });
                EXPECT_EQ(letters.size(), entries) << letters.join(u' ').toStdString();
                EXPECT_EQ(letters.size(), QSet<QString>(letters.begin(), letters.end()).size())
                    << letters.join(u' ').toStdString();
            }
        }
        if (!english) QCoreApplication::removeTranslator(&translation);
    }
}

}  // namespace
}  // namespace brinto::test
