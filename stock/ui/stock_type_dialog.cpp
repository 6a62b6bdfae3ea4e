#include "stock_dialogs.h"

#include "control.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "localized_controls.h"
#include "popups.h"
#include "stock_menus.h"
#include "stock_notices.h"
#include "stock_properties.h"
#include "tab_stock_dialogs.h"
#include "ticket_values.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

namespace kelvo {

namespace {

constexpr ControlID kTypePopup{kPanelSignature, 7030};
constexpr ControlID kNameField{kPanelSignature, 7031};
constexpr ControlID kNameHint{kPanelSignature, 7032};
constexpr ControlID kTabsLabel{kPanelSignature, 7033};
constexpr ControlID kTabsButton{kPanelSignature, 7034};

class StockTypeWindow
{
public:
    StockTypeWindow(const Device &device, QWidget *window, JobContext jobContext,
                    const Stock &stock)
        : m_device(device)
        , m_window(window)
        , m_jobContext(jobContext)
        , m_type(findControl<PopupButton>(window, kTypePopup))
        , m_name(findControl<QLineEdit>(window, kNameField))
        , m_tabs(findControl<QLabel>(window, kTabsLabel))
        , m_tabsButton(findControl<QPushButton>(window, kTabsButton))
        , m_stock(stock)
    {
        m_type->setMenu(stockTypeMenu(device, jobContext));
        setInputLimits(m_name, {.maximumLength = kLongestStockText});
        m_name->setText(m_stock.customType());
        makeHintText(findControl<QLabel>(window, kNameHint));
        makeHintText(m_tabs);
        show();
    }

    OSStatus handle(const Event &event)
    {
        if (event.kind == EventKind::TextChanged && event.control == kNameField) {
            m_stock.setCustomType(m_name->text());
            return noErr;
        }
        if (event.kind != EventKind::ControlHit)
            return eventNotHandledErr;
        if (event.control == kTypePopup) {
            // The clear colour of a type that was chosen in between does not stay.
            m_stock.setColor(m_colorBefore);
            applyStockCommand(m_stock, kCommandStockType, m_type->chosenReference(), m_jobContext);
            m_stock = withTabs(m_stock);
        } else if (event.control == kTabsButton) {
            DialogResult result = DialogResult::Cancel;
            RunModalPreCutTabStockSetup(m_device.bundle, kDialogModeEdit, m_jobContext, &m_stock,
                                        &result, m_window);
        } else {
            return eventNotHandledErr;
        }
        show();
        return noErr;
    }

    bool mayAccept() const
    {
        const StockProblem problem = findProblem(m_stock);
        if (problem != StockProblem::TypeNameMissing)
            return true;
        showStockProblem(m_device.bundle, problem, m_window);
        m_name->setFocus();
        return false;
    }

    Stock stock() const { return tidied(m_stock); }

private:
    void show()
    {
        const std::int32_t type = m_stock.type();
        showChoice(m_device.bundle, m_type, shownStockType(m_type->menu(), type));
        setEnabledWithLabel(m_name, hasTypeName(type));
        m_tabsButton->setEnabled(hasTabs(type));
        const bool isCounted = m_stock.modulus() != kUnset;
        const QString key = !hasTabs(type) ? QStringLiteral("Tabs Not Needed")
            : isCounted                    ? QStringLiteral("Tabs Set")
                                           : QStringLiteral("Tabs Not Set");
        SetLocalizedStaticText(m_device.bundle, key, m_tabs,
                               isCounted ? QStringList(QLocale().toString(m_stock.modulus()))
                                         : QStringList());
    }

    const Device &m_device;
    QWidget *m_window;
    JobContext m_jobContext;
    PopupButton *m_type;
    QLineEdit *m_name;
    QLabel *m_tabs;
    QPushButton *m_tabsButton;
    Stock m_stock;
    std::int32_t m_colorBefore = m_stock.color();
};

} // namespace

OSStatus RunModalStockTypeSetup(const Device &device, DialogMode, JobContext jobContext,
                                Stock *stock, DialogResult *result, QWidget *parent)
{
    if (!device.bundle || !stock || !result)
        return paramErr;
    const QString name = QStringLiteral("StockType");
    const auto dialog = createModalDialog(device.bundle, name, name, parent,
                                          {kTypePopup, kNameField, kTabsLabel, kTabsButton});
    if (!dialog)
        return kWindowNotMade;
    StockTypeWindow window(device, dialog.get(), jobContext, *stock);
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&window](const Event &event) { return window.handle(event); });
    dialog->setAcceptRule([&window] { return window.mayAccept(); });
    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        *stock = window.stock();
    return noErr;
}

} // namespace kelvo
