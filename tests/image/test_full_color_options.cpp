#include "full_color_options.h"
#include "table.h"

#include <QTest>

using namespace kelvo;

namespace {

using Number = std::int32_t;
using Name = std::optional<QString>;
using Options = FullColorOptions;

struct ProfileRow
{
    const char *key;
    Number namedKind;
    OSStatus (Options::*get)(Number *, Name *) const;
    OSStatus (Options::*set)(Number, const Name &);
};
constexpr ProfileRow profileRows[] = {
    {"RGBImagesProfile", 5, &Options::rgbImagesProfile, &Options::setRGBImagesProfile},
    {"RGBTextAndGraphicsProfile", 5, &Options::rgbTextAndGraphicsProfile,
     &Options::setRGBTextAndGraphicsProfile},
    {"CMYKImagesProfile", 3, &Options::cmykImagesProfile, &Options::setCMYKImagesProfile},
    {"CMYKTextAndGraphicsProfile", 3, &Options::cmykTextAndGraphicsProfile,
     &Options::setCMYKTextAndGraphicsProfile},
    {"DestinationProfile", 2, &Options::destinationProfile, &Options::setDestinationProfile},
};

struct NumberRow
{
    const char *key;
    OSStatus (Options::*get)(Number *) const;
    OSStatus (Options::*set)(Number);
    Number most; // either way; 0: any
};
constexpr NumberRow numberRows[] = {
    {"FCLightness", &Options::lightness, &Options::setLightness, 100},
    {"FCContrast", &Options::contrast, &Options::setContrast, 100},
    {"FCSaturation", &Options::saturation, &Options::setSaturation, 100},
    {"FCTrapping", &Options::trapping, &Options::setTrapping, 0},
    {"FCBlackOverprint", &Options::blackOverprint, &Options::setBlackOverprint, 0},
    {"ImageRendering", &Options::imageObjectRendering, &Options::setImageObjectRendering, 0},
    {"TextRendering", &Options::textObjectRendering, &Options::setTextObjectRendering, 0},
    {"GraphicRendering", &Options::graphicObjectRendering, &Options::setGraphicObjectRendering, 0},
};

struct GrayRow
{
    const char *key;
    OSStatus (Options::*get)(Name *) const;
    OSStatus (Options::*set)(const Name &);
};
constexpr GrayRow grayRows[] = {
    {"GrayImagesProfile", &Options::grayImagesProfile, &Options::setGrayImagesProfile},
    {"GrayTextAndGraphicsProfile", &Options::grayTextAndGraphicsProfile,
     &Options::setGrayTextAndGraphicsProfile},
};

QString characters(int count)
{
    return QString(count, QChar(u'n'));
}

// One of everything.
Dictionary everything()
{
    return {{"FCLightness", qint64(-100)},
            {"FCContrast", qint64(100)},
            {"FCSaturation", qint64(7)},
            {"FCColorCast",
             Dictionary{{"FCCyanRed", qint64(1)},
                        {"FCMagentaGreen", qint64(-2)},
                        {"FCYellowBlue", qint64(3)}}},
            {"FCTrapping", qint64(1)},
            {"FCTrappingFastDirection", qint64(20)},
            {"FCTrappingSlowDirection", qint64(0)},
            {"FCBlackOverprint", qint64(4)},
            {"FCTRC", "Curve"},
            {"RGBImagesProfile", "Lamp"},
            {"RGBTextAndGraphicsProfile", qint64(2)},
            {"CMYKImagesProfile", "Press"},
            {"CMYKTextAndGraphicsProfile", qint64(5)},
            {"GrayImagesProfile", "Gray"},
            {"GrayTextAndGraphicsProfile", "Slate"},
            {"DestinationProfile", "Hall 3"},
            {"ImageRendering", qint64(0)},
            {"TextRendering", qint64(1)},
            {"GraphicRendering", qint64(-1)}};
}

// `base` with the entries of `other` in place of its own; an invalid value takes
// its key away.
Dictionary with(Dictionary base, const Dictionary &other)
{
    for (auto entry = other.cbegin(); entry != other.cend(); ++entry) {
        if (entry->isValid())
            base.insert(entry.key(), *entry);
        else
            base.remove(entry.key());
    }
    return base;
}

} // namespace

class TestFullColorOptions : public QObject
{
    Q_OBJECT

private slots:
    void setsNumbersWithinTheirRange();
    void setsColorCastAndTrappingWholeOrNotAtAll();
    void setsProfilesByKindAndName();
    void setsGrayProfilesAndTheCurve();
    void writesWhatIsSet_data();
    void writesWhatIsSet();
    void readsOverWhatIsThere_data();
    void readsOverWhatIsThere();
    void copiesOnlyNamesInUse();
};

