#pragma once

#include "device.h"
#include "menu.h"
#include "plugin_abi.h"
#include "stock.h"
#include "ticket.h"

#include <QString>

#include <cstdint>

// Sheets between transparencies.
namespace kelvo {

inline constexpr std::int32_t kSeparatorsNone = 1; // of kSeparatorsOption
inline constexpr std::int32_t kSeparatorsBlank = 2;
inline constexpr std::int32_t kSeparatorsPrinted = 3;

// `separators` is a value of "KVSlipSheetPrint", the stock's source one of
// "KVSlipSheetSource" (-1 where there is none).
void readSeparators(std::int32_t &separators, Stock &separatorStock, const Ticket &printSettings,
                    const Device &device);
void writeSeparators(std::int32_t separators, const Stock &separatorStock, Ticket &printSettings);
// The same by handle, for the current device. paramErr for a null argument, and for a
// handle that names no ticket.
OSStatus SyncSeparatorsFromTicket(PMTicketRef ticket, std::int32_t *separators,
                                  Stock *separatorStock);
OSStatus SyncSeparatorsToTicket(PMTicketRef ticket, std::int32_t separators,
                                const Stock *separatorStock);

inline const QString kSeparatorsOption = QStringLiteral("KVSlipSheetPrint");

// The PPD's separators under the names that every other window uses; empty where the device
// has none.
Menu separatorsMenu(const Device &device, OSType command);

// "- Separators:Tray 1" for blank and printed separators, else empty.
QString separatorSummary(const Device &device, std::int32_t separators,
                         const Stock &separatorStock);

} // namespace kelvo
