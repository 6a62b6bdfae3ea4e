#include "document_files.h"
#include "document_helper.h"
#include "texts.h"

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
    const Result<int> made = ask<int>(Task::ConvertPicture, jobOf(files, cancelled), files);
    if (!made && made.error().code == Error::Code::Damaged)
        return converterError(made.error().code, files, made.error().detail);
    if (!made)
        return made.error();
    return made.value() == 0
        ? QString()
        : translate("Document",
                    "The drawing shows or uses %n other file(s), which are left out: only what a "
                    "drawing holds itself is printed. Embed them in it.",
                    nullptr, made.value());
}

} // namespace kelvo
