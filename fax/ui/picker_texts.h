#pragma once

#include "bundle.h"
#include "card_files.h"
#include "list_view.h"
#include "people_rows.h"

#include <QString>
#include <QStringList>

#include <vector>

// What the address-book picker says.
namespace kelvo {

std::vector<ListView::Column> pickerColumns(CFBundleRef bundle);
// Of those columns; `isInList`: all whom the row adds get the fax already.
QString pickerCell(CFBundleRef bundle, const PeopleRow &row, int column, bool isInList);

// Who is not shown: people without a number to send to, and the books that did not answer;
// empty: all are.
QString notShownText(CFBundleRef bundle, int withoutNumber, const QStringList &unread);

// What came of adding: `added` were, and `declined` the user did not want again.
QString addedText(CFBundleRef bundle, const PeopleToAdd &adding, int added, int declined);

// A line for each, as many as fit into a notice. `notLocal`: addresses that were dropped.
QString cardProblemsText(CFBundleRef bundle, const std::vector<CardProblem> &problems,
                         const QStringList &notLocal);

} // namespace kelvo
