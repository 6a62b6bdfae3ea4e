#pragma once

#include <QString>

#include <cstdint>

// What ties a PPD choice to the number that panels store for it.
namespace kelvo {

struct PpdChoiceValue
{
    const char *choice; // PPD choice keyword; null ends the table
    std::int32_t value;
};

struct PpdKeywordMap
{
    const char *keyword; // PPD option keyword; null ends the map
    const PpdChoiceValue *choices;
};

// Every option that panels read or set. Some names and some values stand twice
// in a table: a look-up by either finds the first.
extern const PpdKeywordMap MainKeywordMap[];

// "KVColorMode"
inline constexpr std::int32_t kColorModeGrayscale = 1, kColorModeColor = 2;

// The choices of `keyword`; null when the map does not have it.
const PpdChoiceValue *findKeyword(const QString &keyword);

} // namespace kelvo
