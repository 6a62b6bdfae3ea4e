#include "preview_layout.h"

#include <QCoreApplication>

namespace kelvo {

namespace {

bool isWide(const QSizeF &size)
{
    return size.width() > size.height();
}

QString tr(const char *text)
{
    return QCoreApplication::translate("DocumentPreview", text);
}

} // namespace

bool PagePlacement::isCut() const
{
    constexpr double rounding = 1.5; // points
    return page.width() > sheet.width() + rounding || page.height() > sheet.height() + rounding;
}

PagePlacement placePage(const QSizeF &page, const QSizeF &paper, Orientation orientation)
{
    const bool isLandscape =
        orientation == Orientation::Landscape || orientation == Orientation::ReverseLandscape;
    const bool isReverse =
        orientation == Orientation::ReversePortrait || orientation == Orientation::ReverseLandscape;

    PagePlacement placement;
    if (paper.isEmpty())
        placement.sheet = page;
    else
        placement.sheet = isLandscape ? paper.transposed() : paper;

    const bool isTurned = isWide(page) != isWide(placement.sheet) && page.width() != page.height();
    placement.page.setSize(isTurned ? page.transposed() : page);
    placement.page.moveCenter(QPointF(placement.sheet.width() / 2, placement.sheet.height() / 2));
    placement.rotation = (isTurned ? 270 : 0) + (isReverse ? 180 : 0);
    placement.rotation %= 360;
    return placement;
}

QString sideCaption(int index, bool twoSided, int page, int count)
{
    if (!twoSided)
        return tr("Sheet %1 · page %2 of %3").arg(index + 1).arg(page).arg(count);
    const QString text = index % 2 == 0 ? tr("Sheet %1, front · page %2 of %3")
                                        : tr("Sheet %1, back · page %2 of %3");
    return text.arg(index / 2 + 1).arg(page).arg(count);
}

QString cutCaption(const QString &caption)
{
    return tr("%1 · larger than the paper").arg(caption);
}

} // namespace kelvo
