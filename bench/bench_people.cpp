// Finding people as somebody types, and reading cards, of 10,000 people. See README.md.

#include "functions.h"
#include "person_search.h"
#include "vcard.h"

using namespace kelvo;

namespace {

constexpr int kPeople = 10'000;

AddressBookContents contents;
QByteArray cards;

void makeSamples()
{
    const QStringList first = {QStringLiteral("Kim"), QStringLiteral("J\u00f6rg"),
                               QStringLiteral("Anne-Marie"), QStringLiteral("Zo\u00eb")};
    const QStringList last = {QStringLiteral("Lee"), QStringLiteral("\u00c5ngstr\u00f6m"),
                              QStringLiteral("M\u00fcller"), QStringLiteral("Garc\u00eda"),
                              QStringLiteral("Okafor")};
    for (int i = 0; i < kPeople; ++i) {
        Person person;
        person.firstName = first[i % first.size()];
        person.lastName = last[i % last.size()] + QString::number(i);
        person.fullName = person.firstName + u' ' + person.lastName;
        person.organization = QStringLiteral("Acme %1").arg(i % 100);
        person.emailAddresses = {QStringLiteral("p%1@x%2.org").arg(i).arg(i % 100)};
        person.numbers = {
            {PersonNumber::Kind::Fax, QStringLiteral("work"), QStringLiteral("+1 (555) %1").arg(i)},
            {PersonNumber::Kind::Phone, QStringLiteral("work"),
             QStringLiteral("+1 (556) %1").arg(i)}};
        cards += QStringLiteral("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:%1\r\nN:%2;%3;;;\r\nORG:%4\r\n"
                                "EMAIL;TYPE=WORK:%5\r\nTEL;TYPE=WORK,FAX:%6\r\nEND:VCARD\r\n")
                     .arg(person.fullName, person.lastName, person.firstName, person.organization,
                          person.emailAddresses.first(), person.numbers.front().number)
                     .toUtf8();
        contents.people.push_back(person);
    }
}

// One letter more each time, as it is typed; capitals and accents count, and words only begin
// where the text does.
const QString kTyped = QStringLiteral("muller 77");

void keystroke(benchmark::State &state)
{
    const PersonSearch search(contents);
    qsizetype letters = 0;
    for (auto _ : state) {
        letters = letters % kTyped.size() + 1;
        benchmark::DoNotOptimize(search.find(kTyped.first(letters)).people.size());
    }
}

void plainScan(benchmark::State &state)
{
    qsizetype letters = 0;
    for (auto _ : state) {
        letters = letters % kTyped.size() + 1;
        const QString typed = kTyped.first(letters);
        const auto has = [&typed](const QString &text) {
            return text.contains(typed, Qt::CaseInsensitive);
        };
        int hits = 0;
        for (const Person &person : contents.people) {
            hits += has(person.fullName) || has(person.organization)
                || has(person.emailAddresses.first()) || has(person.numbers[0].number)
                || has(person.numbers[1].number);
        }
        benchmark::DoNotOptimize(hits);
    }
}

void beginSearch(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PersonSearch(contents).find(kTyped).people.size());
}

void readAllCards(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(readCards(cards).value().people.size());
}

void decodeAndSplit(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(QString::fromUtf8(cards).split(QStringLiteral("\r\n")).size());
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    makeSamples();
    using enum bench::Figure;
    const bench::Side scan = bench::function("QString::contains on their texts", plainScan);
    return bench::compare(
        {{bench::function("a keystroke that looks for one of 10,000 people", keystroke),
          scan,
          {{Processor, 1.0}}},
         {bench::function("making ready for that", beginSearch), scan, {{Processor}}},
         {bench::function("reading 10,000 cards", readAllCards),
          bench::function("decoding and splitting the file", decodeAndSplit),
          {{Processor}}}},
        *options);
}
