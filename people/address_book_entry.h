#pragma once

#include "people.h"

namespace kelvo {

// libkelvo_address_book.so has an AddressBook; its entry is a PartEntry (part_library.h).
inline constexpr char addressBookLibraryName[] = "libkelvo_address_book.so";
inline constexpr char addressBookEntry[] = "kelvoAddressBook";

} // namespace kelvo
