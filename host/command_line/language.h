#pragma once

#include "result.h"

#include <QString>

#include <optional>

namespace kelvo {

// Loads the tables of the language that was asked for ("de" or "de_AT"), else of the desktop's,
// and makes its locale the default one. Needs no application object; call it before other
// threads run. Refused, with the languages that there are, for one without texts: all is said in
// the desktop's then.
Result<void> chooseLanguage(const std::optional<QString> &asked);

} // namespace kelvo
