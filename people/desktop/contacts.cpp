#include "contacts.h"

#include "card.h"

namespace kelvo {

namespace {

// The parameters by which a group's e-mail addresses name contacts.
constexpr QLatin1String memberUid("X-EVOLUTION-DEST-CONTACT-UID");
constexpr QLatin1String memberBook("X-EVOLUTION-DEST-SOURCE-UID");

QString textOf(const void *text)
{
    return QString::fromUtf8(static_cast<const char *>(text));
}

// What GLib can take: a text ends with its first NUL.
QByteArray bytesOf(const QString &text)
{
    return QString(text).remove(QChar(0)).toUtf8();
}

CardProperty propertyOf(EVCardAttribute *attribute)
{
    CardProperty property;
    property.group = textOf(e_vcard_attribute_get_group(attribute));
    property.name = textOf(e_vcard_attribute_get_name(attribute)).toUpper();
    for (const GList *each = e_vcard_attribute_get_params(attribute); each; each = each->next) {
        auto *parameter = static_cast<EVCardAttributeParam *>(each->data);
        const QString name = textOf(e_vcard_attribute_param_get_name(parameter)).toUpper();
        const GList *values = e_vcard_attribute_param_get_values(parameter);
        if (name == QLatin1String("TYPE")) {
            for (const GList *value = values; value; value = value->next)
                property.addType(textOf(value->data));
        } else if (name == QLatin1String("PREF") && values) {
            property.setPreference(textOf(values->data));
        }
    }
    for (const GList *value = e_vcard_attribute_get_values(attribute); value; value = value->next)
        property.values << textOf(value->data);
    return property;
}

QString parameterOf(EVCardAttribute *attribute, QLatin1String name)
{
    const GList *values = e_vcard_attribute_get_param(attribute, name.data());
    return values ? textOf(values->data) : QString();
}

void setText(EContact *contact, EContactField field, const std::optional<QString> &text)
{
    if (text)
        e_contact_set(contact, field, bytesOf(*text).constData());
}

// The contact's: it takes the attribute.
void addAttribute(EContact *contact, const char *name, const char *type, const QString &value)
{
    EVCardAttribute *attribute = e_vcard_attribute_new(nullptr, name);
    if (type) {
        e_vcard_attribute_add_param_with_value(attribute, e_vcard_attribute_param_new(EVC_TYPE),
                                               type);
    }
    e_vcard_attribute_add_value(attribute, bytesOf(value).constData());
    e_vcard_append_attribute(E_VCARD(contact), attribute);
}

} // namespace

QString uidOf(EContact *contact)
{
    return textOf(e_contact_get_const(contact, E_CONTACT_UID));
}

bool isGroup(EContact *contact)
{
    return e_contact_get(contact, E_CONTACT_IS_LIST) != nullptr;
}

Person personOf(EContact *contact)
{
    std::vector<CardProperty> card;
    for (const GList *each = e_vcard_get_attributes(E_VCARD(contact)); each; each = each->next)
        card.push_back(propertyOf(static_cast<EVCardAttribute *>(each->data)));
    Person person = personOf(card);
    person.uid = uidOf(contact);
    return person;
}

Contact newContact(const NewPerson &person)
{
    Contact contact(e_contact_new());
    setText(contact.get(), E_CONTACT_GIVEN_NAME, person.firstName);
    setText(contact.get(), E_CONTACT_PHONE_BUSINESS_FAX, person.faxNumber);
    setText(contact.get(), E_CONTACT_PHONE_BUSINESS, person.phoneNumber);
    if (person.emailAddress)
        addAttribute(contact.get(), EVC_EMAIL, "WORK", *person.emailAddress);
    setText(contact.get(), E_CONTACT_ORG, person.organization);
    if (person.mailbox)
        addAttribute(contact.get(), kMailboxAttribute, nullptr, *person.mailbox);
    return contact;
}

Contact newGroup(const QString &name)
{
    Contact group(e_contact_new());
    e_contact_set(group.get(), E_CONTACT_IS_LIST, GINT_TO_POINTER(TRUE));
    setText(group.get(), E_CONTACT_FULL_NAME, name);
    return group;
}

std::vector<Member> membersOf(EContact *group)
{
    std::vector<Member> members;
    for (const GList *each = e_vcard_get_attributes(E_VCARD(group)); each; each = each->next) {
        auto *attribute = static_cast<EVCardAttribute *>(each->data);
        if (const QString uid = parameterOf(attribute, memberUid); !uid.isEmpty())
            members.push_back({parameterOf(attribute, memberBook), uid});
    }
    return members;
}

void setMembers(EContact *group, const std::vector<MemberContact> &members)
{
    e_vcard_remove_attributes(E_VCARD(group), nullptr, EVC_EMAIL);
    for (const auto &[client, contact] : members) {
        const GLibOwner<EDestination> destination(e_destination_new());
        e_destination_set_client(destination.get(), client);
        e_destination_set_contact(destination.get(), contact, 0);
        EVCardAttribute *attribute = e_vcard_attribute_new(nullptr, EVC_EMAIL);
        e_destination_export_to_vcard_attribute(destination.get(), attribute);
        // Somebody without name and address, too, is named by what is between the colons.
        if (!e_vcard_attribute_get_values(attribute))
            e_vcard_attribute_add_value(attribute, "");
        e_vcard_append_attribute(E_VCARD(group), attribute);
    }
}

} // namespace kelvo
