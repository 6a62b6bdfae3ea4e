#include "printer_list_model.h"

#include "printer_words.h"
#include "tool_tip.h"

#include <algorithm>
#include <numeric>

namespace kelvo {

PrinterFilter::Hits PrinterListModel::hits()
{
    if (!m_typed.isEmpty()) {
        if (!m_isFilterMade)
            m_filter = PrinterFilter(m_printers);
        m_isFilterMade = true;
        return m_filter.find(m_typed);
    }
    PrinterFilter::Hits all;
    all.rows.resize(std::size_t(m_printers.size()));
    std::iota(all.rows.begin(), all.rows.end(), 0);
    all.best = m_printers.isEmpty() ? -1 : 0;
    return all;
}

void PrinterListModel::setPrinters(const QList<Printer> &printers, const QString &chosen)
{
    m_isFilterMade = false;
    m_chosen = chosen;
    if (!std::ranges::equal(m_printers, printers, {}, &Printer::name, &Printer::name)) {
        beginResetModel();
        m_printers = printers;
        m_hits = hits();
        endResetModel();
        return;
    }
    m_printers = printers;
    PrinterFilter::Hits now = hits();
    if (now.rows != m_hits.rows) { // a place or a model is another one
        beginResetModel();
        m_hits = std::move(now);
        endResetModel();
    } else if (!m_hits.rows.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

void PrinterListModel::find(const QString &typed)
{
    if (typed == m_typed)
        return;
    m_typed = typed;
    beginResetModel();
    m_hits = hits();
    endResetModel();
}

int PrinterListModel::rowOf(const QString &name) const
{
    const auto found =
        std::ranges::find_if(m_hits.rows, [&](int at) { return m_printers[at].name == name; });
    return found == m_hits.rows.end() ? -1 : int(found - m_hits.rows.begin());
}

int PrinterListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_hits.rows.size());
}

QVariant PrinterListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Printer &printer = printerAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return printer.name;
    case Qt::ToolTipRole:
        return plainToolTip(printerInFull(printer));
    case Qt::AccessibleTextRole:
        return printerAsHeard(printer, isChosen(index.row()));
    default:
        return {};
    }
}

} // namespace kelvo
