#pragma once

#include <QStyledItemDelegate>

namespace kelvo {

// A row of a PrinterListModel on two lines: the printer's name, whether it is the default one,
// its state and why; and smaller its place and model. A check mark stands before the chosen one.
// A long name loses its middle, other texts their end.
class PrinterRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &given,
               const QModelIndex &index) const override;
    // All rows are as high; as wide as the list is.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    static int rowHeight(const QFont &font); // logical pixels
};

} // namespace kelvo
