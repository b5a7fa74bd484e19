// The "Preferences" sheet and the "Customize Keyboard" dialog.
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>

#include "app/dialogs/keyboard_dialog.h"
#include "app/dialogs/preferences_dialog.h"
#include "app_dialogs/dialog_test_support.h"
#include "app_dialogs/test_classes.h"
#include "engine/function_ids.h"
#include "engine/keyboards.h"

namespace brinto::test {
namespace {

QComboBox* List(QWidget* sheet, const char* caption) {
    return sheet->findChild<QComboBox*>(QString::fromUtf8(caption));
}
QAbstractButton* Check(QWidget* sheet, const char* text) {
    for (QAbstractButton* b : sheet->findChildren<QAbstractButton*>()) {
        if (b->text() == QString::fromUtf8(text)) return b;
    }
    return nullptr;
}

}  // namespace

class PreferencesTests : public QObject {
    Q_OBJECT
private slots:
    // Every page's choices reach their stored codings, the input method goes through the
    // dispatcher, and the record survives a save and reload.
    void OkStoresEveryPageAndSurvivesReload() {
        Place place;
        {
            Run run(place);
            auto* sheet = qobject_cast<dialogs::PreferencesDialog*>(run.dialogs.Open(dialogs::View::Preferences));
            QVERIFY(sheet && sheet->isVisible());
            List(sheet, "Format:")->setCurrentIndex(1);  // "Fixed"
            List(sheet, "digits")->setCurrentIndex(3);   // 2 digits
            List(sheet, "Input:")->setCurrentIndex(2);   // "RPN"
            List(sheet, "depth")->setCurrentIndex(4);    // "20"
            List(sheet, "Shift:")->setCurrentIndex(1);   // "Sticky"
            Check(sheet, "Comma Radix")->click();
            Check(sheet, "100 Registers")->click();
            List(sheet, "Theme:")->setCurrentIndex(7);  // "Dark Background"
            List(sheet, "Shadow:")->setCurrentIndex(4);  // "Heavy"
            Click(Button(sheet, QDialogButtonBox::Ok));
            QVERIFY(!sheet->isVisible());
            const Preferences& p = run.engine.prefs;
            QCOMPARE(p.DigitField(), 3);
            QCOMPARE(p.Shift(), ShiftMode::Sticky);
            QVERIFY(p.CommaRadix() && !p.HundredRegisters());
            QCOMPARE(p.Theme(), u16{8});
            QCOMPARE(p.KeyShadow(), 4);
            QVERIFY(run.engine.IsRpn());
            QCOMPARE(run.engine.state.lastKey, fid::MethodRpn);
            run.Save();
        }
        Run again(place);
        QVERIFY(again.engine.IsRpn());
        QCOMPARE(again.engine.prefs.Format(), NumberFormat::Fixed);
        QCOMPARE(again.engine.prefs.StackDepth(), 20);
        QCOMPARE(again.engine.prefs.Theme(), u16{8});
    }

    // OK with nothing changed still sends the method key; Cancel sends nothing and keeps the record.
    void OkAlwaysSendsTheMethodKeyCancelNothing() {
        Place place;
        Run run(place);
        Preferences before = run.engine.prefs;
        QCOMPARE(before.Theme(), u16{0});
        QWidget* sheet = run.dialogs.Open(dialogs::View::Preferences);
        List(sheet, "Input:")->setCurrentIndex(1);
        Click(Button(sheet, QDialogButtonBox::Cancel));
        QCOMPARE(run.engine.prefs.words, before.words);
        QVERIFY(run.engine.state.lastKey != fid::MethodPrecedence);
        QCOMPARE(run.dialogs.Open(dialogs::View::Preferences), sheet);  // made once, reloaded
        QCOMPARE(List(sheet, "Input:")->currentIndex(), 0);
        Click(Button(sheet, QDialogButtonBox::Ok));
        QCOMPARE(run.engine.state.lastKey, fid::MethodSimple);
        before.SetTheme(1);  // theme 0 shows "Default Color" and is written back as its identifier
        QCOMPARE(run.engine.prefs.words, before.words);
    }

    // Each tap area keeps its own target while the radio buttons switch; a stored code 1 shows the
    // first entry and is written back as 0.
    void TapTargetsFollowTheRadioButtons() {
        Place place;
        Run run(place);
        run.engine.prefs.words[4] = static_cast<u16>((1 << 1) | (3 << 6) | (9 << 11));  // Left 1, Center Stack, Right Statistical
        QWidget* sheet = run.dialogs.Open(dialogs::View::Preferences);
        QComboBox* target = List(sheet, "Tap:");
        QCOMPARE(target->currentText(), QStringLiteral("Preferences"));
        Click(Check(sheet, "Center"));
        QCOMPARE(target->currentText(), QStringLiteral("Stack"));
        target->setCurrentIndex(5);  // "TVM"
        Click(Check(sheet, "Right"));
        QCOMPARE(target->currentText(), QStringLiteral("Statistical"));
        Click(Check(sheet, "Center"));
        QCOMPARE(target->currentText(), QStringLiteral("TVM"));
        Click(Button(sheet, QDialogButtonBox::Ok));
        const Preferences& p = run.engine.prefs;
        QCOMPARE(p.words[4] & 0x3E, 0);  // code 1 written back as 0
        QCOMPARE(p.Tap(TapArea::Center), TapTarget::Tvm);
        QCOMPARE(p.Tap(TapArea::Right), TapTarget::Statistical);
    }

