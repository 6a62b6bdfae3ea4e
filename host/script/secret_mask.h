#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

// Where a secret's place is known (an entry of the ticket, a passcode field), that
// place is masked. These are for the places that are not: texts that may repeat one.
namespace kelvo {

// A secret of fewer characters is looked for by its place alone: it is also a
// number of copies, a size, a line, and what is masked there would say what it is.
inline constexpr qsizetype kShortestMaskedSecret = 4;

// `text` with every secret that stands in it as a word of its own replaced by
// kMask, longer secrets first. 4711 stands in "code 4711." and not in "47110",
// "x4711" or "0.4711".
QString maskedText(const QString &text, const QStringList &secrets);

// What inspector::describe() says of controls, its texts masked. What controls are
// called and what numbers they have stays.
QJsonValue maskedControls(const QJsonValue &json, const QStringList &secrets);

} // namespace kelvo
