#include "sheet_view.h"

#include "caution_colours.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kelvo {

namespace {

constexpr int rim = 10; // logical pixels around the sheet: its shadow and the focus ring
constexpr int shadowSteps = 6;
constexpr int wheelNotch = 120; // as Qt counts a wheel's turn
constexpr int toEnd = 1'000'000'000;

void paintShadow(QPainter &painter, const QRectF &sheet)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 11));
    for (int grow = 1; grow <= shadowSteps; ++grow) {
        const QRectF layer = sheet.adjusted(-grow, -grow, grow, grow).translated(0, 1.5);
        painter.drawRoundedRect(layer, grow, grow);
    }
    painter.restore();
}

void paintText(QPainter &painter, const QRectF &sheet, const QString &text)
{
    painter.setPen(QColor(90, 90, 90)); // on paper, which is white in any theme
    painter.drawText(sheet.adjusted(rim, rim, -rim, -rim), Qt::AlignCenter | Qt::TextWordWrap,
                     text);
}

QRectF inWholePixels(const QRectF &rect)
{
    return QRectF(rect.toAlignedRect());
}

} // namespace

// Where the side lies, with all of a page that the sheet cuts: in the middle, in whole
// pixels, because a hair of grey along an edge looks like a printed line.
QRectF SheetView::allRect(const SidePlacement &side) const
{
    const QSizeF room = QSizeF(size()) - QSizeF(2 * rim, 2 * rim);
    const QSizeF all = side.all().size();
    if (all.isEmpty() || room.isEmpty())
        return {};
    QRectF rect(QPointF(), all.scaled(room, Qt::KeepAspectRatio));
    rect.moveCenter(QRectF(this->rect()).center());
    return QRectF(rect.toAlignedRect());
}

// Logical pixels of what is placed in points.
QRectF SheetView::onScreen(const SidePlacement &side, const QRectF &points) const
{
    const QRectF all = side.all();
    const QRectF rect = allRect(side);
    const double across = rect.width() / all.width();
    const double down = rect.height() / all.height();
    return {rect.x() + (points.x() - all.x()) * across, rect.y() + (points.y() - all.y()) * down,
            points.width() * across, points.height() * down};
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!message.isEmpty() || isEmpty) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(rim, rim, -rim, -rim), Qt::AlignCenter | Qt::TextWordWrap,
                         message);
        if (hasFocus())
            paintFocus(painter, QRectF(rect()).adjusted(2, 2, -2, -2));
        return;
    }
    // Until the new side is drawn, the old one stays, on its own sheet.
    const SideLook &shown = words.isEmpty() && drawn ? *drawn : wanted;
    const SidePlacement &side = shown.placement;
    const QRectF sheet = side.losesPrint() ? inWholePixels(sheetRect(side)) : allRect(side);
    paintShadow(painter, sheet);
    painter.fillRect(sheet, Qt::white);
    if (words.isEmpty() && !shown.picture.isNull())
        paintPicture(painter, shown);
    if (side.losesPrint() && !shown.picture.isNull())
        paintLoss(painter, side, sheet);
    if (!side.fold.isNull())
        paintFold(painter, side);
    if (!words.isEmpty())
        paintText(painter, sheet, words);
    else
        paintPlaces(painter, shown);
    if (isMarked)
        paintMark(painter, sheet);
    painter.setPen(QColor(0, 0, 0, 45));
    painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
    if (hasFocus())
        paintFocus(painter, sheet.adjusted(-4, -4, 4, 4));
}

void SheetView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        return step(-1);
    case Qt::Key_PageDown:
        return step(1);
    case Qt::Key_Home:
        return step(-toEnd);
    case Qt::Key_End:
        return step(toEnd);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SheetView::wheelEvent(QWheelEvent *event)
{
    m_wheel += event->angleDelta().y();
    if (const int steps = m_wheel / wheelNotch; steps != 0) {
        m_wheel -= steps * wheelNotch;
        step(-steps);
    }
    event->accept();
}

void SheetView::resizeEvent(QResizeEvent *)
{
    changed();
}

void SheetView::showEvent(QShowEvent *)
{
    changed();
}

bool SheetView::event(QEvent *event)
{
    const bool isTaken = QWidget::event(event);
    // Another screen, other pixels.
    if (event->type() == QEvent::ScreenChangeInternal)
        changed();
    return isTaken;
}

void SheetView::paintFocus(QPainter &painter, const QRectF &around) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(around, 3, 3);
    painter.restore();
}

// The top right corner, where few pages have print.
void SheetView::paintMark(QPainter &painter, const QRectF &sheet) const
{
    const double side = std::min(fontMetrics().height() * 1.4, sheet.width() / 4);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawPolygon(QPolygonF({sheet.topRight() - QPointF(side, 0), sheet.topRight(),
                                   sheet.topRight() + QPointF(0, side)}));
    painter.restore();
}

QRectF SheetView::sheetRect(const SidePlacement &side) const
{
    return onScreen(side, {QPointF(), side.sheet});
}

void SheetView::paintPicture(QPainter &painter, const SideLook &shown) const
{
    QRectF rect = allRect(shown.placement);
    // Drawn for this very size, up to rounding: pixel upon pixel, or small
    // print would blur.
    const double ratio = devicePixelRatioF();
    const QSizeF size = QSizeF(shown.picture.size()) / ratio;
    const QSizeF difference = rect.size() - size;
    if (std::abs(difference.width()) * ratio <= 1 && std::abs(difference.height()) * ratio <= 1)
        rect.setSize(size);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect, shown.picture);
    painter.restore();
}

// All is seen of a page that is cut: the sheet as it comes out, and veiled around that
// what is lost.
void SheetView::paintLoss(QPainter &painter, const SidePlacement &side, const QRectF &sheet) const
{
    const QRectF page = inWholePixels(onScreen(side, side.pages.first().rect));
    QPainterPath lost;
    lost.addRect(page);
    QPainterPath kept;
    kept.addRect(sheet);
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(0.72F);
    painter.fillPath(lost - kept, veil);
    painter.setPen(QPen(QColor(110, 110, 110), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(page.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(cautionText(palette()), 2));
    painter.drawRect(sheet.adjusted(-1, -1, 1, 1));
}

// Thin and in a color that nobody takes for print.
void SheetView::paintFold(QPainter &painter, const SidePlacement &side) const
{
    const QRectF line = onScreen(side, {side.fold.p1(), side.fold.p2()});
    painter.setPen(QPen(QColor(110, 150, 200), 1, Qt::DashLine));
    painter.drawLine(line.topLeft().toPoint(), line.bottomRight().toPoint());
}

// What stands in place of pages, and the lines that are printed around pages.
void SheetView::paintPlaces(QPainter &painter, const SideLook &shown) const
{
    const SidePlacement &side = shown.placement;
    painter.setPen(Qt::black);
    for (const QRectF &border : shown.borders)
        painter.drawRect(onScreen(side, border).toRect().adjusted(0, 0, -1, -1));
    for (int place = 0; place < side.pages.size(); ++place) {
        if (!shown.notes.value(place).isEmpty())
            paintText(painter, onScreen(side, side.pages[place].place), shown.notes[place]);
    }
}

} // namespace kelvo
