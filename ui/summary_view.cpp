#include "summary_view.h"

#include "qt_controls.h"

#include <QEvent>
#include <QScrollBar>
#include <QStyle>
#include <QTextOption>

namespace kelvo {

SummaryView::SummaryView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    runAsLabelsDo();
}

// By itself each line would run as its first letter does.
void SummaryView::runAsLabelsDo()
{
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(layoutDirection());
    option.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    document()->setDefaultTextOption(option);
}

void SummaryView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        runAsLabelsDo();
}

void SummaryView::setSummary(const QString &text)
{
    if (text == toPlainText())
        return;
    // Where a parent holds drawing off, it is the parent that lets it go again.
    const bool draws = updatesEnabled();
    if (draws)
        setUpdatesEnabled(false);
    setPlainText(text);
    verticalScrollBar()->setValue(0);
    if (draws)
        setUpdatesEnabled(true);
}

QSize SummaryView::sizeHint() const
{
    const int around = 2 * frameWidth() + static_cast<int>(2 * document()->documentMargin()) + 1;
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 30 + around, metrics.lineSpacing() * 5 + around};
}

QSize SummaryView::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return {hint.width() / 3, hint.height() / 2};
}

namespace {

// Nobody edits it.
class SummaryViewInterface : public InterfaceOf<SummaryView, PlainTextInterface>
{
public:
    using InterfaceOf::InterfaceOf;

    void sendEvents() override { }
};

} // namespace

std::unique_ptr<ControlInterface> interfaceOf(SummaryView *view)
{
    return std::make_unique<SummaryViewInterface>(view);
}

} // namespace kelvo
