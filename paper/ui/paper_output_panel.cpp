#include "paper_output_panel.h"

#include "job_type_setup.h"
#include "paper_output_events.h"
#include "paper_output_summary.h"
#include "pde_session.h"
#include "recent_recipients.h"

namespace kelvo {

namespace {

JobTypeState jobTypeStateOf(PMPDEContext context)
{
    const auto *panel = panelOf<_PaperOutputContext>(context);
    return panel ? jobTypeState(panel->settings, panel->device) : JobTypeState();
}

void prepareToPrint(PMPDEContext context)
{
    if (auto *panel = panelOf<_PaperOutputContext>(context)) {
        settleDelayedPrint(panel->settings, currentLongDate());
        settleFax(panel->settings, currentLongDate());
        if (const FaxRecipientList *recipients = faxRecipients(panel->settings))
            rememberRecipients(*recipients);
    }
}

void runFaxSetupFor(PMPDEContext context)
{
    if (auto *panel = panelOf<_PaperOutputContext>(context))
        runFaxSetup(*panel);
}

void focusSetupOf(PMPDEContext context)
{
    const auto *panel = panelOf<_PaperOutputContext>(context);
    if (panel && panel->controls.jobTypeSetup)
        panel->controls.jobTypeSetup->setFocus(Qt::TabFocusReason); // drawn, as by keyboard
}

constexpr JobTypeProvider provider{
    .state = jobTypeStateOf,
    .prepareToPrint = prepareToPrint,
    .runFaxSetup = runFaxSetupFor,
    .focusSetup = focusSetupOf,
};

} // namespace

_PaperOutputContext::_PaperOutputContext()
    : PanelContext(traits)
{
    initializePaperOutput(settings, currentLongDate());
    setJobTypeProvider(provider);
}

_PaperOutputContext::~_PaperOutputContext()
{
    setJobTypeProvider({});
}

void _PaperOutputContext::begin(const Ticket &printSettings)
{
    documentName = string(valueIn(printSettings, kPMJobNameKey)).value_or(device.text("Unknown"));
    settings.savedJob.name = documentName;
}

OSStatus _PaperOutputContext::read(Ticket &printSettings, const Ticket &pageFormat)
{
    readPaperOutput(settings, printSettings, pageFormat, device);
    showPaperOutput(*this);
    return noErr;
}

OSStatus _PaperOutputContext::write(Ticket &printSettings, const Ticket &pageFormat)
{
    // The dialog's own controls change paper and orientation without a word to the panels.
    readPageFormat(settings, pageFormat);
    showFinishedSet(*this);
    writePaperOutput(settings, printSettings, opened);
    return noErr;
}

std::optional<std::vector<SummaryLine>> _PaperOutputContext::words() const
{
    return paperOutputSummary(settings, device);
}

OSStatus _PaperOutputContext::build()
{
    const OSStatus status = buildContent(
        "PaperOutputPanel", "PaperOutput",
        [this](NeededControls &needed) { controls = findPaperOutputControls(needed); },
        [this] { fillPaperOutputControls(*this); },
        [this](const Event &event) { return PaperOutputEventHandler(*this, event); });
    if (status != noErr)
        return status;
    stockButtonData.device = device;
    stockButtonData.stock = &settings.jobStock;
    stockButtonData.jobContext = kJobContextJob;
    stockButtonData.summary = controls.stockSummary;
    stockButtonData.icon = controls.stockIcon;
    stockButtonData.changed = [this] {
        showStockAndSeparators(*this);
        showFinishedSet(*this);
    };
    InitializeStockMenuButton(controls.stockButton, &stockButtonData);
    showPaperOutput(*this);
    return noErr;
}

void _PaperOutputContext::close()
{
    FinalizeStockMenuButton(&stockButtonData);
    dropContent();
    controls = {};
    shownSet = {};
    opened = false;
}

OSStatus GetPaperOutputPanelInterface(PanelInterface **interface)
{
    return givePanel<_PaperOutputContext>(interface);
}

} // namespace kelvo
