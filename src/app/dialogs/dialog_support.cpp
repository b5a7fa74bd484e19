#include "app/dialogs/dialog_support.h"

#include <QDialog>
#include <QPushButton>
#include <string>

#include "display/display_text.h"
#include "display/number_format.h"

namespace brinto::dialogs {

QDialogButtonBox* MakeButtonRow(QDialog* dialog, QDialogButtonBox::StandardButtons buttons,
                                std::string_view anchor, const HelpFunction& help) {
    auto* row = new QDialogButtonBox(buttons | QDialogButtonBox::Help, dialog);
    QObject::connect(row, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(row, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(row, &QDialogButtonBox::helpRequested, dialog,
                     [help, anchor = std::string(anchor)] {
                         if (help) help(anchor);
                     });
    return row;
}

QString DisplayNumber(const Engine& e, double value) {
    FormattedText formatted;
    if (FormatValue(e, value, ValueTag::None, false, formatted) != 0) return QStringLiteral("error");
    return ToQString(DisplayText(e, formatted.View(), ValueTag::None));
}

std::optional<double> ReadNumber(const Engine& e, const QString& text) {
    const QChar radix = e.prefs.CommaRadix() ? QLatin1Char(',') : QLatin1Char('.');
    const QChar grouping = e.prefs.CommaRadix() ? QLatin1Char('.') : QLatin1Char(',');
    QString plain = text.trimmed();
    plain.remove(grouping).remove(QLatin1Char(' '));
    plain.replace(radix, QLatin1Char('.'));
    if (plain.isEmpty()) return std::nullopt;
    bool ok = false;
    const double value = plain.toDouble(&ok);
    if (!ok) return std::nullopt;
    return value;
}

}  // namespace brinto::dialogs
