#pragma once

#include "printer_filter.h"
#include "printers.h"

#include <QAbstractListModel>

#include <vector>

namespace kelvo {

// Printers, or those of them that somebody looks for; a row each. Nothing is made of a printer
// before its row is seen.
class PrinterListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // What is looked for stays. Where the rows stay as well, they only change.
    // `chosen` is the name of the one that the job is for.
    void setPrinters(const QList<Printer> &printers, const QString &chosen);
    void find(const QString &typed); // all for blanks

    const QString &typed() const { return m_typed; }
    int printerCount() const { return int(m_printers.size()); } // with those that are not found
    const Printer &printerAt(int row) const { return m_printers[m_hits.rows[std::size_t(row)]]; }
    const QString &chosen() const { return m_chosen; }
    bool isChosen(int row) const { return printerAt(row).name == m_chosen; }
    int rowOf(const QString &name) const;       // -1: not there, or not found
    int bestRow() const { return m_hits.best; } // of what is looked for; -1: none

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    PrinterFilter::Hits hits();

    QList<Printer> m_printers;
    QString m_chosen;
    QString m_typed;
    PrinterFilter m_filter; // of m_printers; made when first something is looked for
    bool m_isFilterMade = false;
    PrinterFilter::Hits m_hits;
};

} // namespace kelvo
