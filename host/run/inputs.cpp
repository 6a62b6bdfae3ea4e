#include "inputs.h"

#include "application_files.h"
#include "destination.h"
#include "document_origin.h"
#include "file_names.h"
#include "file_store.h"
#include "job_timing.h"
#include "output_targets.h"
#include "pdf_ahead.h"
#include "presets.h"
#include "secrets.h"
#include "size_limits.h"
#include "texts.h"
#include "ticket_attachment.h"

#include <QDir>
#include <QStringDecoder>

#include <cerrno>
#include <cstring>
#include <variant>

#include <sys/stat.h>

namespace kelvo {

namespace {

const QString pipedIn = QStringLiteral("-");

// What is wrong with a file that `option` names and that could not be read at all.
QString inputProblem(const QString &option, const Error &error, const QString &advice)
{
    if (error.code == Error::Code::NotFound)
        return joined(
            {translate("Main", "%1: there is no file %2").arg(option, error.where), advice});
    if (error.code == Error::Code::NotReadable)
        return translate("Main", "%1: %2 cannot be read (%3); name a file that you may read")
            .arg(option, error.where, error.detail);
    return Error{error.code, option, error.text()}.text();
}

// What is wrong with a ticket, after its name: "(line 1: …)".
QString ticketProblem(const QString &path, const Error &error)
{
    using Code = Error::Code;
    if (error.code != Code::OtherKind && error.code != Code::Damaged
        && error.code != Code::WrongType)
        return inputProblem(QStringLiteral("--ticket-in"), error,
                            translate("Main", "check its name, or write one with --ticket-out"));
    const QString reason =
        error.place.isEmpty() ? error.detail : Error{error.code, error.place, error.detail}.text();
    return translate("Main",
                     "--ticket-in: %1 is not a ticket file (%2); name one that --ticket-out or "
                     "--preset-out wrote")
        .arg(path, reason);
}

// A secret's file: the user's alone, one text, its last line break left out.
Result<QString> readSecret(const QString &path)
{
    const auto status = fileStatus(path);
    if (!status)
        return Error{Error::Code::NotFound, path, QString::fromLocal8Bit(std::strerror(errno))};
    if ((status->st_mode & (S_IRWXG | S_IRWXO)) != 0)
        return Error{Error::Code::Refused, path,
                     translate("Main", "others may read this secret; set its mode to 0600")};
    const auto bytes = readFile(path, limits::secretBytes);
    if (!bytes)
        return bytes.error();
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes.value());
    if (decoder.hasError())
        return Error{Error::Code::Damaged, path,
                     translate("Main", "this is not UTF-8; write the secret as UTF-8 text")};
    if (text.endsWith(u'\n'))
        text.chop(1);
    if (text.endsWith(u'\r'))
        text.chop(1);
    if (text.isEmpty())
        return Error{Error::Code::Damaged, path, translate("Main", "the secret is empty")};
    return text;
}

// The documents, which must be named by now, or be piped in; without passwords.
std::variant<std::vector<DocumentSource>, InputFailure> findDocuments(const CommandLine &line)
{
    const DocumentOrigin origin = documentOrigin(line, standardInput());
    const int patienceMs = line.timeoutSeconds * 1000;
    if (origin == DocumentOrigin::Sample) {
        const QString path = findSharedFile(QStringLiteral("demo/document.pdf"));
        if (path.isEmpty())
            return InputFailure{ExitStatus::Failed,
                                translate("Main", "--demo: the sample document is not installed")};
        return std::vector{DocumentSource{path, {}, patienceMs}};
    }
    if (origin == DocumentOrigin::Missing) {
        return InputFailure{ExitStatus::WrongUsage,
                            translate("Main",
                                      "there is no document: name a file, or pipe one in. "
                                      "`kelvo-print --help` says more.")};
    }
    std::vector<DocumentSource> sources;
    for (const QString &file : line.files) {
        if (file != pipedIn && !fileStatus(file)) {
            return InputFailure{ExitStatus::Failed,
                                translate("Main",
                                          "%1: there is no such document; check its name, or the "
                                          "folder that it is looked for in (%2)")
                                    .arg(file, QDir::currentPath())};
        }
        sources.push_back({file, {}, patienceMs});
    }
    if (sources.empty())
        sources.push_back({pipedIn, {}, patienceMs});
    return sources;
}

// Of the document `number`, from 1: the secret that is its alone, and the one for all.
QStringList passwordNames(int number)
{
    return {QStringLiteral("DOCUMENT%1").arg(number), QStringLiteral("DOCUMENT")};
}

std::shared_ptr<DocumentOpening> openAhead(const CommandLine &line, PdfHelpers helpers)
{
    auto documents = findDocuments(line);
    auto *sources = std::get_if<std::vector<DocumentSource>>(&documents);
    // What is wrong readInputs() says, in its turn. Of several none is printed at once.
    if (!sources || sources->size() > 1)
        return nullptr;
    for (const QString &name : passwordNames(1)) {
        if (!line.secretFiles.contains(name))
            continue;
        const auto password = readSecret(line.secretFiles.value(name));
        if (!password)
            return nullptr;
        protectSecrets();
        sources->front().passwords << password.value();
    }
    auto opening = std::make_shared<DocumentOpening>(sources->front());
    opening->start(std::make_shared<PdfAhead>(std::move(helpers), kTicketAttachmentName));
    return opening;
}

// What people have printed with last is where their windows begin, and nothing else: what a script
// does must not depend on it, and a device without a queue prints nothing.
std::optional<LastUsed> lastUsedFor(const CommandLine &line)
{
    if (line.noWindow || line.script || line.demo || line.ppd || line.listControls
        || !keepsLastUsed())
        return std::nullopt;
    return readLastUsed();
}

// A preset or a ticket says with what a window begins.
void beginWithLastUsed(const CommandLine &line, DialogOptions &options)
{
    using Beginning = LastUsed::Beginning;
    if (!options.lastUsed || line.preset || line.ticketIn)
        return;
    const LastUsed &used = *options.lastUsed;
    const Beginning beginning = used.beginning.value_or(Beginning::LastUsed);
    if (beginning == Beginning::Defaults)
        return;
    if (beginning == Beginning::Preset) {
        if (auto preset = PresetStore().read(used.preset)) {
            options.session.job.preset = std::move(preset).value();
            options.preset = used.preset;
            return;
        }
    }
    options.beginsWithLastUsed = used.settings.has_value();
    options.session.job.lastUsed = used.settings;
}

std::shared_ptr<PrinterDirectory> askAhead(const CommandLine &line, const QString &preferred)
{
    if (line.listControls || line.demo || line.ppd
        || documentOrigin(line, standardInput()) == DocumentOrigin::Chooser)
        return nullptr;
    auto printers = std::make_shared<PrinterDirectory>();
    const int timeoutMs = line.timeoutSeconds * 1000;
    printers->refresh(timeoutMs,
                      line.destination ? PrinterDirectory::Ahead::Nothing
                                       : PrinterDirectory::Ahead::PpdOfFirst,
                      preferred);
    if (line.destination)
        printers->fetchPpd(*line.destination, timeoutMs);
    return printers;
}

} // namespace

