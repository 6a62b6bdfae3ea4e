#pragma once

#include "job_words.h"

class QWidget;

namespace kelvo {

// What will be sent: the settings in words, and the ticket as it stands. `words`
// come with secrets masked.
QWidget *makeJobDetailsPane(const JobWords &words);

// Shows them until the user closes it.
void runJobDetailsDialog(const JobWords &words, QWidget *parent);

} // namespace kelvo
