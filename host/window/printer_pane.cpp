#include "printer_pane.h"

#include "accessible_role.h"
#include "caution_colours.h"
#include "layout_rows.h"
#include "mnemonics.h"
#include "popup_button.h"
#include "preset_menu.h"
#include "printer_chooser.h"
#include "printer_words.h"
#include "spin_field.h"
#include "texts.h"
#include "ticket_layers.h"
#include "ticket_places.h"
#include "tool_tip.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace kelvo {

namespace {

enum PagesChoice { AllPages = 1, SomePages = 2, PageInSight = 3 };

// The reference values are PMOrientation's.
struct OrientationRow
{
    Orientation value;
    const char *text;
    const char *key;
};
constexpr OrientationRow orientationRows[] = {
    {Orientation::Portrait, QT_TRANSLATE_NOOP("kelvo::PrinterPane", "Portrait"), "portrait"},
    {Orientation::Landscape, QT_TRANSLATE_NOOP("kelvo::PrinterPane", "Landscape"), "landscape"},
    {Orientation::ReversePortrait, QT_TRANSLATE_NOOP("kelvo::PrinterPane", "Portrait, upside down"),
     "reverse-portrait"},
    {Orientation::ReverseLandscape,
     QT_TRANSLATE_NOOP("kelvo::PrinterPane", "Landscape, upside down"), "reverse-landscape"},
};

} // namespace

PrinterPane::PrinterPane(PresetMenu *presets, QWidget *parent)
    : QWidget(parent)
    , m_presets(presets)
    , m_printer(new PopupButton(this))
    , m_copies(new SpinField(this))
    , m_collate(new QCheckBox(tr("C&ollate"), this))
    , m_pagesChoice(new PopupButton(this))
    , m_pages(new QLineEdit(this))
    , m_pagesProblem(new QLabel(this))
    , m_paper(new PopupButton(this))
    , m_orientation(new PopupButton(this))
    , m_layout(nullptr)
    , m_settingControls{presets->popup(), m_copies, m_collate,    m_pagesChoice,
                        m_pages,          m_paper,  m_orientation}
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(1, 1);

    m_printer->setObjectName(QStringLiteral("printer"));
    m_printer->setChoosesInListOnly(true); // each brings panels and settings of its own
    addRow(tr("Prin&ter:"), m_printer, m_printer);
    addRow(tr("Pre&set:"), presets->popup(), presets);

    m_copies->setObjectName(QStringLiteral("copies"));
    m_copies->setMinimum(1);
    m_copies->setMaximum(kMaximumCopies);
    m_copies->setValue(1);
    m_collate->setObjectName(QStringLiteral("collate"));
    setOwnToolTip(m_collate, tr("Each copy is complete before the next one begins"));
    sendControlEvents(m_collate);
    auto *copiesRow = new QWidget(this);
    auto *copiesLayout = new QHBoxLayout(copiesRow);
    copiesLayout->setContentsMargins(0, 0, 0, 0);
    copiesLayout->setSpacing(12);
    copiesLayout->addWidget(m_copies);
    copiesLayout->addWidget(m_collate);
    copiesLayout->addStretch(1);
    addRow(tr("&Copies:"), m_copies, copiesRow);

    m_pagesChoice->setObjectName(QStringLiteral("pagesChoice"));
    Menu choices;
    choices.items = {
        {.text = tr("All"), .key = QStringLiteral("all"), .reference = AllPages},
        {.text = tr("Current page"), .key = QStringLiteral("current"), .reference = PageInSight},
        {.text = tr("Range"), .key = QStringLiteral("range"), .reference = SomePages}};
    m_pagesChoice->setMenu(choices);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setAccessibleName(tr("Pages to print"));
    m_pages->setLayoutDirection(Qt::LeftToRight); // "1-3, 7" is no word of any language
    sendControlEvents(m_pages);
    auto *pagesRow = new QWidget(this);
    auto *pagesLayout = new QHBoxLayout(pagesRow);
    pagesLayout->setContentsMargins(0, 0, 0, 0);
    pagesLayout->setSpacing(6);
    pagesLayout->addWidget(m_pagesChoice);
    pagesLayout->addWidget(m_pages, 1);
    addRow(tr("Pa&ges:"), m_pagesChoice, pagesRow);

    setAccessibleRole(m_pagesProblem, QAccessible::Notification);
    m_pagesProblem->setObjectName(QStringLiteral("pagesProblem"));
    m_pagesProblem->setTextFormat(Qt::PlainText);
    m_pagesProblem->setWordWrap(true);
    m_pagesProblem->hide();
    colour();
    fitToFont();
    m_grid->addWidget(m_pagesProblem, m_grid->rowCount(), 1);

    m_paper->setObjectName(QStringLiteral("paper"));
    addRow(tr("Pap&er size:"), m_paper, m_paper);

    m_orientation->setObjectName(QStringLiteral("orientation"));
    Menu orientations;
    for (const OrientationRow &row : orientationRows)
        orientations.items.push_back({.text = translate("kelvo::PrinterPane", row.text),
                                      .key = QString::fromLatin1(row.key),
                                      .reference = static_cast<std::int32_t>(row.value)});
    m_orientation->setMenu(orientations);
    addRow(tr("Or&ientation:"), m_orientation, m_orientation);
    m_layout =
        new LayoutRows(this, m_grid, [this](const QString &text, QWidget *buddy, QWidget *field) {
            return addRow(text, buddy, field);
        });

    // The pages belong to one job: nobody asks whether they were chosen.
    setTicketPlaces(m_copies, {{kPMPrintSettingsTicket, kPMCopiesKey}});
    setTicketPlaces(m_collate, {{kPMPrintSettingsTicket, kPMCollateKey}});
    setTicketPlaces(m_paper, paperPlaces());
    setTicketPlaces(m_orientation, {{kPMPageFormatTicket, kPMOrientationKey}});

    // The presets were made before this, and come second all the same.
    QWidget *last = m_printer;
    auto stops = presets->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    stops << m_copies << m_collate << m_pagesChoice << m_pages << m_paper << m_orientation
          << m_layout->toggle();
    for (QWidget *stop : stops) {
        setTabOrder(last, stop);
        last = stop;
    }

    m_handler = installEventHandler(this, [this](const Event &event) { return handle(event); });
    setPrinters({}, {});
    setSettings({}, nullptr);
    setSettingsEnabled(false);
}

