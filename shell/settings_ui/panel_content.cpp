#include "panel_content.h"

#include "window_loader.h"

#include <cstdio>

namespace kelvo {

QWidget *createPanelContent(CFBundleRef bundle, const QString &description, const QString &window)
{
    const Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (content)
        return content.value();
    std::fprintf(stderr, "Open()::CreateWindowFromNib() failed: %s\n",
                 qPrintable(content.error().text()));
    return nullptr;
}

} // namespace kelvo
