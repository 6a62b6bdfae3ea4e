#include "nearest_name.h"

#include "texts.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace kelvo {

namespace {

int editDistance(const QString &a, const QString &b)
{
    std::vector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int substituted = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString &name, const QStringList &candidates)
{
    const QString wanted = name.left(200).toLower();
    QString nearest;
    std::pair best(static_cast<int>(wanted.size()) / 2 + 1, 0);
    for (const QString &candidate : candidates) {
        const QString have = candidate.left(200).toLower();
        // A name that only continues what was typed is near, however long it is; among
        // several of these the one with the least to add is.
        const int letters = editDistance(wanted, have);
        const bool continues = !wanted.isEmpty() && have.startsWith(wanted);
        const std::pair distance(continues ? std::min(letters, 1) : letters, letters);
        if (distance < best) {
            best = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

QString shortList(const QStringList &names)
{
    QString list = names.mid(0, kShortListLength).join(QStringLiteral(", "));
    if (names.size() > kShortListLength)
        list += QStringLiteral(", …");
    return list;
}

QString didYouMean(const QString &problem, const QString &name, const QStringList &candidates)
{
    const QString nearest = nearestName(name, candidates);
    return nearest.isEmpty() ? problem
                             : translate("Words", "%1, did you mean %2?").arg(problem, nearest);
}

QString nearestOrAll(const QString &problem, const QString &name, const QStringList &candidates)
{
    return candidates.isEmpty() || !nearestName(name, candidates).isEmpty()
        ? didYouMean(problem, name, candidates)
        : translate("Words", "%1; there are %2").arg(problem, shortList(candidates));
}

} // namespace kelvo
