#pragma once

#include "cups_connection.h"
#include "result.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// What a printer says of itself over IPP, where its queue has no PPD.
namespace kelvo {

struct IppMedia
{
    QString name;                                 // as IPP has it: "iso_a4_210x297mm"
    int width = 0, length = 0;                    // hundredths of a millimetre, as all of these
    int left = 0, bottom = 0, right = 0, top = 0; // margins
    bool isBorderless() const { return left == 0 && bottom == 0 && right == 0 && top == 0; }
};

struct IppMediaRange
{
    int minWidth = 0, minLength = 0, maxWidth = 0, maxLength = 0;
};

// The values of a job's attribute, in the printer's order.
struct IppValues
{
    QStringList values; // keywords; enumerations as their keywords, resolutions as "600dpi"
    QString byDefault;  // may be none of these, or empty
};

struct IppDescription
{
    QString makeAndModel;
    bool isBehindQueue = false;  // see isBehindQueue() of ipp_options.h
    std::vector<IppMedia> media; // one with and one without borders may have the same name
    QString defaultMedia;
    std::optional<IppMediaRange> customMedia;
    QMap<QString, IppValues> values; // of ippAttributes(); "finishings" without "none"

    bool isEmpty() const { return media.empty() && values.isEmpty(); }
};

// What an answer to Get-Printer-Attributes says. Values that cannot be keywords are left out: what
// comes from a printer is as hostile as what comes from a server.
IppDescription ippDescriptionFrom(ipp_t *response);

// That of `queue`; where the server, which is on this machine, knows nothing of the settings, that
// of the printer behind it, if that speaks IPP. Empty where neither says anything. Blocks; a
// printer has five seconds to answer.
Result<IppDescription> describeQueue(http_t *http, const QString &queue, Patience &patience);

} // namespace kelvo
