#include "job_timing_dialog.h"

#include "button_row.h"
#include "mnemonics.h"
#include "modal_dialog.h"
#include "popup_button.h"
#include "spin_field.h"
#include "texts.h"
#include "time_field.h"
#include "tool_tip.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr char atTime[] = "time"; // the menu's key for a time of day

// In menu order; the keys are the server's words.
struct HoldRow
{
    const char *key;
    const char *text;
};
constexpr HoldRow holdRows[] = {
    {"no-hold", QT_TRANSLATE_NOOP("JobTiming", "At once")},
    {atTime, QT_TRANSLATE_NOOP("JobTiming", "At a time")},
    {"indefinite", QT_TRANSLATE_NOOP("JobTiming", "When somebody releases it")},
    {"day-time", QT_TRANSLATE_NOOP("JobTiming", "In the daytime (6 to 18 h)")},
    {"evening", QT_TRANSLATE_NOOP("JobTiming", "In the evening (18 to 6 h)")},
    {"night", QT_TRANSLATE_NOOP("JobTiming", "At night (18 to 6 h)")},
    {"second-shift", QT_TRANSLATE_NOOP("JobTiming", "In the second shift (16 to 24 h)")},
    {"third-shift", QT_TRANSLATE_NOOP("JobTiming", "In the third shift (0 to 8 h)")},
    {"weekend", QT_TRANSLATE_NOOP("JobTiming", "At the weekend")},
};

// Of the pane.
struct Controls
{
    explicit Controls(QWidget *pane)
        : when(pane->findChild<PopupButton *>(QStringLiteral("holdUntil")))
        , time(pane->findChild<TimeField *>(QStringLiteral("holdTime")))
        , priority(pane->findChild<SpinField *>(QStringLiteral("jobPriority")))
    {
    }

    bool isAtTime() const
    {
        const MenuItem *item = when->chosenItem();
        return item && item->key == QLatin1String(atTime);
    }

    PopupButton *when;
    TimeField *time;
    SpinField *priority;
};

JobTiming timingIn(const Controls &controls, JobTiming timing)
{
    const MenuItem *item = controls.when->chosenItem();
    const QString key = item ? item->key : QString();
    if (controls.isAtTime()) {
        // Seconds that the field does not show stay as they are.
        if (localHoldTime(timing.holdUntil) != controls.time->value())
            timing.holdUntil = holdUntilLocal(controls.time->value());
    } else if (timing.isHeld() || key != QLatin1String(holdRows[0].key)) {
        timing.holdUntil = key;
    }
    if (controls.priority->value() != timing.priority.value_or(JobTiming::usualPriority))
        timing.priority = controls.priority->value();
    return timing;
}

} // namespace

QWidget *makeJobTimingPane(const JobTiming &timing)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("jobTimingDialog"));
    content->setProperty("helpPage", QStringLiteral("host/after_printing.html"));
    content->setWindowTitle(translate("JobTiming", "When to Print"));
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(20, 20, 20, 20);
    grid->setVerticalSpacing(10);
    grid->setHorizontalSpacing(8);
    const auto addRow = [content, grid](const QString &text, QWidget *buddy, QLayout *field) {
        auto *label = new QLabel(text, content);
        label->setBuddy(buddy);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        buddy->setAccessibleName(nameInLabel(text));
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addLayout(field, row, 1);
    };

    auto *when = new PopupButton(content);
    when->setObjectName(QStringLiteral("holdUntil"));
    Menu menu;
    std::int32_t shown = 0;
    const auto local = localHoldTime(timing.holdUntil);
    for (const HoldRow &row : holdRows) {
        const auto reference = static_cast<std::int32_t>(menu.items.size());
        if (timing.holdUntil == QLatin1String(row.key) || (local && row.key == atTime))
            shown = reference;
        menu.items.push_back({.text = translate("JobTiming", row.text),
                              .key = QString::fromLatin1(row.key),
                              .reference = reference});
    }
    when->setMenu(std::move(menu));
    when->setValueByReference(shown);
    auto *time = new TimeField(content);
    time->setObjectName(QStringLiteral("holdTime"));
    time->setAccessibleName(translate("JobTiming", "Time to print at"));
    time->setValue(local.value_or(QTime(18, 0)));
    time->setEnabled(local.has_value());
    setOwnToolTip(time, translate("JobTiming", "The next time that the clock shows this"));
    auto *whenRow = new QHBoxLayout;
    whenRow->setSpacing(6);
    whenRow->addWidget(when, 1);
    whenRow->addWidget(time);
    addRow(translate("JobTiming", "&Print:"), when, whenRow);

    auto *priority = new SpinField(content);
    priority->setObjectName(QStringLiteral("jobPriority"));
    priority->setMinimum(JobTiming::minPriority);
    priority->setMaximum(JobTiming::maxPriority);
    priority->setValue(timing.priority.value_or(JobTiming::usualPriority));
    auto *hint = new QLabel(translate("JobTiming", "Of 1 to 100; the higher, the sooner"), content);
    hint->setTextFormat(Qt::PlainText);
    auto *priorityRow = new QHBoxLayout;
    priorityRow->setSpacing(8);
    priorityRow->addWidget(priority);
    priorityRow->addWidget(hint, 1);
    addRow(translate("JobTiming", "P&riority:"), priority, priorityRow);
    priority->setAccessibleDescription(hint->text());

    auto *note = new QLabel(translate("JobTiming",
                                      "The print server keeps the job until then; it is sent when "
                                      "you press Print."),
                            content);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setMinimumWidth(note->fontMetrics().averageCharWidth() * 52);
    grid->addWidget(note, grid->rowCount(), 0, 1, 2);

    auto *buttons = new ButtonRow(content);
    auto *cancel = new QPushButton(translate("JobTiming", "Cancel"), buttons);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setProperty("command", QStringLiteral("not!"));
    auto *ok = new QPushButton(translate("JobTiming", "OK"), buttons);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setProperty("command", QStringLiteral("ok  "));
    sendControlEvents(cancel);
    sendControlEvents(ok);
    buttons->arrange();
    grid->addWidget(buttons, grid->rowCount(), 0, 1, 2);
    return content;
}

std::optional<JobTiming> askForJobTiming(const JobTiming &timing, QWidget *parent)
{
    QWidget *content = makeJobTimingPane(timing);
    const Controls controls(content);
    ModalDialog dialog(content, parent);
    const auto handler = installEventHandler(content, [&controls](const Event &event) -> OSStatus {
        if (event.kind != EventKind::ControlHit || event.source != controls.when)
            return eventNotHandledErr;
        controls.time->setEnabled(controls.isAtTime());
        return noErr;
    });
    if (dialog.runModal() != DialogResult::OK)
        return std::nullopt;
    return timingIn(controls, timing);
}

} // namespace kelvo
