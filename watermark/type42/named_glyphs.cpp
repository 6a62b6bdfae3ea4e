#include "named_glyphs.h"

#include "glyph_names.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace kelvo {

namespace {

constexpr std::size_t kMostSteps = 32;

std::string_view viewOf(QByteArrayView bytes)
{
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

template <typename Number>
std::uint64_t numberAt(const char *bytes)
{
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

// Of the begin, the middle and the end: quick, and good for names as they are given.
std::uint64_t hashOf(std::string_view name)
{
    const std::size_t size = name.size();
    const char *const bytes = name.data();
    std::uint64_t mixed = size;
    if (size >= 8)
        mixed += numberAt<std::uint64_t>(bytes) * 31
            + numberAt<std::uint64_t>(bytes + (size - 8) / 2) * 17
            + numberAt<std::uint64_t>(bytes + size - 8);
    else if (size >= 4)
        mixed += numberAt<std::uint32_t>(bytes) + (numberAt<std::uint32_t>(bytes + size - 4) << 32);
    else if (size > 0)
        mixed += static_cast<uchar>(bytes[0]) + (static_cast<uchar>(bytes[size / 2]) << 8)
            + (static_cast<uchar>(bytes[size - 1]) << 16);
    return mixed * 0x9E3779B97F4A7C15U; // its upper bits depend on all of them
}

} // namespace

NamedGlyphs::NamedGlyphs(const std::vector<QByteArrayView> &names)
    : m_places(std::bit_ceil(2 * names.size() + 2))
{
    m_list.reserve(std::max<std::size_t>(names.size(), 1));
    add(viewOf(notdef), 0);
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (!names[i].isNull())
            add(viewOf(names[i]), static_cast<int>(i));
    }
}

inline std::size_t NamedGlyphs::findPlace(std::string_view name) const
{
    const std::size_t hash = hashOf(name) >> (std::countl_zero(m_places.size()) + 1);
    for (std::size_t step = 0; step < kMostSteps; ++step) {
        const std::size_t at = (hash + step) & (m_places.size() - 1);
        const std::uint32_t place = m_places[at];
        if (place == 0 || m_list[place - 1].name == name)
            return at;
    }
    return m_places.size();
}

void NamedGlyphs::add(std::string_view name, int number)
{
    const std::size_t at = findPlace(name);
    const bool isCrowded = at == m_places.size();
    if (isCrowded ? !m_others.insert(name).second : m_places[at] != 0)
        return;
    m_list.push_back({name, number});
    if (!isCrowded)
        m_places[at] = static_cast<std::uint32_t>(m_list.size());
}

bool NamedGlyphs::contains(QByteArrayView name) const
{
    const std::size_t at = findPlace(viewOf(name));
    return at == m_places.size() ? m_others.contains(viewOf(name)) : m_places[at] != 0;
}

} // namespace kelvo
