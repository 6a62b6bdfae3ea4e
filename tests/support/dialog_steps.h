#pragma once

#include "inspector.h"
#include "notice.h"
#include "status.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <utility>
#include <vector>

// What a user of the dialog in front does and sees.
namespace dialog_steps {

using Step = std::function<void()>;

// ---- on the window in front

inline QWidget *front()
{
    return QApplication::activeModalWidget();
}
inline QWidget *control(const char *name)
{
    QWidget *found = front() ? front()->findChild<QWidget *>(QLatin1String(name)) : nullptr;
    if (!found)
        qWarning("no %s", name);
    return found;
}
inline void done(const kelvo::inspector::Done &problem)
{
    if (problem)
        QFAIL(qPrintable(problem->text));
}

// ---- steps

inline Step type(const char *name, const QString &text)
{
    return [=] { done(kelvo::inspector::type(control(name), text)); };
}
inline Step set(const char *name, int value)
{
    return [=] { done(kelvo::inspector::set(control(name), value)); };
}
inline Step click(const char *name)
{
    return [=] { done(kelvo::inspector::click(control(name))); };
}
inline Step choose(const char *name, const QString &key)
{
    return [=] {
        done(kelvo::inspector::choose(control(name),
                                      {kelvo::inspector::ItemName::By::Key, 0, key, 0}));
    };
}
// The item with that command; `text` tells several apart.
inline Step item(const char *name, const char (&command)[5], const QString &text = {})
{
    const kelvo::OSType code = kelvo::fourCharCode(command);
    return [=] {
        std::optional<kelvo::inspector::ItemName> which;
        if (!text.isEmpty())
            which = {kelvo::inspector::ItemName::By::Text, 0, text, 0};
        done(kelvo::inspector::chooseCommand(control(name), code, which));
    };
}
inline Step expect(const char *name, const char *property, const QString &value)
{
    return [=] {
        const auto is = kelvo::inspector::property(control(name), QLatin1String(property));
        QVERIFY2(is, qPrintable(is.reason()));
        QCOMPARE(is.value(), value);
    };
}
inline Step expectNotice(const QString &part, int answer = 1)
{
    return [=] {
        const kelvo::ShownNotice notice = kelvo::frontNotice();
        QVERIFY2((notice.header + notice.message).contains(part),
                 qPrintable(notice.header + notice.message));
        kelvo::answerNotice(answer);
    };
}
inline bool isAgain = false; // the step that runs comes once more
// Goes on when that holds: for what comes from a thread.
inline Step until(const std::function<bool()> &condition)
{
    return [=] { isAgain = !condition(); };
}
inline Step chooseFile(const QString &path)
{
    return [=] { done(kelvo::inspector::answerFileChooser(front(), path)); };
}

} // namespace dialog_steps

// Drives a modal dialog as its user does: each step comes from the event loop of what is open
// then, once that shows all that it is going to show.
class DialogSteps
{
public:
    // Runs `dialog` with `steps`; those that are left when it closes are lost.
    kelvo::DialogResult run(const std::function<kelvo::DialogResult()> &dialog,
                            const std::vector<dialog_steps::Step> &steps)
    {
        m_steps.assign(steps.begin(), steps.end());
        m_waited.start();
        m_isOpen = true;
        next();
        const kelvo::DialogResult result = dialog();
        m_isOpen = false;
        return result;
    }
    // All steps were reached.
    bool isDone() const { return m_steps.empty(); }

private:
    void next()
    {
        // Set before a step runs: one that opens a dialog comes back when that is closed.
        QTimer::singleShot(1, &m_context, [this] {
            if (m_isOpen)
                next();
        });
        // What the last step left to the event loop comes first: a chooser that it answered closes.
        QCoreApplication::sendPostedEvents();
        auto *modal = qobject_cast<QDialog *>(dialog_steps::front());
        if (!modal)
            return;
        // Nothing of a test that has failed stays open.
        if (QTest::currentTestFailed() || m_waited.elapsed() > longestWaitMs) {
            modal->reject();
            return;
        }
        if (m_steps.empty() || kelvo::inspector::isUnfinished(modal))
            return;
        const dialog_steps::Step step = m_steps.front();
        m_steps.pop_front();
        step();
        if (std::exchange(dialog_steps::isAgain, false))
            m_steps.push_front(step);
        else
            m_waited.restart();
    }

    static constexpr qint64 longestWaitMs = 5000;
    QElapsedTimer m_waited; // since the last step
    QObject m_context;      // of what is still to come
    bool m_isOpen = false;
    std::deque<dialog_steps::Step> m_steps;
};

// A picture of 200 by 100 pixels in the current folder; its path.
inline QString pictureAt(const QString &name)
{
    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = QDir::current().absoluteFilePath(name);
    picture.save(path, "PNG");
    return path;
}

// The color in the middle of a view, as the user sees it.
inline QColor middleOf(QWidget *view)
{
    return QColor(view->grab().toImage().pixel(view->rect().center()));
}
