#pragma once

#include <QString>
#include <QStringList>

// What the fake panels were asked, and what they should answer; the test gets it
// with the module's function fakePanels().
struct FakePanels
{
    QStringList calls; // "Advanced read", "PaperOutput open"
    QString failing;   // the panel whose Prologue fails
    int livingContexts = 0;
};

using FakePanelsFunction = FakePanels *(*)();
