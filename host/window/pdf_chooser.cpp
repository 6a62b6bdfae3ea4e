#include "pdf_chooser.h"

#include "file_name_filter.h"
#include "texts.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace kelvo {

std::unique_ptr<QFileDialog> pdfChooser(const QString &title, const QString &document,
                                        QWidget *parent)
{
    auto chooser = std::make_unique<QFileDialog>(parent, translate("Window", "Save as PDF"));
    chooser->setObjectName(QStringLiteral("pdfChooser"));
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setFileMode(QFileDialog::AnyFile);
    chooser->setDefaultSuffix(QStringLiteral("pdf"));
    chooser->setNameFilters({fileNameFilter(translate("Window", "PDF files"), {"pdf"})});
    const QFileInfo file(document);
    const QString folder = document.isEmpty() || !file.absoluteDir().exists()
        ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
        : file.absolutePath();
    chooser->setDirectory(folder);
    QString name = QFileInfo(title).completeBaseName().replace(u'/', u'-');
    if (QFileInfo(folder + u'/' + name + QLatin1String(".pdf")) == file)
        name = translate("Window", "%1 (printed)", "the name of a file").arg(name);
    chooser->selectFile(name + QLatin1String(".pdf"));
    return chooser;
}

} // namespace kelvo
