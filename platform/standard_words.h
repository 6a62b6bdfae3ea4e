#pragma once

#include <QString>

// Printers that describe themselves say "photographic-glossy" and "tray-2", and print servers make
// "PhotographicGlossy" and "Tray2" of that, without a text for people. The names are those that
// the IPP standards register; their words are ours, in the program's language.
namespace kelvo {

// "PhotographicGlossy" as "photographic-glossy", "Tray2" as "tray-2": lower case, a dash before
// what began with a capital or a digit. A name that is written so already stays.
QString ippKeyword(const QString &ppdName);
// The other way: "photographic-glossy" as "PhotographicGlossy". Letters, digits, dots and
// underscores are kept, in at most 40 characters, as a PPD's keywords have it; empty when nothing
// is left.
QString ppdName(const QString &ippKeyword);

// What an option of a PPD is called; empty for one that no standard knows.
QString standardOptionWords(const QString &option);
// The same of its choice, of either form; "Tray 7" for "tray-7".
QString standardChoiceWords(const QString &option, const QString &choice);
// Of any name: "com.maker.fast-dry-2" as "Fast dry 2".
QString readable(const QString &name);

// A paper by its PPD name and its size in points: "A4 (210 × 297 mm)", "Letter (8.5 × 11 in)",
// "Envelope DL, borderless (110 × 220 mm)".
QString paperWords(const QString &name, double width, double height);

} // namespace kelvo
