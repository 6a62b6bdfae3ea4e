// picture_sheet FOLDER FILE.png [SIZE]: all pictures of the folder with their names, each
// on a light and on a dark ground, SIZE pixels high (48). docs/pictures/pictures.png is
// made by it.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kColumns = 12;                           // as many as paper has colors
constexpr int kGap = 6, kHeading = 24, kNameLine = 12; // pixels
constexpr int kNameLines = 2;
constexpr int kFamily = 6; // as many pictures that begin alike have a heading of their own
const QColor kSheet(0xd8, 0xdc, 0xe0), kLight(0xfa, 0xfa, 0xfa), kDark(0x2b, 0x2e, 0x32);

// What names may have in common, longest first: each part of them that ends in _ or -.
QStringList prefixes(const QStringList &names)
{
    QStringList all;
    for (const QString &name : names) {
        for (qsizetype n = 0; n < name.size(); ++n) {
            if (name[n] == u'_' || name[n] == u'-')
                all << name.first(n + 1);
        }
    }
    all.removeDuplicates();
    std::ranges::stable_sort(all, std::ranges::greater(), &QString::size);
    return all;
}

// By what their names have in common; the rest of their names.
QMap<QString, QStringList> families(QStringList names)
{
    QMap<QString, QStringList> found;
    const auto take = [&](const QString &prefix) {
        QStringList rest;
        for (const QString &name : names) {
            if (name.startsWith(prefix))
                found[prefix] << name.sliced(prefix.size());
            else
                rest << name;
        }
        names = rest;
    };
    for (const QString &prefix : prefixes(names)) {
        const auto begins = [&](const QString &name) { return name.startsWith(prefix); };
        if (std::ranges::count_if(names, begins) >= kFamily)
            take(prefix);
    }
    while (!names.isEmpty())
        take(names.first().section(u'_', 0, 0, QString::SectionIncludeTrailingSep));
    return found;
}

// The picture, as large as fits.
void drawPicture(QPainter &painter, const QString &file, const QRect &place)
{
    QSvgRenderer renderer(file);
    QSizeF size = renderer.defaultSize();
    size.scale(place.size(), Qt::KeepAspectRatio);
    QRectF fitted({}, size);
    fitted.moveCenter(QRectF(place).center());
    renderer.render(&painter, fitted);
}

void useFont(QPainter &painter, int pixels, bool bold)
{
    QFont font = painter.font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    painter.setFont(font);
}

class Sheet
{
public:
    Sheet(QString folder, int size)
        : m_folder(std::move(folder))
        , m_tile(size * 4 / 3 + kGap, size + kGap) // most are square, the widest 4 : 3
    {
    }

    QImage draw(const QMap<QString, QStringList> &families) const
    {
        int height = kGap;
        for (const QStringList &names : families)
            height += kHeading + rows(names) * step().height();
        QImage image(kColumns * step().width() + kGap, height, QImage::Format_RGB32);
        image.fill(kSheet);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        int top = kGap;
        for (auto family = families.begin(); family != families.end(); ++family) {
            useFont(painter, 13, true);
            painter.drawText(QRect(kGap, top, image.width(), kHeading), Qt::AlignVCenter,
                             family.key() + u'\u2026');
            useFont(painter, 9, false);
            const QPoint corner(kGap, top + kHeading);
            for (int n = 0; n < family->size(); ++n) {
                const QPoint place(n % kColumns * step().width(), n / kColumns * step().height());
                drawCell(painter, corner + place, family.key(), family->at(n));
            }
            top += kHeading + rows(*family) * step().height();
        }
        return image;
    }

private:
    static int rows(const QStringList &names)
    {
        return (static_cast<int>(names.size()) + kColumns - 1) / kColumns;
    }

    // From one cell to the next: two tiles and the name below them.
    QSize step() const
    {
        return {2 * m_tile.width() + kGap, m_tile.height() + kNameLines * kNameLine + kGap};
    }

    // What lies over another picture is shown there, for it is hardly seen without.
    QStringList layersOf(const QString &name) const
    {
        QStringList names{name};
        if (name.startsWith(u"Paper_Overlay-")) {
            const QString sheet = name.endsWith(u"Reloaded") ? QStringLiteral("Reloaded")
                : name.endsWith(u"Envelope")                 ? QStringLiteral("Envelope")
                                                             : QStringLiteral("Plain");
            names.prepend(QStringLiteral("Paper_%1-White").arg(sheet));
        } else if (name.startsWith(u"Device_") && name != u"Device_Base") {
            names = {QStringLiteral("Device_Base"), QStringLiteral("Device_Finisher"), name};
        }
        return names;
    }

    void drawCell(QPainter &painter, QPoint corner, const QString &family,
                  const QString &name) const
    {
        QRect tile(corner, m_tile);
        for (const QColor &ground : {kLight, kDark}) {
            painter.fillRect(tile, ground);
            for (const QString &layer : layersOf(family + name))
                drawPicture(painter, QStringLiteral("%1/%2.svg").arg(m_folder, layer),
                            tile.adjusted(kGap / 2, kGap / 2, -kGap / 2, -kGap / 2));
            tile.translate(m_tile.width(), 0);
        }
        painter.drawText(QRect(corner.x(), corner.y() + m_tile.height(), 2 * m_tile.width(),
                               kNameLines * kNameLine),
                         Qt::AlignHCenter | Qt::TextWrapAnywhere, name);
    }

    QString m_folder;
    QSize m_tile;
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const int size = argc == 4 ? QByteArray(argv[3]).toInt() : 48;
    if (argc < 3 || argc > 4 || size < 1) {
        std::fprintf(stderr, "usage: picture_sheet FOLDER FILE.png [SIZE]\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QStringList names = QDir(folder).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    if (names.isEmpty()) {
        std::fprintf(stderr, "picture_sheet: %s: no pictures\n", argv[1]);
        return 1;
    }
    names.replaceInStrings(QStringLiteral(".svg"), QString());
    if (Sheet(folder, size).draw(families(names)).save(QString::fromLocal8Bit(argv[2])))
        return 0;
    std::fprintf(stderr, "picture_sheet: %s: cannot be written\n", argv[2]);
    return 1;
}
