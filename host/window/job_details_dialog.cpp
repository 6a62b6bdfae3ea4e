#include "job_details_dialog.h"

#include "modal_dialog.h"
#include "summary_view.h"
#include "tab_control.h"
#include "texts.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
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

SummaryView *textView(const QString &name, const QString &label, const QString &text,
                      QWidget *parent)
{
    auto *view = new SummaryView(parent);
    view->setObjectName(name);
    view->setAccessibleName(label);
    view->setSummary(text);
    return view;
}

} // namespace

QWidget *makeJobDetailsPane(const JobWords &words)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("jobDetailsDialog"));
    content->setWindowTitle(translate("JobDetails", "What Will Be Sent"));

    auto *tabs = new TabControl(content);
    tabs->setObjectName(QStringLiteral("jobDetailsTabs"));
    tabs->setAccessibleName(translate("JobDetails", "View"));
    tabs->setExpanding(false);
    tabs->setTitles({translate("JobDetails", "In Words"), translate("JobDetails", "Ticket")});
    auto *pages = new QStackedWidget(content);
    auto *inWords = textView(QStringLiteral("jobWords"),
                             translate("JobDetails", "Settings in words"), wordsText(words), pages);
    auto *ticket = textView(QStringLiteral("jobTicket"), translate("JobDetails", "Ticket"),
                            words.ticket.join(u'\n'), pages);
    ticket->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ticket->setLineWrapMode(QPlainTextEdit::NoWrap);
    ticket->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    for (SummaryView *view : {inWords, ticket}) {
        view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        view->setMinimumSize(view->fontMetrics().averageCharWidth() * 72,
                             view->fontMetrics().lineSpacing() * 22);
        pages->addWidget(view);
    }
    auto *copy = new QPushButton(translate("JobDetails", "&Copy"), content);
    copy->setObjectName(copyName);
    copy->setToolTip(translate("JobDetails", "Copies the text that is shown"));
    auto *close = new QPushButton(translate("JobDetails", "Close"), content);
    close->setObjectName(QStringLiteral("close"));
    close->setProperty("command", QStringLiteral("ok  "));
    sendControlEvents(copy);
    sendControlEvents(close);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(copy);
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto *viewLayout = new QVBoxLayout;
    viewLayout->setSpacing(0);
    viewLayout->addWidget(tabs);
    viewLayout->addWidget(pages, 1);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(14, 12, 14, 14);
    layout->setSpacing(12);
    layout->addLayout(viewLayout, 1);
    layout->addLayout(buttons);
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
