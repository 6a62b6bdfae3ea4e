// A script of a thousand choices, the whole program, against a plain Qt program that makes as
// many in a window of as many widgets and shows each.
#include "processes.h"

#include "private_cups.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace kelvo::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int kChoices = 1000;

// Each line changes a setting of the job; the last ones look whether all came through.
QByteArray script()
{
    QByteArray lines = "tab 1\n";
    const char *const round[] = {
        "choose @twoSided key DuplexShort\n", "choose @outputColor key Grayscale\n",
        "choose @twoSided key Duplex\n", "choose @outputColor key Color\n"};
    for (int line = 0; line < kChoices; ++line)
        lines += round[line % std::size(round)];
    return lines + "expect-choice Duplex DuplexNoTumble\n";
}

Side dialogOf(std::string name, const QString &program, const QString &scriptPath)
{
    return wholeProcess(
        std::move(name),
        {.words = {program, u"-d"_s, QString::fromLatin1(kQueue), u"--no-window"_s, u"--script"_s,
                   scriptPath, QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf")}});
}

int fail(const QString &problem)
{
    std::fprintf(stderr, "bench_scripts: %s\n", qUtf8Printable(problem));
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
    QFile file(folder.filePath(u"choices.kps"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(script()) < 0)
        return fail(file.errorString());
    file.close();

    const Side ours = dialogOf("a script of 1,000 choices", options->program, file.fileName());
    std::vector<Comparison> comparisons{
        {ours,
         wholeProcess("a Qt program that makes and shows as many",
                      {.words = {QCoreApplication::applicationDirPath() + u"/plain_choices"_s,
                                 QString::number(kChoices)}}),
         {{Figure::Elapsed, 2.1}, {Figure::Processor}}}};
    if (!options->earlier.isEmpty())
        comparisons.push_back(
            {ours,
             dialogOf("an earlier kelvo-print", options->earlier, file.fileName()),
             {{Figure::Elapsed}}});
    return compare(comparisons, *options);
}
