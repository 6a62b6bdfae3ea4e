#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

// The candidate that is most like `name`, for "did you mean": by edit distance,
// upper and lower case alike. Empty when none is near (more than half of the
// name would have to change).
QString nearestName(const QString &name, const QStringList &candidates);

// The first of the names, and "…" where there are more.
inline constexpr qsizetype kShortListLength = 12; // names
QString shortList(const QStringList &names);

// What is wrong with `name`, and the name that is near: "PROBLEM, did you mean NAME?"; the
// problem alone when none is. No full stop is at its end.
QString didYouMean(const QString &problem, const QString &name, const QStringList &candidates);
// The same, but where none is near all that there are: "PROBLEM; there are NAMES".
QString nearestOrAll(const QString &problem, const QString &name, const QStringList &candidates);

} // namespace kelvo
