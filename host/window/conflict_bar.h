#pragma once

#include "conflicts.h"

#include <QFrame>

class QLabel;
class QPushButton;

namespace kelvo {

// One line below the panels that is there only when something is wrong: settings
// in conflict, or else settings that this printer does not have.
class ConflictBar : public QFrame
{
    Q_OBJECT

public:
    explicit ConflictBar(QWidget *parent = nullptr);

    // Shows the conflicts; without any, what is missing; without that, nothing.
    void setReport(const ConflictReport &report, const QStringList &missing);

signals:
    void fixRequested();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void showDetails();
    void hideMissing();
    void colour();
    void elide();

    ConflictReport m_report;
    QStringList m_missing, m_hiddenMissing;
    QString m_text;
    QLabel *m_icon, *m_label;
    QPushButton *m_fix, *m_details, *m_hide;
    bool m_isColouring = false;
};

// What is wrong, a sentence each.
QString conflictSentences(const ConflictReport &report, QChar separator);
// The same and what would mend it, a paragraph each, for a notice.
QString conflictText(const ConflictReport &report);

} // namespace kelvo
