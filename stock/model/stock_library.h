#pragma once

#include "stock.h"

#include <QString>

#include <optional>
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

// Which sizes of its own a stock may have where it is used.
enum class OwnSize { None, NotCustom, Any };
// `offersSize` is false where the user of a special page cannot choose its size.
OwnSize ownSizeFor(JobContext jobContext, bool offersSize);

// The library's `named` in place of `current`. Where it has no description of its own,
// its name is the description: whoever asks for a stock forgets the name. A size that
// it may not have stays that of `current`.
Stock takenFromLibrary(const Stock &named, const Stock &current, OwnSize ownSize);

// The place in `library` of the paper that `stock` is: as it was taken, but for the name.
// None once anything has been changed.
std::optional<std::size_t> findInLibrary(const std::vector<Stock> &library, const Stock &stock,
                                         OwnSize ownSize);

// The same; of two that are the same the one called `preferred`.
std::optional<std::size_t> findInLibrary(const std::vector<Stock> &library, const Stock &stock,
                                         OwnSize ownSize, const QString &preferred);

// To be called when `stock` may have been changed and was `before`: a library's paper that
// has been changed is no longer described by the library's name.
void leaveLibrary(Stock &stock, const Stock &before, const std::vector<Stock> &library,
                  OwnSize ownSize);

} // namespace kelvo
