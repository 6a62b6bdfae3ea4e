#include "window_builder.h"

#include "described_widgets.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QVariant>

#include <cstring>

namespace kelvo {

namespace {

// Where the next item of a layout goes.
struct Cell
{
    int row = 0, column = 0;
    int rows = 1, columns = 1;
    Qt::Alignment alignment;
};

QLayout *newLayout(const char *className, QWidget *parent)
{
    if (std::strcmp(className, "QGridLayout") == 0)
        return new QGridLayout(parent);
    if (std::strcmp(className, "QHBoxLayout") == 0)
        return new QHBoxLayout(parent);
    return new QVBoxLayout(parent);
}

void add(QLayout *layout, QLayoutItem *item, const Cell &cell)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout))
        grid->addItem(item, cell.row, cell.column, cell.rows, cell.columns, cell.alignment);
    else
        layout->addItem(item);
}

void add(QLayout *layout, QWidget *widget, const Cell &cell)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout))
        grid->addWidget(widget, cell.row, cell.column, cell.rows, cell.columns, cell.alignment);
    else
        static_cast<QBoxLayout *>(layout)->addWidget(widget, 0, cell.alignment);
}

void add(QLayout *layout, QLayout *inner, const Cell &cell)
{
    if (auto *grid = qobject_cast<QGridLayout *>(layout))
        grid->addLayout(inner, cell.row, cell.column, cell.rows, cell.columns, cell.alignment);
    else
        static_cast<QBoxLayout *>(layout)->addLayout(inner);
}

class Builder
{
public:
    Builder(const CompiledWindows &windows, const CompiledWindow &window, DescribedWidgets &widgets)
        : m_texts(windows.texts)
        , m_next(windows.steps + window.start)
        , m_widgets(widgets)
    {
    }

    QWidget *build(QWidget *parent)
    {
        takeStep(); // Widget
        QWidget *window = makeWidget(parent);
        while (connectWidgets(takeStep())) { }
        return window;
    }

private:
    // The operands of a step are taken one after the other, in their order.
    int take() { return *m_next++; }
    BuildStep takeStep() { return BuildStep{take()}; }
    const char *takeName() { return m_texts + take(); }
    QString takeText() { return QString::fromUtf8(takeName()); }
    QSize takeSize()
    {
        const int width = take();
        return {width, take()};
    }
    QSizePolicy::Policy takePolicy() { return static_cast<QSizePolicy::Policy>(take()); }

    QWidget *makeWidget(QWidget *parent)
    {
        const QString className = takeText();
        QWidget *widget = m_widgets.make(className, parent, takeText());
        if (!widget)
            widget = new QWidget(parent);
        m_built.append(widget);
        fill(widget, nullptr);
        return widget;
    }

    // Up to the End of `layout`, or else of `widget`, in which all widgets are.
    void fill(QWidget *widget, QLayout *layout)
    {
        Cell cell;
        for (BuildStep step = takeStep(); step != BuildStep::End; step = takeStep()) {
            switch (step) {
            case BuildStep::Widget:
                if (QWidget *child = makeWidget(widget); layout)
                    add(layout, child, std::exchange(cell, {}));
                break;
            case BuildStep::Layout: {
                QLayout *inner = newLayout(takeName(), layout ? nullptr : widget);
                inner->setObjectName(takeText());
                if (layout)
                    add(layout, inner, std::exchange(cell, {}));
                else // those of the style stay when that becomes another one
                    inner->setContentsMargins(inner->contentsMargins());
                fill(widget, inner);
                break;
            }
            case BuildStep::Spacer: {
                const QSize size = takeSize();
                const QSizePolicy::Policy horizontal = takePolicy();
                add(layout, new QSpacerItem(size.width(), size.height(), horizontal, takePolicy()),
                    std::exchange(cell, {}));
                break;
            }
            case BuildStep::Cell:
                cell.row = take();
                cell.column = take();
                cell.rows = take();
                cell.columns = take();
                cell.alignment = Qt::Alignment(take());
                break;
            case BuildStep::Resize:
                widget->resize(takeSize());
                break;
            default:
                if (layout) {
                    setInLayout(step, layout);
                } else {
                    const char *name = takeName();
                    widget->setProperty(name, takeValue(step));
                }
            }
        }
    }

