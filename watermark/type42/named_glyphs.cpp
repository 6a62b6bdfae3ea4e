#include "named_glyphs.h"

#include "glyph_names.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace kelvo {

namespace {

constexpr std::size_t kMostSteps = 32;

std::string_view viewOf(QByteArrayView bytes)
{
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
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

void NamedGlyphs::add(std::string_view name, int number)
{
    const std::size_t hash = std::hash<std::string_view>()(name);
    for (std::size_t step = 0; step < kMostSteps; ++step) {
        std::uint32_t &place = m_places[(hash + step) & (m_places.size() - 1)];
        if (place == 0) {
            m_list.push_back({name, number});
            place = static_cast<std::uint32_t>(m_list.size());
            return;
        }
        if (m_list[place - 1].name == name)
            return;
    }
    if (m_others.insert(name).second)
        m_list.push_back({name, number});
}

bool NamedGlyphs::contains(QByteArrayView name) const
{
    const std::string_view wanted = viewOf(name);
    const std::size_t hash = std::hash<std::string_view>()(wanted);
    for (std::size_t step = 0; step < kMostSteps; ++step) {
        const std::uint32_t place = m_places[(hash + step) & (m_places.size() - 1)];
        if (place == 0)
            return false;
        if (m_list[place - 1].name == wanted)
            return true;
    }
    return m_others.contains(wanted);
}

} // namespace kelvo
