#pragma once

#include "stock.h"

#include <QString>

#include <vector>

// The stocks that the user has given names, in the preference file
// "com.kelvo.print.stocks.plist":
//
//   Stocks   array of stocks in their dictionary form (stock.h); CustomName is
//            the name, and the file's own order means nothing
//
// What is no such dictionary, or has no name, is skipped and stays in the file.
// Two names are the same where they differ in case alone.
namespace kelvo {

inline const QString kStockLibraryFile = QStringLiteral("com.kelvo.print.stocks.plist");

inline constexpr int kLongestStockName = 60; // characters
inline constexpr int kMostLibraryStocks = 200;

// Sorted by name; at most kMostLibraryStocks.
std::vector<Stock> readStockLibrary();

enum class LibraryProblem {
    None,
    NameMissing,
    NameTooLong,
    Full,       // and no stock of that name to replace
    NotFound,   // another dialog removed it
    NotWritten, // the reason stands on standard error
};

// Both merge with the file as it is under its lock. Saving replaces a stock of the
// same name; blanks around the name do not count.
[[nodiscard]] LibraryProblem saveInStockLibrary(const QString &name, const Stock &stock);
[[nodiscard]] LibraryProblem removeFromStockLibrary(const QString &name);

bool sameStockName(const QString &one, const QString &other);

} // namespace kelvo
