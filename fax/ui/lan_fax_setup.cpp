#include "lan_fax_setup.h"

#include "notice.h"
#include "ticket_values.h"

namespace kelvo {

DialogResult RunModalLANFaxSetup(CFBundleRef bundle, Dictionary *options, Array *recipients,
                                 QWidget *parent)
{
    if (bundle && options && recipients) {
        CFUserNotificationDisplayNotice(
            NoticeLevel::Note,
            localizedText(bundle, QStringLiteral("Fax Setup Not Available Header")),
            localizedText(bundle, QStringLiteral("Fax Setup Not Available Message")), {}, parent);
    }
    return DialogResult::Cancel;
}

} // namespace kelvo
