#include "device_session.h"
#include "files.h"

#include "finished_set.h"
#include "finished_set_drawing.h"
#include "keyword_map.h"
#include "paper_output_settings.h"
#include "table.h"

#include <QDebug>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <vector>

using namespace kelvo;
using Edge = FinishedSet::Edge;
using Fold = FinishedSet::Fold;
using Kind = FinishedSet::Kind;
using Turn = FinishedSet::Turn;

Q_DECLARE_METATYPE(kelvo::FinishedSet)
Q_DECLARE_METATYPE(kelvo::PaperOutputSettings)

namespace kelvo {

// For QCOMPARE.
static char *toString(const FinishedSet &set)
{
    QString text;
    QDebug(&text).nospace() << set.sheet << " kind " << int(set.kind) << " paper " << set.paperColor
                            << " separators " << set.hasSeparators << ' ' << set.separatorColor
                            << " colored " << set.isColored << " upside down " << set.isUpsideDown
                            << " turn " << int(set.turn) << " booklet " << set.isBooklet << " fold "
                            << int(set.fold) << ' ' << set.isStapledInFold << " staples "
                            << set.staples << " holes " << set.holes << ' ' << set.hasHolesOfDevice
                            << " tape " << int(set.tape) << " offset " << int(set.offset);
    return QTest::toString(text);
}

} // namespace kelvo

namespace {

constexpr QSizeF tall(595, 842), wide(842, 595); // points

PaperOutputSettings plainJob(std::int32_t orientation = 1)
{
    PaperOutputSettings job;
    initializePaperOutput(job, 0);
    job.orientation = orientation;
    return job;
}

PaperOutputSettings finishedJob(const Finishing &finishing, std::int32_t orientation = 1,
                                std::int32_t duplex = kPlexSimplex)
{
    PaperOutputSettings job = plainJob(orientation);
    job.finishing = finishing;
    job.duplex = duplex;
    return job;
}

PaperOutputSettings booklet(std::int32_t fold, std::int32_t orientation)
{
    PaperOutputSettings job = finishedJob({.fold = fold}, orientation, kPlexDuplexShort);
    job.booklet.layout = kBookletOn;
    return job;
}

QImage drawn(const FinishedSet &set, const QSize &place, int margin)
{
    QImage drawing(place + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::magenta);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(margin, margin);
    drawFinishedSet(painter, place, set);
    return drawing;
}

} // namespace

class TestFinishedSet : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatComesOut_data();
    void tellsWhatComesOut();
    void leavesOutWhatTheDeviceDoesNotDo();
    void holesThatAreSetAtTheDeviceAreOnlySaid();
    void isDrawnWithinItsPlace();
    void setsThatDifferLookDifferent();
};

