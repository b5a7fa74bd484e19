// Every number field of every window reads text the same way: one table of inputs, typed into
// each field as a user types them (editor, text, Return), with the value stored or the refusal
// shown and the field still in edit.
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <cmath>
#include <functional>
#include <limits>

#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/register_view.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "engine/function_ids.h"
#include "engine/register_bank.h"

namespace brinto::test {
namespace {

constexpr double kRefused = std::numeric_limits<double>::quiet_NaN();

struct Input {
    const char* text;
    bool commaRadix;
    double value;  // kRefused: not a number at all
};

// The same text means one number, or none, in every field.
const Input kInputs[] = {
    {"6.5", false, 6.5},
    {"6,5", false, kRefused},  // not 65
    {"6,5", true, 6.5},
    {"6.5", true, kRefused},  // not 65
    {"1,000.50", false, 1000.5},
    {"1.000,50", false, kRefused},  // not 1.0005
    {"1.000,50", true, 1000.5},
    {"12,345,678", false, 12345678},
    {"1,2,3", false, kRefused},  // not 123
    {"1,2345", false, kRefused},
    {"1,22,333", false, kRefused},
    {"12", false, 12},
    {" 24 ", false, 24},
    {"32768", false, 32768},
    {"2.5", false, 2.5},
    {"0", false, 0},
    {"-3", false, -3},
    {"-2.5e3", false, -2500},
    {"1E-2", false, 0.01},
    {"abc", false, kRefused},
    {"nan", false, kRefused},
    {"inf", false, kRefused},
    {"", false, kRefused},
    {"1e300", false, 1e300},
    {"1e400", false, kRefused},   // beyond a double
    {"1e-400", false, kRefused},  // would be stored as 0
    {"--5", false, kRefused},
    {"1e", false, kRefused},
    {"0x10", false, kRefused},
};

// What a field of each kind takes of a number.
bool Takes(FieldKind kind, double v) {
    if (std::isnan(v)) return false;
    const bool whole = std::trunc(v) == v;
    switch (kind) {
        case FieldKind::Value: return true;
        case FieldKind::Positive: return v > 0;
        case FieldKind::Payment: return whole && v >= 1 && v <= 32767;
        case FieldKind::GroupCount: return whole && v >= 1 && v <= 2147483647.0;  // a 32-bit count
    }
    return false;
}

// A number field of a register view: its place, its kind and where its value is stored.
struct TableField {
    const char* name;
    dialogs::View view;
    int row, column;
    FieldKind kind;
    std::function<double(const Engine&)> stored;
};

std::function<double(const Engine&)> Register(int n) {
    return [n](const Engine& e) { return e.registers.values[n]; };
}

}  // namespace

class NumberFieldTests : public QObject {
    Q_OBJECT
private slots:
    void EveryTableFieldReadsTheSameTable() {
        Place place;
        Run run(place);
        run.Type("100");
        run.session.Tap(fid::CashFlow);
        run.Type("200");
        run.session.Tap(fid::CashFlow);
        const TableField fields[] = {
            {"TVM P/YR", dialogs::View::Tvm, 0, 1, FieldKind::Value, Register(reg::PYr)},
            {"TVM N", dialogs::View::Tvm, 1, 1, FieldKind::Value, Register(reg::N)},
            {"TVM I/YR", dialogs::View::Tvm, 2, 1, FieldKind::Value, Register(reg::IYr)},
            {"TVM PV", dialogs::View::Tvm, 3, 1, FieldKind::Value, Register(reg::PV)},
            {"TVM PMT", dialogs::View::Tvm, 4, 1, FieldKind::Value, Register(reg::PMT)},
            {"TVM FV", dialogs::View::Tvm, 5, 1, FieldKind::Value, Register(reg::FV)},
            {"Amortization PV", dialogs::View::Amortization, 3, 1, FieldKind::Value, Register(reg::PV)},
            {"Amortization Start", dialogs::View::Amortization, 5, 1, FieldKind::Payment,
             [](const Engine& e) { return double(e.state.amortStart); }},
            {"Amortization End", dialogs::View::Amortization, 6, 1, FieldKind::Payment,
             [](const Engine& e) { return double(e.state.amortEnd); }},
            {"Statistical n", dialogs::View::Statistical, 0, 1, FieldKind::Value, Register(reg::StatN)},
            {"Statistical sum xy", dialogs::View::Statistical, 5, 1, FieldKind::Value, Register(reg::SumXY)},
            {"Cash flow CF0", dialogs::View::CashFlow, 0, 1, FieldKind::Value, Register(0)},
            {"Cash flow Nj of CF1", dialogs::View::CashFlow, 1, 2, FieldKind::GroupCount,
             [](const Engine& e) { return double(e.registers.aux[1]); }},
            {"User register R0", dialogs::View::UserRegisters, 0, 1, FieldKind::Value, Register(0)},
            {"User register R99", dialogs::View::UserRegisters, 99, 1, FieldKind::Value, Register(99)},
        };
        for (const TableField& field : fields) {
            for (const Input& input : kInputs) {
                const QString where = QStringLiteral("%1 <- \"%2\"%3")
                                          .arg(QString::fromUtf8(field.name), QString::fromUtf8(input.text),
                                               input.commaRadix ? QStringLiteral(" (Comma Radix)") : QString());
                run.engine.prefs.SetCommaRadix(input.commaRadix);
                auto* view = qobject_cast<dialogs::RegisterView*>(run.dialogs.Open(field.view));
                QVERIFY2(view, qPrintable(where));
                QTableWidget* table = view->table();
                table->editItem(table->item(field.row, field.column));
                auto* edit = qobject_cast<QLineEdit*>(table->indexWidget(table->model()->index(field.row, field.column)));
                QVERIFY2(edit, qPrintable(where));
                const double before = field.stored(run.engine);
                edit->setText(QString::fromUtf8(input.text));
                QTest::keyClick(edit, Qt::Key_Return);
                QCoreApplication::processEvents();  // the view commits an accepted editor after the key
                const bool open = table->indexWidget(table->model()->index(field.row, field.column)) != nullptr;
                if (Takes(field.kind, input.value)) {
                    QVERIFY2(!open && !view->problem()->isVisibleTo(view), qPrintable(where));
                    QVERIFY2(field.stored(run.engine) == input.value, qPrintable(where));
                } else {
                    // Refused: still in edit, with the reason under the table, and nothing stored.
                    QVERIFY2(open && view->problem()->isVisibleTo(view), qPrintable(where));
                    QVERIFY2(!view->problem()->text().isEmpty(), qPrintable(where));
                    QVERIFY2(field.stored(run.engine) == before || std::isnan(before), qPrintable(where));
                    if (&input == &kInputs[0] + 1) {
                        // Closing the view gives the refused edit up; reopened, it shows the register.
                        view->close();
                        QCoreApplication::processEvents();
                        run.dialogs.Open(field.view);
                        QVERIFY2(!table->indexWidget(table->model()->index(field.row, field.column)), qPrintable(where));
                        QVERIFY2(!view->problem()->isVisibleTo(view), qPrintable(where));
                    } else {
                        QTest::keyClick(edit, Qt::Key_Escape);
                        QCoreApplication::processEvents();
                    }
                }
                view->close();
            }
        }
    }

