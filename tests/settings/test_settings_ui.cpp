#include "event.h"
#include "input_limits.h"
#include "k_combo_box.h"
#include "localized_controls.h"
#include "popups.h"
#include "preferences.h"
#include "setting_maps.h"
#include "summary_view.h"
#include "tab_control.h"
#include "table.h"

#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTest>

using namespace kelvo;

namespace {

const QString key = QStringLiteral("jobNotesJobName");
constexpr std::int32_t kujn = 0x4b756a6e; // 'Kujn'

// "text command reference" of every item.
QStringList described(const Menu &menu)
{
    QStringList items;
    for (const MenuItem &item : menu.items)
        items << QStringLiteral("%1 %2 %3").arg(item.text).arg(item.command).arg(item.reference);
    return items;
}

OSStatus send(EventKind kind, QWidget *source)
{
    Event event;
    event.kind = kind;
    event.source = source;
    return sendEvent(event);
}

} // namespace

class TestSettingsUi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const auto opened = Bundle::open(QStringLiteral(KELVO_BUILD_DIR "/tests/settings.pde"));
        QVERIFY2(opened, qPrintable(opened ? QString() : opened.error().text()));
        m_bundle = opened.value();
    }
    void cleanup()
    {
        WriteUserPreferences(kInputHistoryFile, {});
        QLocale::setDefault(QLocale::c());
    }

    void popupsKeepTheMapsLengthAsMaximum();
    void historyStandsInsideAPopup_data();
    void historyStandsInsideAPopup();
    void popupsShowTheFirstItemOfAValue();
    void onlyTheChosenPaneIsShown();
    void summariesRefuseNoTextOnly();
    void textsTakeTheirArgumentsAsTheyStand();
    void comboBoxesNeedTheirContext();
    void comboBoxesListMapAndValidHistory();
    void typedNumbersAreKeptInTheirRange_data();
    void typedNumbersAreKeptInTheirRange();
    void leavingAFieldKeepsItsNumberInRange();
    void comboBoxesShowValues_data();
    void comboBoxesShowValues();
    void comboBoxesAnswerMapValuesAndTexts();
    void savesNewTextsOnly_data();
    void savesNewTextsOnly();

private:
    KComboBoxOptions numbers() const
    {
        KComboBoxOptions options;
        options.kind = kComboBoxNumeric;
        options.bundle = m_bundle;
        options.minimumValue = 1;
        options.maximumValue = 9999;
        return options;
    }
    KComboBoxOptions names() const
    {
        KComboBoxOptions options;
        options.bundle = m_bundle;
        options.map = JobNameMap;
        options.historyKey = key;
        options.historyLimit = 3;
        options.minimumLength = 2;
        options.maximumLength = 20;
        return options;
    }

    CFBundleRef m_bundle = nullptr;
};

void TestSettingsUi::popupsKeepTheMapsLengthAsMaximum()
{
    PopupButton popup;
    QCOMPARE(PopulatePopupButtonFromMap(m_bundle, &popup, PlexMap, kJobContextJob, kNoCommand), 3);
    QCOMPARE(PopulatePopupButtonFromMap(m_bundle, &popup, JobTypeMap, kJobContextJob, kNoCommand),
             6); // the fax row is not there
    QCOMPARE(popup.count(), 5);
    QCOMPARE(popup.maximum(), 6);
    QCOMPARE(popup.menu().reference, static_cast<const void *>(JobTypeMap));
    QCOMPARE(PopulatePopupButtonFromMap(m_bundle, nullptr, PlexMap, kJobContextJob, kNoCommand), 0);
}

void TestSettingsUi::historyStandsInsideAPopup_data()
{
    // order: map items as numbers
    const Table<int, QString> row{"insertAfter", "order"};

    row("in front", 0, "a b 1 2 3");
    row("after the first", 1, "1 a b 2 3");
    row("at the end", 3, "1 2 3 a b");
    row("beyond the end", 9, "1 2 3 a b");
}

