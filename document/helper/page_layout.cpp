#include "page_layout.h"

#include "pdf_numbers.h"
#include "placed_annotations.h"
#include "shown_page.h"

#include <qpdf/Pl_Concatenate.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <optional>
#include <string>
#include <vector>

namespace kelvo::documents {

namespace {

using Handle = QPDFObjectHandle;

std::string text(const QPDFMatrix &matrix)
{
    std::string numbers;
    for (const double number : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f})
        numbers += numberText(number) + ' ';
    return numbers;
}

// "x y width height" of `rect` on a page of that `height`.
std::string text(const QRectF &rect, double height)
{
    return numberText(rect.left()) + ' ' + numberText(height - rect.bottom()) + ' '
        + numberText(rect.width()) + ' ' + numberText(rect.height());
}

// A page's contents in several streams, as one. A token ends with its stream.
class JoinedContents : public Handle::StreamDataProvider
{
public:
    explicit JoinedContents(std::vector<Handle> streams)
        : m_streams(std::move(streams))
    {
    }

    void provideStreamData(QPDFObjGen const &, Pipeline *pipeline) override
    {
        Pl_Concatenate joined("contents", pipeline);
        for (Handle &stream : m_streams) {
            // What cannot be decoded says nothing; of what breaks off, the beginning is there.
            if (stream.pipeStreamData(nullptr, nullptr, 0, qpdf_dl_specialized))
                stream.pipeStreamData(&joined, nullptr, 0, qpdf_dl_specialized, true);
            joined.writeCStr("\n");
        }
        joined.manualFinish();
    }

private:
    std::vector<Handle> m_streams;
};

std::vector<Handle> streamsOf(Handle contents)
{
    std::vector<Handle> streams;
    if (contents.isStream())
        return {contents};
    for (Handle &stream : contents.isArray() ? contents.getArrayAsVector() : streams) {
        if (stream.isStream())
            streams.push_back(stream);
    }
    return streams;
}

constexpr const char *inheritedKeys[] = {"/MediaBox", "/CropBox", "/Resources", "/Rotate"};

// What a page draws, once for all the places where it is printed; not initialized where it has no
// contents.
Handle formOf(QPDF &pdf, QPDFPageObjectHelper page, const ShownPage &shown)
{
    const std::vector<Handle> streams = streamsOf(page.getObjectHandle().getKey("/Contents"));
    if (streams.empty())
        return {};
    Handle form;
    if (streams.size() == 1) {
        form = Handle(streams.front()).copyStream(); // its bytes are copied as they are
    } else {
        form = pdf.newStream();
        form.replaceStreamData(std::make_shared<JoinedContents>(streams), Handle::newNull(),
                               Handle::newNull());
    }
    Handle entries = form.getDict();
    entries.replaceKey("/Type", Handle::newName("/XObject"));
    entries.replaceKey("/Subtype", Handle::newName("/Form"));
    entries.replaceKey("/BBox", newRectangle(shown.box));
    if (const QPDFMatrix matrix = shown.toShown(); matrix != QPDFMatrix())
        entries.replaceKey("/Matrix", newMatrix(matrix));
    Handle resources = page.getAttribute("/Resources", false);
    entries.replaceKey("/Resources",
                       resources.isDictionary() ? resources : Handle::newDictionary());
    // A page is a group of its own, which nothing beneath shows through.
    if (Handle group = page.getObjectHandle().getKey("/Group"); group.isDictionary()) {
        group = group.shallowCopy();
        group.replaceKey("/I", Handle::newBool(true));
        entries.replaceKey("/Group", group);
    }
    return form;
}

class PageLayout
{
public:
    PageLayout(QPDF &pdf, const PdfLayout &layout)
        : m_layout(layout)
        , m_pdf(pdf)
        , m_pages(pdf.getAllPages())
        , m_isAsItIs(m_pages.size())
        , m_isTaken(m_pages.size())
        , m_sources(m_pages.size())
        , m_annotations(pdf)
    {
    }

