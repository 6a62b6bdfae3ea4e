#include "panel_content.h"

#include "dialog_window.h"
#include "terminal.h"
#include "window_loader.h"

namespace kelvo {

QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window,
                            QWidget *pane)
{
    const Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (content)
        return content.value();
    printLine(stderr, QStringLiteral("Open()::CreateWindowFromNib() failed."));
    showPanelNotMade(bundle, pane, description + u'/' + window, content.error().text());
    return nullptr;
}

} // namespace kelvo
