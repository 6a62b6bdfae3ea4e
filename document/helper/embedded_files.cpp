#include "kept_pdf.h"
#include "pdf_file.h"
#include "tasks.h"
#include "texts.h"

#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace kelvo::documents {

namespace {

using Code = Error::Code;
using Handle = QPDFObjectHandle;

// Where the entry of an embedded file has its name: for all readers, and for those of
// some systems.
constexpr std::array<const char *, 5> nameKeys = {"/F", "/UF", "/DOS", "/Mac", "/Unix"};

// ---- finding

// Whether `text` is a string that a reader could take for `name`: in any encoding of
// PDF, in capitals or not, with folders before it or invisible characters in it.
bool isNamed(Handle text, const QString &name)
{
    if (!text.isString())
        return false;
    QString shown;
    for (const QChar character : QString::fromStdString(text.getUTF8Value())) {
        if (character.category() != QChar::Other_Control
            && character.category() != QChar::Other_Format) {
            shown += character;
        }
    }
    shown = shown.normalized(QString::NormalizationForm_KC);
    const auto isSeparator = [](QChar character) {
        return character == u'/' || character == u'\\' || character == u':';
    };
    const auto base = std::find_if(shown.rbegin(), shown.rend(), isSeparator).base();
    return QStringView(base, shown.end()).trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

bool isOfType(Handle dictionary, const char *key, const char *type)
{
    Handle value = dictionary.getKey(key);
    return value.isName() && value.getName() == type;
}

bool isFileSpecification(Handle object)
{
    if (!object.isDictionary())
        return false;
    return object.hasKey("/EF") || object.hasKey("/RF") || isOfType(object, "/Type", "/Filespec")
        || isOfType(object, "/Type", "/F");
}

// What every document has and nothing may take away, whatever else it says it is.
bool isBackbone(Handle dictionary)
{
    return isOfType(dictionary, "/Type", "/Catalog") || isOfType(dictionary, "/Type", "/Pages")
        || isOfType(dictionary, "/Type", "/Page");
}

bool isNamedFile(Handle object, const QString &name)
{
    return isFileSpecification(object) && !isBackbone(object)
        && std::ranges::any_of(nameKeys,
                               [&](const char *key) { return isNamed(object.getKey(key), name); });
}

// In an array, names stand before what they name: in trees of names, and in lists of
// related files, whose files are streams.
bool isNamedPair(Handle array, int index, const QString &name)
{
    if (index % 2 != 0 || index + 1 >= array.getArrayNItems()
        || !isNamed(array.getArrayItem(index), name)) {
        return false;
    }
    Handle named = array.getArrayItem(index + 1);
    return named.isStream() || isFileSpecification(named);
}

// Calls `visit` with every dictionary, array and stream of `object` itself, not of
// others that it refers to.
template <typename Visit>
void visitContainers(Handle object, const Visit &visit)
{
    if (object.isStream()) {
        visitContainers(object.getDict(), visit);
    } else if (object.isDictionary()) {
        visit(object);
        for (const std::string &key : object.getKeys()) {
            if (Handle value = object.getKey(key); !value.isIndirect())
                visitContainers(value, visit);
        }
    } else if (object.isArray()) {
        visit(object);
        for (int index = 0; index < object.getArrayNItems(); ++index) {
            if (Handle value = object.getArrayItem(index); !value.isIndirect())
                visitContainers(value, visit);
        }
    }
}

std::vector<Handle> allObjects(QPDF &pdf)
{
    std::vector<Handle> objects = pdf.getAllObjects();
    objects.push_back(pdf.getTrailer());
    return objects;
}

// ---- taking out

// Every file of one name, and the notes that stand for one.
class FilesOfName
{
public:
    FilesOfName(QPDF &pdf, const QString &name)
        : m_pdf(pdf)
        , m_name(name)
        , m_objects(allObjects(pdf))
    {
        for (const Handle &object : m_objects)
            visitContainers(object, [this](Handle container) { findIn(container); });
        if (!m_isFound)
            return; // as in nearly every document
        // Others may hold the very same bytes under another name.
        const auto doomWhere = [this](auto isMeant) {
            for (Handle &object : m_objects) {
                if (object.isIndirect() && object.isDictionary() && isMeant(object))
                    m_doomed.insert(object.getObjGen());
            }
        };
        doomWhere([this](Handle object) { return isDoomedFile(object); });
        // Notes are told by their files, and pop-ups by their notes.
        for (const char *subtype : {"/FileAttachment", "/Popup"})
            doomWhere([=, this](Handle object) { return isDoomedNote(object, subtype); });
    }

    void takeOut()
    {
        if (!m_isFound)
            return;
        for (Handle &object : m_objects)
            visitContainers(object, [this](Handle container) { clean(container); });
        for (const QPDFObjGen &stream : m_streams)
            m_pdf.replaceObject(stream, Handle::newNull());
    }

private:
    void findIn(Handle container)
    {
        if (isNamedFile(container, m_name))
            doom(container);
        if (!container.isArray())
            return;
        for (int index = 0; index < container.getArrayNItems(); index += 2) {
            if (isNamedPair(container, index, m_name))
                doom(container.getArrayItem(index + 1));
        }
    }

    void doom(Handle file)
    {
        m_isFound = true;
        if (file.isIndirect())
            m_doomed.insert(file.getObjGen());
        for (Handle &stream : streamsOf(file))
            m_streams.insert(stream.getObjGen());
    }

    // What is in a file, or in one that is only a stream; not what says it is something
    // else as well, such as a page's contents.
    static std::vector<Handle> streamsOf(Handle file)
    {
        std::vector<Handle> streams;
        const auto add = [&streams](Handle stream) {
            if (stream.isStream() && isOfType(stream.getDict(), "/Type", "/EmbeddedFile"))
                streams.push_back(stream);
        };
        add(file);
        if (Handle embedded = file.isDictionary() ? file.getKey("/EF") : Handle::newNull();
            embedded.isDictionary()) {
            for (const char *key : nameKeys)
                add(embedded.getKey(key));
        }
        return streams;
    }

    bool isDoomedFile(Handle object) const
    {
        const auto holdsDoomed = [this](Handle stream) {
            return m_streams.contains(stream.getObjGen());
        };
        return isNamedFile(object, m_name)
            || (!isBackbone(object) && std::ranges::any_of(streamsOf(object), holdsDoomed));
    }

    bool isDoomedNote(Handle note, const char *subtype) const
    {
        if (!isOfType(note, "/Subtype", subtype))
            return false;
        return isDoomed(note.getKey("/FS")) || isDoomed(note.getKey("/Parent"));
    }

    bool isDoomed(Handle object) const
    {
        if (object.isIndirect())
            return m_doomed.contains(object.getObjGen());
        return object.isDictionary()
            && (isDoomedFile(object) || isDoomedNote(object, "/FileAttachment"));
    }

    void clean(Handle container)
    {
        if (container.isDictionary()) {
            for (const std::string &key : container.getKeys()) {
                if (isDoomed(container.getKey(key)))
                    container.removeKey(key);
            }
            return;
        }
        std::vector<Handle> kept;
        std::vector<Handle> items = container.getArrayAsVector();
        for (std::size_t index = 0; index < items.size(); ++index) {
            const bool hasNext = index + 1 < items.size();
            if (isNamedPair(container, static_cast<int>(index), m_name)
                || (index % 2 == 0 && hasNext && items[index].isString()
                    && isDoomed(items[index + 1]))) {
                ++index; // the name and what it names
            } else if (!isDoomed(items[index])) {
                kept.push_back(items[index]);
            }
        }
        if (kept.size() < items.size())
            container.setArrayFromVector(kept);
    }

    QPDF &m_pdf;
    QString m_name;
    std::vector<Handle> m_objects;
    bool m_isFound = false;         // anything of that name
    std::set<QPDFObjGen> m_doomed;  // files and notes
    std::set<QPDFObjGen> m_streams; // what is in the files
};

// ---- the document's list of files

struct ListedFile
{
    std::string key;
    Handle file;
};

// The files of the tree below `root`, whether or not it is sorted, and where its nodes
// go round in circles.
std::vector<ListedFile> listedFiles(Handle root)
{
    std::vector<ListedFile> files;
    std::set<QPDFObjGen> seen;
    std::vector<Handle> nodes = {root};
    while (!nodes.empty()) {
        Handle node = nodes.back();
        nodes.pop_back();
        if (!node.isDictionary() || (node.isIndirect() && !seen.insert(node.getObjGen()).second))
            continue;
        if (Handle names = node.getKey("/Names"); names.isArray()) {
            for (int index = 0; index + 1 < names.getArrayNItems(); index += 2) {
                Handle key = names.getArrayItem(index);
                Handle file = names.getArrayItem(index + 1);
                if (key.isString() && file.isDictionary())
                    files.push_back({key.getStringValue(), file});
            }
        }
        if (Handle kids = node.getKey("/Kids"); kids.isArray()) {
            for (Handle &kid : kids.getArrayAsVector())
                nodes.push_back(kid);
        }
    }
    return files;
}

// Writes the list anew, sorted as readers search it; of several files with one key
// all are kept.
void setListedFiles(QPDF &pdf, std::vector<ListedFile> files)
{
    std::ranges::stable_sort(files, {}, &ListedFile::key);
    std::vector<Handle> names;
    std::string before;
    for (std::size_t index = 0; index < files.size(); ++index) {
        std::string key = files[index].key;
        if (index > 0 && key <= before)
            key = before + '_';
        names.push_back(Handle::newString(key));
        names.push_back(files[index].file);
        before = key;
    }
    Handle catalog = pdf.getRoot();
    if (!catalog.getKey("/Names").isDictionary()) {
        if (names.empty())
            return;
        catalog.replaceKey("/Names", pdf.makeIndirectObject(Handle::newDictionary()));
    }
    Handle trees = catalog.getKey("/Names");
    if (names.empty()) {
        trees.removeKey("/EmbeddedFiles");
        return;
    }
    Handle tree = Handle::newDictionary();
    tree.replaceKey("/Names", Handle::newArray(names));
    trees.replaceKey("/EmbeddedFiles", pdf.makeIndirectObject(tree));
}

// ---- looking again

// The letters of a string as they stand in the file: without the zeros of UTF-16, byte
// order marks and whatever else is no plain character, and without folders.
std::string plainBaseName(Handle text)
{
    std::string plain;
    for (const char byte : text.getStringValue()) {
        if (byte == '/' || byte == '\\' || byte == ':')
            plain.clear();
        else if (byte > ' ' && byte < '\x7f')
            plain += static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
    }
    return plain;
}

// What has a file inside and calls itself `name`, in any of its entries.
bool callsItself(Handle dictionary, const std::string &name)
{
    if (!dictionary.isDictionary() || !dictionary.hasKey("/EF"))
        return false;
    return std::ranges::any_of(dictionary.getKeys(), [&](const std::string &key) {
        Handle value = dictionary.getKey(key);
        return key != "/Desc" && value.isString() && plainBaseName(value) == name;
    });
}

Error leftBehind(const QString &path, const QString &name)
{
    return Error{Code::Refused, path,
                 translate("Document",
                           "the document holds an older file %1 that could not be taken out; "
                           "save it as a new PDF without attached files, and print that")
                     .arg(name)};
}

} // namespace

void takeEmbeddedFileOut(QPDF &pdf, const QString &name)
{
    FilesOfName(pdf, name).takeOut();
}

void embedFile(QPDF &pdf, const EmbeddedFile &embedded)
{
    std::vector<ListedFile> listed =
        listedFiles(pdf.getRoot().getKey("/Names").isDictionary()
                        ? pdf.getRoot().getKey("/Names").getKey("/EmbeddedFiles")
                        : Handle::newNull());
    if (!embedded.bytes.isNull()) {
        const std::string key = embedded.name.toStdString();
        auto stream = QPDFEFStreamObjectHelper::createEFStream(pdf, embedded.bytes.toStdString());
        stream.setSubtype(embedded.mimeType.toStdString());
        auto file = QPDFFileSpecObjectHelper::createFileSpec(pdf, key, stream);
        listed.push_back({key, file.getObjectHandle()});
    }
    setListedFiles(pdf, std::move(listed));
}

Result<void> checkEmbeddedFile(const QString &pdfPath, const QString &name, const QByteArray &bytes)
{
    return guarded(pdfPath, [&]() -> Result<void> {
        const auto files = openPdfFiles(pdfPath);
        if (!files)
            return files.error();
        QPDF pdf;
        load(pdf, files.value().source);
        const std::string plain = name.toLower().toStdString();
        std::vector<Handle> found;
        int keys = 0; // of that name
        for (const Handle &object : allObjects(pdf)) {
            visitContainers(object, [&](Handle container) {
                if (callsItself(container, plain))
                    found.push_back(container);
                if (!container.isArray())
                    return;
                for (int index = 0; index + 1 < container.getArrayNItems(); ++index) {
                    Handle named = container.getArrayItem(index + 1);
                    keys += container.getArrayItem(index).isString()
                        && plainBaseName(container.getArrayItem(index)) == plain
                        && (named.isStream() || named.isDictionary());
                }
            });
        }
        const int expected = bytes.isNull() ? 0 : 1;
        if (std::ssize(found) != expected || keys != expected)
            return leftBehind(pdfPath, name);
        if (expected == 0)
            return {};
        const auto written = found.front().getKey("/EF").getKey("/F").getStreamData();
        const QByteArrayView content(written->getBuffer(),
                                     static_cast<qsizetype>(written->getSize()));
        return content == bytes ? Result<void>() : Result<void>(leftBehind(pdfPath, name));
    });
}

} // namespace kelvo::documents
