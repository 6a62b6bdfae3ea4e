#pragma once

#include "event.h"

#include <QWidget>

class QCheckBox;
class QPushButton;

namespace kelvo {

class MenuButton;
class PopupButton;
class SessionDocuments;

// The documents of a run that has several: which one is looked at, what becomes of each, and
// whether they are one job; and, for one that asks for a password, the button that asks for it.
// Nothing of it is made before there is something to show.
class DocumentBar : public QWidget
{
    Q_OBJECT

public:
    // `documents` are borrowed, and changed by what the user does here.
    explicit DocumentBar(SessionDocuments &documents, QWidget *parent = nullptr);

    // As the documents stand; shows itself where there is something to show.
    void refresh();
    // Makes all of it, for a list of what there can be.
    void build();

signals:
    void addRequested();
    void passwordRequested();

private:
    void makeList();
    void makePassword();
    void fillList();
    OSStatus handle(const Event &event);

    SessionDocuments &m_documents;
    PopupButton *m_list = nullptr; // null: not made yet, with all that stands beside it
    MenuButton *m_actions = nullptr;
    QCheckBox *m_join = nullptr;
    QWidget *m_listRow = nullptr;
    QPushButton *m_password = nullptr; // likewise
    EventHandlerRef m_handler;
};

} // namespace kelvo
