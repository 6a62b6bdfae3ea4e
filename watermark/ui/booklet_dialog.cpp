#include "booklet_dialog.h"

#include "notice.h"
#include "ticket_values.h"

namespace kelvo {

OSStatus RunModalBookletCreationDialog(_BookletCreationParams *params, QWidget *parent)
{
    if (!params || !params->bundle)
        return paramErr;
    CFUserNotificationDisplayNotice(
        NoticeLevel::Note,
        localizedText(params->bundle, QStringLiteral("Booklet Not Available Header")),
        localizedText(params->bundle, QStringLiteral("Booklet Not Available Message")), {}, parent);
    return kBookletCancelled;
}

} // namespace kelvo
