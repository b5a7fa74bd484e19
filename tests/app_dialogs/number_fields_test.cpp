// Every kind of number field in each window, typed into as a user types (editor, text, Return):
// the value stored, or the refusal shown under it and the field still in edit.
#include <QLabel>
#include <QLineEdit>
#include <cmath>
#include <functional>
#include <limits>

#include "app/dialogs/date_time_dialogs.h"
#include "app/dialogs/register_view.h"
#include "app_dialogs/dialog_test_support.h"

namespace brinto::test {
namespace {

constexpr double kRefused = std::numeric_limits<double>::quiet_NaN();

struct Input {
    const char* text;
    bool commaRadix;
    double value;  // kRefused: not a number at all
};

// What each kind of field makes of a text is the number reader's; these show that every field
// passes it the calculator's radix and its own kind, and shows what it says.
const Input kInputs[] = {
    {"6.5", false, 6.5},
    {"abc", false, kRefused},
    {"6,5", true, 6.5},
    {"0", false, 0},          // not a payment nor a count
    {"2.5", false, 2.5},      // not a whole payment nor count
    {"32768", false, 32768},  // a count, not a payment
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
    View view;
    int row, column;
    FieldKind kind;
    std::function<double(const Engine&)> stored;
};

std::function<double(const Engine&)> Register(int n) {
    return [n](const Engine& e) { return e.registers.values[n]; };
}

TEST(NumberFields, EveryKindOfTableFieldReadsTheSameTable) {
    Rig run;
    run.Type("100");
    run.session.Tap(fid::CashFlow);
    run.Type("200");
    run.session.Tap(fid::CashFlow);
    const TableField fields[] = {
        {"TVM PV", View::Tvm, 3, 1, FieldKind::Value, Register(reg::PV)},
        {"Amortization Start", View::Amortization, 5, 1, FieldKind::Payment,
         [](const Engine& e) { return double(e.state.amortStart); }},
        {"Statistical sum xy", View::Statistical, 5, 1, FieldKind::Value, Register(reg::SumXY)},
        {"Cash flow CF0", View::CashFlow, 0, 1, FieldKind::Value, Register(0)},
        {"Cash flow Nj of CF1", View::CashFlow, 1, 2, FieldKind::GroupCount,
         [](const Engine& e) { return double(e.registers.aux[1]); }},
        {"User register R99", View::UserRegisters, 99, 1, FieldKind::Value, Register(99)},
    };
    for (const TableField& field : fields) {
        for (const Input& input : kInputs) {
            SCOPED_TRACE(std::string(field.name) + " <- \"" + input.text + (input.commaRadix ? "\" (Comma Radix)" : "\""));
            run.engine.prefs.SetCommaRadix(input.commaRadix);
            auto* view = qobject_cast<dialogs::RegisterView*>(run.dialogs.Open(field.view));
            ASSERT_NE(view, nullptr);
            QTableWidget* table = view->table();
            const QModelIndex index = table->model()->index(field.row, field.column);
            table->editItem(table->item(field.row, field.column));
            auto* edit = qobject_cast<QLineEdit*>(table->indexWidget(index));
            ASSERT_NE(edit, nullptr);
            const double before = field.stored(run.engine);
            edit->setText(QString::fromUtf8(input.text));
            QTest::keyClick(edit, Qt::Key_Return);
            QCoreApplication::processEvents();  // the view commits an accepted editor after the key
            const bool open = table->indexWidget(index) != nullptr;
            if (Takes(field.kind, input.value)) {
                EXPECT_FALSE(open || view->problem()->isVisibleTo(view));
                EXPECT_EQ(field.stored(run.engine), input.value);
            } else {
                // Refused: still in edit, with the reason under the table, and nothing stored.
                EXPECT_TRUE(open && view->problem()->isVisibleTo(view));
                EXPECT_FALSE(view->problem()->text().isEmpty());
                EXPECT_TRUE(field.stored(run.engine) == before || std::isnan(before));
                if (&input == &kInputs[1]) {
                    // Closing the view gives the refused edit up; reopened, it shows the register.
                    view->close();
                    QCoreApplication::processEvents();
                    run.dialogs.Open(field.view);
                    EXPECT_EQ(table->indexWidget(index), nullptr);
                    EXPECT_FALSE(view->problem()->isVisibleTo(view));
                } else {
                    QTest::keyClick(edit, Qt::Key_Escape);
                    QCoreApplication::processEvents();
                }
            }
            view->close();
        }
    }
}

// The duration settings show their defaults while unset and take positive numbers; a refused one
// keeps the dialog open on it and stores none. "Default" brings the defaults back, and OK is one
// undoable step.
TEST(NumberFields, DurationSettingsTakePositiveNumbers) {
    Rig run;
    dialogs::DurationsDialog* d = run.dialogs.OpenDurations();
    EXPECT_EQ(d->field(0)->text(), QStringLiteral("365.25"));
    const double unset = run.engine.DurationSetting(reg::DaysPerYear + 4);
    for (const char* text : {"0", "-3", "abc", "360"}) {
        SCOPED_TRACE(text);
        d = run.dialogs.OpenDurations();
        d->field(0)->setText(QString::fromUtf8(text));
        d->field(4)->setText(QStringLiteral("2"));
        Click(Button(d, QDialogButtonBox::Ok));
        const bool taken = std::string_view(text) == "360";
        EXPECT_EQ(d->isVisible(), !taken);
        EXPECT_EQ(d->findChild<QLabel*>(QStringLiteral("problem"))->isVisibleTo(d), !taken);
        EXPECT_EQ(run.engine.DurationSetting(reg::DaysPerYear + 4), taken ? 2.0 : unset);
        if (!taken) Click(Button(d, QDialogButtonBox::Cancel));
    }
    d = run.dialogs.OpenDurations();
    EXPECT_EQ(d->field(0)->text(), QStringLiteral("360."));  // as the display writes it
    Click(ButtonCalled(d, QStringLiteral("Default")));
    EXPECT_EQ(d->field(0)->text(), QStringLiteral("365.25"));
    Click(Button(d, QDialogButtonBox::Cancel));
    run.session.Undo();
    EXPECT_EQ(run.engine.DurationSetting(reg::DaysPerYear), 365.25);
    EXPECT_EQ(run.engine.DurationSetting(reg::DaysPerYear + 4), unset);
    // Untouched under a display that rounds them, the settings keep their exact values, and OK is
    // no step: the undone one can still be redone.
    run.engine.prefs.SetFormat(NumberFormat::Fixed);
    run.engine.prefs.SetDigitField(2);
    d = run.dialogs.OpenDurations();
    EXPECT_EQ(d->field(0)->text(), QStringLiteral("365.3"));
    Click(Button(d, QDialogButtonBox::Ok));
    EXPECT_EQ(run.engine.DurationSetting(reg::DaysPerYear), 365.25);
    EXPECT_TRUE(run.engine.history.CanRedo());
}

}  // namespace
}  // namespace brinto::test
