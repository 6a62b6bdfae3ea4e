#include "job_details_dialog.h"

#include "button_row.h"
#include "modal_dialog.h"
#include "summary_view.h"
#include "tab_control.h"
#include "texts.h"
#include "tool_tip.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace kelvo {

namespace {

const QString copyName = QStringLiteral("copyJob");

QString section(const QString &header, const QStringList &lines)
{
    if (lines.isEmpty())
        return {};
    return header + QStringLiteral("\n  ") + lines.join(QStringLiteral("\n  "))
        + QStringLiteral("\n\n");
}

QString wordsText(const JobWords &words)
{
    QString text = section(translate("JobDetails", "Before you print"), words.cautions)
        + section(translate("JobDetails", "Set for this job"), words.settings)
        + section(translate("JobDetails", "Not sent"), words.notSent)
        + section(translate("JobDetails", "As the device has it"), words.defaults);
    return text.isEmpty()
        ? translate("JobDetails", "Nothing is set: the device decides everything.")
        : text.trimmed();
}

SummaryView *textView(const QString &name, const QString &label, QWidget *parent)
{
    auto *view = new SummaryView(parent);
    view->setObjectName(name);
    view->setAccessibleName(label);
    return view;
}

} // namespace

QWidget *makeJobDetailsPane(const JobWords &words)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("jobDetailsDialog"));
    content->setProperty("helpPage", QStringLiteral("host/sending.html"));
    content->setWindowTitle(translate("JobDetails", "What Will Be Sent"));

    auto *tabs = new TabControl(content);
    tabs->setObjectName(QStringLiteral("jobDetailsTabs"));
    tabs->setAccessibleName(translate("JobDetails", "View"));
    tabs->setExpanding(false);
    tabs->setTitles({translate("JobDetails", "In Words"), translate("JobDetails", "Ticket")});
    auto *pages = new QStackedWidget(content);
    auto *inWords =
        textView(QStringLiteral("jobWords"), translate("JobDetails", "Settings in words"), pages);
    inWords->setSummary(wordsText(words));
    auto *ticket = textView(QStringLiteral("jobTicket"), translate("JobDetails", "Ticket"), pages);
    ticket->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ticket->setLineWrapMode(QPlainTextEdit::NoWrap);
    ticket->setLayoutDirection(Qt::LeftToRight); // code in any language
    ticket->setSummary(words.ticket.join(u'\n'));
    ticket->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    for (SummaryView *view : {inWords, ticket}) {
        view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        view->setMinimumSize(view->fontMetrics().averageCharWidth() * 72,
                             view->fontMetrics().lineSpacing() * 22);
        pages->addWidget(view);
    }
    auto *buttons = new ButtonRow(content);
    auto *copy = new QPushButton(translate("JobDetails", "&Copy"), buttons);
    copy->setObjectName(copyName);
    setOwnToolTip(copy, translate("JobDetails", "Copies the text that is shown"));
    auto *close = new QPushButton(translate("JobDetails", "Close"), buttons);
    close->setObjectName(QStringLiteral("close"));
    close->setProperty("command", QStringLiteral("ok  "));
    sendControlEvents(copy);
    sendControlEvents(close);
    buttons->arrange();

    auto *viewLayout = new QVBoxLayout;
    viewLayout->setSpacing(0);
    viewLayout->addWidget(tabs);
    viewLayout->addWidget(pages, 1);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(16);
    layout->addLayout(viewLayout, 1);
    layout->addWidget(buttons);
    return content;
}

void runJobDetailsDialog(const JobWords &words, QWidget *parent)
{
    QWidget *content = makeJobDetailsPane(words);
    auto *tabs = content->findChild<TabControl *>();
    auto *pages = content->findChild<QStackedWidget *>();
    ModalDialog dialog(content, parent);
    const auto handler =
        installEventHandler(content, [tabs, pages](const Event &event) -> OSStatus {
            if (event.kind != EventKind::ControlHit)
                return eventNotHandledErr;
            if (event.source == tabs) {
                pages->setCurrentIndex(tabs->value() - 1);
                return noErr;
            }
            if (event.source->objectName() == copyName) {
                const auto *shown = qobject_cast<SummaryView *>(pages->currentWidget());
                QGuiApplication::clipboard()->setText(shown->toPlainText());
                return noErr;
            }
            return eventNotHandledErr;
        });
    dialog.runModal();
}

} // namespace kelvo
