#include "stock_summary.h"

#include "installed_features.h"
#include "ppd_choices.h"
#include "ticket_values.h"

#include <QStringList>

namespace kelvo {

namespace {

const QString bullet = QStringLiteral("- ");

// The PPD's text of the choice with that value; empty when it has none.
QString choiceText(const PpdFile *ppd, const char *option, std::int32_t value)
{
    return PPDCopyTextForTicketValue(ppd, QString::fromLatin1(option), value).value_or(QString());
}

QString labelled(CFBundleRef bundle, const char *labelKey, const QString &text)
{
    return localizedText(bundle, QString::fromLatin1(labelKey))
        + localizedText(bundle, QStringLiteral(":")) + text;
}

QString withModulus(const QString &name, std::int32_t modulus)
{
    return QStringLiteral("%1 (%2)").arg(name, QString::number(modulus));
}

} // namespace

QString stockSizeText(const Stock &stock)
{
    return choiceText(PPDGetCurrent(), "PageSize", stock.size());
}

QString stockColorText(const Stock &stock)
{
    return stock.color() == kStockColorCustom
        ? stock.customColor()
        : choiceText(PPDGetCurrent(), "MediaColor", stock.color());
}

QString stockTypeText(CFBundleRef bundle, const Stock &stock)
{
    return stockTypeText(Device{.bundle = bundle, .ppd = PPDGetCurrent()}, stock);
}

QString stockTypeText(const Device &device, const Stock &stock)
{
    switch (stock.type()) {
    case kStockTypeOrdered:
        return withModulus(stock.customType(), stock.modulus());
    case kStockTypePrecutTab:
        return withModulus(device.text("StockTypePrecutTab"), stock.modulus());
    case kStockTypeTab:
    case kStockTypeHeavyTab:
        if (stock.modulus() > 0)
            return withModulus(choiceText(device.ppd, "MediaType", stock.type()), stock.modulus());
        break;
    case kStockTypeCustom:
        return stock.customType();
    default:
        break;
    }
    return choiceText(device.ppd, "MediaType", stock.type());
}

QString GenerateStockSummary(CFBundleRef bundle, JobContext jobContext, const Stock &stock,
                             const QString &separator)
{
    if (stock.source() == kStockSourceInserter) {
        return bullet
            + CopyLocalizedStringForInstalledFeatureFromPlugin(
                  QStringLiteral("PostPrintInserterKey"), bundle)
                  .value_or(QString());
    }
    if (stock.source() != kUnset)
        return QStringLiteral("");

    const bool isJob = jobContext == kJobContextJob;
    QStringList lines;
    if (!stock.customName().isEmpty())
        lines << labelled(bundle, "StockName", stock.customName());
    if (!stock.customNameOnly()) {
        if (stock.size() != kUnset && !isJob)
            lines << bullet + stockSizeText(stock);
        if (stock.color() == kStockColorCustom)
            lines << labelled(bundle, "StockColor", stockColorText(stock));
        else if (stock.color() != kUnset || isJob)
            lines << bullet + stockColorText(stock);
        if (stock.type() != kUnset || isJob)
            lines << bullet + stockTypeText(bundle, stock);
    }
    return lines.isEmpty() ? QStringLiteral("") : lines.join(separator);
}

QString stockSummaryText(CFBundleRef bundle, JobContext jobContext, const Stock *stock)
{
    if (!stock)
        return QStringLiteral("");
    const QString summary = GenerateStockSummary(bundle, jobContext, *stock, QStringLiteral("\n"));
    if (!summary.isEmpty())
        return summary;
    return localizedText(bundle,
                         jobContext == kJobContextJob ? QStringLiteral("PrinterDefault")
                                                      : QStringLiteral("UseJobSetting"));
}

} // namespace kelvo
