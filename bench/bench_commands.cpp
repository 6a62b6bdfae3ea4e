// Small commands beside their peers, each from its start to its end: the list of printers, and
// jobs that are made without a window.
#include "processes.h"
#include "sample_report.h"

#include "private_cups.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <string>
#include <utility>

using namespace kelvo::bench;
using namespace Qt::StringLiterals;

namespace {

bool isThere(const QString &path)
{
    return QFile(path).size() > 0;
}

Side listing(std::string name, const QString &program)
{
    return wholeProcess(std::move(name), {.words = {program, u"--list-printers"_s}});
}

// A job with the device's defaults, into the new folder `output`.
Side job(std::string name, const QString &program, const QString &document, const QString &output)
{
    return wholeProcess(std::move(name),
                        {.words = {program, u"-d"_s, QString::fromLatin1(kQueue), u"--no-window"_s,
                                   u"--to"_s, output, document},
                         .prepare = [output] { QDir(output).removeRecursively(); },
                         .isDone = [output] { return isThere(output + u"/document.pdf"_s); }});
}

Side copy(std::string name, const QString &document, const QString &output)
{
    return wholeProcess(std::move(name),
                        {.words = {u"qpdf"_s, document, output},
                         .prepare = [output] { QFile::remove(output); },
                         .isDone = [output] { return isThere(output); }});
}

int fail(const QString &problem)
{
    std::fprintf(stderr, "bench_commands: %s\n", qUtf8Printable(problem));
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto options = optionsFrom(argc, argv);
    if (!options)
        return 2;
    PrivateCups server;
    if (const QString problem = startPrintServer(server); !problem.isEmpty())
        return fail(problem);
    const QTemporaryDir folder;
    const QString few = QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf");
    const QString many = folder.filePath(u"500.pdf"_s);
    if (!writeReport(many, 500))
        return fail(u"cannot write "_s + many);

    constexpr Row elapsed{Figure::Elapsed};
    const QString &program = options->program, &earlier = options->earlier;
    const QString output = folder.filePath(u"output"_s), copied = folder.filePath(u"copy.pdf"_s);
    const Side list = listing("--list-printers", program);
    const Side fewPages = job("--no-window --to of six pages", program, few, output);
    const Side manyPages = job("--no-window --to of 500 pages", program, many, output);
    std::vector<Comparison> comparisons{
        {list,
         wholeProcess("lpstat -a -p", {.words = {u"lpstat"_s, u"-a"_s, u"-p"_s}}),
         {{Figure::Elapsed, 1.2}, {Figure::Processor}}},
        {fewPages, copy("qpdf IN OUT", few, copied), {{Figure::Elapsed, 5}, {Figure::Processor}}},
        {manyPages,
         copy("qpdf IN OUT", many, copied),
         {{Figure::Elapsed, 1.5}, {Figure::Processor}}},
    };
    if (!earlier.isEmpty()) {
        const std::string name = "an earlier kelvo-print";
        comparisons.push_back({list, listing(name, earlier), {elapsed}});
        comparisons.push_back({fewPages, job(name, earlier, few, output), {elapsed}});
        comparisons.push_back({manyPages, job(name, earlier, many, output), {elapsed}});
    }
    return compare(comparisons, *options);
}
