#include "stock_dialogs.h"

#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "localized_controls.h"
#include "popups.h"
#include "spin_field.h"
#include "stock_menus.h"
#include "stock_properties.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

constexpr ControlID kDescriptionField{kPanelSignature, 7041};
constexpr ControlID kWeightField{kPanelSignature, 7042};
constexpr ControlID kWeightUnsetBox{kPanelSignature, 7043};
constexpr ControlID kWeightRange{kPanelSignature, 7044};
constexpr ControlID kSidesCoatedPopup{kPanelSignature, 7045};
constexpr ControlID kCoatingTypePopup{kPanelSignature, 7046};
constexpr ControlID kCoatingHint{kPanelSignature, 7047};
constexpr ControlID kFinishPopup{kPanelSignature, 7048};
constexpr ControlID kGrainPopup{kPanelSignature, 7049};
constexpr ControlID kPunchedPopup{kPanelSignature, 7050};
constexpr ControlID kCommentField{kPanelSignature, 7051};

constexpr std::int32_t kUsualWeight = 80; // g/m2, what a weight begins with

constexpr int kCommentLines = 4;

int heightOfLines(const QPlainTextEdit *edit, int lines)
{
    const double around = 2 * (edit->frameWidth() + edit->document()->documentMargin());
    return lines * edit->fontMetrics().lineSpacing() + static_cast<int>(around);
}

// A pop-up and what it sets.
struct PropertyRow
{
    ControlID popup;
    const SettingMap *map;
    std::int32_t (Stock::*value)() const;
    void (Stock::*setValue)(std::int32_t);
};

const std::array kRows = {
    PropertyRow{kSidesCoatedPopup, SidesCoatedMap, &Stock::sidesCoated, &Stock::setSidesCoated},
    PropertyRow{kCoatingTypePopup, CoatingTypeMap, &Stock::coatingType, &Stock::setCoatingType},
    PropertyRow{kFinishPopup, SurfaceFinishMap, &Stock::finish, &Stock::setFinish},
    PropertyRow{kGrainPopup, GrainMap, &Stock::grain, &Stock::setGrain},
    PropertyRow{kPunchedPopup, PunchedMap, &Stock::punched, &Stock::setPunched},
};

class StockDescriptionWindow
{
public:
    StockDescriptionWindow(const Device &device, const QWidget *window, JobContext jobContext,
                           const Stock &stock)
        : m_window(window)
        , m_properties(stockPropertiesOf(device.ppd))
        , m_description(findControl<QLineEdit>(window, kDescriptionField))
        , m_weight(findControl<SpinField>(window, kWeightField))
        , m_weightUnset(findControl<QCheckBox>(window, kWeightUnsetBox))
        , m_comment(findControl<QPlainTextEdit>(window, kCommentField))
        , m_stock(offered(stock, m_properties))
    {
        setInputLimits(m_description, {.maximumLength = kLongestStockText});
        setInputLimits(m_comment, {.maximumLength = kLongestStockComment});
        m_description->setText(m_stock.description());
        m_comment->setPlainText(m_stock.comment());
        m_comment->setFixedHeight(heightOfLines(m_comment, kCommentLines));
        fillPopups(device, jobContext);

        const WeightRange &range = m_properties.weight;
        m_weight->setMinimum(range.least);
        m_weight->setMaximum(range.greatest);
        m_weight->setSuffix(device.text("Stock Weight Suffix"));
        m_weight->setValue(m_stock.weight() == kUnset ? kUsualWeight : m_stock.weight());
        m_weightUnset->setText(device.text(notSetKey(jobContext)));
        m_weightUnset->setAccessibleName(
            QStringLiteral("%1: %2").arg(m_weight->accessibleName(), m_weightUnset->text()));
        auto *rangeLabel = findControl<QLabel>(window, kWeightRange);
        SetLocalizedStaticText(
            device.bundle, QStringLiteral("Stock Weight Range"), rangeLabel,
            {QLocale().toString(range.least), QLocale().toString(range.greatest)});
        m_weight->setAccessibleDescription(rangeLabel->text());
        makeHintText(rangeLabel);
        auto *coatingHint = findControl<QLabel>(window, kCoatingHint);
        makeHintText(coatingHint);
        coatingHint->setVisible(!m_properties.coating);
        show();
    }

