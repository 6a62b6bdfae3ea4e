#include "dialog_program.h"

#include "part_library.h"

#include <QtGlobal>

namespace kelvo {

namespace {

constexpr PartLibrary library = {
    "libkelvo_dialog.so",
    dialogProgramEntry,
    "Main",
    QT_TRANSLATE_NOOP("Main",
                      "the dialog is not installed beside the program’s libraries; install "
                      "kelvo-print anew"),
    QT_TRANSLATE_NOOP(
        "Main",
        "the dialog cannot be loaded (%1); install kelvo-print anew, with the packages "
        "that it needs"),
    QT_TRANSLATE_NOOP("Main", "this is not the dialog of kelvo-print %1; install kelvo-print anew"),
    true};

} // namespace

Result<const DialogProgram *> dialogProgram(const QString &folder)
{
    return openPart<DialogProgram>(library, folder);
}

} // namespace kelvo
