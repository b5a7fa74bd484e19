#pragma once
// The history tape beside the calculator: each operation with the result it gave, newest last.
// A result is copied, or recalled into X (double click or Return); the tape is saved as text or
// CSV, or cleared. Made the first time it is opened, so start-up does not pay for it.
#include <QDockWidget>
#include <vector>

#include "session/tape.h"

class QTreeWidget;

namespace brinto {

class Session;
class SessionStore;

class TapePanel : public QDockWidget {
    Q_OBJECT
public:
    // `store` may be null (a calculator without one shows an empty tape).
    TapePanel(Session& session, SessionStore* store, QWidget* parent);

    // Reads the tape again and shows its newest line.
    void Reload();
    // The line selected (the newest when none is), or null on an empty tape.
    const TapeLine* Current() const;
    void RecallCurrent();
    void CopyCurrent();
    // Writes the tape to `file`: CSV when its name ends in ".csv", else text. False after saying why.
    bool SaveTo(const QString& file);

    QTreeWidget* list() const { return m_list; }

private:
    void SaveAs();

    Session& m_session;
    SessionStore* m_store;
    QTreeWidget* m_list = nullptr;
    std::vector<TapeLine> m_lines;
};

}  // namespace brinto
