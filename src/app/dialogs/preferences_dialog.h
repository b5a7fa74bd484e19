#pragma once
// The "Preferences" sheet: the pages "General", "Display" and "Keyboard" over a copy of the
// preferences. Each page's "Default" resets that page's controls, not the record; OK hands the
// edited record to ApplyPreferences. "Colors..." asks the owner to open "Customize Colors".
#include <QDialog>
#include <array>

#include "app/dialogs/dialog_support.h"
#include "session/session.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QTabWidget;

namespace brinto::dialogs {

class PreferencesDialog : public QDialog {
    Q_OBJECT
public:
    PreferencesDialog(Session& session, const HelpFunction& help, QWidget* parent);

    // Shows the record in force; called each time the sheet opens.
    void Load();
    // The record as the controls have it.
    Preferences Edited() const;

signals:
    void colorsRequested();

private:
    QWidget* GeneralPage();
    QWidget* DisplayPage();
    QWidget* KeyboardPage();
    void GeneralDefaults();
    void DisplayDefaults();
    void KeyboardDefaults();
    void ShowTapArea(int area);

    Session& m_session;
    QTabWidget* m_pages;
    // General.
    QComboBox* m_format;
    QComboBox* m_digits;
    QComboBox* m_input;
    QComboBox* m_depth;
    QComboBox* m_integer;
    QComboBox* m_shift;
    QComboBox* m_action;
    QCheckBox* m_hundredRegisters;
    QCheckBox* m_longDate;
    QCheckBox* m_backspaceDrops;
    QCheckBox* m_commaRadix;
    // Display: the list shows the target of the checked tap area; the other two wait here.
    QButtonGroup* m_tapAreas;
    QComboBox* m_tapTarget;
    std::array<int, 3> m_tapIndex{};
    int m_tapArea = 0;
    QComboBox* m_theme;
    QComboBox* m_lines;
    QCheckBox* m_basicAlso;
    QComboBox* m_font;
    QComboBox* m_border;
    QCheckBox* m_quickSwitch;
    QCheckBox* m_clearType;
    // Keyboard.
    QComboBox* m_show;
    QComboBox* m_size;
    QComboBox* m_keys;
    QComboBox* m_color;
    QComboBox* m_active;
    QComboBox* m_shadow;
};

}  // namespace brinto::dialogs
