#include "test_panels.h"

#include "event.h"
#include "job_description.h"
#include "plugin_abi.h"
#include "print_session.h"

#include <QFile>
#include <QLineEdit>
#include <QUuid>
#include <QVBoxLayout>

using namespace kelvo;

// A bundle that logs what is asked of it: panels of the device's tabs, for a shell, and a
// shell with panels beside it, for a dialog. The shell has a field whose text is the ticket
// entry com.kelvo.test.Note; Second has the same, as a panel that shares a setting, and
// Third too, which can be opened once only; Failing refuses to be initialized.
namespace {

TestPanels state;

const QString noteKey = QStringLiteral("com.kelvo.test.Note");

struct Context
{
    QString name;
    QString title;
    QWidget *pane = nullptr;
    QLineEdit *field = nullptr;
    EventHandlerRef printHandler;
    bool wasOpened = false;
};

Context *contextOf(PMPDEContext context)
{
    return reinterpret_cast<Context *>(context);
}

OSStatus note(PMPDEContext context, const char *what)
{
    state.calls << contextOf(context)->name + QLatin1Char(' ') + QLatin1String(what);
    return noErr;
}

void makeField(Context &panel)
{
    if (!panel.pane->layout())
        new QVBoxLayout(panel.pane);
    panel.field = new QLineEdit;
    panel.field->setObjectName(panel.name + QStringLiteral("Field"));
    panel.field->setAccessibleName(panel.title);
    sendControlEvents(panel.field);
    panel.pane->layout()->addWidget(panel.field);
}

OSStatus prologue(const QString &name, PMPDEContext *context, CFStringRef *kind, CFStringRef *title)
{
    if (state.failing == name)
        return kPMInvalidPDEContext;
    auto *made = new Context{name, QStringLiteral("The %1").arg(name)};
    ++state.livingContexts;
    *context = reinterpret_cast<PMPDEContext>(made);
    *kind = &made->name;
    *title = &made->title;
    return note(*context, "prologue");
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane pane,
                    PMPrintSession)
{
    Context &panel = *contextOf(context);
    note(context, "initialize");
    if (panel.name == QLatin1String("Failing")
        || (panel.name == QLatin1String("PDEShell") && state.refusesPrinter))
        return kPMInvalidPDEContext;
    if (panel.name == QLatin1String("PDEShell"))
        panel.printHandler = installEventHandler(windowDefaultButton(pane), [](const Event &) {
            return state.takesPrint ? noErr : eventNotHandledErr;
        });
    panel.pane = pane;
    if (pane->layout()) // a shell's panes have none before they are opened
        makeField(panel);
    return noErr;
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    Context &panel = *contextOf(context);
    note(context, direction == kSyncWrite ? "write" : "read");
    if (!panel.field)
        return noErr;
    if (direction == kSyncWrite) {
        PMTicketSetCFString(session->printSettingsTicket(), QStringLiteral("test"), noteKey,
                            panel.field->text());
    } else {
        panel.field->setText(PMTicketGetCFString(session->printSettingsTicket(), noteKey)
                                 .value_or(QStringLiteral("default")));
    }
    return noErr;
}

// All but the last add a line; the last empties both, as Advanced does.
OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    if (contextOf(context)->name == QLatin1String("Advanced")) {
        titles->reset();
        texts->reset();
    } else {
        titles->emplace(titles->value_or(QStringList()) << contextOf(context)->name);
        texts->emplace(texts->value_or(QStringList()) << QStringLiteral("- text"));
    }
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    Context &panel = *contextOf(context);
    note(context, "open");
    if (!panel.field)
        makeField(panel);
    const bool again = std::exchange(panel.wasOpened, true);
    return again && panel.name == QLatin1String("Third") ? kPMInvalidPDEContext : noErr;
}

OSStatus Close(PMPDEContext context)
{
    return note(context, "close");
}

