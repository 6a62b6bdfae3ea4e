#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QFile;

// Pictures as pixels: drawn from their SVG masters when the program is built, in the sizes in
// which windows show them. The pixels of all masters of a folder are one file beside it, which
// is mapped: reading one costs what is copied of it, and no memory for the others.
namespace kelvo {

// A master, as it was when its pixels were drawn.
struct PixelMaster
{
    QString name;            // of its file, without folder and ending
    std::int64_t length = 0; // bytes of the file
    QSize size;              // logical pixels that it is drawn for; not empty

    // In the sizes that are in the file, each once. `pixels` are what is not wholly transparent,
    // premultiplied, at `at` of a canvas of `size` times `ratio`; null where all is transparent.
    struct Drawn
    {
        QSize size;       // logical pixels, up to 65535
        double ratio = 1; // device pixels of a logical one, in hundredths
        QPoint at;        // device pixels
        QImage pixels;    // Format_ARGB32_Premultiplied
    };
    std::vector<Drawn> drawn;
};

class PixelFile
{
public:
    // Where the pixels of the masters in `folder` are.
    static QString pathFor(const QString &folder);

    // In any order. False, and no file, where it cannot be written; a name and a number that the
    // file has no room for are bugs.
    [[nodiscard]] static bool write(const QString &path, std::vector<PixelMaster> masters);

    // Without masters where the file is missing, damaged or written by another kind of machine
    // or version: every picture can be drawn from its master.
    explicit PixelFile(const QString &path);
    ~PixelFile();
    PixelFile(const PixelFile &) = delete;
    PixelFile &operator=(const PixelFile &) = delete;

    // Of the master's file; none where its pixels were drawn before the file became what it is.
    // Images lie in the mapped file: they live no longer than this object.
    std::optional<PixelMaster> find(const QString &masterFile) const;

private:
    std::unique_ptr<QFile> m_file; // the mappings are its
    QByteArray m_index;            // all before the pixels; empty: there is nothing
    std::int64_t m_modified = 0;   // ms since 1970
};

} // namespace kelvo
