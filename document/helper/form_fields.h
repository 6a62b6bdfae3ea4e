#pragma once

#include <qpdf/QPDF.hh>

#include <map>

namespace kelvo::documents {

// The document's interactive form. Throws what libqpdf throws.
class FormFields
{
public:
    explicit FormFields(QPDF &pdf);

    // `copy` is printed like `widget`, and has its value.
    void addCopy(QPDFObjectHandle widget, QPDFObjectHandle copy);
    // Takes out what has become null, and fields of which nothing else was left.
    void removeNulls();
    // What the field's text is set in, where `widget` does not say it; null: nowhere.
    QPDFObjectHandle inheritedAppearance(QPDFObjectHandle widget);
    // Whether viewers draw the fields anew.
    bool needsAppearances() const;

private:
    QPDFObjectHandle fieldOf(QPDFObjectHandle widget);
    void replaceItem(QPDFObjectHandle list, const QPDFObjGen &item, QPDFObjectHandle other);

    QPDF &m_pdf;
    QPDFObjectHandle m_form; // null: none
    // Where items stood in a list, by the list's number; all direct lists share 0.
    std::map<QPDFObjGen, std::map<QPDFObjGen, int>> m_places;
};

} // namespace kelvo::documents
