#include "paper_output_events.h"

#include "booklet_dialog.h"
#include "covers_dialog.h"
#include "delayed_print_dialog.h"
#include "finishing_dialogs.h"
#include "job_type_setup.h"
#include "lan_fax_setup.h"
#include "more_finishing.h"
#include "popups.h"
#include "saved_job_dialog.h"
#include "secure_print_dialog.h"
#include "separators_dialog.h"

#include <QPushButton>

namespace kelvo {

namespace {

void runJobTypeSetup(_PaperOutputContext &panel)
{
    switch (panel.settings.jobType) {
    case kJobTypeSaved: {
        SavedJobData data{panel.settings.savedJob, panel.settings.passcode, panel.documentName};
        if (RunModalSavedJobDialog(panel.device, &data, panel.content) == noErr) {
            panel.settings.savedJob = data.job;
            panel.settings.passcode = data.passcode;
        }
        break;
    }
    case kJobTypeFax:
        runFaxSetup(panel);
        break;
    case kJobTypeSecurePrint:
        RunModalSecurePrintSetup(panel.bundle, &panel.settings.passcode, panel.content);
        break;
    case kJobTypeDelayedPrint:
        RunModalDelayedPrintSetup(panel.bundle, &panel.settings.delayedPrintTime, panel.content);
        break;
    default: // the button of some job types is enabled and opens nothing
        break;
    }
    showJobType(panel);
}

void chooseJobType(_PaperOutputContext &panel)
{
    changeJobType(panel.settings, GetPopupButtonTicketValue(panel.controls.jobType));
    showJobType(panel);
    // A job type that needs a set-up asks for it at once.
    if (panel.controls.jobTypeSetup && panel.controls.jobTypeSetup->isEnabled())
        panel.controls.jobTypeSetup->click();
}

void createBooklet(_PaperOutputContext &panel)
{
    _BookletCreationParams params = paramsOf(panel.settings.booklet, panel.settings.finishing.fold);
    if (RunModalBookletCreationDialog(panel.device, &params, panel.content) == noErr)
        takeBooklet(panel.settings, params.fold, bookletOf(params));
}

void editCovers(_PaperOutputContext &panel)
{
    DialogResult outcome = DialogResult::Cancel;
    const bool hasCovers = panel.settings.frontCover || panel.settings.backCover;
    RunModalCoversDialog(panel.device, hasCovers ? kDialogModeEdit : kDialogModeAdd,
                         &panel.settings.jobStock, &panel.settings.frontCover,
                         &panel.settings.backCover, &outcome, panel.content);
    showCovers(panel);
}

void editSeparators(_PaperOutputContext &panel)
{
    DialogResult result = DialogResult::Cancel;
    RunModalSeparatorsDialog(panel.device, &panel.settings.separators,
                             &panel.settings.separatorStock, &result, panel.content);
    showStockAndSeparators(panel);
}

OSStatus takeCommand(_PaperOutputContext &panel, OSType command, std::int32_t value)
{
    DialogResult result = DialogResult::Cancel;
    if (command == kCommandCovers) {
        editCovers(panel);
    } else if (command == kCommandSeparators) {
        editSeparators(panel);
    } else if (command == kCommandBookletCreation) {
        createBooklet(panel);
    } else if (const auto kind = findFinishingDialog(command)) {
        RunModalFinishingDialog(panel.device, *kind, &panel.settings, &result, panel.content);
    } else if (command == kCommandOffsetDialog) {
        RunModalOffsetFinishingDialog(panel.device, &panel.settings, &result, panel.content);
    } else if (command == kCommandCustomFinishingDialog) {
        RunModalCustomFinishingDialog(panel.bundle, &panel.settings, &result, panel.content);
    } else if (!applyFinishingCommand(panel.settings, command, value)) {
        return eventNotHandledErr;
    }
    showTwoSided(panel);
    showFinishing(panel);
    return noErr;
}

OSStatus takeHit(_PaperOutputContext &panel, std::int32_t control)
{
    const PaperOutputControls &controls = panel.controls;
    switch (control) {
    case kJobTypePopup:
        chooseJobType(panel);
        return noErr;
    case kJobTypeSetupButton:
        runJobTypeSetup(panel);
        return noErr;
    case kTwoSidedPopup:
        panel.settings.duplex = GetPopupButtonTicketValue(controls.twoSided);
        showTwoSided(panel);
        return noErr;
    case kStaplingPopup:
        setStaple(panel.settings.finishing, GetPopupButtonTicketValue(controls.stapling));
        showFinishing(panel);
        return noErr;
    case kHolePunchPopup:
        panel.settings.finishing.punch = GetPopupButtonTicketValue(controls.holePunch);
        showFinishing(panel);
        return noErr;
    case kOutputColorPopup:
        panel.settings.colorMode = GetPopupButtonTicketValue(controls.outputColor);
        showOutputColor(panel);
        return noErr;
    case kOutputDestinationPopup:
        panel.settings.outputBin = GetPopupButtonTicketValue(controls.outputDestination);
        showOutputDestination(panel);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

} // namespace

OSStatus PaperOutputEventHandler(_PaperOutputContext &panel, const Event &event)
{
    OSStatus status = eventNotHandledErr;
    if (event.kind == EventKind::Command)
        status = takeCommand(panel, event.command, event.reference);
    else if (event.kind == EventKind::ControlHit && event.control.signature == kPanelSignature)
        status = takeHit(panel, event.control.number);
    if (status == noErr)
        showFinishedSet(panel);
    return status;
}

void runFaxSetup(_PaperOutputContext &panel)
{
    if (!panel.settings.faxOptions)
        panel.settings.faxOptions = Dictionary();
    if (!panel.settings.faxRecipients)
        panel.settings.faxRecipients.emplace();
    RunModalLANFaxSetup(panel.device, &*panel.settings.faxOptions, &*panel.settings.faxRecipients,
                        panel.content);
}

} // namespace kelvo
