#include "control_interface.h"

#include "control.h"
#include "input_limits.h"
#include "texts.h"
#include "tool_tip.h"

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
        return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and takes no text"));
    if (typeText(m_control, text))
        return {};
    // A refused text may be a secret: it is not repeated.
    return refused(joined(
        {translate("Controls", "%1 does not take the whole text").arg(name()), inWords(limits())}));
}

Error ControlInterface::unsupported(const char *sentence) const
{
    QStringList clauses{translate("Controls", sentence).arg(name(), kindOf(m_control))};
    if (const QString taken = commands(); !taken.isEmpty())
        clauses << translate("Controls", "use %1", "script commands").arg(taken);
    return {Error::Code::Unsupported, {}, joined(clauses)};
}

Error ControlInterface::notClickable() const
{
    return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and cannot be clicked"));
}

Error ControlInterface::readOnlyError() const
{
    return refused(translate("Controls", "%1 is read-only").arg(name()));
}

Error ControlInterface::outsideRange(int value, int minimum, int maximum) const
{
    return refused(translate("Controls", "%1 goes from %2 to %3, not to %4")
                       .arg(name(), QString::number(minimum), QString::number(maximum),
                            QString::number(value)));
}

Error ControlInterface::notAList() const
{
    return unsupported(QT_TRANSLATE_NOOP("Controls", "%1 is a %2 and is no list"));
}

void ControlInterface::localize(const Localizer &localized)
{
    if (!m_control->windowTitle().isEmpty())
        m_control->setWindowTitle(localized(m_control->windowTitle()));
    m_control->setAccessibleName(localized(m_control->accessibleName()));
    m_control->setAccessibleDescription(localized(m_control->accessibleDescription()));
    if (const QString key = m_control->toolTip(); !key.isEmpty())
        setOwnToolTip(m_control, localized(key));
}

void ControlInterface::keepWithin(const InputLimits &)
{
    Q_ASSERT_X(false, "setInputLimits", "not a field that text is typed into");
}

InputLimits ControlInterface::limits() const
{
    return inputLimits(m_control).value_or(InputLimits());
}

bool hasSpeakingName(const QWidget *widget)
{
    return !widget->objectName().isEmpty()
        && !widget->objectName().startsWith(QLatin1String("qt_"));
}

QString scriptName(const QWidget *control)
{
    const auto id = controlIDOf(control);
    return hasSpeakingName(control) || !id ? QStringLiteral("@%1").arg(control->objectName())
                                           : textOf(*id);
}

QString kindOf(const QWidget *control)
{
    return QString::fromLatin1(control->metaObject()->className())
        .section(QStringLiteral("::"), -1);
}

Error refused(const QString &sentence)
{
    return {Error::Code::Refused, {}, sentence};
}

QString noSuchRow(const QWidget *control, int row, qsizetype count)
{
    return translate("Controls", "%1 has %n row(s), not %2", nullptr, count)
        .arg(scriptName(control), QString::number(row));
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
