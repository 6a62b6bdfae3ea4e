#include "form_fields.h"

#include <set>
#include <vector>

namespace kelvo::documents {

namespace {

using Handle = QPDFObjectHandle;

// What a field says that shares its dictionary with its only widget; the rest is the widget's.
constexpr const char *fieldKeys[] = {"/FT", "/T",      "/TU", "/TM", "/Ff", "/V",    "/DV", "/Opt",
                                     "/I",  "/MaxLen", "/TI", "/DS", "/RV", "/Lock", "/SV"};

constexpr int deepest = 32; // levels of fields; what lies deeper is left as it is

// Whether anything is left of `list`.
bool withoutNulls(Handle list, std::set<QPDFObjGen> &seen, int level = 0)
{
    std::vector<Handle> kept;
    for (Handle &item : list.getArrayAsVector()) {
        if (item.isNull())
            continue;
        // Fields that go round in circles are nobody's.
        if (item.isIndirect() && !seen.insert(item.getObjGen()).second)
            continue;
        Handle kids = item.isDictionary() ? item.getKey("/Kids") : Handle::newNull();
        const bool isParent = kids.isArray() && kids.getArrayNItems() > 0;
        if (!isParent || level == deepest || withoutNulls(kids, seen, level + 1))
            kept.push_back(item);
    }
    if (static_cast<int>(kept.size()) < list.getArrayNItems())
        list.setArrayFromVector(kept);
    return !kept.empty();
}

} // namespace

FormFields::FormFields(QPDF &pdf)
    : m_pdf(pdf)
    , m_form(pdf.getRoot().getKey("/AcroForm"))
{
    if (!m_form.isDictionary())
        m_form = Handle::newNull();
}

// The parent of `widget`, which is made of it where both are one. Null for what is no field.
Handle FormFields::fieldOf(Handle widget)
{
    Handle parent = widget.getKey("/Parent");
    if (!widget.hasKey("/T"))
        return parent.isDictionary() ? parent : Handle::newNull();
    Handle field = m_pdf.makeIndirectObject(Handle::newDictionary());
    for (const char *key : fieldKeys) {
        if (widget.hasKey(key))
            field.replaceKey(key, widget.getKey(key));
        widget.removeKey(key);
    }
    // What both may have.
    for (const char *key : {"/DA", "/Q"}) {
        if (widget.hasKey(key))
            field.replaceKey(key, widget.getKey(key));
    }
    if (parent.isDictionary())
        field.replaceKey("/Parent", parent);
    if (Handle list = parent.isDictionary() ? parent.getKey("/Kids") : m_form.getKey("/Fields");
        list.isArray()) {
        replaceItem(list, widget.getObjGen(), field);
    }
    field.replaceKey("/Kids", Handle::newArray(std::vector<Handle>{widget}));
    widget.replaceKey("/Parent", field);
    return field;
}

// Lists of thousands of fields are searched once.
void FormFields::replaceItem(Handle list, const QPDFObjGen &item, Handle other)
{
    std::map<QPDFObjGen, int> &places = m_places[list.getObjGen()];
    const auto isThere = [&list, &item](int index) {
        return index < list.getArrayNItems() && list.getArrayItem(index).getObjGen() == item;
    };
    auto place = places.find(item);
    if (place == places.end() || !isThere(place->second)) {
        places.clear();
        for (int index = 0; index < list.getArrayNItems(); ++index)
            places.emplace(list.getArrayItem(index).getObjGen(), index);
        place = places.find(item);
    }
    if (place != places.end())
        list.setArrayItem(place->second, other);
}

void FormFields::addCopy(Handle widget, Handle copy)
{
    if (m_form.isNull())
        return;
    Handle field = fieldOf(widget);
    Handle kids = field.isDictionary() ? field.getKey("/Kids") : Handle::newNull();
    if (!kids.isArray())
        return;
    for (const char *key : fieldKeys)
        copy.removeKey(key);
    copy.replaceKey("/Parent", field);
    kids.appendItem(copy);
}

void FormFields::removeNulls()
{
    std::set<QPDFObjGen> seen;
    if (Handle fields = m_form.isNull() ? m_form : m_form.getKey("/Fields"); fields.isArray())
        withoutNulls(fields, seen);
    seen.clear();
    if (Handle order = m_form.isNull() ? m_form : m_form.getKey("/CO"); order.isArray())
        withoutNulls(order, seen);
}

Handle FormFields::inheritedAppearance(Handle widget)
{
    Handle parent = widget.getKey("/Parent");
    for (int level = 0; level < deepest && parent.isDictionary(); ++level) {
        if (parent.hasKey("/DA"))
            return parent.getKey("/DA");
        parent = parent.getKey("/Parent");
    }
    return m_form.isNull() ? m_form : m_form.getKey("/DA");
}

bool FormFields::needsAppearances() const
{
    if (Handle form = m_form; !form.isNull()) {
        Handle needs = form.getKey("/NeedAppearances");
        return needs.isBool() && needs.getBoolValue();
    }
    return false;
}

} // namespace kelvo::documents
