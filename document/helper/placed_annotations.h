#pragma once

#include "form_fields.h"
#include "shown_page.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <set>
#include <utility>
#include <vector>

namespace kelvo::documents {

// An annotation as it was in the document: its object, and a copy of its entries.
struct PageAnnotation
{
    QPDFObjectHandle object, entries;
};
using PageAnnotations = std::vector<PageAnnotation>;

// How a page lies on a new one.
struct Placement
{
    ShownPage shown;
    QPDFMatrix matrix;                   // from the page as it is shown to the new page
    int rotation = 0;                    // clockwise, of the page as it is shown
    QPDFObjectHandle::Rectangle visible; // of the new page: what is outside is cut off
};

// Annotations (links, notes, form fields) of pages that are placed on others. They stay what they
// are, so that viewers and printers treat them as in the document: entries are moved and scaled,
// appearances turned. An annotation that is printed again is a copy; of a form field, one more
// widget. Throws what libqpdf throws.
class PlacedAnnotations
{
public:
    explicit PlacedAnnotations(QPDF &pdf);

    // Before any page is placed: those of a page that goes out as it is, of one that will be
    // placed, and of all `pages` of the document.
    void keep(QPDFObjectHandle page);
    static PageAnnotations read(QPDFObjectHandle page);
    void readOthers(const std::vector<QPDFObjectHandle> &pages);

    // Adds those that can be seen to `list`, the array of the new `page`.
    void place(const PageAnnotations &annotations, const Placement &placement,
               QPDFObjectHandle page, QPDFObjectHandle list);

    // Those that are on no page any more.
    void removeOthers();

private:
    QPDFObjectHandle turnedAppearance(QPDFObjectHandle appearance, int turn);

    QPDF &m_pdf;
    FormFields m_fields;
    std::set<QPDFObjGen> m_all, m_used;
    std::map<std::pair<QPDFObjGen, int>, QPDFObjectHandle> m_turned; // appearances
};

} // namespace kelvo::documents
