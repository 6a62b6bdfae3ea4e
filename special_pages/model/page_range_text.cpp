#include "page_range_text.h"

#include <algorithm>

namespace kelvo {

namespace {

// What has been read of the range that is being read.
enum class State { Nothing, Dash, Number, NumberAndDash };

class Reader
{
public:
    explicit Reader(std::vector<PageRange> &ranges)
        : m_ranges(ranges)
    {
    }

    void readNumber(std::int32_t number)
    {
        if (number > kHighestPage) {
            m_status = kPageNumberTooHigh;
            return;
        }
        switch (m_state) {
        case State::Number:
            emitRange(m_first, m_first);
            [[fallthrough]];
        case State::Nothing:
            m_first = number;
            m_state = State::Number;
            break;
        case State::Dash:
            emitRange(1, number);
            break;
        case State::NumberAndDash:
            emitRange(m_first, number);
            break;
        }
    }

    void readDash()
    {
        if (m_state == State::Nothing)
            m_state = State::Dash;
        else if (m_state == State::Number)
            m_state = State::NumberAndDash;
        else
            m_status = kPageRangesMalformed;
    }

    void readComma() // or the end
    {
        switch (m_state) {
        case State::Nothing:
            break;
        case State::Dash:
            m_status = kPageRangesMalformed;
            break;
        case State::Number:
            emitRange(m_first, m_first);
            break;
        case State::NumberAndDash:
            emitRange(m_first, kHighestPage);
            break;
        }
    }

    OSStatus status() const { return m_status; }

private:
    void emitRange(std::int32_t first, std::int32_t last)
    {
        m_state = State::Nothing;
        if (first > last)
            m_status = kPageRangeBackwards;
        else
            m_ranges.push_back({first, last - first + 1});
    }

    std::vector<PageRange> &m_ranges;
    State m_state = State::Nothing;
    std::int32_t m_first = 0; // with State::Number and State::NumberAndDash
    OSStatus m_status = noErr;
};

bool startsNumber(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// The number at `*at`, which moves behind it. A number begins with a Latin digit
// and goes on with those of any script.
std::int32_t takeNumber(const QString &text, qsizetype *at)
{
    std::int32_t number = 0;
    for (; *at < text.size() && text[*at].isDigit(); ++*at)
        number = std::min(number * 10 + text[*at].digitValue(), kHighestPage + 1);
    return number;
}

OSStatus read(const QString &text, std::vector<PageRange> &ranges)
{
    Reader reader(ranges);
    for (qsizetype at = 0; at < text.size() && reader.status() == noErr;) {
        const QChar character = text[at];
        if (startsNumber(character)) {
            reader.readNumber(takeNumber(text, &at));
            continue;
        }
        if (character == u'-')
            reader.readDash();
        else if (character == u',')
            reader.readComma();
        ++at;
    }
    if (reader.status() == noErr)
        reader.readComma();
    if (reader.status() == noErr && ranges.empty())
        return kPageRangesMalformed;
    return reader.status();
}

std::vector<PageRange> pagesOf(const std::vector<PageRange> &ranges)
{
    std::vector<PageRange> pages;
    for (const PageRange &range : ranges) {
        for (std::int32_t page = range.first; page < range.first + range.count; ++page)
            pages.push_back({page, 1});
    }
    return pages;
}

} // namespace

OSStatus CreatePageRangesBySeparatingString(const QString *text, bool asRanges,
                                            std::vector<PageRange> *ranges)
{
    if (ranges)
        ranges->clear();
    if (!text || !ranges)
        return paramErr;
    const OSStatus status = read(*text, *ranges);
    if (status != noErr)
        ranges->clear();
    else if (!asRanges)
        *ranges = pagesOf(*ranges);
    return status;
}

} // namespace kelvo