OSStatus Terminate(PMPDEContext context, OSStatus)
{
    note(context, "terminate");
    --state.livingContexts;
    delete contextOf(context);
    return noErr;
}

template <typename Prologue>
PanelInterface *makeInterface(Prologue prologueFunction)
{
    return new PanelInterface{new PanelOperations{nullptr, nullptr, nullptr, prologueFunction,
                                                  Initialize, Sync, GetSummaryText, Open, Close,
                                                  Terminate},
                              1};
}

} // namespace

#define TEST_PROLOGUE(NAME)                                                                        \
    [](PMPDEContext *context, OSType *, CFStringRef *kind, CFStringRef *title, std::uint32_t *,    \
       std::uint32_t *) { return prologue(QStringLiteral(#NAME), context, kind, title); }
#define TEST_PANEL(NAME)                                                                           \
    KELVO_PLUGIN_EXPORT OSStatus Get##NAME##PanelInterface(PanelInterface **interface)             \
    {                                                                                              \
        *interface = makeInterface(TEST_PROLOGUE(NAME));                                           \
        return noErr;                                                                              \
    }
TEST_PANEL(PaperOutput)
TEST_PANEL(ImageOptions)
TEST_PANEL(BookletWatermark)
TEST_PANEL(Advanced)
TEST_PANEL(Second)
TEST_PANEL(Failing)
TEST_PANEL(Third)

KELVO_PLUGIN_EXPORT OSStatus GetNothingPanelInterface(PanelInterface **)
{
    return noErr;
}

KELVO_PLUGIN_EXPORT OSStatus GetRefusingPanelInterface(PanelInterface **)
{
    return paramErr;
}

KELVO_PLUGIN_EXPORT OSStatus GetIncompletePanelInterface(PanelInterface **interface)
{
    *interface = new PanelInterface{new PanelOperations{}, 1};
    return noErr;
}

namespace {

OSStatus releaseShell(PanelInterface **interface)
{
    delete (*interface)->table;
    delete *interface;
    *interface = nullptr;
    --state.livingInterfaces;
    return noErr;
}

OSStatus QueryInterface(void *, const QUuid &iid, void **out)
{
    if (iid != QUuid::fromString(QLatin1String(kPDEInterfaceUUID)))
        return kNoSuchInterface;
    PanelInterface *shell = makeInterface(TEST_PROLOGUE(PDEShell));
    shell->table->Release = releaseShell;
    ++state.livingInterfaces;
    *out = shell;
    return noErr;
}

std::uint32_t keep(void *)
{
    return 1;
}

IUnknownTable unknownTable = {nullptr, QueryInterface, keep, keep};
PlugInInstance instance = {&unknownTable};

} // namespace

KELVO_PLUGIN_EXPORT PlugInInstance *TestPanelsFactory(void *, const QUuid &typeUUID)
{
    return typeUUID == QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID)) ? &instance : nullptr;
}

KELVO_PLUGIN_EXPORT PlugInInstance *RefusingFactory(void *, const QUuid &)
{
    return nullptr;
}

KELVO_PLUGIN_EXPORT OSStatus KelvoDescribeJob(const JobToDescribe *, JobDescription *description)
{
    *description = {};
    if (state.overlayStore.isEmpty())
        return noErr;
    description->files = {{state.overlayStore, stampOf(state.overlayStore)}};
    QFile store(state.overlayStore);
    if (store.open(QFile::ReadOnly))
        description->overlays = {{QString::fromUtf8(store.readAll()), Overlay::Place::Above}};
    return noErr;
}

// Of every name but "Lost".
KELVO_PLUGIN_EXPORT OSStatus KelvoDrawOverlay(const OverlayToDraw *overlay, QByteArray *pdf)
{
    if (overlay->name == QLatin1String("Lost"))
        return fnfErr;
    *pdf = state.overlayPdf;
    return noErr;
}

KELVO_PLUGIN_EXPORT TestPanels *testPanels()
{
    return &state;
}
