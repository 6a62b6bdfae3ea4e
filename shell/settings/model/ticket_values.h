#pragma once

#include "bundle.h"
#include "setting_map.h"
#include "values.h"

#include <QString>

#include <cstdint>
#include <optional>

// Small shared operations on numbers, keys and texts.
namespace kelvo {

// "com.kelvo.print." and the setting's name.
QString ticketKey(const char *settingName);

// The bundle's text of `key` in "Localizable", else "STRING NOT FOUND".
QString localizedText(CFBundleRef bundle, const QString &key);
QString localizedText(CFBundleRef bundle, const QString &key, const QString &table);

// Stores `value` as a CFIndex number (64 bits).
void WriteTicketValue(Dictionary &dictionary, const QString &key, std::int64_t value);
// True, and `out` set, only when the key is there and its value is a number that
// fits a CFIndex.
bool GetCFIndexFromCFDictionary(const Dictionary &dictionary, const QString &key,
                                std::int64_t *out);

// `value` / 10^decimals in the user's locale, with at least `decimals` fraction
// digits; computed as a 32-bit float, so large numbers lose digits.
std::optional<QString> CreateLocalizedCFStringFromNumberWithDecimals(std::int32_t value,
                                                                     int decimals);
// Decimal digits of |n|; 1 for 0.
int CountDigits(std::int64_t n);

// The current device's mediaLimits().
void GetMediaLimits(double *minWidth, double *minHeight, double *maxWidth, double *maxHeight);

} // namespace kelvo
