#include "test_panels.h"

#include "bundle.h"
#include "modal_dialog.h"
#include "print_dialog.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QTest>

using namespace kelvo;

class TestPrintDialog : public QObject
{
    Q_OBJECT

private slots:
    void pictures_data();
    void pictures();
};

namespace {

QString shared(const QString &name)
{
    return QStringLiteral(KELVO_BUILD_DIR "/share/kelvo-print/") + name;
}

DialogOptions optionsFor(const QString &device)
{
    DialogOptions options;
    options.device = PpdFile::open(shared(QStringLiteral("ppds/") + device)).value();
    options.bundle = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/lib/KelvoPDE.pde")).value();
    options.document = DocumentSource{shared(QStringLiteral("demo/document.pdf")), {}};
    return options;
}

QPalette darkPalette()
{
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

} // namespace

void TestPrintDialog::pictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<double>("font");

    QTest::newRow("light") << QSize(900, 660) << false << 1.0;
    QTest::newRow("dark") << QSize(900, 660) << true << 1.0;
    QTest::newRow("wide") << QSize(1366, 768) << false << 1.0;
    QTest::newRow("narrow") << QSize(700, 560) << false << 1.0;
    QTest::newRow("low") << QSize(900, 460) << false << 1.0;
    QTest::newRow("largefont") << QSize(1700, 1250) << false << 2.0;
}

void TestPrintDialog::pictures()
{
    QFETCH(QSize, size);
    QFETCH(bool, dark);
    QFETCH(double, font);
    const QFont usual = QApplication::font();
    const QPalette usualPalette = QApplication::palette();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * font);
    QApplication::setFont(large);
    if (dark)
        QApplication::setPalette(darkPalette());
    {
        auto options = optionsFor(QStringLiteral("kelvo-corvane-full.ppd"));
        options.line.copies = 3;
        options.line.options = {{"StapleLocation", "SinglePortrait"},
                                {"MediaType", "Transparency"}};
        PrintDialog dialog(options);
        dialog.resize(size);
        dialog.start();
        dialog.show();
        QTRY_VERIFY_WITH_TIMEOUT(dialog.isIdle(), 10000);
        QTest::qWait(500);
        dialog.grab().save(qEnvironmentVariable("KELVO_PICTURES") + '/'
                           + QString::fromLatin1(QTest::currentDataTag()) + ".png");
    }
    QApplication::setFont(usual);
    QApplication::setPalette(usualPalette);
}

QTEST_MAIN(TestPrintDialog)
#include "test_print_dialog.moc"
