#pragma once

#include "bundle.h"
#include "ticket.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

// What entries of the panels mean, as the bundle's Info.plist says ("KelvoEntryWords"):
// for telling people what will be sent. The texts are keys of the bundle's table
// "Localizable". A number has a word, an array is counted; one of page ranges lists
// their pages.
namespace kelvo {

// The text of a label or an item, which stand on controls too: without mnemonics.
QString plainText(const Bundle &bundle, const QString &key);

struct EntryWords
{
    QString path;  // "com.kelvo.print.JobType/JobType": "/" steps into a dictionary
    QString label; // "Job type:"
    QMap<std::int64_t, QString> values = {}; // what each means; nothing is said of others
    QString firstPage = {}, lastPage = {};   // of ranges: keys in each of an array's dictionaries
};
std::vector<EntryWords> entryWordsOf(const Bundle *bundle); // empty for null

// "Job type: Secure print", "Inserts: 2", "Exception pages: 5–8, 12": a line for each
// entry whose value has words. Of many ranges the first few are listed.
QStringList entriesInWords(const Ticket &printSettings, const std::vector<EntryWords> &words);

} // namespace kelvo
