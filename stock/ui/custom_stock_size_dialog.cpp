#include "custom_stock_size_dialog.h"

#include "bundle_picture.h"
#include "custom_size.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "localized_controls.h"
#include "notice.h"
#include "picture_view.h"
#include "radio_group.h"
#include "spin_field.h"
#include "string_table.h"
#include "ticket_values.h"

#include <QLabel>

#include <algorithm>

namespace kelvo {

namespace {

// Each with its unit and its limits at the two numbers after it.
constexpr ControlID kWidthField{kPanelSignature, 7001};
constexpr ControlID kLengthField{kPanelSignature, 7004};
constexpr ControlID kUnitRadio{kPanelSignature, 7007};
constexpr ControlID kPictureView{kPanelSignature, 7008};

// One of the two lengths, with what stands beside its field.
struct LengthControls
{
    SpinField *field = nullptr;
    QLabel *unit = nullptr;
    QLabel *limits = nullptr;

    LengthControls(const QWidget *window, ControlID id)
        : field(findControl<SpinField>(window, id))
        , unit(findControl<QLabel>(window, {id.signature, id.number + 1}))
        , limits(findControl<QLabel>(window, {id.signature, id.number + 2}))
    {
        makeHintText(limits);
    }
};

class CustomSizeWindow
{
public:
    CustomSizeWindow(const Device &device, const QWidget *window, std::int32_t width,
                     std::int32_t length)
        : m_device(device)
        , m_width(window, kWidthField)
        , m_length(window, kLengthField)
        , m_unitRadio(findControl<RadioGroup>(window, kUnitRadio))
    {
        showBundlePicture(findControl<PictureView>(window, kPictureView), device.bundle,
                          QStringLiteral("Paper_CustomSize.gif"),
                          device.text("Custom Size Picture"));
        m_unitRadio->setValue(static_cast<int>(m_unit));
        showUnit(fieldOfLength(width, m_unit), fieldOfLength(length, m_unit));
    }

    OSStatus handle(const Event &event)
    {
        if (event.kind != EventKind::ControlHit || event.control != kUnitRadio)
            return eventNotHandledErr;
        const auto unit = static_cast<SizeUnit>(m_unitRadio->value());
        if (unit == m_unit)
            return noErr;
        m_width.field->takeTypedText();
        m_length.field->takeTypedText();
        m_unit = unit;
        setCurrentSizeUnit(unit);
        showUnit(convertedField(m_width.field->value(), unit),
                 convertedField(m_length.field->value(), unit));
        return noErr;
    }

    // False after a notice that the device does not take one of the two.
    bool mayAccept() const
    {
        return isTaken(m_width, "Custom Width Refused Header")
            && isTaken(m_length, "Custom Length Refused Header");
    }

    std::int32_t width() const { return lengthOfField(m_width.field->value(), m_unit); }
    std::int32_t length() const { return lengthOfField(m_length.field->value(), m_unit); }

private:
    bool isTaken(const LengthControls &controls, const char *refusalKey) const
    {
        if (controls.field->isInRange())
            return true;
        CFUserNotificationDisplayNotice(
            NoticeLevel::Stop, m_device.text(refusalKey),
            formatted(m_device.text("Custom Size Refused Message"), {controls.limits->text()}), {},
            controls.field);
        controls.field->setFocus();
        controls.field->selectAll();
        return false;
    }

    void showUnit(std::int32_t width, std::int32_t length)
    {
        const SizeFieldLimits limits = sizeFieldLimits(m_device.mediaLimits(), m_unit);
        show(m_width, width, limits.minWidth, limits.maxWidth);
        show(m_length, length, limits.minLength, limits.maxLength);
    }

    void show(const LengthControls &controls, std::int32_t value, std::int32_t least,
              std::int32_t most)
    {
        const bool inInches = m_unit == SizeUnit::Inches;
        const int decimals = decimalsOf(m_unit);
        SpinField &field = *controls.field;
        field.setDecimals(decimals);
        field.setSingleStep(inInches ? 5 : 10); // 0.05 in, 1 mm
        // A device's greatest length below its least leaves one length to choose.
        field.setMinimum(least);
        field.setMaximum(std::max(least, most));
        field.setValue(value);
        SetLocalizedStaticText(m_device.bundle,
                               inInches ? QStringLiteral("Inches") : QStringLiteral("Millimeters"),
                               controls.unit);
        const auto text = [decimals](int limit) {
            return CreateLocalizedCFStringFromNumberWithDecimals(limit, decimals)
                .value_or(QString());
        };
        SetLocalizedStaticText(m_device.bundle,
                               inInches ? QStringLiteral("Custom Size Limits Inches")
                                        : QStringLiteral("Custom Size Limits Millimeters"),
                               controls.limits, {text(field.minimum()), text(field.maximum())});
        field.setAccessibleDescription(controls.limits->text());
    }

    const Device &m_device;
    LengthControls m_width;
    LengthControls m_length;
    RadioGroup *m_unitRadio;
    SizeUnit m_unit = currentSizeUnit();
};

} // namespace

OSStatus RunModalCustomStockSizeDialog(const Device &device, DialogResult *result,
                                       std::int32_t *width, std::int32_t *length, QWidget *parent)
{
    if (!device.bundle || !result || !width || !length)
        return paramErr;
    const QString name = QStringLiteral("CustomStockSize");
    const auto dialog = createModalDialog(device.bundle, name, name, parent,
                                          {kWidthField, kLengthField, kUnitRadio});
    if (!dialog)
        return kWindowNotMade;
    const CustomSize usual = usualSize(device.ppd);
    CustomSizeWindow window(device, dialog.get(), *width == kUnset ? usual.width : *width,
                            *length == kUnset ? usual.length : *length);
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&window](const Event &event) { return window.handle(event); });
    dialog->setAcceptRule([&window] { return window.mayAccept(); });
    *result = dialog->runModal();
    if (*result == DialogResult::OK) {
        *width = window.width();
        *length = window.length();
    }
    return noErr;
}

} // namespace kelvo