    // The five duration settings take positive numbers; a refused one keeps the dialog open on
    // it and stores none of the five.
    void DurationFieldsReadTheSameTable() {
        Place place;
        Run run(place);
        for (int i = 0; i < 5; ++i) {
            for (const Input& input : kInputs) {
                const QString where = QStringLiteral("duration %1 <- \"%2\"").arg(i).arg(QString::fromUtf8(input.text));
                run.engine.prefs.SetCommaRadix(input.commaRadix);
                dialogs::DurationsDialog* d = run.dialogs.OpenDurations();
                const int number = reg::DaysPerYear + i;
                const double before = run.engine.DurationSetting(number);
                d->field(i)->setText(QString::fromUtf8(input.text));
                Click(Button(d, QDialogButtonBox::Ok));
                auto* problem = d->findChild<QLabel*>(QStringLiteral("problem"));
                if (Takes(FieldKind::Positive, input.value)) {
                    QVERIFY2(!d->isVisible(), qPrintable(where));
                    QVERIFY2(run.engine.DurationSetting(number) == input.value, qPrintable(where));
                } else {
                    QVERIFY2(d->isVisible() && problem->isVisibleTo(d), qPrintable(where));
                    QVERIFY2(run.engine.DurationSetting(number) == before, qPrintable(where));
                    Click(Button(d, QDialogButtonBox::Cancel));
                }
            }
        }
    }
};

static RegisterTests<NumberFieldTests> numberFields;

}  // namespace brinto::test

#include "number_fields_test.moc"
