#pragma once

#include "exception_page_list.h"
#include "insert_list.h"
#include "plugin_abi.h"
#include "status.h"

#include <memory>

// Special pages as entries of the print settings ticket, arrays of dictionaries:
//   com.kelvo.print.SpecialPages.InsertList      see insert.h
//   com.kelvo.print.SpecialPages.ExceptionList   see exception_page.h
// An empty list has no entry. Covers travel by cover_sync.h.
namespace kelvo {

// The status of the last entry written.
OSStatus writeSpecialPages(PMTicketRef ticket, const InsertList &inserts,
                           const ExceptionPageList &exceptions);

// Whether the ticket has both lists just as they were written.
bool holdsSpecialPages(PMTicketRef ticket, const InsertList &inserts,
                       const ExceptionPageList &exceptions);

// The lists become what the ticket says, and `jobStock` the stock that the
// Paper/Output panel wrote; null when there is none. A list that the ticket has just
// as it was written keeps its pages: making 99,999 of them anew takes a while, and
// nothing would come of it but another identity. kPMKeyNotFound for a missing job
// stock, which is in order.
OSStatus readSpecialPages(PMTicketRef ticket, InsertList &inserts, ExceptionPageList &exceptions,
                          std::unique_ptr<Stock> &jobStock);

} // namespace kelvo
