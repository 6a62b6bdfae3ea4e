// A fax to 10,000 recipients. See README.md.

#include "dialing_check.h"
#include "fax_recipient_list.h"
#include "functions.h"

#include <array>
#include <vector>

using namespace kelvo;

namespace {

constexpr int many = 10'000;
constexpr int few = 1'000;

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

void addAll(benchmark::State &state)
{
    const std::vector<FaxRecipient> all = people(many);
    for ([[maybe_unused]] auto _ : state) {
        FaxRecipientList list;
        for (const FaxRecipient &recipient : all)
            append(list, recipient);
        benchmark::DoNotOptimize(list.count());
    }
}

void checkLengths(benchmark::State &state)
{
    const FaxRecipientList list = listOf(many);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(FindMaxCharacters(list, 4));
}

void writeTicket(benchmark::State &state)
{
    const FaxRecipientList list = listOf(many);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(list.toTicket());
}

void readTicket(benchmark::State &state)
{
    const Array ticket = listOf(many).toTicket();
    for ([[maybe_unused]] auto _ : state) {
        const FaxRecipientList list(ticket);
        benchmark::DoNotOptimize(list.count());
    }
}

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

void lookThroughMany(benchmark::State &state)
{
    lookThrough(state, many);
}

void addOneToFew(benchmark::State &state)
{
    addOneMore(state, few);
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    using enum bench::Figure;
    using bench::function;
    constexpr double scan = 3, linear = 1.5 * many / few;
    const bench::Side one =
        function("one more of 10,000 fax recipients, looked for first", addOneToMany);
    const bench::Side second = bench::fixed("what users wait without asking why", 1);
    const std::vector<bench::Row> wait{{Elapsed, 1.0}};
    return bench::compare(
        {{one, function("a look through as many texts", lookThroughMany), {{Processor, scan}}},
         {one, function("one more of 1,000", addOneToFew), {{Processor, linear}}},
         {function("adding 10,000 of them", addAll, 1), second, wait},
         {function("looking at the lengths of their numbers", checkLengths), second, wait},
         {function("writing their ticket", writeTicket), second, wait},
         {function("reading it", readTicket), second, wait}},
        *options);
}
