#include "test_panels.h"

#include "event.h"
#include "plugin_abi.h"
#include "print_session.h"

#include <QLineEdit>
#include <QUuid>
#include <QVBoxLayout>

using namespace kelvo;

// A bundle that logs what is asked of it. The shell has a field whose text is
// the ticket entry com.kelvo.test.Note; Second has the same, as a panel that
// shares a setting, and Third too, which can be opened once only; Failing refuses
// to be initialized.
namespace {

TestPanels state;

const QString noteKey = QStringLiteral("com.kelvo.test.Note");

struct Context
{
    QString name;
    QString title;
    QString note; // what the panel knows of the ticket
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

OSStatus prologue(const QString &name, PMPDEContext *context, CFStringRef *title)
{
    auto *made = new Context{name, QStringLiteral("The %1").arg(name)};
    ++state.livingContexts;
    *context = reinterpret_cast<PMPDEContext>(made);
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
    panel.field = new QLineEdit(pane);
    panel.field->setObjectName(panel.name + QStringLiteral("Field"));
    panel.field->setAccessibleName(panel.title);
    sendControlEvents(panel.field);
    pane->layout()->addWidget(panel.field);
    return noErr;
}

OSStatus Sync(PMPDEContext context, PMPrintSession session, std::int32_t direction)
{
    Context &panel = *contextOf(context);
    note(context, direction == kSyncWrite ? "write" : "read");
    if (direction == kSyncWrite) {
        PMTicketSetCFString(session->printSettingsTicket(), QStringLiteral("test"), noteKey,
                            panel.field->text());
    } else {
        panel.field->setText(PMTicketGetCFString(session->printSettingsTicket(), noteKey)
                                 .value_or(QStringLiteral("default")));
    }
    return noErr;
}

OSStatus GetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts)
{
    titles->emplace({contextOf(context)->title});
    texts->emplace({contextOf(context)->field->text()});
    return noErr;
}

OSStatus Open(PMPDEContext context)
{
    note(context, "open");
    const bool again = std::exchange(contextOf(context)->wasOpened, true);
    return again && contextOf(context)->name == QLatin1String("Third") ? kPMInvalidPDEContext
                                                                       : noErr;
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
    [](PMPDEContext *context, OSType *, CFStringRef *, CFStringRef *title, std::uint32_t *,        \
       std::uint32_t *) { return prologue(QStringLiteral(#NAME), context, title); }
#define TEST_PANEL(NAME)                                                                           \
    KELVO_PLUGIN_EXPORT OSStatus Get##NAME##PanelInterface(PanelInterface **interface)             \
    {                                                                                              \
        *interface = makeInterface(TEST_PROLOGUE(NAME));                                           \
        return noErr;                                                                              \
    }
TEST_PANEL(Second)
TEST_PANEL(Failing)
TEST_PANEL(Third)

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

KELVO_PLUGIN_EXPORT TestPanels *testPanels()
{
    return &state;
}
