#include "sheet_sequence.h"

#include <algorithm>

namespace kelvo {

SheetSequence::SheetSequence(int pages, bool twoSided, const SpecialSheets &special)
{
    using enum SheetSide::Kind;
    if (pages < 1)
        return;
    auto insert = special.inserts.cbegin();
    const auto addInserts = [&](int page) {
        for (; insert != special.inserts.cend() && insert->afterPage <= page; ++insert)
            add({.kind = Insert, .sheets = insert->sheets, .page = page}, 1, insert->sheets);
    };

    if (special.frontCover == SpecialSheets::Cover::Sheet)
        add({.kind = FrontCover}, 1, 1);
    addInserts(0);
    auto exception = special.exceptions.cbegin();
    for (int page = 1; page <= pages;) {
        while (exception != special.exceptions.cend() && exception->lastPage < page)
            ++exception;
        int last = pages;
        if (insert != special.inserts.cend())
            last = std::min(last, insert->afterPage);
        SheetSide first{.page = page, .isTwoSided = twoSided};
        if (exception != special.exceptions.cend() && exception->firstPage <= page) {
            last = std::min(last, exception->lastPage);
            first.isTwoSided = exception->twoSided.value_or(twoSided);
            first.exceptionFirst = exception->firstPage;
            first.exceptionLast = std::min(exception->lastPage, pages);
        } else if (exception != special.exceptions.cend()) {
            last = std::min(last, exception->firstPage - 1);
        }
        const int count = last - page + 1;
        add(first, count, first.isTwoSided ? count / 2 + count % 2 : count);
        addInserts(last);
        page = last + 1;
    }
    if (special.backCover == SpecialSheets::Cover::Sheet)
        add({.kind = BackCover, .page = pages}, 1, 1);
}

void SheetSequence::add(const SheetSide &first, int count, qint64 sheets)
{
    if (!m_runs.isEmpty() && m_runs.last().first.isTwoSided && m_runs.last().count % 2 != 0)
        ++m_sides; // the back that stays blank
    m_runs.append({first, m_sides, count});
    m_runs.last().first.sheet = m_sheets + 1;
    m_sides += count;
    m_sheets += sheets;
}

SheetSide SheetSequence::side(int index) const
{
    Q_ASSERT(index >= 0 && index < m_sides);
    const auto after =
        std::upper_bound(m_runs.cbegin(), m_runs.cend(), index,
                         [](int wanted, const Run &run) { return wanted < run.index; });
    const Run &run = *std::prev(after);
    const int at = index - run.index;
    SheetSide side = run.first;
    if (side.kind != SheetSide::Kind::Page)
        return side;
    if (at == run.count)
        side.kind = SheetSide::Kind::BlankBack;
    side.page += std::min(at, run.count - 1);
    side.sheet += side.isTwoSided ? at / 2 : at;
    side.isBack = side.isTwoSided && at % 2 != 0;
    return side;
}

int SheetSequence::indexOfPage(int page) const
{
    // Inserts bear the number of the page before them, so the run wanted is the last
    // one that begins below `page`, unless one begins with it.
    auto run =
        std::lower_bound(m_runs.cbegin(), m_runs.cend(), page,
                         [](const Run &each, int wanted) { return each.first.page < wanted; });
    const auto holds = [page](const Run &each) {
        return each.first.kind == SheetSide::Kind::Page && page >= each.first.page
            && page - each.first.page < each.count;
    };
    if (run == m_runs.cend() || !holds(*run)) {
        if (run == m_runs.cbegin() || !holds(*std::prev(run)))
            return -1;
        --run;
    }
    return run->index + page - run->first.page;
}

} // namespace kelvo
