#pragma once
// What every secondary window shares: the help function, the button row with Help, and numbers
// written and read as the display writes them.
#include <QDialogButtonBox>
#include <QString>
#include <functional>
#include <optional>
#include <string_view>

#include "engine/engine.h"
#include "session/number_reader.h"

class QDialog;
class QLabel;
class QLineEdit;

namespace brinto::dialogs {

// Opens the user guide at an anchor ("tvm", "prefs", ...).
using HelpFunction = std::function<void(std::string_view anchor)>;

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The dialog's button row: `buttons` plus a Help button opening `anchor`, which F1 in the dialog
// presses too. OK accepts and Cancel rejects the dialog unless the caller connects them otherwise.
QDialogButtonBox* MakeButtonRow(QDialog* dialog, QDialogButtonBox::StandardButtons buttons,
                                std::string_view anchor, const HelpFunction& help);

// A number as the display shows it in the present number format (untagged).
QString DisplayNumber(const Engine& e, double value);
// A number typed into a field, read as the keypad and brinto-cli read numbers, in the radix of
// the "Comma Radix" preference in force.
FieldReading ReadNumberField(const Engine& e, const QString& text, FieldKind kind);

// The line under a window's fields that says why a field's text is refused; hidden while none is.
QLabel* MakeProblemLine(QWidget* parent);
// Makes `edit` a number field of `kind`: while its text is refused, Enter does not accept it (in
// a table the editor stays open) and `problem` says why.
void WatchNumberField(QLineEdit* edit, const Engine& e, FieldKind kind, QLabel* problem);

}  // namespace brinto::dialogs
