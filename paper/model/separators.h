#pragma once

#include "bundle.h"
#include "plugin_abi.h"
#include "stock.h"

#include <QString>

#include <cstdint>

// Sheets between transparencies.
namespace kelvo {

class PpdFile;

inline constexpr std::int32_t kSeparatorsNone = 1; // "KVSlipSheetPrint"
inline constexpr std::int32_t kSeparatorsBlank = 2;
inline constexpr std::int32_t kSeparatorsPrinted = 3;

// `separators` is a value of "KVSlipSheetPrint", the stock's source one of
// "KVSlipSheetSource" (-1 where there is none). paramErr for a null argument.
OSStatus SyncSeparatorsFromTicket(PMTicketRef ticket, std::int32_t *separators,
                                  Stock *separatorStock);
OSStatus SyncSeparatorsToTicket(PMTicketRef ticket, std::int32_t separators,
                                const Stock *separatorStock);

// "- Separators:Tray 1" for blank and printed separators, else empty.
QString separatorSummary(CFBundleRef bundle, std::int32_t separators, const Stock &separatorStock);

} // namespace kelvo
