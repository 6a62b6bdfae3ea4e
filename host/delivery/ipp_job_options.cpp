#include "ipp_job_options.h"

#include "device_offers.h"
#include "ipp_options.h"

#include <cmath>

namespace kelvo {

namespace {

const QString paperOption = QStringLiteral("PageSize");

// "{x-dimension=21000 y-dimension=29700}", in hundredths of a millimetre.
QString mediaSize(const QSizeF &points)
{
    const auto hundredths = [](double length) {
        return QString::number(std::lround(length / 72 * 2540));
    };
    return QStringLiteral("{x-dimension=%1 y-dimension=%2}")
        .arg(hundredths(points.width()), hundredths(points.height()));
}

// What `wanted` says of an option and the printer has; else its own default, or nothing.
QString codeFor(const PpdOption &option, const PPDDictionary &wanted, const PpdFile &ppd,
                bool isSaidAnyway)
{
    const QString choice =
        wanted.value(option.keyword, isSaidAnyway ? option.defaultChoice : QString());
    return offers(ppd, option.keyword, choice) ? ppd.code(option.keyword, choice) : QString();
}

// The paper by its name, or, where more is to be said of it, as a collection.
JobOption mediaOf(const QString &paper, const QString &source, const QString &type,
                  const PpdFile &ppd)
{
    const QString name = ppd.code(paperOption, paper);
    const bool isBorderless = paper.endsWith(QLatin1String(".Borderless"));
    const bool isCustom = !ppd.findPageSize(paper);
    if (!isBorderless && !isCustom && source.isEmpty() && type.isEmpty())
        return {QStringLiteral("media"), name};
    QStringList members;
    if (const auto size = paperSize(paper, ppd))
        members << QStringLiteral("media-size=") + mediaSize(*size);
    if (isBorderless) {
        for (const char *side : {"left", "bottom", "right", "top"})
            members << QStringLiteral("media-%1-margin=0").arg(QLatin1String(side));
    }
    if (!source.isEmpty())
        members << QStringLiteral("media-source=") + source;
    if (!type.isEmpty())
        members << QStringLiteral("media-type=") + type;
    return {QStringLiteral("media-col"), u'{' + members.join(u' ') + u'}', isBehindQueue(ppd)};
}

} // namespace

std::vector<JobOption> ippJobOptions(const PPDDictionary &wanted, const PpdFile &ppd,
                                     const QMap<QString, QString> &queueDefaults)
{
    std::vector<JobOption> options;
    QString source, type;
    QStringList finishings;
    for (const PpdGroup &group : ppd.groups()) {
        for (const PpdOption &option : group.options) {
            const QString attribute = ippAttributeOf(option.keyword);
            const bool isColor = attribute == QLatin1String("print-color-mode");
            const QString code =
                codeFor(option, wanted, ppd, isColor || queueDefaults.contains(attribute));
            if (attribute.isEmpty() || code.isEmpty())
                continue;
            if (attribute == QLatin1String("media-source"))
                source = code;
            else if (attribute == QLatin1String("media-type"))
                type = code;
            else if (attribute == QLatin1String("finishings"))
                finishings << code;
            else if (attribute == QLatin1String("finishing-template"))
                options.push_back({QStringLiteral("finishings-col"),
                                   QStringLiteral("{finishing-template=%1}").arg(code),
                                   isBehindQueue(ppd)});
            else
                options.push_back({attribute, code});
        }
    }
    if (const QString paper = wanted.value(paperOption); offers(ppd, paperOption, paper))
        options.push_back(mediaOf(paper, source, type, ppd));
    if (finishings.isEmpty() && queueDefaults.contains(QStringLiteral("finishings")))
        finishings << QStringLiteral("3"); // none
    if (!finishings.isEmpty())
        options.push_back({QStringLiteral("finishings"), finishings.join(u',')});
    return options;
}

} // namespace kelvo
