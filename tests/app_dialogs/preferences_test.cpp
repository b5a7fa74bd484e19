// The "Preferences" sheet, the "Customize Keyboard" dialog and "Customize Colors" with its
// "Color Chooser".
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>

#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/keyboard_dialog.h"
#include "app/dialogs/preferences_dialog.h"
#include "app_dialogs/dialog_test_support.h"
#include "engine/keyboards.h"

namespace brinto::test {
namespace {

QComboBox* List(QWidget* sheet, const char* caption) { return sheet->findChild<QComboBox*>(QString::fromUtf8(caption)); }
QAbstractButton* Check(QWidget* sheet, const char* text) { return ButtonCalled(sheet, QString::fromUtf8(text)); }

// Every page's choices reach their stored codings and the input method goes through the
// dispatcher; Cancel sends nothing and the sheet, made once, shows the record again; OK with
// nothing changed still sends the method key.
TEST(Preferences, OkStoresEveryPageCancelNothing) {
    Rig run;
    Preferences before = run.engine.prefs;
    ASSERT_EQ(before.Theme(), u16{0});
    QWidget* sheet = run.dialogs.Open(View::Preferences);
    List(sheet, "Input:")->setCurrentIndex(1);
    Click(Button(sheet, QDialogButtonBox::Cancel));
    EXPECT_EQ(run.engine.prefs.words, before.words);
    EXPECT_NE(run.engine.state.lastKey, fid::MethodPrecedence);
    ASSERT_EQ(run.dialogs.Open(View::Preferences), sheet);
    EXPECT_EQ(List(sheet, "Input:")->currentIndex(), 0);
    Click(Button(sheet, QDialogButtonBox::Ok));
    EXPECT_EQ(run.engine.state.lastKey, fid::MethodSimple);
    before.SetTheme(1);  // theme 0 shows "Default Color" and is written back as its identifier
    EXPECT_EQ(run.engine.prefs.words, before.words);

    run.dialogs.Open(View::Preferences);
    List(sheet, "Format:")->setCurrentIndex(1);  // "Fixed"
    List(sheet, "digits")->setCurrentIndex(3);   // 2 digits
    List(sheet, "Input:")->setCurrentIndex(2);   // "RPN"
    List(sheet, "depth")->setCurrentIndex(4);    // "20"
    List(sheet, "Shift:")->setCurrentIndex(1);   // "Sticky"
    Check(sheet, "Comma Radix")->click();
    Check(sheet, "100 Registers")->click();
    List(sheet, "Theme:")->setCurrentIndex(7);   // "Dark Background"
    List(sheet, "Shadow:")->setCurrentIndex(4);  // "Heavy"
    Click(Button(sheet, QDialogButtonBox::Ok));
    EXPECT_FALSE(sheet->isVisible());
    const Preferences& p = run.engine.prefs;
    EXPECT_EQ(p.Format(), NumberFormat::Fixed);
    EXPECT_EQ(p.DigitField(), 3);
    EXPECT_EQ(p.StackDepth(), 20);
    EXPECT_EQ(p.Shift(), ShiftMode::Sticky);
    EXPECT_TRUE(p.CommaRadix() && !p.HundredRegisters());
    EXPECT_EQ(p.Theme(), u16{8});
    EXPECT_EQ(p.KeyShadow(), 4);
    EXPECT_TRUE(run.engine.IsRpn());
    EXPECT_EQ(run.engine.state.lastKey, fid::MethodRpn);
}

// Each tap area keeps its own target while the radio buttons switch; a stored code 1 shows the
// first entry and is written back as 0.
TEST(Preferences, TapTargetsFollowTheRadioButtons) {
    Rig run;
    run.engine.prefs.words[4] = static_cast<u16>((1 << 1) | (3 << 6) | (9 << 11));  // Left 1, Center Stack, Right Statistical
    QWidget* sheet = run.dialogs.Open(View::Preferences);
    QComboBox* target = List(sheet, "Tap:");
    EXPECT_EQ(target->currentText(), QStringLiteral("Preferences"));
    Click(Check(sheet, "Center"));
    EXPECT_EQ(target->currentText(), QStringLiteral("Stack"));
    target->setCurrentIndex(5);  // "TVM"
    Click(Check(sheet, "Right"));
    EXPECT_EQ(target->currentText(), QStringLiteral("Statistical"));
    Click(Check(sheet, "Center"));
    EXPECT_EQ(target->currentText(), QStringLiteral("TVM"));
    Click(Button(sheet, QDialogButtonBox::Ok));
    const Preferences& p = run.engine.prefs;
    EXPECT_EQ(p.words[4] & 0x3E, 0);  // code 1 written back as 0
    EXPECT_EQ(p.Tap(TapArea::Center), TapTarget::Tvm);
    EXPECT_EQ(p.Tap(TapArea::Right), TapTarget::Statistical);
}

// "Default" resets only its own page's controls, never the record until OK.
TEST(Preferences, DefaultResetsOnlyItsPage) {
    Rig run;
    run.engine.prefs.SetFormat(NumberFormat::Scientific);
    run.engine.prefs.SetHundredRegisters(false);
    run.engine.prefs.SetKeySize(3);
    run.engine.prefs.SetTheme(5);
    QWidget* sheet = run.dialogs.Open(View::Preferences);
    auto* pages = sheet->findChild<QTabWidget*>();
    ASSERT_EQ(pages->count(), 3);
    Click(ButtonCalled(pages->widget(0), QStringLiteral("Default")));
    EXPECT_EQ(List(sheet, "Format:")->currentText(), QStringLiteral("Standard"));
    EXPECT_TRUE(Check(sheet, "100 Registers")->isChecked());
    EXPECT_EQ(List(sheet, "Size:")->currentIndex(), 3);  // another page: untouched
    EXPECT_EQ(List(sheet, "Theme:")->currentText(), QStringLiteral("Original Grayscale"));
    EXPECT_EQ(run.engine.prefs.Format(), NumberFormat::Scientific);  // the record: untouched
    Click(ButtonCalled(pages->widget(1), QStringLiteral("Default")));
    EXPECT_EQ(List(sheet, "Theme:")->currentText(), QStringLiteral("Default Color"));
    Click(ButtonCalled(pages->widget(2), QStringLiteral("Default")));
    EXPECT_EQ(List(sheet, "Size:")->currentIndex(), 0);
}

QPushButton* UserKey(QWidget* d, int k) { return d->findChildren<QPushButton*>()[k]; }
QPushButton* AvailableKey(QWidget* d, int k) { return d->findChildren<QPushButton*>()[kBlockKeys + k]; }

// A User key selected above takes the function of a key tapped below, in the half on show; OK
// writes back only that; "Clear" empties the half on show. Cancel writes nothing back, but the
// keyboard below and both "Shifted" boxes are kept, and the keys are taken afresh.
TEST(CustomizeKeyboard, AssignCopyClearOkAndCancel) {
    Rig run;
    QWidget* d = run.dialogs.Open(View::Keyboard);
    auto* keyboards = d->findChild<QListWidget*>();
    ASSERT_EQ(keyboards->count(), 8);
    EXPECT_EQ(keyboards->item(7)->text(), QStringLiteral("Date & Time"));
    Click(AvailableKey(d, 0));  // no User key selected: nothing happens
    EXPECT_EQ(UserKey(d, 0)->text(), QString());
    keyboards->setCurrentRow(1);  // "Financial"
    Click(UserKey(d, 2));
    Click(AvailableKey(d, 0));  // N
    EXPECT_EQ(UserKey(d, 2)->text(), AvailableKey(d, 0)->text());
    QList<QCheckBox*> boxes = d->findChildren<QCheckBox*>();  // Integer, Shifted, Shifted
    boxes[1]->setChecked(true);
    Click(ButtonCalled(d, QStringLiteral("Copy")));
    Click(Button(d, QDialogButtonBox::Ok));
    const UserKeyMap& keys = run.session.userKeys();
    EXPECT_EQ(keys.keys[2], fid::N);
    const KeyBlock financial = KeyLayout(1, 0, keys);
    for (int k = 0; k < kBlockKeys; ++k) EXPECT_EQ(keys.keys[kBlockKeys + k], financial[k]) << k;
    EXPECT_TRUE(run.engine.dirty.userKeys);
    EXPECT_FALSE(run.engine.dirty.preferences);  // "Integer" unchanged: preferences untouched

    run.dialogs.Open(View::Keyboard);
    boxes[1]->setChecked(false);
    Click(ButtonCalled(d, QStringLiteral("Clear")));  // the unshifted half
    boxes[0]->setChecked(true);
    Click(Button(d, QDialogButtonBox::Ok));
    EXPECT_EQ(keys.keys[2], kNoKey);
    EXPECT_EQ(keys.keys[kBlockKeys], financial[0]);
    EXPECT_TRUE(run.engine.prefs.IntegerUserKeys());

    ASSERT_EQ(run.dialogs.Open(View::Keyboard), d);
    keyboards->setCurrentRow(4);
    boxes[1]->setChecked(true);
    boxes[2]->setChecked(true);
    const QString kept = UserKey(d, 0)->text();
    Click(UserKey(d, 0));
    Click(AvailableKey(d, 1));
    ASSERT_NE(UserKey(d, 0)->text(), kept);
    Click(Button(d, QDialogButtonBox::Cancel));
    EXPECT_EQ(keys.keys[kBlockKeys], financial[0]);
    run.dialogs.Open(View::Keyboard);
    EXPECT_EQ(keyboards->currentRow(), 4);
    EXPECT_TRUE(boxes[1]->isChecked() && boxes[2]->isChecked());
    EXPECT_EQ(UserKey(d, 0)->text(), kept);  // the working copy was taken afresh
}

// Opened from the Display page; a colour chosen for a key class is kept when both its OK and the
// sheet's OK are pressed, dropped on either Cancel, kept beside the calculator for the next run,
// and "Default" removes every custom colour.
TEST(CustomizeColours, KeptOnlyThroughBothOks) {
    Place place;
    Rig run(&place);
    QSignalSpy changes(&run.dialogs, &dialogs::DialogHost::coloursChanged);
    dialogs::CustomizeColours* colours = nullptr;
    const auto chooseBlackNumbers = [&](QWidget* sheet) {
        Click(ButtonCalled(sheet, QStringLiteral("Colors...")));
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* c = dynamic_cast<dialogs::CustomizeColours*>(w); c && c->isVisible()) colours = c;
        }
        ASSERT_TRUE(colours && colours->isVisible());
        dialogs::ColourChooser* chooser = colours->Choose(2);  // "Number:" text
        const Rgb given = chooser->Chosen();
        QTest::keyClick(chooser->slider(0), Qt::Key_Right);  // one step of 17, or none at 255
        EXPECT_EQ(chooser->number(0)->text().toInt(), std::min(given.r + 17, 255));
        Click(ButtonCalled(chooser, QStringLiteral("Reset")));
        EXPECT_TRUE(chooser->Chosen() == given);
        for (int channel = 0; channel < 3; ++channel) chooser->slider(channel)->setValue(0);
        Click(Button(chooser, QDialogButtonBox::Ok));
        Click(Button(colours, QDialogButtonBox::Ok));
    };
    const auto number = [](const Rig& r) { return r.dialogs.customColours().text[static_cast<int>(KeyClass::Number)]; };
    QWidget* sheet = run.dialogs.Open(View::Preferences);
    chooseBlackNumbers(sheet);
    Click(Button(sheet, QDialogButtonBox::Cancel));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_FALSE(number(run));
    sheet = run.dialogs.Open(View::Preferences);
    chooseBlackNumbers(sheet);
    EXPECT_EQ(changes.count(), 0);
    Click(Button(sheet, QDialogButtonBox::Ok));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(number(run) == Rgb{});
    EXPECT_FALSE(run.dialogs.customColours().background[static_cast<int>(KeyClass::Number)]);
    ASSERT_TRUE(run.store.Save());
    {
        Rig again(&place);
        EXPECT_TRUE(number(again) == Rgb{});
        EXPECT_FALSE(again.dialogs.customColours().text[static_cast<int>(KeyClass::Standard)]);
    }

    run.dialogs.OpenColours()->Choose(7)->accept();  // "Clear:" background, as given
    Click(Button(colours, QDialogButtonBox::Cancel));
    EXPECT_FALSE(run.dialogs.customColours().background[static_cast<int>(KeyClass::Clear)]);
    run.dialogs.OpenColours();
    Click(ButtonCalled(colours, QStringLiteral("Default")));
    Click(Button(colours, QDialogButtonBox::Ok));
    EXPECT_FALSE(number(run));
    EXPECT_EQ(changes.count(), 2);
}

}  // namespace
}  // namespace brinto::test
