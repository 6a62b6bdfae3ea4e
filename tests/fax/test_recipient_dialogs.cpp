#include "address_book_picker.h"
#include "device_session.h"
#include "dialog_steps.h"
#include "files.h"
#include "recent_recipients.h"
#include "recipient_dialogs.h"

#include <QDropEvent>
#include <QMimeData>

#include <thread>

using namespace kelvo;
using namespace dialog_steps;
using namespace Qt::StringLiterals;

// The dialogs that add and edit recipients, as their users drive them.
class TestRecipientDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        forgetRecipients();
        m_editing = std::make_unique<RecipientEditing>();
        m_editing->device.bundle = m_session.bundle;
        m_editing->needsDialingCheck = false;
    }

    void aRecipientIsTyped();
    void aDuplicateThatIsDeclinedStaysTyped();
    void editingTouchesWhatIsTouched();
    void peopleAreFoundAndAdded();
    void aDuplicateIsAskedForByItself();
    void withoutAnAddressBookTheRestWorks();
    void anAddressBookThatHangsIsLeft();
    void recentOnesAreOfferedAndCleared();
    void cardsAreChosenAndDropped();

private:
    DialogResult add(const std::vector<Step> &steps)
    {
        return m_steps.run([this] { return RunModalAddRecipientDialog(*m_editing, nullptr); },
                           steps);
    }
    DialogResult edit(const std::vector<Step> &steps)
    {
        return m_steps.run(
            [this] {
                return RunModalEditRecipientDialog(
                    *m_editing, m_editing->recipients.recipientAtIndex(0), nullptr);
            },
            steps);
    }
    // Of these people; without any: there is no address book.
    DialogResult pick(const std::optional<AddressBookContents> &contents,
                      const std::vector<Step> &steps)
    {
        const AddressBookReader read =
            [contents](AddressBook::Flag) -> Result<AddressBookContents> {
            if (contents)
                return *contents;
            return Error{Error::Code::NotFound, {}, u"nobody answers; start it"_s};
        };
        return m_steps.run([&] { return RunModalAddressBookPicker(*m_editing, read, nullptr); },
                           steps);
    }
    // "NUMBER NAME", in the list's order.
    QStringList listed() const
    {
        QStringList lines;
        for (long i = 0; i < m_editing->recipients.count(); ++i) {
            const FaxRecipient *each = m_editing->recipients.recipientAtIndex(i);
            lines.append(each->faxNumber().value_or(u"none"_s) + u' '
                         + each->firstName().value_or(u"none"_s));
        }
        return lines;
    }
    void putIntoList(const FaxRecipient &recipient)
    {
        AddRecipient(*m_editing, recipient, nullptr);
        m_editing->needsDialingCheck = false;
    }

    DeviceSession m_session{QStringLiteral("full")};
    DialogSteps m_steps;
    std::unique_ptr<RecipientEditing> m_editing;
};

namespace {

Person person(const QString &name, const std::vector<QString> &faxNumbers)
{
    Person made{.uid = u"uid of "_s + name, .fullName = name, .firstName = name};
    for (const QString &number : faxNumbers)
        made.numbers.push_back({PersonNumber::Kind::Fax, u"work"_s, number});
    return made;
}

AddressBookContents threePeople()
{
    const Person ann = person(u"Ann"_s, {u"11"_s, u"12"_s});
    const Person bo = person(u"Bo"_s, {u"21"_s});
    const Person cy = person(u"Cy"_s, {});
    return {.people = {ann, bo, cy},
            .groups = {{.uid = "g", .name = "All", .members = {ann, bo, cy}}}};
}

Step select(const char *name, const std::vector<int> &rows)
{
    return [=] { done(inspector::select(control(name), rows)); };
}

QByteArray card(const QByteArray &name, const QByteArray &number)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\nTEL;TYPE=FAX,WORK:" + number
        + "\r\nEND:VCARD\r\n";
}

