#include "window_loader.h"

#include "button_label.h"
#include "button_row.h"
#include "control.h"
#include "control_interface.h"
#include "described_widgets.h"
#include "event.h"
#include "folders.h"
#include "input_limits.h"
#include "mnemonics.h"
#include "part_library.h"
#include "secrets.h"
#include "texts.h"
#include "window_builder.h"
#include "window_files.h"

#include <QAbstractButton>
#include <QCryptographicHash>
#include <QFile>
#include <QHash>
#include <QLabel>

#include <cstring>
#include <optional>

namespace kelvo {

namespace {

constexpr PartLibrary windowFilesLibrary = {
    "libkelvo_window_files.so",
    windowFilesEntry,
    "Window",
    QT_TRANSLATE_NOOP("Window",
                      "this part that reads window descriptions is not installed beside the "
                      "program’s libraries; install kelvo-print anew"),
    QT_TRANSLATE_NOOP("Window",
                      "this part that reads window descriptions cannot be loaded (%1); install "
                      "kelvo-print anew, with the packages that it needs"),
    QT_TRANSLATE_NOOP("Window",
                      "this is not the part that reads window descriptions of kelvo-print %1; "
                      "install kelvo-print anew")};

// What the bundle's module has of the window `name`, if that was made of these very bytes.
const CompiledWindow *findCompiled(const CompiledWindows &windows, const QString &name,
                                   const QByteArray &bytes)
{
    for (int i = 0; i < windows.count; ++i) {
        const CompiledWindow &window = windows.windows[i];
        if (QLatin1String(windows.texts + window.name) != name)
            continue;
        const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
        return std::memcmp(hash.constData(), window.fileHash, sizeof window.fileHash) == 0
            ? &window
            : nullptr;
    }
    return nullptr;
}

// The file counts: one that is another than when the bundle was built is read itself.
Result<QWidget *> loadWidgets(Bundle &bundle, const QString &name, const QByteArray &bytes,
                              DescribedWidgets &widgets, QWidget *parent)
{
    const auto function =
        reinterpret_cast<CompiledWindowsFunction>(bundle.findFunction(compiledWindowsEntry));
    const CompiledWindows *windows = function ? function(KELVO_VERSION) : nullptr;
    if (const CompiledWindow *window = windows ? findCompiled(*windows, name, bytes) : nullptr)
        return buildWindow(*windows, *window, widgets, parent);

    const auto files = openPart<WindowFiles>(windowFilesLibrary, libraryFolder());
    if (!files)
        return files.error();
    const auto make = [&widgets](const QString &className, QWidget *around, const QString &own) {
        return widgets.make(className, around, own);
    };
    return files.value()->load(bytes, bundle.resourcesPath(), make, parent);
}

void giveControlIDs(const QWidgetList &widgets, QStringList &problems)
{
    QHash<QString, QString> nameOf; // ID → the control that has it
    for (QWidget *widget : widgets) {
        const QVariant property = widget->property("controlID");
        if (!property.isValid())
            continue;
        const QString text = property.toString();
        const std::optional<ControlID> id = controlIDFromText(text);
        if (!id) {
            problems.append(translate("Window",
                                      "“%1” has the control ID “%2”; write four "
                                      "characters, a blank and a number, such as “KPDE 102”")
                                .arg(widget->objectName(), text));
        } else if (nameOf.contains(text)) {
            problems.append(translate("Window",
                                      "“%1” and “%2” both have the control ID “%3”; "
                                      "give one of them another")
                                .arg(nameOf.value(text), widget->objectName(), text));
        } else {
            nameOf.insert(text, widget->objectName());
            setControlID(widget, *id);
        }
    }
}

void checkCommands(const QWidgetList &widgets, QStringList &problems)
{
    for (const QWidget *widget : widgets) {
        const QVariant property = widget->property("command");
        if (property.isValid() && !commandOf(widget))
            problems.append(translate("Window",
                                      "“%1” has the command “%2”; write four characters, "
                                      "such as “ok  ”")
                                .arg(widget->objectName(), property.toString()));
    }
}

// But for buttons with a text, and labels: that is their name.
void nameByLabels(const QWidgetList &widgets)
{
    for (QWidget *widget : widgets) {
        const auto *label = qobject_cast<QLabel *>(widget);
        QWidget *buddy = label ? label->buddy() : nullptr;
        const auto *button = qobject_cast<QAbstractButton *>(buddy);
        if (buddy && buddy->accessibleName().isEmpty() && !qobject_cast<QLabel *>(buddy)
            && (!button || button->text().isEmpty()))
            buddy->setAccessibleName(nameInLabel(label->text()));
    }
}

} // namespace

Result<QWidget *> createWindowFromDescription(CFBundleRef bundle, const QString &description,
                                              const QString &window, QWidget *parent)
{
    if (!bundle)
        return Error{Error::Code::NotFound, description + u'/' + window,
                     translate("Window", "there is no bundle to load the window from")};
    const QString path =
        QStringLiteral("%1/dialogs/%2/%3.ui").arg(bundle->resourcesPath(), description, window);
    QFile file(path);
    if (!file.exists())
        return Error{Error::Code::NotFound, path,
                     translate("Window", "the bundle has no such window description")};
    if (!file.open(QIODevice::ReadOnly))
        return Error{Error::Code::NotReadable, path, file.errorString()};

    DescribedWidgets widgets;
    const Result<QWidget *> made =
        loadWidgets(*bundle, description + u'/' + window, file.readAll(), widgets, parent);
    if (!made && widgets.problems().isEmpty()) {
        const Error &error = made.error();
        return error.where.isEmpty() ? Error{error.code, path, error.detail} : error;
    }
    std::unique_ptr<QWidget> loaded(made ? made.value() : nullptr);

    giveControlIDs(widgets.made(), widgets.problems());
    checkCommands(widgets.made(), widgets.problems());
    if (!widgets.problems().isEmpty())
        return Error{Error::Code::Damaged, path, joined(widgets.problems())};

    const QString table = loaded->property("table").toString();
    const auto localized = [bundle, table](const QString &key) {
        if (key.isEmpty())
            return key;
        const auto own = table.isEmpty() ? std::nullopt : bundle->findString(key, table);
        return own ? *own : bundle->findString(key, QStringLiteral("Localizable")).value_or(key);
    };
    for (QWidget *widget : widgets.made()) {
        const auto interface = controlInterface(widget);
        interface->localize(localized);
        sendControlEvents(widget);
        if (widget->property(kSecretProperty).toBool())
            protectSecrets(); // it is about to be typed, or put in
        // What is pasted into a field goes into a ticket or a file of ours sooner or
        // later. Those that say what they take replace these limits.
        if (interface->takesText())
            setInputLimits(widget, {});
        if (auto *row = qobject_cast<ButtonRow *>(widget))
            row->arrange();
    }
    nameByLabels(widgets.made());
    for (QWidget *widget : widgets.made()) {
        if (auto *label = qobject_cast<QLabel *>(widget))
            makePartOfButton(label);
    }
    return loaded.release();
}

} // namespace kelvo
