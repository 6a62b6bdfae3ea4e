#include "panel_switch.h"

#include <QPainter>
#include <QPainterPath>

namespace kelvo {

namespace {

constexpr double cornerRadius = 5;
constexpr int sidePadding = 18; // left and right of a title
constexpr int topPadding = 5;   // above and below it

QColor mixed(const QColor &one, const QColor &other, double share)
{
    return QColor::fromRgbF(float(one.redF() * (1 - share) + other.redF() * share),
                            float(one.greenF() * (1 - share) + other.greenF() * share),
                            float(one.blueF() * (1 - share) + other.blueF() * share));
}

} // namespace

PanelSwitch::PanelSwitch(QWidget *parent)
    : TabControl(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideRight);
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize PanelSwitch::tabSizeHint(int index) const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.size(Qt::TextShowMnemonic, tabText(index)).width() + 2 * sidePadding,
            metrics.height() + 2 * topPadding + 2};
}

QSize PanelSwitch::minimumTabSizeHint(int index) const
{
    return {fontMetrics().averageCharWidth() * 5 + 2 * topPadding, tabSizeHint(index).height()};
}

void PanelSwitch::paintEvent(QPaintEvent *)
{
    if (count() == 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette colours = palette();
    const QRectF frame =
        QRectF(tabRect(0).united(tabRect(count() - 1))).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath shape;
    shape.addRoundedRect(frame, cornerRadius, cornerRadius);

    const QColor line =
        mixed(colours.color(QPalette::Window), colours.color(QPalette::WindowText), 0.28);
    painter.fillPath(shape, colours.color(QPalette::Button));
    painter.setClipPath(shape);
    const QPoint mouse = mapFromGlobal(QCursor::pos());
    for (int i = 0; i < count(); ++i) {
        const QRect segment = tabRect(i);
        const bool isChosen = i == currentIndex();
        if (isChosen)
            painter.fillRect(segment, colours.color(QPalette::Highlight));
        else if (underMouse() && segment.contains(mouse))
            painter.fillRect(
                segment,
                mixed(colours.color(QPalette::Button), colours.color(QPalette::ButtonText), 0.08));
        if (i > 0 && !isChosen && i - 1 != currentIndex()) {
            painter.setPen(line);
            painter.drawLine(QPointF(segment.left() + 0.5, frame.top() + 5),
                             QPointF(segment.left() + 0.5, frame.bottom() - 5));
        }
        painter.setPen(colours.color(isChosen ? QPalette::HighlightedText : QPalette::ButtonText));
        const QRect textArea = segment.adjusted(topPadding, 0, -topPadding, 0);
        painter.drawText(textArea, Qt::AlignCenter | Qt::TextShowMnemonic,
                         fontMetrics().elidedText(tabText(i), Qt::ElideRight, textArea.width(),
                                                  Qt::TextShowMnemonic));
    }
    painter.setClipping(false);
    painter.setPen(line);
    painter.drawPath(shape);
    if (hasFocus()) {
        painter.setPen(QPen(colours.color(QPalette::HighlightedText), 2));
        painter.drawRoundedRect(QRectF(tabRect(currentIndex())).adjusted(3.5, 3.5, -3.5, -3.5),
                                cornerRadius - 2, cornerRadius - 2);
    }
}

} // namespace kelvo
