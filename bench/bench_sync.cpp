// One full Sync of the shell with all its panels, through the bundle as a dialog
// loads it, against opening the same PPD once with libcups.
#include "functions.h"

#include "driven_dialog.h"

#include "bundle.h"
#include "ppd_file.h"
#include "ticket.h"

#include <QApplication>
#include <QLoggingCategory>

#include <array>
#include <clocale>
#include <cstdio>

// libcups has nothing new that opens a PPD.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/ppd.h>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

const QString kDevice = QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd");
constexpr int kRounds = 100;

DrivenDialog *dialog = nullptr;
// The device's defaults, and a job in which every option has been changed.
std::array<PPDDictionary, 2> choices;

PPDDictionary everyOptionChanged()
{
    PPDDictionary changed;
    const auto device = PpdFile::open(kDevice);
    if (!device)
        return changed;
    for (const PpdGroup &group : device.value()->groups()) {
        for (const PpdOption &option : group.options) {
            for (const PpdChoice &choice : option.choices) {
                if (choice.keyword != option.defaultChoice)
                    changed.insert(option.keyword, choice.keyword);
            }
        }
    }
    return changed;
}

// What a Sync leaves to the event loop (layout, drawing) is none of its own time,
// but must be done before the next one, which would find its work done already.
void settle()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents();
}

void setChoices(int which)
{
    dialog->session.printSettings().ppdChoices = choices[static_cast<std::size_t>(which)];
}

void syncRead(benchmark::State &state)
{
    int round = 0;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        setChoices(++round % 2);
        state.ResumeTiming();
        const OSStatus status = dialog->sync(kSyncRead);
        state.PauseTiming();
        if (status != noErr)
            state.SkipWithError("Sync failed");
        settle();
        state.ResumeTiming();
    }
}

void syncWrite(benchmark::State &state)
{
    int round = 0;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        // The panels hold one job and the ticket the other: all of it is written.
        setChoices(++round % 2);
        dialog->sync(kSyncRead);
        settle();
        setChoices((round + 1) % 2);
        state.ResumeTiming();
        const OSStatus status = dialog->sync(kSyncWrite);
        state.PauseTiming();
        if (status != noErr)
            state.SkipWithError("Sync failed");
        state.ResumeTiming();
    }
}

void openPpd(benchmark::State &state)
{
    const QByteArray path = kDevice.toLocal8Bit();
    for ([[maybe_unused]] auto _ : state) {
        ppd_file_t *ppd = ppdOpenFile(path.constData());
        if (!ppd)
            state.SkipWithError("ppdOpenFile failed");
        ppdClose(ppd);
    }
}

// A Sync that does nothing would be the fastest: both directions must carry a
// changed choice across.
bool syncsForReal()
{
    const QString option = u"JCLBanner"_s;
    setChoices(1);
    dialog->sync(kSyncRead);
    dialog->session.printSettings().ppdChoices.clear();
    dialog->sync(kSyncWrite);
    const QString carried = dialog->session.printSettings().ppdChoices.value(option);
    return !carried.isEmpty() && carried == choices[1].value(option)
        && carried != choices[0].value(option);
}

PlugInFactoryFunction findFactory()
{
    const auto bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde"));
    if (!bundle) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(bundle.error().text()));
        return nullptr;
    }
    const auto factory =
        bundle.value()->findFactory(QUuid::fromString(QLatin1String(kPDEPlugInTypeUUID)));
    return factory ? reinterpret_cast<PlugInFactoryFunction>(
               bundle.value()->findFunction(factory->functionName.toLatin1().constData()))
                   : nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // That platform says of each window that it knows no size hints.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;

    const PlugInFactoryFunction factory = findFactory();
    if (!factory) {
        std::fputs("bench_sync: the bundle cannot be used\n", stderr);
        return 2;
    }
    DrivenDialog driven(factory, kDevice);
    dialog = &driven;
    if (!driven.begin()) {
        std::fputs("bench_sync: the shell does not open\n", stderr);
        return 2;
    }
    settle();
    driven.sync(kSyncWrite);
    choices = {driven.session.printSettings().ppdChoices, everyOptionChanged()};
    if (!syncsForReal()) {
        std::fputs("bench_sync: Sync does not carry the settings across\n", stderr);
        return 2;
    }
    const bench::Side ppd =
        bench::function("opening the same PPD once with libcups", openPpd, kRounds);
    const std::vector<bench::Row> rows{{bench::Figure::Processor, 1.0}};
    return bench::compare(
        {{bench::function("one Sync, ticket to panels", syncRead, kRounds), ppd, rows},
         {bench::function("one Sync, panels to ticket", syncWrite, kRounds), ppd, rows}},
        *options);
}
