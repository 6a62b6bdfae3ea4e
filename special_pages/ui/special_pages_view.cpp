#include "special_pages_view.h"

#include "hint_text.h"
#include "localized_controls.h"
#include "pictures.h"
#include "popups.h"
#include "special_pages_summary.h"
#include "ticket_values.h"
#include "tool_tip.h"

#include <QLabel>
#include <QShortcut>

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

constexpr int addIconSize = 28, commandIconSize = 20; // logical pixels

constexpr std::int32_t paneNumber = 1;
constexpr std::int32_t listNumber = 1000;
constexpr std::int32_t hintNumber = 1001;
constexpr std::int32_t coverTraysNumber = 1002;

// A button: its number, the text of its label or its help tag, and its picture.
struct CommandButton
{
    std::int32_t number;      // KPDE
    std::int32_t labelNumber; // 0: the text is the help tag
    const char *textKey;
    const char *picture;
    const char *shortcut; // beside the mouse; may be null
    QPointer<QAbstractButton> _SpecialPagesContext::*button;
};
constexpr CommandButton commandButtons[] = {
    {100, 101, "Add Covers Command", "ButtonGraphic_AddCovers.icns", nullptr,
     &_SpecialPagesContext::addCoversButton},
    {200, 201, "Add Inserts Command", "ButtonGraphic_AddInserts.icns", nullptr,
     &_SpecialPagesContext::addInsertsButton},
    {300, 301, "Add Exceptions Command", "ButtonGraphic_AddExceptions.icns", nullptr,
     &_SpecialPagesContext::addExceptionsButton},
    {1200, 0, "Edit Command", "ButtonGraphic_Edit.icns", nullptr,
     &_SpecialPagesContext::editButton},
    {1300, 0, "Delete Command", "ButtonGraphic_Delete.icns", "Delete",
     &_SpecialPagesContext::deleteButton},
    {1400, 0, "Delete All Command", "ButtonGraphic_DeleteAll.icns", nullptr,
     &_SpecialPagesContext::deleteAllButton},
    {1500, 0, "Undo Command", "ButtonGraphic_Undo.icns", "Ctrl+Z",
     &_SpecialPagesContext::undoButton},
    {1600, 0, "Move Up Command", "ButtonGraphic_Move_Up.icns", "Alt+Up",
     &_SpecialPagesContext::moveUpButton},
    {1700, 0, "Move Down Command", "ButtonGraphic_Move_Down.icns", "Alt+Down",
     &_SpecialPagesContext::moveDownButton},
};

ControlID panelID(std::int32_t number)
{
    return {kPanelSignature, number};
}

void initializeButton(_SpecialPagesContext &panel, const CommandButton &row)
{
    QAbstractButton *button = panel.*row.button;
    const bool hasLabel = row.labelNumber != 0;
    const QString text = localizedText(panel.bundle, QString::fromLatin1(row.textKey));
    button->setIcon(pictureIcon(panel.bundle->resourcesPath(), QString::fromLatin1(row.picture)));
    const int side = hasLabel ? addIconSize : commandIconSize;
    button->setIconSize({side, side});
    if (hasLabel) {
        auto *label = findControl<QLabel>(panel.content, panelID(row.labelNumber));
        SetLocalizedStaticText(panel.bundle, QString::fromLatin1(row.textKey), label);
        return;
    }
    const QKeySequence keys(QString::fromLatin1(row.shortcut));
    button->setAccessibleName(text);
    setOwnToolTip(button,
                  keys.isEmpty() ? text
                                 : QStringLiteral("%1 (%2)").arg(
                                     text, keys.toString(QKeySequence::NativeText)));
    if (!keys.isEmpty()) {
        auto *shortcut = new QShortcut(keys, panel.content);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
    }
}

struct ListColumn
{
    OSType property;
    const char *titleKey;
    int width;                              // logical pixels
    std::array<const char *, 3> textKeys{}; // of what it shows, where that is known
};
constexpr ListColumn listColumns[] = {
    {kPropertyPages,
     "Page(s)",
     110,
     {"SpecialPageSummaryFront", "SpecialPageSummaryBack", "SpecialPageSummaryBefore1"}},
    {kPropertyType,
     "Type Title",
     90,
     {"SpecialPageSummaryCover", "SpecialPageSummaryInsert", "SpecialPageSummaryException"}},
    {kPropertyAttributes, "Attributes Title", 450},
};

