#include "tool_tip.h"

namespace kelvo {

// Always markup: Qt guesses where it is left to, and wraps no plain text. Escaping
// alone is not enough, for what has no tags is shown as it stands, "&amp;" too.
QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>%1</qt>")
        .arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}

} // namespace kelvo