void TestFullColorOptions::setsNumbersWithinTheirRange()
{
    for (const NumberRow &row : numberRows) {
        FullColorOptions options;
        Number value = 0;
        QCOMPARE((options.*row.get)(nullptr), paramErr);
        QCOMPARE((options.*row.get)(&value), noErr);
        QCOMPARE(value, kUnset);
        QCOMPARE((options.*row.set)(-100), noErr);
        QCOMPARE((options.*row.set)(100), noErr);
        QCOMPARE(options.asTicket().value(row.key), QVariant(qint64(100)));
        for (const Number beyond : {-101, 101, kUnset + 1}) {
            QCOMPARE((options.*row.set)(beyond), row.most ? paramErr : noErr);
            (options.*row.get)(&value);
            QCOMPARE(value, row.most ? 100 : beyond);
        }
        QCOMPARE((options.*row.set)(kUnset), noErr);
        QCOMPARE(options.asTicket(), Dictionary());
    }
}

void TestFullColorOptions::setsColorCastAndTrappingWholeOrNotAtAll()
{
    FullColorOptions options;
    QCOMPARE(options.setColorCast(-100, kUnset, 100), noErr);
    QCOMPARE(options.setColorCast(1, 2, 101), paramErr);
    QCOMPARE(options.setColorCast(1, -101, 2), paramErr);
    QCOMPARE(options.setColorCast(101, 1, 2), paramErr);
    Number cyan = 0, magenta = 0, yellow = 0;
    QCOMPARE(options.colorCast(nullptr, nullptr, nullptr), paramErr);
    QCOMPARE(options.colorCast(&cyan, nullptr, &yellow), noErr);
    QCOMPARE(options.colorCast(nullptr, &magenta, nullptr), noErr);
    QCOMPARE((QList{cyan, magenta, yellow}), (QList{-100, kUnset, 100}));

    QCOMPARE(options.setTrappingAdjustment(20, 0), noErr);
    for (const auto &[slow, fast] : {std::pair(21, 0), {-1, 0}, {0, 21}, {0, -1}})
        QCOMPARE(options.setTrappingAdjustment(slow, fast), paramErr);
    Number slow = 0, fast = 1;
    QCOMPARE(options.trappingAdjustment(nullptr, nullptr), paramErr);
    QCOMPARE(options.trappingAdjustment(&slow, nullptr), noErr);
    QCOMPARE(options.trappingAdjustment(nullptr, &fast), noErr);
    QCOMPARE((QList{slow, fast}), (QList{20, 0}));
    QCOMPARE(options.setTrappingAdjustment(kUnset, 3), noErr);
}

void TestFullColorOptions::setsProfilesByKindAndName()
{
    for (const ProfileRow &row : profileRows) {
        FullColorOptions options;
        Number kind = 0;
        Name name = QStringLiteral("untouched");
        QCOMPARE((options.*row.get)(nullptr, &name), paramErr);
        QCOMPARE((options.*row.get)(&kind, nullptr), paramErr);
        QCOMPARE((options.*row.get)(&kind, &name), noErr);
        QCOMPARE(kind, kUnset);
        QCOMPARE(name, QStringLiteral("untouched"));

        QCOMPARE((options.*row.set)(row.namedKind, std::nullopt), paramErr);
        QCOMPARE((options.*row.set)(row.namedKind, characters(256)), paramErr);
        QCOMPARE(options.asTicket(), Dictionary());
        QCOMPARE((options.*row.set)(row.namedKind, characters(255)), noErr);
        QCOMPARE((options.*row.get)(&kind, &name), noErr);
        QCOMPARE(kind, row.namedKind);
        QCOMPARE(name, characters(255));

        // Another kind takes no name, and the old one is there when it is named again.
        QCOMPARE((options.*row.set)(1, characters(256)), noErr);
        name = QStringLiteral("untouched");
        QCOMPARE((options.*row.get)(&kind, &name), noErr);
        QCOMPARE(kind, 1);
        QCOMPARE(name, QStringLiteral("untouched"));
        const Dictionary named{{row.key, row.namedKind}};
        options.fromTicket(&named);
        (options.*row.get)(&kind, &name);
        QCOMPARE(name, characters(255));
    }
}

void TestFullColorOptions::setsGrayProfilesAndTheCurve()
{
    FullColorOptions options;
    for (const GrayRow &row : grayRows) {
        Name name;
        QCOMPARE((options.*row.get)(nullptr), paramErr);
        QCOMPARE((options.*row.set)(characters(255)), noErr);
        QCOMPARE((options.*row.set)(characters(256)), paramErr);
        QCOMPARE((options.*row.set)(std::nullopt), paramErr);
        QCOMPARE((options.*row.get)(&name), noErr);
        QCOMPARE(name, characters(255));
    }
    Name curve;
    QCOMPARE(options.trc(nullptr), paramErr);
    QCOMPARE(options.setTRC(characters(300)), noErr);
    QCOMPARE(options.trc(&curve), noErr);
    QCOMPARE(curve, characters(300));
    QCOMPARE(options.setTRC(std::nullopt), noErr);
    QVERIFY(!options.asTicket().contains("FCTRC"));
}

