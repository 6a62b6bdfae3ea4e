#include "panel_content.h"

#include "dialog_window.h"
#include "terminal.h"
#include "window_loader.h"

#include <memory>

namespace kelvo {

QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window,
                            QWidget *pane,
                            const std::function<void(NeededControls &)> &findControls)
{
    const auto notMade = [&](const QString &reason) {
        printLine(stderr, QStringLiteral("Open()::CreateWindowFromNib() failed."));
        showPanelNotMade(bundle, pane, description + u'/' + window, reason);
        return nullptr;
    };
    const Result<QWidget *> made = createWindowFromDescription(bundle, description, window);
    if (!made)
        return notMade(made.error().text());
    std::unique_ptr<QWidget> content(made.value());
    NeededControls needed(content.get());
    findControls(needed);
    if (!needed.missing().isEmpty())
        return notMade(lacksControlsText(bundle, needed.missing()));
    return content.release();
}

} // namespace kelvo
