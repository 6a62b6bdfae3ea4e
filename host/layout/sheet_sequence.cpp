#include "sheet_sequence.h"

#include <algorithm>

namespace kelvo {

namespace {

SpecialSheets::Exception within(SpecialSheets::Exception exception, int pages)
{
    exception.lastPage = std::min(exception.lastPage, pages);
    return exception;
}

} // namespace

SheetSequence::SheetSequence(int pages, bool twoSided, const SpecialSheets &special,
                             const std::optional<Imposition> &imposition, bool hasLeadingPage)
    : m_pages(pages)
    , m_isBooklet(imposition && imposition->kind == Imposition::Kind::Booklet)
{
    using enum SheetSide::Kind;
    if (pages < 1)
        return;
    if (hasLeadingPage)
        add({.kind = LeadingPage, .sheet = 0}, 1, 0);
    if (special.frontCover == SpecialSheets::Cover::Sheet)
        add({.kind = FrontCover}, 1, 1);
    if (m_isBooklet)
        addBooklet(special);
    else
        addPages(twoSided, special);
    if (special.backCover == SpecialSheets::Cover::Sheet)
        add({.kind = BackCover, .page = pages}, 1, 1);
}

void SheetSequence::addPages(bool twoSided, const SpecialSheets &special)
{
    auto insert = special.inserts.cbegin();
    const auto addInserts = [&](int page) {
        for (; insert != special.inserts.cend() && insert->afterPage <= page; ++insert)
            add({.kind = SheetSide::Kind::Insert, .sheets = insert->sheets, .page = page}, 1,
                insert->sheets);
    };

    addInserts(0);
    auto exception = special.exceptions.cbegin();
    for (int page = 1; page <= m_pages;) {
        while (exception != special.exceptions.cend() && exception->lastPage < page)
            ++exception;
        int last = m_pages;
        if (insert != special.inserts.cend())
            last = std::min(last, insert->afterPage);
        SheetSide first{.page = page, .isTwoSided = twoSided};
        if (exception != special.exceptions.cend() && exception->firstPage <= page) {
            last = std::min(last, exception->lastPage);
            first.isTwoSided = exception->twoSided.value_or(twoSided);
            first.exceptions = {within(*exception, m_pages)};
        } else if (exception != special.exceptions.cend()) {
            last = std::min(last, exception->firstPage - 1);
        }
        const int count = last - page + 1;
        add(first, count, first.isTwoSided ? count / 2 + count % 2 : count);
        addInserts(last);
        page = last + 1;
    }
}

void SheetSequence::addBooklet(const SpecialSheets &special)
{
    m_exceptions = special.exceptions;
    const int sheets = bookletSheets(m_pages);
    add({.kind = SheetSide::Kind::Booklet, .page = 1, .isTwoSided = true}, 2 * sheets, sheets);
    for (const SpecialSheets::Insert &insert : special.inserts) {
        if (insert.afterPage <= m_pages)
            add({.kind = SheetSide::Kind::Insert,
                 .sheets = insert.sheets,
                 .page = m_pages,
                 .isAnywhere = true},
                1, insert.sheets);
    }
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
    if (run.first.kind == SheetSide::Kind::Booklet)
        return bookletSide(run, at);
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

SheetSide SheetSequence::bookletSide(const Run &run, int at) const
{
    SheetSide side = run.first;
    side.bookletPages = bookletPages(m_pages, at, ReadingOrder::LeftToRight);
    side.bookletSheet = at / 2;
    side.sheet += side.bookletSheet;
    side.isBack = at % 2 != 0;
    side.page = std::min(at + 1, m_pages); // both places of one page's back are blank
    BookletPages inOrder = side.bookletPages;
    std::ranges::sort(inOrder);
    for (int page : inOrder) {
        const auto exception =
            std::ranges::lower_bound(m_exceptions, page, {}, &SpecialSheets::Exception::lastPage);
        if (page == 0 || exception == m_exceptions.cend() || exception->firstPage > page)
            continue;
        if (const auto range = within(*exception, m_pages); !side.exceptions.contains(range))
            side.exceptions << range;
    }
    return side;
}

int SheetSequence::indexOfPage(int page) const
{
    if (page < 1 || page > m_pages)
        return -1;
    if (m_isBooklet) {
        const auto isBooklet = [](const Run &run) {
            return run.first.kind == SheetSide::Kind::Booklet;
        };
        return std::ranges::find_if(m_runs, isBooklet)->index + bookletSideOf(page, m_pages);
    }
    // Inserts bear the number of the page before them, so the run wanted is the last
    // one that begins below `page`, unless one begins with it.
    auto run =
        std::lower_bound(m_runs.cbegin(), m_runs.cend(), page,
                         [](const Run &each, int wanted) { return each.first.page < wanted; });
    const auto holds = [page](const Run &each) {
        return each.first.kind == SheetSide::Kind::Page && page >= each.first.page
            && page - each.first.page < each.count;
    };
    if (run == m_runs.cend() || !holds(*run))
        --run;
    return run->index + page - run->first.page;
}

} // namespace kelvo
