#include "list_view.h"

#include "control_interface.h"
#include "control_support.h"
#include "texts.h"
#include "tool_tip.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int cellMargins = 12;     // logical pixels, of both sides
constexpr int usualFontHeight = 15; // logical pixels, of the font that widths are given for
constexpr int readableWidth = 450;  // so far the last column grows with its texts

} // namespace

// Asks for a cell when it is shown; keeps nothing itself.
class RowModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setColumns(const std::vector<ListView::Column> &columns, ListView::CellText text)
    {
        beginResetModel();
        m_columns = columns;
        m_text = std::move(text);
        endResetModel();
    }

    void setRowCount(int count)
    {
        beginResetModel();
        m_rows = count;
        endResetModel();
    }

    QString text(int row, int column) const
    {
        return m_text && row >= 0 && row < m_rows && column >= 0 && column < columnCount()
            ? m_text(row, column)
            : QString();
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }

    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return oneLine(text(index.row(), index.column()));
        if (role == Qt::ToolTipRole)
            return plainToolTip(text(index.row(), index.column()));
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
            return {};
        if (role == Qt::DisplayRole)
            return m_columns[static_cast<std::size_t>(section)].title;
        if (role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignLeading | Qt::AlignVCenter);
        return {};
    }

private:
    std::vector<ListView::Column> m_columns;
    ListView::CellText m_text;
    int m_rows = 0;
};

ListView::ListView(QWidget *parent)
    : QTreeView(parent)
    , m_model(new RowModel(this))
{
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);  // it would only grow
    header()->setResizeContentsPrecision(0); // the rows in sight
    connect(header(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (m_isFitting)
            return;
        if (column == m_model->columnCount() - 1)
            m_usersWidth = width;
        else
            fitLastColumn();
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ListView::fitLastColumn);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (m_silent || m_isSelectionPending)
            return;
        // One action of the user may change the selection in several steps.
        m_isSelectionPending = true;
        QMetaObject::invokeMethod(this, &ListView::sendPendingSelection, Qt::QueuedConnection);
    });
}

void ListView::setColumns(const std::vector<Column> &columns, CellText text)
{
    const QScopedValueRollback fitting(m_isFitting, true);
    m_model->setColumns(columns, std::move(text));
    int widestTitle = 0;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const Column &column = columns[static_cast<std::size_t>(i)];
        int width = column.width * fontMetrics().height() / usualFontHeight;
        for (const QString &shown : column.texts)
            width = std::max(width, fontMetrics().horizontalAdvance(shown) + cellMargins);
        const int title = header()->sectionSizeHint(i);
        widestTitle = std::max(widestTitle, title);
        header()->resizeSection(i, std::max(width, title));
    }
    header()->setMinimumSectionSize(widestTitle);
    m_usersWidth = m_neededWidth = 0;
    fitLastColumn();
}

// What the rows in sight needed once stays: a scroll bar that came for the last of them would
// hide it, and go again.
void ListView::fitLastColumn()
{
    const int last = m_model->columnCount() - 1;
    if (last < 0)
        return;
    const QScopedValueRollback fitting(m_isFitting, true);
    const int most = readableWidth * fontMetrics().height() / usualFontHeight;
    m_neededWidth = std::max(m_neededWidth, std::min(sizeHintForColumn(last), most));
    const int left = viewport()->width() - (header()->length() - header()->sectionSize(last));
    const int wanted = m_usersWidth > 0 ? m_usersWidth : m_neededWidth;
    header()->resizeSection(last, std::max(left, wanted));
}

void ListView::fitColumnsToRows()
{
    for (int column = 0; column < m_model->columnCount(); ++column)
        resizeColumnToContents(column);
    fitLastColumn();
}

void ListView::reload(int count)
{
    // Changing a row must not send the user back to the top of a long list.
    const int position = verticalScrollBar()->value();
    m_model->setRowCount(std::max(count, 0));
    doItemsLayout();
    verticalScrollBar()->setValue(position);
    m_neededWidth = 0;
    fitLastColumn();
}

int ListView::rowCount() const
{
    return m_model->rowCount();
}

QString ListView::cellText(int row, int column) const
{
    return m_model->text(row, column);
}

