#pragma once
// What every secondary window shares: the help function, the button row with Help, and numbers
// written and read as the display writes them.
#include <QDialogButtonBox>
#include <QString>
#include <functional>
#include <optional>
#include <string_view>

#include "engine/engine.h"

class QDialog;

namespace brinto::dialogs {

// Opens the user guide at an anchor ("tvm", "prefs", ...).
using HelpFunction = std::function<void(std::string_view anchor)>;

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The dialog's button row: `buttons` plus a Help button opening `anchor`. OK accepts and Cancel
// rejects the dialog unless the caller connects them otherwise.
QDialogButtonBox* MakeButtonRow(QDialog* dialog, QDialogButtonBox::StandardButtons buttons,
                                std::string_view anchor, const HelpFunction& help);

// A number as the display shows it in the present number format (untagged).
QString DisplayNumber(const Engine& e, double value);
// A number typed into a row: the user's radix character, digit grouping ignored. Nothing when the
// text is not a number.
std::optional<double> ReadNumber(const Engine& e, const QString& text);

}  // namespace brinto::dialogs
