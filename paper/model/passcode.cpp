#include "passcode.h"

#include <QDateTime>

#include <random>

namespace kelvo {

QString madePasscode(std::uint32_t seed)
{
    // The same begin gives the same passcode on every machine.
    std::mt19937 generator(seed);
    constexpr std::uint32_t first = 1000, count = 9000;
    return QString::number(generator() % count + first);
}

QString madePasscode()
{
    // Milliseconds, so that two jobs made one after the other differ.
    return madePasscode(static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch()));
}

PasscodeProblem findProblem(const QString &passcode, const QString &confirmation)
{
    if (passcode.compare(confirmation, Qt::CaseInsensitive) != 0)
        return PasscodeProblem::Unconfirmed;
    return passcode.isEmpty() ? PasscodeProblem::Missing : PasscodeProblem::None;
}

} // namespace kelvo