    void apply()
    {
        // All that is drawn of the document is known before the first of its pages gives way.
        for (const LaidOutPage &page : m_layout) {
            for (const PlacedPage &placed : page.pages)
                page.isAsItIs ? keep(indexOf(placed)) : read(indexOf(placed));
        }
        m_annotations.readOthers(m_pages);
        std::vector<Handle> kids;
        kids.reserve(m_layout.size());
        for (const LaidOutPage &page : m_layout)
            kids.push_back(page.isAsItIs ? asItIs(indexOf(page.pages.front())) : laidOut(page));
        setPages(kids);
        m_annotations.removeOthers();
        // Bookmarks, links and form fields still point at the other pages and would keep their
        // contents in the file.
        for (std::size_t index = 0; index < m_pages.size(); ++index) {
            if (!m_isTaken[index])
                m_pdf.replaceObject(m_pages[index].getObjGen(), Handle::newNull());
        }
        cleanCatalog();
    }

private:
    // What is drawn of a page that is placed.
    struct Source
    {
        ShownPage shown;
        Handle form; // not initialized where it draws nothing
        PageAnnotations annotations;
    };

    std::size_t indexOf(const PlacedPage &placed) const
    {
        const auto index = static_cast<std::size_t>(placed.page - 1);
        (void)m_pages.at(index);
        return index;
    }

    void keep(std::size_t index)
    {
        Handle &page = m_pages[index];
        if (m_isAsItIs[index])
            return;
        m_isAsItIs[index] = true;
        m_annotations.keep(page);
        for (const char *key : inheritedKeys) {
            if (Handle value = QPDFPageObjectHelper(page).getAttribute(key, false);
                !value.isNull() && !page.hasKey(key)) {
                page.replaceKey(key, value);
            }
        }
    }

    void read(std::size_t index)
    {
        std::optional<Source> &source = m_sources[index];
        if (source)
            return;
        Handle &page = m_pages[index];
        const ShownPage shown = shownPage(page);
        source = {shown, formOf(m_pdf, page, shown), m_annotations.read(page)};
    }

    // The number of a page goes on to the first one that shows it: bookmarks and links lead there.
    Handle newPage(const LaidOutPage &page)
    {
        const Handle entries = Handle::newDictionary();
        for (const PlacedPage &placed : page.pages) {
            const std::size_t index = indexOf(placed);
            if (m_isAsItIs[index] || m_isTaken[index])
                continue;
            m_isTaken[index] = true;
            const QPDFObjGen number = m_pages[index].getObjGen();
            m_pdf.replaceObject(number, entries);
            return m_pdf.getObject(number);
        }
        return m_pdf.makeIndirectObject(entries);
    }

    Handle asItIs(std::size_t index)
    {
        if (!m_isTaken[index]) {
            m_isTaken[index] = true;
            return m_pages[index];
        }
        return m_pdf.makeIndirectObject(m_pages[index].shallowCopy());
    }

    Handle laidOut(const LaidOutPage &layout)
    {
        Handle page = newPage(layout);
        Handle forms = Handle::newDictionary();
        Handle annotations = Handle::newArray();
        std::string contents;
        int count = 0; // of forms
        for (const PlacedPage &placed : layout.pages) {
            const QRectF visible = placed.rect & placed.place;
            if (visible.isEmpty())
                continue;
            const Source &source = *m_sources[indexOf(placed)];
            const QPDFMatrix matrix = matrixOf(placed, source, layout.size.height());
            if (source.form.isInitialized()) {
                const std::string name = "/P" + std::to_string(++count);
                forms.replaceKey(name, source.form);
                contents += drawing(name, placed, visible, matrix, layout.size.height());
            }
            if (layout.border > 0)
                contents += border(visible, layout.border, layout.size.height());
            m_annotations.place(source.annotations,
                                placementOf(placed, visible, source, matrix, layout.size.height()),
                                page, annotations);
        }
        page.replaceKey("/Type", Handle::newName("/Page"));
        page.replaceKey("/MediaBox", newNumbers({0, 0, layout.size.width(), layout.size.height()}));
        page.replaceKey("/Resources", Handle::newDictionary({{"/XObject", forms}}));
        if (!contents.empty()) {
            Handle stream = m_pdf.newStream(contents);
            stream.setFilterOnWrite(false); // deflating so little costs more than it saves
            page.replaceKey("/Contents", stream);
        }
        if (annotations.getArrayNItems() > 0)
            page.replaceKey("/Annots", annotations);
        return page;
    }

