#include "document_preview.h"

#include "accessible_role.h"
#include "audience.h"
#include "booklet_imposition.h"
#include "page_placement.h"
#include "preview_captions.h"
#include "sheet_view.h"
#include "tool_tip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

// In place of a page that cannot be drawn; empty for one that can.
QString noteOn(PageProblem problem)
{
    switch (problem) {
    case PageProblem::None:
        return {};
    case PageProblem::NotDrawable:
        return DocumentPreview::tr("This page cannot be shown.");
    case PageProblem::TooSlow:
        return DocumentPreview::tr(
            "This page takes too long to be shown. The printer may still print it.");
    case PageProblem::TooLarge:
        return DocumentPreview::tr(
            "This page needs too much memory to be shown. The printer may still print it.");
    }
    return {};
}

} // namespace

struct DocumentPreview::Private
{
    Document document;
    Layout layout;
    PrintedPages pages;     // of `layout`, or the whole document
    SheetSequence sequence; // of them
    bool hasScaled = false; // some are not as the document has them
    int index = 0;          // of the shown side
    int followed = 0;       // the page that is followed where a side has two, as printed
    QString message;

    PageRenderer renderer;
    SheetView *sheet;
    QToolButton *previous;
    QToolButton *next;
    QLabel *caption;

    SideToDraw asked; // what the renderer was asked for last
    SideLook askedLook;
    std::optional<DrawnSide> answer; // none: it is still being drawn
    bool isPutOff = false;           // the renderer has not been asked yet

    int count() const { return sequence.sides(); }
    SheetSide side() const { return index < count() ? sequence.side(index) : SheetSide{}; }
    // The page on the shown side, or the last one before it, as printed; 0 for none.
    int printedPageInSight() const
    {
        const SheetSide shown = side();
        const bool isThere = followed > 0 && std::ranges::count(shown.bookletPages, followed) > 0;
        return isThere ? followed : shown.page;
    }
    // The first of the document's on it.
    int page() const { return pages.firstOnPage(printedPageInSight()); }
    int sidesBehindPage() const
    {
        return index - std::max(0, sequence.indexOfPage(printedPageInSight()));
    }

    static PrintedPages allOf(const Document &document)
    {
        PagesToPrint all;
        for (int page = 1; page <= document.pageCount(); ++page)
            all.chosen.push_back(page);
        all.sizeOf = [document](int page) { return document.pageSize(page); };
        return PrintedPages(std::move(all));
    }

    void setUpSequence()
    {
        // The same page stays in sight where it is still printed, and what comes
        // after it stays as far behind it.
        const int pageBefore = page();
        const int behind = sidesBehindPage();
        const bool wasAtTheBeginning = index == 0 && !isLeading();
        pages = layout.pages.count() > 0 ? layout.pages : allOf(document);
        hasScaled = false;
        for (int printed = 1; printed <= pages.count() && !hasScaled; ++printed)
            hasScaled = !pages.isAsItIs(printed);
        sequence = SheetSequence(pages.count(), layout.twoSided, layout.special, layout.imposition,
                                 layout.leadingPage.has_value());
        // A page may be printed twice.
        const bool isThere = page() == pageBefore && sidesBehindPage() == behind;
        // Who looks at the beginning sees what comes before it now.
        const bool stays = isThere || (wasAtTheBeginning && isLeading());
        const int printed = stays ? 0 : pages.findPrinted(pageBefore);
        if (printed > 0) {
            followed = printed;
            index = sequence.indexOfPage(printed) + behind;
        }
        index = std::clamp(index, 0, std::max(0, count() - 1));
        followed = printedPageInSight();
    }

    void step(int by)
    {
        const int last = std::max(0, count() - 1);
        const int wanted = static_cast<int>(std::clamp<qint64>(qint64(index) + by, 0, last));
        if (wanted == index || !message.isEmpty())
            return;
        index = wanted;
        followed = side().page;
        sync();
    }

    bool isLeading() const { return side().kind == SheetSide::Kind::LeadingPage; }

    // The pages that go out on a side, place by place; 0 for a blank one. The leading page is
    // none of them.
    static QList<int> printedPages(const SheetSide &shown)
    {
        if (shown.kind == SheetSide::Kind::LeadingPage)
            return {};
        if (shown.kind == SheetSide::Kind::Booklet)
            return {shown.bookletPages[0], shown.bookletPages[1]};
        return {shown.kind == SheetSide::Kind::Page ? shown.page : 0};
    }

    // Where they lie on the sheet.
    SidePlacement placementOf(const SheetSide &shown) const
    {
        if (shown.kind == SheetSide::Kind::LeadingPage)
            return placePage(layout.leadingPage->size, {}, Orientation::Portrait);
        if (layout.imposition) {
            // Covers and inserts are folded with the sheets that they lie around or in.
            BookletSide side;
            side.shape = pages.size(1);
            side.sheet = shown.bookletSheet;
            for (std::size_t place = 0; place < side.pages.size(); ++place) {
                if (const int printed = shown.bookletPages[place]; printed > 0)
                    side.pages[place] = pages.size(printed);
            }
            return placeBooklet(side, *layout.imposition, layout.paper, layout.orientation);
        }
        // Before the first page, sheets are like the one that it is on.
        const QSizeF size = pages.size(std::max(1, printedPageInSight()));
        if (pages.layout().pagesPerSide == 1)
            return placePage(size, layout.paper, layout.orientation);
        // Several pages have turned the sheet as they need it, and one looks at it so.
        SidePlacement side = placePage(size, {}, Orientation::Portrait);
        if (isReverse(layout.orientation))
            side.turnOver();
        return side;
    }

