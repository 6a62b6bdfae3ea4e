#pragma once

#include "page_placement.h"
#include "pdf_layout.h"

#include <QList>
#include <QSizeF>

#include <functional>
#include <memory>
#include <vector>

namespace kelvo {

// What of a document is printed, and how.
struct PagesToPrint
{
    std::vector<int> chosen;                // pages of the document, from 1, in their order
    PageSet set = PageSet::All;             // of the chosen ones
    std::function<QSizeF(int page)> sizeOf; // of the document's, points, as shown
    PageLayout layout;
    Paper paper;
    bool isReversed = false; // the last one first
    // Two pages lie on one sheet: reversed, it is sheets that change their order, and front and
    // back stay what they are.
    bool pairsSides = false;
};

// The pages that go out: each has one or more of the document's, or is blank. Numbers count
// from 1. It is these that devices count and that covers, inserts, exceptions and booklets speak
// of. A value; copies share what they hold.
class PrintedPages
{
public:
    PrintedPages() = default; // none
    explicit PrintedPages(PagesToPrint pages);

    int count() const;             // that go out, blank ones too
    int documentPageCount() const; // that are on them
    // The document's pages on one that goes out, place by place; 0 for a place that stays free.
    QList<int> onPage(int printed) const;
    int firstOnPage(int printed) const;      // 0: it is blank, or there is none such
    int findPrinted(int documentPage) const; // the first that has it; 0: it is not printed

    // It goes out as the document has it, and the device puts it on its paper.
    bool isAsItIs(int printed) const;
    QSizeF size(int printed) const; // points, as one looks at it
    // Its pages on it, upright. One that goes out as it is lies on itself.
    SidePlacement placement(int printed) const;

    const PageLayout &layout() const;

    // What becomes of the document. Upside down where nobody after us turns pages.
    PdfLayout pdfLayout(bool isUpsideDown = false) const;

private:
    struct Data
    {
        PagesToPrint request;
        std::vector<int> pages; // of the set
        int sides = 0;          // that they fill
        QSizeF shape;           // of the first
    };
    // Where `printed` comes in the document's order, from 0; sides() or more: a blank one.
    int sideOf(int printed) const;
    QList<int> onSide(int side) const;
    LaidOutPage laidOut(int printed, bool isUpsideDown) const;
    QSizeF sizeOf(int documentPage) const { return d->request.sizeOf(documentPage); }

    std::shared_ptr<const Data> d; // null: none
};

} // namespace kelvo
