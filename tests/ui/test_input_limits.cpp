#include "event_log.h"
#include "input_limits.h"
#include "table.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::InputProblem)

class TestInputLimits : public QObject
{
    Q_OBJECT

private slots:
    void theFirstProblemIsFound_data();
    void theFirstProblemIsFound();
    void pastedTextIsCutToFit_data();
    void pastedTextIsCutToFit();
    void aRefusedCharacterLeavesTheSelection();
    void textsSetByCodeAreNotTouchedAndCanBeShortened();
    void handlersNeverSeeWhatWasRefused();
    void whatCannotBeKeptIsRefused();
    void aTextIsCutAtItsBytesButNotWithinACharacter();
    void limitsCanBeChanged();
    void limitsAreToldInWords();
};

namespace {

// Digits, one to four of them; an l is taken for a 1.
InputLimits pin()
{
    return {1, 4, InputLimits::decimalDigits(), {{U'l', U'1'}}};
}

QString textIn(QWidget *field)
{
    if (auto *edit = qobject_cast<QPlainTextEdit *>(field))
        return edit->toPlainText();
    if (auto *combo = qobject_cast<QComboBox *>(field))
        return combo->currentText();
    return static_cast<QLineEdit *>(field)->text();
}

void setTextOf(QWidget *field, const QString &text)
{
    if (auto *edit = qobject_cast<QPlainTextEdit *>(field))
        edit->setPlainText(text);
    else if (auto *combo = qobject_cast<QComboBox *>(field))
        combo->setEditText(text);
    else
        static_cast<QLineEdit *>(field)->setText(text);
}

std::unique_ptr<QWidget> makeField(const QString &kind)
{
    if (kind == "plain text")
        return std::make_unique<QPlainTextEdit>();
    if (kind == "combo box") {
        auto combo = std::make_unique<QComboBox>();
        combo->setEditable(true);
        return combo;
    }
    auto line = std::make_unique<QLineEdit>();
    if (kind == "password") // has no undo, and must be kept all the same
        line->setEchoMode(QLineEdit::Password);
    return line;
}

const QStringList kinds{"line", "password", "combo box", "plain text"};

} // namespace

void TestInputLimits::theFirstProblemIsFound_data()
{
    using enum InputProblem;
    const Table<QString, InputProblem> row{"text", "problem"};
    row("one below the minimum", "", TooShort);
    row("at the minimum", "1", None);
    row("at the maximum", "1234", None);
    row("one above", "12345", TooLong);
    row("a letter", "12a", BadCharacter);
    row("a letter, and too long", "12345a", BadCharacter);
    row("a digit of another script", QString(QChar(0x0661)), BadCharacter);
}

void TestInputLimits::theFirstProblemIsFound()
{
    QFETCH(QString, text);
    QTEST(findProblem(text, pin()), "problem");
}

void TestInputLimits::pastedTextIsCutToFit_data()
{
    // text: pasted between 1 and 9
    const Table<QString, QString, QString> row{"kind", "pasted", "text"};
    for (const QString &kind : kinds) {
        for (const auto &[name, pasted, text] : {std::tuple("fits", "23", "1239"),
                                                 {"one too many", "234", "1239"},
                                                 {"dashes left out", "2-3-4", "1239"},
                                                 {"one with a substitute", "2l", "1219"},
                                                 {"nothing of it allowed", "ab", "19"}})
            row(qPrintable(kind + ": " + name), kind, pasted, text);
    }
}