    // "Default" resets only its own page's controls, never the record until OK.
    void DefaultResetsOnlyItsPage() {
        Place place;
        Run run(place);
        run.engine.prefs.SetFormat(NumberFormat::Scientific);
        run.engine.prefs.SetHundredRegisters(false);
        run.engine.prefs.SetKeySize(3);
        run.engine.prefs.SetTheme(5);
        auto* sheet = run.dialogs.Open(dialogs::View::Preferences);
        auto* pages = sheet->findChild<QTabWidget*>();
        QCOMPARE(pages->count(), 3);
        Click(ButtonCalled(pages->widget(0), QStringLiteral("Default")));
        QCOMPARE(List(sheet, "Format:")->currentText(), QStringLiteral("Standard"));
        QCOMPARE(List(sheet, "Integer:")->currentText(), QStringLiteral("32-bit signed"));
        QVERIFY(Check(sheet, "100 Registers")->isChecked());
        QCOMPARE(List(sheet, "Size:")->currentIndex(), 3);           // another page: untouched
        QCOMPARE(List(sheet, "Theme:")->currentText(), QStringLiteral("Original Grayscale"));
        QCOMPARE(run.engine.prefs.Format(), NumberFormat::Scientific);  // the record: untouched
        Click(ButtonCalled(pages->widget(1), QStringLiteral("Default")));
        QCOMPARE(List(sheet, "Theme:")->currentText(), QStringLiteral("Default Color"));
        Click(ButtonCalled(pages->widget(2), QStringLiteral("Default")));
        QCOMPARE(List(sheet, "Size:")->currentIndex(), 0);
    }
};

class KeyboardTests : public QObject {
    Q_OBJECT
private:
    static QPushButton* UserKey(QWidget* d, int k) { return d->findChildren<QPushButton*>()[k]; }
    static QPushButton* AvailableKey(QWidget* d, int k) { return d->findChildren<QPushButton*>()[kBlockKeys + k]; }

private slots:
    // A User key selected above takes the function of a key tapped below, in the half on show;
    // OK writes back only that, and the map survives a save and reload.
    void AssignClearCopyAndOk() {
        Place place;
        {
            Run run(place);
            QWidget* d = run.dialogs.Open(dialogs::View::Keyboard);
            auto* keyboards = d->findChild<QListWidget*>();
            QCOMPARE(keyboards->count(), 8);
            QCOMPARE(keyboards->item(7)->text(), QStringLiteral("Date & Time"));
            Click(AvailableKey(d, 0));  // no User key selected: nothing happens
            QCOMPARE(run.session.userKeys().keys[0], kNoKey);
            keyboards->setCurrentRow(1);  // "Financial"
            Click(UserKey(d, 2));
            Click(AvailableKey(d, 0));  // N
            QCOMPARE(UserKey(d, 2)->text(), AvailableKey(d, 0)->text());
            QList<QCheckBox*> boxes = d->findChildren<QCheckBox*>();  // Integer, Shifted, Shifted
            boxes[1]->setChecked(true);
            Click(ButtonCalled(d, QStringLiteral("Copy")));
            Click(Button(d, QDialogButtonBox::Ok));
            const UserKeyMap& keys = run.session.userKeys();
            QCOMPARE(keys.keys[2], fid::N);
            const KeyBlock financial = KeyLayout(1, 0, keys);
            for (int k = 0; k < kBlockKeys; ++k) QCOMPARE(keys.keys[kBlockKeys + k], financial[k]);
            QVERIFY(run.engine.dirty.userKeys);
            QVERIFY(!run.engine.dirty.preferences);  // "Integer" unchanged: preferences untouched
            run.Save();
        }
        Run again(place);
        QCOMPARE(again.session.userKeys().keys[2], fid::N);
        QWidget* d = again.dialogs.Open(dialogs::View::Keyboard);
        Click(ButtonCalled(d, QStringLiteral("Clear")));  // the unshifted half
        d->findChildren<QCheckBox*>()[0]->setChecked(true);
        Click(Button(d, QDialogButtonBox::Ok));
        QCOMPARE(again.session.userKeys().keys[2], kNoKey);
        QCOMPARE(again.session.userKeys().keys[kBlockKeys], KeyLayout(1, 0, again.session.userKeys())[0]);
        QVERIFY(again.engine.prefs.IntegerUserKeys());
    }

    // Cancel writes nothing back, but the keyboard below and both "Shifted" boxes are kept.
    void CancelKeepsTheChoicesNotTheKeys() {
        Place place;
        Run run(place);
        QWidget* d = run.dialogs.Open(dialogs::View::Keyboard);
        d->findChild<QListWidget*>()->setCurrentRow(4);
        QList<QCheckBox*> boxes = d->findChildren<QCheckBox*>();
        boxes[1]->setChecked(true);
        boxes[2]->setChecked(true);
        Click(UserKey(d, 0));
        Click(AvailableKey(d, 0));
        Click(Button(d, QDialogButtonBox::Cancel));
        QCOMPARE(run.session.userKeys().keys[kBlockKeys], kNoKey);
        QVERIFY(!run.engine.dirty.userKeys);
        QCOMPARE(run.dialogs.Open(dialogs::View::Keyboard), d);
        QCOMPARE(d->findChild<QListWidget*>()->currentRow(), 4);
        QVERIFY(boxes[1]->isChecked() && boxes[2]->isChecked());
        QCOMPARE(UserKey(d, 0)->text(), QString());  // the working copy was taken afresh
    }
};

static RegisterTests<PreferencesTests> registerPreferences;
static RegisterTests<KeyboardTests> registerKeyboard;

}  // namespace brinto::test

#include "preferences_test.moc"
