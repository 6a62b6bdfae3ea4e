#include "fax_preferences_dialog.h"

#include "dialog_window.h"

#include <QCheckBox>

namespace kelvo {

DialogResult RunModalFaxPreferencesDialog(CFBundleRef bundle, bool *promptDuplicate,
                                          bool *promptRemove, QWidget *parent)
{
    QCheckBox *duplicate = nullptr;
    QCheckBox *remove = nullptr;
    const auto window =
        createModalDialog(bundle, QStringLiteral("LANFAX"), QStringLiteral("FaxPreferences"),
                          parent, [&](NeededControls &needed) {
                              duplicate = needed.find<QCheckBox>(ControlID{kPanelSignature, 1901});
                              remove = needed.find<QCheckBox>(ControlID{kPanelSignature, 1902});
                          });
    if (!window)
        return DialogResult::Cancel;
    duplicate->setChecked(*promptDuplicate);
    remove->setChecked(*promptRemove);
    const DialogResult result = window->runModal();
    if (result == DialogResult::OK) {
        *promptDuplicate = duplicate->isChecked();
        *promptRemove = remove->isChecked();
    }
    return result;
}

} // namespace kelvo
