#include "extension.h"

#include "focus_regions.h"
#include "panel_interface.h"
#include "terminal.h"
#include "texts.h"

#include <QUuid>
#include <QVBoxLayout>
#include <QWidget>

namespace kelvo {

namespace {

using Code = Error::Code;

const QString shellName = QStringLiteral("PDEShell");
const QString furtherGettersKey = QStringLiteral("KelvoFurtherPanelGetters");

void warn(const QString &text)
{
    printLine(stderr, QStringLiteral("kelvo-print: ") + text);
}

} // namespace

struct Extension::Private
{
    struct Record
    {
        PanelOperations operations;
        PMPDEContext context = nullptr;
        bool wasOpened = false; // its controls are there
        bool isOpen = false;
    };

    Bundle *bundle = nullptr;
    QWidget *panesParent = nullptr;
    PlugInInstance *instance = nullptr;
    PanelInterface *shell = nullptr; // held until the end
    PrintSession *session = nullptr;
    std::vector<Record> records; // beside `panels`, the shell first
    std::vector<Panel> panels;
    int shown = -1;

    // Prologue and Initialize of one panel, which joins the lists when both went well.
    Result<void> add(const PanelOperations &operations, const QString &name);
    bool open(Record &record);
    void close(Record &record);
    void sync(Record &record, SyncDirection direction)
    {
        record.operations.Sync(record.context, session, direction);
    }
};

Extension::Extension(Bundle *bundle, QWidget *panesParent)
    : d(std::make_unique<Private>())
{
    d->bundle = bundle;
    d->panesParent = panesParent;
}

Extension::~Extension()
{
    Extension::end(noErr);
    if (d->shell)
        d->shell->table->Release(&d->shell);
    if (d->instance)
        d->instance->table->Release(d->instance);
}

Result<void> Extension::load()
{
    if (d->shell)
        return {};
    const QUuid type = QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID));
    const auto factory = d->bundle->findFactory(type);
    if (!factory)
        return Error{
            Code::Unsupported, d->bundle->path(),
            translate("Window", "its Info.plist names no factory for print dialog panels")};
    const auto make = reinterpret_cast<PlugInFactoryFunction>(
        d->bundle->findFunction(factory->functionName.toLatin1().constData()));
    if (!make) {
        const QString why = d->bundle->loadError();
        return Error{Code::NotReadable, d->bundle->path(),
                     why.isEmpty()
                         ? translate("Window", "it has no function %1").arg(factory->functionName)
                         : why};
    }
    PlugInInstance *instance = make(nullptr, type);
    if (!instance)
        return Error{Code::Refused, d->bundle->path(),
                     translate("Window", "%1 makes no panels").arg(factory->functionName)};
    void *interface = nullptr;
    const OSStatus status = instance->table->QueryInterface(
        instance, QUuid::fromString(QLatin1String(kPDEInterfaceUUID)), &interface);
    auto *shell = static_cast<PanelInterface *>(interface);
    const bool isUsable = status == noErr && shell && shell->table && shell->table->Release
        && isComplete(*shell->table);
    if (!isUsable) {
        instance->table->Release(instance);
        return Error{Code::Unsupported, d->bundle->path(),
                     translate("Window", "it has no panel interface, status %1")
                         .arg(QString::number(status))};
    }
    d->instance = instance;
    d->shell = shell;
    return {};
}

Result<void> Extension::Private::add(const PanelOperations &operations, const QString &name)
{
    PMPDEContext context = nullptr;
    OSType creator = 0;
    CFStringRef kind = nullptr;
    CFStringRef title = nullptr;
    std::uint32_t maxWidth = 0, maxHeight = 0;
    OSStatus status = operations.Prologue(&context, &creator, &kind, &title, &maxWidth, &maxHeight);
    if (status != noErr)
        return Error{Code::Refused, name,
                     translate("Window", "Prologue failed with %1").arg(QString::number(status))};

    auto *pane = new QWidget(panesParent);
    pane->setObjectName(QStringLiteral("pane") + name);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    pane->hide();
    if (panesParent->layout())
        panesParent->layout()->addWidget(pane);
    const QString shownTitle = title && !title->isEmpty() ? *title : name;

    std::uint32_t flags = 0;
    status = operations.Initialize(context, &flags, this, pane, session);
    if (status != noErr) {
        operations.Terminate(context, status);
        delete pane;
        return Error{Code::Refused, name,
                     translate("Window", "Initialize failed with %1").arg(QString::number(status))};
    }
    records.push_back({operations, context});
    panels.push_back({name, shownTitle, pane});
    return {};
}

