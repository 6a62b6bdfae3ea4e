#include "booklet_creation.h"
#include "image_options_pictures.h"
#include "paper_output_pictures.h"
#include "separator_picture.h"
#include "stock_pictures.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>

using namespace kelvo;
using namespace Qt::StringLiterals;

// That every picture that is asked for is there, and every one that is there is asked for.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void arePreciselyThoseThatAreAskedFor();
    void canBeShown();
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

void TestPictures::canBeShown()
{
    const QStringList files = QDir(folder).entryList({u"*.svg"_s}, QDir::Files);
    for (const QString &file : files) {
        const QSvgRenderer renderer(folder + u'/' + file);
        QVERIFY2(renderer.isValid() && !renderer.defaultSize().isEmpty(), qPrintable(file));
    }
}

QTEST_GUILESS_MAIN(TestPictures)
#include "test_pictures.moc"
