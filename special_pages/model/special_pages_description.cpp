#include "special_pages_description.h"

#include "cover_sync.h"
#include "exception_page.h"
#include "insert.h"
#include "ppd_words.h"
#include "setting_maps.h"
#include "special_pages_summary.h"
#include "string_table.h"
#include "texts.h"
#include "ticket_values.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr std::int32_t specialPagesList = 1000; // KPDE, of the panel

SpecialSheets::Cover coverOf(const DescribedJob &job, const QString &option)
{
    using enum SpecialSheets::Cover;
    const PpdOption *known = job.device.ppd ? job.device.ppd->findOption(option) : nullptr;
    if (!known)
        return None;
    // Without a choice the device does what it does by default, and that may be a cover.
    const auto choice = job.printSettings.ppdChoices.constFind(option);
    if (choice == job.printSettings.ppdChoices.constEnd())
        return known->defaultChoice == kNoCoverChoice ? Unsaid : Sheet;
    return *choice != kNoCoverChoice && known->findChoice(*choice) ? Sheet : None;
}

QList<SpecialSheets::Insert> insertsFrom(const Array &list)
{
    QList<SpecialSheets::Insert> inserts;
    inserts.reserve(list.size());
    for (const QVariant &each : list) {
        const auto entries = dictionary(each);
        if (!entries)
            continue;
        const int sheets = quantityIn(*entries);
        if (sheets >= 1)
            inserts.append({std::max(startPageIn(*entries), 0),
                            std::min(sheets, SpecialSheets::mostInsertSheets)});
    }
    std::stable_sort(inserts.begin(), inserts.end(),
                     [](const auto &a, const auto &b) { return a.afterPage < b.afterPage; });
    return inserts;
}

QList<SpecialSheets::Exception> exceptionsFrom(const Array &list)
{
    QList<SpecialSheets::Exception> exceptions;
    exceptions.reserve(list.size());
    for (const QVariant &each : list) {
        const auto entries = dictionary(each);
        if (!entries)
            continue;
        SpecialSheets::Exception exception;
        exception.firstPage = std::max(startPageIn(*entries), 1);
        exception.lastPage = endPageIn(*entries);
        if (exception.lastPage < exception.firstPage)
            continue;
        const std::int32_t plex = plexIn(*entries);
        if (plex == kPlexSimplex)
            exception.twoSided = false;
        else if (plex == kPlexDuplex || plex == kPlexDuplexShort)
            exception.twoSided = true;
        exceptions.append(exception);
    }
    std::stable_sort(exceptions.begin(), exceptions.end(),
                     [](const auto &a, const auto &b) { return a.firstPage < b.firstPage; });
    int last = 0;
    exceptions.removeIf([&last](const SpecialSheets::Exception &exception) {
        if (exception.firstPage <= last)
            return true;
        last = exception.lastPage;
        return false;
    });
    return exceptions;
}

QString insertWords(const Device &device, const Dictionary &form)
{
    const Insert insert(form);
    const QString what = attributesText(insert, device);
    return insert.startPage() < 1
        ? formatted(device.text("Insert before Page 1 in Words"), {what})
        : formatted(device.text("Insert in Words"), {QString::number(insert.startPage()), what});
}

QString exceptionWords(const Device &device, const Dictionary &form)
{
    const ExceptionPage exception(form);
    const QString first = QString::number(exception.startPage());
    const QString pages = exception.endPage() == exception.startPage() || !exception.coversPages()
        ? first
        : first + u'–' + QString::number(exception.endPage());
    return QStringLiteral("%1 (%2)").arg(pages, attributesText(exception, device));
}

// Each page in words; of many the first few.
QString listWords(const Device &device, const Array &list,
                  QString (*pageWords)(const Device &, const Dictionary &))
{
    constexpr qsizetype mostListed = 8;
    QStringList pages;
    for (const QVariant &each : list.first(std::min(list.size(), mostListed))) {
        const auto form = dictionary(each);
        pages << (form ? pageWords(device, *form) : QStringLiteral("?"));
    }
    const QString listed = separated(pages);
    const qsizetype left = list.size() - pages.size();
    return left == 0
        ? listed
        : formatted(device.text("More Pages in Words"), {listed, QString::number(left)});
}

Array listIn(const DescribedJob &job, const char *name)
{
    return array(valueIn(job.printSettings, ticketKey(name))).value_or(Array());
}

} // namespace

void describeSpecialPages(const DescribedJob &job, JobDescription &description)
{
    constexpr const char *insertsName = "SpecialPages.InsertList";
    constexpr const char *exceptionsName = "SpecialPages.ExceptionList";
    const Device &device = job.device;
    const Array inserts = listIn(job, insertsName);
    const Array exceptions = listIn(job, exceptionsName);

    PanelDescription panel(job, "SpecialPages", description);
    panel.add(insertsName, "Inserts in Words", listWords(device, inserts, insertWords),
              specialPagesList);
    panel.add(exceptionsName, "Exception Pages in Words",
              listWords(device, exceptions, exceptionWords), specialPagesList);

    SpecialSheets &sheets = description.sheets;
    sheets.frontCover = coverOf(job, QStringLiteral("KVFrontCoverSheet"));
    sheets.backCover = coverOf(job, QStringLiteral("KVBackCoverSheet"));
    const bool isRead = readsTickets(device.ppd);
    const auto renew = [isRead](Array &known, const Array &list) {
        const Array now = isRead ? list : Array();
        if (now.isSharedWith(known))
            return false;
        known = now;
        return true;
    };
    if (renew(description.insertList, inserts))
        sheets.inserts = insertsFrom(description.insertList);
    if (renew(description.exceptionList, exceptions))
        sheets.exceptions = exceptionsFrom(description.exceptionList);
    description.sheetWords = {
        labelText(device, "Front Cover"),          labelText(device, "Back Cover"),
        labelText(device, "Insert in Preview"),    labelText(device, "Exception in Preview"),
        labelText(device, "Front Cover Left Out"), labelText(device, "Back Cover Left Out")};
}

} // namespace kelvo
