#include "notice.h"

#include "accessible_role.h"
#include "button_row.h"
#include "modal_dialog.h"
#include "notice_sign.h"
#include "texts.h"

#include <QAccessible>
#include <QAccessibleEvent>
#include <QDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

#include <vector>

namespace kelvo {

namespace {

constexpr int lineCharacters = 56; // a comfortable line of the message

QLabel *textLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

class NoticeDialog : public QDialog
{
public:
    NoticeDialog(NoticeLevel level, const ShownNotice &notice, int escape, QWidget *parent)
        : QDialog(parent)
        , m_notice(notice)
        , m_escape(escape)
    {
        setAccessibleRole(this, QAccessible::AlertMessage);
        setObjectName(QStringLiteral("notice"));
        setWindowTitle(parent ? parent->window()->windowTitle()
                              : QGuiApplication::applicationDisplayName());
        setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
        setAccessibleName(notice.header);
        setAccessibleDescription(notice.message);

        auto *grid = new QGridLayout(this);
        const int space = fontMetrics().height();
        grid->setContentsMargins(space, space, space, space);
        grid->setHorizontalSpacing(space);
        grid->setVerticalSpacing(space / 2);
        grid->setColumnStretch(1, 1);
        grid->setSizeConstraint(QLayout::SetFixedSize);

        auto *icon = new QLabel(this);
        setAccessibleRole(icon, QAccessible::Graphic);
        icon->setPixmap(noticeSign(level, fontMetrics().height() * 5 / 2, devicePixelRatioF()));
        grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);

        QLabel *header = textLabel(notice.header, this);
        QFont bold = header->font();
        bold.setBold(true);
        header->setFont(bold);
        header->setMinimumWidth(lineWidth());
        grid->addWidget(header, 0, 1);
        if (!notice.message.isEmpty())
            grid->addWidget(messageWidget(), 1, 1);
        grid->addWidget(buttonRow(), 2, 0, 1, 2);
    }

    const ShownNotice &notice() const { return m_notice; }
    const std::vector<QPushButton *> &buttons() const { return m_buttons; }

    // Escape and the close box.
    void reject() override { done(m_escape); }

protected:
    void showEvent(QShowEvent *event) override
    {
        QDialog::showEvent(event);
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }

private:
    int lineWidth() const { return fontMetrics().averageCharWidth() * lineCharacters; }

    QWidget *messageWidget()
    {
        QLabel *message = textLabel(m_notice.message, this);
        message->setMinimumWidth(lineWidth());
        // A list of a hundred names must not push the buttons off the screen.
        const int most = screen()->availableGeometry().height() / 2;
        if (message->heightForWidth(lineWidth()) <= most)
            return message;
        auto *scroll = new QScrollArea(this);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        scroll->setWidget(message);
        scroll->setFixedHeight(most);
        scroll->setMinimumWidth(lineWidth()
                                + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this));
        return scroll;
    }

    // The default button stands outermost, the others before it, the next one nearest.
    ButtonRow *buttonRow()
    {
        auto *row = new ButtonRow(this);
        for (const QString &text : m_notice.buttons) {
            auto *button = new QPushButton(text, row);
            const int number = static_cast<int>(m_buttons.size()) + 1;
            connect(button, &QPushButton::clicked, this, [this, number] { done(number); });
            m_buttons.push_back(button);
        }
        row->setButtons({}, {m_buttons.rbegin(), m_buttons.rend()});
        m_buttons.front()->setDefault(true);
        m_buttons.front()->setFocus();
        return row;
    }

    ShownNotice m_notice;
    int m_escape;                         // a button, from 1
    std::vector<QPushButton *> m_buttons; // in the order of m_notice.buttons
};

// The notices that are open, the front one last. One that is deleted with its
// owner takes itself out.
std::vector<QPointer<NoticeDialog>> &openNotices()
{
    static std::vector<QPointer<NoticeDialog>> notices;
    std::erase_if(notices, [](const QPointer<NoticeDialog> &notice) { return !notice; });
    return notices;
}

int run(NoticeLevel level, const ShownNotice &notice, int escape, QWidget *parent)
{
    const QPointer<QWidget> owner = parent ? parent->window() : frontWindow();
    const QPointer<NoticeDialog> dialog = new NoticeDialog(level, notice, escape, owner);
    openNotices().push_back(dialog);
    // An answered notice is no longer in front, even before its event loop has ended.
    QObject::connect(dialog, &QDialog::finished, dialog,
                     [dialog] { std::erase(openNotices(), dialog); });
    const int pressed = dialog->exec();
    // Gone with its owner, or hidden, it was closed without an answer.
    const bool isAnswered = dialog && pressed != 0;
    delete dialog.data();
    activateAgain(owner);
    return isAnswered ? pressed : escape;
}

} // namespace

// Drawn here because the built-in ones are coarse on a dense screen.
QPixmap noticeSign(NoticeLevel level, int side, double ratio)
{
    QPixmap sign(QSize(side, side) * ratio);
    sign.setDevicePixelRatio(ratio);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 32.0, side / 32.0);
    const auto stroke = [&painter](const QColor &colour, double width) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    painter.setPen(Qt::NoPen);
    switch (level) {
    case NoticeLevel::Stop:
        painter.setBrush(QColor(0xC6, 0x28, 0x28));
        painter.drawEllipse(QRectF(1, 1, 30, 30));
        stroke(Qt::white, 3.5);
        painter.drawLine(QPointF(11, 11), QPointF(21, 21));
        painter.drawLine(QPointF(21, 11), QPointF(11, 21));
        break;
    case NoticeLevel::Note:
        painter.setBrush(QColor(0x1F, 0x6F, 0xB8));
        painter.drawEllipse(QRectF(1, 1, 30, 30));
        stroke(Qt::white, 3.5);
        painter.drawPoint(QPointF(16, 9.5));
        painter.drawLine(QPointF(16, 15), QPointF(16, 23));
        break;
    case NoticeLevel::Caution: {
        const QColor amber(0xF5, 0xA6, 0x23);
        painter.setBrush(amber);
        stroke(amber, 4);
        painter.drawPolygon(QPolygonF{{16, 4.5}, {29, 27}, {3, 27}});
        stroke(QColor(0x33, 0x26, 0x05), 3.5);
        painter.drawLine(QPointF(16, 12), QPointF(16, 18));
        painter.drawPoint(QPointF(16, 24));
        break;
    }
    }
    return sign;
}

void CFUserNotificationDisplayNotice(NoticeLevel level, const QString &header,
                                     const QString &message, const QString &button, QWidget *parent)
{
    const QString text = button.isEmpty() ? translate("Window", "OK") : button;
    run(level, {header, message, {text}}, 1, parent);
}

int CFUserNotificationDisplayAlert(NoticeLevel level, const QString &header, const QString &message,
                                   const QStringList &buttons, QWidget *parent, int escape)
{
    Q_ASSERT(escape >= 1 && escape <= buttons.size());
    return run(level, {header, message, buttons}, escape, parent);
}

ShownNotice frontNotice()
{
    return openNotices().empty() ? ShownNotice{} : openNotices().back()->notice();
}

bool answerNotice(int button)
{
    if (openNotices().empty())
        return false;
    const std::vector<QPushButton *> &buttons = openNotices().back()->buttons();
    if (button < 1 || button > static_cast<int>(buttons.size()))
        return false;
    buttons[static_cast<std::size_t>(button - 1)]->click();
    return true;
}

} // namespace kelvo
