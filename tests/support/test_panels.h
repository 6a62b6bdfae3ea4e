#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// What the panels of a test's bundle were asked, and how they shall behave; got with the
// module's function testPanels().
struct TestPanels
{
    QStringList calls; // "Second read", "PDEShell open"
    QString failing;   // the panel whose Prologue fails
    bool refusesPrinter = false;
    bool takesPrint = false; // the shell consumes the press of Print
    // A file whose text names what is drawn over the pages, and how that looks. None where
    // either is empty.
    QString overlayStore;
    QByteArray overlayPdf;
    int livingContexts = 0;
    int livingInterfaces = 0;
};

using TestPanelsFunction = TestPanels *(*)();
