// kelvo-print from its start to its first painted frame with the device's values
// in it, against Qt's own print dialog on the same print server and queue.
#include "first_frame.h"

#include "private_cups.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <vector>

using kelvo::bench::FrameReport;

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultRounds = 21;
constexpr int warmUpRounds = 2; // the files of all programs are in memory then
constexpr int longestRunMs = 30'000;
const QString kQueue = u"bench"_s;

struct Sample
{
    double wall, cpu; // ms
    double memory;    // MB
};

struct Case
{
    const char *name;
    QStringList command;
    QByteArray shows; // see first_frame.cpp
    std::vector<Sample> samples;
};

struct Ratio
{
    const char *what;
    std::size_t of, against; // indices of cases
    double Sample::*figure;
    double budget; // 0: for orientation
};

enum CaseIndex : std::size_t { Ours, QtDialog, Empty, OursWithoutServer, Earlier };

double median(const std::vector<Sample> &samples, double Sample::*figure)
{
    std::vector<double> values;
    for (const Sample &sample : samples)
        values.push_back(sample.*figure);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::int64_t monotonicNow()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

[[noreturn]] void become(const Case &program, const QByteArray &preload, int reportFd)
{
    qputenv("LD_PRELOAD", preload);
    qputenv("KELVO_FRAME_SHOWS", program.shows);
    qputenv("KELVO_FRAME_FD", QByteArray::number(reportFd));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::vector<QByteArray> words;
    for (const QString &word : program.command)
        words.push_back(QFile::encodeName(word));
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    _exit(127);
}

// One run to its frame; none when the program ended or stayed without one.
std::optional<Sample> run(const Case &program, const QByteArray &preload)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return std::nullopt;
    std::fflush(nullptr);
    const std::int64_t begin = monotonicNow();
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        become(program, preload, ends[1]);
    }
    ::close(ends[1]);
    FrameReport report{};
    pollfd waiting{ends[0], POLLIN, 0};
    const bool isReported = child > 0 && ::poll(&waiting, 1, longestRunMs) > 0
        && ::read(ends[0], &report, sizeof report) == sizeof report;
    ::close(ends[0]);
    if (!isReported && child > 0)
        ::kill(child, SIGKILL);
    if (child > 0)
        ::waitpid(child, nullptr, 0);
    if (!isReported)
        return std::nullopt;
    return Sample{static_cast<double>(report.moment - begin) / 1e6,
                  static_cast<double>(report.cpu) / 1e6, static_cast<double>(report.memory) / 1024};
}

bool measure(std::vector<Case> &cases, int rounds, const QByteArray &preload)
{
    for (int round = -warmUpRounds; round < rounds; ++round) {
        // Each round begins with another program: what one leaves behind in the
        // machine meets them all.
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const std::size_t shift = static_cast<std::size_t>(round + warmUpRounds);
            Case &program = cases[(i + shift) % cases.size()];
            const auto sample = run(program, preload);
            if (!sample) {
                std::fprintf(stderr, "compare_processes: %s showed no frame with %s…\n",
                             program.name, program.shows.constData());
                return false;
            }
            if (round >= 0)
                program.samples.push_back(*sample);
        }
    }
    return true;
}

int compare(const std::vector<Case> &cases, const std::vector<Ratio> &ratios)
{
    std::printf("%-34s %9s %9s %9s   medians of %zu, on this machine only\n", "", "wall ms",
                "cpu ms", "peak MB", cases[0].samples.size());
    for (const Case &program : cases)
        std::printf("%-34s %9.1f %9.1f %9.1f\n", program.name,
                    median(program.samples, &Sample::wall), median(program.samples, &Sample::cpu),
                    median(program.samples, &Sample::memory));

    bool missed = false;
    std::printf("\n%-12s %-34s %-22s %7s %7s\n", "", "what", "against", "ratio", "budget");
    for (const Ratio &row : ratios) {
        const double ratio = median(cases[row.of].samples, row.figure)
            / median(cases[row.against].samples, row.figure);
        std::printf("%-12s %-34s %-22s %7.3f", row.what, cases[row.of].name,
                    cases[row.against].name, ratio);
        if (row.budget > 0)
            std::printf(" %7.2f%s", row.budget, ratio > row.budget ? "  MISSED" : "");
        std::printf("\n");
        missed = missed || (row.budget > 0 && ratio > row.budget);
    }
    return missed ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const QStringList arguments = QCoreApplication::arguments();
    const int rounds = arguments.size() > 2 ? arguments[2].toInt() : defaultRounds;
    if (arguments.size() < 2 || arguments.size() > 4 || rounds < 1 || rounds > 1000) {
        std::fputs("usage: compare_processes KELVO-PRINT [ROUNDS [EARLIER-KELVO-PRINT]]\n", stderr);
        return 2;
    }

    PrivateCups cups;
    QString problem = cups.start();
    if (problem.isEmpty())
        problem = cups.addQueue(
            kQueue, QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd"));
    if (problem.isEmpty())
        problem = cups.administer({u"-d"_s, kQueue}); // the one that Qt's shows
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "compare_processes: %s\n", qUtf8Printable(problem));
        return 2;
    }

    const QString own = QCoreApplication::applicationDirPath();
    // The device's panels stand in the window once their values are there.
    const QByteArray panel("panePDEShell");
    std::vector<Case> cases(4);
    const auto onQueue = [&](const char *name, const QString &program) {
        return Case{name,
                    {QFileInfo(program).absoluteFilePath(), u"-d"_s, kQueue,
                     QStringLiteral(KELVO_SOURCE_DIR "/resources/demo/document.pdf")},
                    panel,
                    {}};
    };
    cases[Ours] = onQueue("kelvo-print on a queue", arguments[1]);
    cases[QtDialog] = {"Qt's print dialog", {own + u"/qt_print_dialog"_s}, "qtPrintDialog", {}};
    cases[Empty] = {"an empty Qt dialog", {own + u"/empty_dialog"_s}, "emptyDialog", {}};
    cases[OursWithoutServer] = {
        "kelvo-print --demo", {cases[Ours].command[0], u"--demo"_s}, panel, {}};
    const bool hasEarlier = arguments.size() > 3;
    if (hasEarlier)
        cases.push_back(onQueue("an earlier kelvo-print", arguments[3]));
    if (!measure(cases, rounds,
                 QFile::encodeName(QStringLiteral(KELVO_BUILD_DIR "/bench/first_frame.so"))))
        return 2;
    std::vector<Ratio> ratios{{"time", Ours, QtDialog, &Sample::wall, 0.75},
                              {"cpu time", Ours, QtDialog, &Sample::cpu, 0},
                              {"peak memory", Ours, QtDialog, &Sample::memory, 1.5}};
    const auto orient = [&ratios](CaseIndex of, CaseIndex against) {
        ratios.push_back({"time", of, against, &Sample::wall, 0});
        ratios.push_back({"cpu time", of, against, &Sample::cpu, 0});
        ratios.push_back({"peak memory", of, against, &Sample::memory, 0});
    };
    orient(OursWithoutServer, QtDialog);
    orient(Empty, QtDialog);
    if (hasEarlier)
        orient(Ours, Earlier);
    return compare(cases, ratios);
}
