#pragma once

#include <QString>

// The PPD of a sample device: "full", "mid" or "bare".
inline QString samplePpd(const QString &device)
{
    return QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-%1.ppd").arg(device);
}

// One of our make that reads no tickets.
inline QString ppdWithoutTicket()
{
    return QStringLiteral(KELVO_SOURCE_DIR "/tests/data/ppds/no-ticket.ppd");
}
