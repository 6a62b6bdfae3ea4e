#pragma once

#include "device.h"
#include "fax_options.h"
#include "long_date.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace kelvo {

class ListView;
class NeededControls;
class PaperView;
class PopupButton;
class TabControl;
class TimeField;

// The controls of the set-up window. What is filled in and enabled follows from them alone.
struct LanFaxControls
{
    TabControl *tabs = nullptr;
    std::array<QWidget *, 3> panes{};

    ListView *recipients = nullptr;
    QPushButton *add = nullptr, *addFromAddressBook = nullptr, *edit = nullptr, *remove = nullptr,
                *saveGroup = nullptr, *removeAll = nullptr;
    QLabel *recipientsHint = nullptr, *addressBookHint = nullptr;

    PopupButton *confirmation = nullptr, *sendSpeed = nullptr, *resolution = nullptr;
    QRadioButton *sendNow = nullptr, *sendAt = nullptr;
    TimeField *sendTime = nullptr;
    QLabel *sendTimeHint = nullptr;
    QCheckBox *prefixOn = nullptr;
    QLineEdit *prefix = nullptr;
    QLabel *prefixHint = nullptr;

    PopupButton *coverSheet = nullptr;
    QPushButton *coverSheetSetup = nullptr;
    QLabel *notesLabel = nullptr;
    QPlainTextEdit *notes = nullptr;
    PaperView *preview = nullptr;
    QLabel *previewHint = nullptr;

    void find(NeededControls &needed);
};

// Menus, limits, panes, hints.
void prepareLanFaxControls(const LanFaxControls &controls, const Device &device);

// What the options' controls show; the prompts are not theirs.
void showFaxControls(const LanFaxControls &controls, const Device &device,
                     const FaxControls &values);
// A time that is as it was shown keeps its day.
void takeFaxControls(const LanFaxControls &controls, FaxControls &values, LongDateTime now);

// What is enabled, and the sentence of when the fax goes; `values` as they were shown.
void enableFaxControls(const LanFaxControls &controls, const Device &device,
                       const FaxControls &values, LongDateTime now);
// `hasAddressBook`: what can be saved in one.
void enableRecipientButtons(const LanFaxControls &controls, bool hasAddressBook);

bool hasCoverSheet(const LanFaxControls &controls);

} // namespace kelvo
