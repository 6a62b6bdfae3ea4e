#include "tab_stock_dialogs.h"

#include "bundle_picture.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "picture_view.h"
#include "popups.h"
#include "radio_group.h"
#include "setting_maps.h"
#include "spin_field.h"
#include "stock_properties.h"
#include "system_information.h"
#include "tab_shift.h"
#include "ticket_values.h"

#include <QLabel>
#include <QRadioButton>

namespace kelvo {

namespace {

// KPDE 1003 and 20101, the arrows of the fields, are parts of the fields here and
// have no ID of their own.
constexpr ControlID kTemplatePopup{kPanelSignature, 1001};
constexpr ControlID kShiftField{kPanelSignature, 1002};
constexpr ControlID kUnitRadio{kPanelSignature, 1004};
constexpr ControlID kShiftHint{kPanelSignature, 7010};
constexpr ControlID kShiftPicture{kPanelSignature, 7011};

constexpr ControlID kTabsField{kPanelSignature, 20100};
constexpr ControlID kTabsPicture{kPanelSignature, 20102};
constexpr ControlID kTabsHint{kPanelSignature, 7020};

class TabShiftWindow
{
public:
    TabShiftWindow(const Device &device, const QWidget *window, const _IS_Options &options)
        : m_template(findControl<PopupButton>(window, kTemplatePopup))
        , m_field(findControl<SpinField>(window, kShiftField))
        , m_unit(findControl<RadioGroup>(window, kUnitRadio))
    {
        PopulatePopupButtonFromMap(device, m_template, TabStockSetupMap, kJobContextJob,
                                   kNoCommand);
        makeHintText(findControl<QLabel>(window, kShiftHint));
        showBundlePicture(findControl<PictureView>(window, kShiftPicture), device.bundle,
                          QStringLiteral("Paper_Pre-CutTabs_TabMarginShift.gif"),
                          device.text("Tab Shift Picture"));
        m_shift = withinReach(tabShiftOf(options, measurementSystem(), m_unit->value()));
        show();
    }

    OSStatus handle(const Event &event)
    {
        if (event.kind != EventKind::ControlHit)
            return eventNotHandledErr;
        if (event.control == kTemplatePopup) {
            m_shift.choice = GetPopupButtonTicketValue(m_template);
        } else if (event.control == kShiftField) {
            m_shift.value = m_field->value();
        } else if (event.control == kUnitRadio) {
            const int unit = m_unit->value();
            m_field->takeTypedText();
            m_shift = withinReach(withUnit(m_shift, unit));
        } else {
            return eventNotHandledErr;
        }
        show();
        return noErr;
    }

    const TabShift &shift() const { return m_shift; }

private:
    void show()
    {
        const bool isEditable = isTabShiftEditable(m_shift);
        SetPopupButtonToTicketValue(m_template, m_shift.choice);
        m_field->setDecimals(m_shift.decimals);
        m_field->setMinimum(-m_shift.maximum);
        m_field->setMaximum(m_shift.maximum);
        m_field->setValue(m_shift.value);
        m_unit->setValue(m_shift.unit);
        setEnabledWithLabel(m_field, isEditable);
        setEnabledWithLabel(m_unit, isEditable);
    }

    PopupButton *m_template;
    SpinField *m_field;
    RadioGroup *m_unit;
    TabShift m_shift;
};

} // namespace

OSStatus RunModalTabStockSetupDialog(const Device &device, const Stock *stock, _IS_Options *options,
                                     DialogResult *result, QWidget *parent)
{
    if (!device.bundle || !stock || !options || !result)
        return paramErr;
    const auto dialog = createModalDialog(device.bundle, QStringLiteral("StockTypeSetupDialogs"),
                                          QStringLiteral("TabStockSetup"), parent,
                                          {kTemplatePopup, kShiftField, kUnitRadio});
    if (!dialog)
        return kWindowNotMade;
    TabShiftWindow window(device, dialog.get(), *options);
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&window](const Event &event) { return window.handle(event); });
    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        storeTabShift(*options, window.shift());
    return noErr;
}

OSStatus RunModalPreCutTabStockSetup(CFBundleRef bundle, DialogMode, JobContext, Stock *stock,
                                     DialogResult *result, QWidget *parent)
{
    if (!bundle || !stock || !result)
        return paramErr;
    const QString name = QStringLiteral("PreCutTabStockSetup");
    const auto dialog = createModalDialog(bundle, name, name, parent, {kTabsField});
    if (!dialog)
        return kWindowNotMade;
    auto *field = findControl<SpinField>(dialog.get(), kTabsField);
    field->setMinimum(kFewestTabs);
    field->setMaximum(kMostTabs);
    field->setValue(stock->modulus() == kUnset ? kUsualTabs : stock->modulus());
    makeHintText(findControl<QLabel>(dialog.get(), kTabsHint));
    showBundlePicture(findControl<PictureView>(dialog.get(), kTabsPicture), bundle,
                      QStringLiteral("Paper_Pre-CutTab_White.gif"),
                      localizedText(bundle, QStringLiteral("Tabs in Set Picture")));
    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        stock->setModulus(field->value());
    return noErr;
}

} // namespace kelvo
