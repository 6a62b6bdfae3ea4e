#include "watermark_store.h"

#include "preferences.h"
#include "terminal.h"
#include "texts.h"
#include "ticket_values.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cstdio>
#include <mutex>

namespace kelvo {

namespace {

using Code = Error::Code;

// ---- reading

// What a file held, but for the bytes of its fonts.
struct Content
{
    FileStamp stamp;
    bool isThere = false;             // and is a store
    std::optional<QStringList> names; // the list
    QHash<QString, QVariant> records; // a dictionary, or what stands there in its place
    QHash<QString, qint64> fontSizes;
};

std::optional<QStringList> listIn(const Dictionary &store)
{
    const std::optional<Array> entries = array(store, kWatermarkListKey);
    if (!entries)
        return std::nullopt;
    QStringList names;
    for (const QVariant &entry : *entries) {
        if (const std::optional<QString> name = string(entry))
            names << *name;
    }
    return names;
}

Content readContent(const QString &fileName, const FileStamp &stamp)
{
    Content content{.stamp = stamp};
    const std::optional<QVariant> list = CopyXMLData(fileName);
    const std::optional<Dictionary> store = list ? dictionary(*list) : std::nullopt;
    if (!store)
        return content;
    content.isThere = true;
    content.names = listIn(*store);
    for (auto entry = store->cbegin(); entry != store->cend(); ++entry) {
        if (const auto font = data(entry.value()))
            content.fontSizes.insert(entry.key(), font->size());
        else if (entry.key() != kWatermarkListKey)
            content.records.insert(entry.key(), entry.value());
    }
    return content;
}

// A store with fonts is many megabytes, and is asked with every write of a ticket.
Content contentOf(const QString &fileName)
{
    static std::mutex mutex;
    static QHash<QString, Content> known;
    const StampedFile file = watermarkStore(fileName);
    if (file.stamp == FileStamp())
        return {};
    const std::lock_guard lock(mutex);
    auto content = known.find(file.path);
    if (content == known.end() || content->stamp != file.stamp)
        content = known.insert(file.path, readContent(fileName, file.stamp));
    return *content;
}

// ---- writing

Result<void> said(const Result<void> &changed)
{
    if (!changed)
        printLine(stderr, changed.error().text());
    return changed;
}

enum class Begin { Yes, No };

// `change` as for changeDictionaryFile().
Result<void> changeStore(const QString &fileName, Begin begin,
                         const std::function<bool(Dictionary &)> &change)
{
    const std::optional<QString> path = CopyPreferenceFileURL(fileName);
    if (!path) {
        return said(Error{Code::NotWritable, fileName,
                          translate("Files",
                                    "there is no folder for it; make ~/.local/share a "
                                    "folder that you can write to")});
    }
    if (begin == Begin::Yes)
        return said(changeDictionaryFile(*path, DamagedStore::SetAside, change));
    if (!QFileInfo::exists(*path)) // nor is a lock left for it
        return Error{Code::NotFound, *path, {}};
    return said(changeDictionaryFile(*path, DamagedStore::Keep, [&](Dictionary &store) {
        return QFileInfo::exists(*path) && change(store);
    }));
}

bool canBeName(const QString &name)
{
    return !name.isEmpty() && name != kWatermarkListKey;
}

bool putRecord(Dictionary &store, const _WatermarkData &watermark)
{
    const QString name = watermarkName(watermark);
    if (!canBeName(name))
        return false;
    store.insert(name, asDictionary(watermark));
    return true;
}

void putList(Dictionary &store, const QStringList &names)
{
    store.insert(kWatermarkListKey, Array(names.cbegin(), names.cend()));
}

// Changes the list that is stored, and what goes with it. False leaves all as it is.
using ListChange = std::function<bool(Dictionary &store, QStringList &names)>;
Result<QStringList> changeList(const QString &fileName, const ListChange &change)
{
    QStringList names;
    const Result<void> written = changeStore(fileName, Begin::Yes, [&](Dictionary &store) {
        names = listIn(store).value_or(QStringList());
        QStringList changed = names;
        if (!change(store, changed))
            return false;
        putList(store, changed);
        names = changed;
        return true;
    });
    if (!written)
        return written.error();
    return names;
}

// In place of one that a ticket could take for it.
void insertOnce(Dictionary &store, QStringList &names, qsizetype at, const QString &name)
{
    const auto same = std::ranges::find_if(names, [&name](const QString &other) {
        return other.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (same == names.end()) {
        names.insert(at, name);
        return;
    }
    if (*same != name)
        store.remove(*same);
    *same = name;
}

} // namespace

StampedFile watermarkStore(const QString &fileName)
{
    const QString path = CopyPreferenceFileURL(fileName).value_or(QString());
    return {path, stampOf(path)};
}

void saveWatermarkData(const QString &fileName, const _WatermarkData &watermark)
{
    (void)changeStore(fileName, Begin::Yes,
                      [&](Dictionary &store) { return putRecord(store, watermark); });
}

bool loadWatermarkData(const QString &fileName, const QString &name, _WatermarkData *watermark)
{
    if (!watermark)
        return false;
    const Content content = contentOf(fileName);
    const auto record = content.records.constFind(name);
    if (record == content.records.cend() || record->isNull()) {
        *watermark = {};
        return false;
    }
    takeDictionary(*watermark, dictionary(*record).value_or(Dictionary()));
    return true;
}

void removeWatermarkData(const QString &fileName, const QString &name)
{
    (void)changeStore(fileName, Begin::No,
                      [&](Dictionary &store) { return store.remove(name) > 0; });
}

void saveWatermarkList(const QString &fileName, const QStringList *names)
{
    if (fileName.isNull() || !names)
        return;
    (void)changeStore(fileName, Begin::Yes, [&](Dictionary &store) {
        putList(store, *names);
        return true;
    });
}

bool loadWatermarkList(const QString &fileName, QStringList *names,
                       const std::function<void(const QString &)> &addItem)
{
    if (fileName.isNull() || !names)
        return false;
    const Content content = contentOf(fileName);
    if (!content.isThere)
        return false;
    *names = content.names.value_or(QStringList());
    if (addItem) {
        for (const QString &name : *names)
            addItem(name);
    }
    return content.names.has_value();
}

void storeFontData(const QString &fileName, const QString &fontName, const QByteArray &data)
{
    (void)changeStore(fileName, Begin::No, [&](Dictionary &store) {
        const bool isFree = !store.contains(fontName) || kelvo::data(store.value(fontName));
        if (isFree)
            store.insert(fontName, data);
        return isFree;
    });
}

void loadFontData(const QString &fileName, const QString &fontName, QByteArray *data)
{
    const std::optional<QVariant> list = data ? CopyXMLData(fileName) : std::nullopt;
    const std::optional<Dictionary> store = list ? dictionary(*list) : std::nullopt;
    const auto font = store ? kelvo::data(store->value(fontName)) : std::nullopt;
    if (font)
        data->append(*font);
}

std::optional<qint64> storedFontSize(const QString &fileName, const QString &fontName)
{
    const Content content = contentOf(fileName);
    const auto size = content.fontSizes.constFind(fontName);
    return size == content.fontSizes.cend() ? std::nullopt : std::optional(*size);
}

OSStatus CreateDefaultWatermarks(CFBundleRef bundle)
{
    // The origins on US Letter, so that a preview can be drawn before one was.
    struct Row
    {
        const char *key;
        double xPos, yPos;
    };
    constexpr Row rows[] = {
        {"DraftWatermark", 280.627441, 311.049927},
        {"ConfidentialWatermark", 201.350601, 231.773102},
        {"CopyWatermark", 276.363190, 306.785675},
    };
    _WatermarkData watermark = newWatermark();
    watermark.isText = 1;
    watermark.fontColorRed = watermark.fontColorGreen = 0.75F;

    (void)changeList(kWatermarksFile, [&](Dictionary &store, QStringList &names) {
        if (listIn(store))
            return false; // another dialog was faster
        for (const Row &row : rows) {
            setText(watermark.textString, localizedText(bundle, QLatin1String(row.key)));
            watermark.xPos = row.xPos;
            watermark.yPos = row.yPos;
            if (putRecord(store, watermark))
                insertOnce(store, names, names.size(), watermarkName(watermark));
        }
        return true;
    });
    return noErr;
}

QStringList loadOrCreateWatermarks(CFBundleRef bundle)
{
    QStringList names;
    if (!loadWatermarkList(kWatermarksFile, &names)) {
        CreateDefaultWatermarks(bundle);
        loadWatermarkList(kWatermarksFile, &names);
    }
    return withoutEmptyFirst(names);
}

QStringList withoutEmptyFirst(QStringList names)
{
    _WatermarkData first;
    if (!names.isEmpty()) {
        loadWatermarkData(kWatermarksFile, names.first(), &first);
        if (!*first.textString && !*first.filename)
            names.removeFirst();
    }
    return names;
}

Result<QStringList> addWatermark(const QString &fileName, const _WatermarkData &watermark)
{
    return changeList(fileName, [&](Dictionary &store, QStringList &names) {
        insertOnce(store, names, names.size(), watermarkName(watermark));
        return putRecord(store, watermark);
    });
}

Result<QStringList> replaceWatermark(const QString &fileName, const QString &oldName,
                                     const _WatermarkData &watermark)
{
    return changeList(fileName, [&](Dictionary &store, QStringList &names) {
        const QString name = watermarkName(watermark);
        store.remove(oldName);
        const qsizetype at = names.indexOf(oldName);
        names.removeAll(oldName);
        insertOnce(store, names, at < 0 ? names.size() : at, name);
        return putRecord(store, watermark);
    });
}

Result<QStringList> deleteWatermark(const QString &fileName, const QString &name)
{
    return changeList(fileName, [&](Dictionary &store, QStringList &names) {
        store.remove(name);
        names.removeAll(name);
        return true;
    });
}

NameProblem problemOfName(const QString &fileName, const QString &name)
{
    if (name.trimmed().isEmpty())
        return NameProblem::Empty;
    if (name == kWatermarkListKey)
        return NameProblem::Reserved;
    return storedFontSize(fileName, name) ? NameProblem::IsFont : NameProblem::None;
}

} // namespace kelvo
