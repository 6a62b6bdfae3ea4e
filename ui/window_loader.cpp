#include "window_loader.h"

#include "button_label.h"
#include "button_row.h"
#include "control.h"
#include "control_classes.h"
#include "control_interface.h"
#include "event.h"
#include "input_limits.h"
#include "mnemonics.h"
#include "secrets.h"
#include "texts.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QLabel>
#include <QUiLoader>

#include <algorithm>
#include <iterator>
#include <optional>

namespace kelvo {

namespace {

// What a window may hold of Qt's own. Qt's combo box, spin boxes and item views
// are not among them: their changes cannot be told from the user's.
constexpr const char *qtClasses[] = {
    "QWidget",     "QFrame",         "Line",         "QLabel",         "QPushButton", "QToolButton",
    "QCheckBox",   "QRadioButton",   "QLineEdit",    "QPlainTextEdit", "QSlider",     "QGroupBox",
    "QScrollArea", "QStackedWidget", "QProgressBar", "QSplitter",
};

const QString rowOfButtons = QStringLiteral("ButtonRow"); // of ours, and no control itself

QStringList knownClasses()
{
    QStringList names = controlClassNames() << rowOfButtons;
    for (const char *name : qtClasses)
        names.append(QString::fromLatin1(name));
    return names;
}

class DescriptionLoader : public QUiLoader
{
public:
    DescriptionLoader()
    {
        // The bundle's own tables are asked, below.
        setLanguageChangeEnabled(false);
        setTranslationEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *widget =
            className == rowOfButtons ? new ButtonRow(parent) : makeControl(className, parent);
        if (widget) {
            widget->setObjectName(name);
        } else if (std::ranges::find(qtClasses, className.toLatin1()) != std::end(qtClasses)) {
            widget = QUiLoader::createWidget(className, parent, name);
        }
        if (widget)
            m_created.append(widget);
        else
            m_problems.append(translate("Window", "“%1” is of the class “%2”; use one of %3")
                                  .arg(name, className, knownClasses().join(QStringLiteral(", "))));
        return widget;
    }

    // What the description itself made, without the parts of its controls.
    const QWidgetList &created() const { return m_created; }
    QStringList &problems() { return m_problems; }

private:
    QWidgetList m_created;
    QStringList m_problems;
};

// QUiLoader begins with loading every widget plug-in of Qt Designer on the system;
// one brings all of Qt Quick with it. Our classes are our own, so it finds none.
class WithoutDesignerPlugins
{
public:
    WithoutDesignerPlugins() { QCoreApplication::setLibraryPaths({}); }
    ~WithoutDesignerPlugins() { QCoreApplication::setLibraryPaths(m_paths); }
    WithoutDesignerPlugins(const WithoutDesignerPlugins &) = delete;
    WithoutDesignerPlugins &operator=(const WithoutDesignerPlugins &) = delete;

private:
    const QStringList m_paths = QCoreApplication::libraryPaths();
};

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

    std::optional<DescriptionLoader> made;
    {
        const WithoutDesignerPlugins guard;
        made.emplace();
    }
    DescriptionLoader &loader = *made;
    loader.setWorkingDirectory(QDir(bundle->resourcesPath()));
    std::unique_ptr<QWidget> loaded(loader.load(&file, parent));
    if (!loaded && loader.problems().isEmpty())
        return Error{Error::Code::Damaged, path, loader.errorString()};

    giveControlIDs(loader.created(), loader.problems());
    checkCommands(loader.created(), loader.problems());
    if (!loader.problems().isEmpty())
        return Error{Error::Code::Damaged, path, joined(loader.problems())};

    const QString table = loaded->property("table").toString();
    const auto localized = [bundle, table](const QString &key) {
        if (key.isEmpty())
            return key;
        const auto own = table.isEmpty() ? std::nullopt : bundle->findString(key, table);
        return own ? *own : bundle->findString(key, QStringLiteral("Localizable")).value_or(key);
    };
    for (QWidget *widget : loader.created()) {
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
    nameByLabels(loader.created());
    for (QWidget *widget : loader.created()) {
        if (auto *label = qobject_cast<QLabel *>(widget))
            makePartOfButton(label);
    }
    return loaded.release();
}

} // namespace kelvo
