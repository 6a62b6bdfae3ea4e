#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <optional>

// Who sits at which computer, and how they measure. Nothing here blocks on the network. A ticket
// asks at each write, so that what has been found is kept for as long as it can be no other.
namespace kelvo {

// The user of the login session that this process belongs to (logind), else
// the process's owner; none when that has no name. The same for as long as the process runs.
std::optional<QString> consoleUser();

// The home folder of the process's owner as the system's list of users has it; what HOME says
// comes before it.
std::optional<QString> ownersHome();

std::optional<QString> computerName(); // the host name

// The default locale's. Metric for Britain too, which measures its paper in
// millimetres, whatever its roads are measured in.
QLocale::MeasurementSystem measurementSystem();

// The first IPv4 address of the default route's interface, in dotted form. Looked up anew when
// the kernel has told of a changed link, address or route.
std::optional<QString> primaryIPv4Address();

// The interface of the default route in the text of /proc/net/route:
// destination and mask 0, up and gateway (flags 3), lowest metric.
std::optional<QByteArray> defaultRouteInterface(const QByteArray &routeTable);

} // namespace kelvo