QLabel *PrinterPane::addRow(const QString &text, QWidget *buddy, QWidget *field)
{
    auto *label = new QLabel(text, this);
    label->setBuddy(buddy);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (buddy->accessibleName().isEmpty())
        buddy->setAccessibleName(nameInLabel(text));
    const int row = m_grid->rowCount();
    m_grid->addWidget(label, row, 0);
    m_grid->addWidget(field, row, 1);
    return label;
}

void PrinterPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colour();
    else if (event->type() == QEvent::FontChange)
        fitToFont();
}

// In a narrow column the room is the range's, not the two words' before it.
void PrinterPane::fitToFont()
{
    int words = 0;
    for (const MenuItem &item : m_pagesChoice->menu().items)
        words = std::max(words, m_pagesChoice->fontMetrics().horizontalAdvance(item.text));
    m_pagesChoice->setMaximumWidth(words + 3 * m_pagesChoice->fontMetrics().height());
}

void PrinterPane::colour()
{
    QPalette colours;
    colours.setColor(QPalette::WindowText, cautionText(palette()));
    m_pagesProblem->setPalette(colours);
    // Not every dark theme has a colour for this.
    QColor hint = palette().color(QPalette::Text);
    hint.setAlphaF(0.6F);
    QPalette fieldColours;
    fieldColours.setColor(QPalette::PlaceholderText, hint);
    m_pages->setPalette(fieldColours);
}

QWidget *PrinterPane::firstControl() const
{
    return m_printer;
}

void PrinterPane::focusPages()
{
    m_pages->setFocus();
    m_pages->selectAll();
}

PrinterChooser *PrinterPane::makePrinterChooser()
{
    m_printerChooser = new PrinterChooser(m_printer);
    m_printerChooser->setPrinters(m_printers, m_chosenPrinter);
    connect(m_printerChooser, &PopupList::opened, this, &PrinterPane::printersListed);
    return m_printerChooser;
}

bool PrinterPane::arePrintersListed() const
{
    return m_printer->isListOpen();
}

