// Making a font's Type 42 program against a table-driven hex dump of the same bytes, for a
// font of a usual size and the largest in Debian. Both sides make their text anew each time.
#include "ratios.h"

#include "type42.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstring>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

struct Digits
{
    char pair[2];
};

std::array<Digits, 256> digitTable()
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::array<Digits, 256> table = {};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = {{digits[byte >> 4], digits[byte & 15]}};
    return table;
}

// Two digits for each byte, and a line end after every thirty.
QByteArray hexDump(const QByteArray &font)
{
    constexpr qsizetype line = 30;
    static const std::array<Digits, 256> table = digitTable();
    QByteArray text;
    text.reserve(2 * font.size() + font.size() / line);
    text.resize(2 * font.size() + font.size() / line);
    char *out = text.data();
    const char *bytes = font.constData();
    qsizetype left = font.size();
    for (; left >= line; left -= line) {
        for (qsizetype i = 0; i < line; ++i, out += 2)
            std::memcpy(out, table[static_cast<uchar>(*bytes++)].pair, 2);
        *out++ = '\n';
    }
    for (; left > 0; --left, out += 2)
        std::memcpy(out, table[static_cast<uchar>(*bytes++)].pair, 2);
    return text;
}

void convert(benchmark::State &state, const QByteArray &font)
{
    for ([[maybe_unused]] auto _ : state) {
        QByteArray program;
        if (!convertTTFtoPS42(font, u"Measured"_s, program))
            state.SkipWithError("not converted");
        benchmark::DoNotOptimize(program);
    }
}

void dump(benchmark::State &state, const QByteArray &font)
{
    for ([[maybe_unused]] auto _ : state) {
        QByteArray text = hexDump(font);
        benchmark::DoNotOptimize(text);
    }
}

void add(const char *name, void (*measure)(benchmark::State &, const QByteArray &),
         const QByteArray &font, int iterations)
{
    benchmark::RegisterBenchmark(name, [measure, &font](auto &state) { measure(state, font); })
        ->Iterations(iterations)
        ->Repetitions(31)
        ->Unit(benchmark::kMillisecond);
}

QByteArray read(const char *path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

int main(int argc, char **argv)
{
    // The rest are the benchmark's own arguments.
    const QByteArray small = argc > 2 ? read(argv[1]) : QByteArray();
    const QByteArray large = argc > 2 ? read(argv[2]) : QByteArray();
    if (small.isEmpty() || large.isEmpty()) {
        std::fputs("usage: bench_type42 FONT LARGE_FONT [OPTION...]\n", stderr);
        return 2;
    }
    argv[2] = argv[0];
    std::printf("%.2f MB and %.1f MB\n", static_cast<double>(small.size()) / 1e6,
                static_cast<double>(large.size()) / 1e6);
    add("convert", convert, small, 20);
    add("hexDump", dump, small, 20);
    add("convertLarge", convert, large, 1);
    add("hexDumpLarge", dump, large, 1);
    return bench::runAndCompare(
        argc - 2, argv + 2, {{"convert", "hexDump", 1.3}, {"convertLarge", "hexDumpLarge", 1.3}});
}
