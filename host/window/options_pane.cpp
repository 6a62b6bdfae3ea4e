#include "options_pane.h"

#include "audience.h"
#include "caution_colours.h"
#include "control.h"
#include "popup_button.h"
#include "print_session.h"
#include "ticket_layers.h"
#include "ticket_places.h"
#include "tool_tip.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

constexpr int margin = 14;
constexpr int sectionGap = 14;   // above a heading
constexpr int longestLabel = 26; // characters; longer ones take two lines

QLabel *plainLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

OptionsPane::OptionsPane(QWidget *parent)
    : QWidget(parent)
    , m_note(plainLabel({}, this))
{
    setObjectName(QStringLiteral("options"));
    setAccessibleName(tr("Printer options"));
    setProperty("helpPage", QStringLiteral("host/printer_options.html"));
    m_note->setObjectName(QStringLiteral("optionsNote"));
    m_note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_note->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(sectionGap);
    layout->addWidget(m_note);
    layout->addStretch(1);
    m_handler = installEventHandler(this, [this](const Event &event) { return handle(event); });
}

void OptionsPane::setNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

Result<void> OptionsPane::begin(PrintSession &tickets)
{
    const auto &ppd = tickets.printer().ppd;
    if (!ppd)
        return Error{Error::Code::NotFound, tickets.printer().name, {}};
    m_tickets = &tickets;
    m_sections = panelSections(*ppd);
    m_content = new QWidget(this);
    m_grid = new QGridLayout(m_content);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout *>(layout())->insertWidget(1, m_content);
    if (m_sections.empty())
        m_grid->addWidget(plainLabel(tr("This printer has no options of its own."), m_content), 0,
                          0, 1, 2);
    else
        addSection(m_sections[m_built++]);
    if (audience() == Audience::Script)
        build(); // nothing is painted
    fitToFont();
    return {};
}

void OptionsPane::build()
{
    while (m_tickets && m_built < m_sections.size())
        addSection(m_sections[m_built++]);
    m_isBuilding = false;
    fitToFont();
    emit built();
}

void OptionsPane::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!isBuilt() && !std::exchange(m_isBuilding, true))
        QTimer::singleShot(0, this, &OptionsPane::build);
}

void OptionsPane::addSection(const PanelSection &section)
{
    const bool isFirst = m_rows.empty();
    auto *heading = plainLabel(section.title, m_content);
    heading->setProperty("isHeading", true);
    if (!isFirst)
        heading->setContentsMargins(0, sectionGap, 0, 0);
    m_grid->addWidget(heading, m_grid->rowCount(), 0, 1, 2);
    for (const PanelOption &option : section.options) {
        auto *popup = new PopupButton(m_content);
        popup->setObjectName(QStringLiteral("option-") + option.keyword);
        popup->setHasIconRoom(false);
        popup->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        popup->setAccessibleName(option.label);
        popup->setMenu(option.menu);
        setTicketPlaces(popup, {{kPPDChoices, option.keyword}});
        auto *label = plainLabel(tr("%1:").arg(option.label), m_content);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setBuddy(popup);
        const int row = m_grid->rowCount();
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(popup, row, 1);
        m_rows.push_back({option, label, popup});
        mark(m_rows.back());
        show(m_rows.back());
        setEnabledWithLabel(popup, !option.isFixed);
    }
}

// A choice that the equipment rules out is the job's all the same, and no line of the menu.
void OptionsPane::show(const Row &row)
{
    const PPDDictionary &choices = m_tickets->printSettings().ppdChoices;
    const int line = chosenLine(row.option, choices);
    row.popup->setPlaceholderText(
        line > 0 ? QString() : tr("%1 (not offered)").arg(choices.value(row.option.keyword)));
    row.popup->setValue(line);
}

void OptionsPane::mark(const Row &row)
{
    QPalette colours;
    if (row.isInConflict)
        colours.setColor(QPalette::WindowText, cautionText(palette()));
    row.label->setPalette(colours);
    QFont face = font();
    if (row.isInConflict)
        face.setWeight(QFont::DemiBold);
    row.label->setFont(face);
    setPlainToolTip(row.popup,
                    row.isInConflict         ? tr("Cannot be used together with other settings")
                        : row.option.isFixed ? tr("The printer’s equipment leaves no other choice")
                                             : QString());
}

void OptionsPane::setConflicts(const QStringList &keywords)
{
    for (Row &row : m_rows) {
        const bool isInConflict = keywords.contains(row.option.keyword);
        if (std::exchange(row.isInConflict, isInConflict) != isInConflict)
            mark(row);
    }
}

void OptionsPane::sync(SyncDirection direction)
{
    if (!m_tickets || direction == kSyncWrite)
        return; // what was chosen is written
    for (const Row &row : m_rows)
        show(row);
}

void OptionsPane::end(OSStatus)
{
    m_tickets = nullptr;
    m_sections.clear();
    m_built = 0;
    m_rows.clear();
    delete std::exchange(m_content, nullptr);
    m_grid = nullptr;
    setNote({});
}

void OptionsPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitToFont();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        for (const Row &row : m_rows)
            mark(row);
    }
}

void OptionsPane::fitToFont()
{
    if (!m_content)
        return;
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    for (auto *label : m_content->findChildren<QLabel *>()) {
        if (label->property("isHeading").toBool())
            label->setFont(bold);
    }
    const int most = fontMetrics().averageCharWidth() * longestLabel;
    int widest = 0;
    const QFontMetrics metrics(bold); // as they are in a conflict
    for (const Row &row : m_rows)
        widest = std::max(widest, metrics.horizontalAdvance(row.label->text()));
    m_grid->setColumnMinimumWidth(0, std::min(widest + 4, most));
    for (const Row &row : m_rows)
        row.label->setMaximumWidth(most);
}

OSStatus OptionsPane::handle(const Event &event)
{
    if (event.kind != EventKind::ControlHit || !m_tickets)
        return eventNotHandledErr;
    for (const Row &row : m_rows) {
        const MenuItem *item = row.popup == event.source ? row.popup->chosenItem() : nullptr;
        if (!item)
            continue;
        m_tickets->printSettings().ppdChoices.insert(row.option.keyword, item->key);
        return noErr;
    }
    return eventNotHandledErr;
}

} // namespace kelvo
