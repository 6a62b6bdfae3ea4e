#pragma once

#include "inspector.h"
#include "result.h"

#include <QString>

class QWidget;

namespace kelvo {

class Extension;
class PanelSwitch;
class PopupButton;

// Where one is among the device's panels: which of them the switch shows, and which of
// the shell's tabs.
class PanelPlaces
{
public:
    // Both borrowed; the shell's selector stands somewhere in `window`.
    PanelPlaces(QWidget *window, PanelSwitch *panelSwitch);

    // Errors name what there is.
    Result<void> showPanel(Extension &panels, const QString &name); // or one of the shell's tabs
    Result<void> showTab(int number);
    // Whether `control` is on one of them, which is in front then; its tab is the shell's to show.
    bool goTo(const QWidget *control, const Extension &panels);
    // "it is in tab 4, Advanced"; empty for a control of no panel.
    static QString placeOf(const QWidget *control, const Extension &panels);
    // The same of a control that is not built yet, as the bundle describes it: "it is in panel
    // SpecialPages", "it is in the dialog "Covers"". Empty: there is none.
    static QString placeOf(const inspector::ControlName &control, const Extension &panels);

    // The switch has a place for each; null: none, and it is not seen.
    void showSwitch(const Extension *panels);

    struct Place
    {
        QString panel;
        int tab = 0;
        QString text() const { return panel + u' ' + QString::number(tab); }
    };
    Place current(const Extension &panels) const;
    // Goes there as far as these panels have it; no place: nothing.
    void goTo(const Place &place, Extension &panels);

private:
    PopupButton *selector() const; // null before the shell is open

    QWidget *m_window;
    PanelSwitch *m_switch;
};

} // namespace kelvo
