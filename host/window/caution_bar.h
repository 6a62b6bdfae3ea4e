#pragma once

#include "cautions.h"
#include "conflicts.h"
#include "notice.h"

#include <QFrame>

#include <array>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace kelvo {

// What is wrong with the job, below the panels and only while there is something: settings
// in conflict first, then the cautions, a row each. Rows that have no room are told with
// the others by Details. Scripts know it as @conflictBar.
class CautionBar : public QFrame
{
    Q_OBJECT

public:
    explicit CautionBar(QWidget *parent = nullptr);

    void setContents(const ConflictReport &report, const std::vector<Caution> &cautions);

signals:
    void fixRequested();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Row
    {
        QLabel *sign, *text;
    };
    // What a row says: the short form where the whole has no room.
    struct Line
    {
        NoticeLevel level;
        QString whole, text;
    };
    static constexpr std::size_t mostRows = 3;

    void showDetails();
    void putAway();
    void showLines();
    void tell();
    void placeHide(std::size_t row);
    void elide();
    void colour();
    bool isPutAway(const Caution &caution) const;

    ConflictReport m_report;
    std::vector<Caution> m_cautions;
    QStringList m_putAway; // items of cautions that the user has hidden
    std::vector<Line> m_lines;
    QGridLayout *m_grid;
    QHBoxLayout *m_buttons; // of the first row
    std::array<Row, mostRows> m_rows;
    QPushButton *m_fix, *m_details, *m_hide;
    bool m_isColouring = false;
};

// What is wrong, and what would mend it, a paragraph each, for a notice.
QString conflictText(const ConflictReport &report);

} // namespace kelvo
