#include "printer_filter.h"

#include "characters.h"

#include <QStringList>

#include <algorithm>

namespace kelvo {

PrinterFilter::PrinterFilter(const QList<Printer> &printers)
{
    m_texts.reserve(std::size_t(printers.size()));
    for (const Printer &printer : printers)
        m_texts.push_back(folded(
            QStringList{printer.name, printer.info, printer.location, printer.makeAndModel}.join(
                u'\n')));
}

PrinterFilter::Hits PrinterFilter::find(const QString &typed) const
{
    const QString text = folded(typed).simplified();
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    Hits hits;
    bool beginsSo = false;
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        const QString &printer = m_texts[i];
        if (!std::ranges::all_of(words,
                                 [&](const QString &word) { return printer.contains(word); }))
            continue;
        if (!beginsSo && (hits.best < 0 || printer.startsWith(text))) {
            beginsSo = printer.startsWith(text);
            hits.best = int(hits.rows.size());
        }
        hits.rows.push_back(int(i));
    }
    return hits;
}

} // namespace kelvo
