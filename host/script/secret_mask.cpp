#include "secret_mask.h"

#include <algorithm>

namespace kelvo {

QString maskedText(QString text, QStringList secrets)
{
    std::sort(secrets.begin(), secrets.end(),
              [](const QString &a, const QString &b) { return a.size() > b.size(); });
    for (const QString &secret : secrets) {
        if (!secret.isEmpty())
            text.replace(secret, QStringLiteral("••••"));
    }
    return text;
}

} // namespace kelvo
