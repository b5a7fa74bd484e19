#pragma once

namespace brinto {

// Shows the window in the user's language (LANGUAGE, LC_ALL, LC_MESSAGES, LANG, as Qt reads them):
// the calculator's own texts and those of Qt's buttons and dialogs. Nothing is read when English
// comes first, so the English window starts as fast as it did before it could be translated.
void InstallTranslations();

}  // namespace brinto
