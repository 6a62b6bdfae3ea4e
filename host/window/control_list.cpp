#include "control_list.h"

#include "document_bar.h"
#include "job_details_dialog.h"
#include "job_timing_dialog.h"
#include "password_dialog.h"
#include "preset_menu.h"
#include "printer_pane.h"
#include "session_documents.h"
#include "window_loader.h"

#include <QDir>
#include <QWidget>

#include <memory>

namespace kelvo {

namespace {

QString cell(const QJsonObject &control, const char *key)
{
    QString text = control.value(QLatin1String(key)).toString().simplified();
    return text.replace(u'|', QStringLiteral("\\|"));
}

QString table(const QString &title, QWidget *window)
{
    QString text = QStringLiteral("## ") + title
        + QStringLiteral("\n\n| ID | Name | Kind | Label |\n| --- | --- | --- | --- |\n");
    const QJsonArray controls = inspector::describeControls(window);
    for (const auto &value : controls) {
        const QJsonObject control = value.toObject();
        const QString name = cell(control, "name");
        if (name.startsWith(QLatin1String("Scroll"))) // the insides of Qt's tab bar
            continue;
        QString label = cell(control, "label");
        if (label.isEmpty())
            label = cell(control, "text");
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                    .arg(cell(control, "id"),
                         name.isEmpty() ? QString() : QStringLiteral("`@%1`").arg(name),
                         cell(control, "kind"), label);
        const QJsonArray items = control.value(QLatin1String("items")).toArray();
        for (const auto &item : items) {
            if (const QString command = cell(item.toObject(), "command"); !command.isEmpty())
                text += QStringLiteral("| |  | item %1 | %2 |\n")
                            .arg(command, cell(item.toObject(), "text"));
        }
    }
    return text + u'\n';
}

// Loads each description and calls visit(description, window's name, window) with it.
template <typename Visit>
Result<void> visitDescriptions(Bundle *bundle, Visit visit)
{
    const QDir descriptions(bundle->resourcesPath() + QStringLiteral("/dialogs"));
    for (const QString &description : descriptions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(descriptions.filePath(description));
        for (const QString &file : folder.entryList({QStringLiteral("*.ui")}, QDir::Files)) {
            const QString name = file.chopped(3);
            const auto loaded = createWindowFromDescription(bundle, description, name);
            if (!loaded)
                return loaded.error();
            const std::unique_ptr<QWidget> window(loaded.value());
            visit(description, name, window.get());
        }
    }
    return {};
}

} // namespace

Result<QString> controlList(QWidget *dialog, Bundle *bundle)
{
    QString text = QStringLiteral("# Controls\n\nWhat scripts can reach, window by window. Made by "
                                  "`kelvo-print --list-controls`.\n\n");
    if (auto *pane = dialog->findChild<PrinterPane *>())
        pane->buildFolded();
    text += table(QStringLiteral("Print dialog"), dialog);
    SessionDocuments documents({});
    DocumentBar bar(documents);
    bar.build();
    text += table(QStringLiteral("Print dialog, with several documents or a locked one"), &bar);
    const std::unique_ptr<QWidget> password(makePasswordPane({}, false));
    text += table(QStringLiteral("Password of a document"), password.get());
    const std::unique_ptr<QWidget> presetName(
        makePresetNamePane({}, QStringLiteral("Save"), {}, true));
    text += table(QStringLiteral("Save and rename presets"), presetName.get());
    const std::unique_ptr<QWidget> details(makeJobDetailsPane({}));
    text += table(QStringLiteral("What will be sent"), details.get());
    const std::unique_ptr<QWidget> timing(makeJobTimingPane({}));
    text += table(QStringLiteral("When to print"), timing.get());
    if (!bundle)
        return text;
    const Result<void> done = visitDescriptions(
        bundle, [&text](const QString &description, const QString &name, QWidget *window) {
            text += table(description + u'/' + name, window);
        });
    if (!done)
        return done.error();
    return text.trimmed() + u'\n';
}

std::vector<DescribedWindow> describedWindowsWith(const inspector::ControlName &control,
                                                  Bundle *bundle)
{
    std::vector<DescribedWindow> found;
    // What cannot be loaded is told when it is to be shown.
    (void)visitDescriptions(bundle, [&](const QString &, const QString &name, QWidget *window) {
        if (inspector::find(window, control).control)
            found.push_back({name, window->windowTitle()});
    });
    return found;
}

} // namespace kelvo
