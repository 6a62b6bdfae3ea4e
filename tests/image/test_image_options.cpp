#include "device_session.h"
#include "image_options_pictures.h"
#include "image_options_settings.h"
#include "image_options_summary.h"
#include "image_shift.h"
#include "print_look.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

Q_DECLARE_METATYPE(kelvo::_IS_Options)

namespace {

_IS_Options shift(bool inches, std::int32_t x1, std::int32_t x2, std::int32_t y1, std::int32_t y2)
{
    _IS_Options options;
    ImageShiftInitialize(nullptr, nullptr, &options);
    options.option = 1;
    options.inches = inches;
    options.x1 = x1;
    options.x2 = x2;
    options.y1 = y1;
    options.y2 = y2;
    return options;
}

Dictionary shiftDictionary(qint64 inches, qint64 x1, qint64 x2, qint64 y1, qint64 y2)
{
    return {{"Option", qint64(1)},
            {"Inches", inches},
            {"FullPrecision", true},
            {"X1", x1},
            {"X2", x2},
            {"Y1", y1},
            {"Y2", y2}};
}

} // namespace

class TestImageOptions : public QObject
{
    Q_OBJECT

private slots:
    void writesAShiftAndReadsItAgain_data();
    void writesAShiftAndReadsItAgain();
    void readsAShiftAsItFindsIt_data();
    void readsAShiftAsItFindsIt();
    void writesNoShiftThatIsNotSet();
    void readsAnInvertedImage_data();
    void readsAnInvertedImage();
    void readsChoicesAndDefaults_data();
    void readsChoicesAndDefaults();
    void writesOnlyWhatTheDeviceHas();
    void readsInATicketThatThePrinterDecides();
    void showsWhatTheJobWillHave_data();
    void showsWhatTheJobWillHave();
    void keepsATonerSaverOfItsOwn();
    void hasAPictureOfEveryChoice();
    void looksAsItWillBePrinted_data();
    void looksAsItWillBePrinted();
    void summarizesForTheDialog();
};

void TestImageOptions::writesAShiftAndReadsItAgain_data()
{
    const Table<_IS_Options, Dictionary, _IS_Options> row{"options", "written", "read"};

    row("inches", shift(true, 100, 0, -100, 72), shiftDictionary(1, 2540, 0, -2540, 1829),
        shift(true, 100, 0, -100, 72));
    // 25.4 rounds to 25, and 25 is less than an inch.
    row("inches that lose their fraction", shift(true, 1, -1, 3, 2),
        shiftDictionary(1, 25, -25, 76, 51), shift(true, 0, 0, 2, 2));
    row("millimetres", shift(false, 7, -3, 0, 1000), shiftDictionary(0, 70, -30, 0, 10000),
        shift(false, 7, -3, 0, 1000));
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    row("beyond 32 bits when written", shift(false, most, -most, 0, 0),
        shiftDictionary(0, 10 * qint64(most), -10 * qint64(most), 0, 0),
        shift(false, most, -most, 0, 0));
}

void TestImageOptions::writesAShiftAndReadsItAgain()
{
    QFETCH(_IS_Options, options);
    QFETCH(Dictionary, written);
    QFETCH(_IS_Options, read);
    const auto dictionary = ImageShiftCreateTicketFromOptions(&options, kJobContextExceptions);
    QVERIFY(dictionary);
    QCOMPARE(*dictionary, written);
    _IS_Options again;
    ImageShiftInitialize(nullptr, nullptr, &again);
    ImageShiftSetOptionsFromTicket(&again, *dictionary);
    QCOMPARE(again, read);
}

void TestImageOptions::readsAShiftAsItFindsIt_data()
{
    const Table<Dictionary, _IS_Options> row{"dictionary", "read"};

    _IS_Options none = shift(true, 0, 0, 0, 0);
    none.option = kUnset;
    const _IS_Options asItStands = shift(true, 2540, 0, 0, -3);
    row("missing keys", {}, none);
    row("without full precision", {{"Option", 1}, {"X1", 2540}, {"Y2", -3}}, asItStands);
    row("full precision that is false",
        {{"Option", 1}, {"FullPrecision", false}, {"X1", 2540}, {"Y2", -3}}, asItStands);
    row("negative tenths of a millimetre",
        {{"Option", 1}, {"Inches", 0}, {"FullPrecision", true}, {"X1", -19}, {"Y1", 19}},
        shift(false, -1, 0, 1, 0));
    row("other types", {{"Option", "1"}, {"Inches", "0"}, {"X1", 2.5}}, none);
    row("too large", {{"Option", 1}, {"X1", qint64(1) << 40}}, shift(true, 0, 0, 0, 0));
}

