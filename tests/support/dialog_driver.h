#pragma once

#include "inspector.h"
#include "modal_dialog.h"
#include "notice.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

// Drives a modal dialog as its user does, step by step, notices included.
class DialogDriver
{
public:
    using Step = std::function<void()>;
    using Steps = std::deque<Step>;

    // The steps begin once the dialog runs, one for each round of its event loop.
    explicit DialogDriver(Steps steps)
        : m_steps(std::make_shared<Steps>(std::move(steps)))
    {
        scheduleNext(m_steps);
    }
    // A step that was not done is a dialog that closed too early.
    ~DialogDriver()
    {
        if (!m_steps->empty())
            QTest::qFail("the dialog closed before its last step", __FILE__, __LINE__);
    }
    DialogDriver(const DialogDriver &) = delete;
    DialogDriver &operator=(const DialogDriver &) = delete;

private:
    // Nothing more happens once the driver is gone.
    static void scheduleNext(const std::weak_ptr<Steps> &steps)
    {
        QTimer::singleShot(0, [steps] {
            if (const std::shared_ptr<Steps> left = steps.lock())
                doNext(*left, steps);
        });
    }

    static void doNext(Steps &left, const std::weak_ptr<Steps> &steps)
    {
        // First, since a step may open a notice and return only when that is gone.
        scheduleNext(steps);
        if (!left.empty()) {
            const Step step = left.front();
            left.pop_front();
            step();
        } else if (QWidget *open = QApplication::activeModalWidget()) {
            // It would hang the test.
            QTest::qFail("a window is open after the last step", __FILE__, __LINE__);
            open->close();
        }
    }

    std::shared_ptr<Steps> m_steps;
};

inline QWidget *control(const char *name)
{
    QWidget *found =
        kelvo::inspector::find(kelvo::frontWindow(), {{}, QString::fromLatin1(name)}).control;
    if (!found)
        qFatal("the window has no control @%s", name);
    return found;
}

inline void expectDone(const kelvo::inspector::Done &problem)
{
    QVERIFY2(!problem, qPrintable(problem ? problem->text : QString()));
}

inline QString shown(const char *name, const char *property = "text")
{
    return kelvo::inspector::property(control(name), QString::fromLatin1(property)).value();
}

inline DialogDriver::Step press(const char *name)
{
    return [name] { expectDone(kelvo::inspector::click(control(name))); };
}

inline DialogDriver::Step type(const char *name, const char *text)
{
    return [name, text] {
        expectDone(kelvo::inspector::type(control(name), QString::fromUtf8(text)));
    };
}

inline DialogDriver::Step choose(const char *name, std::int32_t reference)
{
    return [name, reference] {
        expectDone(kelvo::inspector::choose(
            control(name), {kelvo::inspector::ItemName::By::Reference, reference, {}, 0}));
    };
}

inline DialogDriver::Step expect(const char *name, const char *property, const char *value)
{
    return [name, property, value] {
        QVERIFY2(
            shown(name, property) == QString::fromUtf8(value),
            qPrintable(QStringLiteral("@%1 %2 is %3").arg(name, property, shown(name, property))));
    };
}

// Presses the notice's button; `part` must stand in its message.
inline DialogDriver::Step answerNoticeWith(const char *part)
{
    return [part] {
        QVERIFY(kelvo::frontNotice().isShown());
        const QString message = kelvo::frontNotice().message;
        // No place holder is left in either text.
        QVERIFY2(!kelvo::frontNotice().header.contains(u'%') && !message.contains(u'%'),
                 qPrintable(kelvo::frontNotice().header));
        const bool isThis = message.contains(QString::fromUtf8(part));
        kelvo::answerNotice(1);
        QVERIFY2(isThis, qPrintable(message));
    };
}
