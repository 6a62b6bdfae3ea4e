#include "waiting_pane.h"

#include "window_columns.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int lineCharacters = 60; // a comfortable line of the text
// Letters of other scripts are wider; with these lines the pane is as small as it may be.
constexpr int longestLine = 480; // pixels at the usual font

QLabel *centredLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

} // namespace

WaitingPane::WaitingPane(QWidget *parent)
    : QWidget(parent)
    , m_header(centredLabel(QStringLiteral("waitingHeader"), this))
    , m_text(centredLabel(QStringLiteral("waitingText"), this))
    , m_retry(new QPushButton(tr("Tr&y Again"), this))
{
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_retry->setObjectName(QStringLiteral("retry"));

    // The column is as wide as its lines: asked for the height at the pane's
    // width, a label that wraps would get too little.
    auto *column = new QVBoxLayout;
    column->setSpacing(10);
    column->addStretch(2);
    column->addWidget(m_header);
    column->addWidget(m_text);
    column->addSpacing(4);
    column->addWidget(m_retry, 0, Qt::AlignHCenter);
    column->addStretch(3);
    auto *layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(column);
    layout->addStretch(1);
    connect(m_retry, &QPushButton::clicked, this, &WaitingPane::retryRequested);
    setMessage({});
}

void WaitingPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && isVisible())
        fitToFont();
}

// Not before: where the panels are there in time nobody sees it, and its heading has a face of
// its own.
void WaitingPane::showEvent(QShowEvent *event)
{
    fitToFont();
    QWidget::showEvent(event);
}

void WaitingPane::fitToFont()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    large.setWeight(QFont::DemiBold);
    m_header->setFont(large);
    const int width = std::min(fontMetrics().averageCharWidth() * lineCharacters,
                               int(longestLine * fontScale(this)));
    for (QLabel *label : {m_header, m_text}) {
        label->setFixedWidth(width);
        label->setMinimumHeight(label->text().isEmpty() ? 0 : label->heightForWidth(width));
    }
}

void WaitingPane::setMessage(const SessionMessage &message)
{
    m_header->setText(message.header);
    m_header->setVisible(!message.header.isEmpty());
    QStringList lines{message.text, message.advice};
    lines.removeAll(QString());
    m_text->setText(lines.join(u'\n'));
    m_text->setVisible(!lines.isEmpty());
    if (isVisible())
        fitToFont();
    m_retry->setVisible(message.canRetry);
    if (message.canRetry)
        m_retry->setFocus();
}

} // namespace kelvo
