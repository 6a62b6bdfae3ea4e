// Making a font's Type 42 program against a table-driven hex dump of the same bytes, for a
// font of a usual size and the largest in Debian. Both sides make their text anew each time.
#include "functions.h"

#include "drawing.h"
#include "type42.h"

#include <QFile>

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

// Of the font of that PostScript name; empty, which is told, where it cannot be read.
QByteArray bytesOf(const QString &postScriptName)
{
    const auto fonts = drawing::library();
    const auto font = fonts ? fonts.value()->findFont(postScriptName) : std::nullopt;
    QFile file(font ? font->path : QString());
    if (font && file.open(QIODevice::ReadOnly))
        return file.readAll();
    std::fprintf(stderr, "bench_type42: the font %s is not installed\n",
                 qUtf8Printable(postScriptName));
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    const QByteArray usual = bytesOf(u"DejaVuSans"_s), large = bytesOf(u"BabelStoneHan"_s);
    if (usual.isEmpty() || large.isEmpty())
        return 2;
    const auto comparison = [](const QByteArray &font, int rounds) {
        const QString name =
            u"a font's Type 42 program, %1 MB"_s.arg(double(font.size()) / 1e6, 0, 'f', 1);
        return bench::Comparison{
            bench::function(
                name.toStdString(), [&font](auto &state) { convert(state, font); }, rounds),
            bench::function(
                "table-driven hex dump of the same bytes",
                [&font](auto &state) { dump(state, font); }, rounds),
            {{bench::Figure::Processor, 1.3}}};
    };
    return bench::compare({comparison(usual, 20), comparison(large, 1)}, *options);
}
