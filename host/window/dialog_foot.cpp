#include "dialog_foot.h"

#include "button_row.h"
#include "tool_tip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvo {

namespace {

constexpr int gap = 6; // between rows

} // namespace

DialogFoot::DialogFoot(QWidget *toggle, QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancelJob(button("cancelJob", tr("Cancel &Job")))
    , m_timing(button("jobTiming", tr("When to Print…")))
    , m_details(button("whatWillBeSent", tr("&What Will Be Sent…")))
    , m_help(button("help", tr("&Help")))
    , m_savePdf(button("savePdf", tr("Save as PDF…")))
    , m_cancel(button("cancel", tr("Cancel")))
    , m_print(button("print", tr("&Print")))
{
    m_text->setObjectName(QStringLiteral("summary"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setMaximumWidth(140);
    m_progress->setMaximumHeight(8);
    m_progress->setAccessibleName(tr("Printing"));
    m_progress->hide();
    m_cancel->setAccessibleName(tr("Cancel printing"));

    auto *textRow = new QHBoxLayout;
    textRow->setSpacing(gap);
    textRow->addWidget(toggle);
    textRow->addWidget(m_text, 1);
    textRow->addWidget(m_progress);
    setOwnToolTip(m_cancelJob, tr("Takes the job back from the print server"));
    m_cancelJob->hide();
    textRow->addWidget(m_cancelJob);
    setOwnToolTip(m_timing, tr("At once or later, and before which other jobs"));
    textRow->addWidget(m_timing);
    setOwnToolTip(m_details, tr("All settings of the job in words, before it is printed"));
    textRow->addWidget(m_details);
    auto *buttons = new ButtonRow(this);
    setOwnToolTip(m_savePdf, tr("The pages as they would be printed, in a file"));
    buttons->setButtons({m_help, m_savePdf}, {m_cancel, m_print});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addLayout(textRow);
    layout->addWidget(buttons);
}

QPushButton *DialogFoot::button(const char *name, const QString &text)
{
    auto *made = new QPushButton(text, this);
    made->setObjectName(QString::fromLatin1(name));
    made->setAutoDefault(false); // the window says which is the default one
    return made;
}

void DialogFoot::setText(const QString &text)
{
    m_text->setText(text);
    setPlainToolTip(m_text, text);
}

void DialogFoot::setBusy(bool busy)
{
    m_progress->setVisible(busy);
}

void DialogFoot::showSent(bool canCancel)
{
    m_timing->hide();
    m_details->hide();
    m_cancelJob->setVisible(canCancel);
}

// Their words end too near to the frame in some styles.
void DialogFoot::fitToFont()
{
    for (QPushButton *each : {m_cancelJob, m_timing, m_details})
        each->setMinimumWidth(each->sizeHint().width() + fontMetrics().height());
}

} // namespace kelvo