void TestSettingsUi::historyStandsInsideAPopup()
{
    QFETCH(int, insertAfter);
    WriteUserPreferences(kInputHistoryFile, {{key, QVariantList{"a", "b"}}});
    PopupButton popup;
    const int count =
        PopulatePopupButtonFromMapAndHistory(m_bundle, &popup, PlexMap, kJobContextJob, key,
                                             insertAfter, fourCharCode("Hist"), kNoCommand);
    QCOMPARE(count, 5);
    QCOMPARE(popup.maximum(), 5);
    QStringList found;
    for (const MenuItem &item : popup.menu().items) {
        const bool isHistory = item.command == fourCharCode("Hist");
        found << (isHistory ? item.text : QString::number(item.reference));
    }
    QTEST(found.join(QLatin1Char(' ')), "order");
}

void TestSettingsUi::popupsShowTheFirstItemOfAValue()
{
    PopupButton popup;
    PopulatePopupButtonFromMap(m_bundle, &popup, RotateImageMap, kJobContextJob, kNoCommand);
    popup.setValue(3);
    QVERIFY(!SetPopupButtonToTicketValue(&popup, 7));
    QCOMPARE(popup.value(), 3);
    QVERIFY(SetPopupButtonToTicketValue(&popup, kujn));
    QCOMPARE(popup.value(), 1); // the rows share their value
    QCOMPARE(GetPopupButtonTicketValue(&popup), kujn);
    QVERIFY(!SetPopupButtonToTicketValue(nullptr, kujn));
}

void TestSettingsUi::onlyTheChosenPaneIsShown()
{
    TabControl tabs;
    tabs.addTab("Paper");
    tabs.addTab("Image");
    QWidget first;
    QWidget second;
    QWidget *const panes[] = {&first, nullptr, &second};
    tabs.addTab("Last");
    tabs.setValue(3);
    UpdateTabControl(&tabs, 3, panes);
    QVERIFY(first.isHidden() && !first.isEnabled());
    QVERIFY(!second.isHidden() && second.isEnabled());
    tabs.setValue(1);
    UpdateTabControl(&tabs, 3, panes);
    QVERIFY(!first.isHidden() && first.isEnabled());
    QVERIFY(second.isHidden() && !second.isEnabled());
}

void TestSettingsUi::summariesRefuseNoTextOnly()
{
    SummaryView view;
    QCOMPARE(UpdateSummaryTextView(&view, "- <b>Letter</b>\n- White"), noErr);
    QCOMPARE(UpdateSummaryTextView(&view, QString()), paramErr);
    QCOMPARE(view.toPlainText(), QStringLiteral("- <b>Letter</b>\n- White"));
    QCOMPARE(UpdateSummaryTextView(&view, QStringLiteral("")), noErr);
    QCOMPARE(view.toPlainText(), QString());
    QCOMPARE(UpdateSummaryTextView(nullptr, "x"), paramErr);
}

void TestSettingsUi::textsTakeTheirArgumentsAsTheyStand()
{
    QLabel label;
    SetLocalizedStaticText(m_bundle, "Simplex", &label);
    QCOMPARE(label.text(), QStringLiteral("1-sided print"));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    SetLocalizedStaticText(m_bundle, "No such key", &label);
    QCOMPARE(label.text(), QStringLiteral("STRING NOT FOUND"));
    SetLocalizedStaticText(nullptr, "Simplex", &label);
    SetLocalizedStaticText(m_bundle, "", &label);
    QCOMPARE(label.text(), QStringLiteral("STRING NOT FOUND"));

    QPushButton button;
    SetLocalizedControlTitle(m_bundle, "Test of %1 and %2", &button, {"Black & White", "%1"});
    QCOMPARE(button.text(), QStringLiteral("Black && White, then %1"));
    SetLocalizedWindowTitle(m_bundle, "Test of %1 and %2", &button, {"a & b", "c"});
    QCOMPARE(button.windowTitle(), QStringLiteral("a & b, then c"));

    Menu menu;
    menu.items.resize(2);
    SetLocalizedMenuTitle(m_bundle, "Duplex", &menu, 2);
    SetLocalizedMenuTitle(m_bundle, "Duplex", &menu, 3);
    SetLocalizedMenuTitle(m_bundle, "Duplex", &menu, 0);
    QCOMPARE(described(menu), QStringList({" 0 0", "2-sided print 0 0"}));
}

