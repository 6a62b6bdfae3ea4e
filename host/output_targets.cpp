#include "output_targets.h"

#include "ticket_file.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <array>

namespace kelvo {

namespace {

using Code = Error::Code;

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// The file that is read under this name, by whatever other name too.
std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

std::optional<struct stat> documentStatus(const CommandLine &line)
{
    if (!line.file.isEmpty())
        return statusOf(line.file);
    struct stat status = {};
    if ((line.demo && !line.readsStandardInput) || ::fstat(STDIN_FILENO, &status) != 0
        || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status;
}

struct Input
{
    QString name; // as messages call it
    std::optional<struct stat> status;
};

// What is read and belongs to the user. A ticket may be read and written again.
QList<Input> inputsOf(const CommandLine &line)
{
    QList<Input> inputs{{QStringLiteral("the document"), documentStatus(line)}};
    if (line.script && *line.script != QLatin1String("-"))
        inputs.append({QStringLiteral("the script"), statusOf(*line.script)});
    if (line.ppd)
        inputs.append({QStringLiteral("the device's PPD"), statusOf(*line.ppd)});
    for (const QString &file : line.secretFiles)
        inputs.append({QStringLiteral("a secret"), statusOf(file)});
    return inputs;
}

Result<void> checkTarget(const QString &option, const QString &target, const QList<Input> &inputs)
{
    const auto status = statusOf(target);
    if (!status)
        return {};
    for (const Input &input : inputs) {
        if (input.status && isSameFile(*input.status, *status))
            return Error{
                Code::Refused, option,
                QStringLiteral("%1 is %2 itself; it would be lost").arg(target, input.name)};
    }
    return {};
}

} // namespace

Result<void> checkOutputTargets(const CommandLine &line)
{
    const QList<Input> inputs = inputsOf(line);
    if (line.ticketOut) {
        const QString option = QStringLiteral("--ticket-out");
        if (auto checked = checkTarget(option, *line.ticketOut, inputs); !checked)
            return checked;
        if (auto checked = checkTicketTarget(*line.ticketOut); !checked)
            return Error{checked.error().code, option, checked.error().text()};
    }
    if (line.toFolder) {
        for (const char *name : {"document.pdf", "options", "ticket.plist"}) {
            const QString target = *line.toFolder + u'/' + QLatin1String(name);
            if (auto checked = checkTarget(QStringLiteral("--to"), target, inputs); !checked)
                return checked;
        }
    }
    return {};
}

} // namespace kelvo
