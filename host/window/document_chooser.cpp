#include "document_chooser.h"

#include "file_name_filter.h"
#include "texts.h"

#include <QStandardPaths>

namespace kelvo {

std::unique_ptr<QFileDialog> documentChooser(const QString &folder, QWidget *parent)
{
    auto chooser =
        std::make_unique<QFileDialog>(parent, translate("Window", "Choose Documents to Print"));
    chooser->setObjectName(QStringLiteral("documentChooser"));
    chooser->setFileMode(QFileDialog::ExistingFiles);
    // The endings of all kinds do not fit in a line.
    chooser->setOption(QFileDialog::HideNameFilterDetails);
    chooser->setNameFilters(
        {fileNameFilter(translate("Window", "PDF, PostScript, text and pictures"),
                        {"pdf", "ps", "eps", "txt", "text", "log", "png", "jpg", "jpeg", "gif",
                         "bmp", "tif", "tiff", "webp", "svg"}),
         fileNameFilter(translate("Window", "All files"), {})});
    chooser->setDirectory(folder.isEmpty()
                              ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                              : folder);
    return chooser;
}

} // namespace kelvo
