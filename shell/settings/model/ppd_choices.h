#pragma once

#include "menu.h"
#include "ppd_file.h"
#include "ticket.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

// The current printer's PPD, which the host has open or which is opened once, and its choices
// in the print ticket.
// Nothing here reports an error: what is missing yields none, -1 or an empty
// menu.
namespace kelvo {

// The PPD of the current print session's printer, opened on first use; null
// while that fails, and the next call tries again. Owned by the cache; the host's, too.
PpdFile *PPDGetCurrent();
void PPDCloseCurrent();

// The character encodings that a PPD can declare, with the platform's numbers.
enum CFStringEncoding : std::uint32_t {
    kCFStringEncodingMacRoman = 0,
    kCFStringEncodingISOLatin1 = 0x0201,
    kCFStringEncodingISOLatin2 = 0x0202,
    kCFStringEncodingISOLatin5 = 0x0209,
    kCFStringEncodingShiftJIS = 0x0A01,
    kCFStringEncodingUTF8 = 0x08000100,
};
// Of the texts as libcups gives them: UTF-8 wherever it could convert them from
// what the file declares.
CFStringEncoding PPDGetEncoding(const PpdFile *ppd);
// The encoding with that name in a PPD; Mac Roman for a name that is none.
CFStringEncoding PPDEncodingNamed(const QString &languageEncoding);

std::optional<QString> PPDCopyChoiceText(const PpdFile *ppd, const QString &keyword,
                                         const QString &choice);
std::optional<QString> PPDCopyDefaultChoice(const PpdFile *ppd, const QString &keyword);
// The choice in the ticket's PPD dictionary.
std::optional<QString> PPDCopyCurrentChoice(const Ticket &ticket, const QString &keyword);
// That, or the PPD's default when the ticket has none.
std::optional<QString> PPDCopyChoiceOrDefault(const PpdFile *ppd, const Ticket &ticket,
                                              const QString &keyword);
void PPDSetCurrentChoice(Ticket &ticket, const QString &keyword,
                         const std::optional<QString> &choice);
// The ticket then leaves the option to the PPD's default.
void PPDRemoveCurrentChoice(Ticket &ticket, const QString &keyword);
// The same by handle; nothing happens where it names no ticket.
std::optional<QString> PPDCopyCurrentChoice(PMTicketRef ticket, const QString &keyword);
void PPDSetCurrentChoice(PMTicketRef ticket, const QString &keyword,
                         const std::optional<QString> &choice);
void PPDRemoveCurrentChoice(PMTicketRef ticket, const QString &keyword);

// The value of a choice that MainKeywordMap does not have.
inline constexpr std::int32_t kNoPpdChoice = -1;
// Through MainKeywordMap: kNoPpdChoice and none for what it does not have.
std::int32_t PPDTicketValueForChoice(const QString &keyword, const QString &choice);
std::optional<QString> PPDChoiceForTicketValue(const QString &keyword, std::int32_t value);
// The PPD's text of that choice; none when the map or the PPD does not have it.
std::optional<QString> PPDCopyTextForTicketValue(const PpdFile *ppd, const QString &keyword,
                                                 std::int32_t value);

// The value of the ticket's choice, or of the PPD's default when the ticket has
// none; -1 for a choice that the map does not have. `out` is left alone when
// neither has a choice.
void PPDGetTicketValueForChoiceOrDefault(const PpdFile *ppd, const Ticket &ticket,
                                         const QString &keyword, std::int32_t *out);
void PPDGetTicketValueForChoiceOrDefault(const PpdFile *ppd, PMTicketRef ticket,
                                         const QString &keyword, std::int32_t *out);

// Fills `menu` with the option's choices that MainKeywordMap has, in the PPD's
// order; others are named on standard error, as is a missing option. With
// `honourConstraints` the marks start from the defaults, each choice is marked
// in turn, one that conflicts is left out, and the marks stay as the walk
// leaves them. Choices of `readByName` have no value, but are known to whoever
// fills the menu: they are left out and not named. Returns the number of items.
int PPDPopulateMenuWithChoices(Menu &menu, PpdFile *ppd, const QString &keyword, OSType command,
                               bool honourConstraints, const QStringList &readByName = {});
// The same without regard to constraints, which needs no marks.
int PPDPopulateMenuWithAllChoices(Menu &menu, const PpdFile *ppd, const QString &keyword,
                                  OSType command, const QStringList &readByName = {});

} // namespace kelvo
