#include "exception_page.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString endPageKey = QStringLiteral("EndPage");
const QString halftoneScreenKey = QStringLiteral("HalftoneScreen");
const QString lightenDarkenKey = QStringLiteral("LightenDarken");
const QString imageShiftKey = QStringLiteral("com.kelvo.print.ImageShiftOptionsPage");

void writeIfSet(Dictionary &dictionary, const QString &key, std::int32_t number)
{
    if (number != kUnset)
        WriteTicketValue(dictionary, key, number);
}

} // namespace

std::int32_t endPageIn(const Dictionary &form)
{
    return integer32(form, endPageKey).value_or(0);
}

std::int32_t plexIn(const Dictionary &form)
{
    return integer32(form, kSidesImagedKey).value_or(kUnset);
}

ExceptionPage::ExceptionPage(const Dictionary &dictionary)
    : SpecialPage(dictionary)
    , m_endPage(endPageIn(dictionary))
    , m_plex(plexIn(dictionary))
    , m_lightenDarken(integer32(dictionary, lightenDarkenKey).value_or(kUnset))
{
    ImageShiftInitialize(nullptr, nullptr, &m_imageShift);
    if (const auto imageShift = kelvo::dictionary(dictionary, imageShiftKey))
        ImageShiftSetOptionsFromTicket(&m_imageShift, *imageShift);
}

Dictionary ExceptionPage::asTicket() const
{
    Dictionary dictionary = SpecialPage::asTicket();
    WriteTicketValue(dictionary, endPageKey, m_endPage);
    writeIfSet(dictionary, kSidesImagedKey, m_plex);
    writeIfSet(dictionary, halftoneScreenKey, m_halftoneScreen);
    writeIfSet(dictionary, lightenDarkenKey, m_lightenDarken);
    if (const auto imageShift =
            ImageShiftCreateTicketFromOptions(&m_imageShift, kJobContextExceptions))
        dictionary.insert(imageShiftKey, *imageShift);
    return dictionary;
}

std::unique_ptr<SpecialPage> ExceptionPage::clone() const
{
    return std::make_unique<ExceptionPage>(*this);
}

} // namespace kelvo
