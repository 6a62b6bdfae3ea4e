#include "layout_rows.h"

#include "layout_words.h"
#include "popup_button.h"
#include "spin_field.h"
#include "texts.h"
#include "ticket_places.h"
#include "tool_tip.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

#include <algorithm>

namespace kelvo {

namespace {

template <typename Value>
MenuItem item(Value value)
{
    return {.text = wordsOf(value), .key = nameOf(value), .reference = int(value)};
}

template <typename Value>
Menu menuOf(std::initializer_list<Value> values)
{
    Menu menu;
    for (const Value value : values)
        menu.items.push_back(item(value));
    return menu;
}

// Fields beside one another; `wide` has the room.
QWidget *inOneRow(QWidget *parent, std::initializer_list<QWidget *> fields, const QWidget *wide)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (QWidget *field : fields)
        layout->addWidget(field, field == wide ? 1 : 0);
    return row;
}

// Keeps its looks when it is checked: the arrow says that.
class FoldButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        option.state &= ~QStyle::State_On;
        QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
    }
};

TicketPlace printPlace(const QString &key)
{
    return {kPMPrintSettingsTicket, key};
}

} // namespace

LayoutRows::LayoutRows(QWidget *pane, QGridLayout *grid, AddRow addRow)
    : QObject(pane)
    , m_pane(pane)
    , m_grid(grid)
    , m_addRow(std::move(addRow))
    , m_toggle(new FoldButton(pane))
{
    m_toggle->setObjectName(QStringLiteral("pageLayout"));
    m_toggle->setCheckable(true);
    m_toggle->setAutoRaise(true);
    m_toggle->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toggle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_toggle->setFocusPolicy(Qt::StrongFocus);
    setOwnToolTip(m_toggle, tr("Odd and even pages, order, scaling, and several pages on a sheet"));
    grid->addWidget(m_toggle, grid->rowCount(), 0, 1, 2);
    connect(m_toggle, &QToolButton::toggled, this, &LayoutRows::unfold);
    update();
}

QWidget *LayoutRows::toggle() const
{
    return m_toggle;
}

bool LayoutRows::isUnfolded() const
{
    return m_toggle->isChecked();
}

void LayoutRows::build()
{
    if (m_scaling)
        return;
    m_pageSet = new PopupButton(m_pane);
    m_pageSet->setObjectName(QStringLiteral("pageSet"));
    m_pageSet->setMenu(menuOf({PageSet::All, PageSet::Odd, PageSet::Even}));
    m_reverse = new QCheckBox(tr("Re&verse"), m_pane);
    m_reverse->setObjectName(QStringLiteral("reverse"));
    setOwnToolTip(m_reverse, tr("The last page, or sheet, comes out first"));

    m_scaling = new PopupButton(m_pane);
    m_scaling->setObjectName(QStringLiteral("scaling"));
    m_scaling->setMenu(menuOf({PageScaling::Shrink, PageScaling::Fit, PageScaling::Fill,
                               PageScaling::Percent, PageScaling::None}));
    m_percent = new SpinField(m_pane);
    m_percent->setObjectName(QStringLiteral("scalingPercent"));
    m_percent->setAccessibleName(tr("Percentage of a page’s own size"));
    m_percent->setMinimum(kLeastPercent);
    m_percent->setMaximum(kMostPercent);
    m_percent->setSuffix(percentInWords(0).remove(u'0'));

    m_perSide = new PopupButton(m_pane);
    m_perSide->setObjectName(QStringLiteral("pagesPerSheet"));
    Menu counts;
    for (const int count : kPagesPerSide) {
        const QString number = QString::number(count);
        counts.items.push_back({.text = number, .key = number, .reference = count});
    }
    m_perSide->setMenu(counts);
    m_flow = new PopupButton(m_pane);
    m_flow->setObjectName(QStringLiteral("pageFlow"));
    m_flow->setAccessibleName(tr("Where the next page lies"));
    using enum PageFlow;
    m_flow->setMenu(menuOf({LrTb, LrBt, RlTb, RlBt, TbLr, TbRl, BtLr, BtRl}));
    m_borders = new QCheckBox(tr("&Borders around pages"), m_pane);
    m_borders->setObjectName(QStringLiteral("pageBorders"));
    for (QCheckBox *box : {m_reverse, m_borders})
        sendControlEvents(box);

    const auto add = [this](const QString &text, QWidget *buddy, QWidget *field) {
        m_rows << m_addRow(text, buddy, field) << field;
    };
    add(tr("Of th&ese:"), m_pageSet, inOneRow(m_pane, {m_pageSet, m_reverse}, m_pageSet));
    add(tr("Sc&aling:"), m_scaling, inOneRow(m_pane, {m_scaling, m_percent}, m_scaling));
    add(tr("Pages per s&heet:"), m_perSide, inOneRow(m_pane, {m_perSide, m_flow}, m_flow));
    m_grid->addWidget(m_borders, m_grid->rowCount(), 1);
    m_rows << m_borders;

    setTicketPlaces(m_reverse, {printPlace(kPMReverseOrderKey)});
    const TicketPlaces scaling{printPlace(kPMScalingKey), printPlace(kPMScalingPercentKey)};
    setTicketPlaces(m_scaling, scaling);
    setTicketPlaces(m_percent, scaling);
    setTicketPlaces(m_perSide, {printPlace(kPMPagesPerSideKey)});
    setTicketPlaces(m_flow, {printPlace(kPMPageFlowKey)});
    setTicketPlaces(m_borders, {printPlace(kPMPageBordersKey)});

    QWidget *last = m_toggle;
    for (QWidget *stop : std::initializer_list<QWidget *>{
             m_pageSet, m_reverse, m_scaling, m_percent, m_perSide, m_flow, m_borders}) {
        QWidget::setTabOrder(last, stop);
        last = stop;
    }
    setSettings(m_settings);
    setEnabled(m_isEnabled);
}

