#include "tool_tip.h"

#include <QVariant>
#include <QWidget>

namespace kelvo {

namespace {

constexpr char ownToolTipProperty[] = "ownToolTip";

}

// Always markup: Qt guesses where it is left to, and wraps no plain text. Escaping
// alone is not enough, for what has no tags is shown as it stands, "&amp;" too.
QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>%1</qt>")
        .arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")));
}

void setPlainToolTip(QWidget *widget, const QString &text)
{
    const QString shown = text.isEmpty() ? widget->property(ownToolTipProperty).toString() : text;
    widget->setToolTip(plainToolTip(shown));
    widget->setAccessibleDescription(shown);
}

void setOwnToolTip(QWidget *widget, const QString &text)
{
    widget->setProperty(ownToolTipProperty, text);
    setPlainToolTip(widget, {});
}

} // namespace kelvo
