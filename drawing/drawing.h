#pragma once

#include "folders.h"
#include "result.h"

#include <QByteArray>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>

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
    int index = 0; // of the face in its file
};

inline constexpr double largestText = 10'000; // points; cairo can place 8 million

struct TextStyle
{
    QString fontName; // as findFont() takes it; the desktop's sans serif where it is unknown
    double size = 12; // points, up to largestText; what is more or less is taken as the nearest
    Color color;
    double angle = 0; // degrees, counter-clockwise about the origin
};

// The longest side of a page, in points: 200 inches, what PDF readers take.
inline constexpr double longestSide = 14'400;

// A page that is being drawn. Lengths are points; x and y count from the lower left
// corner to the right and up. For one thread at a time.
class Page
{
public:
    virtual ~Page() = default;

    // The text's origin, where its first baseline begins, comes to lie on `origin`. A
    // line break begins another line.
    virtual void drawText(const QString &text, const TextStyle &style, const QPointF &origin) = 0;

    // Ends the page: a PDF of one page. The last call; NotWritable, with cairo's reason,
    // when something could not be drawn.
    virtual Result<QByteArray> finish() = 0;
};

// All calls can come on any thread.
class Library
{
public:
    // Of exactly that PostScript name; else, where the name is one of Arial, Times New Roman
    // or Courier New, the Liberation font whose letters are as wide; else none.
    virtual std::optional<Font> findFont(const QString &postScriptName) const = 0;

    // What the ink of `text` covers, in points from the text's origin to the right and
    // *down*: top() is above the baseline and mostly negative. A text that is turned is
    // covered by the upright rectangle around its turned one. Null without ink.
    virtual QRectF inkBounds(const QString &text, const TextStyle &style) const = 0;

    // A page without anything on it; OutOfRange where a side is not above 0, or above
    // longestSide.
    Result<std::unique_ptr<Page>> beginPage(const QSizeF &size) const;

protected:
    ~Library() = default; // lives in its library

private:
    virtual std::unique_ptr<Page> makePage(const QSizeF &size) const = 0;
};

// The library in `folder`, opened when it is not yet and never closed; for any thread.
// NotFound, NotReadable (something that it needs is missing) or Damaged (of another version)
// say the file and what to do; the next call looks again.
Result<const Library *> library(const QString &folder = libraryFolder());

} // namespace kelvo::drawing
