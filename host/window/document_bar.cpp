#include "document_bar.h"

#include "menu_button.h"
#include "popup_button.h"
#include "session_documents.h"
#include "tool_tip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvo {

namespace {

constexpr OSType kAdd = fourCharCode("DcAd");
constexpr OSType kRemove = fourCharCode("DcRm");
constexpr int gap = 6;

} // namespace

DocumentBar::DocumentBar(SessionDocuments &documents, QWidget *parent)
    : QWidget(parent)
    , m_documents(documents)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    m_handler = installEventHandler(this, [this](const Event &event) { return handle(event); });
    hide();
}

void DocumentBar::makeList()
{
    m_listRow = new QWidget(this);
    m_list = new PopupButton(m_listRow);
    m_list->setObjectName(QStringLiteral("documents"));
    m_list->setAccessibleName(tr("Document"));
    setOwnToolTip(m_list, tr("The document that the preview shows, and Remove removes"));
    m_actions = new MenuButton(m_listRow);
    m_actions->setObjectName(QStringLiteral("documentMenu"));
    m_actions->setText(QStringLiteral("…"));
    m_actions->setAccessibleName(tr("Document actions"));
    setOwnToolTip(m_actions, tr("Add or remove documents"));
    m_actions->setMaximumWidth(m_actions->fontMetrics().horizontalAdvance(u'…')
                               + m_actions->fontMetrics().height() + 20);
    Menu actions;
    actions.items = {{.text = tr("Add…"), .command = kAdd},
                     {.text = tr("Remove"), .command = kRemove}};
    m_actions->setMenu(std::move(actions));
    m_join = new QCheckBox(tr("Print all as one &job"), m_listRow);
    m_join->setObjectName(QStringLiteral("joinDocuments"));
    setOwnToolTip(m_join, tr("The pages follow one another, as if the files were one document"));
    sendControlEvents(m_join);

    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addWidget(m_list, 1);
    row->addWidget(m_actions);
    auto *layout = new QVBoxLayout(m_listRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addLayout(row);
    layout->addWidget(m_join);
    static_cast<QVBoxLayout *>(this->layout())->insertWidget(0, m_listRow);
}

void DocumentBar::makePassword()
{
    m_password = new QPushButton(tr("Enter Password…"), this);
    m_password->setObjectName(QStringLiteral("enterPassword"));
    m_password->setAutoDefault(false);
    connect(m_password, &QPushButton::clicked, this, &DocumentBar::passwordRequested);
    layout()->addWidget(m_password);
}

void DocumentBar::refresh()
{
    const bool areSeveral = m_documents.count() > 1;
    const bool isLocked = m_documents.shown().isLocked();
    if (areSeveral && !m_list)
        makeList();
    if (isLocked && !m_password)
        makePassword();
    if (m_list) {
        fillList();
        m_listRow->setVisible(areSeveral);
    }
    if (m_password)
        m_password->setVisible(isLocked);
    setVisible(areSeveral || isLocked);
}

void DocumentBar::build()
{
    if (!m_list)
        makeList();
    if (!m_password)
        makePassword();
}

void DocumentBar::fillList()
{
    Menu menu;
    for (int i = 0; i < m_documents.count(); ++i) {
        const DocumentOpening &document = m_documents.at(i);
        QString text = document.title();
        if (!m_documents.placeOf(i).isEmpty())
            text = tr("%1 (sent)").arg(text);
        else if (document.asksForPassword())
            text = tr("%1 (locked)").arg(text);
        else if (!document.problem().isEmpty())
            text = tr("%1 (cannot be printed)").arg(text);
        menu.items.push_back(
            {.text = tr("%1 of %2: %3", "which document of how many, and its name")
                         .arg(QString::number(i + 1), QString::number(m_documents.count()), text),
             .key = document.title(),
             .reference = i});
    }
    m_list->setMenu(std::move(menu));
    m_list->setValueByReference(m_documents.shownIndex());
    m_join->setChecked(m_documents.areJoined());
    findItem(m_actions->menu(), kRemove)->enabled = m_documents.count() > 1;
}

OSStatus DocumentBar::handle(const Event &event)
{
    if (event.kind == EventKind::ControlHit && event.source == m_list) {
        m_documents.show(m_list->chosenReference());
        return noErr;
    }
    if (event.kind == EventKind::ControlHit && event.source == m_join) {
        m_documents.join(m_join->isChecked());
        return noErr;
    }
    if (event.kind == EventKind::Command && event.command == kAdd) {
        emit addRequested();
        return noErr;
    }
    if (event.kind == EventKind::Command && event.command == kRemove) {
        m_documents.remove(m_documents.shownIndex());
        return noErr;
    }
    return eventNotHandledErr;
}

} // namespace kelvo
