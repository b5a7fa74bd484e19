#pragma once
// The "Stack" view: one line per stack level as the display shows it, the highest level at the
// top and X at the bottom of the pane, the four lowest named X, Y, Z and T, over a row of four
// stack keys that go through the dispatcher. It is modeless and follows the calculator while open
// (the owner calls Refresh after every key).
#include <QDialog>

#include "app/dialogs/dialog_support.h"
#include "session/session.h"

class QListWidget;

namespace brinto::dialogs {

class StackView : public QDialog {
    Q_OBJECT
public:
    StackView(Session& session, const HelpFunction& help, QWidget* parent);

    void Refresh();
    QListWidget* lines() const;

Q_SIGNALS:
    void changed();

private:
    void Press(FunctionId id);

    class Lines;
    Session& m_session;
    Lines* m_lines;
};

}  // namespace brinto::dialogs
