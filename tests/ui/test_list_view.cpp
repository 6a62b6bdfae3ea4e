#include "event_log.h"
#include "list_view.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

using namespace kelvo;

class TestListView : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheCellsInSightAreAskedFor();
    void rowsAreSelectedSilentlyByCode();
    void oneActionOfTheUserSendsOneEvent();
    void aDoubleClickTellsItsRow();
    void returnActivatesAndKeepsTheSelection();
    void reloadingKeepsThePlaceButNotTheSelection();
    void theLastColumnCanBeReadToItsEnd();
};

namespace {

// A list of `rows` rows and two columns, shown; `asked` counts the cells asked for.
struct Sample
{
    explicit Sample(int rows)
        : log(&list)
    {
        list.setColumns({{"Page", 60}, {"Stock", 200}}, [this](int row, int column) {
            ++asked;
            return QStringLiteral("%1/%2").arg(row).arg(column);
        });
        list.resize(400, 300);
        list.reload(rows);
        list.show();
        list.setFocus();
        (void)QTest::qWaitForWindowExposed(&list);
    }

    QPoint middleOf(int row) { return list.visualRect(list.model()->index(row, 0)).center(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, middleOf(row));
        QCoreApplication::processEvents();
    }

    ListView list;
    EventLog log;
    int asked = 0;
};

} // namespace

void TestListView::onlyTheCellsInSightAreAskedFor()
{
    Sample sample(100'000);
    QTest::qWait(50);
    QVERIFY(sample.asked > 0);
    QVERIFY2(sample.asked < 1000, qPrintable(QString::number(sample.asked)));
    QCOMPARE(sample.list.cellText(99'999, 1), "99999/1");
    QCOMPARE(sample.list.cellText(100'000, 1), "");
    QCOMPARE(sample.list.cellText(0, 2), "");
}

void TestListView::rowsAreSelectedSilentlyByCode()
{
    Sample sample(10);
    sample.list.selectRows({7, 2, 3, 3, -1, 10});
    QCOMPARE(sample.list.selectedRows(), (std::vector<int>{2, 3, 7}));
    QCoreApplication::processEvents();
    QCOMPARE(sample.log.take(), QStringList());
}

void TestListView::oneActionOfTheUserSendsOneEvent()
{
    Sample sample(100'000);
    sample.click(2);
    QCOMPARE(sample.log.take(), QStringList{"ListSelection row 2"});
    sample.click(5, Qt::ShiftModifier);
    QCOMPARE(sample.log.take(), QStringList{"ListSelection row 2"});
    QCOMPARE(sample.list.selectedRows(), (std::vector<int>{2, 3, 4, 5}));
    sample.click(3, Qt::ControlModifier);
    QCOMPARE(sample.list.selectedRows(), (std::vector<int>{2, 4, 5}));
    QCOMPARE(sample.log.take().size(), 1);
    QTest::keyClick(&sample.list, Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(sample.log.take().size(), 1);
    QCOMPARE(sample.list.selectedRows().size(), std::size_t(100'000));
}

void TestListView::aDoubleClickTellsItsRow()
{
    Sample sample(3);
    QTest::mouseDClick(sample.list.viewport(), Qt::LeftButton, {}, sample.middleOf(1));
    const QStringList lines = sample.log.take();
    QCOMPARE(lines.last(), "ListActivated row 1");
    QTest::mouseDClick(sample.list.viewport(), Qt::LeftButton, {}, {50, 250});
    QCOMPARE(sample.log.take().last(), "ListActivated row -1");
}

void TestListView::returnActivatesAndKeepsTheSelection()
{
    Sample sample(5);
    sample.list.selectRows({1, 3});
    QTest::keyClick(&sample.list, Qt::Key_Return);
    QCOMPARE(sample.log.take(), QStringList{"ListActivated row 1"});
    QCOMPARE(sample.list.selectedRows(), (std::vector<int>{1, 3}));
}

void TestListView::reloadingKeepsThePlaceButNotTheSelection()
{
    Sample sample(1000);
    sample.list.selectRows({500});
    sample.list.scrollTo(sample.list.model()->index(500, 0), QAbstractItemView::PositionAtTop);
    const int place = sample.list.verticalScrollBar()->value();
    QVERIFY(place > 0);
    sample.list.reload(1001);
    QCOMPARE(sample.list.verticalScrollBar()->value(), place);
    QVERIFY(sample.list.selectedRows().empty());
    sample.list.reload(0);
    QCOMPARE(sample.list.rowCount(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(sample.log.take(), QStringList());
}

// Scrolled to, or made wider by hand and by keys; a short one leaves no gap behind it.
void TestListView::theLastColumnCanBeReadToItsEnd()
{
    QString text = "Tray 1";
    ListView list;
    list.setColumns({{"Page", 60}, {"Stock", 100}},
                    [&text](int, int column) { return column == 0 ? QStringLiteral("1") : text; });
    list.resize(300, 200);
    list.reload(2);
    list.show();
    list.setFocus();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    const QScrollBar *bar = list.horizontalScrollBar();
    QCOMPARE(list.header()->length(), list.viewport()->width());
    QCOMPARE(bar->maximum(), 0);
    list.resize(340, 200);
    QCOMPARE(list.header()->length(), list.viewport()->width());

    text = QStringLiteral("A description of the paper that is rather long; ").repeated(5);
    list.reload(2);
    const int most = list.header()->sectionSize(1);
    QVERIFY(most >= 450 && most < 2 * 450); // grows with the font alone
    QTRY_VERIFY(bar->maximum() > 0);
    list.selectRows({0});
    QTest::keyClick(&list, Qt::Key_Right);
    QVERIFY(bar->value() > 0);

    QTest::keyClick(&list, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(list.header()->sectionSize(1) >= list.fontMetrics().horizontalAdvance(text));

    QTRY_VERIFY(bar->maximum() > most);
    list.horizontalScrollBar()->setValue(bar->maximum());
    QWidget *titles = list.header()->viewport();
    const QPoint edge(titles->width() - 2, titles->height() / 2);
    const int before = list.header()->sectionSize(1);
    QTest::mousePress(titles, Qt::LeftButton, {}, edge);
    QTest::mouseMove(titles, edge - QPoint(50, 0));
    QTest::mouseRelease(titles, Qt::LeftButton, {}, edge - QPoint(50, 0));
    QCOMPARE(list.header()->sectionSize(1), before - 50);
    list.reload(3); // and stays so
    QCOMPARE(list.header()->sectionSize(1), before - 50);
}

QTEST_MAIN(TestListView)
#include "test_list_view.moc"
