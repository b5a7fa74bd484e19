#include "app/key_view.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <limits>

#include "app/accessibility.h"
#include "app/dialogs/ui_text.h"
#include "session/key_legends.h"

namespace brinto {

namespace {

QString Utf8(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QRectF ToRectF(const Rect& r) { return QRectF(r.x, r.y, r.width, r.height); }

// The font of a legend of `pixels`. A text too wide for the area is first drawn narrower, down
// to 70 % of its width, which keeps its height; only then smaller.
QFont LegendFont(QFont font, const QString& text, const QRectF& area, int pixels, bool bold) {
    constexpr int kNarrowest = 70;
    font.setBold(bold);
    font.setPixelSize(std::max(1, pixels));
    const double room = area.width() * 0.92;
    double wide = QFontMetricsF(font).horizontalAdvance(text);
    if (wide <= room || wide <= 0) return font;
    font.setStretch(std::max(kNarrowest, static_cast<int>(std::floor(100 * room / wide))));
    wide = QFontMetricsF(font).horizontalAdvance(text);
    if (wide > room) font.setPixelSize(std::max(1, static_cast<int>(pixels * room / wide)));
    return font;
}

// Digits and the four operators with "=" and ENTER are the keys read most: drawn bold.
bool IsBoldLegend(FunctionId id) { return KeyClassOf(id) == KeyClass::Number || (id >= fid::Enter && id <= fid::Equals); }

// Draws `text` centred in `area` at `pixels`, smaller when it would not fit the width.
void DrawLegend(QPainter& painter, const QString& text, const QRectF& area, int pixels, bool bold) {
    painter.setFont(LegendFont(painter.font(), text, area, pixels, bold));
    painter.drawText(area, Qt::AlignCenter, text);
}

}  // namespace

QColor ToQColor(Rgb rgb) { return QColor(rgb.r, rgb.g, rgb.b); }

QString LegendText(FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    return legend ? Utf8(legend->legend) : QString();
}

QString ToolTipText(FunctionId id) {
    const KeyLegend* legend = FindLegend(id);
    if (!legend) return Ui::tr("No function");
    QString tip = KeyMeaningText(legend->fullName);
    if (!legend->hardwareKey.empty()) tip += Ui::tr(" (key: %1)").arg(KeyMeaningText(legend->hardwareKey));
    return tip;
}

KeyView::KeyView(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus);
}

void KeyView::SetKeys(std::vector<KeyCell> keys, int columns) {
    if (keys == m_keys && columns == m_columns) return;
    const bool sameShape = keys.size() == m_keys.size() && columns == m_columns;
    m_keys = std::move(keys);
    m_columns = std::max(1, columns);
    m_pressed = m_hover = -1;
    m_focusKey = std::clamp(m_focusKey, 0, std::max(0, KeyCount() - 1));
    Relayout();
    update();
    // New keys under the ring (another keyboard): the screen reader says which key it is now on.
    if (sameShape) {
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        renamed.setChild(m_focusKey);
        if (hasFocus() && m_focusKey < KeyCount()) SendAccessibilityEvent(renamed);
    } else {
        NotifyFocus();
    }
}

void KeyView::SetLook(const KeyLook& look) {
    const KeyLook before = m_look;
    m_look = look;
    Relayout();
    update();
    for (int i = 0; i < KeyCount(); ++i) {
        const auto on = [i, this](const KeyLook& l) {
            const FunctionId id = l.shifted ? Key(i).shifted : Key(i).unshifted;
            return std::find(l.latchedOn.begin(), l.latchedOn.end(), id) != l.latchedOn.end();
        };
        if (on(before) != on(m_look)) {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent event(this, changed);
            event.setChild(i);
            SendAccessibilityEvent(event);
        }
    }
    // The shift latch gives the keys their second functions: the key with the focus is read anew.
    if (before.shifted != m_look.shifted && hasFocus() && m_focusKey < KeyCount() &&
        Key(m_focusKey).shifted != Key(m_focusKey).unshifted) {
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        renamed.setChild(m_focusKey);
        SendAccessibilityEvent(renamed);
    }
}

bool KeyView::LatchedOn(int index) const {
    const FunctionId id = ActiveId(index);
    return std::find(m_look.latchedOn.begin(), m_look.latchedOn.end(), id) != m_look.latchedOn.end();
}

void KeyView::SetFocusKey(int index) {
    if (index < 0 || index >= KeyCount() || index == m_focusKey) return;
    m_focusKey = index;
    update();
    NotifyFocus();
}

int KeyView::Neighbour(int columnSteps, int rowSteps) const {
    const int rows = std::max(1, Rows());
    const int column = m_focusKey % m_columns, row = m_focusKey / m_columns;
    const int newColumn = (column + columnSteps + m_columns) % m_columns;
    int newRow = (row + rowSteps + rows) % rows;
    // A short last row: going down into a gap wraps to the top, going up into one lands on the row above.
    if (newRow * m_columns + newColumn >= KeyCount()) newRow = rowSteps < 0 ? newRow - 1 : 0;
    return std::clamp(newRow * m_columns + newColumn, 0, std::max(0, KeyCount() - 1));
}

void KeyView::NotifyFocus() const {
    if (!hasFocus() || m_focusKey >= KeyCount()) return;
    QAccessibleEvent event(const_cast<KeyView*>(this), QAccessible::Focus);
    event.setChild(m_focusKey);
    SendAccessibilityEvent(event);
}

void KeyView::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers mods = event->modifiers() & ~Qt::KeypadModifier;
    if (mods != Qt::NoModifier || KeyCount() == 0) {
        event->ignore();
        return;
    }
    switch (event->key()) {
        case Qt::Key_Left: SetFocusKey(Neighbour(-1, 0)); return;
        case Qt::Key_Right: SetFocusKey(Neighbour(1, 0)); return;
        case Qt::Key_Up: SetFocusKey(Neighbour(0, -1)); return;
        case Qt::Key_Down: SetFocusKey(Neighbour(0, 1)); return;
        case Qt::Key_Home: SetFocusKey(m_focusKey - m_focusKey % m_columns); return;
        case Qt::Key_End: SetFocusKey(std::min(KeyCount() - 1, m_focusKey - m_focusKey % m_columns + m_columns - 1)); return;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Select: {
            // The key shows pressed for a moment, as under a finger.
            const int pressed = m_focusKey;
            m_pressed = pressed;
            repaint();
            QTimer::singleShot(120, this, [this, pressed] {
                if (m_pressed == pressed) m_pressed = -1;
                update();
            });
            Q_EMIT Tapped(pressed);
            return;
        }
        default: event->ignore(); return;  // the number keypad's Enter stays the Action button
    }
}

