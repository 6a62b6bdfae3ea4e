#pragma once

#include "cover.h"
#include "device.h"
#include "exception_page_list.h"
#include "insert_list.h"
#include "status.h"
#include "ticket.h"

#include <optional>

// The job's special pages, and how the print settings ticket says them, as arrays of
// dictionaries:
//   com.kelvo.print.SpecialPages.InsertList      see insert.h
//   com.kelvo.print.SpecialPages.ExceptionList   see exception_page.h
// An empty list has no entry. Covers travel by cover_sync.h.
namespace kelvo {

// A copy's pages are other pages than these, and say the same.
struct SpecialPagesSettings
{
    std::optional<Cover> frontCover, backCover;
    InsertList inserts;
    ExceptionPageList exceptions;
    std::optional<Stock> jobStock; // what Paper/Output wrote; never written here

    friend bool operator==(const SpecialPagesSettings &, const SpecialPagesSettings &) = default;
};

// The settings become what the ticket says. A list that the ticket has just as it was
// written keeps its pages: making 99,999 of them anew takes a while, and nothing would
// come of it but another identity.
void readSpecialPages(SpecialPagesSettings &settings, const Ticket &printSettings,
                      const Device &device);
// The status of the last list written.
OSStatus writeSpecialPages(const SpecialPagesSettings &settings, Ticket &printSettings);

// Whether the ticket has both lists just as they were written.
bool holdsSpecialPages(const Ticket &printSettings, const SpecialPagesSettings &settings);

} // namespace kelvo
