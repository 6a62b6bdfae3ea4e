#include "font_menu.h"

#include "drawing.h"
#include "popup_button.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontDatabase>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <memory>
#include <vector>

namespace kelvo {

namespace {

std::vector<drawing::Font> installedFonts()
{
    const auto library = drawing::library();
    return library ? library.value()->fonts() : std::vector<drawing::Font>();
}

QString nameOf(const drawing::Font &font)
{
    return font.style.isEmpty() ? font.family : font.family + u' ' + font.style;
}

Menu menuOf(const std::vector<drawing::Font> &fonts)
{
    Menu menu;
    for (const drawing::Font &font : fonts) {
        menu.items.push_back({.text = nameOf(font),
                              .key = font.postScriptName,
                              .reference = static_cast<std::int32_t>(menu.items.size())});
    }
    return menu;
}

// Paints each line in its face. Every line is as high as the first: a list of a thousand
// faces would otherwise lay out all of them to know where the hundredth begins.
class FaceDelegate : public QStyledItemDelegate
{
public:
    FaceDelegate(std::vector<drawing::Font> fonts, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_fonts(std::move(fonts))
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        const QFontMetrics &metrics = option.fontMetrics;
        return {metrics.averageCharWidth() * widthInCharacters, metrics.height() * 3 / 2};
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto row = static_cast<std::size_t>(index.row());
        if (row >= m_fonts.size())
            return;
        const drawing::Font &font = m_fonts[row];
        // The name of a face of signs could not be read in it.
        if (!QFontDatabase::writingSystems(font.family).contains(QFontDatabase::Latin))
            return;
        const double size = option->font.pointSizeF();
        option->font = QFontDatabase::font(font.family, font.style, option->font.pointSize());
        option->font.setPointSizeF(size);
    }

private:
    static constexpr int widthInCharacters = 44;

    std::vector<drawing::Font> m_fonts;
};

} // namespace

void fillFontPopup(PopupButton *popup)
{
    std::vector<drawing::Font> fonts = installedFonts();
    popup->setMenu(menuOf(fonts));
    if (auto *list = qobject_cast<QListView *>(popup->view()))
        list->setUniformItemSizes(true);
    popup->setItemDelegate(new FaceDelegate(std::move(fonts), popup));
}

void showFont(PopupButton *popup, const QString &postScriptName, const QString &placeholder)
{
    const auto &items = popup->menu().items;
    const auto found = std::ranges::find(items, postScriptName, &MenuItem::key);
    popup->setPlaceholderText(placeholder.arg(postScriptName));
    popup->setValue(found == items.end() ? 0 : static_cast<int>(found - items.begin()) + 1);
}

QString chosenFont(const PopupButton *popup)
{
    const MenuItem *item = popup->chosenItem();
    return item ? item->key : QString();
}

} // namespace kelvo
