#pragma once

#include "device_panels.h"
#include "event.h"
#include "panel_options.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace kelvo {

class PopupButton;

// The host's own panel, for a printer that no bundle has panels for: a pop-up for each option of
// its PPD, section by section. What the user chooses is in the ticket at once. Scripts call the
// pop-ups "option-" and the option's keyword.
//
// The first section is there when it begins, the others when the window has been painted: there may
// be hundreds of pop-ups.
class OptionsPane : public QWidget, public DevicePanels
{
    Q_OBJECT

public:
    explicit OptionsPane(QWidget *parent = nullptr);

    // A sentence above all: why the device's own panels are not there. Empty: none.
    void setNote(const QString &note);
    // Marks the options of these keywords, which are in conflict.
    void setConflicts(const QStringList &keywords);
    bool isBuilt() const { return m_built == m_sections.size(); } // all sections

    Result<void> load() override { return {}; }
    Result<void> begin(PrintSession &tickets) override; // an error: it has no PPD
    bool isBegun() const override { return m_tickets; }
    void sync(SyncDirection direction) override;
    void end(OSStatus status) override;

signals:
    void built(); // further sections are there

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Row
    {
        PanelOption option;
        QLabel *label;
        PopupButton *popup;
        bool isInConflict = false;
    };

    void build();
    void addSection(const PanelSection &section);
    void show(const Row &row);
    void mark(const Row &row);
    void fitToFont();
    OSStatus handle(const Event &event);

    PrintSession *m_tickets = nullptr; // null: not begun
    std::vector<PanelSection> m_sections;
    std::size_t m_built = 0;   // sections that are there
    bool m_isBuilding = false; // the others are on their way
    std::vector<Row> m_rows;
    QLabel *m_note;
    QWidget *m_content = nullptr; // holds the rows; another one for each printer
    QGridLayout *m_grid = nullptr;
    EventHandlerRef m_handler;
};

} // namespace kelvo
