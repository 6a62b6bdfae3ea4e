#pragma once

#include "bundle.h"
#include "plugin_abi.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <vector>

// The built-in panels: found by the names of their getters, in tab order.
namespace kelvo {

// The getters' names, ended by null. A name's place in this list, from 1, is
// its panel's tab index, whether or not the others are there.
extern const char *const PanelInterfaces[];

inline constexpr std::int32_t kNoTab = -1;         // marks an empty record
inline constexpr std::int32_t kPaperOutputTab = 1; // the panel that knows the job type

struct PanelRecord
{
    PanelOperations operations{}; // slots 4 to 10; the first three stay null
    PMPDEContext context = nullptr;
    QString name;               // "Advanced", the middle of its getter's name
    QString title;              // the same for the user, localized
    QString kind;               // the panel's kind identifier
    QPointer<QWidget> userPane; // where the panel puts its controls; from Initialize on
    std::int32_t tabIndex = kNoTab;
};

// Finds every getter of `getters` (a list ended by null) in `bundle`, calls its
// panel's Prologue and appends a record for it. A getter that gives no interface,
// and a panel whose Prologue fails, is passed over with one line on standard error
// that names the getter and the reason; a getter that the module does not have, in
// silence. No bundle, no panels.
void LoadBuiltInPanels(CFBundleRef bundle, std::vector<PanelRecord> &panels,
                       const char *const *getters = PanelInterfaces);

} // namespace kelvo