std::vector<int> ListView::selectedRows() const
{
    // Straight from the ranges: asking row by row takes seconds for 100,000.
    std::vector<int> rows;
    const QItemSelection ranges = selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ListView::selectRows(const std::vector<int> &rows, bool asUser)
{
    std::vector<int> wanted;
    for (const int row : rows) {
        if (row >= 0 && row < rowCount())
            wanted.push_back(row);
    }
    std::ranges::sort(wanted);
    const std::vector<int> before = selectedRows();

    QItemSelection selection;
    const int lastColumn = m_model->columnCount() - 1;
    for (std::size_t i = 0; i < wanted.size();) {
        std::size_t end = i + 1;
        while (end < wanted.size() && wanted[end] <= wanted[end - 1] + 1)
            ++end;
        selection.append(QItemSelectionRange(m_model->index(wanted[i], 0),
                                             m_model->index(wanted[end - 1], lastColumn)));
        i = end;
    }
    m_silent = true;
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!wanted.empty())
        selectionModel()->setCurrentIndex(m_model->index(wanted.front(), 0),
                                          QItemSelectionModel::NoUpdate);
    m_silent = false;
    if (asUser && selectedRows() != before)
        sendFrom(this, EventKind::ListSelection, kNoCommand, 0,
                 wanted.empty() ? -1 : wanted.front());
}

void ListView::activateRow(int row)
{
    const bool isRow = row >= 0 && row < rowCount();
    const QPointer<ListView> alive = this;
    if (isRow)
        selectRows({row}, true);
    if (alive)
        sendActivated(isRow ? row : -1);
}

void ListView::sendActivated(int row)
{
    const QPointer<ListView> alive = this;
    sendPendingSelection();
    if (alive)
        sendFrom(this, EventKind::ListActivated, kNoCommand, 0, row);
}

void ListView::sendPendingSelection()
{
    if (!std::exchange(m_isSelectionPending, false))
        return;
    const std::vector<int> rows = selectedRows();
    sendFrom(this, EventKind::ListSelection, kNoCommand, 0, rows.empty() ? -1 : rows.front());
}

void ListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QTreeView::mouseDoubleClickEvent(event);
        return;
    }
    const QModelIndex index = indexAt(event->pos());
    QTreeView::mouseDoubleClickEvent(event);
    sendActivated(index.isValid() ? index.row() : -1);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentIndex().isValid()) {
        event->accept(); // not the dialog's default button
        sendActivated(currentIndex().row());
        return;
    }
    if (event->matches(QKeySequence::ZoomIn)) {
        fitColumnsToRows();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ListView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    fitLastColumn();
}

namespace {

// The rows that describe() tells; more would only be a wall of text.
constexpr int describedRows = 100;

class ListViewInterface : public InterfaceOf<ListView>
{
public:
    using InterfaceOf::InterfaceOf;

    std::optional<int> items() override { return widget()->rowCount(); }
    QString commands() const override { return QStringLiteral("select, double-click"); }
    bool isUnfinished() const override { return isAwaited(widget()); }

    std::optional<std::vector<int>> selection() const override
    {
        std::vector<int> rows = widget()->selectedRows();
        for (int &row : rows)
            ++row;
        return rows;
    }

    Result<QString> cell(int row, int column) const override
    {
        if (row < 1 || row > widget()->rowCount() || column < 1 || column > columns())
            return Error{
                Error::Code::OutOfRange,
                {},
                translate("Controls", "there is no cell %1 %2; it has %3 rows and %4 columns")
                    .arg(row)
                    .arg(column)
                    .arg(widget()->rowCount())
                    .arg(columns())};
        return widget()->cellText(row - 1, column - 1);
    }

    // "rows", of which there may be many, and "rowCount".
    void describe(QJsonObject &object) override
    {
        QJsonArray rows;
        for (int row = 0; row < std::min(widget()->rowCount(), describedRows); ++row) {
            QJsonArray cells;
            for (int column = 0; column < columns(); ++column)
                cells.append(widget()->cellText(row, column));
            rows.append(cells);
        }
        object[QStringLiteral("rows")] = rows;
        object[QStringLiteral("rowCount")] = widget()->rowCount();
    }

    Result<void> select(const std::vector<int> &rows) override
    {
        std::vector<int> fromZero; // the empty area is no row, and left out
        for (const int row : rows) {
            if (row > widget()->rowCount())
                return refused(noSuchRow(control(), row, widget()->rowCount()));
            fromZero.push_back(row - 1);
        }
        widget()->selectRows(fromZero, true);
        return {};
    }

    Result<void> activate(int row) override
    {
        if (row < 0 || row > widget()->rowCount())
            return refused(noSuchRow(control(), row, widget()->rowCount()));
        widget()->activateRow(row - 1);
        return {};
    }

private:
    int columns() const { return widget()->model()->columnCount(); }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(ListView *list)
{
    return std::make_unique<ListViewInterface>(list);
}

} // namespace kelvo
