#include "people.h"

#include "address_book_entry.h"
#include "part_library.h"

#include <QtGlobal>

namespace kelvo {

namespace {

constexpr PartLibrary library = {
    addressBookLibraryName,
    addressBookEntry,
    "People",
    QT_TRANSLATE_NOOP(
        "People",
        "the part of kelvo-print that asks the address book is not installed; install "
        "the package kelvo-print-address-book"),
    QT_TRANSLATE_NOOP("People",
                      "the part of kelvo-print that asks the address book cannot be loaded (%1); "
                      "install the package kelvo-print-address-book anew, with what it needs"),
    QT_TRANSLATE_NOOP("People",
                      "this part that asks the address book is not that of kelvo-print %1; install "
                      "the package kelvo-print-address-book anew")};

} // namespace

Result<const AddressBook *> addressBook(const QString &folder)
{
    return openPart<AddressBook>(library, folder);
}

} // namespace kelvo
