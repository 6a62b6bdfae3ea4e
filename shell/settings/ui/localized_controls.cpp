#include "localized_controls.h"

#include "control_interface.h"
#include "string_table.h"
#include "ticket_values.h"

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
    SetLocalizedControlTitle(bundle, key, control, arguments);
}

void SetLocalizedControlTitle(CFBundleRef bundle, const QString &key, QWidget *control,
                              const QStringList &arguments)
{
    if (!bundle || key.isEmpty() || !control)
        return;
    const auto interface = controlInterface(control);
    interface->setTitle(textFor(
        bundle, key, interface->showsMnemonics() ? withoutMnemonics(arguments) : arguments));
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
