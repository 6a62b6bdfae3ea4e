#pragma once

#include "printers.h"

#include "popup_list.h"

#include <QPoint>

class QLabel;
class QLineEdit;
class QListView;

namespace kelvo {

class PrinterListModel;

// The printers, as they open from their pop-up button, whose menu's keys are their names: each
// with its state, place and model, and above many of them a field that finds some of them.
class PrinterChooser : public PopupList
{
    Q_OBJECT

public:
    explicit PrinterChooser(PopupButton *button);

    // At any time; what somebody looks at stays where it is.
    void setPrinters(const QList<Printer> &printers, const QString &chosen);

    void open(const QString &typed) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    QString currentName() const; // empty: there is no current row
    void setCurrent(int row);
    void chooseCurrent();
    void find(const QString &typed);
    void count(bool isNews);
    bool takeKey(QObject *watched, QKeyEvent *event);
    void colour();

    PrinterListModel *m_model;
    QLineEdit *m_field;
    QLabel *m_count;
    QListView *m_list;
    QPoint m_mouse; // where it rests since the list is open, and chooses nothing
};

} // namespace kelvo
