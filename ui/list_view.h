#pragma once

#include <QTreeView>

#include <functional>
#include <vector>

class QAbstractTableModel;

namespace kelvo {

// A list with columns and any number of selected rows, made for 100,000 rows:
// it asks for the cells it shows. Sends ListSelection when the selection
// changes by the user and ListActivated on a double click (row -1 for the empty
// area) or Return. Rows count from 0.
class ListView : public QTreeView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    struct Column
    {
        QString title;
        int width = 100; // logical pixels; the last one stretches
    };
    // Text of a cell; called while painting, must be quick.
    using CellText = std::function<QString(int row, int column)>;
    void setColumns(const std::vector<Column> &columns, CellText text);

    // Tells the list that it has `count` rows now; the selection is cleared.
    void reload(int count);
    int rowCount() const;
    QString cellText(int row, int column) const;

    std::vector<int> selectedRows() const; // ascending
    void selectRows(const std::vector<int> &rows, bool asUser = false);
    void activateRow(int row); // as a double click; -1 for the empty area

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QAbstractTableModel *m_model;
    bool m_silent = false;
};

} // namespace kelvo
