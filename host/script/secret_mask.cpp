#include "secret_mask.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace kelvo {

QString maskedText(QString text, QStringList secrets)
{
    // As they stand in JSON and in a ticket's bytes, too.
    QStringList forms;
    for (const QString &secret : std::as_const(secrets)) {
        const QByteArray json = QJsonDocument(QJsonArray{secret}).toJson(QJsonDocument::Compact);
        forms << QString::fromUtf8(json.mid(2, json.size() - 4)) // without [" and "]
              << QString::fromLatin1(secret.toUtf8().toBase64());
    }
    secrets += forms;
    std::sort(secrets.begin(), secrets.end(),
              [](const QString &a, const QString &b) { return a.size() > b.size(); });
    for (const QString &secret : secrets) {
        if (!secret.isEmpty())
            text.replace(secret, QStringLiteral("••••"));
    }
    return text;
}

} // namespace kelvo
