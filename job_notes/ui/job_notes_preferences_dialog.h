#pragma once

#include "bundle.h"
#include "job_notes_preferences.h"
#include "setting_map.h"
#include "status.h"

class QWidget;

namespace kelvo {

// Shows the stored preferences, where there are none those of `options`. OK stores what is
// checked and hands it over in `options`; else nothing changes. `itemHit` is 1 for OK and
// 2 for Cancel. paramErr without bundle, options or itemHit, kWindowNotMade when the
// window cannot be made. The mode and the context are those of every such function: there
// is one set of preferences.
OSStatus RunModalJobNotesPreferencesDialog(CFBundleRef bundle, DialogMode dialogMode,
                                           JobContext jobContext,
                                           JobNotesPreferencesOptions *options,
                                           std::int32_t *itemHit, QWidget *parent = nullptr);

} // namespace kelvo
