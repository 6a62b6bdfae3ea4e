#include "caution_bar.h"

#include "accessible_role.h"
#include "caution_colours.h"
#include "notice_sign.h"
#include "texts.h"
#include "tool_tip.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int mostLines = 2; // of a row that stands alone; one of several has one

NoticeLevel levelOf(Caution::Weight weight)
{
    switch (weight) {
    case Caution::Weight::Refused:
        return NoticeLevel::Stop;
    case Caution::Weight::Asked:
    case Caution::Weight::Told:
        return NoticeLevel::Caution;
    case Caution::Weight::Noted:
        return NoticeLevel::Note;
    }
    Q_UNREACHABLE();
}

QString andMore(const QString &text, int more)
{
    return more > 0 ? translate("Window", "%1 (and %n more)", nullptr, more).arg(text) : text;
}

} // namespace

CautionBar::CautionBar(QWidget *parent)
    : QFrame(parent)
    , m_grid(new QGridLayout(this))
    , m_buttons(new QHBoxLayout)
    , m_fix(new QPushButton(tr("Fi&x"), this))
    , m_details(new QPushButton(tr("Details"), this))
    , m_hide(new QPushButton(tr("Hide"), this))
{
    setAccessibleRole(this, QAccessible::Notification);
    setObjectName(QStringLiteral("conflictBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_fix->setObjectName(QStringLiteral("fix"));
    m_details->setObjectName(QStringLiteral("conflictDetails"));
    m_hide->setObjectName(QStringLiteral("hideMissing"));

    m_grid->setContentsMargins(8, 2, 4, 2);
    m_grid->setHorizontalSpacing(6);
    m_grid->setVerticalSpacing(2);
    m_grid->setColumnStretch(1, 1);
    m_buttons->setSpacing(6);
    m_buttons->addWidget(m_fix);
    m_buttons->addWidget(m_details);
    m_grid->addLayout(m_buttons, 0, 2, Qt::AlignRight);
    for (std::size_t i = 0; i < mostRows; ++i) {
        Row &row = m_rows[i];
        row = {new QLabel(this), new QLabel(this)};
        setAccessibleRole(row.sign, QAccessible::Graphic);
        row.text->setObjectName(i == 0 ? QStringLiteral("conflictText")
                                       : QStringLiteral("cautionText%1").arg(i + 1));
        row.text->setTextFormat(Qt::PlainText);
        m_grid->addWidget(row.sign, int(i), 0);
        m_grid->addWidget(row.text, int(i), 1);
    }

    connect(m_fix, &QPushButton::clicked, this, &CautionBar::fixRequested);
    connect(m_details, &QPushButton::clicked, this, &CautionBar::showDetails);
    connect(m_hide, &QPushButton::clicked, this, &CautionBar::putAway);
    colour();
    hide();
}

void CautionBar::setContents(const ConflictReport &report, const std::vector<Caution> &cautions)
{
    m_report = report;
    m_cautions = cautions;
    // What is mended and comes again is news.
    m_putAway.removeIf([this](const QString &item) {
        return std::ranges::none_of(
            m_cautions, [&item](const Caution &caution) { return caution.items.contains(item); });
    });
    const bool isFixable = !m_report.fix.isEmpty();
    const QString fixes = m_report.fixWords.size() == 1
        ? tr("Fix: %1").arg(m_report.fixWords.front())
        : tr("Changes the settings so that they can be used together");
    m_fix->setVisible(isFixable);
    setPlainToolTip(m_fix, fixes);
    showLines();
}

bool CautionBar::isPutAway(const Caution &caution) const
{
    return !caution.items.isEmpty()
        && std::ranges::all_of(caution.items,
                               [this](const QString &item) { return m_putAway.contains(item); });
}

void CautionBar::showLines()
{
    m_lines.clear();
    if (!m_report.isEmpty()) {
        const QString text =
            andMore(m_report.conflicts.front().sentence, int(m_report.conflicts.size()) - 1);
        m_lines.push_back({NoticeLevel::Caution, text, text});
    }
    std::optional<std::size_t> hideable; // the last row of them
    for (const Caution &caution : m_cautions) {
        if (isPutAway(caution))
            continue;
        if (!caution.items.isEmpty())
            hideable = m_lines.size();
        m_lines.push_back({levelOf(caution.weight), caution.sentences(), caution.text});
    }
    if (m_lines.size() > mostRows) {
        Line &last = m_lines[mostRows - 1];
        last.text = andMore(last.text, int(m_lines.size() - mostRows));
        last.whole = last.text;
        m_lines.resize(mostRows);
    }
    m_hide->setVisible(hideable && *hideable < m_lines.size());
    placeHide(hideable.value_or(0));

    const int side = fontMetrics().height() + 2;
    for (std::size_t i = 0; i < mostRows; ++i) {
        const bool isUsed = i < m_lines.size();
        m_rows[i].sign->setVisible(isUsed);
        m_rows[i].text->setVisible(isUsed);
        m_rows[i].text->setAccessibleName(isUsed ? m_lines[i].whole : QString());
        if (isUsed)
            m_rows[i].sign->setPixmap(noticeSign(m_lines[i].level, side, devicePixelRatioF()));
    }
    // Several rows have a line each: the bar must leave room for the panels.
    const bool isAlone = m_lines.size() == 1;
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(isAlone);
    for (Row &row : m_rows) {
        row.text->setWordWrap(isAlone);
        row.text->setSizePolicy(policy);
    }
    tell();
    elide();
}

// To whoever does not see it, too.
void CautionBar::tell()
{
    QStringList texts;
    for (const Line &line : m_lines)
        texts << line.whole;
    const QString told = accessibleName();
    setAccessibleName(texts.join(u'\n'));
    showNotification(this, !m_lines.empty(), accessibleName() != told);
}

// It belongs to its row, and stands with the other buttons where that is the first.
void CautionBar::placeHide(std::size_t row)
{
    m_buttons->removeWidget(m_hide);
    m_grid->removeWidget(m_hide);
    if (row == 0)
        m_buttons->addWidget(m_hide);
    else
        m_grid->addWidget(m_hide, int(std::min(row, mostRows - 1)), 2, Qt::AlignRight);
}

void CautionBar::elide()
{
    layout()->activate();
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        QLabel *label = m_rows[i].text;
        // Lines end at words: of each some room stays empty.
        const int room = m_lines.size() == 1 ? label->width() * mostLines * 4 / 5 : label->width();
        const QFontMetrics metrics = fontMetrics();
        const bool hasRoom = metrics.horizontalAdvance(m_lines[i].whole) <= room;
        const QString &text = hasRoom ? m_lines[i].whole : m_lines[i].text;
        label->setText(metrics.elidedText(text, Qt::ElideRight, room));
        setPlainToolTip(label, hasRoom ? QString() : m_lines[i].whole);
    }
}

void CautionBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elide();
}

void CautionBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_isColouring)
        colour();
}

void CautionBar::colour()
{
    m_isColouring = true;
    setPalette(QPalette());
    QPalette colours = palette();
    colours.setColor(QPalette::Window, cautionGround(colours));
    setPalette(colours);
    m_isColouring = false;
}

void CautionBar::showDetails()
{
    QStringList paragraphs;
    if (!m_report.isEmpty())
        paragraphs << conflictText(m_report);
    NoticeLevel level = m_report.isEmpty() ? NoticeLevel::Note : NoticeLevel::Caution;
    for (const Caution &caution : m_cautions) {
        paragraphs << caution.sentences();
        if (caution.weight != Caution::Weight::Noted)
            level = NoticeLevel::Caution;
    }
    const QString header =
        m_cautions.empty() ? tr("These settings cannot be used together") : tr("Before you print");
    CFUserNotificationDisplayNotice(level, header, paragraphs.join(QStringLiteral("\n\n")), {},
                                    this);
}

void CautionBar::putAway()
{
    for (const Caution &caution : m_cautions)
        m_putAway += caution.items;
    showLines();
}

QString conflictText(const ConflictReport &report)
{
    QStringList paragraphs = {report.sentences().join(u'\n')};
    if (report.fix.isEmpty())
        paragraphs.append(CautionBar::tr("Change one of them."));
    else
        paragraphs.append(CautionBar::tr("Fix would do this:") + u'\n'
                          + report.fixWords.join(u'\n'));
    return paragraphs.join(QStringLiteral("\n\n"));
}

} // namespace kelvo
