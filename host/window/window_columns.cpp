#include "window_columns.h"

#include "pane_scroll.h"
#include "tool_tip.h"

#include <QEvent>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int usualFontHeight = 13; // pixels: 10 points on an ordinary screen

// Logical pixels at the usual font.
constexpr int leftWidth = 300;
constexpr int narrowLeftWidth = 208; // without the preview: its fields are still to be read
constexpr int previewWidth = 840;    // of both columns; below it there is no preview

constexpr int columnGap = 12;
constexpr int partGap = 10;
constexpr int panelGap = 6;

} // namespace

double fontScale(const QWidget *widget)
{
    return std::max(1.0, double(QFontInfo(widget->font()).pixelSize()) / usualFontHeight);
}

WindowColumns::WindowColumns(QWidget *parent)
    : QWidget(parent)
    , m_left(new QWidget(this))
    , m_right(new QWidget(this))
    , m_toggle(new QToolButton(this))
{
    m_toggle->setObjectName(QStringLiteral("columnToggle"));
    m_toggle->setAutoRaise(true);
    m_toggle->setFocusPolicy(Qt::TabFocus);
    setOwnToolTip(m_toggle, tr("Show or hide printer, pages and preview (F9)"));
    m_toggle->setAccessibleName(tr("Printer, pages and preview"));
    connect(m_toggle, &QToolButton::clicked, this, [this] {
        m_isLeftWanted = !m_isLeftWanted;
        arrange();
    });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(columnGap);
    layout->addWidget(m_left, 1);
    layout->addWidget(m_right);
}

void WindowColumns::setParts(QWidget *fields, QWidget *preview, QWidget *above, PaneScroll *panels)
{
    m_fields = fields;
    m_preview = preview;
    m_panels = panels;
    auto *left = new QVBoxLayout(m_left);
    left->setContentsMargins(0, 0, 0, 0);
    left->setSpacing(partGap);
    left->addWidget(fields);
    left->addWidget(preview, 1);
    left->addStretch(0); // keeps the fields at the top where there is no preview
    auto *right = new QVBoxLayout(m_right);
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(panelGap);
    right->addWidget(above, 0, Qt::AlignHCenter);
    right->addWidget(panels, 1);
}

void WindowColumns::addBelowFields(QWidget *part)
{
    m_belowFields = part;
    static_cast<QVBoxLayout *>(m_left->layout())->insertWidget(1, part);
}

int WindowColumns::smallestWidth() const
{
    // With room for their scroll bar, whether it shows now or not.
    const QScrollBar *scrollBar = m_panels->verticalScrollBar();
    return m_panels->minimumSizeHint().width()
        + (scrollBar->isVisible() ? 0 : scrollBar->sizeHint().width());
}

void WindowColumns::arrange()
{
    if (!m_hasSize)
        return;
    const double scale = fontScale(this);
    const int forLeft = width() - columnGap - smallestWidth();
    const bool isNarrow = forLeft < int(narrowLeftWidth * scale);
    if (isNarrow != m_isNarrow) {
        // Where only one of both has room, printer, copies and paper come first.
        m_isNarrow = isNarrow;
        m_isLeftWanted = true;
    }
    m_left->setMinimumWidth(
        std::clamp(forLeft, int(narrowLeftWidth * scale), int(leftWidth * scale)));
    const bool isForward = m_isLeftWanted == m_isNarrow;
    m_toggle->setArrowType(isForward != isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    // In a narrow window it goes from one to the other, and says to which.
    m_toggle->setText(m_isLeftWanted ? tr("Device Settings") : tr("Printer and Paper"));
    m_toggle->setAccessibleName(m_isNarrow ? m_toggle->text() : tr("Printer, pages and preview"));
    m_toggle->setToolButtonStyle(m_isNarrow ? Qt::ToolButtonTextBesideIcon
                                            : Qt::ToolButtonIconOnly);
    m_left->setVisible(m_isLeftWanted);
    m_right->setVisible(!m_isNarrow || !m_isLeftWanted);
    int forPreview = m_left->height() - m_fields->sizeHint().height();
    if (m_belowFields && !m_belowFields->isHidden())
        forPreview -= partGap + m_belowFields->sizeHint().height();
    const bool isWide = width() >= int(previewWidth * scale) || m_isNarrow;
    m_preview->setVisible(isWide && forPreview >= m_preview->minimumSizeHint().height());
}

void WindowColumns::showRight()
{
    if (m_isNarrow && m_isLeftWanted) {
        m_isLeftWanted = false;
        arrange();
    }
}

bool WindowColumns::event(QEvent *event)
{
    // The panels come after the window, and may ask for more than it gave them.
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        arrange();
    return isDone;
}

void WindowColumns::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_hasSize = true;
    arrange();
}

} // namespace kelvo
