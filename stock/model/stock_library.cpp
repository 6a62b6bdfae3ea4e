#include "stock_library.h"

#include "preferences.h"
#include "stock_menus.h"
#include "stock_properties.h"

#include <QCollator>

#include <algorithm>
#include <functional>

namespace kelvo {

namespace {

const QString stocksKey = QStringLiteral("Stocks");

std::optional<Stock> stockFrom(const QVariant &entry)
{
    const std::optional<Dictionary> form = dictionary(entry);
    if (!form)
        return std::nullopt;
    Stock stock(&*form);
    if (stock.customName().trimmed().isEmpty())
        return std::nullopt;
    return stock;
}

bool isNamed(const QVariant &entry, const QString &name)
{
    const std::optional<Stock> stock = stockFrom(entry);
    return stock && sameStockName(stock->customName(), name);
}

qsizetype lengthOf(const QString &name)
{
    return name.toUcs4().size();
}

Stock withoutName(Stock stock)
{
    forgetStockName(stock);
    return stock;
}

// Runs `change` on the stored array. It returns false when there is nothing to write.
bool changeLibrary(const std::function<bool(Array &)> &change)
{
    return ChangeUserPreferences(kStockLibraryFile, [&change](Dictionary &content) {
        Array entries = array(content, stocksKey).value_or(Array());
        if (!change(entries))
            return false;
        content.insert(stocksKey, entries);
        return true;
    });
}

} // namespace

bool sameStockName(const QString &one, const QString &other)
{
    return one.trimmed().compare(other.trimmed(), Qt::CaseInsensitive) == 0;
}

std::vector<Stock> readStockLibrary()
{
    const Dictionary content = CopyUserPreferences(kStockLibraryFile).value_or(Dictionary());
    std::vector<Stock> stocks;
    for (const QVariant &entry : array(content, stocksKey).value_or(Array())) {
        if (stocks.size() == kMostLibraryStocks)
            break;
        std::optional<Stock> stock = stockFrom(entry);
        const auto hasItsName = [&stock](const Stock &other) {
            return sameStockName(other.customName(), stock->customName());
        };
        if (stock && std::ranges::none_of(stocks, hasItsName))
            stocks.push_back(*stock);
    }
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    std::ranges::stable_sort(stocks, [&order](const Stock &one, const Stock &other) {
        return order.compare(one.customName(), other.customName()) < 0;
    });
    return stocks;
}

LibraryProblem saveInStockLibrary(const QString &name, const Stock &stock)
{
    Stock named = stock;
    named.setCustomName(name.trimmed());
    if (named.customName().isEmpty())
        return LibraryProblem::NameMissing;
    if (lengthOf(named.customName()) > kLongestStockName)
        return LibraryProblem::NameTooLong;

    LibraryProblem problem = LibraryProblem::None;
    const bool isWritten = changeLibrary([&](Array &entries) {
        const auto isSame = [&named](const QVariant &entry) {
            return isNamed(entry, named.customName());
        };
        const bool replaces = std::ranges::any_of(entries, isSame);
        const auto count = std::ranges::count_if(
            entries, [](const QVariant &entry) { return stockFrom(entry).has_value(); });
        if (!replaces && count >= kMostLibraryStocks) {
            problem = LibraryProblem::Full;
            return false;
        }
        entries.removeIf(isSame);
        entries.append(named.asTicket());
        return true;
    });
    return isWritten ? problem : LibraryProblem::NotWritten;
}

LibraryProblem removeFromStockLibrary(const QString &name)
{
    LibraryProblem problem = LibraryProblem::None;
    const bool isWritten = changeLibrary([&](Array &entries) {
        if (entries.removeIf([&name](const QVariant &entry) { return isNamed(entry, name); }))
            return true;
        problem = LibraryProblem::NotFound;
        return false;
    });
    return isWritten ? problem : LibraryProblem::NotWritten;
}

OwnSize ownSizeFor(JobContext jobContext, bool offersSize)
{
    // The job's own size belongs to the page set-up.
    if (jobContext == kJobContextJob || !offersSize)
        return OwnSize::None;
    return jobContext == kJobContextCovers ? OwnSize::NotCustom : OwnSize::Any;
}

Stock takenFromLibrary(const Stock &named, const Stock &current, OwnSize ownSize)
{
    Stock taken = tidied(named);
    const bool cannotBeCustom = ownSize == OwnSize::NotCustom && named.size() == kStockSizeCustom;
    if (ownSize == OwnSize::None || cannotBeCustom) {
        taken.setSize(current.size());
        if (current.size() == kStockSizeCustom) {
            taken.setWidth(current.width());
            taken.setLength(current.length());
        }
    }
    if (taken.description().isEmpty())
        taken.setDescription(named.customName());
    return taken;
}

std::optional<std::size_t> findInLibrary(const std::vector<Stock> &library, const Stock &stock,
                                         OwnSize ownSize)
{
    const Stock nameless = withoutName(stock);
    const auto found = std::ranges::find_if(library, [&](const Stock &named) {
        return withoutName(takenFromLibrary(named, stock, ownSize)) == nameless;
    });
    if (found == library.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - library.begin());
}

std::optional<std::size_t> findInLibrary(const std::vector<Stock> &library, const Stock &stock,
                                         OwnSize ownSize, const QString &preferred)
{
    for (std::size_t row = 0; row < library.size(); ++row) {
        if (sameStockName(library[row].customName(), preferred)
            && findInLibrary({library[row]}, stock, ownSize))
            return row;
    }
    return findInLibrary(library, stock, ownSize);
}

void leaveLibrary(Stock &stock, const Stock &before, const std::vector<Stock> &library,
                  OwnSize ownSize)
{
    if (stock.description() != before.description() || withoutName(stock) == withoutName(before))
        return;
    const std::optional<std::size_t> row = findInLibrary(library, before, ownSize);
    if (row && library[*row].description().isEmpty())
        stock.setDescription(QStringLiteral(""));
}

} // namespace kelvo
