#include "about_dialog.h"

#include "control.h"
#include "localized_controls.h"
#include "modal_dialog.h"
#include "values.h"
#include "window_loader.h"

#include <QLabel>

#include <cstdio>

namespace kelvo {

namespace {

constexpr ControlID kVersionLabel{kPanelSignature, 6711};
constexpr ControlID kDeviceLabel{kPanelSignature, 6713};

} // namespace

void RunModalAboutDialog(CFBundleRef bundle, const PpdFile *ppd, QWidget *parent)
{
    if (!bundle)
        return;
    Result<QWidget *> content =
        createWindowFromDescription(bundle, QStringLiteral("About"), QStringLiteral("Window"));
    if (!content) {
        std::fprintf(stderr, "RunModalAboutDialog() failed: %s\n",
                     qPrintable(content.error().text()));
        return;
    }
    QWidget *window = content.value();
    const QString version =
        string(bundle->info(), QStringLiteral("CFBundleShortVersionString")).value_or(QString());
    SetLocalizedStaticText(bundle, QStringLiteral("About Version"),
                           findControl<QLabel>(window, kVersionLabel), {version});
    SetLocalizedStaticText(
        bundle, ppd ? QStringLiteral("About Device") : QStringLiteral("About Device Unknown"),
        findControl<QLabel>(window, kDeviceLabel), {ppd ? ppd->modelName() : QString()});
    ModalDialog dialog(window, parent ? parent->window() : nullptr);
    dialog.runModal();
}

} // namespace kelvo
