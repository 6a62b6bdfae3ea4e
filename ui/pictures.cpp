#include "pictures.h"

#include "folders.h"
#include "master_drawing.h"
#include "part_library.h"
#include "pixel_file.h"
#include "terminal.h"

#include <QApplication>
#include <QFileInfo>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

namespace kelvo {

namespace {

constexpr PartLibrary masterDrawingLibrary = {
    masterDrawingLibraryName,
    masterDrawingEntry,
    "Drawing",
    QT_TRANSLATE_NOOP("Drawing",
                      "this part that draws is not installed beside the "
                      "program’s libraries; install kelvo-print anew"),
    QT_TRANSLATE_NOOP("Drawing",
                      "this part that draws cannot be loaded (%1); install "
                      "kelvo-print anew, with the packages that it needs"),
    QT_TRANSLATE_NOOP("Drawing",
                      "this is not the part that draws of kelvo-print %1; "
                      "install kelvo-print anew")};

// Null, and said once, where it cannot be opened: windows can be used without pictures.
const MasterDrawing *masterDrawing()
{
    static const MasterDrawing *const drawing = []() -> const MasterDrawing * {
        const auto opened = openPart<MasterDrawing>(masterDrawingLibrary, libraryFolder());
        if (!opened)
            printLine(stderr, QStringLiteral("kelvo-print: ") + opened.error().text());
        return opened ? opened.value() : nullptr;
    }();
    return drawing;
}

const PixelFile &pixelsBeside(const QString &folder)
{
    // Never destroyed, nor the files unmapped: pictures are shown until the very end.
    static auto &files = *new QHash<QString, const PixelFile *>;
    const PixelFile *&file = files[folder];
    if (!file)
        file = new PixelFile(PixelFile::pathFor(folder));
    return *file;
}

// A master: what its size is, and what of it is drawn already. Looked at once and kept.
struct Picture
{
    QSize size; // empty: missing, or no picture
    std::vector<PixelMaster::Drawn> drawn;
};

const Picture &pictureOf(const QString &file)
{
    static QHash<QString, std::shared_ptr<const Picture>> pictures;
    std::shared_ptr<const Picture> &picture = pictures[file];
    if (picture)
        return *picture;
    if (auto master = pixelsBeside(QFileInfo(file).path()).find(file))
        picture = std::make_shared<Picture>(Picture{master->size, std::move(master->drawn)});
    else
        picture = std::make_shared<Picture>(
            Picture{masterDrawing() ? masterDrawing()->sizeOf(file) : QSize(), {}});
    return *picture;
}

// As the build has drawn it; null where it has not.
QImage storedPicture(const Picture &picture, const QSize &size, double ratio)
{
    const auto isWanted = [&](const PixelMaster::Drawn &each) {
        return each.size == size && qFuzzyCompare(each.ratio, ratio);
    };
    const auto found = std::ranges::find_if(picture.drawn, isWanted);
    if (found == picture.drawn.end())
        return {};
    QImage canvas(size * ratio, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(found->at, found->pixels);
    painter.end();
    canvas.setDevicePixelRatio(ratio);
    return canvas;
}

QImage drawnImage(const QStringList &files, const QSize &size, double ratio)
{
    QStringList readable = files;
    readable.removeIf([](const QString &file) { return pictureOf(file).size.isEmpty(); });
    QImage image;
    // One upon the other, soft edges mix before they are rounded: such are drawn together.
    if (readable.size() == 1)
        image = storedPicture(pictureOf(readable.front()), size, ratio);
    if (image.isNull() && !readable.isEmpty() && masterDrawing())
        image = masterDrawing()->draw(readable, size, ratio);
    if (!image.isNull())
        return image;
    image = QImage(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

// A master as an icon: drawn in each size that is asked for, and in other modes as the style does
// it with every icon.
class MasterIcon : public QIconEngine
{
public:
    explicit MasterIcon(const QString &file)
        : m_file(file)
    {
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QSize fitted = pictureOf(m_file).size.scaled(size, Qt::KeepAspectRatio);
        if (pictureOf(m_file).size.isEmpty() || fitted.isEmpty())
            return {};
        if (m_drawn.size() != fitted)
            m_drawn = QPixmap::fromImage(drawnImage({m_file}, fitted, 1));
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, m_drawn, &option);
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        return pictureOf(m_file).size.scaled(size, Qt::KeepAspectRatio);
    }

    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(area, pixmap(area.size() * ratio, mode, state));
    }

    QIconEngine *clone() const override { return new MasterIcon(*this); }

private:
    QString m_file;
    QPixmap m_drawn; // as it was asked for last
};

} // namespace

QString pictureFile(const QString &resourcesPath, const QString &name)
{
    // A name can come from a PPD, and is never a path.
    if (name.isEmpty() || name.contains(u'/') || name.startsWith(u'.'))
        return {};
    const QString path =
        QStringLiteral("%1/pictures/%2.svg").arg(resourcesPath, QFileInfo(name).completeBaseName());
    return QFileInfo(path).isFile() ? path : QString();
}

QIcon pictureIcon(const QString &resourcesPath, const QString &name)
{
    const QString file = pictureFile(resourcesPath, name);
    return file.isEmpty() || pictureOf(file).size.isEmpty() ? QIcon() : iconOf(file);
}

QIcon iconOf(const QString &file)
{
    return file.isEmpty() ? QIcon() : QIcon(new MasterIcon(file));
}

QSize pictureSize(const QStringList &files)
{
    for (const QString &file : files) {
        if (const QSize size = pictureOf(file).size; !size.isEmpty())
            return size;
    }
    return {};
}

QPixmap drawnPictures(const QStringList &files, const QSize &size, double ratio)
{
    return QPixmap::fromImage(drawnImage(files, size, ratio));
}

QImage drawnPart(const QString &file, const QRectF &part, const QSize &pixels, Edges edges)
{
    if (masterDrawing())
        return masterDrawing()->drawPart(file, part, pixels, edges == Edges::Soft);
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

} // namespace kelvo
