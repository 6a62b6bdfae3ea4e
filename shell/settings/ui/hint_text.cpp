#include "hint_text.h"

#include <QEvent>
#include <QLabel>

namespace kelvo {

namespace {

// Text over background: about 6:1 on light and dark, where the plain text has
// 15:1 and what counts as readable begins at 4.5:1.
constexpr float kHintOpacity = 0.72F;

// Lives in its label.
class HintColor : public QObject
{
public:
    explicit HintColor(QLabel *label)
        : QObject(label)
        , m_label(label)
    {
        label->installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The parent's, since the label's own is what is set here.
        if (event->type() == QEvent::ApplicationPaletteChange
            || event->type() == QEvent::ParentChange)
            apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply()
    {
        const QWidget *parent = m_label->parentWidget();
        const QPalette source = parent ? parent->palette() : QPalette();
        QPalette palette = m_label->palette();
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            QColor color = source.color(group, QPalette::WindowText);
            color.setAlphaF(kHintOpacity);
            palette.setColor(group, QPalette::WindowText, color);
        }
        m_label->setPalette(palette);
    }

    QLabel *m_label;
};

} // namespace

void makeHintText(QLabel *label)
{
    if (!label)
        return;
    label->setTextFormat(Qt::PlainText);
    new HintColor(label);
}

} // namespace kelvo