void PrinterPane::setPrinters(const QList<Printer> &printers, const QString &chosen)
{
    m_printers = printers;
    m_chosenPrinter = chosen;
    Menu menu;
    std::int32_t reference = 0;
    std::int32_t shown = -1;
    for (const Printer &printer : printers) {
        if (printer.name == chosen) {
            shown = reference;
            setPlainToolTip(m_printer, printerInFull(printer));
        }
        menu.items.push_back(
            {.text = printerAndState(printer), .key = printer.name, .reference = reference++});
    }
    if (shown < 0 && !chosen.isEmpty()) {
        // Asked for, and not there (yet): shown all the same.
        shown = reference;
        menu.items.push_back(
            {.text = chosen, .key = chosen, .reference = reference, .enabled = false});
    }
    if (menu.items.empty()) {
        shown = reference;
        menu.items.push_back({.text = tr("None"), .reference = reference, .enabled = false});
    }
    m_printer->setMenu(std::move(menu));
    if (!m_printer->setValueByReference(shown))
        m_printer->setValue(0);
    setEnabledWithLabel(m_printer, !printers.isEmpty());
    if (!m_printer->hasOwnList())
        m_printer->setOwnList([this](PopupButton *) { return makePrinterChooser(); });
    if (m_printerChooser)
        m_printerChooser->setPrinters(printers, chosen);
}

void PrinterPane::setDevice(const QString &name)
{
    Menu menu;
    menu.items.push_back({.text = name, .key = name});
    m_printer->setOwnList({});
    m_printerChooser = nullptr;
    m_printer->setMenu(std::move(menu));
    m_printer->setValue(1);
    setEnabledWithLabel(m_printer, true);
    setPlainToolTip(m_printer, tr("A device without a queue: nothing can be sent to it"));
}

void PrinterPane::setSettings(const JobSettings &settings, const PpdFile *ppd)
{
    m_settings = settings;
    m_layout->setSettings(settings);
    // What is being typed stays until it is taken.
    if (m_copies->value() != settings.copies)
        m_copies->setValue(settings.copies);
    m_collate->setChecked(settings.collate);
    m_collate->setEnabled(m_copies->isEnabled() && settings.copies > 1);
    // A range that the user has not typed yet stays a range.
    const bool isRange = !settings.pageRanges.isEmpty() || arePagesMissing();
    m_pagesChoice->setValueByReference(isRange ? SomePages : AllPages);
    // While the user types, the text is already what the ticket has.
    if (m_pages->text().trimmed() != settings.pageRanges && !settings.pageRanges.isEmpty())
        m_pages->setText(settings.pageRanges);
    showPageField();

    Menu papers;
    if (ppd) {
        for (const PpdPageSize &size : ppd->pageSizes()) {
            if (size.name == QLatin1String("Custom"))
                continue;
            const PpdOption *option = ppd->findOption(QStringLiteral("PageSize"));
            const PpdChoice *choice = option ? option->findChoice(size.name) : nullptr;
            papers.items.push_back({.text = choice ? choice->text : size.name,
                                    .key = size.name,
                                    .reference = static_cast<std::int32_t>(papers.items.size())});
        }
    }
    m_hasPaper = !papers.items.empty();
    m_paperName = settings.paperName;
    if (!m_hasPaper)
        papers.items.push_back({.text = settings.paperName.isEmpty() ? tr("As the printer has it")
                                                                     : settings.paperName,
                                .key = settings.paperName});
    else if (ppd && !settings.paperName.isEmpty() && !ppd->findPageSize(settings.paperName))
        papers.items.push_back({.text = paperSize(settings.paperName, *ppd)
                                    ? tr("Custom: %1").arg(settings.paperName.section(u'.', 1))
                                    : tr("%1 (not on this printer)").arg(settings.paperName),
                                .key = settings.paperName,
                                .reference = static_cast<std::int32_t>(papers.items.size()),
                                .enabled = paperSize(settings.paperName, *ppd).has_value()});
    const auto shown =
        std::find_if(papers.items.cbegin(), papers.items.cend(),
                     [&settings](const MenuItem &item) { return item.key == settings.paperName; });
    const int value = shown == papers.items.cend() ? 1 : int(shown - papers.items.cbegin()) + 1;
    const bool isSame =
        std::equal(papers.items.cbegin(), papers.items.cend(), m_paper->menu().items.cbegin(),
                   m_paper->menu().items.cend(), [](const MenuItem &one, const MenuItem &other) {
                       return one.key == other.key && one.text == other.text;
                   });
    if (!isSame)
        m_paper->setMenu(std::move(papers));
    m_paper->setValue(value);
    m_paper->setEnabled(m_hasPaper && m_copies->isEnabled());
    m_orientation->setValueByReference(static_cast<std::int32_t>(settings.orientation));
}