void LayoutRows::unfold(bool unfolds)
{
    if (unfolds)
        build();
    showWhatApplies();
    update();
}

// What would do nothing is not there: the column has little room.
void LayoutRows::showWhatApplies()
{
    m_toggle->setArrowType(isUnfolded()                  ? Qt::DownArrow
                               : m_pane->isRightToLeft() ? Qt::LeftArrow
                                                         : Qt::RightArrow);
    if (!m_scaling)
        return;
    for (QWidget *part : std::as_const(m_rows))
        part->setVisible(isUnfolded());
    const bool isSeveral = m_perSide->chosenReference() > 1;
    m_percent->setVisible(m_scaling->chosenReference() == int(PageScaling::Percent));
    m_flow->setVisible(isSeveral);
    // In a narrow column the room is the direction's.
    m_perSide->setMaximumWidth(isSeveral ? 4 * m_perSide->fontMetrics().height() : QWIDGETSIZE_MAX);
    m_borders->setVisible(isUnfolded() && isSeveral);
}

void LayoutRows::setSettings(const JobSettings &settings)
{
    m_settings = settings;
    if (m_scaling) {
        m_pageSet->setValueByReference(int(settings.pageSet));
        m_reverse->setChecked(settings.isReversed);
        m_scaling->setValueByReference(int(settings.layout.scaling));
        if (m_percent->value() != settings.layout.percent)
            m_percent->setValue(settings.layout.percent);
        m_perSide->setValueByReference(settings.layout.pagesPerSide);
        m_flow->setValueByReference(int(settings.layout.flow));
        m_borders->setChecked(settings.layout.drawsBorders);
    }
    update();
}

void LayoutRows::putInto(JobSettings &settings) const
{
    settings.pageSet = m_settings.pageSet;
    settings.isReversed = m_settings.isReversed;
    settings.layout = m_settings.layout;
    if (!m_scaling)
        return;
    settings.pageSet = PageSet(m_pageSet->chosenReference());
    settings.isReversed = m_reverse->isChecked();
    settings.layout.scaling = PageScaling(m_scaling->chosenReference());
    settings.layout.percent = m_percent->value();
    settings.layout.pagesPerSide = m_perSide->chosenReference();
    settings.layout.flow = PageFlow(m_flow->chosenReference());
    settings.layout.drawsBorders = m_borders->isChecked();
}

void LayoutRows::setEnabled(bool enabled)
{
    m_isEnabled = enabled;
    for (QWidget *part : std::as_const(m_rows))
        part->setEnabled(enabled);
}

bool LayoutRows::isEdit(const Event &event) const
{
    const QList<const QWidget *> controls{m_pageSet, m_reverse, m_scaling, m_percent,
                                          m_perSide, m_flow,    m_borders};
    return m_scaling && event.kind == EventKind::ControlHit && controls.contains(event.source);
}

void LayoutRows::update()
{
    showWhatApplies();
    const QString set = isUnfolded() ? QString() : summary();
    m_toggle->setText(set.isEmpty() ? tr("Page layout") : tr("Page layout: %1").arg(set));
}

// What of it is set.
QString LayoutRows::summary() const
{
    const PageLayout &layout = m_settings.layout;
    QStringList parts;
    if (m_settings.pageSet != PageSet::All)
        parts << wordsOf(m_settings.pageSet);
    if (m_settings.isReversed)
        parts << tr("reversed");
    if (layout.scaling == PageScaling::Percent)
        parts << percentInWords(layout.percent);
    else if (layout.scaling == PageScaling::None)
        parts << tr("not scaled");
    else if (layout.scaling != PageScaling::Shrink)
        parts << wordsOf(layout.scaling);
    if (layout.pagesPerSide > 1)
        parts << tr("%1 per sheet").arg(layout.pagesPerSide);
    return parts.join(QStringLiteral(", "));
}

} // namespace kelvo
