#pragma once

#include <QString>

#include <cstdint>

namespace kelvo {

// Four digits, 1000 to 9999, from a generator that begins with `seed`.
QString madePasscode(std::uint32_t seed);
// The same, begun with the current time.
QString madePasscode();

enum class PasscodeProblem {
    None,
    Missing,    // both fields are empty: one is made
    Unconfirmed // the two differ
};
[[nodiscard]] PasscodeProblem findProblem(const QString &passcode, const QString &confirmation);

} // namespace kelvo
