// window_sheets FOLDER [--theme NAME] [--font FACTOR] [--size WIDTHxHEIGHT] [--only SCRIPT]...: a
// picture of every window of the program, in the language of the environment, and sheets of them
// all. Run by tools/window-sheets.

#include "window_walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

namespace {

constexpr int sheetWidth = 2000, sheetHeight = 1600; // pixels
constexpr double scale = 0.72;                       // of a window on a sheet
constexpr int gap = 12, captionHeight = 20;

struct Picture
{
    QString name;
    QImage image;
};

// As many as there is room for, from `first` on, in rows; `first` goes on to the next.
QImage sheetOf(const std::vector<Picture> &pictures, std::size_t &first)
{
    QImage sheet(sheetWidth, sheetHeight, QImage::Format_RGB32);
    sheet.fill(QColor(0x70, 0x78, 0x80));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::white);
    int x = gap, y = gap, rowHeight = 0;
    for (; first < pictures.size(); ++first) {
        const Picture &picture = pictures[first];
        const QImage image = picture.image.scaled(picture.image.size() * scale, Qt::KeepAspectRatio,
                                                  Qt::SmoothTransformation);
        if (x + image.width() > sheetWidth && x > gap) {
            x = gap;
            y += rowHeight + gap;
            rowHeight = 0;
        }
        if (y + image.height() + captionHeight > sheetHeight && y > gap)
            break;
        painter.drawImage(x, y, image);
        painter.drawText(QRect(x, y + image.height(), image.width(), captionHeight),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, picture.name);
        x += image.width() + gap;
        rowHeight = std::max(rowHeight, image.height() + captionHeight);
    }
    painter.end();
    return sheet.copy(0, 0, sheetWidth, std::min(y + rowHeight + gap, sheetHeight));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"theme", "light, dark or contrast", "name", "light"},
                       {"font", "times the usual size", "factor", "1"},
                       {"size", "of the print window, in logical pixels", "WIDTHxHEIGHT"},
                       {"only", "the window of that script", "script"}});
    parser.addPositionalArgument("folder", "where the pictures go");
    parser.process(application);
    const QString folder = parser.positionalArguments().value(0);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        parser.showHelp(2);

    for (const Theme &theme : themes()) {
        if (theme.name == parser.value("theme"))
            QApplication::setPalette(theme.palette);
    }
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * parser.value("font").toDouble());
    QApplication::setFont(font);

    int failed = 0;
    std::vector<Picture> pictures;
    const QString path = QFileInfo(folder).absoluteFilePath() + u'/';
    WindowWalk walk;
    if (const QStringList sides = parser.value("size").split(u'x'); sides.size() == 2)
        walk.setDialogSize({sides[0].toInt(), sides[1].toInt()});
    for (const QString &script : WindowWalk::scripts()) {
        const QString name = QFileInfo(script).completeBaseName();
        if (parser.isSet("only") && !parser.values("only").contains(name))
            continue;
        const QString problem = walk.visit(script, [&](QWidget *window) {
            pictures.push_back({name, window->grab().toImage()});
            pictures.back().image.save(path + name + QStringLiteral(".png"));
        });
        if (problem.isEmpty())
            continue;
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        ++failed;
    }
    // Windows of a height stand side by side.
    std::stable_sort(pictures.begin(), pictures.end(),
                     [](const Picture &one, const Picture &other) {
                         return one.image.height() > other.image.height();
                     });
    int number = 0;
    for (std::size_t next = 0; next < pictures.size();)
        sheetOf(pictures, next).save(path + QStringLiteral("sheet-%1.png").arg(++number));
    return failed == 0 ? 0 : 1;
}
