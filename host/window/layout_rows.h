#pragma once

#include "event.h"
#include "job_settings.h"

#include <QObject>

#include <functional>

class QCheckBox;
class QGridLayout;
class QLabel;
class QToolButton;
class QWidget;

namespace kelvo {

class PopupButton;
class SpinField;

// The rows of the left column for what is done to the pages: which of the chosen ones, their
// order, scaling, how many come on a side. Most jobs need none of it, so they are folded away
// below a button that says what of it is set, and made when they are first unfolded.
class LayoutRows : public QObject
{
    Q_OBJECT

public:
    // Puts a row below the others, as the pane's own.
    using AddRow = std::function<QLabel *(const QString &text, QWidget *buddy, QWidget *field)>;
    // The button and the rows become children of `pane` and stand in its `grid`.
    LayoutRows(QWidget *pane, QGridLayout *grid, AddRow addRow);

    QWidget *toggle() const;
    void build(); // also where they stay folded
    bool isUnfolded() const;

    void setSettings(const JobSettings &settings);
    void putInto(JobSettings &settings) const;
    void setEnabled(bool enabled);

    // Whether the event is of a control here and changes a setting.
    bool isEdit(const Event &event) const;
    // What follows from it.
    void update();

private:
    void unfold(bool unfolds);
    void showWhatApplies();
    QString summary() const;

    QWidget *m_pane;
    QGridLayout *m_grid;
    AddRow m_addRow;
    QToolButton *m_toggle;
    JobSettings m_settings; // as they were set last
    bool m_isEnabled = true;

    // Null until they are built.
    PopupButton *m_pageSet = nullptr;
    QCheckBox *m_reverse = nullptr;
    PopupButton *m_scaling = nullptr;
    SpinField *m_percent = nullptr;
    PopupButton *m_perSide = nullptr;
    PopupButton *m_flow = nullptr;
    QCheckBox *m_borders = nullptr;
    QList<QWidget *> m_rows; // labels and fields, shown and hidden together
};

} // namespace kelvo
