#pragma once
// The help viewer: the user guide bundled with the program, shown at an anchor, with back,
// forward and find (Ctrl+F). When the guide was not bundled it says so instead.
#include <QWidget>
#include <string_view>

class QLineEdit;
class QTextBrowser;

namespace brinto::dialogs {

class HelpViewer : public QWidget {
public:
    explicit HelpViewer(QWidget* parent = nullptr);

    // Shows the guide at `anchor` ("tvm", "prefs", ...), or the page saying it is missing.
    void ShowAnchor(std::string_view anchor);
    // Selects the next occurrence of `text` after the cursor, wrapping once; false when absent.
    bool Find(const QString& text);
    QTextBrowser* browser() const { return m_browser; }
    QLineEdit* findField() const { return m_find; }

private:
    QTextBrowser* m_browser;
    QLineEdit* m_find;
};

// Where the guide lives among the program's resources.
inline constexpr const char* kGuideResource = ":/help/Brinto.htm";

}  // namespace brinto::dialogs
