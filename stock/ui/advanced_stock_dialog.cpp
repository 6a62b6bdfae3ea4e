#include "stock_dialogs.h"

#include "control.h"
#include "custom_size.h"
#include "dialog_window.h"
#include "hint_text.h"
#include "input_limits.h"
#include "popups.h"
#include "save_stock_dialog.h"
#include "stock_library.h"
#include "stock_menu_button.h"
#include "stock_menus.h"
#include "stock_notices.h"
#include "stock_properties.h"
#include "stock_summary.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr ControlID kIcon{kPanelSignature, 7061};
constexpr ControlID kSummary{kPanelSignature, 7062};
constexpr ControlID kLibraryPopup{kPanelSignature, 7063};
constexpr ControlID kSaveButton{kPanelSignature, 7064};
constexpr ControlID kRemoveButton{kPanelSignature, 7065};
constexpr ControlID kSizeButton{kPanelSignature, 7066};
constexpr ControlID kColorPopup{kPanelSignature, 7067};
constexpr ControlID kColorNameField{kPanelSignature, 7068};
constexpr ControlID kTypeButton{kPanelSignature, 7069};
constexpr ControlID kDescriptionButton{kPanelSignature, 7070};
constexpr ControlID kLibraryHint{kPanelSignature, 7071};

constexpr std::int32_t kNoLibraryStock = -1; // the first line of the pop-up

// A stock as its context begins with it, all of it: the default by itself leaves
// some of the finer properties as they were.
Stock freshStock(JobContext jobContext)
{
    Stock stock;
    DefaultStock(&stock, jobContext);
    return stock;
}

class AdvancedStockWindow
{
public:
    AdvancedStockWindow(const Device &device, QWidget *window, JobContext jobContext,
                        OwnSize ownSize, bool offersLibrary, const Stock &stock)
        : m_device(device)
        , m_window(window)
        , m_jobContext(jobContext)
        , m_ownSize(ownSize)
        , m_summary(findControl<SummaryView>(window, kSummary))
        , m_library(findControl<PopupButton>(window, kLibraryPopup))
        , m_remove(findControl<QPushButton>(window, kRemoveButton))
        , m_size(findControl<MenuButton>(window, kSizeButton))
        , m_color(findControl<PopupButton>(window, kColorPopup))
        , m_colorName(findControl<QLineEdit>(window, kColorNameField))
        , m_stock(stock)
    {
        m_color->setMenu(stockColorMenu(device, jobContext));
        setInputLimits(m_colorName, {.maximumLength = kLongestStockText});

        const bool hasSize = ownSize != OwnSize::None;
        m_sizeData.device = device;
        m_sizeData.stock = &m_stock;
        m_sizeData.jobContext = jobContext;
        m_sizeData.offersSize = hasSize;
        m_sizeData.icon = findControl<PictureView>(window, kIcon);
        m_sizeData.changed = [this] { show(); };
        setVisibleWithLabel(m_size, hasSize);
        if (hasSize)
            InitializeStockSizeMenuButton(m_size, &m_sizeData);

        auto *hint = findControl<QLabel>(window, kLibraryHint);
        makeHintText(hint);
        fillLibrary();
        if (!offersLibrary) {
            setVisibleWithLabel(m_library, false);
            for (QWidget *control : {static_cast<QWidget *>(hint), findControl(window, kSaveButton),
                                     static_cast<QWidget *>(m_remove)})
                control->hide();
        }
        m_colorName->setText(m_stock.customColor());
        show();
        // Not the summary, which comes first.
        findControl(window, kTypeButton)->setFocus();
    }
    ~AdvancedStockWindow() { FinalizeStockSizeMenuButton(&m_sizeData); }
    AdvancedStockWindow(const AdvancedStockWindow &) = delete;
    AdvancedStockWindow &operator=(const AdvancedStockWindow &) = delete;

    OSStatus handle(const Event &event)
    {
        if (event.kind == EventKind::TextChanged && event.control == kColorNameField) {
            const Stock before = m_stock;
            m_stock.setCustomColor(m_colorName->text());
            settle(before);
        } else if (event.kind == EventKind::Command && event.command == kCommandRevert) {
            replaceStock(freshStock(m_jobContext));
        } else if (event.kind != EventKind::ControlHit || !handleHit(event.control)) {
            return eventNotHandledErr;
        }
        show();
        return noErr;
    }

    bool mayAccept() const
    {
        const StockProblem problem = findProblem(tidied(m_stock));
        showStockProblem(m_device.bundle, problem, m_window);
        if (problem == StockProblem::ColorNameMissing)
            m_colorName->setFocus();
        return problem == StockProblem::None;
    }

    Stock stock() const { return tidied(m_stock); }

private:
    bool handleHit(ControlID control)
    {
        if (control == kLibraryPopup)
            takeFromLibrary(m_library->chosenReference());
        else if (control == kSaveButton)
            save();
        else if (control == kRemoveButton)
            remove();
        else
            return changeStock(control);
        return true;
    }

    bool changeStock(ControlID control)
    {
        const Stock before = m_stock;
        if (control == kColorPopup)
            applyStockCommand(m_stock, kCommandStockColor, m_color->chosenReference(),
                              m_jobContext);
        else if (control == kTypeButton)
            runType();
        else if (control == kDescriptionButton)
            runDescription();
        else
            return false;
        settle(before);
        return true;
    }

    // The stock was `before`: another one has no name any more.
    void settle(const Stock &before)
    {
        if (m_stock == before)
            return;
        forgetStockName(m_stock);
        leaveLibrary(m_stock, before, m_named, m_ownSize);
    }

