#include "file_names.h"
#include "file_store.h"
#include "property_list.h"
#include "size_limits.h"
#include "table.h"
#include "values.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

using namespace kelvo;
using namespace Qt::StringLiterals;
using Code = Error::Code;

class TestFileStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsRegularFilesUpToTheLimit();
    void writesPrivateFilesInPrivateFolders();
    void keepsTheOldFileOnAFullDisk();
    void copiesFiles();
    void keepsTheOldFileInAnUnwritableFolder();
    void refusesTargetsThatAreNoFiles();
    void losesNothingWhenProcessesWriteAtOnce();
    void waitsForALockOnlyForAWhile();
    void refusesLocksThatAreNoFiles_data();
    void refusesLocksThatAreNoFiles();
    void treatsDamagedStoresAsAsked_data();
    void treatsDamagedStoresAsAsked();
    void writesNothingWithoutAChange();
    void keepsTheStoreWhenTheChangeCannotBeWritten();
    void removesFiles();
    void clearsUpOnlyAfterTheDead_data();
    void clearsUpOnlyAfterTheDead();
    void neverClearsUpWhatIsBeingMade();
    void keepsTheBytesOfNames_data();
    void keepsTheBytesOfNames();
    void makesNamesSafe_data();
    void makesNamesSafe();
    void keepsSafeNamesApart();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QString store() const { return path("store.plist"); }
    // What lies in the folder, lock files left out.
    QStringList files() const
    {
        QStringList names =
            QDir(m_folder->path())
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        names.removeIf([](const QString &name) { return name.endsWith(QLatin1String(".lock")); });
        return names;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

static const QVariantMap oldContent{{u"n"_s, qint64(1)}};
static const QVariantMap newContent{{u"n"_s, qint64(2)}};

static QVariantMap contentOf(const QString &path)
{
    const auto list = readPropertyList(path);
    return list ? list.value().toMap() : QVariantMap();
}

static QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

static void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

static auto setTo(const QVariantMap &content)
{
    return [content](QVariantMap &dictionary) {
        dictionary = content;
        return true;
    };
}

void TestFileStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestFileStore::readsRegularFilesUpToTheLimit()
{
    put(path("ten"), "0123456789");
    put(path("empty"), "");
    QVERIFY(::mkfifo(qPrintable(path("fifo")), 0600) == 0);

    const auto atLimit = readFile(path("ten"), 10);
    QVERIFY(atLimit);
    QCOMPARE(atLimit.value(), QByteArray("0123456789"));
    QCOMPARE(readFile(path("ten"), 9).error().code, Code::TooLarge);
    QVERIFY(readFile(path("empty"), 0));
    QCOMPARE(readFile(path("none"), 9).error().code, Code::NotFound);
    QCOMPARE(readFile(path("ten/none"), 9).error().code, Code::NotFound);
    QCOMPARE(readFile(path("fifo"), 9).error().code, Code::NotReadable);
    QCOMPARE(readFile(m_folder->path(), 9).error().code, Code::NotReadable);
    QCOMPARE(readFile(QString(), 9).error().code, Code::NotFound);
    QCOMPARE(readFile(path("ten") + QChar(0), 99).error().code, Code::NotFound);
    // Files of /proc claim to be empty.
    const auto status = readFile(u"/proc/self/status"_s, limits::MiB);
    QVERIFY(status && status.value().contains("VmPeak"));
    QCOMPARE(readFile(u"/proc/self/status"_s, 10).error().code, Code::TooLarge);
}

void TestFileStore::writesPrivateFilesInPrivateFolders()
{
    const QString file = path("a/b/store.plist");
    QVERIFY(changeDictionaryFile(file, DamagedStore::Keep, setTo(oldContent)));
    QCOMPARE(contentOf(file), oldContent);
    for (const auto &[name, mode] : {std::pair{"a", 0700U},
                                     {"a/b", 0700U},
                                     {"a/b/store.plist", 0600U},
                                     {"a/b/.store.plist.lock", 0600U}}) {
        struct stat status;
        QVERIFY2(::stat(qPrintable(path(name)), &status) == 0, name);
        QCOMPARE(status.st_mode & 0777U, mode);
    }
}

// A limit on file sizes fails like a full disk: first a short write, then an error.
void TestFileStore::keepsTheOldFileOnAFullDisk()
{
    QVERIFY(changeDictionaryFile(store(), DamagedStore::SetAside, setTo(oldContent)));
    QTemporaryDir elsewhere;
    const QString source = elsewhere.filePath(QStringLiteral("source"));
    put(source, QByteArray(700'000, 'x'));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    QVERIFY(::getrlimit(RLIMIT_FSIZE, &before) == 0);
    for (const rlim_t room : {0U, 100U, 65'536U}) {
        rlimit small = before;
        small.rlim_cur = room;
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &small) == 0);
        const auto replaced = replaceFile(store(), QByteArray(100'000, 'x'));
        const auto copied = StagedFile::withCopy(store(), source);
        QVERIFY(::setrlimit(RLIMIT_FSIZE, &before) == 0);
        QVERIFY(!replaced && !copied);
        for (const auto &error : {replaced.error(), copied.error()}) {
            QCOMPARE(error.code, Code::NotWritable);
            QCOMPARE(error.where, store());
            QVERIFY(error.number == EFBIG);
        }
        QCOMPARE(contentOf(store()), oldContent);
        QCOMPARE(files(), QStringList{u"store.plist"_s});
    }
}

void TestFileStore::copiesFiles()
{
    const QByteArray bytes = QByteArray(300'000, 'x') + "end"; // more than one block
    put(path("source"), bytes);
    put(store(), "old");
    QVERIFY(StagedFile::withCopy(store(), path("source"))); // and let go
    QCOMPARE(readFile(store(), limits::MiB).value(), "old");
    QVERIFY(StagedFile::withCopy(store(), path("source")).value().place());
    QCOMPARE(readFile(store(), limits::MiB).value(), bytes);
    QVERIFY(QFile::setPermissions(path("source"), {}));
    QCOMPARE(StagedFile::withCopy(store(), path("source")).error().code, Code::NotReadable);
    QCOMPARE(StagedFile::withCopy(store(), path("nothing")).error().code, Code::NotFound);
    QCOMPARE(readFile(store(), limits::MiB).value(), bytes);
}

void TestFileStore::keepsTheOldFileInAnUnwritableFolder()
{
    QVERIFY(changeDictionaryFile(store(), DamagedStore::SetAside, setTo(oldContent)));
    const auto lockIt = [this](mode_t mode) {
        return ::chmod(qPrintable(m_folder->path()), mode) == 0;
    };
    QVERIFY(lockIt(0500));
    const auto replaced = replaceFile(store(), "new");
    const auto changed = changeDictionaryFile(store(), DamagedStore::Keep, setTo(newContent));
    const auto created =
        changeDictionaryFile(path("new/store.plist"), DamagedStore::SetAside, setTo(newContent));
    const auto removed = removeFile(store());
    QVERIFY(lockIt(0700));
    for (const auto &result : {replaced, changed, created, removed}) {
        QVERIFY(!result);
        QCOMPARE(result.error().code, Code::NotWritable);
    }
    QCOMPARE(contentOf(store()), oldContent);
}

void TestFileStore::refusesTargetsThatAreNoFiles()
{
    QVERIFY(QDir().mkdir(path("folder")));
    QVERIFY(::symlink("/dev/null", qPrintable(path("null"))) == 0);
    for (const char *name : {"folder", "null"}) {
        const auto replaced = replaceFile(path(name), "bytes");
        QVERIFY2(!replaced, name);
        QCOMPARE(replaced.error().code, Code::NotWritable);
    }
    QCOMPARE(files(), (QStringList{u"folder"_s, u"null"_s}));
}

void TestFileStore::losesNothingWhenProcessesWriteAtOnce()
{
    constexpr int processes = 4, rounds = 50;
    QList<pid_t> children;
    for (int child = 0; child < processes; ++child) {
        const pid_t pid = ::fork();
        QVERIFY(pid >= 0);
        if (pid == 0) {
            bool good = true;
            for (int round = 0; round < rounds; ++round) {
                const auto changed =
                    changeDictionaryFile(store(), DamagedStore::Keep, [](QVariantMap &dictionary) {
                        const QString key = u"n"_s;
                        dictionary.insert(key, integer32(dictionary, key).value_or(0) + 1);
                        return true;
                    });
                good = good && changed;
            }
            ::_exit(good ? 0 : 1);
        }
        children << pid;
    }
    for (const pid_t pid : children) {
        int status = 0;
        QCOMPARE(::waitpid(pid, &status, 0), pid);
        QCOMPARE(status, 0);
    }
    QCOMPARE(integer32(contentOf(store()), u"n"_s), std::optional(processes * rounds));
    QCOMPARE(files(), QStringList{u"store.plist"_s});
}

void TestFileStore::waitsForALockOnlyForAWhile()
{
    QVERIFY(changeDictionaryFile(store(), DamagedStore::SetAside, setTo(oldContent)));
    const int lock = ::open(qPrintable(path(".store.plist.lock")), O_RDWR);
    QVERIFY(lock >= 0 && ::flock(lock, LOCK_EX) == 0);
    QElapsedTimer timer;
    timer.start();
    const auto changed = changeDictionaryFile(store(), DamagedStore::Keep, setTo(newContent));
    QVERIFY(timer.elapsed() >= limits::fileLockWaitMs);
    QVERIFY(!changed);
    QCOMPARE(changed.error().code, Code::TimedOut);
    QCOMPARE(contentOf(store()), oldContent);
    ::close(lock);
    QVERIFY(changeDictionaryFile(store(), DamagedStore::Keep, setTo(newContent)));
    QCOMPARE(contentOf(store()), newContent);
}

void TestFileStore::refusesLocksThatAreNoFiles_data()
{
    const Table<bool> row{"isLink"};
    row("symbolic link", true);
    row("FIFO", false);
}

void TestFileStore::refusesLocksThatAreNoFiles()
{
    QFETCH(bool, isLink);
    const QByteArray lock = QFile::encodeName(path(".store.plist.lock"));
    const QByteArray victim = QFile::encodeName(path("victim"));
    QVERIFY((isLink ? ::symlink(victim.constData(), lock.constData())
                    : ::mkfifo(lock.constData(), 0600))
            == 0);
    const auto changed = changeDictionaryFile(store(), DamagedStore::SetAside, setTo(newContent));
    QVERIFY(!changed);
    QCOMPARE(changed.error().code, Code::Refused);
    QVERIFY(!QFile::exists(store()) && !QFile::exists(path("victim")));
}

void TestFileStore::treatsDamagedStoresAsAsked_data()
{
    const Table<QByteArray, int, DamagedStore, std::optional<Code>> row{"bytes", "mode", "damaged",
                                                                        "code"};
    using Answer = std::optional<Code>;
    const QByteArray list = "<plist><array/></plist>";
    row("damaged, creating", "x", 0600, DamagedStore::SetAside, Answer());
    row("no dictionary, creating", list, 0600, DamagedStore::SetAside, Answer());
    row("damaged, changing", "x", 0600, DamagedStore::Keep, Answer(Code::Damaged));
    row("no dictionary, changing", list, 0600, DamagedStore::Keep, Answer(Code::WrongType));
    row("unreadable, creating", list, 0, DamagedStore::SetAside, Answer(Code::NotReadable));
    const QByteArray deep = "<plist>" + QByteArray("<array>").repeated(limits::plistDepth + 1)
        + QByteArray("</array>").repeated(limits::plistDepth + 1) + "</plist>";
    row("too deep, creating", deep, 0600, DamagedStore::SetAside, Answer());
    row("too deep, changing", deep, 0600, DamagedStore::Keep, Answer(Code::TooLarge));
    row("too large, creating", QByteArray(limits::plistBytes + 1, ' '), 0600,
        DamagedStore::SetAside, Answer());
}

void TestFileStore::treatsDamagedStoresAsAsked()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, mode);
    QFETCH(DamagedStore, damaged);
    QFETCH(std::optional<Code>, code);
    put(path("store.plist.damaged-1"), "an older one");
    put(store(), bytes);
    QVERIFY(::chmod(qPrintable(store()), mode_t(mode)) == 0);

    bool wasEmpty = false;
    const auto changed = changeDictionaryFile(store(), damaged, [&](QVariantMap &dictionary) {
        wasEmpty = dictionary.isEmpty();
        dictionary = newContent;
        return true;
    });

    QVERIFY(::chmod(qPrintable(store()), 0600) == 0);
    QCOMPARE(bool(changed), !code);
    QCOMPARE(bytesOf(path("store.plist.damaged-1")), QByteArray("an older one"));
    if (code) {
        QCOMPARE(changed.error().code, *code);
        QVERIFY(bytesOf(store()) == bytes);
        QCOMPARE(files().size(), 2);
    } else {
        QVERIFY(wasEmpty);
        QCOMPARE(contentOf(store()), newContent);
        QCOMPARE(bytesOf(path("store.plist.damaged-2")), bytes);
    }
}

void TestFileStore::writesNothingWithoutAChange()
{
    put(store(), "damaged");
    QVERIFY(
        changeDictionaryFile(store(), DamagedStore::SetAside, [](QVariantMap &) { return false; }));
    QCOMPARE(bytesOf(store()), QByteArray("damaged"));
    QCOMPARE(files(), QStringList{u"store.plist"_s});
}

void TestFileStore::keepsTheStoreWhenTheChangeCannotBeWritten()
{
    put(store(), "damaged");
    const auto changed =
        changeDictionaryFile(store(), DamagedStore::SetAside, [](QVariantMap &dictionary) {
            dictionary.insert(u"a"_s, QVariantList{QString(QChar(1))});
            return true;
        });
    QVERIFY(!changed);
    QCOMPARE(changed.error().where, store() + u": a/0"_s);
    QCOMPARE(bytesOf(store()), QByteArray("damaged"));
}

void TestFileStore::removesFiles()
{
    QVERIFY(changeDictionaryFile(store(), DamagedStore::SetAside, setTo(oldContent)));
    QVERIFY(removeFile(store()));
    QVERIFY(files().isEmpty());
    QCOMPARE(removeFile(store()).error().code, Code::NotFound);
    QCOMPARE(removeFile(path("none/store.plist")).error().code, Code::NotFound);
    QVERIFY(!QFile::exists(path("none")));
}

void TestFileStore::clearsUpOnlyAfterTheDead_data()
{
    const Table<QString, int, bool, bool> row{"name", "rights", "isFolder", "isTaken"};
    const QString dead = u"left-0123456789abcdef"_s;
    row("a folder that somebody has left", dead, 0700, true, true);
    row("a file that somebody has left", dead, 0600, false, true);
    row("a folder that others may enter", dead, 0755, true, false);
    row("a file that others may read", dead, 0644, false, false);
    row("a word of so many letters", u"left-0123456789abcdeg"_s, 0700, true, false);
    row("a name that goes on", dead + u"0"_s, 0700, true, false);
    row("a name that is shorter", dead.chopped(1), 0600, false, false);
    row("another beginning", u"Left-0123456789abcdef"_s, 0600, false, false);
}

void TestFileStore::clearsUpOnlyAfterTheDead()
{
    QFETCH(QString, name);
    QFETCH(int, rights);
    QFETCH(bool, isFolder);
    QFETCH(bool, isTaken);
    const auto kind = isFolder ? LeftoverKind::Folder : LeftoverKind::File;
    const QByteArray left = QFile::encodeName(m_folder->filePath(name));
    if (isFolder) {
        QVERIFY(QDir().mkpath(m_folder->filePath(name) + u"/deep/er"_s));
        // A link leads out of the folder: it goes, and what it leads to stays.
        QVERIFY(QFile::link(m_folder->path(), m_folder->filePath(name) + u"/deep/out"_s));
    } else {
        QVERIFY(replaceFile(m_folder->filePath(name), "x"));
    }
    QCOMPARE(::chmod(left.constData(), static_cast<mode_t>(rights)), 0);
    QVERIFY(QFile::link(u"elsewhere"_s, path("left-ffffffffffffffff")));
    QVERIFY(replaceFile(path("elsewhere"), "x"));

    // Nor what is of the other kind, or what somebody holds.
    constexpr QLatin1String prefix("left-");
    removeLeftovers(m_folder->path(), prefix, isFolder ? LeftoverKind::File : LeftoverKind::Folder);
    QCOMPARE(::access(left.constData(), F_OK), 0);
    {
        const auto held = HeldPath::make(m_folder->path(), prefix, kind);
        QVERIFY(held);
        removeLeftovers(m_folder->path(), prefix, kind);
        QCOMPARE(::access(held.value().path().constData(), F_OK), 0);
        QCOMPARE(::access(left.constData(), F_OK) == 0, !isTaken);
    }
    removeLeftovers(m_folder->path(), prefix, kind);
    QStringList stay{u"elsewhere"_s, u"left-ffffffffffffffff"_s};
    if (!isTaken)
        stay << name;
    stay.sort();
    QStringList there = files();
    there.sort();
    QCOMPARE(there, stay);
}

void TestFileStore::neverClearsUpWhatIsBeingMade()
{
    constexpr QLatin1String prefix("left-");
    std::atomic_bool isOver = false;
    std::vector<std::jthread> cleaners;
    for (const auto kind : {LeftoverKind::File, LeftoverKind::Folder}) {
        cleaners.emplace_back([&, kind] {
            while (!isOver) {
                removeLeftovers(m_folder->path(), prefix, kind);
                removeLeftovers(m_folder->path(), kStagedFilePrefix, kind);
            }
        });
    }
    int lost = 0;
    for (int i = 0; i < 2000; ++i) {
        for (const auto kind : {LeftoverKind::File, LeftoverKind::Folder}) {
            const auto held = HeldPath::make(m_folder->path(), prefix, kind);
            if (!held || ::access(held.value().path().constData(), F_OK) != 0)
                ++lost;
        }
    }
    for (int i = 0; i < 100; ++i)
        lost += replaceFile(store(), QByteArray::number(i)) ? 0 : 1;
    isOver = true;
    cleaners.clear();
    QCOMPARE(lost, 0);
    QCOMPARE(readFile(store(), 10).value(), "99");
}

void TestFileStore::keepsTheBytesOfNames_data()
{
    const Table<QByteArray, QString> row{"bytes", "name"};
    row("UTF-8", "Grüße 😀"_ba, u"Grüße 😀"_s);
    row("Latin-1", "Gr\xfc\xdf"_ba, u"Gr"_s + QChar(0xDCFC) + QChar(0xDCDF));
    row("both", "\xffä\x80"_ba, QString(QChar(0xDCFF)) + u'ä' + QChar(0xDC80));
    row("cut character", "a\xf0\x9f\x98"_ba,
        u"a"_s + QChar(0xDCF0) + QChar(0xDC9F) + QChar(0xDC98));
    row("surrogate as UTF-8", "\xed\xb3\xbc"_ba,
        QString(QChar(0xDCED)) + QChar(0xDCB3) + QChar(0xDCBC));
    row("overlong", "\xc0\xaf"_ba, QString(QChar(0xDCC0)) + QChar(0xDCAF));
    row("byte order mark",
        "\xef\xbb\xbf"
        "a"_ba,
        u"\ufeffa"_s);
}

void TestFileStore::keepsTheBytesOfNames()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QCOMPARE(fileNameFrom(bytes), name);
    QCOMPARE(fileNameBytes(name), bytes);

    QVERIFY(replaceFile(m_folder->filePath(name), bytes));
    QCOMPARE(readFile(m_folder->filePath(name), 20).value(), bytes);
    const QByteArray folder = m_folder->path().toUtf8();
    QCOMPARE(::access((folder + '/' + bytes).constData(), R_OK), 0);
}

void TestFileStore::makesNamesSafe_data()
{
    const Table<QString, QString> row{"name", "safe"};
    row("plain", "Hall 3, Größe", "Hall 3, Größe");
    row("slash", "a/b", "a%2Fb");
    row("parent folder", "..", "%2E.");
    row("hidden", ".a.b", "%2Ea.b");
    row("percent", "a%2Fb", "a%252Fb");
    row("empty", "", "%-");
    row("control characters", u"a\n\x7F\u0085"_s, "a%0A%7F%C2%85");
    row("right to left", u"a\u202Eb"_s, "a%E2%80%AEb");
    row("half a pair", QString(QChar(0xD800)), "%uD800");
    row("200 bytes", QString(100, u'ä'), QString(100, u'ä'));
}

void TestFileStore::makesNamesSafe()
{
    QFETCH(QString, name);
    QTEST(safeFileName(name), "safe");
}

void TestFileStore::keepsSafeNamesApart()
{
    const QString one = safeFileName(QString(201, u'a'));
    const QString other = safeFileName(QString(202, u'a'));
    const QString wide = safeFileName(QString::fromUcs4(U"\U0001F5A8").repeated(60));
    const QString encoded = safeFileName(QString(100, u'/'));
    QVERIFY(one != other);
    for (const QString &name : {one, other, wide, encoded}) {
        QVERIFY(name.toUtf8().size() <= 200);
        QVERIFY(!name.contains(QChar::ReplacementCharacter) && !name.contains(u'/'));
    }
}

QTEST_GUILESS_MAIN(TestFileStore)
#include "test_file_store.moc"
