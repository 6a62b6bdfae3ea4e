#include "printer_chooser.h"

#include "accessible_role.h"
#include "popup_button.h"
#include "printer_list_model.h"
#include "printer_row_delegate.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int mostWithoutSearch = 8; // printers; so many are seen at once
constexpr int mostRows = 10;         // of the list as it opens
constexpr int widthInCharacters = 56;

} // namespace

PrinterChooser::PrinterChooser(PopupButton *button)
    : PopupList(button)
    , m_model(new PrinterListModel(this))
    , m_field(new QLineEdit(this))
    , m_count(new QLabel(this))
    , m_list(new QListView(this))
{
    setAccessibleName(tr("Printers"));
    m_field->setObjectName(QStringLiteral("printerSearch"));
    m_field->setPlaceholderText(tr("Name, place or model"));
    m_field->setAccessibleName(tr("Search for a printer"));
    m_field->setClearButtonEnabled(true);
    for (auto *clear : m_field->findChildren<QAbstractButton *>())
        clear->setAccessibleName(tr("Clear the search"));
    setAccessibleRole(m_count, QAccessible::Notification);
    m_count->setObjectName(QStringLiteral("printerCount"));
    m_count->setTextFormat(Qt::PlainText);
    m_count->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("printerList"));
    m_list->setAccessibleName(tr("Printers"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new PrinterRowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setMouseTracking(true);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(m_field);
    column->addWidget(m_count);
    column->addWidget(m_list, 1);
    colour();

    for (QWidget *part : {static_cast<QWidget *>(m_field), static_cast<QWidget *>(m_list)})
        part->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &PrinterChooser::find);
    connect(m_list, &QListView::clicked, this, &PrinterChooser::chooseCurrent);
    connect(m_list, &QListView::entered, this, [this](const QModelIndex &index) {
        if (QCursor::pos() != m_mouse)
            m_list->setCurrentIndex(index);
    });
}

void PrinterChooser::setPrinters(const QList<Printer> &printers, const QString &chosen)
{
    const QString current = currentName();
    const int top = m_list->verticalScrollBar()->value();
    m_model->setPrinters(printers, chosen);
    if (isHidden())
        return;
    count(false);
    if (currentName() == current)
        return;
    const int row = m_model->rowOf(current);
    setCurrent(row >= 0 ? row : m_model->bestRow());
    if (row >= 0)
        m_list->verticalScrollBar()->setValue(top);
}

void PrinterChooser::open(const QString &typed)
{
    const bool isLong = m_model->printerCount() > mostWithoutSearch;
    {
        const QSignalBlocker silence(m_field);
        m_field->clear();
    }
    m_model->find({});
    m_field->setVisible(isLong);
    m_count->setVisible(isLong);
    count(false);

    const int rowHeight = PrinterRowDelegate::rowHeight(font());
    const QMargins margins = layout()->contentsMargins() + contentsMargins();
    int height =
        std::min(m_model->printerCount(), mostRows) * rowHeight + margins.top() + margins.bottom();
    if (isLong)
        height +=
            m_field->sizeHint().height() + m_count->sizeHint().height() + 2 * layout()->spacing();
    const int width = std::max(button()->width(),
                               std::min(widthInCharacters * fontMetrics().averageCharWidth(),
                                        screenRoom().width() * 2 / 3));
    m_mouse = QCursor::pos();
    (isLong ? static_cast<QWidget *>(m_field) : static_cast<QWidget *>(m_list))->setFocus();
    showAtButton({width, height});
    const int row = m_model->rowOf(m_model->chosen());
    setCurrent(row >= 0 ? row : m_model->bestRow());
    if (!typed.isEmpty() && isLong)
        m_field->setText(typed);
    else if (!typed.isEmpty())
        m_list->keyboardSearch(typed);
}

QString PrinterChooser::currentName() const
{
    const QModelIndex current = m_list->currentIndex();
    return current.isValid() ? m_model->printerAt(current.row()).name : QString();
}

void PrinterChooser::setCurrent(int row)
{
    const QModelIndex index = m_model->index(row);
    m_list->setCurrentIndex(index);
    if (index.isValid())
        m_list->scrollTo(index);
}

void PrinterChooser::chooseCurrent()
{
    const QString name = currentName();
    const std::vector<MenuItem> &items = button()->menu().items;
    const auto item = std::ranges::find(items, name, &MenuItem::key);
    if (!name.isEmpty() && item != items.end())
        choose(int(item - items.begin()) + 1);
}

void PrinterChooser::find(const QString &typed)
{
    m_model->find(typed.simplified());
    // Nothing is looked for any more: back to where it began.
    const int chosen = typed.isEmpty() ? m_model->rowOf(m_model->chosen()) : -1;
    setCurrent(chosen >= 0 ? chosen : m_model->bestRow());
    count(true);
}

void PrinterChooser::count(bool isNews)
{
    const int found = m_model->rowCount(), all = m_model->printerCount();
    const QString text = found == 0 ? tr("No printer has this in its name, place or model.")
        : found == all              ? tr("%n printer(s)", nullptr, all)
                                    : tr("%1 of %n printer(s)", nullptr, all).arg(found);
    isNews = isNews && text != m_count->text();
    m_count->setText(text);
    m_list->setAccessibleDescription(text);
    if (!m_count->isHidden())
        showNotification(m_count, true, isNews);
}

bool PrinterChooser::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::KeyPress && takeKey(watched, static_cast<QKeyEvent *>(event)))
        || PopupList::eventFilter(watched, event);
}

// The field has the keyboard, and the list the keys that move in it; the other way round, the field
// has the letters.
bool PrinterChooser::takeKey(QObject *watched, QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chooseCurrent();
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        if (event->modifiers() & Qt::ShiftModifier) // selects in the field
            return false;
        [[fallthrough]];
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        if (watched == m_list)
            return false;
        QCoreApplication::sendEvent(m_list, event);
        event->accept(); // also where there is no row to go to
        // Readers follow the focus, and that stays in the field.
        QAccessibleEvent moved(m_list, QAccessible::Focus);
        moved.setChild(m_list->currentIndex().row());
        if (m_list->currentIndex().isValid())
            QAccessible::updateAccessibility(&moved);
        return true;
    }
    default:
        break;
    }
    const bool isLetter = !event->text().isEmpty() && event->text().front().isPrint()
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (watched != m_list || m_field->isHidden()
        || !(isLetter || event->key() == Qt::Key_Backspace))
        return false;
    m_field->setFocus();
    QCoreApplication::sendEvent(m_field, event);
    return true;
}

void PrinterChooser::changeEvent(QEvent *event)
{
    PopupList::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colour();
}

// Not every dark theme has a colour for hints.
void PrinterChooser::colour()
{
    QColor hint = palette().color(QPalette::Text);
    hint.setAlphaF(0.6F);
    QPalette colours;
    colours.setColor(QPalette::PlaceholderText, hint);
    m_field->setPalette(colours);
}

} // namespace kelvo