    OSStatus handle(const Event &event)
    {
        if (event.kind == EventKind::TextChanged && event.control == kDescriptionField) {
            m_stock.setDescription(m_description->text());
            return noErr;
        }
        if (event.kind == EventKind::TextChanged && event.control == kCommentField) {
            m_stock.setComment(m_comment->toPlainText());
            return noErr;
        }
        if (event.kind != EventKind::ControlHit)
            return eventNotHandledErr;
        const auto row = std::ranges::find(kRows, event.control, &PropertyRow::popup);
        if (row != kRows.end())
            (m_stock.*row->setValue)(GetPopupButtonTicketValue(popupOf(*row)));
        else if (event.control == kWeightField || event.control == kWeightUnsetBox)
            m_stock.setWeight(m_weightUnset->isChecked() ? kUnset : m_weight->value());
        else
            return eventNotHandledErr;
        show();
        return noErr;
    }

    Stock stock() const
    {
        Stock described = offered(m_stock, m_properties);
        described.setDescription(described.description().trimmed());
        described.setComment(described.comment().trimmed());
        return described;
    }

private:
    PopupButton *popupOf(const PropertyRow &row) const
    {
        return findControl<PopupButton>(m_window, row.popup);
    }

    void fillPopups(const Device &device, JobContext jobContext) const
    {
        for (const PropertyRow &row : kRows)
            PopulatePopupButtonFromMap(device, popupOf(row), row.map, jobContext, kNoCommand);
        if (m_properties.prePunched)
            return;
        PopupButton *punched = findControl<PopupButton>(m_window, kPunchedPopup);
        Menu menu = punched->menu();
        std::erase_if(menu.items,
                      [](const MenuItem &item) { return item.reference == kStockPrePunched; });
        punched->setMenu(std::move(menu));
    }

    void show()
    {
        const bool hasWeight = m_stock.weight() != kUnset;
        m_weightUnset->setChecked(!hasWeight);
        m_weight->setEnabled(hasWeight);
        const Stock shown = offered(m_stock, m_properties);
        for (const PropertyRow &row : kRows)
            SetPopupButtonToTicketValue(popupOf(row), (shown.*row.value)());
        setEnabledWithLabel(findControl(m_window, kSidesCoatedPopup), m_properties.coating);
        setEnabledWithLabel(findControl(m_window, kCoatingTypePopup),
                            m_properties.coating && isCoated(m_stock));
    }

    const QWidget *m_window;
    StockProperties m_properties;
    QLineEdit *m_description;
    SpinField *m_weight;
    QCheckBox *m_weightUnset;
    QPlainTextEdit *m_comment;
    Stock m_stock;
};

} // namespace

OSStatus RunModalStockDescriptionSetup(const Device &device, DialogMode, JobContext jobContext,
                                       Stock *stock, DialogResult *result, QWidget *parent)
{
    if (!device.bundle || !stock || !result)
        return paramErr;
    const QString name = QStringLiteral("StockDescription");
    const auto dialog = createModalDialog(
        device.bundle, name, name, parent,
        {kDescriptionField, kWeightField, kWeightUnsetBox, kWeightRange, kSidesCoatedPopup,
         kCoatingTypePopup, kCoatingHint, kFinishPopup, kGrainPopup, kPunchedPopup, kCommentField});
    if (!dialog)
        return kWindowNotMade;
    StockDescriptionWindow window(device, dialog.get(), jobContext, *stock);
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&window](const Event &event) { return window.handle(event); });
    *result = dialog->runModal();
    if (*result != DialogResult::OK)
        return noErr;
    const Stock described = window.stock();
    const bool isChanged = !(described == *stock);
    *stock = described;
    if (isChanged)
        forgetStockName(*stock);
    return noErr;
}

} // namespace kelvo
