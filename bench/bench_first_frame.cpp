// kelvo-print from its start to its first painted frame with the device's values in it, against
// Qt's own print dialog on the same print server and queue: where nothing but that server is
// asked, and where avahi-daemon runs, as on most desktops.
#include "processes.h"

#include "private_avahi.h"
#include "private_cups.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace kelvo::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr Row elapsed{Figure::Elapsed}, processor{Figure::Processor}, memory{Figure::Memory};

// The device's panels stand in the window once their values are there.
const QByteArray panels("panePDEShell");

Side dialogOf(std::string name, const QString &program)
{
    return firstFrame(std::move(name),
                      {.words = {program, u"-d"_s, QString::fromLatin1(kQueue),
                                 QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf")}},
                      panels);
}

Side yardstick(std::string name, const QString &program, const char *shows)
{
    return firstFrame(std::move(name),
                      {.words = {QCoreApplication::applicationDirPath() + u'/' + program}}, shows);
}

int fail(const QString &problem)
{
    std::fprintf(stderr, "bench_first_frame: %s\n", qUtf8Printable(problem));
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

    const Side ours = dialogOf("first frame", options->program);
    const Side theirs = yardstick("Qt's print dialog", u"qt_print_dialog"_s, "qtPrintDialog");
    std::vector<Comparison> comparisons{
        {ours, theirs, {{Figure::Elapsed, 0.80}, processor, {Figure::Memory, 1.0}}},
        {firstFrame("first frame, without a server", {.words = {options->program, u"--demo"_s}},
                    panels),
         theirs,
         {elapsed, processor, memory}},
        {yardstick("first frame of an empty Qt dialog", u"empty_dialog"_s, "emptyDialog"),
         theirs,
         {elapsed, processor, memory}},
    };
    const Side earlier = dialogOf("an earlier kelvo-print", options->earlier);
    if (!options->earlier.isEmpty())
        comparisons.push_back({ours, earlier, {elapsed, processor, memory}});
    const int result = compare(comparisons, *options);

    PrivateAvahi avahi;
    if (const QString problem = avahi.start(); !problem.isEmpty())
        return fail(problem);
    const Side besideAvahi = dialogOf("first frame, with avahi-daemon running", options->program);
    comparisons = {{besideAvahi, theirs, {{Figure::Elapsed, 0.10}, processor}}};
    if (!options->earlier.isEmpty())
        comparisons.push_back({besideAvahi, earlier, {elapsed}});
    return std::max(result, compare(comparisons, *options));
}
