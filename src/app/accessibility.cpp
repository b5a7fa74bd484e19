#include "app/accessibility.h"

#include <QAccessibleWidget>
#include <map>

#include "app/display_view.h"
#include "app/key_view.h"

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
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) m_view->Press(m_index);
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
        return t == QAccessible::Name ? QStringLiteral("Keys") : QAccessibleWidget::text(t);
    }

private:
    KeyView* View() const { return static_cast<KeyView*>(widget()); }
    mutable std::map<int, QAccessible::Id> m_children;
};

class DisplayAccessible : public QAccessibleWidget {
public:
    explicit DisplayAccessible(DisplayView* view) : QAccessibleWidget(view, QAccessible::StaticText) {}
    QString text(QAccessible::Text t) const override {
        const auto* view = static_cast<const DisplayView*>(widget());
        switch (t) {
            case QAccessible::Name: return QStringLiteral("Display");
            case QAccessible::Value:
            case QAccessible::Description: return view->AccessibleText();
            default: return QAccessibleWidget::text(t);
        }
    }
};

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (className == QLatin1String("brinto::KeyView")) return new KeyViewAccessible(static_cast<KeyView*>(object));
    if (className == QLatin1String("brinto::DisplayView")) {
        return new DisplayAccessible(static_cast<DisplayView*>(object));
    }
    return nullptr;
}

}  // namespace

void InstallAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Factory);
        return true;
    }();
    Q_UNUSED(installed);
}

}  // namespace brinto
