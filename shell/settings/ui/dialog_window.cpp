#include "dialog_window.h"

#include "needed_controls.h"
#include "notice.h"
#include "string_table.h"
#include "terminal.h"
#include "texts.h"
#include "ticket_values.h"
#include "window_loader.h"

#include <QLabel>

namespace kelvo {

namespace {

// What the user reads; to standard error goes the last line. That stands outside the
// localized text, since the string tables may be missing as well.
QString notMadeText(CFBundleRef bundle, const QString &window, const QString &reason)
{
    printLine(stderr, translate("Window", "%1: the window cannot be made: %2").arg(window, reason));
    return QStringLiteral("%1\n%2: %3")
        .arg(localizedText(bundle, QStringLiteral("Not Made Message")), window, reason);
}

void tell(CFBundleRef bundle, const QString &window, const QString &reason, QWidget *parent)
{
    CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                    localizedText(bundle, QStringLiteral("Window Not Made Header")),
                                    notMadeText(bundle, window, reason), {}, parent);
}

} // namespace

std::unique_ptr<ModalDialog>
createModalDialog(CFBundleRef bundle, const QString &description, const QString &window,
                  QWidget *parent, const std::function<void(NeededControls &)> &findControls)
{
    const QString name = description + u'/' + window;
    const Result<QWidget *> content = createWindowFromDescription(bundle, description, window);
    if (!content) {
        tell(bundle, name, content.error().text(), parent);
        return nullptr;
    }
    auto dialog = std::make_unique<ModalDialog>(content.value(), parent);
    NeededControls needed(dialog.get());
    if (findControls)
        findControls(needed);
    QStringList missing = needed.missing();
    if (!windowDefaultButton(dialog.get()))
        missing.append(QStringLiteral("'ok  '"));
    if (missing.isEmpty())
        return dialog;
    tell(bundle, name, lacksControlsText(bundle, missing), parent);
    return nullptr;
}

std::unique_ptr<ModalDialog> createModalDialog(CFBundleRef bundle, const QString &description,
                                               const QString &window, QWidget *parent,
                                               std::initializer_list<ControlID> needed)
{
    return createModalDialog(bundle, description, window, parent, [&](NeededControls &controls) {
        for (const ControlID id : needed)
            controls.find(id);
    });
}

QString lacksControlsText(CFBundleRef bundle, const QStringList &missing)
{
    return formatted(localizedText(bundle, QStringLiteral("Window Lacks Controls")),
                     {missing.join(QStringLiteral(", "))});
}

void showPanelNotMade(CFBundleRef bundle, QWidget *pane, const QString &window,
                      const QString &reason)
{
    auto *label = new QLabel;
    label->setObjectName(QStringLiteral("panelNotMade"));
    label->setTextFormat(Qt::PlainText);
    label->setText(localizedText(bundle, QStringLiteral("Panel Not Made Header"))
                   + QStringLiteral("\n\n") + notMadeText(bundle, window, reason));
    label->setWordWrap(true);
    label->setMargin(2 * label->fontMetrics().height());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    embedControl(label, pane);
    label->show();
}

} // namespace kelvo
