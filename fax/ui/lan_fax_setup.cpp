#include "lan_fax_setup.h"

#include "notice.h"
#include "ticket_values.h"

namespace kelvo {

DialogResult RunModalLANFaxSetup(const Device &device, Dictionary *options,
                                 FaxRecipientList *recipients, QWidget *parent)
{
    if (device.bundle && options && recipients) {
        CFUserNotificationDisplayNotice(
            NoticeLevel::Note,
            localizedText(device.bundle, QStringLiteral("Fax Setup Not Available Header")),
            localizedText(device.bundle, QStringLiteral("Fax Setup Not Available Message")), {},
            parent);
    }
    return DialogResult::Cancel;
}

} // namespace kelvo