void PrinterPane::dropTypedText()
{
    m_copies->setValue(m_copies->value());
}

JobSettings PrinterPane::settings() const
{
    JobSettings settings = m_settings;
    settings.copies = m_copies->value();
    settings.collate = m_collate->isChecked();
    settings.pageRanges.clear();
    if (m_pagesChoice->chosenReference() == SomePages)
        settings.pageRanges = m_pages->text().trimmed();
    settings.paperName = m_paperName;
    settings.orientation = static_cast<Orientation>(m_orientation->chosenReference());
    m_layout->putInto(settings);
    return settings;
}

bool PrinterPane::arePagesMissing() const
{
    return m_pagesChoice->chosenReference() == SomePages && m_pages->text().trimmed().isEmpty();
}

void PrinterPane::setSettingsEnabled(bool enabled)
{
    for (QWidget *control : m_settingControls)
        setEnabledWithLabel(control, enabled);
    m_presets->setEnabled(enabled);
    m_layout->setEnabled(enabled);
    m_collate->setEnabled(enabled && m_copies->value() > 1);
    m_paper->setEnabled(enabled && m_hasPaper);
    showPageField();
}

void PrinterPane::setPageInSight(int page)
{
    m_pagesChoice->setValueByReference(SomePages);
    m_pages->setText(QString::number(page));
    showPageField();
    emit settingsEdited();
}

void PrinterPane::buildFolded()
{
    m_layout->build();
}

void PrinterPane::setPagesProblem(const QString &problem)
{
    const bool isNews = m_pagesProblem->text() != problem;
    m_pagesProblem->setText(problem);
    showNotification(m_pagesProblem, !problem.isEmpty(), isNews);
    m_pages->setAccessibleDescription(problem);
}

void PrinterPane::showPageField()
{
    m_pages->setEnabled(m_pagesChoice->isEnabled()
                        && m_pagesChoice->chosenReference() == SomePages);
    m_pages->setPlaceholderText(m_pages->isEnabled() ? tr("such as 1-3, 7") : QString());
}

OSStatus PrinterPane::handle(const Event &event)
{
    const QWidget *source = event.source;
    const bool isHit = event.kind == EventKind::ControlHit;
    if (source == m_printer && isHit) {
        const auto row = static_cast<std::size_t>(m_printer->value() - 1);
        if (row < m_printer->menu().items.size())
            emit printerChosen(m_printer->menu().items[row].key);
        return noErr;
    }
    if (source == m_paper && isHit) {
        const auto row = static_cast<std::size_t>(m_paper->value() - 1);
        if (row < m_paper->menu().items.size())
            m_paperName = m_paper->menu().items[row].key;
        emit settingsEdited();
        return noErr;
    }
    if (m_layout->isEdit(event)) {
        JobSettings settings = m_settings;
        m_layout->putInto(settings);
        m_layout->setSettings(settings);
        emit settingsEdited();
        return noErr;
    }
    if (source == m_pagesChoice && isHit && m_pagesChoice->chosenReference() == PageInSight) {
        emit pageInSightWanted();
        return noErr;
    }
    if (source == m_pagesChoice && isHit) {
        showPageField();
        if (m_pages->isEnabled() && m_pagesChoice->isChosenFromList())
            m_pages->setFocus();
        emit settingsEdited();
        return noErr;
    }
    if (source == m_copies && isHit)
        m_collate->setEnabled(m_copies->value() > 1);
    const bool isEdit =
        (isHit && (source == m_copies || source == m_collate || source == m_orientation))
        || (source == m_pages && event.kind == EventKind::TextChanged);
    if (!isEdit)
        return eventNotHandledErr;
    emit settingsEdited();
    return noErr;
}

} // namespace kelvo
