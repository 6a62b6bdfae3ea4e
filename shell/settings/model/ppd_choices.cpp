#include "ppd_choices.h"

#include "keyword_map.h"
#include "pde_session.h"
#include "print_session.h"
#include "terminal.h"
#include "ticket.h"

#include <QFile>
#include <QUrl>

namespace kelvo {

namespace {

std::shared_ptr<PpdFile> currentPpd;

struct EncodingRow
{
    const char *name;
    CFStringEncoding encoding;
};
// clang-format off
constexpr EncodingRow encodingRows[] = {
    {"ISOLatin1",  kCFStringEncodingISOLatin1},
    {"ISOLatin2",  kCFStringEncodingISOLatin2},
    {"ISOLatin5",  kCFStringEncodingISOLatin5},
    {"JIS83-RKSJ", kCFStringEncodingShiftJIS},
    {"UTF-8",      kCFStringEncodingUTF8},
    {"UTF8",       kCFStringEncodingUTF8},
};
// clang-format on

// Longer than any path that the file system takes, terminator included.
constexpr qsizetype kPathBufferBytes = 1025;

// A local path, or empty when the URL names none.
QString localPathOf(const QString &url)
{
    const QString path = QUrl(url).toLocalFile();
    return QFile::encodeName(path).size() < kPathBufferBytes ? path : QString();
}

// libcups takes nothing but printable ASCII in a PPD's keywords.
void reportOnStandardError(const char *what, const QString &keyword)
{
    printLine(stderr, QLatin1String(what) + keyword);
}

const PpdChoiceValue *findChoice(const QString &keyword, const QString &choice)
{
    for (const PpdChoiceValue *row = findKeyword(keyword); row && row->choice; ++row) {
        if (choice == QLatin1String(row->choice))
            return row;
    }
    return nullptr;
}

const Ticket &ticketOrNone(PMTicketRef handle)
{
    static const Ticket none;
    const Ticket *ticket = findTicket(handle);
    return ticket ? *ticket : none;
}

// One item for each choice that the map has and `isIn` lets in; the others that the map
// lacks are named on standard error.
template <typename Predicate>
int populate(Menu &menu, const PpdFile *ppd, const QString &keyword, OSType command,
             const QStringList &readByName, const Predicate &isIn)
{
    menu.items.clear();
    const PpdOption *option = ppd ? ppd->findOption(keyword) : nullptr;
    if (!option) {
        reportOnStandardError("Expected PPD option not found: ", keyword);
        return 0;
    }
    for (const PpdChoice &choice : option->choices) {
        if (readByName.contains(choice.keyword) || !isIn(choice.keyword))
            continue;
        const PpdChoiceValue *row = findChoice(keyword, choice.keyword);
        if (!row)
            reportOnStandardError("Skipped unrecognized choice in PPD: ", choice.keyword);
        if (!row || row->value == -1) // -1: known, but no menu has it
            continue;
        MenuItem item;
        item.text = choice.text;
        item.key = choice.keyword;
        item.command = command;
        item.reference = row->value;
        menu.items.push_back(std::move(item));
    }
    return static_cast<int>(menu.items.size());
}

} // namespace

PpdFile *PPDGetCurrent()
{
    if (currentPpd)
        return currentPpd.get();
    PMPrinter printer = nullptr;
    if (PMSessionGetCurrentPrinter(GetCurrentPrintSession(), &printer) != noErr)
        return nullptr;
    if (printer->ppd) {
        currentPpd = printer->ppd;
        return currentPpd.get();
    }
    QString url;
    if (PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType, &url) != noErr)
        return nullptr;
    const QString path = localPathOf(url);
    if (path.isEmpty())
        return nullptr;
    Result<std::shared_ptr<PpdFile>> opened = PpdFile::open(path);
    if (!opened)
        return nullptr;
    currentPpd = opened.value();
    return currentPpd.get();
}

void PPDCloseCurrent()
{
    currentPpd.reset();
}

CFStringEncoding PPDGetEncoding(const PpdFile *ppd)
{
    return ppd ? PPDEncodingNamed(ppd->languageEncoding()) : kCFStringEncodingMacRoman;
}

CFStringEncoding PPDEncodingNamed(const QString &languageEncoding)
{
    for (const EncodingRow &row : encodingRows) {
        if (languageEncoding == QLatin1String(row.name))
            return row.encoding;
    }
    return kCFStringEncodingMacRoman;
}

