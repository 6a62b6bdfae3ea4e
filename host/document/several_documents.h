#pragma once

#include <QString>
#include <QStringList>

// What several documents of one run are called.
namespace kelvo {

// As one job: "first.pdf and 2 more". `titles` has two or more.
QString titleOfAll(const QStringList &titles);

// Of the job `number`, from 1, where a user has given all of them the title `asked`:
// "Minutes – b.txt".
QString titleOfOne(const QString &asked, const QString &title);

// Where the job `number`, from 1, is written inside of `folder`: "2-b.txt" there. Whatever the
// title says, it is one name, no longer than file systems take.
QString folderOfOne(const QString &folder, int number, const QString &title);

} // namespace kelvo
