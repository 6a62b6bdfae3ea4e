#include "special_pages_notices.h"

#include "notice.h"
#include "special_page_edits.h"
#include "string_table.h"
#include "ticket_values.h"

#include <QLocale>

#include <algorithm>

namespace kelvo {

namespace {

struct ProblemText
{
    OSStatus code;
    const char *titleKey, *messageKey; // in "Localizable"
    std::int32_t number = 0;           // for the message's place holder, where it has one
};

const ProblemText problemTexts[] = {
    {kPageNumberTooHigh, "Page Number Limit Title", "Page Number Limit", CountDigits(kHighestPage)},
    {kPageRangesMalformed, "Invalid Pages Title", "Invalid Page Ranges"},
    {kPageRangeBackwards, "Invalid Ranges Title", "Invalid Range Order"},
    {kPageNumberTooLow, "Invalid Page Numbers Title", "Invalid Page Numbers Message"},
    {kTooManyInserts, "Too Many Inserts Title", "Too Many Inserts Message", kMostInserts},
    {kPageRangesInConflict, "PageRangeConflictTitle", "PageRangeConflictMessage"},
};

} // namespace

void SpecialPagesUserNotification(OSStatus code, CFBundleRef bundle, QWidget *parent)
{
    const auto *text = std::ranges::find(problemTexts, code, &ProblemText::code);
    if (text == std::end(problemTexts))
        return;
    CFUserNotificationDisplayNotice(
        NoticeLevel::Caution, localizedText(bundle, QString::fromLatin1(text->titleKey)),
        formatted(localizedText(bundle, QString::fromLatin1(text->messageKey)),
                  {QLocale().toString(text->number)}),
        {}, parent);
}

bool mayDeleteSpecialPages(CFBundleRef bundle, const QString &questionKey, QWidget *parent)
{
    constexpr int no = 1, yes = 2;
    return CFUserNotificationDisplayAlert(
               NoticeLevel::Caution,
               localizedText(bundle, QStringLiteral("Delete Special Pages Title")),
               localizedText(bundle, questionKey),
               {localizedText(bundle, QStringLiteral("No Command")),
                localizedText(bundle, QStringLiteral("Yes Command"))},
               parent, no)
        == yes;
}

} // namespace kelvo