void KeyView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    // After Qt has announced the view itself as focused, the key with the ring is announced.
    QTimer::singleShot(0, this, [this] { NotifyFocus(); });
}

void KeyView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

int KeyView::Rows() const { return (KeyCount() + m_columns - 1) / m_columns; }

int KeyView::TitleHeight(int width) const {
    if (m_look.title.isEmpty()) return 0;
    return static_cast<int>(std::lround(16 * GridScale(width)));
}

int KeyView::Inset() const {
    // Unframed keys keep one gap from the window's edges so that no key touches them.
    return m_look.framed == Framed::Yes ? 0 : static_cast<int>(std::lround(m_look.sizeSet.horizontalGap * GridScale(width())));
}

void KeyView::Relayout() {
    const int inset = Inset();
    m_grid = LayoutKeyGrid(width() - 2 * inset, height() - TitleHeight() - inset, m_columns, std::max(1, Rows()),
                           m_look.sizeSet, m_look.framed);
    m_grid.left += inset;
    m_grid.top += TitleHeight();
}

void KeyView::resizeEvent(QResizeEvent*) { Relayout(); }

QRect KeyView::CellRect(int index) const {
    const Rect r = KeyRect(m_grid, index);
    return {r.x, r.y, r.width, r.height};
}

int KeyView::KeyAt(QPoint point) const {
    const auto hit = HitTest(m_grid, point.x(), point.y());
    return hit && *hit < KeyCount() ? *hit : -1;
}

FunctionId KeyView::ActiveId(int index) const { return m_look.shifted ? Key(index).shifted : Key(index).unshifted; }

void KeyView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(m_look.colours.keyboardBackground));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (!m_look.title.isEmpty()) {
        painter.setPen(ToQColor(m_look.colours.keyboardName));
        DrawLegend(painter, m_look.title, QRectF(0, 0, width(), TitleHeight()), TitleHeight() * 3 / 4, true);
    }
    for (int i = 0; i < KeyCount(); ++i) DrawKey(painter, i);
    if (hasFocus() && m_focusKey < KeyCount()) DrawFocusRing(painter);
}

// The ring is drawn inside the key in the colour of its legend, which every theme keeps legible
// on the face, with a second ring in the face colour inside it so that it reads on any legend.
void KeyView::DrawFocusRing(QPainter& painter) {
    const Rect keyRect = KeyRect(m_grid, m_focusKey);
    if (keyRect.width <= 0 || keyRect.height <= 0) return;
    const KeyCell& key = Key(m_focusKey);
    const LegendPlacement place = PlaceLegends(m_look.arrangement, m_look.shifted, keyRect);
    const FunctionId large = place.large == Legend::Shifted ? key.shifted : key.unshifted;
    const KeyColours& c = m_look.colours.Key(KeyClassOf(large == kNoKey ? key.unshifted : large));
    const bool pressed = m_focusKey == m_pressed;
    const double scale = GridScale(width());
    const double depth = std::round(m_look.shadow * scale);
    const double pen = std::max(2.0, std::round(1.5 * scale));
    QRectF shape = ToRectF(keyRect).adjusted(0.5, 0.5, -0.5 - depth, -0.5 - depth);
    if (pressed) shape.translate(depth, depth);
    const double radius = std::max(0.0, m_look.corner * scale);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ToQColor(pressed ? c.pressedText : c.text), pen));
    painter.drawRoundedRect(shape.adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2), radius, radius);
    painter.setPen(QPen(ToQColor(pressed ? c.pressedFace : c.face), 1));
    painter.drawRoundedRect(shape.adjusted(pen + 0.5, pen + 0.5, -pen - 0.5, -pen - 0.5), radius, radius);
}

