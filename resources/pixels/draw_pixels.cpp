#include "master_drawing.h"
#include "pixel_file.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <vector>

// Draws the pictures of a folder, as windows show them when they open, into the file of pixels
// that the program maps.
//
//     draw_pixels MASTERS_FOLDER PIXEL_FILE

using namespace kelvo;

namespace {

// Which masters are drawn, and how. Others are drawn from the master when they are shown.
struct Shown
{
    const char *names;          // with * and ?
    std::vector<QSize> sizes;   // logical pixels
    std::vector<double> ratios; // device pixels of a logical one
};

std::vector<QSize> squares(std::initializer_list<int> sides)
{
    std::vector<QSize> sizes;
    for (const int side : sides)
        sizes.emplace_back(side, side);
    return sizes;
}

const std::vector<double> screens = {1, 1.5, 2};
// The size of an icon is asked for in device pixels.
const std::vector<double> icons = {1};

const std::vector<Shown> shown = {
    {"kelvo-print", squares({16, 32, 64, 128, 256}), icons},
    // As high as a line of text is.
    {"ButtonGraphic_Mac*", squares({13, 14, 15, 16, 17, 18, 19, 20, 22, 24, 26, 28, 30, 32, 36}),
     icons},
    // Of the panel that is shown first. Most paper is white.
    {"2SidedPrinting_*", squares({48}), screens},
    {"JobType_*", squares({48}), screens},
    {"OfficeFinishing_[!O]*", squares({48}), screens},
    {"OutputColor_*", squares({48}), screens},
    {"Paper_*White", squares({48}), screens},
    {"ProductionFinishing_*", squares({48}), screens},
};

// What of a canvas of `size` and `ratio` is not wholly transparent.
PixelMaster::Drawn inkOf(const QImage &canvas, const QSize &size, double ratio)
{
    QRect ink;
    for (int y = 0; y < canvas.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(canvas.constScanLine(y));
        for (int x = 0; x < canvas.width(); ++x) {
            if (row[x] != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {size, ratio, ink.topLeft(), canvas.copy(ink)};
}

std::vector<PixelMaster::Drawn> drawingsOf(const MasterDrawing &drawing, const QString &file)
{
    std::vector<PixelMaster::Drawn> drawings;
    for (const Shown &each : shown) {
        const auto names =
            QRegularExpression::fromWildcard(QString::fromLatin1(each.names), Qt::CaseSensitive);
        if (!names.match(QFileInfo(file).completeBaseName()).hasMatch())
            continue;
        for (const QSize &size : each.sizes) {
            for (const double ratio : each.ratios)
                drawings.push_back(inkOf(drawing.draw({file}, size, ratio), size, ratio));
        }
    }
    return drawings;
}

} // namespace

int main(int argc, char **argv)
{
    const auto *drawing = static_cast<const MasterDrawing *>(kelvoMasterDrawing(KELVO_VERSION));
    if (argc != 3 || !drawing) {
        std::fputs("usage: draw_pixels MASTERS_FOLDER PIXEL_FILE\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QString path = QString::fromLocal8Bit(argv[2]);
    std::vector<PixelMaster> masters;
    for (const QFileInfo &file :
         folder.entryInfoList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name)) {
        const QSize size = drawing->sizeOf(file.filePath());
        if (size.isEmpty()) {
            std::fprintf(stderr, "%s is no picture\n", qPrintable(file.filePath()));
            return 1;
        }
        masters.push_back(
            {file.completeBaseName(), file.size(), size, drawingsOf(*drawing, file.filePath())});
    }
    if (masters.empty() || !PixelFile::write(path, std::move(masters))) {
        std::fprintf(stderr, "%s cannot be made of %s\n", argv[2], argv[1]);
        return 1;
    }
    return 0;
}
