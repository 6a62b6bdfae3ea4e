#include "secret_mask.h"

#include "secrets.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace kelvo {

namespace {

bool isOfWord(QChar c)
{
    return c.isLetterOrNumber() || c.isSurrogate() || c == u'_';
}

// Whether a word goes on from `inside` to `outside`; `beyond` lies behind that.
bool goesOn(QChar inside, QChar outside, QChar beyond)
{
    const bool isFraction =
        (outside == u'.' || outside == u',') && inside.isDigit() && beyond.isDigit();
    return isFraction || (isOfWord(inside) && isOfWord(outside));
}

bool isWord(const QString &text, qsizetype start, qsizetype end)
{
    const auto at = [&text](qsizetype i) {
        return i >= 0 && i < text.size() ? text[i] : QChar(u' ');
    };
    return !goesOn(at(start), at(start - 1), at(start - 2))
        && !goesOn(at(end - 1), at(end), at(end + 1));
}

} // namespace

QString maskedText(const QString &text, const QStringList &secrets)
{
    QStringList sorted = secrets;
    sorted.removeIf([](const QString &secret) { return secret.size() < kShortestMaskedSecret; });
    std::ranges::sort(sorted, std::greater(), &QString::size);
    QString masked = text;
    for (const QString &secret : std::as_const(sorted)) {
        for (qsizetype at = masked.indexOf(secret); at >= 0; at = masked.indexOf(secret, at)) {
            if (isWord(masked, at, at + secret.size())) {
                masked.replace(at, secret.size(), kMask);
                at += kMask.size();
            } else {
                ++at;
            }
        }
    }
    return masked;
}

QJsonValue maskedControls(const QJsonValue &json, const QStringList &secrets)
{
    if (json.isString())
        return maskedText(json.toString(), secrets);
    if (json.isArray()) {
        QJsonArray array;
        for (const auto &element : json.toArray())
            array.append(maskedControls(element, secrets));
        return array;
    }
    if (!json.isObject())
        return json;
    QJsonObject object = json.toObject();
    // A control or an item with a number has that for its text, or a word of ours.
    const bool hasNumber = object.contains(QStringLiteral("value"));
    for (const char *key : {"text", "label", "items", "rows"}) {
        const auto entry = object.find(QLatin1String(key));
        if (entry != object.end() && !(hasNumber && entry->isString()))
            *entry = maskedControls(*entry, secrets);
    }
    return object;
}

} // namespace kelvo
