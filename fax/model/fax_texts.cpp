#include "fax_texts.h"

#include "characters.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

QSet<char32_t> dialingCharacters()
{
    QSet<char32_t> set;
    for (const char *c = kFaxDialingCharacters; *c; ++c)
        set.insert(static_cast<unsigned char>(*c));
    return set;
}

void appendLine(QString &lines, const FaxString &text)
{
    if (text && !text->isEmpty())
        lines += *text + u'\n';
}

void appendLine(QString &lines, const FaxString &label, const FaxString &text)
{
    if (text && !text->isEmpty())
        lines += label.value_or(QString()) + QStringLiteral(" : ") + *text + u'\n';
}

} // namespace

const QSet<char32_t> kFaxDialingCharacterSet = dialingCharacters();

QString CopyDialingStringFromFaxNumber(const FaxString &faxNumber)
{
    QString dialed;
    if (faxNumber) {
        std::ranges::copy_if(*faxNumber, std::back_inserter(dialed),
                             [](QChar c) { return kFaxDialingCharacterSet.contains(c.unicode()); });
    }
    return dialed;
}

QString DisplayNameFromRecipient(const FaxRecipient *recipient)
{
    QStringList names;
    for (const FaxString &name : {recipient->firstName(), recipient->lastName()}) {
        if (name)
            names.append(*name);
    }
    return names.join(u' ');
}

QString CreateLANFaxSenderInformation(const FaxString &name, const FaxString &organization,
                                      const FaxString &emailAddress, const FaxString &phoneLabel,
                                      const FaxString &phoneNumber, const FaxString &faxLabel,
                                      const FaxString &faxNumber)
{
    QString lines;
    appendLine(lines, name);
    appendLine(lines, organization);
    appendLine(lines, emailAddress);
    appendLine(lines, phoneLabel, phoneNumber);
    appendLine(lines, faxLabel, faxNumber);
    return lines;
}

QString shownFaxLabel(CFBundleRef bundle, const QString &label)
{
    static constexpr std::pair<QLatin1String, const char *> words[] = {
        {QLatin1String("work"), "Fax Label Work"},
        {QLatin1String("home"), "Fax Label Home"},
        {QLatin1String("other"), "Fax Label Other"},
    };
    for (const auto &[word, key] : words) {
        if (label == word)
            return faxText(bundle, key);
    }
    return label;
}

QString faxText(CFBundleRef bundle, const char *key)
{
    return localizedText(bundle, QString::fromLatin1(key), QStringLiteral("LANFax"));
}

} // namespace kelvo
