#include "panel_places.h"

#include "control.h"
#include "control_list.h"
#include "extension.h"
#include "panel_switch.h"
#include "popup_button.h"
#include "texts.h"

#include <QStringList>

#include <algorithm>

namespace kelvo {

namespace {

using Code = Error::Code;

constexpr ControlID shellSelector = {kShellSignature, 16};

// The shell names its own panes as panels are named.
QList<QWidget *> shellPanes(const Extension &panels)
{
    QList<QWidget *> panes = panels.panels().front().pane->findChildren<QWidget *>();
    panes.removeIf([](const QWidget *pane) {
        const auto id = controlIDOf(pane);
        return !id || id->signature != kUserPaneSignature;
    });
    return panes;
}

QStringList namesOf(const Extension &panels)
{
    QStringList names;
    for (const Extension::Panel &panel : panels.panels())
        names.append(panel.name);
    for (const QWidget *pane : shellPanes(panels))
        names.append(pane->objectName());
    return names;
}

} // namespace

PanelPlaces::PanelPlaces(QWidget *window, PanelSwitch *panelSwitch)
    : m_window(window)
    , m_switch(panelSwitch)
{
}

PopupButton *PanelPlaces::selector() const
{
    return findControl<PopupButton>(m_window, shellSelector);
}

Result<void> PanelPlaces::showPanel(Extension &panels, const QString &name)
{
    for (std::size_t i = 0; i < panels.panels().size(); ++i) {
        if (panels.panels()[i].name == name) {
            m_switch->setCurrentIndex(int(i));
            return {};
        }
    }
    for (const QWidget *pane : shellPanes(panels)) {
        if (pane->objectName() == name)
            return showTab(controlIDOf(pane)->number);
    }
    return Error{Code::NotFound, name,
                 translate("Window", "there is no such panel here; there are: %1")
                     .arg(namesOf(panels).join(QStringLiteral(", ")))};
}

Result<void> PanelPlaces::showTab(int number)
{
    m_switch->setCurrentIndex(0);
    PopupButton *tabs = selector();
    if (!tabs)
        return Error{Code::NotFound, QString::number(number),
                     translate("Window", "there are no tabs")};
    // A tab keeps its number where others are not there.
    const auto &items = tabs->menu().items;
    QStringList names;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].reference != number) {
            names.append(QStringLiteral("%1 (%2)").arg(items[i].reference).arg(items[i].text));
            continue;
        }
        const int row = int(i) + 1;
        if (tabs->value() != row && !tabs->choose(row))
            return Error{Code::Refused, QString::number(number),
                         translate("Window", "the tab cannot be chosen")};
        return {};
    }
    return Error{Code::OutOfRange, QString::number(number),
                 translate("Window", "there is no such tab here; there are: %1")
                     .arg(names.join(QStringLiteral(", ")))};
}

bool PanelPlaces::goTo(const QWidget *control, const Extension &panels)
{
    const auto &all = panels.panels();
    const auto panel = std::ranges::find_if(
        all, [control](const Extension::Panel &one) { return one.pane->isAncestorOf(control); });
    if (panel == all.end())
        return false;
    m_switch->setCurrentIndex(int(panel - all.begin()));
    return true;
}

void PanelPlaces::showSwitch(const Extension *panels)
{
    const QSignalBlocker silence(m_switch);
    QStringList titles;
    if (panels) {
        for (const Extension::Panel &panel : panels->panels())
            titles.append(QString(panel.title).replace(u'&', QStringLiteral("&&")));
    }
    m_switch->setTitles(titles);
    m_switch->setValue(panels ? panels->shownPanel() + 1 : 0);
    m_switch->setVisible(titles.size() > 1);
}

QString PanelPlaces::placeOf(const QWidget *control, const Extension &panels)
{
    for (const Extension::Panel &panel : panels.panels()) {
        if (!panel.pane->isAncestorOf(control))
            continue;
        for (const QWidget *widget = control; widget != panel.pane;
             widget = widget->parentWidget()) {
            const auto id = controlIDOf(widget);
            if (id && id->signature == kUserPaneSignature)
                return translate("Window", "it is in tab %1, %2")
                    .arg(QString::number(id->number), widget->objectName());
        }
        return translate("Window", "it is in panel %1").arg(panel.name);
    }
    return {};
}

QString PanelPlaces::placeOf(const inspector::ControlName &control, const Extension &panels)
{
    const std::vector<DescribedWindow> windows = describedWindowsWith(control, panels.bundle());
    if (windows.empty())
        return {};
    if (windows.size() > 1)
        return translate("Window", "it is in dialogs that are not open");
    const DescribedWindow &window = windows.front();
    return namesOf(panels).contains(window.name)
        ? translate("Window", "it is in panel %1").arg(window.name)
        : translate("Window", "it is in the dialog “%1”")
              .arg(window.title.isEmpty() ? window.name : window.title);
}

PanelPlaces::Place PanelPlaces::current(const Extension &panels) const
{
    Place place;
    if (const int shown = panels.shownPanel(); shown >= 0)
        place.panel = panels.panels()[static_cast<std::size_t>(shown)].name;
    if (const PopupButton *tabs = selector())
        place.tab = tabs->chosenReference();
    return place;
}

void PanelPlaces::goTo(const Place &place, Extension &panels)
{
    if (PopupButton *tabs = selector()) {
        const auto rows = tabs->menu().items;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const int row = int(i) + 1;
            if (rows[i].reference == place.tab && row != tabs->value())
                tabs->choose(row);
        }
    }
    for (std::size_t i = 0; i < panels.panels().size(); ++i) {
        if (panels.panels()[i].name == place.panel)
            panels.show(int(i));
    }
}

} // namespace kelvo
