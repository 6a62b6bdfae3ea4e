#include "late_content.h"

#include "audience.h"

#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <utility>

namespace kelvo {

namespace {

constexpr int kLongestWaitMs = 500; // for a window that nobody looks at

class LateBuilder : public QObject
{
public:
    LateBuilder(QWidget *pane, std::function<void()> build)
        : m_pane(pane)
        , m_window(pane->window())
        , m_build(std::move(build))
    {
        if (!pane->isHidden()) {
            run();
            return;
        }
        m_pane->installEventFilter(this);
        switch (audience()) {
        case Audience::People:
            m_window->installEventFilter(this);
            QTimer::singleShot(kLongestWaitMs, this, &LateBuilder::run);
            break;
        case Audience::Script:
            QTimer::singleShot(0, this, &LateBuilder::run);
            break;
        case Audience::Nobody:
            break;
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // To its parent it is shown before the window is, and before it is laid out.
        if (watched == m_pane && event->type() == QEvent::ShowToParent)
            run();
        else if (watched == m_window && event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, &LateBuilder::run);
        return false;
    }

private:
    void run()
    {
        if (m_pane)
            m_pane->removeEventFilter(this);
        if (m_window)
            m_window->removeEventFilter(this);
        if (const auto build = std::exchange(m_build, nullptr))
            build();
    }

    QPointer<QWidget> m_pane, m_window;
    std::function<void()> m_build;
};

} // namespace

LateContent buildBeforeSeen(QWidget *pane, std::function<void()> build)
{
    return std::make_unique<LateBuilder>(pane, std::move(build));
}

} // namespace kelvo
