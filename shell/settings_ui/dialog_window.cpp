#include "dialog_window.h"

#include "terminal.h"
#include "window_loader.h"

namespace kelvo {

std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent)
{
    Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (!content) {
        printLine(stderr,
                  QStringLiteral("%1/%2: the window cannot be made: %3")
                      .arg(description, window, content.error().text()));
        return nullptr;
    }
    return std::make_unique<ModalDialog>(content.value(), parent);
}

} // namespace kelvo
