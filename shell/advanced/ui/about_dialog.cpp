#include "about_dialog.h"

#include "control.h"
#include "dialog_window.h"
#include "localized_controls.h"
#include "values.h"

#include <QLabel>

namespace kelvo {

namespace {

constexpr ControlID kVersionLabel{kPanelSignature, 6711};
constexpr ControlID kDeviceLabel{kPanelSignature, 6713};

} // namespace

void RunModalAboutDialog(CFBundleRef bundle, const PpdFile *ppd, QWidget *parent)
{
    if (!bundle)
        return;
    const auto dialog =
        createModalDialog(bundle, QStringLiteral("About"), QStringLiteral("Window"), parent);
    if (!dialog)
        return;
    const QString version =
        string(bundle->info(), QStringLiteral("CFBundleShortVersionString")).value_or(QString());
    SetLocalizedStaticText(bundle, QStringLiteral("About Version"),
                           findControl<QLabel>(dialog.get(), kVersionLabel), {version});
    SetLocalizedStaticText(
        bundle, ppd ? QStringLiteral("About Device") : QStringLiteral("About Device Unknown"),
        findControl<QLabel>(dialog.get(), kDeviceLabel), {ppd ? ppd->modelName() : QString()});
    dialog->runModal();
}

} // namespace kelvo
