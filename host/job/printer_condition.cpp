#include "printer_condition.h"

#include "texts.h"

#include <QtGlobal>

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
    {"connecting-to-device", QT_TRANSLATE_NOOP("Job", "the printer is not reached")},
    {"cover-open", QT_TRANSLATE_NOOP("Job", "a cover is open")},
    {"developer-empty", QT_TRANSLATE_NOOP("Job", "the developer is used up")},
    {"developer-low", QT_TRANSLATE_NOOP("Job", "the developer runs out")},
    {"door-open", QT_TRANSLATE_NOOP("Job", "a door is open")},
    {"fuser-over-temp", QT_TRANSLATE_NOOP("Job", "the fuser is too hot")},
    {"fuser-under-temp", QT_TRANSLATE_NOOP("Job", "the fuser is not hot yet")},
    {"input-tray-missing", QT_TRANSLATE_NOOP("Job", "a paper tray is missing")},
    {"interlock-open", QT_TRANSLATE_NOOP("Job", "a door is open")},
    {"marker-supply-empty", QT_TRANSLATE_NOOP("Job", "toner or ink is used up")},
    {"marker-supply-low", QT_TRANSLATE_NOOP("Job", "toner or ink runs out")},
    {"marker-waste-almost-full", QT_TRANSLATE_NOOP("Job", "the waste container is almost full")},
    {"marker-waste-full", QT_TRANSLATE_NOOP("Job", "the waste container is full")},
    {"media-empty", QT_TRANSLATE_NOOP("Job", "there is no paper")},
    {"media-jam", QT_TRANSLATE_NOOP("Job", "paper is jammed")},
    {"media-low", QT_TRANSLATE_NOOP("Job", "paper runs out")},
    {"media-needed", QT_TRANSLATE_NOOP("Job", "it waits for paper")},
    {"offline", QT_TRANSLATE_NOOP("Job", "the printer is not reached")},
    {"output-area-almost-full", QT_TRANSLATE_NOOP("Job", "an output tray is almost full")},
    {"output-area-full", QT_TRANSLATE_NOOP("Job", "an output tray is full")},
    {"output-tray-missing", QT_TRANSLATE_NOOP("Job", "an output tray is missing")},
    {"shutdown", QT_TRANSLATE_NOOP("Job", "the printer is switched off")},
    {"spool-area-full", QT_TRANSLATE_NOOP("Job", "its memory is full")},
    {"stopped-partly", QT_TRANSLATE_NOOP("Job", "some of its printers are stopped")},
    {"timed-out", QT_TRANSLATE_NOOP("Job", "the printer does not answer")},
    {"toner-empty", QT_TRANSLATE_NOOP("Job", "toner is used up")},
    {"toner-low", QT_TRANSLATE_NOOP("Job", "toner runs out")},
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
    if (row == std::end(reasonRows))
        return keyword.replace(u'-', u' ');
    return *row->words ? translate("Job", row->words) : QString();
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
    return separated(words);
}

} // namespace kelvo
