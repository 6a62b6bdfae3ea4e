#pragma once

#include "job_words.h"

class QWidget;

namespace kelvo {

// Shows what will be sent: the settings in words, and the ticket as it stands.
// `words` come with secrets masked. Runs until it is closed.
void runJobDetailsDialog(const JobWords &words, QWidget *parent);

} // namespace kelvo