BegunAhead beginAhead(const CommandLine &line, std::optional<PdfHelpers> helpers)
{
    BegunAhead ahead;
    if (helpers)
        ahead.document = openAhead(line, std::move(*helpers));
    ahead.lastUsed = lastUsedFor(line);
    ahead.printers = askAhead(line, ahead.lastUsed ? ahead.lastUsed->printer : QString());
    return ahead;
}

Inputs beginInputs(const CommandLine &line, BegunAhead ahead)
{
    Inputs inputs;
    DialogOptions &options = inputs.options;
    PrinterSearch::Wanted &printer = options.session.printer;
    printer.name = line.destination.value_or(QString());
    printer.timeoutMs = line.timeoutSeconds * 1000;
    printer.directory = std::move(ahead.printers);
    if (ahead.lastUsed)
        printer.preferred = ahead.lastUsed->printer;
    options.lastUsed = std::move(ahead.lastUsed);
    options.session.documents.title = line.title.value_or(QString());
    options.session.documents.areJoined = line.join;
    options.session.documents.opening = std::move(ahead.document);
    options.session.job.options = line.options;
    if (line.priority)
        options.session.job.options.append(
            {QLatin1String(kJobPriorityOption), QString::number(*line.priority)});
    if (line.holdUntil)
        options.session.job.options.append({QLatin1String(kJobHoldUntilOption), *line.holdUntil});
    options.session.job.copies = line.copies;
    options.session.job.pages = line.pages;
    options.preset = line.preset.value_or(QString());
    if (line.toFolder)
        options.plan.elsewhere = folderDestination(*line.toFolder);
    else if (line.toPdf)
        options.plan.elsewhere = pdfDestination(*line.toPdf, line.files);
    options.plan.ticketOut = line.ticketOut;
    options.plan.presetOut = line.presetOut;
    return inputs;
}

