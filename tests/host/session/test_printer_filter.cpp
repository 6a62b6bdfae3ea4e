#include "printer_filter.h"

#include "table.h"

#include <QTest>

using namespace kelvo;

class TestPrinterFilter : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatIsTyped_data();
    void findsWhatIsTyped();
};

static Printer printer(const char *name, const char *info, const char *location, const char *model)
{
    Printer made;
    made.name = QString::fromUtf8(name);
    made.info = QString::fromUtf8(info);
    made.location = QString::fromUtf8(location);
    made.makeAndModel = QString::fromUtf8(model);
    return made;
}

void TestPrinterFilter::findsWhatIsTyped_data()
{
    const Table<QString, QString, int> row{"typed", "found", "best"};

    row("nothing", "", "hall-3 café big hall-30", 0);
    row("blanks", "  ", "hall-3 café big hall-30", 0);
    row("the middle of a name", "all", "hall-3 hall-30", 0);
    row("a place", "ground", "hall-3", 0);
    row("a model in other letters", "c95", "big", 0);
    row("a description", "jürgen", "café", 0);
    row("without accents", "cafe JURGEN", "café", 0);
    row("full-width letters", "ｃ９５", "big", 0);
    row("words in any order, in several places", "floor corvane", "hall-3 café", 0);
    row("a word that is nowhere", "floor corvane x", "", -1);
    row("words do not run together", "hall3", "", -1);
    row("a name begins so", "b", "café big", 1);
    row("each word in what it is looked for", "hall-3 copy", "hall-30", 0);
    row("letters of another script", "京", "big", 0);
}

void TestPrinterFilter::findsWhatIsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, found);
    QFETCH(int, best);
    const QList<Printer> printers{
        printer("Hall-3", "Hall-3", "Ground floor", "Kelvo Corvane C90"),
        printer("Café", "Jürgen's", "Floor 2, by the bar", "Kelvo Corvane C50"),
        printer("BIG", "", "東京", "Kelvo Corvane C95"),
        printer("Hall-30", "Copy shop", "", ""),
    };
    const PrinterFilter::Hits hits = PrinterFilter(printers).find(typed);
    QStringList names;
    for (const int at : hits.rows)
        names << printers[at].name.toLower();
    QCOMPARE(names.join(u' '), found);
    QCOMPARE(hits.best, best);
}

QTEST_APPLESS_MAIN(TestPrinterFilter)
#include "test_printer_filter.moc"
