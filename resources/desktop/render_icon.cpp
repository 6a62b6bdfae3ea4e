#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

// Renders the program's icon in one size, for desktops that show no SVG.
//
//     render_icon ICON.svg PIXELS ICON.png
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: render_icon ICON.svg PIXELS ICON.png\n", stderr);
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[3]);
    const int pixels = QByteArray(argv[2]).toInt();
    QSvgRenderer icon(QString::fromLocal8Bit(argv[1]));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    if (!icon.isValid() || !image.save(path)) {
        std::fprintf(stderr, "%s cannot be made of %s\n", argv[3], argv[1]);
        return 1;
    }
    return 0;
}
