#include "password_dialog.h"

#include "button_row.h"
#include "control.h"
#include "modal_dialog.h"
#include "secrets.h"
#include "session_documents.h"
#include "texts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kelvo {

namespace {

const QString fieldName = QStringLiteral("documentPassword");
const QString okName = QStringLiteral("ok");
const QString problemName = QStringLiteral("passwordProblem");

QLabel *wrappedLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText); // names are strangers'
    label->setWordWrap(true);
    return label;
}

} // namespace

QWidget *makePasswordPane(const QString &title, bool isBan)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("passwordDialog"));
    content->setProperty("helpPage", QStringLiteral("host/documents.html"));
    content->setWindowTitle(translate("Password", "Password"));
    auto *text = wrappedLabel(
        isBan ? translate("Password",
                          "The author of “%1” does not allow printing it without the owner’s "
                          "password.")
                    .arg(title)
              : translate("Password", "“%1” is locked with a password.").arg(title),
        content);
    auto *label = new QLabel(translate("Password", "&Password:"), content);
    auto *field = new QLineEdit(content);
    field->setObjectName(fieldName);
    field->setProperty(kSecretProperty, true);
    field->setEchoMode(QLineEdit::Password);
    field->setAccessibleName(translate("Password", "Password of the document"));
    field->setMaxLength(127); // bytes in AES-256, the longest that PDF knows
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 36);
    label->setBuddy(field);
    auto *show = new QCheckBox(translate("Password", "&Show"), content);
    show->setObjectName(QStringLiteral("showPassword"));
    auto *problem = wrappedLabel({}, content);
    problem->setObjectName(problemName);
    auto *buttons = new ButtonRow(content);
    auto *cancel = new QPushButton(translate("Password", "Cancel"), buttons);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setProperty("command", QStringLiteral("not!"));
    auto *open = new QPushButton(translate("Password", "OK"), buttons);
    open->setObjectName(okName);
    open->setProperty("command", QStringLiteral("ok  "));
    for (QWidget *control : std::initializer_list<QWidget *>{field, show, cancel, open})
        sendControlEvents(control);
    buttons->arrange();

    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(20, 20, 20, 20);
    grid->setVerticalSpacing(10);
    grid->addWidget(text, 0, 0, 1, 2);
    grid->addWidget(label, 1, 0);
    grid->addWidget(field, 1, 1);
    grid->addWidget(show, 2, 1);
    grid->addWidget(problem, 3, 1);
    grid->addWidget(buttons, 4, 0, 1, 2);
    field->setFocus();
    return content;
}

void runPasswordDialog(SessionDocuments &documents, QWidget *parent)
{
    const DocumentOpening &document = documents.shown();
    if (!document.isLocked() || document.isUnlocking())
        return;
    protectSecrets();
    QWidget *content = makePasswordPane(document.title(), !document.asksForPassword());
    auto *field = content->findChild<QLineEdit *>(fieldName);
    auto *problem = content->findChild<QLabel *>(problemName);
    auto *show = content->findChild<QCheckBox *>();
    auto *ok = content->findChild<QPushButton *>(okName);
    const auto setEnabled = [field, show, ok](bool isEnabled) {
        for (QWidget *control : std::initializer_list<QWidget *>{field, show, ok})
            control->setEnabled(isEnabled);
    };
    ModalDialog dialog(content, parent);
    const auto handler = installEventHandler(content, [field, show](const Event &event) {
        if (event.kind != EventKind::ControlHit || event.source != show)
            return OSStatus(eventNotHandledErr);
        field->setEchoMode(show->isChecked() ? QLineEdit::Normal : QLineEdit::Password);
        return OSStatus(noErr);
    });
    // OK only begins: opening a long document takes a moment, and its end closes the window.
    dialog.setAcceptRule([&] {
        if (!document.isLocked())
            return true;
        if (!document.isUnlocking()) {
            problem->clear();
            setEnabled(false);
            documents.unlockShown(field->text());
        }
        return false;
    });
    QObject::connect(&document, &DocumentOpening::ended, &dialog, [&] {
        setEnabled(true);
        if (!document.isLocked()) {
            dialog.accept();
            return;
        }
        problem->setText(document.asksForPassword()
                             ? translate("Password", "This is not the password.")
                             : translate("Password", "This is not the owner’s password."));
        field->setFocus();
        field->selectAll();
    });
    dialog.runModal();
}

} // namespace kelvo