std::optional<InputFailure> readInputs(const CommandLine &line, Inputs &inputs)
{
    if (const auto checked = checkOutputTargets(line); !checked)
        return InputFailure{ExitStatus::WrongUsage, checked.error().text()};
    for (auto secret = line.secretFiles.cbegin(); secret != line.secretFiles.cend(); ++secret) {
        const auto text = readSecret(secret.value());
        if (!text)
            return InputFailure{
                ExitStatus::WrongUsage,
                inputProblem(QStringLiteral("--secret"), text.error(),
                             translate("Main", "check its name, or write the secret into it"))};
        protectSecrets();
        inputs.secrets.insert(secret.key(), text.value());
    }
    if (line.script) {
        auto lines = readScript(*line.script);
        if (!lines && lines.error().code == Error::Code::Damaged)
            return InputFailure{ExitStatus::WrongUsage, lines.error().text(), true};
        if (!lines)
            return InputFailure{
                lines.error().code == Error::Code::Cancelled ? ExitStatus::Cancelled
                                                             : ExitStatus::WrongUsage,
                inputProblem(QStringLiteral("--script"), lines.error(),
                             translate("Main", "check its name, or give - for standard input"))};
        inputs.script = std::move(lines).value();
    }
    if (line.ticketIn) {
        auto ticket = readTicketFile(*line.ticketIn);
        if (!ticket)
            return InputFailure{ExitStatus::InvalidTicket,
                                ticketProblem(*line.ticketIn, ticket.error())};
        inputs.options.session.job.ticketIn = std::move(ticket).value();
    }
    if (line.preset) {
        auto preset = PresetStore().read(*line.preset);
        if (!preset)
            return InputFailure{preset.error().code == Error::Code::NotFound
                                    ? ExitStatus::WrongUsage
                                    : ExitStatus::InvalidTicket,
                                preset.error().text()};
        inputs.options.session.job.preset = std::move(preset).value();
    }
    beginWithLastUsed(line, inputs.options);
    const QString devicePath = line.demo
        ? findSharedFile(QStringLiteral("ppds/kelvo-corvane-full.ppd"))
        : line.ppd.value_or(QString());
    if (line.demo && devicePath.isEmpty())
        return InputFailure{ExitStatus::Failed,
                            translate("Main", "--demo: the sample device is not installed")};
    if (!devicePath.isEmpty()) {
        auto device = PpdFile::open(devicePath);
        if (!device)
            return InputFailure{
                ExitStatus::NoDestination,
                inputProblem(line.demo ? QStringLiteral("--demo") : QStringLiteral("--ppd"),
                             device.error(),
                             translate("Main", "check its name, or name a queue with -d"))};
        inputs.options.session.printer.device = std::move(device).value();
    }
    auto found = findDocuments(line);
    if (const auto *failure = std::get_if<InputFailure>(&found))
        return *failure;
    auto &sources = inputs.options.session.documents.sources;
    sources = std::get<std::vector<DocumentSource>>(std::move(found));
    for (std::size_t i = 0; i < sources.size(); ++i) {
        for (const QString &name : passwordNames(int(i) + 1)) {
            if (inputs.secrets.contains(name))
                sources[i].passwords << inputs.secrets.value(name);
        }
    }
    return std::nullopt;
}

} // namespace kelvo
