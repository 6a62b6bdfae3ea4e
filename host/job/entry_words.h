#pragma once

#include "bundle.h"
#include "ticket.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

// What numbers in entries of the panels mean, as the bundle's Info.plist says
// ("KelvoEntryWords"): for telling people what will be sent. The texts are keys of
// the bundle's table "Localizable".
namespace kelvo {

struct EntryWords
{
    QString path;  // "com.kelvo.print.JobType/JobType": "/" steps into a dictionary
    QString label; // "Job type:"
    QMap<std::int64_t, QString> values; // what each means; nothing is said of others
};
std::vector<EntryWords> entryWordsOf(const Bundle *bundle); // empty for null

// "Job type: Secure print", a line for each entry whose value has words.
QStringList entriesInWords(const Ticket &printSettings, const std::vector<EntryWords> &words);

} // namespace kelvo
