#include "ticket_path.h"

#include <QJsonDocument>
#include <QJsonValue>
#include <QStringList>

#include <charconv>

namespace kelvo {

namespace {

const TicketEntry *findEntry(const Ticket &printSettings, const Ticket &pageFormat,
                             const QString &key)
{
    for (const Ticket *ticket : {&printSettings, &pageFormat}) {
        const auto entry = ticket->entries.find(key);
        if (entry != ticket->entries.end())
            return &entry->second;
    }
    return nullptr;
}

} // namespace

std::optional<QVariant> valueAtPath(const Ticket &printSettings, const Ticket &pageFormat,
                                    const QString &path)
{
    // A key may hold a slash itself: the longest one that the tickets have wins.
    QStringList steps = path.split(u'/');
    QStringList rest;
    const TicketEntry *entry = nullptr;
    while (!steps.isEmpty() && !(entry = findEntry(printSettings, pageFormat, steps.join(u'/'))))
        rest.prepend(steps.takeLast());
    if (!entry)
        return {};

    QVariant value = entry->value;
    for (const QString &step : rest) {
        if (const auto in = dictionary(value)) {
            const auto at = in->constFind(step);
            if (at == in->constEnd())
                return {};
            value = QVariant(*at);
        } else if (const auto list = array(value)) {
            bool isNumber = false;
            const int index = step.toInt(&isNumber);
            if (!isNumber || index < 0 || index >= list->size())
                return {};
            value = QVariant((*list)[index]);
        } else {
            return {};
        }
    }
    return value;
}

QString scriptText(const QVariant &value)
{
    if (const auto flag = boolean(value))
        return *flag ? QStringLiteral("true") : QStringLiteral("false");
    if (const auto number = integer64(value))
        return QString::number(*number);
    if (const auto number = real(value)) {
        char text[64];
        const auto end = std::to_chars(text, text + sizeof text, *number);
        return QString::fromLatin1(text, end.ptr - text);
    }
    if (const auto text = string(value))
        return *text;
    if (const auto bytes = data(value))
        return QString::fromLatin1(bytes->toBase64());
    const QJsonDocument json = QJsonDocument::fromVariant(value);
    return QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}

} // namespace kelvo
