#include "booklet_creation.h"
#include "image_options_pictures.h"
#include "master_drawing.h"
#include "paper_output_pictures.h"
#include "pixel_file.h"
#include "separator_picture.h"
#include "stock_pictures.h"

#include <QDir>
#include <QDirIterator>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace kelvo;
using namespace Qt::StringLiterals;

// That every picture that is asked for is there, and every one that is there is asked for; and that
// what the build has drawn of them is what would be drawn of them now.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void arePreciselyThoseThatAreAskedFor();
    void areDrawnAsTheirMastersAre();
    void areDrawnAnewWhereThePixelsAreNotTheirs_data();
    void areDrawnAnewWhereThePixelsAreNotTheirs();
};

namespace {

const QString folder = u"" KELVO_SOURCE_DIR "/resources/pictures"_s;

// Whole names in the sources: "JobType_Fax.gif".
QStringList namesInSources()
{
    QStringList names;
    const QRegularExpression literal(uR"re("([^"%/\s]+\.(?:gif|icns|png))")re"_s);
    for (const char *area :
         {"fax", "image", "job_notes", "paper", "shell", "special_pages", "stock", "watermark"}) {
        QDirIterator files(u"" KELVO_SOURCE_DIR "/%1"_s.arg(QLatin1String(area)), {u"*.cpp"_s},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("%s: cannot be read", qPrintable(file.fileName()));
            auto found = literal.globalMatch(QString::fromUtf8(file.readAll()));
            while (found.hasNext())
                names << found.next().captured(1);
        }
    }
    return names;
}

// Those that rules put together.
QStringList composedNames()
{
    QStringList names;
    for (std::int32_t color = 0; color <= 14; ++color) {
        for (std::int32_t type = 0; type <= 41; ++type) {
            Stock stock;
            stock.setType(type);
            stock.setColor(color);
            names << stockPictures(stock);
            stock.setPunched(kStockPrePunched);
            names << stockPictures(stock);
        }
        for (const std::int32_t separators : {1, 2, 3})
            names << separatorPicture(separators, color);
    }
    for (std::int32_t step = -6; step <= 6; ++step)
        names << lightenDarkenPicture(step);
    for (const std::int32_t layout : {kBookletOn, kBookletOff}) {
        for (const std::int32_t fold : {kFoldNone, kFoldBi, kFoldBiAndStaple}) {
            for (const std::int32_t borders : {1, 2})
                names << bookletPicture(paramsOf({.layout = layout, .pageBorders = borders}, fold));
        }
    }
    for (std::int32_t punch = 1; punch <= 5; ++punch) {
        for (const Finishing &finishing :
             {Finishing{.singleStaple = kStapleSingle}, Finishing{.dualStaple = kStapleDual},
              Finishing{.otherStaple = kStapleMultiple}}) {
            PaperOutputSettings settings;
            settings.finishing = finishing;
            settings.finishing.punch = punch;
            names << finishingPicture(settings) << staplePictures(settings.finishing);
        }
    }
    return names;
}

QSet<QString> baseNames(const QStringList &names)
{
    QSet<QString> base;
    for (const QString &name : names) {
        if (!name.isEmpty())
            base << QFileInfo(name).completeBaseName();
    }
    return base;
}

} // namespace

void TestPictures::arePreciselyThoseThatAreAskedFor()
{
    const QSet<QString> asked = baseNames(namesInSources() + composedNames());
    const QSet<QString> there = baseNames(QDir(folder).entryList({u"*.svg"_s}, QDir::Files));
    QCOMPARE((asked - there).values().join(u' '), QString()); // missing
    QCOMPARE((there - asked).values().join(u' '), QString()); // of no use
    QVERIFY(there.size() > 100);
}

void TestPictures::areDrawnAsTheirMastersAre()
{
    const auto &drawing = *static_cast<const MasterDrawing *>(kelvoMasterDrawing(KELVO_VERSION));
    int drawings = 0;
    for (const QString &pictures :
         {u"lib/KelvoPDE.pde/Resources/pictures"_s, u"share/kelvo-print/icons"_s}) {
        const QString masters = u"" KELVO_BUILD_DIR "/"_s + pictures;
        const PixelFile pixels(PixelFile::pathFor(masters));
        const QFileInfoList files = QDir(masters).entryInfoList({u"*.svg"_s}, QDir::Files);
        for (const QFileInfo &file : files) {
            const auto found = pixels.find(file.filePath());
            QVERIFY2(found && !found->size.isEmpty(), qPrintable(file.filePath()));
            QCOMPARE(found->size, drawing.sizeOf(file.filePath()));
            for (const PixelMaster::Drawn &drawn : found->drawn) {
                QImage canvas(drawn.size * drawn.ratio, QImage::Format_ARGB32_Premultiplied);
                canvas.fill(Qt::transparent);
                QPainter(&canvas).drawImage(drawn.at, drawn.pixels);
                canvas.setDevicePixelRatio(drawn.ratio);
                QCOMPARE(canvas, drawing.draw({file.filePath()}, drawn.size, drawn.ratio));
                ++drawings;
            }
        }
    }
    QVERIFY(drawings > 100);
}

void TestPictures::areDrawnAnewWhereThePixelsAreNotTheirs_data()
{
    using Change = std::function<void(QFile & master, QFile & pixels)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char *name, const Change &change, bool isFound = false) {
        QTest::newRow(name) << change << isFound;
    };
    const auto patch = [](qint64 at, const QByteArray &bytes) -> Change {
        return [at, bytes](QFile &, QFile &pixels) {
            pixels.seek(at < 0 ? pixels.size() + at : at);
            pixels.write(bytes);
        };
    };
    const auto age = [](QFile &file, int seconds) {
        file.setFileTime(QDateTime::currentDateTime().addSecs(seconds),
                         QFileDevice::FileModificationTime);
    };
    row(
        "nothing", [](QFile &, QFile &) {}, true);
    row(
        "packed with the same time",
        [](QFile &master, QFile &pixels) {
            const QDateTime time = QDateTime::fromSecsSinceEpoch(1'000'000'000);
            master.setFileTime(time, QFileDevice::FileModificationTime);
            pixels.setFileTime(time, QFileDevice::FileModificationTime);
        },
        true);
    row("a later master", [age](QFile &master, QFile &) { age(master, 10); });
    row("an older master of another length", [age](QFile &master, QFile &) {
        master.write(" ");
        master.flush();
        age(master, -3600);
    });
    row("no pixels", [](QFile &, QFile &pixels) { pixels.remove(); });
    row("an empty file", [](QFile &, QFile &pixels) { pixels.resize(0); });
    row("less than a header", [](QFile &, QFile &pixels) { pixels.resize(15); });
    row("less than its rows", [](QFile &, QFile &pixels) { pixels.resize(60); });
    row("less than its pixels", [](QFile &, QFile &pixels) { pixels.resize(pixels.size() - 1); });
    row("of another machine", patch(0, "KVPX"));
    row("of another version", patch(4, "\x7f"));
    row("more masters than there are", patch(11, "\x7f"));
    row("more drawings than there are", patch(15, "\x7f"));
    row("pixels beyond the end", patch(19, "\x7f"));
    row("a name beyond the end", patch(23, "\x7f"));
    row("drawings of nobody", patch(43, "\x7f"));
}

void TestPictures::areDrawnAnewWhereThePixelsAreNotTheirs()
{
    using Change = std::function<void(QFile & master, QFile & pixels)>;
    QFETCH(Change, change);
    QTemporaryDir home;
    QFile master(home.filePath("Sheet.svg"));
    QVERIFY(master.open(QIODevice::WriteOnly));
    master.write("<svg/>");
    master.flush();
    QImage ink(3, 2, QImage::Format_ARGB32_Premultiplied);
    ink.fill(Qt::red);
    QFile pixels(home.filePath("sheets.pixels"));
    QVERIFY(PixelFile::write(pixels.fileName(),
                             {{u"Sheet"_s, 6, {64, 64}, {{{48, 48}, 1.5, {1, 2}, ink}}}}));
    QVERIFY(pixels.open(QIODevice::ReadWrite));
    change(master, pixels);
    pixels.flush();
    const PixelFile file(pixels.fileName());
    const auto found = file.find(master.fileName());
    QTEST(found.has_value(), "isFound");
    if (!found)
        return;
    QCOMPARE(found->size, QSize(64, 64));
    QCOMPARE(found->drawn.at(0).at, QPoint(1, 2));
    QCOMPARE(found->drawn.at(0).pixels, ink);
    QVERIFY(!file.find(home.filePath("Shee.svg")));
}

QTEST_GUILESS_MAIN(TestPictures)
#include "test_pictures.moc"
