#pragma once

#include "history_field.h"
#include "input_history.h"
#include "status.h"

#include <QVariant>

// A history field with validation: fixed items from a map, then what the user
// typed before. Its context hangs on the field (creator 'KCMB', tag 'ctxt') from
// KComboBoxInitializeWithMapAndHistory to KComboBoxFinalize; without one every
// operation answers kNoSuchProperty.
namespace kelvo {

OSStatus KComboBoxInitializeWithMapAndHistory(HistoryField *comboBox,
                                              const KComboBoxOptions &options);
// A map item's value or a typed number as qint64, or the typed text;
// kComboBoxNoValue for an empty text. A number outside the range is clamped
// first, and shows so. paramErr for null and for a numeric field's text that is
// no number; `out` is left alone then.
OSStatus KComboBoxCopyValue(HistoryField *comboBox, QVariant *out);
// A QString becomes the text; a number the map item's text or the number in
// the user's locale. paramErr for null.
OSStatus KComboBoxSetValue(HistoryField *comboBox, const QVariant &value);
// Saves the text to the history when asked, and it is new; frees the context.
OSStatus KComboBoxFinalize(HistoryField *comboBox, bool saveToHistory);

} // namespace kelvo
