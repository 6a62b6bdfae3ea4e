#include "characters.h"
#include "vcard.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace kelvo;

namespace {

void needShown(const QString &text)
{
    eachCharacter(text, [](char32_t c) {
        if (!isKept(c) || QChar::category(c) == QChar::Other_Control)
            std::abort();
    });
}

} // namespace

// Any bytes end in an Error or in people whose texts can be shown and kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Result<CardPeople> read =
        readCards(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!read)
        return 0;
    for (const Person &person : read.value().people) {
        if (person.fullName.isEmpty() && person.numbers.empty())
            std::abort();
        for (const QString &text : {person.fullName, person.firstName, person.lastName,
                                    person.organization, person.mailbox})
            needShown(text);
        for (const QString &text : person.emailAddresses)
            needShown(text);
        for (const PersonNumber &number : person.numbers) {
            needShown(number.label);
            needShown(number.number);
        }
    }
    return 0;
}
