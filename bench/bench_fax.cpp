// A fax to 10,000 recipients. See README.md.

#include "dialing_check.h"
#include "fax_recipient_list.h"
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <memory>
#include <vector>

using namespace kelvo;

namespace {

constexpr int many = 10'000;
constexpr int few = 1'000;
constexpr double second = 1000; // milliseconds that users wait without asking why

// Names of one length that differ at their end: what comparing them takes longest for.
std::vector<FaxRecipient> people(int count)
{
    std::vector<FaxRecipient> people;
    people.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const QString number = QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0'));
        people.emplace_back(QStringLiteral("Colleague") + number, QStringLiteral("Lee"),
                            QStringLiteral("+1 (555) ") + number);
    }
    return people;
}

void append(FaxRecipientList &list, const FaxRecipient &recipient)
{
    auto *added = new FaxRecipient(recipient);
    if (!list.containsRecipient(added)) // where the user wants to be asked
        list.append(added);
    FaxRecipientRelease(added);
}

FaxRecipientList listOf(int count)
{
    FaxRecipientList list;
    for (const FaxRecipient &recipient : people(count)) {
        auto *added = new FaxRecipient(recipient);
        list.append(added);
        FaxRecipientRelease(added);
    }
    return list;
}

template <typename Work>
void withinASecond(benchmark::State &state, Work work)
{
    using Clock = std::chrono::steady_clock;
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = Clock::now();
        work();
        const std::chrono::duration<double, std::milli> taken = Clock::now() - begin;
        if (taken.count() > second)
            state.SkipWithError("it takes more than a second");
    }
}

void addAll(benchmark::State &state)
{
    const std::vector<FaxRecipient> all = people(many);
    withinASecond(state, [&all] {
        FaxRecipientList list;
        for (const FaxRecipient &recipient : all)
            append(list, recipient);
        benchmark::DoNotOptimize(list.count());
    });
}
BENCHMARK(addAll)->Repetitions(7)->Unit(benchmark::kMillisecond)->Iterations(1);

void checkLengths(benchmark::State &state)
{
    const FaxRecipientList list = listOf(many);
    withinASecond(state, [&list] { benchmark::DoNotOptimize(FindMaxCharacters(list, 4)); });
}
BENCHMARK(checkLengths)->Repetitions(7)->Unit(benchmark::kMillisecond);

void writeTicket(benchmark::State &state)
{
    const FaxRecipientList list = listOf(many);
    withinASecond(state, [&list] { benchmark::DoNotOptimize(list.toTicket()); });
}
BENCHMARK(writeTicket)->Repetitions(7)->Unit(benchmark::kMillisecond);

void readTicket(benchmark::State &state)
{
    const Array ticket = listOf(many).toTicket();
    withinASecond(state, [&ticket] {
        const FaxRecipientList list(ticket);
        benchmark::DoNotOptimize(list.count());
    });
}
BENCHMARK(readTicket)->Repetitions(7)->Unit(benchmark::kMillisecond);

void addOneMore(benchmark::State &state, int count)
{
    FaxRecipientList list = listOf(count);
    const FaxRecipient one = people(count + 1).back();
    for ([[maybe_unused]] auto _ : state) {
        append(list, one);
        list.removeAtIndex(list.count() - 1);
    }
}

// The same texts side by side, looked through once.
void lookThrough(benchmark::State &state, int count)
{
    std::vector<std::array<QString, 3>> texts;
    for (const FaxRecipient &one : people(count))
        texts.push_back({*one.firstName(), *one.lastName(), *one.faxNumber()});
    const FaxRecipient last = people(count + 1).back();
    const std::array<QString, 3> wanted{*last.firstName(), *last.lastName(), *last.faxNumber()};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(std::ranges::find(texts, wanted));
}

void addOneToMany(benchmark::State &state)
{
    addOneMore(state, many);
}
BENCHMARK(addOneToMany)->Repetitions(7)->Unit(benchmark::kMicrosecond);

void lookThroughMany(benchmark::State &state)
{
    lookThrough(state, many);
}
BENCHMARK(lookThroughMany)->Repetitions(7)->Unit(benchmark::kMicrosecond);

void addOneToFew(benchmark::State &state)
{
    addOneMore(state, few);
}
BENCHMARK(addOneToFew)->Repetitions(7)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    constexpr double scan = 3, linear = 1.5 * many / few;
    return bench::runAndCompare(
        argc, argv,
        {{"addOneToMany", "lookThroughMany", scan}, {"addOneToMany", "addOneToFew", linear}});
}