void TestFinishedSet::tellsWhatComesOut_data()
{
    const Table<PaperOutputSettings, FinishedSet, QStringList> row{"job", "set", "words"};

    row("plain", plainJob(), {.sheet = tall}, {"1-sided print"});
    PaperOutputSettings job = plainJob(2);
    job.paper = {792, 612};
    job.colorMode = kColorModeColor;
    job.jobStock.setColor(kStockColorYellow);
    row("its paper", job, {.sheet = {792, 612}, .paperColor = kStockColorYellow, .isColored = true},
        {"1-sided print"});
    row("like a book", finishedJob({}, 1, kPlexDuplex), {.sheet = tall, .turn = Turn::OverLeft},
        {"2-sided print"});
    row("the long edge of landscape is above", finishedJob({}, 2, kPlexDuplex),
        {.sheet = wide, .turn = Turn::OverTop}, {"2-sided print"});
    row("the short edge of landscape is left", finishedJob({}, 2, kPlexDuplexShort),
        {.sheet = wide, .turn = Turn::OverLeft}, {"2-sided print, flip on short edge"});
    row("unknown sides", finishedJob({}, 1, -1), {.sheet = tall, .turn = Turn::Unknown}, {});
    row("a staple and holes, landscape",
        finishedJob({.punch = kPunchFourHoles, .singleStaple = 5}, 2),
        {.sheet = wide, .staples = 1, .holes = 4},
        {"1-sided print", "1 staple in the upper left corner", "4 holes along the left edge"});
    row("two staples", finishedJob({.dualStaple = 10}), {.sheet = tall, .staples = 2},
        {"1-sided print", "2 staples along the left edge"});
    row("reverse landscape has one staple", finishedJob({.dualStaple = 10}, 4),
        {.sheet = wide, .isUpsideDown = true, .staples = 1},
        {"1-sided print", "1 staple in the upper left corner"});
    row("reverse portrait has two that nobody chose", plainJob(3),
        {.sheet = tall, .isUpsideDown = true, .staples = 2},
        {"1-sided print", "2 staples along the left edge"});
    row("many staples", finishedJob({.otherStaple = 54}), {.sheet = tall, .staples = 4},
        {"1-sided print", "Several staples along the left edge"});
    row("a staple that the keyword map does not have", finishedJob({.hasUnknownStaple = true}),
        {.sheet = tall}, {"1-sided print"});
    row("a pattern that this punch unit does not have", finishedJob({.punch = kPunchGeneric}),
        {.sheet = tall}, {"1-sided print"});
    row("half sheet", finishedJob({.fold = kFoldZHalfSheet, .punch = kPunchTwoHoles}),
        {.sheet = tall, .fold = Fold::HalfZ, .holes = 2},
        {"1-sided print", "Z-fold half sheet", "2 holes along the left edge"});
    row("taped and offset", finishedJob({.offset = kOffsetBoth, .bind = kBindTop}),
        {.sheet = tall, .tape = Edge::Top, .offset = FinishedSet::Offset::Both},
        {"1-sided print", "Tape along the top edge", "Sets and subsets offset"});
    row("booklet", booklet(kFoldBiAndStaple, 1),
        {.sheet = wide,
         .turn = Turn::OverLeft,
         .isBooklet = true,
         .fold = Fold::Middle,
         .isStapledInFold = true},
        {"2-sided print", "Booklet layout", "Booklet fold and staple"});
    row("booklet of wide pages", booklet(kFoldNone, 2),
        {.sheet = tall, .turn = Turn::OverTop, .isBooklet = true},
        {"2-sided print", "Booklet layout"});
    job = plainJob();
    job.separators = 2;
    row("separators of no transparencies", job, {.sheet = tall}, {"1-sided print"});
    job.jobStock.setType(kStockTypeTransparency);
    job.separatorStock.setColor(kStockColorGreen);
    row("transparencies", job,
        {.sheet = tall,
         .kind = Kind::Transparency,
         .hasSeparators = true,
         .separatorColor = kStockColorGreen},
        {"1-sided print"});
}

void TestFinishedSet::tellsWhatComesOut()
{
    QFETCH(PaperOutputSettings, job);
    const DeviceSession full(QStringLiteral("full"));
    const FinishedSet found = finishedSet(job, currentDevice());
    QTEST(found, "set");
    QTEST(finishedSetWords(found, currentDevice()), "words");
}

void TestFinishedSet::leavesOutWhatTheDeviceDoesNotDo()
{
    const PaperOutputSettings job = finishedJob({.fold = kFoldC,
                                                 .punch = kPunchTwoHoles,
                                                 .dualStaple = 10,
                                                 .offset = kOffsetSets,
                                                 .bind = kBindLeft},
                                                1, kPlexDuplex);
    // Any device may be told to offset.
    const FinishedSet expected{.sheet = tall, .offset = FinishedSet::Offset::Sets};
    for (const char *device : {"bare", ""}) {
        const DeviceSession session(QString::fromLatin1(device));
        QCOMPARE(finishedSet(job, currentDevice()), expected);
    }
}

