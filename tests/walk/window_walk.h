#pragma once

#include "address_book_service.h"
#include "bundle.h"
#include "private_cups.h"

#include <QPalette>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

class QWidget;

// Opens the program's windows one after the other, in the language of the environment: each
// script of this folder ends with one open. A script's first line names the device that it is
// for, "# full: what it shows"; "other" is one of another maker, "queues" the first of a dozen that
// a print server has. A ticket that the dialog begins with may follow. Where it runs are people.vcf
// and an address book without people, and of the user's files none.
class WindowWalk
{
public:
    // Takes the application object's texts, its current folder and the session bus.
    WindowWalk();

    static QStringList scripts(); // their paths, by name

    // Of the print dialog; until then the one that it takes by itself.
    void setDialogSize(const QSize &size) { m_dialogSize = size; }

    // Runs `script`, calls look(window) with the window that it has opened, laid out and painted,
    // in the event loop of that window, and closes all. What went wrong; empty: nothing.
    QString visit(const QString &script, const std::function<void(QWidget *)> &look);

private:
    QString startPrintServer(); // what went wrong

    kelvo::Bundle *m_bundle = nullptr;
    AddressBookService m_addressBook;
    std::unique_ptr<PrivateCups> m_cups; // started for the first script that needs it
    QString m_problem;                   // of what all windows need
    QSize m_dialogSize;
};

// The colors of a desktop. The first is the style's own.
struct Theme
{
    QString name; // "light", "dark", "contrast"
    QPalette palette;
};
std::vector<Theme> themes();
