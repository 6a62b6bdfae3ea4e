#include "printer_condition.h"

#include <algorithm>

namespace kelvo {

namespace {

// Keywords of RFC 8011, section 5.4.12, without their weight. Others are read as words.
struct ReasonRow
{
    const char *keyword;
    const char *words; // empty: what the state says anyway
};
constexpr ReasonRow reasonRows[] = {
    {"none", ""},
    {"other", ""},
    {"paused", ""},
    {"moving-to-paused", ""},
    {"stopping", ""},
    {"connecting-to-device", "the printer is not reached"},
    {"cover-open", "a cover is open"},
    {"developer-empty", "the developer is used up"},
    {"developer-low", "the developer runs out"},
    {"door-open", "a door is open"},
    {"fuser-over-temp", "the fuser is too hot"},
    {"fuser-under-temp", "the fuser is not hot yet"},
    {"input-tray-missing", "a paper tray is missing"},
    {"interlock-open", "a door is open"},
    {"marker-supply-empty", "toner or ink is used up"},
    {"marker-supply-low", "toner or ink runs out"},
    {"marker-waste-almost-full", "the waste container is almost full"},
    {"marker-waste-full", "the waste container is full"},
    {"media-empty", "there is no paper"},
    {"media-jam", "paper is jammed"},
    {"media-low", "paper runs out"},
    {"media-needed", "it waits for paper"},
    {"offline", "the printer is not reached"},
    {"output-area-almost-full", "an output tray is almost full"},
    {"output-area-full", "an output tray is full"},
    {"output-tray-missing", "an output tray is missing"},
    {"shutdown", "the printer is switched off"},
    {"spool-area-full", "its memory is full"},
    {"stopped-partly", "some of its printers are stopped"},
    {"timed-out", "the printer does not answer"},
    {"toner-empty", "toner is used up"},
    {"toner-low", "toner runs out"},
};

// What the print server writes where nobody has given a reason.
constexpr const char *emptyMessages[] = {"paused", "rejecting jobs", "printer stopped"};

QString reasonWords(QString keyword)
{
    keyword = keyword.simplified();
    for (const char *weight : {"-report", "-warning", "-error"}) {
        if (keyword.endsWith(QLatin1String(weight)))
            keyword.chop(qsizetype(qstrlen(weight)));
    }
    const auto row = std::ranges::find_if(reasonRows, [&keyword](const ReasonRow &each) {
        return keyword == QLatin1String(each.keyword);
    });
    return row != std::end(reasonRows) ? QString::fromLatin1(row->words)
                                       : keyword.replace(u'-', u' ');
}

} // namespace

QString stateWords(const QString &message, const QStringList &reasons)
{
    QString said = message.simplified();
    while (said.endsWith(u'.'))
        said.chop(1);
    QStringList words{said};
    if (std::ranges::any_of(emptyMessages, [&said](const char *empty) {
            return said.compare(QLatin1String(empty), Qt::CaseInsensitive) == 0;
        }))
        words.clear();
    for (const QString &reason : reasons)
        words << reasonWords(reason);
    words.removeAll(QString());
    words.removeDuplicates();
    return words.join(QStringLiteral(", "));
}

} // namespace kelvo
