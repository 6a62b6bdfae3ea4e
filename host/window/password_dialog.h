#pragma once

#include <QString>

class QWidget;

namespace kelvo {

class SessionDocuments;

// The window's content, for a document called `title`: the field, and what is wrong with what
// was typed. `isBan`: it can be read, and only its owner's password lets it be printed.
QWidget *makePasswordPane(const QString &title, bool isBan);

// Asks for the password of the document that is looked at, until one opens it or the user gives
// up.
void runPasswordDialog(SessionDocuments &documents, QWidget *parent);

} // namespace kelvo
