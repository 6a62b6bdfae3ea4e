#pragma once

#include "image_shift.h"
#include "special_page.h"

namespace kelvo {

// What a dictionary form says, as the page made of it.
std::int32_t endPageIn(const Dictionary &form);
std::int32_t plexIn(const Dictionary &form); // kUnset: as the job

// Pages startPage() to endPage(), both included, that are printed in another way
// than the job. What is not set is as the job says. Its dictionary form adds
//   EndPage         integer     missing or no number: 0
//   SidesImaged     integer     a value of PlexMap; left out when not set
//   HalftoneScreen  integer     left out when not set; never read back
//   LightenDarken   integer     a value of LightenDarkenMap; left out when not set
//   com.kelvo.print.ImageShiftOptionsPage
//                   dictionary  as image_shift.h says; left out when not set
class ExceptionPage : public SpecialPage
{
public:
    ExceptionPage() { ImageShiftInitialize(nullptr, nullptr, &m_imageShift); }
    explicit ExceptionPage(const Dictionary &dictionary);
    ExceptionPage(const ExceptionPage &) = default;
    ExceptionPage &operator=(const ExceptionPage &) = default;

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    std::int32_t endPage() const { return m_endPage; }
    void setEndPage(std::int32_t endPage) { m_endPage = endPage; }
    // False where the range ends before it begins.
    bool coversPages() const { return startPage() <= m_endPage; }
    std::int32_t plex() const { return m_plex; }
    void setPlex(std::int32_t plex) { m_plex = plex; }
    _IS_Options *imageShift() { return &m_imageShift; } // edited in place
    const _IS_Options *imageShift() const { return &m_imageShift; }
    std::int32_t lightenDarken() const { return m_lightenDarken; }
    void setLightenDarken(std::int32_t lightenDarken) { m_lightenDarken = lightenDarken; }

protected:
    // Devices that choose a screen for each page are told by their own panels; ours
    // has no control for it.
    std::int32_t m_halftoneScreen = kUnset;

private:
    std::int32_t m_endPage = 0;
    std::int32_t m_plex = kUnset;
    _IS_Options m_imageShift;
    std::int32_t m_lightenDarken = kUnset;
};

} // namespace kelvo
