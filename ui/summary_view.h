#pragma once

#include <QPlainTextEdit>

#include <memory>

namespace kelvo {

class ControlInterface;

// Read-only lines of plain text ("- Letter"), selectable, with a scroll bar
// only when needed.
class SummaryView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    // Replaces the text in one go, without drawing in between.
    void setSummary(const QString &text);
    QSize sizeHint() const override; // five lines
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void runAsLabelsDo();
};

std::unique_ptr<ControlInterface> interfaceOf(SummaryView *view);

} // namespace kelvo
