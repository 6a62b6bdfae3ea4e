#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QString>

// Measurements beside their yardsticks. Times of one machine say nothing about another; how
// many times as long as its yardstick a thing takes, measured right beside it, does.
namespace kelvo::bench {

// What one run of something took.
struct Taken
{
    double elapsed = 0;   // s
    double processor = 0; // s, see the side's maker
    double memory = 0;    // bytes, the most at once; 0: not looked at
};

enum class Figure {
    Elapsed,   // where waiting, as for a disk or a server, is part of the matter
    Processor, // what other programs do meanwhile counts less
    Memory,
};

// One side of a comparison.
struct Side
{
    std::string name; // what the table says
    // Runs it once. Nothing when it failed, which it has told on standard error.
    std::function<std::optional<Taken>()> measure;
};

// What never takes longer or shorter: a promise to the user in seconds.
Side fixed(std::string name, double seconds);

// A line of the table.
struct Row
{
    Figure figure;
    double budget = 0; // the ratio is at most that; 0: for orientation
};

// A thing and its yardstick, of which one or more rows are told from the same pairs.
struct Comparison
{
    Side what, against;
    std::vector<Row> rows;
};

struct Options
{
    int pairs = 21;           // at most; fewer where they would take too long
    double longest = 20;      // s for the pairs of a comparison, if there are a few of them by then
    QString program, earlier; // kelvo-print: the measured one, and one to compare it with, or empty
};

// Reads a program's arguments, which bench/run passes on. None when they are wrong, which is told
// on standard error: end with 2 then.
std::optional<Options> optionsFrom(int argc, char **argv);

// Measures each comparison: rounds in which both sides run one after the other, each time the
// other one first. Prints its rows, with the median of the rounds' ratios as the ratio. Returns
// what main() does: 1 when a budget is missed, 2 when something could not be measured.
int compare(const std::vector<Comparison> &comparisons, const Options &options);

} // namespace kelvo::bench
