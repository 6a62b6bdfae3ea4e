#pragma once

#include "bundle.h"
#include "ppd_file.h"

#include <QString>

#include <cstdint>
#include <optional>

// Which devices are fitted to the printer, from the PPD's InstallableOptions.
namespace kelvo {

// A feature is there when any of its rows matches; a row without keyword always does.
struct InstalledFeature
{
    const char *feature;      // null ends the table
    const char *ppdKeyword;   // an installable option; may be null
    const char *choice;       // the choice that it must have
    const char *localizedKey; // describes the feature; may be null
    std::int32_t ticketValue;
};
extern const InstalledFeature InstalledFeatures[];

// Records the marked choice of every installable option. True when there was
// one. The first load wins until UnloadInstallableOptions.
bool LoadInstallableOptions(PpdFile *ppd, const InstalledFeature *featureMap);
void UnloadInstallableOptions();

std::optional<QString> getInstallableOptionValue(const QString &keyword);
bool getInstalledFeature(const char *feature); // false for null and before loading
std::optional<std::int32_t> getInstallableOptionTicketValue(const QString &feature);
// The text of the first matching row; none when the feature is not there or has no key.
std::optional<QString> CopyLocalizedStringForInstalledFeatureFromPlugin(const QString &feature,
                                                                        CFBundleRef bundle);

} // namespace kelvo
