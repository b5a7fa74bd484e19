#pragma once
// "Find Key": a small window where a key is named by typing (brinto-cli's names and aliases, the
// full names of the tooltips, or the faces) with the matching keys listed as one types; Return
// presses the key chosen on the calculator, as a tap on it would. It reaches every key, also
// those with no keyboard key of their own and those of keyboards not on show.
#include <QDialog>
#include <vector>

#include "engine/function_ids.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace brinto {

class KeyFinder : public QDialog {
    Q_OBJECT
public:
    explicit KeyFinder(QWidget* parent = nullptr);

    // Empties the field for the next key.
    void Clear();
    QLineEdit* field() { return m_field; }
    QListWidget* offers() { return m_offers; }

Q_SIGNALS:
    // The key chosen; the window has closed.
    void keyChosen(brinto::FunctionId id);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Offer(const QString& typed);
    void Choose();
    void Describe();

    QLineEdit* m_field = nullptr;
    QListWidget* m_offers = nullptr;
    QLabel* m_problem = nullptr;
    std::vector<FunctionId> m_offered;
    bool m_picked = false;  // a key was picked in the list (with the arrows) since the last typing
};

}  // namespace brinto
