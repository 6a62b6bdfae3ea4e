#pragma once

#include "device.h"
#include "exception_page.h"
#include "menu.h"
#include "ticket.h"

#include <QLocale>
#include <QString>

// What the exceptions dialog offers and says.
namespace kelvo {

inline const QString kExceptionSidesOption = QStringLiteral("Duplex");
inline const QString kExceptionLightnessOption = QStringLiteral("KVImageQuality");

// What the device offers, and before it the item that leaves the setting to the job (kUnset):
// alone where the device offers nothing.
Menu exceptionSidesMenu(const Device &device, OSType command);
Menu exceptionLightnessMenu(const Device &device);

// What leaving `option` to the job means: the ticket's choice, else the device's default, in
// the PPD's words; empty where that is unknown.
QString jobSettingHint(const Device &device, const Ticket &printSettings, const QString &option);

// "12.7 mm (A4 template)", "0.4 in": as the tab stock set-up shows the page's shift.
QString tabShiftWords(const Device &device, const ExceptionPage &page,
                      QLocale::MeasurementSystem system);

} // namespace kelvo
