#include "document_files.h"
#include "document_helper.h"

namespace kelvo {

namespace {

HelperJob jobOf(const ConverterFiles &files, const std::atomic_bool &cancelled)
{
    return {files.where, files.folder, &cancelled};
}

} // namespace

Result<void> convertText(const ConverterFiles &files, const QSizeF &paper,
                         const std::atomic_bool &cancelled)
{
    return ask<void>(Task::ConvertText, jobOf(files, cancelled), files, paper);
}

Result<QString> convertPicture(const ConverterFiles &files, const std::atomic_bool &cancelled)
{
    const Result<QString> made = ask<QString>(Task::ConvertPicture, jobOf(files, cancelled), files);
    if (!made && made.error().code == Error::Code::Damaged)
        return converterError(made.error().code, files, made.error().detail);
    return made;
}

} // namespace kelvo