    // What of the document lies on a side, place by place.
    struct PlacedPages
    {
        SidePlacement placement;
        QList<int> pages; // 0: none
        QStringList notes = {};
        QList<QRectF> borders = {};
    };
    PlacedPages placedPages(const SheetSide &shown, const SidePlacement &side) const
    {
        if (shown.kind == SheetSide::Kind::LeadingPage)
            return {side, {0}, {QString()}};
        const bool hasBorders = layout.imposition && layout.imposition->drawsBorders;
        PlacedPages placed{side, {}};
        placed.placement.pages.clear();
        const QList<int> printed = printedPages(shown);
        for (int place = 0; place < printed.size(); ++place) {
            const PagePlacement &outer = side.pages[place];
            const QList<int> onPage = pages.onPage(printed[place]);
            if (std::ranges::count(onPage, 0) == onPage.size()) {
                placed.placement.pages << PagePlacement{.rect = {}, .place = outer.place};
                placed.pages << 0;
                placed.notes << blankWords();
                continue;
            }
            if (hasBorders)
                placed.borders << outer.rect;
            const SidePlacement inner = placedWithin(outer, pages.placement(printed[place]));
            for (int within = 0; within < onPage.size(); ++within) {
                PagePlacement page = inner.pages[within];
                if (pages.isAsItIs(printed[place]))
                    page.place = outer.place; // the sheet cuts it, if anything does
                placed.placement.pages << page;
                placed.pages << onPage[within];
                placed.notes << QString();
                if (pages.layout().drawsBorders && onPage.size() > 1 && onPage[within] > 0)
                    placed.borders << (page.rect & page.place);
            }
        }
        return placed;
    }

    // From what is printed to what is shown.
    void sync()
    {
        const bool hasSide = message.isEmpty() && count() > 0;
        previous->setEnabled(hasSide && index > 0);
        next->setEnabled(hasSide && index + 1 < count());
        sheet->message = message;
        sheet->isEmpty = count() == 0;
        if (count() > 0)
            showSide(side());
        showCaption();
        sheet->update();
        request();
    }

    void showSide(const SheetSide &shown)
    {
        const PlacedPages placed = placedPages(shown, placementOf(shown));
        sheet->wanted = {placed.placement, placed.borders, {}, placed.notes};
        const bool hadWords = !sheet->words.isEmpty();
        sheet->words = sheetWords(shown, layout.words);
        sheet->isMarked = !shown.exceptions.isEmpty();
        // The page before an insert is no stand-in for the one after it.
        if (hadWords && sheet->words.isEmpty() && page() != askedPage())
            sheet->drawn.reset();
    }

    void showCaption()
    {
        // Room for a remark, so that sheets do not change their size as one turns them.
        const bool hasRemarks =
            layout.imposition || hasScaled || !layout.special.exceptions.isEmpty();
        caption->setMinimumHeight(hasRemarks ? 2 * caption->fontMetrics().lineSpacing() : 0);
        QString text;
        if (message.isEmpty() && count() > 0) {
            const SheetSide shown = side();
            text = sideCaption(shown, pages, document.pageCount(), layout.words,
                               layout.leadingPage ? layout.leadingPage->name : QString());
            const QStringList lacking = answer ? answer->lackingOverlays : QStringList();
            const QString remark =
                remarkCaption(shown, sheet->wanted.placement, lacking, layout.words);
            if (!remark.isEmpty())
                text += u'\n' + remark;
        }
        caption->setText(text);
        sheet->setAccessibleDescription(message.isEmpty() ? text : message);
    }

    int askedPage() const { return asked.pages.isEmpty() ? 0 : asked.pages.first().page; }

    // What is drawn on the shown side, in pixels of its picture.
    SideToDraw sideToDraw() const
    {
        const SidePlacement &placement = sheet->wanted.placement;
        const QRectF all = sheet->allRect(placement);
        const double ratio = sheet->devicePixelRatioF();
        const auto pixels = [&](const QRectF &points) {
            const QRectF rect = sheet->onScreen(placement, points).translated(-all.topLeft());
            return QRect((rect.topLeft() * ratio).toPoint(), (rect.size() * ratio).toSize());
        };
        SideToDraw drawing;
        drawing.pixels = (all.size() * ratio).toSize();
        if (isLeading())
            drawing.leadingPage = layout.leadingPage;
        const SheetSide shown = side();
        const SidePlacement outer = placementOf(shown);
        const PlacedPages placed = placedPages(shown, outer);
        for (int place = 0; place < placed.pages.size(); ++place) {
            if (placed.pages[place] == 0)
                continue;
            const PagePlacement &page = placed.placement.pages[place];
            SideToDraw::Page drawn{placed.pages[place], pixels(page.rect), page.rotation};
            if (placed.pages.size() > 1)
                drawn.clip = pixels(page.place);
            drawing.pages << drawn;
        }
        const QList<int> printed = printedPages(shown);
        for (int place = 0; place < printed.size(); ++place) {
            if (printed[place] == 0)
                continue;
            const OverlayPlacement over = placeOverlay(outer, place);
            for (const Overlay &overlay : layout.overlays) {
                if (!overlay.firstPageOnly || printed[place] == 1)
                    drawing.overlays << SideToDraw::OverlayOnPage{
                        overlay, over.page, pixels(over.rect), outer.isUpsideDown ? 180 : 0};
            }
        }
        return drawing;
    }

