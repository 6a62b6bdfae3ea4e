#pragma once

#include "finishing_choices.h"
#include "status.h"

class QWidget;

// One dialog for each kind of finishing. OK does to the settings what the finishing
// menu's command for the same choice does; Cancel leaves it as it was. paramErr
// when a pointer is missing, kWindowNotMade when the window is.
namespace kelvo {

// The dialogs of one choice, and the names that some of them go by.
OSStatus RunModalFinishingDialog(const Device &device, FinishingDialogKind kind,
                                 PaperOutputSettings *settings, DialogResult *result,
                                 QWidget *parent = nullptr);
inline OSStatus RunModal1StapleFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                               DialogResult *result)
{
    return RunModalFinishingDialog(device, FinishingDialogKind::SingleStaple, settings, result);
}
inline OSStatus RunModal2StaplesFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                                DialogResult *result)
{
    return RunModalFinishingDialog(device, FinishingDialogKind::DualStaple, settings, result);
}
inline OSStatus RunModalFoldFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                            DialogResult *result)
{
    return RunModalFinishingDialog(device, FinishingDialogKind::Fold, settings, result);
}
inline OSStatus RunModalBindFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                            DialogResult *result)
{
    return RunModalFinishingDialog(device, FinishingDialogKind::Bind, settings, result);
}

OSStatus RunModalOffsetFinishingDialog(const Device &device, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalCustomFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent = nullptr);

} // namespace kelvo
