#include "summary_view.h"
#include "table.h"
#include "text_direction.h"
#include "texts.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

using namespace kelvo;

class TestTextDirection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aMnemonicOnlyAddsALine_data();
    void aMnemonicOnlyAddsALine();
    void deviceTextsKeepTheirOrder_data();
    void deviceTextsKeepTheirOrder();
    void brokenLinesBeginAtTheEdge();
    void aSummaryBeginsWhereReadingDoes();
    void digitsAreThoseOfTheTexts_data();
    void digitsAreThoseOfTheTexts();
};

namespace {

const QRect area(0, 0, 300, 60);

QImage drawn(const QString &text, int flags, Qt::LayoutDirection direction = Qt::RightToLeft,
             const QRect &within = area)
{
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    QApplication::style()->drawItemText(&painter, within, flags | Qt::TextShowMnemonic,
                                        QApplication::palette(), true, text);
    return image;
}

QRect inkOf(const QImage &image, const QRect &within)
{
    QRect found;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

QRect difference(const QImage &one, const QImage &other)
{
    QRect found;
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

} // namespace

void TestTextDirection::initTestCase()
{
    loadTexts(QStringLiteral(PROGRAM_TEXTS), {"ar-EG"});
    followTextDirection();
    QVERIFY(QApplication::isRightToLeft());
}

void TestTextDirection::aMnemonicOnlyAddsALine_data()
{
    const Table<QString, int, bool> row{"text", "flags", "isInRightHalf"};

    row("first letter", "&طباعة", Qt::AlignCenter, true);
    row("last letter", "تعليما&ت", Qt::AlignCenter, false);
    row("at the leading edge", "إ&خفاء", Qt::AlignLeft | Qt::AlignVCenter, true);
    row("at the trailing edge", "إ&خفاء", Qt::AlignRight | Qt::AlignVCenter, false);
    row("behind an ampersand", "أ && ب &ب", Qt::AlignCenter, false);
    row("where lines may break", "&حول", Qt::AlignCenter | Qt::TextWordWrap, true);
}

void TestTextDirection::aMnemonicOnlyAddsALine()
{
    QFETCH(QString, text);
    QFETCH(int, flags);
    const qsizetype mark = text.lastIndexOf(u'&');
    const QRect line = difference(drawn(text, flags), drawn(QString(text).remove(mark, 1), flags));

    const QFontMetrics metrics(QApplication::font());
    QVERIFY2(!line.isEmpty() && line.height() <= 2, "letters have moved or changed");
    QVERIFY(line.width() < metrics.horizontalAdvance(text) / 2 + 1);
    QTEST(line.center().x() > area.center().x(), "isInRightHalf");
}

void TestTextDirection::deviceTextsKeepTheirOrder_data()
{
    const Table<QString> row{"text"};

    row("begins with a number", "2 Staples");
    row("a phone number", "+1 (555) 0199");
    row("with a mnemonic", "&2 Staples");
}

void TestTextDirection::deviceTextsKeepTheirOrder()
{
    QFETCH(QString, text);
    QCOMPARE(drawn(text, Qt::AlignCenter), drawn(text, Qt::AlignCenter, Qt::LeftToRight));
}

void TestTextDirection::brokenLinesBeginAtTheEdge()
{
    const QRect narrow(0, 0, QFontMetrics(QApplication::font()).horizontalAdvance("دبوس دبوس"),
                       area.height());
    const QImage image =
        drawn("دبوس دبوس دبوس دبوس", Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
              Qt::RightToLeft, narrow);
    const int line = QFontMetrics(QApplication::font()).lineSpacing();
    const QRect first = inkOf(image, {0, 0, area.width(), line});
    const QRect second = inkOf(image, {0, line, area.width(), line});

    QVERIFY(!second.isEmpty());
    QCOMPARE(first.right(), second.right());
}

void TestTextDirection::aSummaryBeginsWhereReadingDoes()
{
    SummaryView summary;
    summary.resize(200, 100);
    summary.setSummary(QStringLiteral("- White"));
    summary.grab();

    QVERIFY(summary.cursorRect().x() > 150);
}

void TestTextDirection::digitsAreThoseOfTheTexts_data()
{
    const Table<QString, QString, QString> row{"texts", "locale", "number"};

    row("they count otherwise in Egypt", "ar", "ar_EG", "10.5");
    row("as in Morocco", "ar", "ar_MA", "10,5");
    row("texts that are English", "fa", "fa_IR", "۱۰٫۵");
    row("another language's place", "ar", "de_DE", "10,5");
}

void TestTextDirection::digitsAreThoseOfTheTexts()
{
    QFETCH(QString, texts);
    QFETCH(QString, locale);
    loadTexts(QStringLiteral(PROGRAM_TEXTS), {texts});

    QTEST(withDigitsOfTexts(QLocale(locale)).toString(10.5), "number");
}

QTEST_MAIN(TestTextDirection)
#include "test_text_direction.moc"