int KeyView::SmallestLegendCapitals() const {
    int smallest = std::numeric_limits<int>::max();
    for (int i = 0; i < KeyCount(); ++i) {
        const LegendPlacement place = PlaceLegends(m_look.arrangement, m_look.shifted, KeyRect(m_grid, i));
        const KeyCell& key = Key(i);
        const double depth = std::round(m_look.shadow * GridScale(width()));
        const auto measure = [&](FunctionId id, const Rect& area, int pixels, bool bold) {
            const QString text = LegendText(id);
            if (text.isEmpty()) return;
            const QFont font = LegendFont(this->font(), text, ToRectF(area).adjusted(0, 0, -depth, 0), pixels, bold);
            smallest = std::min(smallest, QFontMetrics(font).capHeight());
        };
        const FunctionId large = place.large == Legend::Shifted ? key.shifted : key.unshifted;
        measure(large, place.largeArea, place.largePixels, IsBoldLegend(large));
        if (place.small) {
            const FunctionId small = *place.small == Legend::Shifted ? key.shifted : key.unshifted;
            if (small != large) measure(small, place.smallArea, place.smallPixels, false);
        }
    }
    return smallest;
}

void KeyView::DrawKey(QPainter& painter, int index) {
    const Rect keyRect = KeyRect(m_grid, index);
    if (keyRect.width <= 0 || keyRect.height <= 0) return;
    const KeyCell& key = Key(index);
    const LegendPlacement place = PlaceLegends(m_look.arrangement, m_look.shifted, keyRect);
    const FunctionId large = place.large == Legend::Shifted ? key.shifted : key.unshifted;
    const KeyColours& c = m_look.colours.Key(KeyClassOf(large == kNoKey ? key.unshifted : large));
    const bool pressed = index == m_pressed;
    const double scale = GridScale(width());

    QColor face = ToQColor(pressed ? c.pressedFace : c.face);
    const QColor text = ToQColor(pressed ? c.pressedText : c.text);
    if (index == m_hover && !pressed) face = face.lightness() > 128 ? face.darker(106) : face.lighter(125);

    const double radius = std::max(0.0, m_look.corner * scale);
    const double depth = pressed ? 0.0 : std::round(m_look.shadow * scale);
    const QRectF shape = ToRectF(keyRect).adjusted(0.5, 0.5, -0.5 - depth, -0.5 - depth);
    // A pressed key sits where its shadow was.
    const QRectF drawn = pressed ? shape.translated(std::round(m_look.shadow * scale), std::round(m_look.shadow * scale))
                                 : shape;
    if (depth > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ToQColor(c.shadow));
        painter.drawRoundedRect(shape.translated(depth, depth), radius, radius);
    }
    painter.setPen(m_look.colours.outlineKeys ? QPen(ToQColor(c.edge), std::max(1.0, scale * 0.75)) : Qt::NoPen);
    painter.setBrush(face);
    painter.drawRoundedRect(drawn, radius, radius);

    const QPointF shift = drawn.topLeft() - ToRectF(keyRect).topLeft();
    const auto area = [&](const Rect& r) {
        return ToRectF(r).translated(shift).adjusted(0, 0, -depth, r.height ? -depth / 2 : 0);
    };
    painter.setPen(text);
    DrawLegend(painter, LegendText(large), area(place.largeArea), place.largePixels, IsBoldLegend(large));
    if (place.small) {
        const FunctionId small = *place.small == Legend::Shifted ? key.shifted : key.unshifted;
        if (small != large) {
            painter.setPen(ToQColor(pressed ? c.pressedText : c.shiftedText));
            DrawLegend(painter, LegendText(small), area(place.smallArea).adjusted(0, std::round(1.5 * scale), 0, 0),
                       place.smallPixels, false);
        }
    }
}

void KeyView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    m_pressed = KeyAt(event->position().toPoint());
    update();
}

void KeyView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int pressed = m_pressed;
    m_pressed = -1;
    update();
    if (pressed >= 0 && KeyAt(event->position().toPoint()) == pressed) Q_EMIT Tapped(pressed);
}

void KeyView::mouseMoveEvent(QMouseEvent* event) {
    const int hover = KeyAt(event->position().toPoint());
    if (hover != m_hover) {
        m_hover = hover;
        update();
    }
}

void KeyView::leaveEvent(QEvent*) {
    m_hover = -1;
    update();
}

bool KeyView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = KeyAt(help->pos());
        if (index < 0) {
            QToolTip::hideText();
            return true;
        }
        QToolTip::showText(help->globalPos(), ToolTipText(ActiveId(index)), this, CellRect(index));
        return true;
    }
    return QWidget::event(event);
}

}  // namespace brinto
