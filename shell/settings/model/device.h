#pragma once

#include "bundle.h"
#include "installed_features.h"
#include "ppd_file.h"

#include <QString>

#include <optional>

// What rules, menus and words ask about a printer: what it can do, what is fitted to
// it, and how the bundle calls all that.
namespace kelvo {

// A value. What it borrows outlives it; marks on a PPD are state, so whoever works on
// another thread has a PpdFile of its own.
struct Device
{
    CFBundleRef bundle = nullptr; // of the texts; null: no text is found
    const PpdFile *ppd = nullptr; // null: nothing is known of the printer
    InstalledOptions installed;

    bool has(const char *feature) const { return installed.has(feature); }
    bool hasOption(const QString &option) const { return ppd && ppd->findOption(option); }
    // The text of `key` in "Localizable", else "STRING NOT FOUND".
    QString text(const char *key) const;
    // Of custom page sizes; 432, 432, 864 and 864 points where the device does not say.
    CustomPageLimits mediaLimits() const;
    // How the bundle calls a feature; none when the device does not have it.
    std::optional<QString> featureText(const char *feature) const;
};

// A device with that PPD and its own installable options.
Device deviceWith(CFBundleRef bundle, const PpdFile *ppd);

// The printer of the current dialog: its PPD and what LoadInstallableOptions found, with
// the texts of that bundle or of the extension's.
Device currentDevice(CFBundleRef bundle);
Device currentDevice();

} // namespace kelvo
