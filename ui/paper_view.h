#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace kelvo {

class ControlInterface;

// A sheet of paper, as large as fits: white on any theme, with a page on it and something that
// is printed over that page. What is printed over it can be moved, by the pointer from anywhere
// on the view and by the arrow keys.
class PaperView : public QWidget
{
    Q_OBJECT

public:
    explicit PaperView(QWidget *parent = nullptr);

    void setPaper(const QSizeF &points); // US Letter where a side is not above 0
    QSizeF paper() const { return m_paper; }
    // Stretched to the paper; a null image is nothing. The mark darkens the page, as ink does
    // on ink; `opacity` from 0 to 1.
    void setPage(const QImage &page);
    void setMark(const QImage &mark, double opacity = 1);
    // Words on the paper, in place of a mark that cannot be drawn.
    void setNote(const QString &note);
    // Something of it is on its way still, for those who take pictures of it.
    void setUnfinished(bool isUnfinished) { m_isUnfinished = isUnfinished; }
    bool isUnfinished() const { return m_isUnfinished; }

    bool isMovable() const { return m_isMovable; }
    void setMovable(bool isMovable);

    QSize pixels() const;          // of the paper, on this screen
    double pixelsPerPoint() const; // logical ones

    const QString &note() const { return m_note; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void pixelsChanged();
    // By the user, while it is movable. `by` is points to the right and up, since dragBegan().
    void dragBegan();
    void dragged(const QPointF &by);
    // By an arrow key: steps to the right and up, ten at a time with Shift.
    void nudged(int right, int up);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF paperRect() const;

    QSizeF m_paper;
    QImage m_page;
    QImage m_mark;
    double m_markOpacity = 1;
    QString m_note;
    bool m_isUnfinished = false;
    bool m_isMovable = false;
    std::optional<QPointF> m_pressedAt; // while it is dragged
};

std::unique_ptr<ControlInterface> interfaceOf(PaperView *view);

} // namespace kelvo
