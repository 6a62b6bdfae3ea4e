#include "angle_dial.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelvo {

namespace {

constexpr int coarseStep = 15; // degrees
constexpr double disabledOpacity = 0.4;

} // namespace

int wrappedAngle(int degrees)
{
    const int within = degrees % 360;
    return within > 180 ? within - 360 : within <= -180 ? within + 360 : within;
}

AngleDial::AngleDial(QWidget *parent)
    : QAbstractSlider(parent)
{
    setRange(-179, 180);
    setPageStep(coarseStep);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize AngleDial::sizeHint() const
{
    const int side = fontMetrics().height() * 3;
    return {side, side};
}

void AngleDial::paintEvent(QPaintEvent *)
{
    const double side = std::min(width(), height()) - 3;
    const double radius = side / 2;
    const QPalette &colors = palette();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    QColor rim = colors.color(QPalette::WindowText);
    rim.setAlphaF(0.5F);
    painter.setPen(hasFocus() ? QPen(colors.color(QPalette::Highlight), 2) : QPen(rim, 1));
    painter.setBrush(colors.color(QPalette::Base));
    painter.drawEllipse(QPointF(), radius, radius);
    // Where the keys and Shift would stop.
    for (int degrees = 0; degrees < 360; degrees += 3 * coarseStep) {
        const double angle = degrees * std::numbers::pi / 180;
        const QPointF way(std::cos(angle), -std::sin(angle));
        painter.setPen(QPen(rim, 1));
        painter.drawLine(way * (radius - 4), way * (radius - 1));
    }
    const double angle = value() * std::numbers::pi / 180;
    const QPointF hand = QPointF(std::cos(angle), -std::sin(angle)) * (radius - 7);
    painter.setPen(QPen(colors.color(QPalette::Text), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(), hand);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.color(QPalette::Highlight));
    painter.drawEllipse(hand, 3.5, 3.5);
}

void AngleDial::keyPressEvent(QKeyEvent *event)
{
    int by = 0;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        by = 1;
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
        by = -1;
        break;
    case Qt::Key_PageUp:
        by = coarseStep;
        break;
    case Qt::Key_PageDown:
        by = -coarseStep;
        break;
    default:
        QAbstractSlider::keyPressEvent(event);
        return;
    }
    setSliderPosition(wrappedAngle(value() + by));
}

void AngleDial::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    pointTo(event->position(), event->modifiers() & Qt::ShiftModifier);
}

void AngleDial::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        pointTo(event->position(), event->modifiers() & Qt::ShiftModifier);
}

void AngleDial::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
}

void AngleDial::pointTo(const QPointF &pointer, bool isCoarse)
{
    const QPointF way = pointer - QRectF(rect()).center();
    if (way.isNull())
        return;
    const double degrees = std::atan2(-way.y(), way.x()) * 180 / std::numbers::pi;
    const int step = isCoarse ? coarseStep : 1;
    setSliderPosition(wrappedAngle(static_cast<int>(std::lround(degrees / step)) * step));
}

} // namespace kelvo
