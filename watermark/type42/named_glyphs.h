#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

namespace kelvo {

// The glyphs that a font's program can name: glyph 0 as ".notdef", and each further one with a name
// that none before it has.
class NamedGlyphs
{
public:
    struct Glyph
    {
        std::string_view name; // as the font has it
        int number;
    };

    // Of the names by glyph; null where one has none. They must outlive this.
    explicit NamedGlyphs(const std::vector<QByteArrayView> &names);

    const std::vector<Glyph> &list() const { return m_list; } // by number
    bool contains(QByteArrayView name) const;

private:
    // Where in m_places the name is, or can be put; their number where others are in all of its.
    std::size_t findPlace(std::string_view name) const;
    void add(std::string_view name, int number);

    std::vector<Glyph> m_list;
    // Places in the list plus 1, found by a name's hash; 0: free. A name is looked for in a few
    // places from there on, and beyond that in the set: names can be made to meet in one.
    std::vector<std::uint32_t> m_places;
    std::set<std::string_view> m_others;
};

} // namespace kelvo
