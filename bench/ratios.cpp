#include "ratios.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace kelvo::bench {

namespace {

constexpr int warmUps = 2; // the files of both sides are in memory then
constexpr int fewestPairs = 5;
constexpr double longestQuick = 2; // s
constexpr int mostPairs = 1000;

using Pair = std::pair<Taken, Taken>;

struct Spread
{
    double least, median, most;
};

Spread spreadOf(std::vector<double> values)
{
    std::ranges::sort(values);
    return {values.front(), values[values.size() / 2], values.back()};
}

double figureOf(const Taken &taken, Figure figure)
{
    switch (figure) {
    case Figure::Elapsed:
        return taken.elapsed;
    case Figure::Processor:
        return taken.processor;
    case Figure::Memory:
        return taken.memory;
    }
    return 0;
}

const char *nameOf(Figure figure)
{
    switch (figure) {
    case Figure::Elapsed:
        return "elapsed";
    case Figure::Processor:
        return "processor";
    case Figure::Memory:
        return "memory";
    }
    return "";
}

// "12.3 ms (11.9 to 14.0)"
std::string text(const Spread &spread, Figure figure)
{
    struct Unit
    {
        const char *name;
        double size;
    };
    Unit unit{"MB", 1e6};
    if (figure != Figure::Memory) {
        for (const Unit &smaller : {Unit{"s", 1}, {"ms", 1e-3}, {"µs", 1e-6}, {"ns", 1e-9}}) {
            unit = smaller;
            if (spread.median >= unit.size)
                break;
        }
    }
    const auto digits = [&unit](double value) {
        return QString::number(value / unit.size, 'g', value >= 1000 * unit.size ? 4 : 3);
    };
    return u"%1 %2 (%3 to %4)"_s
        .arg(digits(spread.median), QString::fromUtf8(unit.name), digits(spread.least),
             digits(spread.most))
        .toStdString();
}

// Pads by letters, not by bytes.
std::string column(const std::string &words, qsizetype width)
{
    const QString text = QString::fromStdString(words);
    return text.leftJustified(width).toStdString();
}

void printHead()
{
    std::printf("| %s | %s | figure    | budget |     ratio |  least to most | %s | %s | pairs |\n",
                column("what", 54).c_str(), column("against", 44).c_str(),
                column("this", 28).c_str(), column("that", 28).c_str());
    std::puts("| --- | --- | --- | --- | --- | --- | --- | --- | --- |");
    std::fflush(stdout);
}

// Whether the budget is kept.
bool print(const Comparison &comparison, const Row &row, const std::vector<Pair> &pairs)
{
    std::vector<double> these, those, ratios;
    for (const auto &[what, against] : pairs) {
        these.push_back(figureOf(what, row.figure));
        those.push_back(figureOf(against, row.figure));
        ratios.push_back(these.back() / those.back());
    }
    const Spread ratio = spreadOf(ratios);
    const bool isMissed = row.budget > 0 && ratio.median > row.budget;
    const auto digits = [](double value) {
        const int decimals = value < 0.1 ? 3 : value < 10 ? 2 : 1;
        return QString::number(value, 'f', decimals).toStdString();
    };
    const std::string median = isMissed ? "**" + digits(ratio.median) + "**" : digits(ratio.median);
    std::printf("| %s | %s | %-9s | %6s | %9s | %14s | %s | %s | %5zu |\n",
                column(comparison.what.name, 54).c_str(),
                column(comparison.against.name, 44).c_str(), nameOf(row.figure),
                row.budget > 0 ? digits(row.budget).c_str() : "-", median.c_str(),
                (digits(ratio.least) + " to " + digits(ratio.most)).c_str(),
                column(text(spreadOf(these), row.figure), 28).c_str(),
                column(text(spreadOf(those), row.figure), 28).c_str(), pairs.size());
    return !isMissed;
}

// One round. Its place among the rounds says who begins.
std::optional<Pair> pairOf(const Comparison &comparison, int round)
{
    const bool isTurned = round % 2 != 0;
    const Side &first = isTurned ? comparison.against : comparison.what;
    const Side &second = isTurned ? comparison.what : comparison.against;
    const auto one = first.measure();
    const auto other = one ? second.measure() : std::nullopt;
    if (!one || !other) {
        std::fprintf(stderr, "%s could not be measured\n", (one ? second : first).name.c_str());
        return std::nullopt;
    }
    return isTurned ? Pair{*other, *one} : Pair{*one, *other};
}

// None where a round failed.
std::vector<Pair> measure(const Comparison &comparison, const Options &options)
{
    std::vector<Pair> pairs;
    for (int round = 0; round < warmUps; ++round) {
        if (!pairOf(comparison, round))
            return {};
    }
    QElapsedTimer timer;
    timer.start();
    while (static_cast<int>(pairs.size()) < options.pairs) {
        const auto pair = pairOf(comparison, static_cast<int>(pairs.size()));
        if (!pair)
            return {};
        pairs.push_back(*pair);
        if (pairs.size() >= fewestPairs
            && static_cast<double>(timer.elapsed()) > options.longest * 1000)
            break;
    }
    return pairs;
}

} // namespace

Side fixed(std::string name, double seconds)
{
    return {std::move(name), [seconds] { return Taken{seconds, seconds, 0}; }};
}

std::optional<Options> optionsFrom(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser parser;
    parser.addOptions({{u"quick"_s, u"few pairs"_s},
                       {u"pairs"_s, u"at most that many"_s, u"N"_s},
                       {u"program"_s, u"that kelvo-print is measured"_s, u"FILE"_s},
                       {u"earlier"_s, u"and beside that one, too"_s, u"FILE"_s},
                       {u"no-head"_s, u"the table was begun already"_s}});
    const auto refuse = [&](const QString &problem) {
        std::fprintf(stderr, "%s: %s\n%s", argv[0], qUtf8Printable(problem),
                     qUtf8Printable(parser.helpText()));
        return std::nullopt;
    };
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refuse(u"it takes options only"_s);
    Options options;
    if (parser.isSet(u"quick"_s)) {
        options.pairs = fewestPairs;
        options.longest = longestQuick;
    }
    if (parser.isSet(u"pairs"_s)) {
        options.pairs = parser.value(u"pairs"_s).toInt();
        options.longest = 1e6;
        if (options.pairs < 1 || options.pairs > mostPairs)
            return refuse(u"pairs are 1 to %1"_s.arg(mostPairs));
    }
    for (const auto &[name, path] :
         {std::pair{u"program"_s, &options.program}, {u"earlier"_s, &options.earlier}}) {
        if (!parser.isSet(name))
            continue;
        const QFileInfo file(parser.value(name));
        if (!file.isExecutable())
            return refuse(u"%1 is no program"_s.arg(file.filePath()));
        *path = file.absoluteFilePath();
    }
    if (options.program.isEmpty())
        options.program = QStringLiteral(KELVO_BUILD_DIR "/bin/kelvo-print");
    if (!parser.isSet(u"no-head"_s))
        printHead();
    return options;
}

int compare(const std::vector<Comparison> &comparisons, const Options &options)
{
    bool isWhole = true, isKept = true;
    for (const Comparison &comparison : comparisons) {
        const std::vector<Pair> pairs = measure(comparison, options);
        isWhole = isWhole && !pairs.empty();
        if (pairs.empty())
            continue;
        for (const Row &row : comparison.rows)
            isKept = print(comparison, row, pairs) && isKept;
        std::fflush(stdout);
    }
    return !isWhole ? 2 : isKept ? 0 : 1;
}

} // namespace kelvo::bench