    template <typename Set>
    void forEach(Set set)
    {
        const int count = take();
        for (int i = 0; i < count; ++i)
            set(i, take());
    }

    void setInLayout(BuildStep step, QLayout *layout)
    {
        auto *box = qobject_cast<QBoxLayout *>(layout);
        auto *grid = qobject_cast<QGridLayout *>(layout);
        switch (step) {
        case BuildStep::Margins: {
            QMargins margins;
            margins.setLeft(take());
            margins.setTop(take());
            margins.setRight(take());
            margins.setBottom(take());
            layout->setContentsMargins(margins);
            break;
        }
        case BuildStep::Spacing:
            layout->setSpacing(take());
            break;
        case BuildStep::HorizontalSpacing:
            grid->setHorizontalSpacing(take());
            break;
        case BuildStep::VerticalSpacing:
            grid->setVerticalSpacing(take());
            break;
        case BuildStep::Stretches:
            forEach([box](int item, int stretch) { box->setStretch(item, stretch); });
            break;
        case BuildStep::RowStretches:
            forEach([grid](int row, int stretch) { grid->setRowStretch(row, stretch); });
            break;
        case BuildStep::ColumnStretches:
            forEach([grid](int column, int stretch) { grid->setColumnStretch(column, stretch); });
            break;
        case BuildStep::RowHeights:
            forEach([grid](int row, int height) { grid->setRowMinimumHeight(row, height); });
            break;
        case BuildStep::ColumnWidths:
            forEach([grid](int column, int width) { grid->setColumnMinimumWidth(column, width); });
            break;
        default:
            Q_UNREACHABLE();
        }
    }

    QVariant takeValue(BuildStep step)
    {
        switch (step) {
        case BuildStep::Text:
            return takeText();
        case BuildStep::Texts: {
            QStringList texts;
            for (int left = take(); left > 0; --left)
                texts.append(takeText());
            return texts;
        }
        case BuildStep::Number:
            return take();
        case BuildStep::Flag:
            return take() != 0;
        case BuildStep::Size:
            return takeSize();
        case BuildStep::Policy: {
            const QSizePolicy::Policy horizontal = takePolicy();
            QSizePolicy policy(horizontal, takePolicy());
            policy.setHorizontalStretch(take());
            policy.setVerticalStretch(take());
            return QVariant::fromValue(policy);
        }
        case BuildStep::Font: {
            QFont font;
            font.setPointSize(take());
            font.setBold(take() != 0);
            return font;
        }
        default:
            Q_UNREACHABLE();
        }
    }

    // What refers to widgets anywhere in the window; false with the last step.
    bool connectWidgets(BuildStep step)
    {
        switch (step) {
        case BuildStep::TabOrder: {
            const int count = take();
            QWidget *before = m_built.at(take());
            for (int i = 1; i < count; ++i) {
                QWidget *after = m_built.at(take());
                QWidget::setTabOrder(before, after);
                before = after;
            }
            return true;
        }
        case BuildStep::Buddy: {
            auto *label = qobject_cast<QLabel *>(m_built.at(take()));
            QWidget *buddy = m_built.at(take());
            if (label)
                label->setBuddy(buddy);
            return true;
        }
        default:
            return false;
        }
    }

    const char *m_texts;
    const std::int32_t *m_next;
    DescribedWidgets &m_widgets;
    QWidgetList m_built; // by number
};

} // namespace

QWidget *buildWindow(const CompiledWindows &windows, const CompiledWindow &window,
                     DescribedWidgets &widgets, QWidget *parent)
{
    return Builder(windows, window, widgets).build(parent);
}

} // namespace kelvo
