#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <optional>

// Who sits at which computer, and how they measure. Nothing here blocks on the network.
namespace kelvo {

// The user of the login session that this process belongs to (logind), else
// the process's owner; none when that has no name.
std::optional<QString> consoleUser();

// The home folder of the process's owner as the system's list of users has it; what HOME says
// comes before it.
std::optional<QString> ownersHome();

std::optional<QString> computerName(); // the host name

// The default locale's. Metric for Britain too, which measures its paper in
// millimetres, whatever its roads are measured in.
QLocale::MeasurementSystem measurementSystem();

// The first IPv4 address of the default route's interface, in dotted form.
std::optional<QString> primaryIPv4Address();

// The interface of the default route in the text of /proc/net/route:
// destination and mask 0, up and gateway (flags 3), lowest metric.
std::optional<QByteArray> defaultRouteInterface(const QByteArray &routeTable);

} // namespace kelvo
