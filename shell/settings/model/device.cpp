#include "device.h"

#include "pde_session.h"
#include "ppd_choices.h"
#include "ticket_values.h"

namespace kelvo {

QString Device::text(const char *key) const
{
    return localizedText(bundle, QString::fromLatin1(key));
}

CustomPageLimits Device::mediaLimits() const
{
    constexpr CustomPageLimits usual{432, 432, 864, 864}; // 6 to 12 inches
    return ppd ? ppd->customPageLimits().value_or(usual) : usual;
}

std::optional<QString> Device::featureText(const char *feature) const
{
    const InstalledFeature *row = installed.find(feature);
    if (!row || !row->localizedKey)
        return std::nullopt;
    return localizedText(bundle, QString::fromUtf8(row->localizedKey));
}

Device deviceWith(CFBundleRef bundle, const PpdFile *ppd)
{
    return {bundle, ppd, ppd ? InstalledOptions(*ppd, InstalledFeatures) : InstalledOptions()};
}

Device currentDevice(CFBundleRef bundle)
{
    return {bundle, PPDGetCurrent(), installedOptions()};
}

Device currentDevice()
{
    return currentDevice(GetPDEBundle());
}

} // namespace kelvo
