#pragma once

#include "bundle.h"
#include "ppd_file.h"

#include <QMap>
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

// What is fitted to one printer: the choices of its installable options, and what they mean.
class InstalledOptions
{
public:
    InstalledOptions() = default; // nothing is fitted
    // As the PPD has it by default; `featureMap` is borrowed.
    InstalledOptions(const PpdFile &ppd, const InstalledFeature *featureMap);

    bool isEmpty() const { return m_choices.isEmpty(); }
    std::optional<QString> choice(const QString &keyword) const;
    bool has(const char *feature) const { return find(feature) != nullptr; }
    // The first matching row; null when the device does not have it, and for null.
    const InstalledFeature *find(const char *feature) const;

private:
    const InstalledFeature *m_featureMap = nullptr;
    QMap<QString, QString> m_choices; // option keyword → choice
};

// Those of the current printer. True when there was an installable option. The first
// load wins until UnloadInstallableOptions.
bool LoadInstallableOptions(PpdFile *ppd, const InstalledFeature *featureMap);
void UnloadInstallableOptions();
const InstalledOptions &installedOptions(); // nothing is fitted before loading

std::optional<QString> getInstallableOptionValue(const QString &keyword);
bool getInstalledFeature(const char *feature); // false for null and before loading
std::optional<std::int32_t> getInstallableOptionTicketValue(const QString &feature);
// The text of the first matching row; none when the feature is not there or has no key.
std::optional<QString> CopyLocalizedStringForInstalledFeatureFromPlugin(const QString &feature,
                                                                        CFBundleRef bundle);

} // namespace kelvo
