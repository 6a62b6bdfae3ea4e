#include "panel_content.h"

#include "terminal.h"
#include "window_loader.h"

namespace kelvo {

QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window)
{
    const Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (content)
        return content.value();
    printLine(stderr,
              QStringLiteral("Open()::CreateWindowFromNib() failed: ") + content.error().text());
    return nullptr;
}

} // namespace kelvo