Step drop(const QStringList &addresses)
{
    return [=] {
        QMimeData files;
        QList<QUrl> urls;
        for (const QString &address : addresses)
            urls.append(QUrl(address));
        files.setUrls(urls);
        // As the list gets it: what it does not take goes to its window.
        QWidget *list = control("peopleList");
        QDragEnterEvent enter(list->rect().center(), Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(front(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent dropped(list->rect().center(), Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(front(), &dropped);
    };
}

} // namespace

void TestRecipientDialogs::aRecipientIsTyped()
{
    QCOMPARE(add({
                 expect("recipientFirstName", "focus", "true"),
                 click("okButton"),
                 expectNotice("Type the number"),
                 expect("recipientFaxNumber", "focus", "true"),
                 type("recipientFirstName", " Ann "),
                 type("recipientFaxNumber", "see card"),
                 click("okButton"),
                 expectNotice("“see card”"),
                 type("recipientFaxNumber", "+1 (555) 12-34"),
                 expect("recipientDialed", "text", "Will be dialed: 15551234"),
                 type("recipientMailbox", "17"),
                 click("okButton"),
             }),
             DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(m_editing->recipients.toTicket(),
             (Array{Dictionary{
                 {"FirstName", "Ann"}, {"FaxNumber", "+1 (555) 12-34"}, {"Mailbox", "17"}}}));
    QVERIFY(m_editing->needsDialingCheck);
    QCOMPARE(add({type("recipientFaxNumber", QString(51, u'1')),
                  [] {
                      const auto hint = inspector::property(control("recipientDialed"), "text");
                      QVERIFY2(hint.value().contains("51"), qPrintable(hint.value()));
                  },
                  click("cancelButton")}),
             DialogResult::Cancel);
    QCOMPARE(m_editing->recipients.count(), 1);
}

void TestRecipientDialogs::aDuplicateThatIsDeclinedStaysTyped()
{
    putIntoList(FaxRecipient(u"Ann"_s, {}, u"555"_s));
    QCOMPARE(add({type("recipientFirstName", "Ann"), type("recipientFaxNumber", "555"),
                  click("okButton"), expectNotice("555 (Ann)", 2),
                  expect("recipientFirstName", "text", "Ann"), type("recipientLastName", "Lee"),
                  click("okButton")}),
             DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(m_editing->recipients.count(), 2);
}

void TestRecipientDialogs::editingTouchesWhatIsTouched()
{
    FaxRecipient before(u"Ann"_s, u""_s, u"555"_s);
    before.setFaxNumberLabel(u"home"_s);
    before.setUID(u"u-1"_s);
    before.setEmailAddress(u"ann@lee"_s);
    putIntoList(before);
    const FaxRecipient *recipient = m_editing->recipients.recipientAtIndex(0);

    QCOMPARE(edit({type("recipientFirstName", "Other"), click("cancelButton")}),
             DialogResult::Cancel);
    QCOMPARE(*recipient, before);
    QVERIFY(!m_editing->needsDialingCheck);
    QCOMPARE(
        edit({expect("recipientFaxLabel", "text", "Kind of number: Home"),
              type("recipientFaxNumber", "556"), expect("recipientFaxLabel", "visible", "false"),
              type("recipientEmail", ""), click("okButton")}),
        DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(m_editing->recipients.recipientAtIndex(0), recipient);
    QCOMPARE(
        recipient->toTicket(),
        (Dictionary{{"FirstName", "Ann"}, {"LastName", ""}, {"FaxNumber", "556"}, {"UID", "u-1"}}));
    QVERIFY(m_editing->needsDialingCheck);
}

void TestRecipientDialogs::peopleAreFoundAndAdded()
{
    putIntoList(FaxRecipient(u"Bo"_s, {}, u"21"_s));
    QCOMPARE(
        pick(threePeople(),
             {
                 expect("peopleList", "items", "4"),
                 expect("peopleList", "cell 1 3", "Group, 2 people"),
                 expect("peopleList", "cell 2 3", "11 (Work)"),
                 expect("peopleList", "cell 4 4", "Added"),
                 expect("peopleHint", "text", "1 person without a fax number is not shown."),
                 expect("addPeople", "enabled", "false"),
                 type("peopleSearch", "an"),
                 expect("peopleList", "items", "2"),
                 expect("peopleList", "selection", "1"),
                 [] { done(inspector::pressKey(front(), "Return")); },
                 expect("peopleAdded", "text", "1 recipient was added."),
                 expect("peopleList", "cell 1 4", "Added"),
                 type("peopleSearch", ""),
                 select("peopleList", {1, 3}),
                 click("addPeople"),
                 expect(
                     "peopleAdded", "text",
                     "1 recipient was added. 2 were left out because they are already in the list. "
                     "No fax number: Cy"),
                 type("peopleSearch", "nobody has this name"),
                 expect("peopleMessage", "text", "Nobody was found."),
                 click("cancelButton"),
             }),
        DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(listed(), (QStringList{"21 Bo", "11 Ann", "12 Ann"}));
    QCOMPARE(m_editing->recipients.recipientAtIndex(1)->uid(), u"uid of Ann"_s);
    QVERIFY(m_editing->needsDialingCheck);
}

void TestRecipientDialogs::aDuplicateIsAskedForByItself()
{
    putIntoList(FaxRecipient(u"Bo"_s, {}, u"21"_s));
    const auto addsBo = [](int answer) {
        return std::vector<Step>{select("peopleList", {4}), click("addPeople"),
                                 expectNotice("21 (Bo)", answer), click("cancelButton")};
    };
    QCOMPARE(pick(threePeople(), addsBo(2)), DialogResult::Cancel);
    QCOMPARE(m_editing->recipients.count(), 1);
    QCOMPARE(pick(threePeople(), addsBo(1)), DialogResult::OK);
    QCOMPARE(m_editing->recipients.count(), 2);
}

void TestRecipientDialogs::withoutAnAddressBookTheRestWorks()
{
    QCOMPARE(pick({},
                  {
                      [] {
                          const auto said = inspector::property(control("peopleMessage"), "text");
                          QVERIFY2(said.value().contains("nobody answers; start it."),
                                   qPrintable(said.value()));
                      },
                      choose("peopleSource", "Recent"),
                      expect("peopleMessage", "text", "Nobody has been sent a fax yet."),
                      expect("chooseCards", "enabled", "true"),
                      click("cancelButton"),
                  }),
             DialogResult::Cancel);
    QVERIFY(m_steps.isDone());
}

// The reader waits until it is told that nobody waits any more.
void TestRecipientDialogs::anAddressBookThatHangsIsLeft()
{
    rememberRecipients(FaxRecipientList({Dictionary{{"FaxNumber", "1"}}}));
    const AddressBookReader hangs = [](AddressBook::Flag flag) -> Result<AddressBookContents> {
        while (!*flag)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return Error{Error::Code::Cancelled, {}, {}};
    };
    // Not steps, which wait for all that is on its way.
    QTimer::singleShot(0, this, [] {
        expect("peopleMessage", "text", "Reading the address book…")();
        choose("peopleSource", "Recent")();
        expect("peopleList", "items", "1")();
        choose("peopleSource", "AddressBook")();
        click("cancelButton")();
    });
    QCOMPARE(RunModalAddressBookPicker(*m_editing, hangs, nullptr), DialogResult::Cancel);
}

void TestRecipientDialogs::recentOnesAreOfferedAndCleared()
{
    rememberRecipients(FaxRecipientList(
        {Dictionary{{"FirstName", ""}, {"FaxNumber", "1"}}, Dictionary{{"FaxNumber", "2"}}}));
    QCOMPARE(pick(threePeople(),
                  {expect("clearRecent", "enabled", "false"), choose("peopleSource", "Recent"),
                   select("peopleList", {1}), click("addPeople"), click("clearRecent"),
                   expectNotice("cannot be undone", 2), expect("peopleList", "items", "2"),
                   click("clearRecent"), expectNotice("cannot be undone", 1),
                   expect("peopleList", "items", "0"), expect("clearRecent", "enabled", "false"),
                   click("cancelButton")}),
             DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(m_editing->recipients.toTicket(), // as it was: an empty name is not an absent one
             (Array{Dictionary{{"FirstName", ""}, {"FaxNumber", "1"}}}));
    QVERIFY(recentRecipients().empty());
}

void TestRecipientDialogs::cardsAreChosenAndDropped()
{
    const auto path = [](const char *name) { return QDir::current().absoluteFilePath(name); };
    putFile("a.vcf", card("Ann", "11"));
    putFile("b.vcf", card("Bo", "21") + "BEGIN:VCARD\r\nFN:Torn\r\n");
    QCOMPARE(pick({},
                  {
                      click("chooseCards"),
                      chooseFile(path("a.vcf")),
                      expect("peopleSource", "text", "vCard files"),
                      expect("peopleList", "items", "1"),
                      drop({QUrl::fromLocalFile(path("b.vcf")).toString(),
                            QUrl::fromLocalFile(path("gone.vcf")).toString(),
                            u"https://example.com/c.vcf"_s}),
                      [] {
                          const QString said = frontNotice().message;
                          for (const char *part :
                               {"https://example.com/c.vcf is not on this computer",
                                "b.vcf: 1 card is damaged", "gone.vcf: "})
                              QVERIFY2(said.contains(part), qPrintable(said));
                          answerNotice(1);
                      },
                      expect("peopleList", "items", "2"),
                      select("peopleList", {1, 2}),
                      click("addPeople"),
                      click("cancelButton"),
                  }),
             DialogResult::OK);
    QVERIFY(m_steps.isDone());
    QCOMPARE(listed(), (QStringList{"11 Ann", "21 Bo"}));
    QCOMPARE(m_editing->recipients.recipientAtIndex(0)->uid(), FaxString());
}

QTEST_MAIN(TestRecipientDialogs)
#include "test_recipient_dialogs.moc"