std::optional<QString> PPDCopyChoiceText(const PpdFile *ppd, const QString &keyword,
                                         const QString &choice)
{
    const PpdOption *option = ppd ? ppd->findOption(keyword) : nullptr;
    const PpdChoice *found = option ? option->findChoice(choice) : nullptr;
    if (!found)
        return std::nullopt;
    return found->text;
}

std::optional<QString> PPDCopyDefaultChoice(const PpdFile *ppd, const QString &keyword)
{
    const PpdOption *option = ppd ? ppd->findOption(keyword) : nullptr;
    if (!option || option->defaultChoice.isEmpty())
        return std::nullopt;
    return option->defaultChoice;
}

std::optional<QString> PPDCopyCurrentChoice(const Ticket &ticket, const QString &keyword)
{
    const auto choice = ticket.ppdChoices.constFind(keyword);
    return choice == ticket.ppdChoices.constEnd() ? std::nullopt : std::optional(*choice);
}

std::optional<QString> PPDCopyChoiceOrDefault(const PpdFile *ppd, const Ticket &ticket,
                                              const QString &keyword)
{
    std::optional<QString> choice = PPDCopyCurrentChoice(ticket, keyword);
    return choice ? choice : PPDCopyDefaultChoice(ppd, keyword);
}

void PPDSetCurrentChoice(Ticket &ticket, const QString &keyword,
                         const std::optional<QString> &choice)
{
    if (!keyword.isEmpty() && choice)
        ticket.ppdChoices.insert(keyword, *choice);
}

void PPDRemoveCurrentChoice(Ticket &ticket, const QString &keyword)
{
    ticket.ppdChoices.remove(keyword);
}

std::optional<QString> PPDCopyCurrentChoice(PMTicketRef ticket, const QString &keyword)
{
    return PPDCopyCurrentChoice(ticketOrNone(ticket), keyword);
}

void PPDSetCurrentChoice(PMTicketRef handle, const QString &keyword,
                         const std::optional<QString> &choice)
{
    if (Ticket *ticket = findTicket(handle))
        PPDSetCurrentChoice(*ticket, keyword, choice);
}

void PPDRemoveCurrentChoice(PMTicketRef handle, const QString &keyword)
{
    if (Ticket *ticket = findTicket(handle))
        PPDRemoveCurrentChoice(*ticket, keyword);
}

std::int32_t PPDTicketValueForChoice(const QString &keyword, const QString &choice)
{
    const PpdChoiceValue *row = findChoice(keyword, choice);
    return row ? row->value : kNoPpdChoice;
}

std::optional<QString> PPDChoiceForTicketValue(const QString &keyword, std::int32_t value)
{
    for (const PpdChoiceValue *row = findKeyword(keyword); row && row->choice; ++row) {
        if (row->value == value)
            return QString::fromUtf8(row->choice);
    }
    return std::nullopt;
}

std::optional<QString> PPDCopyTextForTicketValue(const PpdFile *ppd, const QString &keyword,
                                                 std::int32_t value)
{
    const std::optional<QString> choice = PPDChoiceForTicketValue(keyword, value);
    return choice ? PPDCopyChoiceText(ppd, keyword, *choice) : std::nullopt;
}

void PPDGetTicketValueForChoiceOrDefault(const PpdFile *ppd, PMTicketRef ticket,
                                         const QString &keyword, std::int32_t *out)
{
    PPDGetTicketValueForChoiceOrDefault(ppd, ticketOrNone(ticket), keyword, out);
}

void PPDGetTicketValueForChoiceOrDefault(const PpdFile *ppd, const Ticket &ticket,
                                         const QString &keyword, std::int32_t *out)
{
    const std::optional<QString> choice = PPDCopyChoiceOrDefault(ppd, ticket, keyword);
    if (choice && out)
        *out = PPDTicketValueForChoice(keyword, *choice);
}

int PPDPopulateMenuWithChoices(Menu &menu, PpdFile *ppd, const QString &keyword, OSType command,
                               bool honourConstraints, const QStringList &readByName)
{
    if (!honourConstraints)
        return PPDPopulateMenuWithAllChoices(menu, ppd, keyword, command, readByName);
    if (ppd)
        ppd->markDefaults();
    // The mark stays on purpose: the next choice is judged after this one.
    return populate(menu, ppd, keyword, command, readByName,
                    [&](const QString &choice) { return !ppd->mark(keyword, choice); });
}

int PPDPopulateMenuWithAllChoices(Menu &menu, const PpdFile *ppd, const QString &keyword,
                                  OSType command, const QStringList &readByName)
{
    return populate(menu, ppd, keyword, command, readByName, [](const QString &) { return true; });
}

} // namespace kelvo
