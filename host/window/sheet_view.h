#pragma once

#include "page_placement.h"

#include <QImage>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

namespace kelvo {

// One side as it is shown: before it is drawn, and then.
struct SideLook
{
    SidePlacement placement; // of the document's pages
    QList<QRectF> borders;   // points; lines that are printed around pages
    QImage picture;          // all of the side; null: not drawn
    QStringList notes;       // one for each page's place; empty where it is seen
};

// The sheet that one looks at and what lies on it: white paper in any theme, the shadow below it,
// what is lost of a page that it cuts, the fold.
class SheetView : public QWidget
{
public:
    using QWidget::QWidget;

    std::function<void(int)> step; // so many sides back or forward, ends included
    std::function<void()> changed; // size, pixels or visibility

    SideLook wanted;               // what the side is, or shall be
    std::optional<SideLook> drawn; // and what was drawn last
    QString words;                 // what the sheet is, where no page is printed on it
    bool isMarked = false;         // a page is an exception
    QString message;               // in place of a sheet
    bool isEmpty = true;

    // Where the side lies, with all of a page that the sheet cuts: in the middle, in whole
    // pixels, because a hair of grey along an edge looks like a printed line.
    QRectF allRect(const SidePlacement &side) const;
    // Logical pixels of what is placed in points.
    QRectF onScreen(const SidePlacement &side, const QRectF &points) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;

private:
    QRectF sheetRect(const SidePlacement &side) const;
    void paintFocus(QPainter &painter, const QRectF &around) const;
    void paintMark(QPainter &painter, const QRectF &sheet) const;
    void paintPicture(QPainter &painter, const SideLook &shown) const;
    void paintLoss(QPainter &painter, const SidePlacement &side, const QRectF &sheet) const;
    void paintFold(QPainter &painter, const SidePlacement &side) const;
    void paintPlaces(QPainter &painter, const SideLook &shown) const;

    int m_wheel = 0; // turned, but less than a notch
};

} // namespace kelvo