void TestFullColorOptions::writesWhatIsSet_data()
{
    const Table<Dictionary, Dictionary> row{"read", "written"};

    const Dictionary directions{{"FCTrappingFastDirection", qint64(2)},
                                {"FCTrappingSlowDirection", qint64(3)}};
    row("everything", everything(), everything());
    row("nothing", {}, {});
    row("two of three casts", {{"FCColorCast", Dictionary{{"FCCyanRed", 1}, {"FCYellowBlue", 2}}}},
        {});
    row("trapping without adjustments", with(directions, {{"FCTrapping", 0}}),
        {{"FCTrapping", qint64(0)}});
    row("directions without trapping", directions, {});
    row("trapping with adjustments", with(directions, {{"FCTrapping", 1}}),
        with(directions, {{"FCTrapping", qint64(1)}}));
    row("a named kind without a name", {{"CMYKImagesProfile", 3}},
        {{"CMYKImagesProfile", qint64(3)}});
}

void TestFullColorOptions::writesWhatIsSet()
{
    QFETCH(Dictionary, read);
    QTEST(FullColorOptions(&read).asTicket(), "written");
}

void TestFullColorOptions::readsOverWhatIsThere_data()
{
    // changes: in the dictionary form of everything
    const Table<Dictionary, Dictionary> table{"read", "changes"};

    // Without the key trapping goes, and its directions with it.
    const Dictionary noTrapping{
        {"FCTrapping", {}}, {"FCTrappingFastDirection", {}}, {"FCTrappingSlowDirection", {}}};
    const auto row = [&](const char *name, const Dictionary &read, const Dictionary &changes) {
        table(name, read, with(noTrapping, changes));
    };
    row("nothing", {}, {});
    row("beyond every range",
        {{"FCLightness", 500}, {"FCTrapping", 1}, {"FCTrappingFastDirection", 21}},
        {{"FCLightness", qint64(500)},
         {"FCTrapping", qint64(1)},
         {"FCTrappingFastDirection", qint64(21)}});
    row("some casts", {{"FCColorCast", Dictionary{{"FCCyanRed", 9}}}},
        {{"FCColorCast",
          Dictionary{{"FCCyanRed", qint64(9)},
                     {"FCMagentaGreen", qint64(-2)},
                     {"FCYellowBlue", qint64(3)}}}});
    row("a name that is too long",
        {{"RGBImagesProfile", characters(256)}, {"GrayImagesProfile", characters(256)}}, {});
    row("the longest names",
        {{"CMYKTextAndGraphicsProfile", characters(255)}, {"GrayImagesProfile", characters(255)}},
        {{"CMYKTextAndGraphicsProfile", characters(255)}, {"GrayImagesProfile", characters(255)}});
    row("kinds", {{"RGBImagesProfile", 2}, {"DestinationProfile", 1}},
        {{"RGBImagesProfile", qint64(2)}, {"DestinationProfile", qint64(1)}});
    row("other types",
        {{"FCLightness", "500"},
         {"FCContrast", 2.5},
         {"FCSaturation", true},
         {"FCColorCast", Array{1, 2, 3}},
         {"FCTrapping", "1"},
         {"FCTrappingSlowDirection", 4},
         {"FCBlackOverprint", qint64(1) << 40},
         {"FCTRC", 12},
         {"RGBImagesProfile", Dictionary()},
         {"CMYKImagesProfile", true},
         {"GrayImagesProfile", 3},
         {"DestinationProfile", QByteArray("Hall")},
         {"TextRendering", Array()}},
        {});
}

void TestFullColorOptions::readsOverWhatIsThere()
{
    QFETCH(Dictionary, read);
    QFETCH(Dictionary, changes);
    const Dictionary all = everything();
    FullColorOptions options(&all);
    options.fromTicket(&read);
    QCOMPARE(options.asTicket(), with(all, changes));
}

// A name that is held for another time stays behind.
void TestFullColorOptions::copiesOnlyNamesInUse()
{
    const Dictionary all = everything();
    FullColorOptions options(&all);
    options.setRGBImagesProfile(2, std::nullopt);
    const FullColorOptions copy(options);
    FullColorOptions assigned;
    assigned = options;
    QCOMPARE(copy.asTicket(), options.asTicket());
    QCOMPARE(assigned.asTicket(), options.asTicket());

    const Dictionary named{{"RGBImagesProfile", 5}};
    FullColorOptions first = copy, second;
    first.fromTicket(&named);
    second = assigned;
    second.fromTicket(&named);
    Number kind = 0;
    Name name;
    first.rgbImagesProfile(&kind, &name);
    QCOMPARE(kind, 5);
    QCOMPARE(name, std::nullopt);
    second.rgbImagesProfile(&kind, &name);
    QCOMPARE(name, QStringLiteral("Lamp"));
}

QTEST_GUILESS_MAIN(TestFullColorOptions)
#include "test_full_color_options.moc"
