#pragma once

#include "job_settings.h"
#include "printers.h"

#include "event.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace kelvo {

class LayoutRows;
class PopupButton;
class PresetMenu;
class PrinterChooser;
class SpinField;

// The host's own controls: printer, preset, copies, pages, paper. It shows what
// it is given and tells what the user did.
class PrinterPane : public QWidget
{
    Q_OBJECT

public:
    // `presets` stands in the second row; it becomes a child of this.
    explicit PrinterPane(PresetMenu *presets, QWidget *parent = nullptr);

    QWidget *firstControl() const; // where the keyboard begins
    void focusPages();

    // The queues, or one device without a queue.
    void setPrinters(const QList<Printer> &printers, const QString &chosen);
    void setDevice(const QString &name);
    bool arePrintersListed() const; // the user looks at their list

    // Enables what `ppd` offers; null: the paper is the printer's own.
    void setSettings(const JobSettings &settings, const PpdFile *ppd);
    void dropTypedText(); // what is typed and not taken yet goes
    JobSettings settings() const;
    bool arePagesMissing() const;          // a range is chosen and not typed yet
    void setSettingsEnabled(bool enabled); // before there is a ticket: not

    // The one page that is in sight, where the user has asked for it.
    void setPageInSight(int page);
    // What most jobs do not need, and no first frame.
    void buildFolded();

    // Why the pages cannot be printed; empty when they can.
    void setPagesProblem(const QString &problem);

protected:
    void changeEvent(QEvent *event) override;

signals:
    void printerChosen(const QString &name);
    void printersListed(); // the user has opened their list
    void settingsEdited();
    void pageInSightWanted();

private:
    QLabel *addRow(const QString &text, QWidget *buddy, QWidget *field);
    OSStatus handle(const Event &event);
    void showPageField();
    void colour();
    void fitToFont();
    PrinterChooser *makePrinterChooser();

    PresetMenu *m_presets;
    PopupButton *m_printer;
    PrinterChooser *m_printerChooser = nullptr; // null: not opened yet
    QList<Printer> m_printers;
    QString m_chosenPrinter;
    SpinField *m_copies;
    QCheckBox *m_collate;
    PopupButton *m_pagesChoice;
    QLineEdit *m_pages;
    QLabel *m_pagesProblem;
    PopupButton *m_paper;
    PopupButton *m_orientation;
    LayoutRows *m_layout;
    std::vector<QWidget *> m_settingControls;
    QGridLayout *m_grid;
    EventHandlerRef m_handler;
    JobSettings m_settings; // as they were set last
    QString m_paperName;    // as the ticket has it, also when the device lacks it
    bool m_hasPaper = false;
};

} // namespace kelvo
