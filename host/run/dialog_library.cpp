#include "application.h"
#include "dialog_program.h"
#include "script_parser.h"

#include <cstring>

namespace kelvo {

namespace {

class Dialog final : public DialogProgram
{
public:
    int run(char *programName, const CommandLine &line, EarlyWork early) const override
    {
        return runApplication(programName, line, std::move(early));
    }
    QString scriptCommands() const override { return scriptCommandsText(); }
};

} // namespace

} // namespace kelvo

extern "C" Q_DECL_EXPORT const void *kelvoDialogProgram(const char *version)
{
    static const kelvo::Dialog dialog;
    if (std::strcmp(version, KELVO_VERSION) != 0)
        return nullptr;
    return static_cast<const kelvo::DialogProgram *>(&dialog);
}
