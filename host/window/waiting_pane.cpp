#include "waiting_pane.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvo {

namespace {

constexpr int sideMargin = 60; // lines that do not run from edge to edge

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
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    large.setWeight(QFont::DemiBold);
    m_header->setFont(large);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_retry->setObjectName(QStringLiteral("retry"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(10);
    layout->addStretch(2);
    layout->addWidget(m_header);
    layout->addWidget(m_text);
    layout->addSpacing(4);
    layout->addWidget(m_retry, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    connect(m_retry, &QPushButton::clicked, this, &WaitingPane::retryRequested);
    setMessage({});
}

void WaitingPane::setMessage(const DialogSession::Message &message)
{
    m_header->setText(message.header);
    m_header->setVisible(!message.header.isEmpty());
    m_text->setText(message.text);
    m_text->setVisible(!message.text.isEmpty());
    m_retry->setVisible(message.canRetry);
    if (message.canRetry)
        m_retry->setFocus();
}

} // namespace kelvo
