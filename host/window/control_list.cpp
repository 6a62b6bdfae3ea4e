#include "control_list.h"

#include "inspector.h"
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
    for (const QJsonValue &value : controls) {
        const QJsonObject control = value.toObject();
        const QString name = cell(control, "name");
        QString label = cell(control, "label");
        if (label.isEmpty())
            label = cell(control, "text");
        text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                    .arg(cell(control, "id"),
                         name.isEmpty() ? QString() : QStringLiteral("`@%1`").arg(name),
                         cell(control, "kind"), label);
    }
    return text + u'\n';
}

} // namespace

Result<QString> controlList(QWidget *dialog, Bundle *bundle)
{
    QString text = QStringLiteral("# Controls\n\nWhat scripts can reach, window by window. Made by "
                                  "`kelvo-print --list-controls`.\n\n");
    text += table(QStringLiteral("Print dialog"), dialog);
    if (!bundle)
        return text;
    const QDir descriptions(bundle->resourcesPath() + QStringLiteral("/dialogs"));
    for (const QString &description : descriptions.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(descriptions.filePath(description));
        for (const QString &file : folder.entryList({QStringLiteral("*.ui")}, QDir::Files)) {
            const QString name = file.chopped(3);
            const auto loaded = createWindowFromDescription(bundle, description, name);
            if (!loaded)
                return loaded.error();
            const std::unique_ptr<QWidget> window(loaded.value());
            text += table(description + u'/' + name, window.get());
        }
    }
    return text.trimmed() + u'\n';
}

} // namespace kelvo
