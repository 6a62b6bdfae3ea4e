#include "pdf_file.h"
#include "tasks.h"

#include "confinement.h"

#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFNameTreeObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <list>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace kelvo::documents {

namespace {

struct PagePair
{
    QPDFObjectHandle from, to;
};

// ---- where links lead

// Names of destinations are each document's own, and two may have the same: links of what was
// joined name pages.
class Destinations
{
public:
    explicit Destinations(QPDF &part)
        : m_old(part.getRoot().getKey("/Dests"))
    {
        QPDFObjectHandle names = part.getRoot().getKey("/Names");
        if (names.isDictionary() && names.getKey("/Dests").isDictionary())
            m_names.emplace(names.getKey("/Dests"), part);
    }

    // An array that begins with a page of the part, or null.
    QPDFObjectHandle find(QPDFObjectHandle destination)
    {
        QPDFObjectHandle found = destination;
        if (destination.isName() && m_old.isDictionary())
            found = m_old.getKey(destination.getName());
        else if (destination.isString()
                 && !(m_names && m_names->findObject(destination.getUTF8Value(), found)))
            return QPDFObjectHandle::newNull();
        if (found.isDictionary())
            found = found.getKey("/D");
        return found.isArray() && found.getArrayNItems() > 0 ? found : QPDFObjectHandle::newNull();
    }

private:
    QPDFObjectHandle m_old; // of PDF 1.1: a dictionary
    std::optional<QPDFNameTreeObjectHelper> m_names;
};

QPDFObjectHandle goTo(QPDFObjectHandle note)
{
    QPDFObjectHandle action = note.getKey("/A");
    const bool isGoTo = action.isDictionary() && action.getKey("/S").isNameAndEquals("/GoTo");
    return isGoTo ? action.getKey("/D") : note.getKey("/Dest");
}

void leadLinks(QPDF &part, const std::vector<PagePair> &pages)
{
    std::map<QPDFObjGen, QPDFObjectHandle> added;
    for (PagePair page : pages)
        added.emplace(page.from.getObjGen(), page.to);
    Destinations destinations(part);
    for (PagePair page : pages) {
        QPDFObjectHandle from = page.from.getKey("/Annots"), to = page.to.getKey("/Annots");
        if (!from.isArray() || !to.isArray() || from.getArrayNItems() != to.getArrayNItems())
            continue;
        for (int i = 0; i < from.getArrayNItems(); ++i) {
            QPDFObjectHandle note = from.getArrayItem(i);
            QPDFObjectHandle copy = to.getArrayItem(i);
            if (!note.isDictionary() || !copy.isDictionary() || goTo(note).isNull())
                continue;
            QPDFObjectHandle old = destinations.find(goTo(note));
            copy.removeKey("/A");
            copy.removeKey("/Dest");
            const auto target =
                old.isArray() ? added.find(old.getArrayItem(0).getObjGen()) : added.end();
            if (target == added.end())
                continue; // it leads nowhere, as before
            QPDFObjectHandle place = QPDFObjectHandle::newArray();
            place.appendItem(target->second);
            for (int item = 1; item < old.getArrayNItems(); ++item) {
                QPDFObjectHandle how = old.getArrayItem(item);
                place.appendItem(how.isScalar() ? QPDFObjectHandle::parse(how.unparseResolved())
                                                : QPDFObjectHandle::newNull());
            }
            copy.replaceKey("/Dest", place);
        }
    }
}

// ---- layers

void appendAll(QPDFObjectHandle list, QPDFObjectHandle more)
{
    for (int i = 0; more.isArray() && i < more.getArrayNItems(); ++i)
        list.appendItem(more.getArrayItem(i));
}

// Each keeps what it shows of its layers: those that are off stay so, whatever the state is
// that the other documents begin with.
void addLayers(QPDF &joined, QPDF &part)
{
    QPDFObjectHandle partLayers = part.getRoot().getKey("/OCProperties");
    if (!partLayers.isDictionary())
        return;
    if (!partLayers.isIndirect())
        partLayers = part.makeIndirectObject(partLayers);
    QPDFObjectHandle more = joined.copyForeignObject(partLayers);
    QPDFObjectHandle layers = joined.getRoot().getKey("/OCProperties");
    if (!layers.isDictionary()) {
        layers = QPDFObjectHandle::parse("<< /OCGs [] /D << /OFF [] /AS [] >> >>");
        joined.getRoot().replaceKey("/OCProperties", layers);
        layers = joined.getRoot().getKey("/OCProperties");
    }
    QPDFObjectHandle shown = layers.getKey("/D");
    appendAll(layers.getKey("/OCGs"), more.getKey("/OCGs"));
    QPDFObjectHandle moreShown = more.getKey("/D");
    if (!moreShown.isDictionary())
        return;
    appendAll(shown.getKey("/AS"), moreShown.getKey("/AS"));
    if (!moreShown.getKey("/BaseState").isNameAndEquals("/OFF")) {
        appendAll(shown.getKey("/OFF"), moreShown.getKey("/OFF"));
        return;
    }
    std::set<QPDFObjGen> on;
    QPDFObjectHandle shownOnes = moreShown.getKey("/ON"), all = more.getKey("/OCGs");
    for (int i = 0; shownOnes.isArray() && i < shownOnes.getArrayNItems(); ++i)
        on.insert(shownOnes.getArrayItem(i).getObjGen());
    for (int i = 0; all.isArray() && i < all.getArrayNItems(); ++i) {
        if (!on.contains(all.getArrayItem(i).getObjGen()))
            shown.getKey("/OFF").appendItem(all.getArrayItem(i));
    }
}

// ---- pages and what is typed in their fields

void append(QPDF &part, QPDF &joined, QPDFAcroFormDocumentHelper &forms)
{
    QPDFPageDocumentHelper all(joined);
    QPDFAcroFormDocumentHelper partForms(part);
    std::vector<PagePair> pages;
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(part).getAllPages()) {
        all.addPage(page, false);
        QPDFObjectHandle from = page.getObjectHandle();
        pages.push_back({from, joined.copyForeignObject(from)}); // the one that was added
        // Fields of one name show one value: those of another document are called otherwise.
        forms.fixCopiedAnnotations(pages.back().to, from, partForms);
    }
    leadLinks(part, pages);
    addLayers(joined, part);
    if (partForms.getNeedAppearances())
        forms.setNeedAppearances(true);
}

} // namespace

Result<void> joinPdfs(const QStringList &sources, const QString &target)
{
    std::vector<std::FILE *> files;
    for (const QString &source : sources) {
        const auto file = openToRead(source);
        if (!file)
            return file.error();
        files.push_back(file.value());
    }
    auto output = OutputFile::create(target);
    if (!output)
        return output.error();
    confineToOpenFiles();
    return guarded(target, [&]() -> Result<void> {
        std::list<QPDF> parts; // until it is written: it takes their streams from them
        QPDF joined;
        joined.emptyPDF();
        QPDFAcroFormDocumentHelper forms(joined);
        for (std::FILE *file : files) {
            load(parts.emplace_back(), file);
            append(parts.back(), joined, forms);
        }
        return writePdf(joined, output.value());
    });
}

} // namespace kelvo::documents
