#include "app/key_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>

#include "engine/function_ids.h"

namespace brinto {

namespace {

constexpr int kMargin = 4;
constexpr int kGap = 4;

// The part of each cell that the shifted legend takes above the face.
double LegendStrip(const KeyLook& look) { return look.show == 1 || look.show == 3 ? 0.0 : 0.30; }

// Keys are smaller within their cells for the smaller "Size:" choices.
double FaceInset(const KeyLook& look) {
    switch (look.size) {
        case 1: return 0.12;
        case 2: return 0.06;
        default: return 0.0;
    }
}

int ShadowDepth(const KeyLook& look) {
    switch (look.shadow) {
        case 1: return 0;
        case 3: return 2;
        case 4: return 3;
        default: return 1;
    }
}

}  // namespace

KeyView::KeyView(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
}

void KeyView::SetKeys(std::vector<KeyCell> keys, int columns) {
    m_keys = std::move(keys);
    m_columns = std::max(1, columns);
    m_pressed = m_hover = -1;
    update();
}

void KeyView::SetLook(const KeyLook& look) {
    m_look = look;
    update();
}

int KeyView::Rows() const { return (KeyCount() + m_columns - 1) / m_columns; }

QRect KeyView::CellRect(int index) const {
    const int rows = std::max(1, Rows());
    const int w = (width() - 2 * kMargin - (m_columns - 1) * kGap) / m_columns;
    const int h = (height() - 2 * kMargin - (rows - 1) * kGap) / rows;
    // The remainders are split so that the grid stays centred.
    const int left = kMargin + (width() - 2 * kMargin - (m_columns - 1) * kGap - w * m_columns) / 2;
    const int top = kMargin + (height() - 2 * kMargin - (rows - 1) * kGap - h * rows) / 2;
    const int row = index / m_columns, column = index % m_columns;
    return {left + column * (w + kGap), top + row * (h + kGap), w, h};
}

QRectF KeyView::FaceRect(int index) const {
    QRectF cell = CellRect(index);
    cell.setTop(cell.top() + cell.height() * LegendStrip(m_look));
    const double inset = FaceInset(m_look) * std::min(cell.width(), cell.height());
    return cell.adjusted(inset, inset / 2, -inset, -inset / 2);
}

int KeyView::KeyAt(QPoint point) const {
    for (int i = 0; i < KeyCount(); ++i) {
        if (CellRect(i).contains(point)) return i;
    }
    return -1;
}

FunctionId KeyView::ShownId(int index) const {
    const KeyCell& k = Key(index);
    const bool swapped = m_look.labels == 2;
    // "Static" faces keep the unshifted table drawn; the key still acts shifted.
    const bool showShifted = m_look.labels == 1 ? false : m_look.shifted;
    return (showShifted != swapped) ? k.shifted : k.unshifted;
}

FunctionId KeyView::OtherId(int index) const {
    const KeyCell& k = Key(index);
    const FunctionId shown = ShownId(index);
    const FunctionId other = shown == k.shifted ? k.unshifted : k.shifted;
    return other == shown ? kNoKey : other;
}

void KeyView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), m_look.colours.keyboardBackground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (int i = 0; i < KeyCount(); ++i) DrawKey(painter, i);
}

void KeyView::DrawKey(QPainter& painter, int index) {
    const FunctionId id = ShownId(index);
    const KeyColours& c = m_look.colours.keys[static_cast<int>(RoleOf(id))];
    const bool pressed = index == m_pressed;
    const bool hover = index == m_hover && !pressed;
    const QRect cell = CellRect(index);
    const QRectF face = FaceRect(index);
    const double radius = std::min(face.width(), face.height()) * 0.16;

    QColor faceColour = c.face, textColour = c.text;
    if (m_look.colour == 1 && m_look.shifted) faceColour = c.shiftedText.lighter(170);
    if (m_look.colour == 2) {
        faceColour = m_look.colours.keys[0].face;
        textColour = c.face.darker(200);
    }
    if (pressed) {
        switch (m_look.active) {
            case 1: faceColour = c.shiftedText; textColour = c.pressedText; break;
            case 2: textColour = c.shiftedText; break;
            case 3: std::swap(faceColour, textColour); break;
            default: faceColour = c.pressedFace; textColour = c.pressedText; break;
        }
    } else if (hover) {
        faceColour = faceColour.lighter(faceColour.lightness() > 128 ? 104 : 125);
    }

    const int depth = pressed ? 0 : ShadowDepth(m_look);
    if (depth > 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(c.shadow);
        painter.drawRoundedRect(face.translated(0, depth), radius, radius);
    }
    painter.setPen(QPen(c.edge, 1));
    painter.setBrush(faceColour);
    const QRectF drawn = pressed ? face.translated(0, std::min(1, ShadowDepth(m_look))) : face;
    painter.drawRoundedRect(drawn.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);

    // Legends grow with the key, between a floor and a cap.
    const QString legend = LegendOf(id);
    QFont font = painter.font();
    const double zoom = m_look.labels == 3 ? 1.25 : 1.0;
    double size = std::clamp(std::min(face.height() * 0.42, face.width() * 0.30) * zoom, 7.0, 30.0);
    font.setPixelSize(static_cast<int>(size));
    font.setBold(id == fid::Enter || id == fid::Equals || RoleOf(id) == KeyRole::Number);
    // Long legends shrink until they fit the face.
    while (size > 6 && QFontMetricsF(font).horizontalAdvance(legend) > face.width() * 0.88) {
        size -= 1;
        font.setPixelSize(static_cast<int>(size));
    }
    painter.setFont(font);
    painter.setPen(textColour);
    painter.drawText(drawn, Qt::AlignCenter, legend);

    const FunctionId other = OtherId(index);
    if (other == kNoKey || m_look.show == 1) return;
    const QString small = LegendOf(other);
    QRectF strip(cell.left(), cell.top(), cell.width(), face.top() - cell.top());
    if (m_look.show == 3) strip = QRectF(face.left(), face.top() + 1, face.width(), face.height() * 0.34);
    QFont smallFont = font;
    smallFont.setBold(false);
    double smallSize = std::clamp(std::min(strip.height() * 0.85, size * 0.7), 6.0, 20.0);
    smallFont.setPixelSize(static_cast<int>(smallSize));
    while (smallSize > 5 && QFontMetricsF(smallFont).horizontalAdvance(small) > cell.width()) {
        smallSize -= 1;
        smallFont.setPixelSize(static_cast<int>(smallSize));
    }
    painter.setFont(smallFont);
    painter.setPen(c.shiftedText);
    painter.drawText(strip, Qt::AlignHCenter | Qt::AlignBottom, small);
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
        const FunctionId id = m_look.shifted ? Key(index).shifted : Key(index).unshifted;
        QString tip = FullNameOf(id);
        const QString hardware = HardwareKeyOf(id);
        if (!hardware.isEmpty()) tip += QStringLiteral(" (%1)").arg(hardware);
        QToolTip::showText(help->globalPos(), tip, this, CellRect(index));
        return true;
    }
    return QWidget::event(event);
}

}  // namespace brinto