    void runType()
    {
        DialogResult result = DialogResult::Cancel;
        RunModalStockTypeSetup(m_device, kDialogModeEdit, m_jobContext, &m_stock, &result,
                               m_window);
    }

    void runDescription()
    {
        DialogResult result = DialogResult::Cancel;
        RunModalStockDescriptionSetup(m_device, kDialogModeEdit, m_jobContext, &m_stock, &result,
                                      m_window);
    }

    void takeFromLibrary(std::int32_t row)
    {
        if (row >= 0 && row < static_cast<std::int32_t>(m_named.size())) {
            replaceStock(takenFromLibrary(m_named[row], m_stock, m_ownSize));
            m_libraryName = m_named[row].customName();
        }
    }

    void save()
    {
        // What a library's name describes is saved without that.
        Stock own = tidied(m_stock);
        const auto row = findInLibrary(m_named, m_stock, m_ownSize);
        if (row && m_named[*row].description().isEmpty())
            own.setDescription(QStringLiteral(""));
        const std::optional<QString> name = RunModalSaveStock(
            m_device.bundle, own, m_libraryName.isEmpty() ? m_stock.description() : m_libraryName,
            m_window);
        if (name) {
            own.setCustomName(*name);
            replaceStock(takenFromLibrary(own, m_stock, m_ownSize));
            m_libraryName = *name;
            fillLibrary();
        }
    }

    void remove()
    {
        const QString name = chosenName();
        if (name.isEmpty()
            || !mayChangeLibrary(m_device.bundle, LibraryChange::Remove, name, m_window))
            return;
        showLibraryProblem(m_device.bundle, removeFromStockLibrary(name), name, m_window);
        m_libraryName.clear();
        fillLibrary();
    }

    // The library's stock that the pop-up shows; empty when it shows none.
    QString chosenName() const
    {
        const std::int32_t row = m_library->chosenReference();
        return row >= 0 && row < static_cast<std::int32_t>(m_named.size())
            ? m_named[row].customName()
            : QString();
    }

    // Lists the library as it is now.
    void fillLibrary()
    {
        m_named = readStockLibrary();
        Menu menu;
        MenuItem none;
        none.text = m_device.text(m_named.empty() ? "Stock Library Empty" : "Stock Library Choose");
        none.reference = kNoLibraryStock;
        menu.items.push_back(std::move(none));
        for (std::size_t row = 0; row < m_named.size(); ++row) {
            MenuItem item;
            item.text = m_named[row].customName();
            item.reference = static_cast<std::int32_t>(row);
            menu.items.push_back(std::move(item));
        }
        m_library->setMenu(std::move(menu));
    }

    void replaceStock(const Stock &stock)
    {
        m_stock = stock;
        m_colorName->setText(m_stock.customColor());
    }

    void show()
    {
        const auto row = findInLibrary(m_named, m_stock, m_ownSize, m_libraryName);
        m_library->setValueByReference(row ? static_cast<std::int32_t>(*row) : kNoLibraryStock);
        setEnabledWithLabel(m_library, !m_named.empty());
        m_remove->setEnabled(!chosenName().isEmpty());
        showChoice(m_device.bundle, m_color, m_stock.color());
        setEnabledWithLabel(m_colorName, m_stock.color() == kStockColorCustom);
        m_size->setText(stockSizeWords(m_device, m_jobContext, m_stock, currentSizeUnit())
                            .replace(u'&', QLatin1String("&&")));
        QStringList lines(stockSummaryText(m_device, m_jobContext, &m_stock));
        lines += stockPropertyLines(m_device, m_stock);
        m_summary->setSummary(lines.join(u'\n'));
        StockIconEventHandler(m_sizeData);
    }

    const Device &m_device;
    QWidget *m_window;
    JobContext m_jobContext;
    OwnSize m_ownSize;
    SummaryView *m_summary;
    PopupButton *m_library;
    QPushButton *m_remove;
    MenuButton *m_size;
    PopupButton *m_color;
    QLineEdit *m_colorName;
    Stock m_stock;
    std::vector<Stock> m_named; // the library, as the pop-up lists it
    QString m_libraryName;      // chosen or saved last, suggested for saving again
    _StockMenuCommandEventHandlerData m_sizeData;
};

} // namespace

OSStatus RunModalAdvancedStockSelection(const Device &device, DialogMode, JobContext jobContext,
                                        NamedPaperContext namedPapers, Stock *stock,
                                        DialogResult *result, QWidget *parent, bool offersSize)
{
    if (!device.bundle || !stock || !result)
        return paramErr;
    const QString name = QStringLiteral("AdvancedStockSelection");
    const auto dialog = createModalDialog(device.bundle, name, name, parent,
                                          {kSummary, kLibraryPopup, kSaveButton, kRemoveButton,
                                           kSizeButton, kColorPopup, kColorNameField, kTypeButton,
                                           kDescriptionButton, kLibraryHint});
    if (!dialog)
        return kWindowNotMade;
    AdvancedStockWindow window(device, dialog.get(), jobContext, ownSizeFor(jobContext, offersSize),
                               namedPapers == kNamedPaperLibrary, *stock);
    const EventHandlerRef handler = installEventHandler(
        dialog.get(), [&window](const Event &event) { return window.handle(event); });
    dialog->setAcceptRule([&window] { return window.mayAccept(); });
    *result = dialog->runModal();
    if (*result == DialogResult::OK)
        *stock = window.stock();
    return noErr;
}

} // namespace kelvo
