#pragma once
// The "Constants" list: the 33 physical constants by name. OK (or Enter, or a double click)
// recalls the selected one into X; OK with nothing selected keeps the list open. The list opens
// scrolled to where it was at the last recall, with nothing selected.
#include <QDialog>

#include "app/dialogs/dialog_support.h"
#include "session/session.h"

class QListWidget;

namespace brinto::dialogs {

class ConstantsDialog : public QDialog {
    Q_OBJECT
public:
    ConstantsDialog(Session& session, const HelpFunction& help, QWidget* parent);

    // Scrolls to the remembered row and clears the selection; called each time the list opens.
    void Load();
    QListWidget* list() const { return m_list; }

    void accept() override;

signals:
    void changed();

private:
    int TopRow() const;

    Session& m_session;
    QListWidget* m_list;
};

}  // namespace brinto::dialogs
