#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

// The candidate that is most like `name`, for "did you mean": by edit distance,
// upper and lower case alike. Empty when none is near (more than half of the
// name would have to change).
QString nearestName(const QString &name, const QStringList &candidates);

// ", did you mean NAME?" or nothing: the end of a sentence.
QString didYouMean(const QString &name, const QStringList &candidates);

// The first of the names, and "…" where there are more.
inline constexpr qsizetype kShortListLength = 12; // names
QString shortList(const QStringList &names);

} // namespace kelvo
