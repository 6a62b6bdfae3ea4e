#include "localized_controls.h"

#include "string_table.h"
#include "ticket_values.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace kelvo {

namespace {

// What users typed has no mnemonics: its "&" is shown.
QStringList withoutMnemonics(const QStringList &arguments)
{
    QStringList shown = arguments;
    return shown.replaceInStrings(QStringLiteral("&"), QStringLiteral("&&"));
}

QString textFor(CFBundleRef bundle, const QString &key, const QStringList &arguments)
{
    return formatted(localizedText(bundle, key), arguments);
}

} // namespace

void SetLocalizedStaticText(CFBundleRef bundle, const QString &key, QLabel *control,
                            const QStringList &arguments)
{
    if (!bundle || key.isEmpty() || !control)
        return;
    control->setTextFormat(Qt::PlainText);
    // A label shows mnemonics only while it stands for another control.
    control->setText(
        textFor(bundle, key, control->buddy() ? withoutMnemonics(arguments) : arguments));
}

void SetLocalizedControlTitle(CFBundleRef bundle, const QString &key, QWidget *control,
                              const QStringList &arguments)
{
    if (!bundle || key.isEmpty() || !control)
        return;
    if (auto *label = qobject_cast<QLabel *>(control))
        SetLocalizedStaticText(bundle, key, label, arguments);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        button->setText(textFor(bundle, key, withoutMnemonics(arguments)));
    else if (auto *group = qobject_cast<QGroupBox *>(control))
        group->setTitle(textFor(bundle, key, withoutMnemonics(arguments)));
    else // a control without a text of its own is still named for screen readers
        control->setAccessibleName(textFor(bundle, key, arguments));
}

void SetLocalizedWindowTitle(CFBundleRef bundle, const QString &key, QWidget *window,
                             const QStringList &arguments)
{
    if (bundle && !key.isEmpty() && window)
        window->setWindowTitle(textFor(bundle, key, arguments));
}

void SetLocalizedMenuTitle(CFBundleRef bundle, const QString &key, Menu *menu, int item,
                           const QStringList &arguments)
{
    if (!bundle || key.isEmpty() || !menu || item < 1
        || static_cast<std::size_t>(item) > menu->items.size())
        return;
    menu->items[static_cast<std::size_t>(item) - 1].text = textFor(bundle, key, arguments);
}

} // namespace kelvo
