#include "help_results.h"

#include "help_search.h"
#include "texts.h"

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {

namespace {

enum HitRole { PageRole = Qt::UserRole, ExcerptRole };

// A title, and below it the excerpt on as many lines as it takes.
class HitDelegate : public QStyledItemDelegate
{
public:
    explicit HitDelegate(QListWidget *list)
        : QStyledItemDelegate(list)
        , m_list(list)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &given,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        option.text.clear();
        m_list->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, m_list);

        const bool isSelected = option.state & QStyle::State_Selected;
        const QPalette::ColorGroup group =
            option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette = option.palette;
        context.palette.setColor(
            QPalette::Text,
            option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        QTextDocument document;
        layOut(document, index);
        painter->save();
        painter->translate(option.rect.topLeft());
        document.documentLayout()->draw(painter, context);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        QTextDocument document;
        layOut(document, index);
        return document.size().toSize();
    }

private:
    void layOut(QTextDocument &document, const QModelIndex &index) const
    {
        document.setDefaultFont(m_list->font());
        // Pages that are not translated run as their own language does.
        QTextOption option = document.defaultTextOption();
        option.setTextDirection(index.data().toString().isRightToLeft() ? Qt::RightToLeft
                                                                        : Qt::LeftToRight);
        document.setDefaultTextOption(option);
        document.setHtml(QStringLiteral("<b>%1</b><br>%2")
                             .arg(index.data().toString().toHtmlEscaped(),
                                  index.data(ExcerptRole).toString().toHtmlEscaped()));
        document.setTextWidth(m_list->viewport()->width());
    }

    QListWidget *m_list;
};

} // namespace

HelpResults::HelpResults(QWidget *parent)
    : QWidget(parent)
    , m_count(new QLabel(this))
    , m_list(new QListWidget(this))
{
    m_count->setTextFormat(Qt::PlainText);
    m_count->setWordWrap(true);
    m_list->setAccessibleName(translate("Help", "Pages that were found"));
    m_list->setItemDelegate(new HitDelegate(m_list));
    m_list->setResizeMode(QListView::Adjust);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Whether it is there would change the width, and with it how high the rows are.
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_count);
    column->addWidget(m_list, 1);
    column->addStretch(0);

    const auto choose = [this](const QListWidgetItem *item) {
        emit chosen(item->data(PageRole).toString());
    };
    connect(m_list, &QListWidget::itemClicked, this, choose);
    connect(m_list, &QListWidget::itemActivated, this, choose);
}

void HelpResults::setHits(const std::vector<HelpHit> &hits)
{
    m_list->clear();
    for (const HelpHit &hit : hits) {
        auto *item = new QListWidgetItem(hit.title, m_list);
        item->setData(PageRole, hit.page);
        item->setData(ExcerptRole, hit.excerpt);
        item->setData(Qt::AccessibleTextRole,
                      QString(hit.title + QStringLiteral(". ") + hit.excerpt));
    }
    m_list->setCurrentRow(0);
    m_list->setVisible(!hits.empty());
    const auto count = qint64(hits.size());
    m_count->setText(
        count == 0 ? translate("Help",
                               "No page has all of these words. Type fewer of them, or only how "
                               "they begin, or look at the contents.")
                   : translate("Help", "%n page(s) found", nullptr, count));
    m_list->setAccessibleDescription(m_count->text());
}

void HelpResults::moveBy(int rows)
{
    if (m_list->count() > 0)
        m_list->setCurrentRow(std::clamp(m_list->currentRow() + rows, 0, m_list->count() - 1));
}

void HelpResults::chooseCurrent()
{
    if (const QListWidgetItem *item = m_list->currentItem())
        emit chosen(item->data(PageRole).toString());
}

} // namespace kelvo
