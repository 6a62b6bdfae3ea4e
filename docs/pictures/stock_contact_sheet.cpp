// stock_contact_sheet FILE.png: the icon of every paper type in every colour of
// the full device, with the type's summary line. docs/pictures/stock.png is made
// by it.

#include "device_session.h"
#include "pictures.h"
#include "stock_menus.h"
#include "stock_pictures.h"
#include "stock_summary.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

using namespace kelvo;

namespace {

constexpr int kIcon = 36, kGap = 8, kTextWidth = 300, kHeader = 24; // pixels

void drawIcon(QPainter &painter, const QString &resources, const Stock &stock, QPoint place)
{
    for (const QString &picture : stockPictures(stock))
        QSvgRenderer(pictureFile(resources, picture))
            .render(&painter, QRectF(place, QSizeF(kIcon, kIcon)));
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: stock_contact_sheet FILE.png\n");
        return 2;
    }
    const DeviceSession device(QStringLiteral("full"));
    Menu types, colors;
    PopulateStockTypeMenu(types, device.bundle, kJobContextJob);
    PopulateStockColorMenu(colors, device.bundle, kJobContextJob);

    const int step = kIcon + kGap;
    QImage sheet(kTextWidth + static_cast<int>(colors.items.size()) * step + kGap,
                 kHeader + static_cast<int>(types.items.size()) * step + kGap,
                 QImage::Format_ARGB32);
    sheet.fill(QColor(0xf0, 0xf0, 0xf0));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(8);
    painter.setFont(font);
    for (std::size_t column = 0; column < colors.items.size(); ++column)
        painter.drawText(QRect(kTextWidth + static_cast<int>(column) * step, 0, step, kHeader),
                         Qt::AlignCenter | Qt::TextWordWrap, colors.items[column].text);
    font.setPixelSize(13);
    painter.setFont(font);
    for (std::size_t row = 0; row < types.items.size(); ++row) {
        Stock stock;
        stock.setType(types.items[row].reference);
        const int top = kHeader + static_cast<int>(row) * step;
        const QString summary =
            GenerateStockSummary(device.bundle, kJobContextJob, stock, QStringLiteral("\n"));
        painter.drawText(QRect(2 * kGap, top, kTextWidth - 3 * kGap, kIcon), Qt::AlignVCenter,
                         summary.section(u'\n', -1));
        for (std::size_t column = 0; column < colors.items.size(); ++column) {
            stock.setColor(colors.items[column].reference);
            drawIcon(painter, device.bundle->resourcesPath(), stock,
                     {kTextWidth + static_cast<int>(column) * step, top});
        }
    }
    painter.end();
    return sheet.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