void TestInputLimits::pastedTextIsCutToFit()
{
    QFETCH(QString, kind);
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    const auto field = makeField(kind);
    setInputLimits(field.get(), pin());
    setTextOf(field.get(), QStringLiteral("19"));
    QTest::keyClick(field.get(), Qt::Key_Home);
    QTest::keyClick(field.get(), Qt::Key_Right);

    QGuiApplication::clipboard()->setText(pasted);
    QTest::keyClick(field.get(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(textIn(field.get()), text);
    // The cursor stands behind what was pasted.
    QTest::keyClick(field.get(), Qt::Key_Delete);
    QCOMPARE(textIn(field.get()), text.chopped(1));
}

void TestInputLimits::aRefusedCharacterLeavesTheSelection()
{
    for (const QString &kind : kinds) {
        const auto field = makeField(kind);
        setInputLimits(field.get(), pin());
        setTextOf(field.get(), QStringLiteral("1234"));
        QTest::keyClick(field.get(), Qt::Key_End);
        QTest::keyClicks(field.get(), "5");
        QCOMPARE(textIn(field.get()), "1234");
        QTest::keyClick(field.get(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field.get(), "x");
        QCOMPARE(textIn(field.get()), "1234");
        QTest::keyClick(field.get(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field.get(), "7");
        QCOMPARE(textIn(field.get()), "7");
    }
}

void TestInputLimits::textsSetByCodeAreNotTouchedAndCanBeShortened()
{
    for (const QString &kind : kinds) {
        const auto field = makeField(kind);
        setInputLimits(field.get(), pin());
        setTextOf(field.get(), QStringLiteral("too long"));
        QCOMPARE(textIn(field.get()), "too long");
        QTest::keyClick(field.get(), Qt::Key_End);
        QTest::keyClicks(field.get(), "1");
        QCOMPARE(textIn(field.get()), "too long");
        QTest::keyClick(field.get(), Qt::Key_Backspace);
        QCOMPARE(textIn(field.get()), "too lon");
        QTest::keyClicks(field.get(), "g");
        QCOMPARE(textIn(field.get()), "too lon");
        setTextOf(field.get(), QStringLiteral("abc"));
        QTest::keyClick(field.get(), Qt::Key_End);
        QTest::keyClicks(field.get(), "d5");
        QCOMPARE(textIn(field.get()), "abc5");
    }
}

void TestInputLimits::handlersNeverSeeWhatWasRefused()
{
    for (const QString &kind : {QStringLiteral("line"), QStringLiteral("plain text")}) {
        const auto field = makeField(kind);
        sendControlEvents(field.get()); // before the limits: it hears first
        setInputLimits(field.get(), {0, 3, std::nullopt});
        QStringList seen;
        const auto handler = installEventHandler(field.get(), [&](const Event &event) {
            if (event.kind == EventKind::TextChanged)
                seen.append(textIn(event.source));
            return noErr;
        });
        QGuiApplication::clipboard()->setText(QString::fromUtf8("a\xF0\x9F\x98\x80"
                                                                "b\xF0\x9F\x98\x80"));
        QTest::keyClick(field.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(seen,
                 QStringList{QString::fromUtf8("a\xF0\x9F\x98\x80"
                                               "b")});
    }
}

void TestInputLimits::aTextIsCutAtItsBytesButNotWithinACharacter()
{
    const InputLimits limits{.maximumBytes = 5};
    QCOMPARE(findProblem(QStringLiteral("abcü"), limits), InputProblem::None);
    QCOMPARE(findProblem(QStringLiteral("abcdü"), limits), InputProblem::TooLong);
    QCOMPARE(withinLimits(QStringLiteral("abcdüe"), limits), "abcd");
    for (const QString &kind : kinds) {
        const auto field = makeField(kind);
        setInputLimits(field.get(), limits);
        setTextOf(field.get(), QStringLiteral("üü"));
        QTest::keyClick(field.get(), Qt::Key_End);
        QTest::keyClick(field.get(), Qt::Key_Backspace);
        QVERIFY(!typeText(field.get(), QStringLiteral("üxüx")));
        QCOMPARE(textIn(field.get()), "üxü");
    }
}

// What no property list can hold would lose the whole file that it goes into.
void TestInputLimits::whatCannotBeKeptIsRefused()
{
    const QString bad = QString(QChar(0)) + u'\x01' + u'\x1b' + QChar(0xFFFE) + QChar(0xFFFF)
        + QChar(0xD83D) + u'x' + QChar(0xDE00);
    const QString good = QStringLiteral("a\tü\u0085\uFFFD😀");
    for (const InputLimits &limits : {InputLimits(), InputLimits{.maximumLength = 20}}) {
        QCOMPARE(findProblem(bad, limits), InputProblem::BadCharacter);
        QCOMPARE(findProblem(good, limits), InputProblem::None);
        QCOMPARE(withinLimits(bad + good, limits), u'x' + good);
    }

    QLineEdit line;
    setInputLimits(&line, {});
    line.setText(QStringLiteral("😀"));
    line.selectAll();
    line.insert(QStringLiteral("\U0001F400")); // half of it is as before
    QCOMPARE(line.text(), QStringLiteral("\U0001F400"));
    line.insert(QStringLiteral("\x01"));
    line.insert(QString(QChar(0xD83D)));
    QCOMPARE(line.text(), QStringLiteral("\U0001F400"));
}

void TestInputLimits::limitsCanBeChanged()
{
    QLineEdit line;
    QVERIFY(!inputLimits(&line));
    setInputLimits(&line, pin());
    InputLimits names;
    names.maximumLength = 12;
    setInputLimits(&line, names);
    QCOMPARE(inputLimits(&line)->maximumLength, 12);
    QVERIFY(typeText(&line, QStringLiteral("twelve chars")));
    QVERIFY(!names.ascii());
    QVERIFY(pin().ascii());
    names.allowed = InputLimits::setOf(QString::fromUtf8("a\xC3\xA9"));
    QVERIFY(!names.ascii());
}

void TestInputLimits::limitsAreToldInWords()
{
    QCOMPARE(inWords(pin()), "it takes 1 to 4 digits");
    QCOMPARE(inWords({.maximumLength = 31}), "it takes at most 31 characters");
    QCOMPARE(inWords({.allowed = InputLimits::setOf("1-0,")}),
             "it takes only characters of “,-01”");
    QCOMPARE(inWords({}), "");
}

QTEST_MAIN(TestInputLimits)
#include "test_input_limits.moc"