void TestImageOptions::readsAShiftAsItFindsIt()
{
    QFETCH(Dictionary, dictionary);
    QFETCH(_IS_Options, read);
    _IS_Options options = shift(false, 1, 2, 3, 4); // what was there goes
    options.valid = 0;
    ImageShiftSetOptionsFromTicket(&options, dictionary);
    QCOMPARE(options, read);
}

void TestImageOptions::writesNoShiftThatIsNotSet()
{
    _IS_Options options = shift(true, 1, 2, 3, 4);
    options.option = kUnset;
    QVERIFY(!ImageShiftCreateTicketFromOptions(&options, kJobContextJob));
    options.option = 0;
    QVERIFY(ImageShiftCreateTicketFromOptions(&options, kJobContextJob));
    options.valid = 0;
    QVERIFY(!ImageShiftCreateTicketFromOptions(&options, kJobContextJob));
}

void TestImageOptions::readsAnInvertedImage_data()
{
    const Table<Dictionary, bool, bool> row{"dictionary", "negative", "mirror"};

    row("nothing", {}, false, false);
    row("one", {{"NegativeImage", 1}}, true, false);
    row("both", {{"NegativeImage", 0}, {"MirrorImage", 2}}, false, true);
    row("no numbers", {{"NegativeImage", true}, {"MirrorImage", "1"}}, false, false);
}

void TestImageOptions::readsAnInvertedImage()
{
    QFETCH(Dictionary, dictionary);
    QFETCH(bool, negative);
    QFETCH(bool, mirror);
    II_Options options{.valid = false, .negative = true, .mirror = true};
    InvertImageSetOptionsFromTicket(&options, dictionary);
    QCOMPARE(options, (II_Options{true, negative, mirror}));
    const Dictionary written{{"NegativeImage", qint64(negative)}, {"MirrorImage", qint64(mirror)}};
    QCOMPARE(InvertImageCreateTicketFromOptions(&options), written);
}

void TestImageOptions::readsChoicesAndDefaults_data()
{
    // lighten/darken, toner saver, image quality, CMYK source, output correction
    const Table<QString, PPDDictionary, QList<std::int32_t>> row{"device", "choices", "values"};

    using Values = QList<std::int32_t>;
    row("defaults", "full", {}, Values{0, 2, 2, 3, 1});
    row("choices", "full",
        {{"KVImageQuality", "Lighten1"},
         {"KVEconomode", "Draft"},
         {"KVOutputMode", "HighResolution"},
         {"KVCMYKColorSpace", "JapanColor"},
         {"KVColorCorrection", "None"}},
        Values{-1, 1, 6, 5, 5});
    row("unknown choices", "full", {{"KVImageQuality", "Pale"}, {"KVOutputMode", "Best"}},
        Values{kUnset, 2, -1, 3, 1});
    row("what the device lacks", "bare", {{"KVCMYKColorSpace", "SWOP"}}, Values{0, 2, 2, 2, 77});
}

void TestImageOptions::readsChoicesAndDefaults()
{
    QFETCH(QString, device);
    QFETCH(PPDDictionary, choices);
    QFETCH(QList<std::int32_t>, values);
    const DeviceSession session(device);
    Ticket ticket{{}, choices};
    ImageOptionsSettings settings;
    settings.outputColorCorrection = 77;
    readImageOptions(settings, ticket, currentDevice());
    QCOMPARE((QList{settings.lightenDarken, settings.tonerSaver, settings.imageQuality,
                    settings.cmykSourceColor, settings.outputColorCorrection}),
             values);

    // What cannot be said in choices leaves the ticket's alone.
    writeImageOptions(settings, ticket, currentDevice(), true);
    for (auto choice = choices.cbegin(); choice != choices.cend(); ++choice)
        QCOMPARE(ticket.ppdChoices.value(choice.key()), *choice);
}

void TestImageOptions::writesOnlyWhatTheDeviceHas()
{
    const DeviceSession bare(QStringLiteral("bare"));
    ImageOptionsSettings settings;
    settings.lightenDarken = -3;
    settings.tonerSaver = kTonerSaverOn;
    settings.cmykSourceColor = 2; // of an earlier ticket
    Ticket ticket;
    const auto write = [&](const Device &device, bool opened) {
        writeImageOptions(settings, ticket, device, opened);
        return ticket.ppdChoices;
    };
    QCOMPARE(write(currentDevice(), false), (PPDDictionary{{"KVEconomode", "Draft"}}));
    QCOMPARE(write(currentDevice(), true),
             (PPDDictionary{{"KVEconomode", "Draft"}, {"KVImageQuality", "Lighten3"}}));
    settings.lightenDarken = kUnset;
    QCOMPARE(write(currentDevice(), true), (PPDDictionary{{"KVEconomode", "Draft"}}));
    // Of no PPD nothing is known that a device lacks.
    QCOMPARE(write(Device(), true).value("KVCMYKColorSpace"), QStringLiteral("SWOP"));
}

