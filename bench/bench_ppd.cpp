// What the words of several languages cost when a PPD is opened. See README.md.

#include "functions.h"
#include "ppd_file.h"
#include "texts.h"

#include <QByteArray>
#include <QFile>

using namespace kelvo;

namespace {

QByteArray inLanguages; // the full sample device, as it is
QByteArray inEnglish;   // without its lines for languages, English too

void readSamples()
{
    QFile file(QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        inLanguages += line;
        // "*de.PageSize A4/A4: """
        if (line.indexOf('.') != 3 && !line.startsWith("*cupsLanguages"))
            inEnglish += line;
    }
}

void open(benchmark::State &state, const QByteArray &ppd, const QString &language)
{
    loadTexts(QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/strings"), {language});
    for (auto _ : state) {
        if (!PpdFile::fromBytes(ppd, QStringLiteral("sample.ppd")))
            state.SkipWithError("the PPD cannot be opened");
    }
}

void openOneLanguage(benchmark::State &state)
{
    open(state, inEnglish, QStringLiteral("en"));
}

void openInEnglish(benchmark::State &state)
{
    open(state, inLanguages, QStringLiteral("en"));
}

void openInGerman(benchmark::State &state)
{
    open(state, inLanguages, QStringLiteral("de"));
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    readSamples();
    const bench::Side one = bench::function("the same with one language", openOneLanguage);
    const std::vector<bench::Row> rows{{bench::Figure::Processor, 3.0}};
    return bench::compare(
        {{bench::function("opening a PPD of four languages, in English", openInEnglish), one, rows},
         {bench::function("opening it in German", openInGerman), one, rows}},
        *options);
}