void ConfigureSpecialPagesListAndInstallCallbacks(_SpecialPagesContext &panel)
{
    std::vector<ListView::Column> columns;
    const auto localized = [&panel](const char *key) {
        return localizedText(panel.bundle, QString::fromLatin1(key));
    };
    for (const ListColumn &column : listColumns) {
        QStringList texts;
        for (const char *key : column.textKeys) {
            if (key)
                texts << localized(key);
        }
        columns.push_back({localized(column.titleKey), column.width, texts});
    }
    panel.list->setColumns(columns, [&panel](int row, int column) {
        QString text;
        SpecialPagesListItemDataCallback(panel, *panel.rows[static_cast<std::size_t>(row)].page,
                                         listColumns[column].property, &text);
        return text;
    });
}

} // namespace

void findSpecialPagesControls(_SpecialPagesContext &panel, NeededControls &needed)
{
    panel.content = needed.find(panelID(paneNumber));
    panel.list = needed.find<ListView>(panelID(listNumber));
    for (const CommandButton &row : commandButtons) {
        panel.*row.button = needed.find<QAbstractButton>(panelID(row.number));
        if (row.labelNumber != 0)
            needed.find<QLabel>(panelID(row.labelNumber));
    }
    needed.find<QLabel>(panelID(hintNumber));
    panel.coverTrays = needed.find<QLabel>(panelID(coverTraysNumber));
}

void InitializeSpecialPages(_SpecialPagesContext &panel)
{
    for (const CommandButton &row : commandButtons)
        initializeButton(panel, row);
    setOnDevice(panel.device, panel.addCoversButton,
                panel.device.hasOption(QStringLiteral("KVFrontCoverSheet")));
    makeHintText(findControl<QLabel>(panel.content, panelID(hintNumber)));
    ConfigureSpecialPagesListAndInstallCallbacks(panel);
    UpdateSpecialPagesSummary(&panel);
}

OSStatus SpecialPagesListItemDataCallback(const _SpecialPagesContext &panel,
                                          const SpecialPage &page, OSType property, QString *text)
{
    switch (property) {
    case kPropertyPages:
        *text = pagesText(panel.device, panel.settings, page);
        return noErr;
    case kPropertyType:
        *text = typeText(panel.device, page);
        return noErr;
    case kPropertyAttributes:
        *text = attributesText(page, panel.device);
        return noErr;
    default:
        return kUnknownListProperty;
    }
}

void UpdateSpecialPagesSummary(_SpecialPagesContext *panel)
{
    if (!panel || !panel->list)
        return;
    std::vector<std::uint64_t> selected;
    for (const int row : panel->list->selectedRows())
        selected.push_back(panel->rows[static_cast<std::size_t>(row)].identity);
    std::ranges::sort(selected);
    panel->rows.clear();
    std::vector<int> selectedRows;
    for (const SpecialPage *page : rowsOf(panel->settings)) {
        if (std::ranges::binary_search(selected, page->identity()))
            selectedRows.push_back(static_cast<int>(panel->rows.size()));
        panel->rows.push_back({page, page->identity()});
    }
    panel->list->reload(static_cast<int>(panel->rows.size()));
    panel->list->selectRows(selectedRows);
    const QString trays = coverTraysText(panel->device, panel->settings);
    panel->coverTrays->setText(trays);
    panel->coverTrays->setVisible(!trays.isEmpty());
    panel->list->setAccessibleDescription(trays);
    UpdateSpecialPagesCommandButtons(panel);
}

void UpdateSpecialPagesCommandButtons(_SpecialPagesContext *panel)
{
    if (!panel || !panel->list)
        return;
    const SpecialPagesCommands commands =
        commandsFor(panel->settings.inserts, selectedPages(*panel), panel->list->rowCount(),
                    panel->undo.has_value());
    const auto enable = [](QAbstractButton *button, bool isEnabled) {
        if (button)
            button->setEnabled(isEnabled);
    };
    enable(panel->editButton, commands.edit);
    enable(panel->deleteButton, commands.remove);
    enable(panel->deleteAllButton, commands.removeAll);
    enable(panel->undoButton, commands.undo);
    enable(panel->moveUpButton, commands.moveUp);
    enable(panel->moveDownButton, commands.moveDown);
}

std::vector<const SpecialPage *> selectedPages(const _SpecialPagesContext &panel)
{
    std::vector<const SpecialPage *> pages;
    if (!panel.list)
        return pages;
    const std::vector<int> rows = panel.list->selectedRows();
    pages.reserve(rows.size());
    for (const int row : rows)
        pages.push_back(panel.rows[static_cast<std::size_t>(row)].page);
    return pages;
}

} // namespace kelvo