    void request()
    {
        if (!sheet->isVisible() || sheet->isEmpty || !message.isEmpty() || !sheet->words.isEmpty())
            return;
        const SideToDraw drawing = sideToDraw();
        if (drawing.pixels.isEmpty())
            return;
        if (drawing.isBlank()) { // both sides of a fold are blank
            forgetAsked();
            return;
        }
        askedLook = sheet->wanted;
        if (drawing != asked) {
            asked = drawing;
            answer.reset();
            isPutOff = audience() != Audience::People;
            if (!isPutOff)
                renderer.render(drawing);
        } else if (answer) {
            showAnswer(); // the same picture; its lines may be others
        }
    }

    void forgetAsked()
    {
        asked = {};
        answer.reset();
        sheet->drawn.reset();
    }

    void take(const DrawnSide &side)
    {
        if (asked.isBlank() || isPutOff)
            return; // another side is shown by now
        answer = side;
        showAnswer();
    }

    void showAnswer()
    {
        SideLook look = askedLook;
        look.picture = answer->picture;
        auto problem = answer->problems.cbegin();
        for (QString &note : look.notes) {
            if (note.isEmpty() && problem != answer->problems.cend())
                note = noteOn(*problem++);
        }
        sheet->drawn = look;
        showCaption();
        sheet->update();
    }
};

DocumentPreview::DocumentPreview(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->sheet = new SheetView(this);
    setAccessibleRole(d->sheet, QAccessible::Graphic);
    d->sheet->setObjectName(QStringLiteral("previewSheet"));
    d->sheet->setAccessibleName(tr("Preview"));
    d->sheet->setFocusPolicy(Qt::StrongFocus);
    d->sheet->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    d->sheet->step = [this](int by) { d->step(by); };
    d->sheet->changed = [this] { d->request(); };
    setFocusProxy(d->sheet);

    const auto button = [this](const char *name, const QString &text, int by) {
        auto *made = new QToolButton(this);
        made->setObjectName(QLatin1String(name));
        made->setArrowType((by > 0) != isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
        made->setAutoRaise(true);
        made->setAccessibleName(text);
        setOwnToolTip(made, text);
        made->setAutoRepeat(true);
        connect(made, &QToolButton::clicked, this, [this, by] { d->step(by); });
        return made;
    };
    d->previous = button("previewPrevious", tr("Previous page"), -1);
    d->next = button("previewNext", tr("Next page"), 1);

    d->caption = new QLabel(this);
    d->caption->setObjectName(QStringLiteral("previewPage"));
    d->caption->setTextFormat(Qt::PlainText);
    d->caption->setAlignment(Qt::AlignCenter);
    d->caption->setWordWrap(true);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(d->previous);
    row->addWidget(d->caption, 1);
    row->addWidget(d->next);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(d->sheet, 1);
    column->addLayout(row);

    connect(&d->renderer, &PageRenderer::rendered, this,
            [this](const DrawnSide &side) { d->take(side); });
    d->sync();
}

DocumentPreview::~DocumentPreview() = default;

void DocumentPreview::setDocument(const Document &document)
{
    d->document = document;
    d->index = 0;
    d->layout.pages = {}; // another document's
    d->pages = {};
    d->setUpSequence();
    // Another document's page must not stand in for this one's.
    d->forgetAsked();
    d->renderer.setDocument(document);
    d->sync();
}

void DocumentPreview::setLayout(const Layout &layout)
{
    d->layout = layout;
    d->setUpSequence();
    d->sync();
}

void DocumentPreview::setOverlayPainter(OverlayPainter painter)
{
    d->renderer.setOverlayPainter(std::move(painter));
}

void DocumentPreview::setLeadingPagePainter(LeadingPagePainter painter)
{
    d->renderer.setLeadingPagePainter(std::move(painter));
}

int DocumentPreview::pageInSight() const
{
    return d->page();
}

void DocumentPreview::setMessage(const QString &message)
{
    d->message = message;
    d->sync();
}

void DocumentPreview::drawPutOff()
{
    if (std::exchange(d->isPutOff, false) && isDrawing())
        d->renderer.render(d->asked);
}

bool DocumentPreview::isDrawing() const
{
    return !d->asked.isBlank() && !d->answer;
}

QSize DocumentPreview::sizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 16, em * 20};
}

QSize DocumentPreview::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {em * 8, em * 8};
}

} // namespace kelvo
