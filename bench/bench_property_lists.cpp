// Reading and writing property lists against libplist on the same bytes: the
// ticket of the longest job that is promised to work, and a user's store.
#include "functions.h"

#include "file_store.h"
#include "property_list.h"
#include "size_limits.h"
#include "values.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <plist/plist.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPages = 99'999;   // special pages of the longest job
constexpr int kWatermarks = 200; // of a user who keeps everything
constexpr int kFonts = 20;       // cached programs, about 850 KB of text each
constexpr int kFontBytes = 850'000;
const QString kListKey = u"WatermarkListEntries"_s;
const QString kChanged = u"Watermark 117"_s;

struct PlistFree
{
    void operator()(void *node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistFree>; // plist_t is a pointer to void

struct MemoryFree
{
    void operator()(char *memory) const { std::free(memory); }
};

// One list as both libraries have it.
struct Sample
{
    QByteArray xml; // as we write it
    QVariant ours;
    Plist theirs;
};
Sample ticket, store;
QString storePath; // a file of store.xml, and one beside it for libplist
QByteArray theirPath;

Dictionary stockOf(int page)
{
    return {
        {u"Name"_s, u"Coated & punched <%1>"_s.arg(page % 7)},
        {u"Color"_s, page % 9},
        {u"Type"_s, page % 30},
        {u"Size"_s, u"A4"_s},
        {u"Weight"_s, 80 + page % 200},
        {u"Ordered"_s, page % 2 == 0},
        {u"Width"_s, 595.275590551181},
        {u"Height"_s, 841.889763779528},
    };
}

QVariant longTicket()
{
    Array pages;
    for (int page = 1; page <= kPages; ++page)
        pages.append(Dictionary{
            {u"StartPage"_s, page},
            {u"EndPage"_s, page},
            {u"SidesImaged"_s, page % 3},
            {u"LightenDarken"_s, page % 7 - 3},
            {u"Shift"_s,
             Dictionary{{u"Side1X"_s, 0.25 * page},
                        {u"Side1Y"_s, -1.5},
                        {u"Side2X"_s, 0.1},
                        {u"Units"_s, u"Inches"_s}}},
            {u"Stock"_s, stockOf(page)},
        });
    return Dictionary{
        {u"FormatVersion"_s, 1},
        {u"PMPrintSettingsTicket"_s,
         Dictionary{{u"com.kelvo.print.SpecialPages.ExceptionList"_s, pages}}},
    };
}

Dictionary watermark(int number)
{
    return {
        {u"textString"_s, u"Watermark %1"_s.arg(number)},
        {u"filename"_s, QString()},
        {u"filePath"_s, QString()},
        {u"fontName"_s, u"DejaVuSans-Bold"_s},
        {u"xOffset"_s, 0.125F * static_cast<float>(number)},
        {u"yOffset"_s, -0.5F},
        {u"xPos"_s, 306.1},
        {u"yPos"_s, 396.2},
        {u"angle"_s, number % 360},
        {u"density"_s, 50},
        {u"scale"_s, 100},
        {u"units"_s, 1},
        {u"fontSize"_s, 72},
        {u"wellColorRed"_s, 0.1F},
        {u"wellColorGreen"_s, 0.2F},
        {u"wellColorBlue"_s, 0.3F},
        {u"wellColorAlpha"_s, 1.0F},
        {u"fontColorRed"_s, 0.4F},
        {u"fontColorGreen"_s, 0.5F},
        {u"fontColorBlue"_s, 0.6F},
        {u"fontColorAlpha"_s, 1.0F},
    };
}

// Lines of hexadecimal digits, as a font program has them.
QByteArray fontProgram(int number)
{
    QByteArray program;
    program.reserve(kFontBytes);
    unsigned state = static_cast<unsigned>(number) + 1;
    while (program.size() < kFontBytes) {
        state = state * 1'664'525U + 1'013'904'223U;
        program.append("0123456789ABCDEF"[state >> 28]);
        if (program.size() % 65 == 64)
            program.append('\n');
    }
    return program;
}

QVariant watermarkStore()
{
    Dictionary root;
    Array names;
    for (int i = 0; i < kWatermarks; ++i) {
        const Dictionary record = watermark(i);
        const QString name = record.value(u"textString"_s).toString();
        names.append(name);
        root.insert(name, record);
    }
    root.insert(kListKey, names);
    for (int i = 0; i < kFonts; ++i)
        root.insert(u"Font-%1"_s.arg(i), fontProgram(i));
    return root;
}

Plist theirRead(const QByteArray &xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    return Plist(node);
}

// The bytes that libplist writes, freed by the caller's unique_ptr.
std::unique_ptr<char, MemoryFree> theirWrite(const Plist &list, std::uint32_t *size)
{
    char *xml = nullptr;
    plist_to_xml(list.get(), &xml, size);
    return std::unique_ptr<char, MemoryFree>(xml);
}

// ---- in memory

void readOurs(benchmark::State &state, const Sample &sample)
{
    for ([[maybe_unused]] auto _ : state) {
        const auto list = CFPropertyListCreateFromXMLData(sample.xml, u"list"_s);
        if (!list)
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(list);
    }
}

void readTheirs(benchmark::State &state, const Sample &sample)
{
    for ([[maybe_unused]] auto _ : state) {
        const Plist list = theirRead(sample.xml);
        if (!list)
            state.SkipWithError("not read");
        benchmark::DoNotOptimize(list.get());
    }
}

void writeOurs(benchmark::State &state, const Sample &sample)
{
    for ([[maybe_unused]] auto _ : state) {
        const auto xml = CFPropertyListCreateXMLData(sample.ours);
        if (!xml)
            state.SkipWithError("not written");
        benchmark::DoNotOptimize(xml);
    }
}

void writeTheirs(benchmark::State &state, const Sample &sample)
{
    for ([[maybe_unused]] auto _ : state) {
        std::uint32_t size = 0;
        const auto xml = theirWrite(sample.theirs, &size);
        if (!xml)
            state.SkipWithError("not written");
        benchmark::DoNotOptimize(size);
    }
}

// ---- one record of the store's file changed

void saveOneOurs(benchmark::State &state)
{
    int angle = 0;
    for ([[maybe_unused]] auto _ : state) {
        const auto saved =
            changeDictionaryFile(storePath, DamagedStore::SetAside, [&angle](QVariantMap &root) {
                Dictionary record = root.value(kChanged).toMap();
                record.insert(u"angle"_s, ++angle % 360);
                root.insert(kChanged, record);
                return true;
            });
        if (!saved)
            state.SkipWithError("not saved");
    }
}

enum class Durable { No, Yes };

// What a program does that uses libplist: read, parse, change, write. The durable
// one keeps the promise that our store keeps: synced, renamed, folder synced.
void saveOneTheirs(benchmark::State &state, Durable durable)
{
    unsigned angle = 0;
    const QByteArray temporary = durable == Durable::Yes ? theirPath + ".new" : theirPath;
    const QByteArray folder = theirPath.left(theirPath.lastIndexOf('/'));
    for ([[maybe_unused]] auto _ : state) {
        QFile file(QFile::decodeName(theirPath));
        if (!file.open(QIODevice::ReadOnly))
            state.SkipWithError("not opened");
        const Plist root = theirRead(file.readAll());
        file.close();
        plist_t record = plist_dict_get_item(root.get(), qUtf8Printable(kChanged));
        if (!record)
            state.SkipWithError("not read");
        plist_dict_set_item(record, "angle", plist_new_uint(++angle % 360));
        std::uint32_t size = 0;
        const auto xml = theirWrite(root, &size);
        const int fd =
            ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        if (::write(fd, xml.get(), size) != static_cast<ssize_t>(size))
            state.SkipWithError("not written");
        if (durable == Durable::Yes) {
            ::fsync(fd);
            std::rename(temporary.constData(), theirPath.constData());
            const int folderFd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            ::fsync(folderFd);
            ::close(folderFd);
        }
        ::close(fd);
    }
}

// ---- the samples

// Both sides must hold the same list, or they would be measured on different work.
bool make(Sample &sample, QVariant list)
{
    const auto xml = CFPropertyListCreateXMLData(list);
    if (!xml)
        return false;
    sample.xml = xml.value();
    sample.ours = std::move(list);
    sample.theirs = theirRead(sample.xml);
    if (!sample.theirs)
        return false;
    std::uint32_t size = 0;
    const auto theirs = theirWrite(sample.theirs, &size);
    const auto back = CFPropertyListCreateFromXMLData(
        QByteArray::fromRawData(theirs.get(), static_cast<qsizetype>(size)),
        u"written by libplist"_s);
    const auto own = CFPropertyListCreateFromXMLData(sample.xml, u"written by us"_s);
    if (!back || !own)
        return false;
    const auto entries = [](const QVariant &value) { return dictionary(value)->size(); };
    return entries(back.value()) == entries(sample.ours)
        && entries(own.value()) == entries(sample.ours);
}

bool makeSamples(const QString &folder)
{
    if (!make(ticket, longTicket()) || !make(store, watermarkStore()))
        return false;
    storePath = folder + u"/ours.plist"_s;
    theirPath = QFile::encodeName(folder + u"/theirs.plist"_s);
    return replaceFile(storePath, store.xml)
        && replaceFile(QFile::decodeName(theirPath), store.xml);
}

// The disk is waited for only where both sides wait for it.
std::vector<bench::Comparison> comparisons()
{
    const auto once = [](std::string name, std::function<void(benchmark::State &)> measure) {
        return bench::function(std::move(name), std::move(measure), 1);
    };
    const auto save = [&once] { return once("saving one record of it", saveOneOurs); };
    using enum bench::Figure;
    return {
        {once("reading a user's store in memory", [](auto &state) { readOurs(state, store); }),
         once("libplist, same bytes", [](auto &state) { readTheirs(state, store); }),
         {{Processor, 1.0}}},
        {once("writing it in memory", [](auto &state) { writeOurs(state, store); }),
         once("libplist, same list", [](auto &state) { writeTheirs(state, store); }),
         {{Processor, 1.0}}},
        {save(),
         once("libplist: read, parse, change, write",
              [](auto &state) { saveOneTheirs(state, Durable::No); }),
         {{Processor, 1.0}, {Elapsed}}},
        {save(),
         once("libplist, as durably", [](auto &state) { saveOneTheirs(state, Durable::Yes); }),
         {{Elapsed, 1.0}}},
        {once("reading the longest ticket", [](auto &state) { readOurs(state, ticket); }),
         once("libplist, same bytes", [](auto &state) { readTheirs(state, ticket); }),
         {{Processor}}},
        {once("writing it", [](auto &state) { writeOurs(state, ticket); }),
         once("libplist, same list", [](auto &state) { writeTheirs(state, ticket); }),
         {{Processor}}},
    };
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // libplist reads reals by it
    const auto options = bench::optionsFrom(argc, argv);
    if (!options)
        return 2;
    const QTemporaryDir folder;
    if (!folder.isValid() || !makeSamples(folder.path())) {
        std::fputs("bench_property_lists: the samples cannot be made\n", stderr);
        return 2;
    }
    return bench::compare(comparisons(), *options);
}
