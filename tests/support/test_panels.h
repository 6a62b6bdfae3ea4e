#pragma once

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
    int livingContexts = 0;
    int livingInterfaces = 0;
};

using TestPanelsFunction = TestPanels *(*)();
