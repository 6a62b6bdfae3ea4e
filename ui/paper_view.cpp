#include "paper_view.h"

#include "accessible_role.h"
#include "control_interface.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace kelvo {

namespace {

constexpr QSizeF letter(612, 792); // points
constexpr int rim = 6;             // logical pixels around the paper, for the focus
constexpr int margin = 8;          // logical pixels between the paper's edge and words
constexpr int coarseSteps = 10;    // of an arrow key with Shift

} // namespace

PaperView::PaperView(QWidget *parent)
    : QWidget(parent)
    , m_paper(letter)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PaperView::setPaper(const QSizeF &points)
{
    // Written so that a side that is no number is none.
    const QSizeF paper = points.width() > 0 && points.height() > 0 ? points : letter;
    if (paper == m_paper)
        return;
    m_paper = paper;
    update();
    emit pixelsChanged();
}

void PaperView::setPage(const QImage &page)
{
    m_page = page;
    update();
}

void PaperView::setMark(const QImage &mark, double opacity)
{
    m_mark = mark;
    m_markOpacity = opacity;
    update();
}

void PaperView::setNote(const QString &note)
{
    m_note = note;
    update();
}

void PaperView::setMovable(bool isMovable)
{
    if (isMovable == m_isMovable)
        return; // a drag goes on
    m_isMovable = isMovable;
    m_pressedAt.reset();
    setFocusPolicy(isMovable ? Qt::StrongFocus : Qt::NoFocus);
    if (isMovable)
        setCursor(Qt::SizeAllCursor);
    else
        unsetCursor();
}

QSize PaperView::pixels() const
{
    return (paperRect().size() * devicePixelRatioF()).toSize();
}

double PaperView::pixelsPerPoint() const
{
    const QSizeF room = QSizeF(size()) - QSizeF(2 * rim, 2 * rim);
    return std::max(0.01,
                    std::min(room.width() / m_paper.width(), room.height() / m_paper.height()));
}

QSize PaperView::sizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 17, em * 22};
}

QSize PaperView::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 8, em * 8};
}

QRectF PaperView::paperRect() const
{
    QRectF paper(QPointF(), m_paper * pixelsPerPoint());
    paper.moveCenter(QRectF(rect()).center());
    // Whole pixels: a hair of grey along an edge looks like a printed line.
    return QRectF(paper.toRect());
}

void PaperView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF paper = paperRect();
    painter.fillRect(paper, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_page.isNull())
        painter.drawImage(paper, m_page);
    if (!m_mark.isNull()) {
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.setOpacity(m_markOpacity);
        painter.drawImage(paper, m_mark);
        painter.setOpacity(1);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    if (!m_note.isEmpty()) {
        // On paper, which is white in any theme, and over a page that is not to be read now.
        painter.fillRect(paper, QColor(255, 255, 255, 210));
        painter.setPen(QColor(40, 40, 40));
        painter.drawText(paper.adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_note);
    }
    if (m_pressedAt) { // where the middle of the page is
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
        painter.drawLine(
            QLineF(paper.center().x(), paper.top(), paper.center().x(), paper.bottom()));
        painter.drawLine(
            QLineF(paper.left(), paper.center().y(), paper.right(), paper.center().y()));
    }
    painter.setPen(QColor(0, 0, 0, 60));
    painter.drawRect(paper.adjusted(-0.5, -0.5, 0.5, 0.5));
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(paper.adjusted(-4, -4, 4, 4), 3, 3);
    }
}

void PaperView::resizeEvent(QResizeEvent *)
{
    emit pixelsChanged();
}

bool PaperView::event(QEvent *event)
{
    const bool isTaken = QWidget::event(event);
    if (event->type() == QEvent::ScreenChangeInternal) // other pixels
        emit pixelsChanged();
    return isTaken;
}

void PaperView::keyPressEvent(QKeyEvent *event)
{
    const int steps = event->modifiers() & Qt::ShiftModifier ? coarseSteps : 1;
    const auto nudge = [&](int right, int up) {
        if (m_isMovable)
            emit nudged(right * steps, up * steps);
        else
            QWidget::keyPressEvent(event);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return nudge(-1, 0);
    case Qt::Key_Right:
        return nudge(1, 0);
    case Qt::Key_Up:
        return nudge(0, 1);
    case Qt::Key_Down:
        return nudge(0, -1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void PaperView::mousePressEvent(QMouseEvent *event)
{
    if (!m_isMovable || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_pressedAt = event->position();
    emit dragBegan();
    update();
}

void PaperView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressedAt)
        return;
    const QPointF by = (event->position() - *m_pressedAt) / pixelsPerPoint();
    emit dragged({by.x(), -by.y()});
}

void PaperView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressedAt.reset();
    update();
}

namespace {

class PaperViewInterface : public InterfaceOf<PaperView>
{
public:
    using InterfaceOf::InterfaceOf;

    QString text() const override { return widget()->note(); }
    QString commands() const override { return QStringLiteral("drag"); }
    bool isUnfinished() const override { return widget()->isUnfinished(); }
    double pixelsPerPoint() const override { return widget()->pixelsPerPoint(); }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(PaperView *view)
{
    return std::make_unique<PaperViewInterface>(view);
}

} // namespace kelvo
