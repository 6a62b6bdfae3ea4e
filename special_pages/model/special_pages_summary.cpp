#include "special_pages_summary.h"

#include "installed_features.h"
#include "lighten_darken.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "stock_summary.h"
#include "ticket_values.h"

#include <QStringList>

namespace kelvo {

namespace {

const QString separator = QStringLiteral("; ");
const QString coverOption = QStringLiteral("KVFrontCoverSheet"); // as of the back cover
const QString wideSeparator = QStringLiteral(";  ");

QString text(CFBundleRef bundle, const char *key)
{
    return localizedText(bundle, QString::fromLatin1(key));
}

// Empty for a value that the map does not have.
QString mapText(CFBundleRef bundle, const SettingMap *map, std::int32_t value)
{
    const char *key = LocalizedKeyForTicketValue(map, value);
    return key ? text(bundle, key) : QString();
}

QString joined(QStringList parts, const QString &with)
{
    parts.removeAll(QString()); // what the device does not have has no words
    return parts.join(with);
}

// What this kind of page says beside its stock.
QString kindText(CFBundleRef bundle, const SpecialPage &page)
{
    if (const auto *cover = dynamic_cast<const Cover *>(&page))
        return mapText(bundle, CoverSidesImagedMap, cover->sidesImaged());
    if (const auto *insert = dynamic_cast<const Insert *>(&page)) {
        return QStringLiteral("%1 [%2]").arg(text(bundle, "InsertSummaryQuantity"),
                                             QString::number(insert->quantity()));
    }
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page))
        return mapText(bundle, PlexMap, exception->plex());
    return {};
}

QStringList stockTexts(CFBundleRef bundle, const Stock &stock)
{
    if (stock.source() == kStockSourceInserter) {
        return {CopyLocalizedStringForInstalledFeatureFromPlugin(
                    QStringLiteral("PostPrintInserterKey"), bundle)
                    .value_or(QString())};
    }
    // A tray says what it holds by itself.
    if (stock.source() != kUnset)
        return {};
    QStringList texts;
    if (stock.size() != kUnset)
        texts << stockSizeText(stock);
    if (stock.color() != kUnset)
        texts << stockColorText(stock);
    if (stock.type() != kUnset)
        texts << stockTypeText(bundle, stock);
    return texts;
}

} // namespace

std::vector<const SpecialPage *> rowsOf(const SpecialPages &pages)
{
    const std::int32_t inserts = pages.inserts->count();
    const std::int32_t exceptions = pages.exceptions->count();
    std::vector<const SpecialPage *> rows;
    rows.reserve(static_cast<std::size_t>(inserts) + static_cast<std::size_t>(exceptions) + 2);
    if (pages.front)
        rows.push_back(pages.front);
    std::int32_t insert = 0, exception = 0;
    while (insert < inserts || exception < exceptions) {
        const SpecialPage *nextInsert = pages.inserts->SpecialPageList::pageAtIndex(insert);
        const SpecialPage *nextException =
            pages.exceptions->SpecialPageList::pageAtIndex(exception);
        // What is inserted after a page comes after that page.
        const bool takeException =
            nextException && (!nextInsert || nextException->startPage() <= nextInsert->startPage());
        rows.push_back(takeException ? nextException : nextInsert);
        ++(takeException ? exception : insert);
    }
    if (pages.back)
        rows.push_back(pages.back);
    return rows;
}

QString pagesText(CFBundleRef bundle, const SpecialPages &pages, const SpecialPage &page)
{
    if (&page == pages.front)
        return text(bundle, "SpecialPageSummaryFront");
    if (&page == pages.back)
        return text(bundle, "SpecialPageSummaryBack");
    if (dynamic_cast<const Cover *>(&page))
        return {};
    const QString first = QString::number(page.startPage());
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page)) {
        return exception->endPage() == page.startPage()
            ? first
            : first + u'-' + QString::number(exception->endPage());
    }
    return page.startPage() < 1 ? text(bundle, "SpecialPageSummaryBefore1") : first;
}

QString typeText(CFBundleRef bundle, const SpecialPage &page)
{
    if (dynamic_cast<const Cover *>(&page))
        return text(bundle, "SpecialPageSummaryCover");
    return dynamic_cast<const Insert *>(&page) ? text(bundle, "SpecialPageSummaryInsert")
                                               : text(bundle, "SpecialPageSummaryException");
}

QString CopySpecialPageSummary(const SpecialPage &page, CFBundleRef bundle)
{
    const Stock &stock = page.stock();
    QStringList parts;
    if (!stock.customName().isEmpty())
        parts << text(bundle, "Paper Name Label") + u' ' + stock.customName();
    parts << kindText(bundle, page);
    parts << stockTexts(bundle, stock);
    return joined(parts, separator);
}

QString attributesText(const SpecialPage &page, CFBundleRef bundle)
{
    QStringList parts{CopySpecialPageSummary(page, bundle)};
    if (dynamic_cast<const Cover *>(&page)) {
        const PpdFile *ppd = PPDGetCurrent();
        if (!ppd || !ppd->findOption(coverOption))
            parts << text(bundle, "Not on This Device");
        else if (!PPDChoiceForTicketValue(coverOption, page.stock().source()))
            parts << text(bundle, "Cover Without Source");
    }
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page)) {
        // Nor is there a page before page 1.
        if (!exception->coversPages() || exception->endPage() < 1)
            parts << text(bundle, "Exception Without Pages");
        if (const char *step = lightenDarkenKey(exception->lightenDarken()))
            parts << text(bundle, step);
        if (exception->imageShift()->option != kUnset)
            parts << text(bundle, "Exception Image Shift");
    }
    const QString all = joined(parts, separator);
    return all.isEmpty() ? text(bundle, "UseJobSetting") : all;
}

QString CreateInsertAttributesDescription(CFBundleRef bundle, const Insert &insert)
{
    const QString quantity =
        text(bundle, "InsertSummaryQuantity") + u' ' + QString::number(insert.quantity());
    return joined(
        {quantity,
         GenerateStockSummary(bundle, kJobContextInserts, insert.stock(), QStringLiteral(", "))},
        wideSeparator);
}

QString CreateExceptionAttributesDescription(CFBundleRef bundle, const ExceptionPage &exception)
{
    return joined({mapText(bundle, PlexMap, exception.plex()),
                   GenerateStockSummary(bundle, kJobContextExceptions, exception.stock(),
                                        QStringLiteral(", "))},
                  wideSeparator);
}

SpecialPagesCommands commandsFor(const InsertList &inserts,
                                 const std::vector<const SpecialPage *> &selected, int rows,
                                 bool hasUndo)
{
    SpecialPagesCommands commands;
    commands.edit = selected.size() == 1;
    commands.remove = !selected.empty();
    commands.removeAll = rows > 0;
    commands.undo = hasUndo;
    if (const auto *last =
            selected.empty() ? nullptr : dynamic_cast<const Insert *>(selected.back())) {
        commands.moveUp = inserts.canPromote(last);
        commands.moveDown = inserts.canDemote(last);
    }
    return commands;
}

} // namespace kelvo
