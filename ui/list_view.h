#pragma once

#include <QStringList>
#include <QTreeView>

#include <functional>
#include <memory>
#include <vector>

namespace kelvo {

class ControlInterface;

class RowModel;

// A list with columns and any number of selected rows, made for 100,000 rows:
// it asks for the cells it shows. Sends ListSelection when the selection
// changes by the user, once for each action, and ListActivated on a double
// click (row -1 for the empty area) or Return. Rows count from 0.
//
// The last column takes what is left; where the rows in sight need more, it grows, up to a limit,
// and the list scrolls sideways. The user makes columns wider with the mouse, and as wide as what
// they show with a double click between their titles or, all of them, Ctrl++.
class ListView : public QTreeView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    struct Column
    {
        QString title;
        int width = 100;     // logical pixels, grows with the font
        QStringList texts{}; // that it is wide enough for in any case
    };
    // Text of a cell; called while painting, must be quick.
    using CellText = std::function<QString(int row, int column)>;
    void setColumns(const std::vector<Column> &columns, CellText text);

    // Tells the list that it has `count` rows now, whose texts may all be others;
    // the selection is cleared, silently, and the scroll position kept.
    void reload(int count);
    int rowCount() const;
    QString cellText(int row, int column) const;

    std::vector<int> selectedRows() const; // ascending
    // Selects these and no others; rows that are not there are left out. Silent
    // unless `asUser`.
    void selectRows(const std::vector<int> &rows, bool asUser = false);
    // As a double click: selects the row first; -1 for the empty area.
    void activateRow(int row);

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitLastColumn();
    void fitColumnsToRows();
    void sendActivated(int row);
    void sendPendingSelection();

    RowModel *m_model;
    int m_neededWidth = 0; // what the last column's rows asked for that have been in sight
    int m_usersWidth = 0;  // what the user made of it; 0 before
    bool m_isFitting = false;
    bool m_silent = false;
    bool m_isSelectionPending = false; // the user changed it, and it was not sent yet
};

std::unique_ptr<ControlInterface> interfaceOf(ListView *list);

} // namespace kelvo
