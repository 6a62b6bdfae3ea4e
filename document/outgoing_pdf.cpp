#include "outgoing_pdf.h"

#include "document_helper.h"

#include <QFile>
#include <QFileInfo>

namespace kelvo {

Result<void> makeOutgoingPdf(const QString &source, const PdfLayout &layout,
                             const EmbeddedFile &file, const QString &target)
{
    const QString folder = QFileInfo(target).path();
    // Another process, and other code: what was overlooked once must not be again. It is started
    // first, and loads what it needs while the other one works.
    Result<RunningHelper> checker = RunningHelper::start(DocumentHelper::Pages, {target, folder});
    if (!checker)
        return checker.error();
    if (Result<void> made =
            ask<void>(Task::MakePdf, {source, folder}, source, layout, file, target);
        !made) {
        return made;
    }
    Result<void> checked =
        ask<void>(checker.value(), RunningHelper::Request::Last, Task::CheckEmbeddedFile,
                  {target, folder}, target, file.name, file.bytes);
    if (!checked)
        QFile::remove(target);
    return checked;
}

} // namespace kelvo
