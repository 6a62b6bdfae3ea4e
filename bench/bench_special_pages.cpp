// Lists of 99,999 special pages beside one stable sort of as many. See README.md.

#include "describe_job.h"
#include "exception_page_list.h"
#include "functions.h"
#include "insert_list.h"
#include "page_range_text.h"
#include "special_pages_settings.h"
#include "ticket_values.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

using namespace kelvo;

namespace {

// Pages as a caller holds them, and as add() wants them.
template <class Page>
struct Sample
{
    std::vector<Page> pages;
    std::vector<const SpecialPage *> pointers;
};

enum Order { InOrder, Reversed, Shuffled };
constexpr int kOrders = 3;
template <class Page>
using Samples = std::array<Sample<Page>, kOrders>;

Samples<Insert> inserts;
Samples<ExceptionPage> exceptions;
Samples<ExceptionPage> overlaps; // each reaches over some of its neighbours

bool isBefore(const SpecialPage &one, const SpecialPage &other)
{
    return one.startPage() < other.startPage();
}

template <class Page>
void arrange(std::vector<Page> &pages, Order order)
{
    if (order == Reversed)
        std::ranges::reverse(pages);
    else if (order == Shuffled)
        std::ranges::shuffle(pages, std::mt19937(1));
}

template <class Page, class MakePage>
Samples<Page> samples(MakePage makePage)
{
    Samples<Page> samples;
    for (int order = 0; order < kOrders; ++order) {
        Sample<Page> &sample = samples[order];
        for (std::int32_t number = 1; number <= kHighestPage; ++number) {
            Page page = makePage(number);
            page.setStartPage(number);
            page.stock().setWeight(80 + number % 200);
            page.stock().setCustomName(QStringLiteral("Letterhead, 2nd floor"));
            sample.pages.push_back(page);
        }
        arrange(sample.pages, Order(order));
        for (const Page &page : sample.pages)
            sample.pointers.push_back(&page);
    }
    return samples;
}

void makeSamples()
{
    inserts = samples<Insert>([](std::int32_t) { return Insert(); });
    const auto range = [](std::int32_t first, std::int32_t pages) {
        ExceptionPage page;
        page.setEndPage(first + pages - 1);
        page.setPlex(first % 3);
        return page;
    };
    exceptions = samples<ExceptionPage>([&](std::int32_t first) { return range(first, 1); });
    overlaps =
        samples<ExceptionPage>([&](std::int32_t first) { return range(first, 1 + first % 50); });
}

enum class Before { Empty, Full };

template <class List, class Page>
void add(benchmark::State &state, const Sample<Page> &sample, Before before)
{
    List list;
    if (before == Before::Full)
        list.add(sample.pointers);
    for ([[maybe_unused]] auto _ : state)
        list.add(sample.pointers);
}

template <class Page>
void sortPages(benchmark::State &state, const Sample<Page> &sample)
{
    std::vector<Page> sorted;
    for ([[maybe_unused]] auto _ : state) {
        sorted = sample.pages;
        std::ranges::stable_sort(sorted, isBefore);
    }
}

template <class Page>
void sortPointers(benchmark::State &state, const Sample<Page> &sample)
{
    std::vector<const SpecialPage *> sorted;
    for ([[maybe_unused]] auto _ : state) {
        sorted = sample.pointers;
        std::ranges::stable_sort(sorted, {}, &SpecialPage::startPage);
    }
}

// ---- a full list

// What happens to a full list, once for each round.
template <class Function>
void onFullList(benchmark::State &state, Function function)
{
    ExceptionPageList list;
    list.add(exceptions[InOrder].pointers);
    for ([[maybe_unused]] auto _ : state)
        function(list);
}

void copyList(benchmark::State &state)
{
    std::unique_ptr<SpecialPageList> copy;
    onFullList(state, [&copy](ExceptionPageList &list) { copy = list.clone(); });
}

void writeList(benchmark::State &state)
{
    onFullList(state, [](ExceptionPageList &list) { benchmark::DoNotOptimize(list.asTicket()); });
}

void removeHalf(benchmark::State &state)
{
    onFullList(state, [](ExceptionPageList &list) {
        std::vector<const SpecialPage *> pages;
        for (std::int32_t index = 0; index < list.count(); index += 2)
            pages.push_back(list.pageAtIndex(index));
        list.remove(pages);
    });
}

void readList(benchmark::State &state)
{
    ExceptionPageList list;
    list.add(exceptions[InOrder].pointers);
    const Array form = list.asTicket().value_or(Array());
    std::vector<ExceptionPage> pages;
    pages.reserve(form.size());
    for ([[maybe_unused]] auto _ : state) {
        for (const QVariant &value : form)
            pages.emplace_back(value.toMap());
    }
}

// ---- a whole job, described and read

const QString kDevice = QStringLiteral(KELVO_SOURCE_DIR "/resources/ppds/kelvo-corvane-full.ppd");

// A ticket with 99,999 inserts, and the device that it is for.
struct Job
{
    Ticket printSettings, pageFormat;
    std::shared_ptr<PpdFile> ppd;
};

const Job &sampleJob()
{
    static const Job job = [] {
        Job made;
        InsertList list;
        list.add(inserts[InOrder].pointers);
        setValue(made.printSettings, {}, ticketKey("SpecialPages.InsertList"),
                 list.asTicket().value_or(Array()));
        made.ppd = PpdFile::open(kDevice).value();
        return made;
    }();
    return job;
}

void readJob(benchmark::State &state)
{
    const Job &job = sampleJob();
    const Device device = deviceWith(nullptr, job.ppd.get());
    SpecialPagesSettings settings;
    for ([[maybe_unused]] auto _ : state)
        readSpecialPages(settings, job.printSettings, device);
}

void describeJob(benchmark::State &state)
{
    const Job &job = sampleJob();
    const JobToDescribe toDescribe{&job.printSettings, &job.pageFormat, job.ppd.get(), nullptr};
    JobDescription description;
    for ([[maybe_unused]] auto _ : state)
        KelvoDescribeJob(&toDescribe, &description);
    if (description.sheets.inserts.size() != kHighestPage)
        state.SkipWithError("not all inserts are described");
}

// ---- the rows

template <class Function>
bench::Side once(std::string name, Function function)
{
    return bench::function(std::move(name), function, 1);
}

template <class List, class Page>
void compare(const std::string &what, const Samples<Page> &samples,
             std::vector<bench::Comparison> &comparisons)
{
    constexpr std::array orders{", in order", ", reversed", ", shuffled"};
    for (int order = 0; order < kOrders; ++order) {
        const Sample<Page> &sample = samples[order];
        const bench::Side pages = once("stable sort of as many pages",
                                       [&sample](auto &state) { sortPages(state, sample); });
        const bench::Side pointers = once("stable sort of as many pointers",
                                          [&sample](auto &state) { sortPointers(state, sample); });
        const bench::Side empty =
            once("adding 99,999 " + what + orders[order],
                 [&sample](auto &state) { add<List>(state, sample, Before::Empty); });
        const bench::Side full = once("adding them to as many", [&sample](auto &state) {
            add<List>(state, sample, Before::Full);
        });
        comparisons.push_back({empty, pages, {{bench::Figure::Processor, 3.0}}});
        if (order == InOrder) // as users add them
            comparisons.push_back({empty, pointers, {{bench::Figure::Processor}}});
        comparisons.push_back({full, pages, {{bench::Figure::Processor, 3.0}}});
    }
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    makeSamples();
    using enum bench::Figure;
    std::vector<bench::Comparison> comparisons;
    compare<InsertList>("inserts", inserts, comparisons);
    compare<ExceptionPageList>("exception pages", exceptions, comparisons);
    compare<ExceptionPageList>("that overlap one another", overlaps, comparisons);
    const bench::Side pages = once("stable sort of as many pages",
                                   [](auto &state) { sortPages(state, exceptions[InOrder]); });
    for (const bench::Side &handled :
         {once("copying a list of 99,999 exception pages", copyList),
          once("its array form", writeList), once("reading that back", readList),
          once("removing half of them", removeHalf)})
        comparisons.push_back({handled, pages, {{Processor}}});
    comparisons.push_back({once("describing a job with 99,999 inserts", describeJob),
                           once("reading it once, as a panel does", readJob),
                           {{Processor, 2.0}}});
    return bench::compare(comparisons, *options);
}
