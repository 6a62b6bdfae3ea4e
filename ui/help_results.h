#pragma once

#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;

namespace kelvo {

struct HelpHit;

// The pages that a search in the help found, and how many they are; or that there are none,
// and what to try.
class HelpResults : public QWidget
{
    Q_OBJECT

public:
    explicit HelpResults(QWidget *parent);

    // The first one is the current one.
    void setHits(const std::vector<HelpHit> &hits);

    void moveBy(int rows); // the current one, within the list
    void chooseCurrent();

signals:
    void chosen(const QString &page);

private:
    QLabel *m_count;
    QListWidget *m_list;
};

} // namespace kelvo
