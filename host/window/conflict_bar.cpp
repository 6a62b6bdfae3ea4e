#include "conflict_bar.h"

#include "caution_colours.h"
#include "notice_sign.h"
#include "tool_tip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int mostLines = 2;

} // namespace

ConflictBar::ConflictBar(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_label(new QLabel(this))
    , m_fix(new QPushButton(tr("Fi&x"), this))
    , m_details(new QPushButton(tr("Detai&ls"), this))
    , m_hide(new QPushButton(tr("Hi&de"), this))
{
    setObjectName(QStringLiteral("conflictBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_label->setObjectName(QStringLiteral("conflictText"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    QSizePolicy wrapped(QSizePolicy::Ignored, QSizePolicy::Preferred);
    wrapped.setHeightForWidth(true);
    m_label->setSizePolicy(wrapped);
    m_fix->setObjectName(QStringLiteral("fix"));
    m_details->setObjectName(QStringLiteral("conflictDetails"));
    m_hide->setObjectName(QStringLiteral("hideMissing"));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 4, 2);
    layout->setSpacing(6);
    layout->addWidget(m_icon);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_fix);
    layout->addWidget(m_details);
    layout->addWidget(m_hide);

    connect(m_fix, &QPushButton::clicked, this, &ConflictBar::fixRequested);
    connect(m_details, &QPushButton::clicked, this, &ConflictBar::showDetails);
    connect(m_hide, &QPushButton::clicked, this, &ConflictBar::hideMissing);
    colour();
    hide();
}

void ConflictBar::setReport(const ConflictReport &report, const QStringList &missing)
{
    m_report = report;
    m_missing = missing;
    const bool isConflict = !m_report.isEmpty();
    const bool isKnown =
        std::all_of(m_missing.cbegin(), m_missing.cend(),
                    [this](const auto &each) { return m_hiddenMissing.contains(each); });
    const bool tellsMissing = !isConflict && !isKnown;
    m_fix->setVisible(isConflict && !m_report.fix.isEmpty());
    const QString fixes = m_report.fixWords.size() == 1
        ? tr("Fix: %1").arg(m_report.fixWords.front())
        : tr("Changes the settings so that they can be used together");
    m_fix->setToolTip(plainToolTip(fixes));
    m_fix->setAccessibleDescription(fixes);
    m_hide->setVisible(tellsMissing);
    if (isConflict) {
        m_text = m_report.conflicts.front().sentence;
        const int more = int(m_report.conflicts.size()) - 1;
        if (more > 0)
            m_text += u' ' + tr("(and %n more)", nullptr, more);
    } else if (tellsMissing) {
        m_text = tr("This printer does not have: %1").arg(m_missing.join(QStringLiteral(", ")));
    } else {
        m_text.clear();
    }
    m_icon->setPixmap(noticeSign(isConflict ? NoticeLevel::Caution : NoticeLevel::Note,
                                 fontMetrics().height() + 2, devicePixelRatioF()));
    m_label->setAccessibleName(m_text);
    elide();
    setVisible(!m_text.isEmpty());
}

void ConflictBar::elide()
{
    // Lines end at words: of each some room stays empty.
    const int room = m_label->width() * mostLines * 4 / 5;
    m_label->setText(fontMetrics().elidedText(m_text, Qt::ElideRight, room));
    m_label->setToolTip(m_label->text() == m_text ? QString() : plainToolTip(m_text));
}

void ConflictBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layout()->activate();
    elide();
}

void ConflictBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_isColouring)
        colour();
}

void ConflictBar::colour()
{
    m_isColouring = true;
    setPalette(QPalette());
    QPalette colours = palette();
    colours.setColor(QPalette::Window, cautionGround(colours));
    setPalette(colours);
    m_isColouring = false;
}

void ConflictBar::showDetails()
{
    if (m_report.isEmpty())
        CFUserNotificationDisplayNotice(
            NoticeLevel::Note, tr("This printer does not have some of the settings"),
            m_missing.join(u'\n') + QStringLiteral("\n\n")
                + tr("They are kept, and come back with a printer that has them."),
            {}, this);
    else
        CFUserNotificationDisplayNotice(NoticeLevel::Caution,
                                        tr("These settings cannot be used together"),
                                        conflictText(m_report), {}, this);
}

void ConflictBar::hideMissing()
{
    m_hiddenMissing = m_missing;
    setReport(m_report, m_missing);
}

QString conflictSentences(const ConflictReport &report, QChar separator)
{
    QStringList sentences;
    for (const Conflict &conflict : report.conflicts)
        sentences.append(conflict.sentence);
    return sentences.join(separator);
}

QString conflictText(const ConflictReport &report)
{
    QStringList paragraphs = {conflictSentences(report, u'\n')};
    if (report.fix.isEmpty())
        paragraphs.append(ConflictBar::tr("Change one of them."));
    else
        paragraphs.append(ConflictBar::tr("Fix would do this:") + u'\n'
                          + report.fixWords.join(u'\n'));
    return paragraphs.join(QStringLiteral("\n\n"));
}

} // namespace kelvo
