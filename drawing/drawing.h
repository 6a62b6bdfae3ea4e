#pragma once

#include "folders.h"
#include "library_versions.h"
#include "result.h"

#include <QByteArray>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

// Pages and texts, drawn for what the user is shown. cairo, Pango and fontconfig do it in
// a library that library() opens with its first call, so that no window waits for them.
namespace kelvo::drawing {

// Each from 0 to 1.
struct Color
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1; // 1: nothing shows through
};

// A face of an installed font file, TrueType or OpenType.
struct Font
{
    QString postScriptName;
    QString path;
    int index = 0;         // of the face in its file
    QString family, style; // in the user's language where the font has it: "DejaVu Sans", "Bold"
};

inline constexpr double largestText = 10'000; // points; cairo can place 8 million

struct TextStyle
{
    QString fontName; // as findFont() takes it; the desktop's sans serif where it is unknown
    double size = 12; // points, up to largestText; what is more or less is taken as the nearest
    Color color;
    double angle = 0;    // degrees, counter-clockwise about the origin
    bool isBold = false; // the bold face of the font's family
};

// The longest side of a page, in points: 200 inches, what PDF readers take.
inline constexpr double longestSide = 14'400;

// Pixels: 32 bits each in the machine's order, alpha in the highest 8, colors multiplied
// by it; rows from the top without gaps.
struct Picture
{
    QSize size;       // pixels
    QByteArray bytes; // 4 * width * height
    bool isNull() const { return size.isEmpty(); }
};

// Takes the next bytes of a PDF; false when they are lost.
using Writer = std::function<bool(const char *bytes, std::size_t count)>;

// A line of a wrapped text.
struct TextLine
{
    double ascent = 0, descent = 0; // points above and below the baseline, of its tallest font
    QString missingCharacters;      // that no installed font has, each once; they are left out
    friend bool operator==(const TextLine &, const TextLine &) = default;
};

// A text on its way onto a page, line by line. Lines break between words, within a word that
// alone is too wide, and at the text's own breaks: line and form feeds, carriage returns and
// the separators of Unicode. A break at the end begins no further line. Only what is asked for
// is laid out. For one thread at a time.
class WrappedText
{
public:
    virtual ~WrappedText() = default;

    // The line after the one that it gave last; none after the last. An empty line is as high
    // as one of the style's font.
    virtual std::optional<TextLine> nextLine() = 0;

    // Draws that line, with its left end, also of one that runs from right to left, at
    // `origin`, on the baseline.
    virtual void drawLine(const QPointF &origin) = 0;
};

// A page that is being drawn. Lengths are points; x and y count from the lower left
// corner to the right and up. For one thread at a time.
class Page
{
public:
    virtual ~Page() = default;

    // Of all that is drawn from now on, from 0 to 1, beside the colors' own; 1 at first.
    virtual void setOpacity(double opacity) = 0;

    virtual void fill(const Color &color) = 0; // all of the page

    // The picture, stretched to `rectangle`, which may reach beyond the page. A null one draws
    // nothing.
    virtual void drawPicture(const Picture &picture, const QRectF &rectangle) = 0;

    // The text's origin, where its first baseline begins, comes to lie on `origin`. A
    // line break begins another line.
    virtual void drawText(const QString &text, const TextStyle &style, const QPointF &origin) = 0;

    // A text in lines at most `width` points wide, to be drawn before the page is finished. One
    // character stands on a line also where it is wider. The style's angle is not looked at.
    virtual std::unique_ptr<WrappedText> wrapText(const QString &text, const TextStyle &style,
                                                  double width) = 0;

    // Ends the page: the writer has had all of a PDF of one page. The last call; NotWritable,
    // with cairo's reason, when something could not be drawn or was lost.
    virtual Result<void> finish() = 0;
};

// All calls can come on any thread.
class Library
{
public:
    // Of exactly that PostScript name; else, where the name is one of Arial, Times New Roman
    // or Courier New, the Liberation font whose letters are as wide; else none.
    virtual std::optional<Font> findFont(const QString &postScriptName) const = 0;

    // The faces that findFont() finds by their own names, those that Type 42 can carry and
    // others, by family and style; each PostScript name once.
    virtual std::vector<Font> fonts() const = 0;

    // What the ink of `text` covers, in points from the text's origin to the right and
    // *down*: top() is above the baseline and mostly negative. A text that is turned is
    // covered by the upright rectangle around its turned one. Null without ink.
    virtual QRectF inkBounds(const QString &text, const TextStyle &style) const = 0;

    // A page without anything on it, as a PDF for `writer`; OutOfRange where a side is not
    // above 0, or above longestSide.
    Result<std::unique_ptr<Page>> beginPage(const QSizeF &size, Writer writer) const;

    virtual LibraryVersions versions() const = 0; // of what is behind it

protected:
    ~Library() = default; // lives in its library

private:
    virtual std::unique_ptr<Page> makePage(const QSizeF &size, Writer writer) const = 0;
};

// The library in `folder`, opened when it is not yet and never closed; for any thread.
// NotFound, NotReadable (something that it needs is missing) or Damaged (of another version)
// say the file and what to do; the next call looks again.
Result<const Library *> library(const QString &folder = libraryFolder());

// The first page of a PDF that a Page wrote, fitted into `pixels`, of which at most
// limits::drawnSide along either side are taken, on white paper or on nothing; a null one where
// there are none. Damaged where it cannot be drawn; else errors as of library(), which this
// opens another one beside. Any thread. Not for documents of others: those are read by a
// program of its own (page_drawing.h).
Result<Picture> showPdf(const QByteArray &pdf, const QSize &pixels, bool isOnWhite,
                        const QString &folder = libraryFolder());

// The versions of cairo, Pango, poppler and what else draws; opens what library() and showPdf()
// do. What cannot be opened is not among them.
LibraryVersions libraryVersions(const QString &folder = libraryFolder());

} // namespace kelvo::drawing