// A preset of such a job, or a ticket, in a dialog that begins with it.
void TestImageOptions::readsInATicketThatThePrinterDecides()
{
    const DeviceSession session(QStringLiteral("full"));
    const Device device = currentDevice();
    Ticket ticket;
    ImageOptionsSettings chosen;
    readImageOptions(chosen, ticket, device);
    chosen.lightenDarken = kUnset;
    writeImageOptions(chosen, ticket, device, true);
    const Ticket written = ticket;

    ImageOptionsSettings read;
    readImageOptions(read, ticket, device);
    QVERIFY(leavesLightnessToPrinter(read));
    writeImageOptions(read, ticket, device, true);
    QVERIFY(ticket == written);
    // A choice that is laid over it is the job's.
    ticket.ppdChoices.insert(QStringLiteral("KVImageQuality"), QStringLiteral("Darken2"));
    readImageOptions(read, ticket, device);
    QCOMPARE(read.lightenDarken, 2);
    writeImageOptions(read, ticket, device, true);
    QCOMPARE(ticket.entries.size(), written.entries.size() - 1);
}

void TestImageOptions::showsWhatTheJobWillHave_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<std::int32_t>("lightness");
    QTest::addColumn<QString>("kept"); // a choice of the ticket
    QTest::addColumn<std::int32_t>("color");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("pictures"); // of the lightness and of the CMYK colour

    QTest::newRow("a step") << "full" << 2 << "" << 2 << true << "Darken 2"
                            << "LightenDarken_Darken2 ColorCorrection_CMYKSourceColor";
    QTest::newRow("the printer's default")
        << "full" << kUnset << "" << 9 << false << "The printer’s default is “Normal”."
        << "LightenDarken_Normal ";
    QTest::newRow("a step that the job keeps")
        << "full" << kUnset << "Lighten4" << 2 << false
        << "The job already says “Lighten 4”, and keeps it."
        << "LightenDarken_Lighten4 ColorCorrection_CMYKSourceColor";
    QTest::newRow("a choice that the job keeps and is no step")
        << "full" << kUnset << "Pale" << 2 << false << "The job already says “Pale”, and keeps it."
        << "LightenDarken_Normal ColorCorrection_CMYKSourceColor";
    QTest::newRow("a device without colors") << "bare" << -1 << "" << 2 << true << "Lighten 1"
                                             << "LightenDarken_Lighten1 ";
    QTest::newRow("nothing known of the device")
        << "" << -1 << "" << 2 << false << "This device does not offer it."
        << " ";
}

void TestImageOptions::showsWhatTheJobWillHave()
{
    QFETCH(QString, device);
    QFETCH(std::int32_t, lightness);
    QFETCH(QString, kept);
    QFETCH(std::int32_t, color);
    const DeviceSession session(device);
    ImageOptionsSettings settings;
    settings.lightenDarken = lightness;
    settings.cmykSourceColor = color;
    if (!kept.isEmpty())
        settings.keptLightness = kept;
    const Device current = currentDevice(session.bundle);
    QTEST(choosesLightness(settings, current), "isEnabled");
    QTEST(lightenDarkenWords(settings, current), "words");
    const ImageOptionsPictures pictures = imageOptionsPictures(settings, current);
    const auto nameOf = [](const QString &picture) {
        return picture.section(u'_', 1).section(u'.', 0, 0);
    };
    QTEST(nameOf(pictures.lightenDarken) + u' ' + nameOf(pictures.cmykSourceColor), "pictures");
}

void TestImageOptions::keepsATonerSaverOfItsOwn()
{
    ImageOptionsSettings settings;
    settings.tonerSaver = -1;
    QList<std::int32_t> values;
    for (const bool isOn : {false, true, false}) {
        setTonerSaver(settings, isOn);
        values << settings.tonerSaver;
    }
    QCOMPARE(values, (QList<std::int32_t>{-1, kTonerSaverOn, kTonerSaverOff}));
}

void TestImageOptions::hasAPictureOfEveryChoice()
{
    QStringList names;
    for (std::int32_t value = -6; value <= 7; ++value)
        names << lightenDarkenPicture(value) << imageQualityPicture(value)
              << tonerSaverPicture(value) << cmykSourceColorPicture(value)
              << outputColorCorrectionPicture(value);
    for (const int flags : {0, 1, 2, 3})
        names << invertImagePicture({true, (flags & 1) != 0, (flags & 2) != 0});

    // A negative shows the page as it is.
    QCOMPARE(
        names.mid(names.size() - 4),
        QStringList({"ImageOptions_InvertImage_Off.gif", "ImageOptions_InvertImage_Off.gif",
                     "ImageOptions_InvertImage_Mirror.gif", "ImageOptions_InvertImage_Off.gif"}));
    QStringList qualities;
    for (std::int32_t value = 0; value <= 7; ++value)
        qualities << imageQualityPicture(value).section(u'_', 2).section(u'.', 0, 0);
    QCOMPARE(qualities.join(u' '),
             QStringLiteral(" TonerSaver Standard Enhanced TonerSaver Standard Enhanced "));
    QCOMPARE(names.removeAll(QString()), 8 + 2 * 9); // beyond quality 6 and colour 5
}