void TestSettingsUi::comboBoxesNeedTheirContext()
{
    HistoryField field;
    QVariant out;
    QCOMPARE(KComboBoxCopyValue(&field, &out), kNoSuchProperty);
    QCOMPARE(KComboBoxSetValue(&field, 1), kNoSuchProperty);
    QCOMPARE(KComboBoxFinalize(&field, true), kNoSuchProperty);
    QCOMPARE(KComboBoxSetValue(nullptr, 1), paramErr);
    QCOMPARE(KComboBoxSetValue(&field, QVariant()), paramErr);
    QCOMPARE(KComboBoxInitializeWithMapAndHistory(nullptr, numbers()), paramErr);

    QCOMPARE(KComboBoxInitializeWithMapAndHistory(&field, numbers()), noErr);
    QCOMPARE(KComboBoxFinalize(&field, false), noErr);
    QCOMPARE(KComboBoxCopyValue(&field, &out), kNoSuchProperty);
    field.setText("0"); // nobody clamps it any more
    send(EventKind::FocusChanged, &field);
    QCOMPARE(field.text(), QStringLiteral("0"));
}

void TestSettingsUi::comboBoxesListMapAndValidHistory()
{
    WriteUserPreferences(kInputHistoryFile, {{key, QVariantList{"Report", "x", "Plan"}}});
    HistoryField field;
    KComboBoxOptions options = names();
    options.map = JobTypeMap; // gated rows too
    QCOMPARE(KComboBoxInitializeWithMapAndHistory(&field, options), noErr);
    QCOMPARE(field.items(),
             QStringList({"Normal", "Secure print", "Sample set", "Delayed print", "Saved job",
                          "Fax", "Report", "Plan"}));
    KComboBoxFinalize(&field, true); // no text
    QCOMPARE(readHistory(key), QStringList({"Report", "x", "Plan"}));

    HistoryField unset;
    constexpr SettingMap withUnset[] = {{"Simplex", kUnset}, kEndOfMap};
    options.map = withUnset;
    options.historyKey.clear();
    KComboBoxInitializeWithMapAndHistory(&unset, options);
    QCOMPARE(unset.items(), QStringList{"1-sided print"}); // under its own key
}

void TestSettingsUi::typedNumbersAreKeptInTheirRange_data()
{
    const Table<QString, int, qint64, QString> row{"typed", "status", "value", "shown"};

    row("in range", "1234", int(noErr), 1234, "1234");
    row("below", "0", int(noErr), 10, "10");
    row("above", "9999", int(noErr), 5000, "5.000");
    row("a fifth digit", "12345", int(noErr), 1234, "1234");
    row("letters and signs", "-1a,2.3", int(noErr), 123, "123");
    row("nothing", "", int(kComboBoxNoValue), 77, "");
}

void TestSettingsUi::typedNumbersAreKeptInTheirRange()
{
    QFETCH(QString, typed);
    QFETCH(qint64, value);
    QLocale::setDefault(QLocale("de_DE"));
    HistoryField field;
    KComboBoxOptions options = numbers();
    options.minimumValue = 10;
    options.maximumValue = 5000;
    KComboBoxInitializeWithMapAndHistory(&field, options);
    typeText(&field, typed);
    QVariant out = qint64(77);
    QTEST(KComboBoxCopyValue(&field, &out), "status");
    QCOMPARE(out, QVariant(value));
    QTEST(field.text(), "shown");
}