Result<void> Extension::begin(PrintSession &session)
{
    Q_ASSERT(d->shell && d->records.empty());
    d->session = &session;
    if (auto added = d->add(*d->shell->table, shellName); !added) {
        d->session = nullptr;
        return added;
    }
    const Array getters = array(d->bundle->info(), furtherGettersKey).value_or(Array());
    for (const QVariant &entry : getters) {
        const QString getter = string(entry).value_or(QString());
        const auto operations = findPanelOperations(*d->bundle, getter);
        const auto added = operations ? d->add(operations.value(), panelNameOf(getter))
                                      : Result<void>(operations.error());
        if (!added)
            warn(translate("Window", "%1: panel left out: %2")
                     .arg(d->bundle->path(), added.error().text()));
    }
    show(0);
    return {};
}

bool Extension::isBegun() const
{
    return !d->records.empty();
}

// Controls live until Terminate, so some panels have nothing to open again: they
// answer a second Open with an error and are as open as others.
bool Extension::Private::open(Record &record)
{
    const OSStatus status = record.operations.Open(record.context);
    record.isOpen = status == noErr || (record.wasOpened && status == kPMInvalidPDEContext);
    record.wasOpened |= record.isOpen;
    return record.isOpen;
}

void Extension::Private::close(Record &record)
{
    if (std::exchange(record.isOpen, false))
        record.operations.Close(record.context);
}

void Extension::end(OSStatus status)
{
    while (!d->records.empty()) {
        Private::Record record = d->records.back();
        d->close(record);
        record.operations.Terminate(record.context, status);
        delete d->panels.back().pane;
        d->records.pop_back();
        d->panels.pop_back();
    }
    d->shown = -1;
    d->session = nullptr;
}

Bundle *Extension::bundle() const
{
    return d->bundle;
}

const std::vector<Extension::Panel> &Extension::panels() const
{
    return d->panels;
}

int Extension::shownPanel() const
{
    return d->shown;
}

void Extension::show(int index)
{
    Q_ASSERT(index >= 0 && index < static_cast<int>(d->records.size()));
    if (index == d->shown)
        return;
    const int left = d->shown;
    bool hadFocus = false;
    if (left >= 0) {
        const QWidget *pane = d->panels[static_cast<std::size_t>(left)].pane;
        const QWidget *holder = pane->window()->focusWidget();
        hadFocus = holder && pane->isAncestorOf(holder);
        d->sync(d->records[static_cast<std::size_t>(left)], kSyncWrite);
        for (std::size_t i = 0; i < d->records.size(); ++i) {
            if (static_cast<int>(i) != left)
                d->sync(d->records[i], kSyncRead);
        }
        d->close(d->records[static_cast<std::size_t>(left)]);
        d->panels[static_cast<std::size_t>(left)].pane->hide();
    }
    d->shown = index;
    if (!d->open(d->records[static_cast<std::size_t>(index)]))
        warn(translate("Window", "%1: the panel %2 could not be opened")
                 .arg(d->bundle->path(), d->panels[static_cast<std::size_t>(index)].name));
    QWidget *pane = d->panels[static_cast<std::size_t>(index)].pane;
    pane->show();
    // Else it goes to what follows the hidden pane, which may be any button.
    if (hadFocus)
        focusFirstStopIn(pane);
}

void Extension::sync(SyncDirection direction)
{
    for (std::size_t i = 0; i < d->records.size(); ++i) {
        if (static_cast<int>(i) != d->shown)
            d->sync(d->records[i], direction);
    }
    if (d->shown >= 0)
        d->sync(d->records[static_cast<std::size_t>(d->shown)], direction);
}

} // namespace kelvo