void TestFinishedSet::holesThatAreSetAtTheDeviceAreOnlySaid()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("generic.ppd"));
    putFile(path,
            bytesOf(samplePpd(QStringLiteral("full")))
                .replace("*DefaultKVPunchUnit: TwoThreeFourHole", "*DefaultKVPunchUnit: Generic"));
    const DeviceSession session({});
    const auto ppd = PpdFile::open(path);
    QVERIFY(ppd);
    const Device device = deviceWith(session.bundle, ppd.value().get());
    const FinishedSet set = finishedSet(finishedJob({.punch = kPunchGeneric}), device);
    QCOMPARE(set, (FinishedSet{.sheet = tall, .hasHolesOfDevice = true}));
    QCOMPARE(finishedSetWords(set, device).last(), QStringLiteral("Holes as set at the device"));
}

void TestFinishedSet::isDrawnWithinItsPlace()
{
    constexpr int margin = 4;
    constexpr QSize place(220, 120);
    for (const QSizeF &sheet : {tall, wide, QSizeF(1000, 100)}) {
        for (int fold = 0; fold <= int(Fold::HalfZ); ++fold) {
            const FinishedSet set{.sheet = sheet,
                                  .kind = fold % 2 ? Kind::Tab : Kind::Paper,
                                  .turn = Turn::OverTop,
                                  .isBooklet = fold == int(Fold::Middle),
                                  .fold = Fold(fold),
                                  .isStapledInFold = fold == int(Fold::Middle),
                                  .staples = 2,
                                  .holes = 4,
                                  .tape = Edge::Right,
                                  .offset = FinishedSet::Offset::Both};
            QImage drawing = drawn(set, place, margin);
            QImage untouched = drawing;
            untouched.fill(Qt::magenta);
            QVERIFY(drawing != untouched);
            QPainter(&drawing).fillRect(QRect(QPoint(margin, margin), place), Qt::magenta);
            QVERIFY2(drawing == untouched, qPrintable(QStringLiteral("fold %1").arg(fold)));
        }
    }
}

void TestFinishedSet::setsThatDifferLookDifferent()
{
    std::vector<FinishedSet> sets = {{.sheet = tall},
                                     {.sheet = tall, .paperColor = kStockColorYellow},
                                     {.sheet = tall, .isColored = true},
                                     {.sheet = tall, .isUpsideDown = true},
                                     {.sheet = tall, .isBooklet = true},
                                     {.sheet = tall, .fold = Fold::Middle, .isStapledInFold = true},
                                     {.sheet = tall, .turn = Turn::OverLeft},
                                     {.sheet = tall, .turn = Turn::OverTop},
                                     {.sheet = tall, .offset = FinishedSet::Offset::Sets}};
    for (const Kind kind : {Kind::Transparency, Kind::Tab, Kind::Envelope, Kind::Labels})
        sets.push_back({.sheet = tall, .kind = kind});
    for (const Fold fold : {Fold::Middle, Fold::C, Fold::Z, Fold::HalfZ})
        sets.push_back({.sheet = tall, .fold = fold});
    for (const int staples : {1, 2, 4})
        sets.push_back({.sheet = tall, .staples = staples});
    for (const int holes : {2, 3, 4})
        sets.push_back({.sheet = tall, .holes = holes});
    for (const Edge tape : {Edge::Left, Edge::Right, Edge::Top})
        sets.push_back({.sheet = tall, .tape = tape});
    std::vector<QImage> drawings;
    for (const FinishedSet &set : sets) {
        const QImage drawing = drawn(set, {120, 120}, 0);
        const auto same = std::ranges::find(drawings, drawing);
        if (same != drawings.end())
            QCOMPARE(set, sets[same - drawings.begin()]); // says which two
        drawings.push_back(drawing);
    }
}

QTEST_MAIN(TestFinishedSet)
#include "test_finished_set.moc"
