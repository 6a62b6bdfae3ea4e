#include "stock_summary.h"

#include "ppd_choices.h"
#include "texts.h"
#include "ticket_values.h"

#include <QStringList>

namespace kelvo {

namespace {

const QString bullet = QStringLiteral("- ");

// The PPD's text of the choice with that value; empty when it has none.
QString choiceText(const Device &device, const char *option, std::int32_t value)
{
    return PPDCopyTextForTicketValue(device.ppd, QString::fromLatin1(option), value)
        .value_or(QString());
}

QString labelled(const Device &device, const char *labelKey, const QString &text)
{
    return device.text(labelKey) + device.text(":") + text;
}

QString withModulus(const QString &name, std::int32_t modulus)
{
    return QStringLiteral("%1 (%2)").arg(name, QString::number(modulus));
}

} // namespace

QString stockSizeText(const Device &device, const Stock &stock)
{
    return choiceText(device, "PageSize", stock.size());
}

QString stockColorText(const Device &device, const Stock &stock)
{
    return stock.color() == kStockColorCustom ? stock.customColor()
                                              : choiceText(device, "MediaColor", stock.color());
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
            return withModulus(choiceText(device, "MediaType", stock.type()), stock.modulus());
        break;
    case kStockTypeCustom:
        return stock.customType();
    default:
        break;
    }
    return choiceText(device, "MediaType", stock.type());
}

QString GenerateStockSummary(const Device &device, JobContext jobContext, const Stock &stock,
                             const QString &separator)
{
    if (stock.source() == kStockSourceInserter) {
        return bullet + device.featureText("PostPrintInserterKey").value_or(QString());
    }
    if (stock.source() != kUnset)
        return QStringLiteral("");

    const bool isJob = jobContext == kJobContextJob;
    QStringList lines;
    if (!stock.customName().isEmpty())
        lines << labelled(device, "StockName", stock.customName());
    if (!stock.customNameOnly()) {
        if (stock.size() != kUnset && !isJob)
            lines << bullet + stockSizeText(device, stock);
        if (stock.color() == kStockColorCustom)
            lines << labelled(device, "StockColor", stockColorText(device, stock));
        else if (stock.color() != kUnset || isJob)
            lines << bullet + stockColorText(device, stock);
        if (stock.type() != kUnset || isJob)
            lines << bullet + stockTypeText(device, stock);
    }
    return lines.isEmpty() ? QStringLiteral("") : lines.join(separator);
}

QString GenerateStockSummary(CFBundleRef bundle, JobContext jobContext, const Stock &stock,
                             const QString &separator)
{
    return GenerateStockSummary(currentDevice(bundle), jobContext, stock, separator);
}

QString stockSizeWords(const Device &device, JobContext jobContext, const Stock &stock,
                       SizeUnit unit)
{
    if (stock.size() == kUnset)
        return device.text(notSetKey(jobContext));
    if (stock.size() == kStockSizeCustom && stock.width() != kUnset && stock.length() != kUnset) {
        const auto text = [unit](std::int32_t length) {
            return CreateLocalizedCFStringFromNumberWithDecimals(fieldOfLength(length, unit),
                                                                 decimalsOf(unit))
                .value_or(QString());
        };
        return device
            .text(unit == SizeUnit::Inches ? "StockCustomSizeInches" : "StockCustomSizeMillimeters")
            .arg(text(stock.width()), text(stock.length()));
    }
    const QString size = stockSizeText(device, stock);
    return size.isEmpty() ? device.text("StockSizeUnknown") : size;
}

QString jobPaperText(const Device &device, const Stock *jobStock)
{
    if (!jobStock)
        return {};
    QStringList parts =
        GenerateStockSummary(device, kJobContextJob, *jobStock, QStringLiteral("\n")).split(u'\n');
    for (QString &part : parts) {
        if (part.startsWith(bullet))
            part.remove(0, bullet.size());
    }
    parts.removeAll(QString());
    return separated(parts);
}

QString stockSummaryText(const Device &device, JobContext jobContext, const Stock *stock)
{
    if (!stock)
        return QStringLiteral("");
    const QString summary = GenerateStockSummary(device, jobContext, *stock, QStringLiteral("\n"));
    if (!summary.isEmpty())
        return summary;
    return device.text(notSetKey(jobContext));
}

} // namespace kelvo
