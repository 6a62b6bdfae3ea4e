#pragma once

#include "special_page.h"

namespace kelvo {

// Which sides of a cover sheet are printed: values of CoverSidesImagedMap.
inline constexpr std::int32_t kCoverBlank = 1; // or preprinted
inline constexpr std::int32_t kCoverPrinted = 4;

// A front or back cover. Its dictionary form adds
//   SidesImaged   integer  a value of CoverSidesImagedMap; missing or no number: 1
class Cover : public SpecialPage
{
public:
    Cover() = default;
    explicit Cover(const Dictionary &dictionary);
    Cover(const Cover &) = default;
    Cover &operator=(const Cover &) = default;

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    std::int32_t sidesImaged() const { return m_sidesImaged; }
    void setSidesImaged(std::int32_t sidesImaged) { m_sidesImaged = sidesImaged; }

    // Same sides and same stock; where they lie in the document does not count.
    bool operator==(const Cover &other) const;

private:
    std::int32_t m_sidesImaged = kCoverBlank;
};

} // namespace kelvo