    // From the page as it is shown, its lower left corner at the origin, to the new page.
    static QPDFMatrix matrixOf(const PlacedPage &placed, const Source &source, double height)
    {
        const QSizeF size = source.shown.size();
        const QSizeF turned = placed.rotation % 180 == 0 ? size : size.transposed();
        QPDFMatrix matrix(placed.rect.width() / turned.width(), 0, 0,
                          placed.rect.height() / turned.height(), placed.rect.left(),
                          height - placed.rect.bottom());
        matrix.concat(turnedToOrigin({0, 0, size.width(), size.height()}, 1, placed.rotation));
        return matrix;
    }

    static Placement placementOf(const PlacedPage &placed, const QRectF &visible,
                                 const Source &source, const QPDFMatrix &matrix, double height)
    {
        return {
            source.shown,
            matrix,
            placed.rotation,
            {visible.left(), height - visible.bottom(), visible.right(), height - visible.top()}};
    }

    static std::string drawing(const std::string &name, const PlacedPage &placed,
                               const QRectF &visible, const QPDFMatrix &matrix, double height)
    {
        constexpr double hair =
            0.01; // points; edges are drawn more softly where they are cut twice
        std::string drawn = "q\n";
        if (!placed.place.adjusted(-hair, -hair, hair, hair).contains(placed.rect))
            drawn += text(visible, height) + " re W n\n";
        return drawn + text(matrix) + "cm\n" + name + " Do\nQ\n";
    }

    static std::string border(const QRectF &visible, double width, double height)
    {
        const double half = width / 2;
        const QRectF line = visible.adjusted(half, half, -half, -half);
        if (line.isEmpty())
            return {};
        return "q\n" + numberText(width) + " w\n" + text(line, height) + " re S\nQ\n";
    }

    void setPages(const std::vector<Handle> &kids)
    {
        Handle tree = m_pdf.getRoot().getKey("/Pages");
        for (const char *key : inheritedKeys)
            tree.removeKey(key);
        tree.replaceKey("/Kids", Handle::newArray(kids));
        tree.replaceKey("/Count", Handle::newInteger(static_cast<long long>(kids.size())));
        for (Handle page : kids)
            page.replaceKey("/Parent", tree);
        m_pdf.updateAllPagesCache();
    }

    void cleanCatalog()
    {
        Handle catalog = m_pdf.getRoot();
        catalog.removeKey("/PageLabels");     // they count the pages that were
        catalog.removeKey("/StructTreeRoot"); // it has words of pages that are gone
        catalog.removeKey("/MarkInfo");
        const bool isAnyPlaced =
            std::ranges::any_of(m_sources, [](const auto &source) { return source.has_value(); });
        if (Handle form = catalog.getKey("/AcroForm"); isAnyPlaced && form.isDictionary())
            form.removeKey("/XFA");
    }

    const PdfLayout &m_layout;
    QPDF &m_pdf;
    std::vector<Handle> m_pages;                  // the document's
    std::vector<bool> m_isAsItIs;                 // of each: it goes out so, too
    std::vector<bool> m_isTaken;                  // of each: its number is that of a new page
    std::vector<std::optional<Source>> m_sources; // of each that is placed
    PlacedAnnotations m_annotations;
};

} // namespace

void layOutPages(QPDF &pdf, const PdfLayout &layout)
{
    if (!isAsItIs(layout, static_cast<int>(pdf.getAllPages().size())))
        PageLayout(pdf, layout).apply();
}

} // namespace kelvo::documents
