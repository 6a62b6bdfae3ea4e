#include "output_targets.h"

#include "document.h"
#include "file_names.h"
#include "several_documents.h"
#include "texts.h"
#include "ticket_file.h"

#include <QDir>
#include <QFileInfo>

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

std::optional<struct stat> standardInputStatus()
{
    struct stat status = {};
    if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status;
}

// Of files that may not be there yet.
QString absolutePath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

struct Input
{
    QString problem; // of writing over it, with %1 for its path
    std::optional<struct stat> status;
};

// What is read and belongs to the user. A ticket may be read and written again.
QList<Input> inputsOf(const CommandLine &line)
{
    QList<Input> inputs;
    const QString document =
        translate("CommandLine", "%1 is the document itself; it would be lost");
    for (const QString &file : line.files) {
        if (file != QLatin1String("-"))
            inputs.append({document, fileStatus(file)});
    }
    if (readsStandardInput(line))
        inputs.append({document, standardInputStatus()});
    if (line.script && *line.script != QLatin1String("-"))
        inputs.append({translate("CommandLine", "%1 is the script itself; it would be lost"),
                       fileStatus(*line.script)});
    if (line.ppd)
        inputs.append({translate("CommandLine", "%1 is the device’s PPD itself; it would be lost"),
                       fileStatus(*line.ppd)});
    for (const QString &file : line.secretFiles)
        inputs.append({translate("CommandLine", "%1 is a secret itself; it would be lost"),
                       fileStatus(file)});
    return inputs;
}

Result<void> checkTarget(const QString &option, const QString &target, const QList<Input> &inputs)
{
    const auto status = fileStatus(target);
    if (!status)
        return {};
    for (const Input &input : inputs) {
        if (input.status && isSameFile(*input.status, *status))
            return Error{Code::Refused, option, input.problem.arg(target)};
    }
    return {};
}

// Where --to writes jobs.
QStringList foldersOf(const CommandLine &line)
{
    if (!line.toFolder)
        return {};
    if (line.join || line.files.size() < 2)
        return {*line.toFolder};
    QStringList folders;
    for (const QString &file : line.files)
        folders << folderOfOne(*line.toFolder, int(folders.size()) + 1, titleOf({file, {}}));
    return folders;
}

} // namespace

Result<void> checkOutputTargets(const CommandLine &line)
{
    const QList<Input> inputs = inputsOf(line);
    // A preset is less than a whole ticket.
    QList<Input> whole = inputs;
    if (line.ticketIn)
        whole.append(
            {translate("CommandLine", "%1 is the ticket that is read itself; it would be lost"),
             fileStatus(*line.ticketIn)});
    if (line.ticketOut) {
        whole.append(
            {translate("CommandLine", "%1 is what --ticket-out writes itself; it would be lost"),
             fileStatus(*line.ticketOut)});
        if (line.presetOut && absolutePath(*line.presetOut) == absolutePath(*line.ticketOut))
            return Error{
                Code::Refused, QStringLiteral("--preset-out"),
                translate("CommandLine", "%1 is what --ticket-out writes").arg(*line.presetOut)};
    }
    const struct
    {
        QString option;
        const std::optional<QString> &target;
        const QList<Input> &inputs;
    } tickets[] = {{QStringLiteral("--ticket-out"), line.ticketOut, inputs},
                   {QStringLiteral("--preset-out"), line.presetOut, whole}};
    for (const auto &[option, target, keeps] : tickets) {
        if (!target)
            continue;
        if (auto checked = checkTarget(option, *target, keeps); !checked)
            return checked;
        if (auto checked = checkTicketTarget(*target); !checked)
            return Error{checked.error().code, option, checked.error().text()};
    }
    for (const QString &folder : foldersOf(line)) {
        for (const char *name : {"document.pdf", "options", "ticket.plist"}) {
            const QString target = folder + u'/' + QLatin1String(name);
            if (auto checked = checkTarget(QStringLiteral("--to"), target, inputs); !checked)
                return checked;
        }
    }
    if (line.toPdf)
        return checkTarget(QStringLiteral("--to"), *line.toPdf, inputs);
    return {};
}

} // namespace kelvo
