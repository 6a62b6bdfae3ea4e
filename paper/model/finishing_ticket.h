#pragma once

#include "finishing.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

#include <optional>

// Staples and holes as PPD choices. The device's choices say where on the sheet
// they go, so they depend on how the page lies: orientation 1 portrait, 2
// landscape, 3 reverse portrait, 4 reverse landscape.
namespace kelvo {

// The "KVPunch" choice for two, three or four holes; none for any other value
// and any other orientation.
std::optional<QString> punchChoice(std::int32_t punch, std::int32_t orientation);
// The holes of a landscape choice, which has no ticket value of its own; none for
// any other choice.
std::optional<std::int32_t> punchOfChoice(const QString &choice);
// Two, three or four; 0 for any other value, also for a pattern that is set at the device.
int holesOfPunch(std::int32_t punch);

// The "StapleLocation" choice. Reversed pages have one choice each, whatever is
// chosen: reverse landscape "SingleLandscape", reverse portrait "DualPortrait".
// None for a value without a choice, on pages that are not reversed.
std::optional<QString> stapleChoice(std::int32_t staple, std::int32_t orientation);
// The staple of a choice without a ticket value of its own, as above.
std::optional<std::int32_t> stapleOfChoice(const QString &choice);

// Those choices: a menu shows each staple and punch once.
QStringList punchChoicesWithoutValue();
QStringList stapleChoicesWithoutValue();

// Where the ticket says what that command of the finishing menu sets; nowhere for others.
TicketPlaces finishingPlaces(OSType command);

} // namespace kelvo
