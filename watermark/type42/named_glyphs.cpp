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

std::size_t NamedGlyphs::findPlace(std::string_view name) const
{
    const std::size_t hash = std::hash<std::string_view>()(name);
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
