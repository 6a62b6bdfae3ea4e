#pragma once

#include "bundle.h"
#include "installed_features.h"
#include "pde_session.h"
#include "ppd_choices.h"
#include "print_session.h"
#include "sample_ppds.h"

#include <QString>

// A print session on one of the sample devices ("full", "mid", "bare"; empty: no
// PPD), current while it lives, with the bundle's texts and pictures.
class DeviceSession
{
public:
    explicit DeviceSession(const QString &device)
    {
        const auto opened =
            kelvo::Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
        bundle = opened ? opened.value() : nullptr;
        if (!device.isEmpty())
            session.setPrinter({device, samplePpd(device)});
        kelvo::setCurrentPrintSession(&session);
        kelvo::LoadInstallableOptions(kelvo::PPDGetCurrent(), kelvo::InstalledFeatures);
    }
    ~DeviceSession()
    {
        kelvo::setCurrentPrintSession(nullptr);
        kelvo::PPDCloseCurrent();
        kelvo::UnloadInstallableOptions();
    }
    DeviceSession(const DeviceSession &) = delete;
    DeviceSession &operator=(const DeviceSession &) = delete;

    kelvo::PMTicketRef settings() const { return session.printSettingsTicket(); }
    kelvo::PMTicketRef pageFormat() const { return session.pageFormatTicket(); }
    QString choice(const QString &option) const
    {
        return session.printSettings().ppdChoices.value(option);
    }

    kelvo::PrintSession session;
    kelvo::CFBundleRef bundle = nullptr;
};
