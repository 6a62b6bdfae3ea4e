#include "fake_panels.h"

#include "panel_interface.h"
#include "plugin_abi.h"

#include <QLineEdit>
#include <QVBoxLayout>

using namespace kelvo;

namespace {

FakePanels state;

struct Context
{
    QString name;
    QWidget *pane = nullptr;
    bool opened = false;
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

OSStatus prologue(const QString &name, PMPDEContext *context, CFStringRef *kind, CFStringRef *title)
{
    if (state.failing == name)
        return kPMInvalidPDEContext;
    auto *made = new Context{name};
    ++state.livingContexts;
    *context = reinterpret_cast<PMPDEContext>(made);
    *title = &made->name;
    *kind = &made->name;
    return noErr;
}

OSStatus Initialize(PMPDEContext context, std::uint32_t *, PMPDERef, PMUserPane pane,
                    PMPrintSession)
{
    contextOf(context)->pane = pane;
    return note(context, "initialize");
}

OSStatus Sync(PMPDEContext context, PMPrintSession, std::int32_t direction)
{
    return note(context, direction == kSyncWrite ? "write" : "read");
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
    Context *panel = contextOf(context);
    if (!panel->opened) {
        auto *field = new QLineEdit(panel->pane);
        field->setObjectName(panel->name + QStringLiteral("Field"));
        (new QVBoxLayout(panel->pane))->addWidget(field);
        panel->opened = true;
    }
    return note(context, "open");
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
OSStatus makeInterface(PanelInterface **interface, Prologue prologueFunction)
{
    *interface = makePanelInterface({nullptr, nullptr, nullptr, prologueFunction, Initialize, Sync,
                                     GetSummaryText, Open, Close, Terminate});
    return noErr;
}

} // namespace

// A getter whose panel is called NAME.
#define FAKE_PANEL(NAME)                                                                           \
    KELVO_PLUGIN_EXPORT OSStatus Get##NAME##PanelInterface(PanelInterface **interface)             \
    {                                                                                              \
        return makeInterface(interface,                                                            \
                             [](PMPDEContext *context, OSType *, CFStringRef *kind,                \
                                CFStringRef *title, std::uint32_t *, std::uint32_t *) {            \
                                 return prologue(QStringLiteral(#NAME), context, kind, title);     \
                             });                                                                   \
    }
FAKE_PANEL(PaperOutput)
FAKE_PANEL(ImageOptions)
FAKE_PANEL(BookletWatermark)
FAKE_PANEL(Advanced)

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
    *interface = makePanelInterface({});
    return noErr;
}

KELVO_PLUGIN_EXPORT FakePanels *fakePanels()
{
    return &state;
}