void TestImageOptions::looksAsItWillBePrinted_data()
{
    const Table<QString, PPDDictionary, QString> row{"device", "choices", "look"};

    row("as it is", "full", {}, "");
    row("the lightest", "full", {{"KVImageQuality", "Lighten5"}}, "lighter");
    row("the darkest", "full", {{"KVImageQuality", "Darken5"}}, "darker");
    row("a lightness that is no step", "full", {{"KVImageQuality", "Pale"}}, "");
    row("saving toner", "full", {{"KVEconomode", "Draft"}}, "lighter");
    row("a draft", "full", {{"KVOutputMode", "TonerSaver"}}, "lighter coarse");
    row("a fast one", "full", {{"KVOutputMode", "HighSpeed"}}, "coarse");
    row("high quality", "full", {{"KVOutputMode", "HighQuality"}}, "fine");
    row("high resolution", "mid", {{"KVOutputMode", "HighResolution"}}, ""); // not on this device
    row("black and white", "full", {{"KVColorMode", "Grayscale"}}, "gray");
    row("corrected to black and white", "mid", {{"KVColorCorrection", "BlackWhite"}}, "gray");
    row("as a press prints", "full", {{"KVColorCorrection", "PressMatch"}}, "muted");
    row("uncorrected", "full", {{"KVColorCorrection", "None"}}, "strong");
    row("a device without colors", "bare", {{"KVColorCorrection", "None"}}, "gray");
}

void TestImageOptions::looksAsItWillBePrinted()
{
    QFETCH(QString, device);
    QFETCH(PPDDictionary, choices);
    const DeviceSession session(device);
    ImageOptionsSettings settings;
    readImageOptions(settings, Ticket{{}, choices}, currentDevice());
    const PrintLook plain = printLook({}, {});
    const auto words = [&plain](const PrintLook &look) {
        const int middle = toneCurve(look)[128];
        const std::pair<bool, const char *> rows[] = {
            {look.saturation == 0, "gray"},
            {look.saturation > 0 && look.saturation < 1, "muted"},
            {look.saturation > 1, "strong"},
            {middle > 128, "lighter"},
            {middle < 128, "darker"},
            {look.fineness < plain.fineness, "coarse"},
            {look.fineness > plain.fineness, "fine"},
        };
        QStringList said;
        for (const auto &[isSo, word] : rows) {
            if (isSo)
                said << QLatin1String(word);
        }
        return said.join(u' ');
    };
    const PrintLook look = printLook(settings, currentDevice());
    QTEST(words(look), "look");
    QCOMPARE(toneCurve(look)[255], 255); // paper takes no toner

    // Of a negative it is the paper that does.
    settings.invert = {.valid = true, .negative = true, .mirror = true};
    const PrintLook inverted = printLook(settings, currentDevice());
    QCOMPARE(toneCurve(inverted)[255], toneCurve(look)[0]);
    QVERIFY(inverted.isMirrored);
}

void TestImageOptions::summarizesForTheDialog()
{
    const auto summary = [](const QString &device, const ImageOptionsSettings &settings) {
        const DeviceSession session(device);
        QStringList lines;
        for (const SummaryLine &line : imageOptionsSummary(settings, currentDevice()))
            lines << line.title + u' ' + line.text;
        return lines.join(u'|');
    };
    ImageOptionsSettings settings;
    settings.lightenDarken = -3;
    settings.imageQuality = 5;
    settings.tonerSaver = kTonerSaverOn;
    settings.cmykSourceColor = 2;
    settings.outputColorCorrection = 4;
    settings.invert.mirror = true;
    QCOMPARE(summary(QStringLiteral("full"), settings),
             QStringLiteral("Lighten/darken: Lighten 3|Image quality: High quality|"
                            "Toner saver: Use less toner|CMYK source color: SWOP|"
                            "Output color correction: Press match|Invert image: Mirror image"));
    settings.lightenDarken = kUnset;
    settings.invert.mirror = false;
    QCOMPARE(summary(QStringLiteral("bare"), settings),
             QStringLiteral("Lighten/darken: Printer default|Image quality: High quality|"
                            "Toner saver: Use less toner"));
}

QTEST_MAIN(TestImageOptions)
#include "test_image_options.moc"
