#pragma once

#include "device.h"
#include "saved_job.h"
#include "status.h"

#include <QString>

#include <optional>

class QWidget;

namespace kelvo {

struct SavedJobData
{
    SavedJob job;
    std::optional<QString> passcode; // none: the saved job is open to everyone
    QString documentName;            // shown for a job that takes the document's name
};

// Asks for name, mailbox and passcode of a saved job. paramErr when a pointer is
// missing, kWindowNotMade when the window is; Cancel changes nothing.
OSStatus RunModalSavedJobDialog(const Device &device, SavedJobData *data,
                                QWidget *parent = nullptr);

} // namespace kelvo
