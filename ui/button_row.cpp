#include "button_row.h"

#include "modal_dialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int gap = 8; // logical pixels, between two buttons

// In which order they stand.
enum class Part { Help, Revert, Own, Cancel, OK };

Part partOf(const QPushButton *button)
{
    switch (commandOf(button).value_or(kNoCommand)) {
    case kCommandHelp:
        return Part::Help;
    case kCommandRevert:
        return Part::Revert;
    case kCommandCancel:
        return Part::Cancel;
    case kCommandOK:
        return Part::OK;
    default:
        return Part::Own;
    }
}

} // namespace

ButtonRow::ButtonRow(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ButtonRow::arrange()
{
    auto buttons = findChildren<QPushButton *>(Qt::FindDirectChildrenOnly);
    std::ranges::stable_sort(buttons, {}, partOf);
    const auto trailing = std::ranges::upper_bound(buttons, Part::Own, {}, partOf);
    for (QPushButton *button : buttons)
        button->setAutoDefault(partOf(button) == Part::OK);
    setButtons({buttons.begin(), trailing}, {trailing, buttons.end()});
}

void ButtonRow::setButtons(const QList<QPushButton *> &leading,
                           const QList<QPushButton *> &trailing)
{
    auto *row = static_cast<QHBoxLayout *>(layout());
    while (QLayoutItem *item = row->takeAt(0))
        delete item;
    m_leading = leading;
    m_trailing = trailing;
    QWidget *before = this;
    for (QPushButton *button : m_leading + m_trailing) {
        if (button == m_trailing.value(0))
            row->addStretch(1);
        row->addWidget(button);
        setTabOrder(before, button);
        before = button;
    }
    alignWidths();
}

bool ButtonRow::event(QEvent *event)
{
    // A button has another text, or another font.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Polish)
        alignWidths();
    return QWidget::event(event);
}

// A long text of the window's own makes no other button longer.
void ButtonRow::alignWidths()
{
    int widest = 0;
    for (const QPushButton *button : m_leading + m_trailing) {
        if (m_trailing.contains(button) || partOf(button) != Part::Own)
            widest = std::max(widest, button->sizeHint().width());
    }
    for (QPushButton *button : m_leading + m_trailing)
        button->setMinimumWidth(std::max(widest, button->sizeHint().width()));
}

} // namespace kelvo
