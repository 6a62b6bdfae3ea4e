#pragma once

#include "device.h"
#include "menu.h"
#include "status.h"

class QWidget;

// One dialog for each kind of finishing. OK does to the settings what the finishing
// menu's command for the same choice does; Cancel leaves it as it was. paramErr
// when a pointer is missing, kWindowNotMade when the window is.
namespace kelvo {

struct PaperOutputSettings;

// Commands of the "more finishing" menu, in its order. An item whose device is
// not installed is left out; offset and custom finishing are always there.
inline constexpr OSType kCommandSingleStapleDialog = fourCharCode("Fst1");
inline constexpr OSType kCommandDualStapleDialog = fourCharCode("Fst2");
inline constexpr OSType kCommandHolePunchDialog = fourCharCode("Fhpn");
inline constexpr OSType kCommandFoldDialog = fourCharCode("Ffld");
inline constexpr OSType kCommandAdvancedFoldDialog = fourCharCode("Fadv");
inline constexpr OSType kCommandZFoldDialog = fourCharCode("Fzfd");
inline constexpr OSType kCommandBindDialog = fourCharCode("Fbnd");
inline constexpr OSType kCommandOffsetDialog = fourCharCode("Foff");
inline constexpr OSType kCommandCustomFinishingDialog = fourCharCode("Fcus");
void PopulateMoreFinishingMenu(Menu &menu, const Device &device);
// Checks the items whose dialog has something set.
void MarkMoreFinishingMenu(Menu &menu, const PaperOutputSettings &settings, const Device &device);

OSStatus RunModalOffsetFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModal1StapleFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                        DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModal2StaplesFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                         DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalHolePunchFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                          DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                     DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalAdvancedFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                             DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalZFoldFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                      DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalBindFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                     DialogResult *result, QWidget *parent = nullptr);
OSStatus RunModalCustomFinishingDialog(CFBundleRef bundle, PaperOutputSettings *settings,
                                       DialogResult *result, QWidget *parent = nullptr);

} // namespace kelvo
