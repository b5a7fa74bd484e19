#include "app/accessibility.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <limits>
#include <map>

#include "app/dialogs/ui_text.h"
#include "app/display_view.h"
#include "app/key_view.h"
#include "session/keypad.h"

namespace brinto {

namespace {

class KeyAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    KeyAccessible(KeyView* view, int index) : m_view(view), m_index(index) {}

    bool isValid() const override { return m_view && m_index < m_view->KeyCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State s;
        s.invisible = !m_view || !m_view->isVisible();
        if (!isValid()) return s;
        s.focusable = m_view->isEnabled();
        s.focused = m_view->hasFocus() && m_view->FocusKey() == m_index;
        s.checkable = IsLatchKey(m_view->ActiveId(m_index));
        s.checked = s.checkable && m_view->LatchedOn(m_index);
        s.pressed = s.checked;
        return s;
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect r = m_view->CellRect(m_index);
        return QRect(m_view->mapToGlobal(r.topLeft()), r.size());
    }
    QString text(QAccessible::Text t) const override {
        if (!isValid()) return {};
        const FunctionId id = m_view->ActiveId(m_index);
        switch (t) {
            case QAccessible::Name: return ToolTipText(id);
            case QAccessible::Description: return LegendText(id);
            default: return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    // The press happens once the screen reader has its answer: a key that opens a message box
    // (or the "Clear All" question) would otherwise keep the screen reader waiting on the box.
    void doAction(const QString& name) override {
        if (name != pressAction() || !isValid()) return;
        QMetaObject::invokeMethod(
            m_view.data(), [view = m_view, index = m_index] { if (view && index < view->KeyCount()) view->Press(index); },
            Qt::QueuedConnection);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<KeyView> m_view;
    int m_index;
};

class KeyViewAccessible : public QAccessibleWidget {
public:
    explicit KeyViewAccessible(KeyView* view) : QAccessibleWidget(view, QAccessible::Grouping) {}
    ~KeyViewAccessible() override {
        for (const auto& [index, id] : m_children) QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return View()->KeyCount(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        auto found = m_children.find(index);
        if (found == m_children.end()) {
            const QAccessible::Id id = QAccessible::registerAccessibleInterface(new KeyAccessible(View(), index));
            found = m_children.emplace(index, id).first;
        }
        return QAccessible::accessibleInterface(found->second);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (const auto& [index, id] : m_children) {
            if (QAccessible::accessibleInterface(id) == child) return index;
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return child(View()->KeyAt(View()->mapFromGlobal(QPoint(x, y))));
    }
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name ? Ui::tr("Keys") : QAccessibleWidget::text(t);
    }
    QAccessibleInterface* focusChild() const override {
        return View()->hasFocus() ? child(View()->FocusKey()) : nullptr;
    }

private:
    KeyView* View() const { return static_cast<KeyView*>(widget()); }
    mutable std::map<int, QAccessible::Id> m_children;
};

// The display as a read-only text field: X with its label ("1,234.5 inches") is the text and the
// value, the other levels shown and the annunciators are the description. A screen reader speaks
// the changed value of the text field it is on, which it would not do for a label.
class DisplayAccessible : public QAccessibleWidget, public QAccessibleTextInterface, public QAccessibleValueInterface {
public:
    explicit DisplayAccessible(DisplayView* view) : QAccessibleWidget(view, QAccessible::EditableText) {}

    QString text(QAccessible::Text t) const override {
        switch (t) {
            case QAccessible::Name:
                return Ui::tr("Display");
            case QAccessible::Value: return View()->AccessibleX();
            case QAccessible::Description: return View()->AccessibleDetails();
            default: return QAccessibleWidget::text(t);
        }
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.readOnly = true;
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // Text: X with its label, one line that cannot be selected or changed.
    QString text(int start, int end) const override { return View()->AccessibleX().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(View()->AccessibleX().size()); }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // Value: X as a number (the error value is infinity).
    QVariant currentValue() const override { return View()->XValue(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return std::numeric_limits<double>::max(); }
    QVariant minimumValue() const override { return std::numeric_limits<double>::lowest(); }
    QVariant minimumStepSize() const override { return 0.0; }

private:
    DisplayView* View() const { return static_cast<DisplayView*>(widget()); }
};

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (className == QLatin1String("brinto::KeyView")) return new KeyViewAccessible(static_cast<KeyView*>(object));
    if (className == QLatin1String("QWidget") && object->objectName() == QLatin1String("resultNotice")) {
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Notification);
    }
    if (className == QLatin1String("brinto::DisplayView")) {
        return new DisplayAccessible(static_cast<DisplayView*>(object));
    }
    return nullptr;
}

}  // namespace

namespace {
std::function<void(QAccessibleEvent&)>& Watcher() {
    static std::function<void(QAccessibleEvent&)> watcher;
    return watcher;
}
}  // namespace

void SendAccessibilityEvent(QAccessibleEvent& event) {
    if (Watcher()) Watcher()(event);
    QAccessible::updateAccessibility(&event);
}

void WatchAccessibilityEvents(std::function<void(QAccessibleEvent&)> watcher) { Watcher() = std::move(watcher); }

void InstallAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Factory);
        return true;
    }();
    Q_UNUSED(installed);
}

}  // namespace brinto
