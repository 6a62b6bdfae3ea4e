#pragma once

#include "recipient_editing.h"

#include <QString>

#include <optional>

namespace kelvo {

// Whether every number can be dialed with `prefix` before it (dialing_check.h); none while its
// box is not checked. Where one is too long, the user can edit and remove recipients first, and
// the prefix comes back as the window leaves it. What is too long is counted with the prefix
// that it began with.
bool ValidateMaxCharacters(RecipientEditing &editing, std::optional<QString> &prefix,
                           QWidget *parent);

} // namespace kelvo
