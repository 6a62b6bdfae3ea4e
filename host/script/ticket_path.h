#pragma once

#include "ticket.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace kelvo {

// The value at PATH in two tickets: a key of the print settings or of the page
// format ticket, then steps into dictionaries (by key) and arrays (by
// index from 0), divided by "/". None when a step leads nowhere.
std::optional<QVariant> valueAtPath(const Ticket &printSettings, const Ticket &pageFormat,
                                    const QString &path);

// A value as a script writes it: numbers in the C locale, true and false, texts
// as they are, dictionaries and arrays as compact JSON.
QString scriptText(const QVariant &value);

} // namespace kelvo