void TestSettingsUi::leavingAFieldKeepsItsNumberInRange()
{
    HistoryField field;
    KComboBoxOptions options = numbers();
    constexpr SettingMap map[] = {{"Zero pages", 77}, kEndOfMap}; // its text is "0"
    options.map = map;
    KComboBoxInitializeWithMapAndHistory(&field, options);
    typeText(&field, "00");
    send(EventKind::TextChanged, &field);
    QCOMPARE(field.text(), QStringLiteral("00")); // while it is typed
    QCOMPARE(send(EventKind::FocusChanged, &field), eventNotHandledErr);
    QCOMPARE(field.text(), QStringLiteral("1"));
    QVERIFY(field.chooseItem(0));
    send(EventKind::FocusChanged, &field);
    QCOMPARE(field.text(), QStringLiteral("0"));
    QVariant out;
    QCOMPARE(KComboBoxCopyValue(&field, &out), noErr);
    QCOMPARE(out, QVariant(qint64(77)));

    field.setText("no number");
    out.clear();
    QCOMPARE(KComboBoxCopyValue(&field, &out), paramErr);
    QVERIFY(!out.isValid());
}

void TestSettingsUi::comboBoxesShowValues_data()
{
    const Table<QVariant, int, QString> row{"value", "status", "shown"};

    row("text", QVariant("1.234"), int(noErr), "1.234");
    row("number of the map", QVariant(2), int(noErr), "2-sided print");
    row("another number", QVariant(qint64(1234)), int(noErr), "1.234");
    row("neither", QVariant(true), int(paramErr), "before");
}

void TestSettingsUi::comboBoxesShowValues()
{
    QFETCH(QVariant, value);
    QLocale::setDefault(QLocale("de_DE"));
    HistoryField field;
    KComboBoxOptions options = numbers();
    options.map = PlexMap;
    KComboBoxInitializeWithMapAndHistory(&field, options);
    field.setText("before");
    QTEST(KComboBoxSetValue(&field, value), "status");
    QTEST(field.text(), "shown");
}

void TestSettingsUi::comboBoxesAnswerMapValuesAndTexts()
{
    HistoryField field;
    KComboBoxInitializeWithMapAndHistory(&field, names());
    QVariant out;
    field.setText("Use document name");
    QCOMPARE(KComboBoxCopyValue(&field, &out), noErr);
    QCOMPARE(out, QVariant(qint64(kujn)));
    field.setText("Use document names");
    QCOMPARE(KComboBoxCopyValue(&field, &out), noErr);
    QCOMPARE(out, QVariant("Use document names"));
    QCOMPARE(KComboBoxCopyValue(&field, nullptr), paramErr);
}

void TestSettingsUi::savesNewTextsOnly_data()
{
    const Table<QString, bool, QString> row{"text", "save", "history"};

    row("new, above the limit", "new", true, "new|aa|x");
    row("not asked to", "new", false, "aa|x|bb");
    row("empty", "", true, "aa|x|bb");
    row("in the history", "bb", true, "aa|x|bb");
    row("in the map", "Use document name", true, "aa|x|bb");
    row("in another letter case", "BB", true, "BB|aa|x");
}

void TestSettingsUi::savesNewTextsOnly()
{
    QFETCH(QString, text);
    QFETCH(bool, save);
    // "x" is too short to be offered, and stays.
    WriteUserPreferences(kInputHistoryFile, {{key, QVariantList{"aa", "x", "bb"}}});
    HistoryField field;
    KComboBoxInitializeWithMapAndHistory(&field, names());
    field.setText(text);
    QCOMPARE(KComboBoxFinalize(&field, save), noErr);
    QTEST(readHistory(key).join(QLatin1Char('|')), "history");
}

QTEST_MAIN(TestSettingsUi)
#include "test_settings_ui.moc"
