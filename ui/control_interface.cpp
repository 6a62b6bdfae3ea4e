#include "control_interface.h"

#include "control.h"
#include "input_limits.h"

#include <QJsonArray>
#include <QJsonObject>

namespace kelvo {

namespace {

QJsonArray described(const std::vector<MenuItem> &items)
{
    QJsonArray array;
    for (const MenuItem &item : items) {
        QJsonObject object;
        if (item.divider) {
            object[QStringLiteral("divider")] = true;
        } else {
            object[QStringLiteral("text")] = item.text;
            object[QStringLiteral("value")] = item.reference;
            if (!item.key.isEmpty())
                object[QStringLiteral("key")] = item.key;
            if (item.command != kNoCommand)
                object[QStringLiteral("command")] = charactersOf(item.command);
            if (!item.enabled)
                object[QStringLiteral("enabled")] = false;
            if (item.checked)
                object[QStringLiteral("checked")] = true;
            if (!item.submenu.empty())
                object[QStringLiteral("items")] = described(item.submenu);
        }
        array.append(object);
    }
    return array;
}

QJsonArray textsOf(const std::vector<MenuItem> &items)
{
    QJsonArray array;
    for (const MenuItem &item : items)
        array.append(item.text);
    return array;
}

} // namespace

std::optional<int> ControlInterface::items()
{
    const Menu *shown = menu();
    return shown ? std::optional(static_cast<int>(shown->items.size())) : std::nullopt;
}

void ControlInterface::describe(QJsonObject &object)
{
    if (const Menu *shown = menu())
        object[QStringLiteral("items")] =
            hasPlainItems() ? textsOf(shown->items) : described(shown->items);
}

Result<void> ControlInterface::type(const QString &text)
{
    if (!takesText())
        return unsupported("takes no text");
    if (typeText(m_control, text))
        return {};
    return notTyped(QStringLiteral("does not take the whole text"), inWords(limits()));
}

void ControlInterface::localize(const Localizer &localized)
{
    if (!m_control->windowTitle().isEmpty())
        m_control->setWindowTitle(localized(m_control->windowTitle()));
    m_control->setToolTip(localized(m_control->toolTip()));
    m_control->setAccessibleName(localized(m_control->accessibleName()));
    m_control->setAccessibleDescription(localized(m_control->accessibleDescription()));
}

void ControlInterface::keepWithin(const InputLimits &)
{
    Q_ASSERT_X(false, "setInputLimits", "not a field that text is typed into");
}

InputLimits ControlInterface::limits() const
{
    return inputLimits(m_control).value_or(InputLimits());
}

Error unsupported(const char *what)
{
    return {Error::Code::Unsupported, {}, QString::fromLatin1(what)};
}

Error refused(const QString &why)
{
    return {Error::Code::Refused, {}, why};
}

Error outsideRange(int value, int minimum, int maximum)
{
    return refused(
        QStringLiteral("goes from %1 to %2, not to %3").arg(minimum).arg(maximum).arg(value));
}

Error partNotOffered(const char *part, int value, int count)
{
    const QLatin1String name(part);
    return refused(value < 1 || value > count
                       ? QStringLiteral("has %1s 1 to %2, not %3").arg(name).arg(count).arg(value)
                       : QStringLiteral("offers %1 %2 only disabled").arg(name).arg(value));
}

Error notTyped(const QString &what, const QString &itTakes)
{
    // A refused text may be a secret: it is not repeated.
    return refused(itTakes.isEmpty() ? what : what + QStringLiteral("; it takes ") + itTakes);
}

int rowOf(const Menu &menu, const MenuItem &item)
{
    for (std::size_t i = 0; i < menu.items.size(); ++i) {
        if (&menu.items[i] == &item)
            return static_cast<int>(i) + 1;
    }
    return 0;
}

} // namespace kelvo
