#include "special_pages_summary.h"

#include "cover_sync.h"
#include "lighten_darken.h"
#include "ppd_choices.h"
#include "setting_maps.h"
#include "stock_summary.h"
#include "texts.h"

#include <QStringList>

namespace kelvo {

namespace {

const QString frontOption = QStringLiteral("KVFrontCoverSheet");
const QString backOption = QStringLiteral("KVBackCoverSheet");
const QString wideSeparator = QStringLiteral(";  ");

QString joined(QStringList parts, const QString &with)
{
    parts.removeAll(QString()); // what the device does not have has no words
    return parts.join(with);
}

// What this kind of page says beside its stock.
QString kindText(const Device &device, const SpecialPage &page)
{
    if (const auto *cover = dynamic_cast<const Cover *>(&page))
        return textOfValue(device, CoverSidesImagedMap, cover->sidesImaged());
    if (const auto *insert = dynamic_cast<const Insert *>(&page)) {
        return QStringLiteral("%1 [%2]").arg(device.text("InsertSummaryQuantity"),
                                             QString::number(insert->quantity()));
    }
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page))
        return textOfValue(device, PlexMap, exception->plex());
    return {};
}

QStringList stockTexts(const Device &device, const Stock &stock)
{
    if (stock.source() == kStockSourceInserter) {
        return {device.featureText("PostPrintInserterKey").value_or(QString())};
    }
    // A tray says what it holds by itself.
    if (stock.source() != kUnset)
        return {};
    QStringList texts;
    if (stock.size() != kUnset)
        texts << stockSizeText(device, stock);
    if (stock.color() != kUnset)
        texts << stockColorText(device, stock);
    if (stock.type() != kUnset)
        texts << stockTypeText(device, stock);
    return texts;
}

bool isThis(const std::optional<Cover> &cover, const SpecialPage &page)
{
    return cover && &*cover == &page;
}

} // namespace

std::vector<const SpecialPage *> rowsOf(const SpecialPagesSettings &settings)
{
    const std::int32_t inserts = settings.inserts.count();
    const std::int32_t exceptions = settings.exceptions.count();
    std::vector<const SpecialPage *> rows;
    rows.reserve(static_cast<std::size_t>(inserts) + static_cast<std::size_t>(exceptions) + 2);
    if (settings.frontCover)
        rows.push_back(&*settings.frontCover);
    std::int32_t insert = 0, exception = 0;
    while (insert < inserts || exception < exceptions) {
        const SpecialPage *nextInsert = settings.inserts.SpecialPageList::pageAtIndex(insert);
        const SpecialPage *nextException =
            settings.exceptions.SpecialPageList::pageAtIndex(exception);
        // What is inserted after a page comes after that page.
        const bool takeException =
            nextException && (!nextInsert || nextException->startPage() <= nextInsert->startPage());
        rows.push_back(takeException ? nextException : nextInsert);
        ++(takeException ? exception : insert);
    }
    if (settings.backCover)
        rows.push_back(&*settings.backCover);
    return rows;
}

QString pagesText(const Device &device, const SpecialPagesSettings &settings,
                  const SpecialPage &page)
{
    if (isThis(settings.frontCover, page))
        return device.text("SpecialPageSummaryFront");
    if (isThis(settings.backCover, page))
        return device.text("SpecialPageSummaryBack");
    if (dynamic_cast<const Cover *>(&page))
        return {};
    const QString first = QString::number(page.startPage());
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page)) {
        return exception->endPage() == page.startPage()
            ? first
            : first + u'-' + QString::number(exception->endPage());
    }
    return page.startPage() < 1 ? device.text("SpecialPageSummaryBefore1") : first;
}

QString typeText(const Device &device, const SpecialPage &page)
{
    if (dynamic_cast<const Cover *>(&page))
        return device.text("SpecialPageSummaryCover");
    return dynamic_cast<const Insert *>(&page) ? device.text("SpecialPageSummaryInsert")
                                               : device.text("SpecialPageSummaryException");
}

QString CopySpecialPageSummary(const SpecialPage &page, const Device &device)
{
    const Stock &stock = page.stock();
    QStringList parts;
    if (!stock.customName().isEmpty())
        parts << device.text("Paper Name Label") + u' ' + stock.customName();
    parts << kindText(device, page);
    parts << stockTexts(device, stock);
    return joined(parts);
}

QString attributesText(const SpecialPage &page, const Device &device)
{
    QStringList parts{CopySpecialPageSummary(page, device)};
    if (const auto *cover = dynamic_cast<const Cover *>(&page)) {
        if (!device.hasOption(frontOption))
            parts << device.text("Not on This Device");
        else if (!reachesDevice(*cover))
            parts << device.text("Cover Without Source");
    }
    if (const auto *exception = dynamic_cast<const ExceptionPage *>(&page)) {
        // Nor is there a page before page 1.
        if (!exception->coversPages() || exception->endPage() < 1)
            parts << device.text("Exception Without Pages");
        if (const char *step = lightenDarkenKey(exception->lightenDarken()))
            parts << device.text(step);
        if (exception->imageShift()->option != kUnset)
            parts << device.text("Exception Image Shift");
    }
    const QString all = joined(parts);
    return all.isEmpty() ? device.text("UseJobSetting") : all;
}

QString coverTraysText(const Device &device, const SpecialPagesSettings &settings)
{
    QStringList parts;
    const auto add = [&](const char *key, const QString &option,
                         const std::optional<Cover> &cover) {
        const auto tray = cover && reachesDevice(*cover)
            ? PPDCopyTextForTicketValue(device.ppd, option, cover->stock().source())
            : std::nullopt;
        if (tray)
            parts << device.text(key) + device.text(":") + *tray;
    };
    add("Front Cover", frontOption, settings.frontCover);
    add("Back Cover", backOption, settings.backCover);
    return separated(parts);
}

QString CreateInsertAttributesDescription(const Device &device, const Insert &insert)
{
    const QString quantity =
        device.text("InsertSummaryQuantity") + u' ' + QString::number(insert.quantity());
    return joined(
        {quantity,
         GenerateStockSummary(device, kJobContextInserts, insert.stock(), QStringLiteral(", "))},
        wideSeparator);
}

QString CreateExceptionAttributesDescription(const Device &device, const ExceptionPage &exception)
{
    return joined({textOfValue(device, PlexMap, exception.plex()),
                   GenerateStockSummary(device, kJobContextExceptions, exception.stock(),
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
