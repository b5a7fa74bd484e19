#include "app/dialogs/dialog_support.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QValidator>
#include <string>

#include "app/dialogs/ui_text.h"
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
    // F1 in the window does what its Help button does.
    auto* f1 = new QShortcut(QKeySequence(Qt::Key_F1), dialog);
    QObject::connect(f1, &QShortcut::activated, row, &QDialogButtonBox::helpRequested);
    return row;
}

QString DisplayNumber(const Engine& e, double value) {
    FormattedText formatted;
    if (FormatValue(e, value, ValueTag::None, false, formatted) != 0) return QStringLiteral("error");
    return ToQString(DisplayText(e, formatted.View(), ValueTag::None));
}

FieldReading ReadNumberField(const Engine& e, const QString& text, FieldKind kind) {
    const QByteArray utf8 = text.toUtf8();
    return ReadField(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())), SyntaxOf(e.prefs), kind);
}

namespace {

// Accepts only what the field stores; anything else is still being typed.
class NumberValidator : public QValidator {
public:
    NumberValidator(const Engine& e, FieldKind kind, QObject* parent) : QValidator(parent), m_engine(e), m_kind(kind) {}
    State validate(QString& text, int&) const override {
        return ReadNumberField(m_engine, text, m_kind).value ? Acceptable : Intermediate;
    }

private:
    const Engine& m_engine;
    FieldKind m_kind;
};

}  // namespace

QLabel* MakeProblemLine(QWidget* parent) {
    auto* line = new QLabel(parent);
    line->setObjectName(QStringLiteral("problem"));
    QFont bold = line->font();
    bold.setBold(true);
    line->setFont(bold);
    line->setWordWrap(true);
    line->hide();
    return line;
}

void WatchNumberField(QLineEdit* edit, const Engine& e, FieldKind kind, QLabel* problem) {
    edit->setValidator(new NumberValidator(e, kind, edit));
    const auto say = [edit, &e, kind, problem] {
        const FieldReading reading = ReadNumberField(e, edit->text(), kind);
        const QString text = reading.value ? QString() : MessageText(reading.problem);
        edit->setToolTip(text);
        if (!problem) return;
        problem->setText(text);
        problem->setVisible(!text.isEmpty());
    };
    QObject::connect(edit, &QLineEdit::textChanged, edit, say);
}

}  // namespace brinto::dialogs
