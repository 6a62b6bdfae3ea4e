#include "dialog_window.h"

#include "window_loader.h"

#include <cstdio>

namespace kelvo {

std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent)
{
    Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (!content) {
        std::fprintf(stderr, "%s/%s: the window cannot be made: %s\n", qPrintable(description),
                     qPrintable(window), qPrintable(content.error().text()));
        return nullptr;
    }
    return std::make_unique<ModalDialog>(content.value(), parent);
}

} // namespace kelvo
