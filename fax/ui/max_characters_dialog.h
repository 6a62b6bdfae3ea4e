#pragma once

#include "recipient_editing.h"

#include <QString>

#include <optional>

namespace kelvo {

// What is dialed around each number; none while its box is not checked.
struct DialedAround
{
    std::optional<QString> prefix, creditCard;
    friend bool operator==(const DialedAround &, const DialedAround &) = default;
};

// Whether every number can be dialed (dialing_check.h). Where one is too long, the user can
// edit and remove recipients first, and `around` changes with the window's boxes: one that is
// not checked any more comes back empty. What is too long is counted with the lengths that
// `around` had before the window opened.
bool ValidateMaxCharacters(RecipientEditing &editing, DialedAround &around, QWidget *parent);

} // namespace kelvo
