#include "ticket_values.h"

#include "device.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kelvo {

namespace {

// What a decimal-style formatter shows at most, unless more are asked for.
constexpr int kUsualFractionDigits = 3;

} // namespace

QString ticketKey(const char *settingName)
{
    return QStringLiteral("com.kelvo.print.") + QLatin1String(settingName);
}

QString localizedText(CFBundleRef bundle, const QString &key)
{
    return localizedText(bundle, key, QStringLiteral("Localizable"));
}

QString localizedText(CFBundleRef bundle, const QString &key, const QString &table)
{
    const QString missing = QStringLiteral("STRING NOT FOUND");
    return bundle ? CFBundleCopyLocalizedString(bundle, key, missing, table) : missing;
}

void WriteTicketValue(Dictionary &dictionary, const QString &key, std::int64_t value)
{
    dictionary.insert(key, QVariant::fromValue<qint64>(value));
}

bool GetCFIndexFromCFDictionary(const Dictionary &dictionary, const QString &key, std::int64_t *out)
{
    const std::optional<std::int64_t> value = integer64(dictionary, key);
    if (!value || !out)
        return false;
    *out = *value;
    return true;
}

std::optional<QString> CreateLocalizedCFStringFromNumberWithDecimals(std::int32_t value,
                                                                     int decimals)
{
    const QLocale locale;
    if (decimals <= 0)
        return locale.toString(value);

    const float number = static_cast<float>(value) / static_cast<float>(std::pow(10.0, decimals));
    const int most = std::max(decimals, kUsualFractionDigits);
    // A float times 1000 is exact in a double, so a tie is seen as one and goes to
    // the even digit, as formatters do.
    const double rounded =
        most == kUsualFractionDigits ? std::nearbyint(double(number) * 1000) / 1000 : number;
    QString text = locale.toString(rounded, 'f', most);
    for (int digits = most; digits > decimals && text.endsWith(locale.zeroDigit()); --digits)
        text.chop(locale.zeroDigit().size());
    return text;
}

int CountDigits(std::int64_t n)
{
    int digits = 1;
    while (n /= 10)
        ++digits;
    return digits;
}

void GetMediaLimits(double *minWidth, double *minHeight, double *maxWidth, double *maxHeight)
{
    const CustomPageLimits found = currentDevice().mediaLimits();
    *minWidth = found.minWidth;
    *minHeight = found.minHeight;
    *maxWidth = found.maxWidth;
    *maxHeight = found.maxHeight;
}

} // namespace kelvo
