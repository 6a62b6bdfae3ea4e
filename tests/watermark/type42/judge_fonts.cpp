// Judges the Type 42 programs of fonts: Ghostscript loads each and shows every glyph that has a
// name, and FreeType draws the same glyphs from the font itself, by number.
//
//   judge_fonts FILE...
//
// A line for each font, and one for each fault; the status is 1 where there is one. Members of
// collections are fonts of their own. Fonts without TrueType outlines are left out, and said.

#include "glyph_names.h"
#include "true_type.h"
#include "type42.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace kelvo;
using namespace Qt::StringLiterals;

namespace {

constexpr int kEm = 64;   // pixels
constexpr int kCell = 96; // pixels; glyphs may lie upon their neighbours, on both sides alike
constexpr int kColumns = 20;
constexpr int kPageGlyphs = kColumns * kColumns;
constexpr int kPagePixels = kColumns * kCell; // on each side of a page
constexpr int kOriginX = 16, kOriginY = 32;   // of a glyph, from its cell's lower left corner
constexpr qsizetype kLongestString = 65535;

// How far a pixel may be from all shades around it in the other picture. Ghostscript has 17
// shades, and its outlines are rounded otherwise: of 100,000 glyphs that are the same the
// farthest is at 56. Another glyph, or a point moved by a pixel, is beyond 200.
constexpr int kAntialiasing = 112;

const QString kFontName = u"Judged"_s;

struct FaceClose
{
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using Face = std::unique_ptr<FT_FaceRec, FaceClose>;

// ---- what the font says, as FreeType reads it

Face openFace(FT_Library library, const QByteArray &font)
{
    FT_Face face = nullptr;
    const auto *bytes = reinterpret_cast<const FT_Byte *>(font.constData());
    if (FT_New_Memory_Face(library, bytes, FT_Long(font.size()), 0, &face) != 0)
        return nullptr;
    FT_Set_Pixel_Sizes(face, kEm, kEm);
    return Face(face);
}

// The glyph that each name stands for: the first, and .notdef for glyph 0.
QMap<QByteArray, FT_UInt> glyphsByName(FT_Face face)
{
    QMap<QByteArray, FT_UInt> glyphs{{".notdef", 0}};
    const auto *post = static_cast<TT_Postscript *>(FT_Get_Sfnt_Table(face, FT_SFNT_POST));
    if (!post || post->FormatType != 0x00020000)
        return glyphs;
    char name[256];
    for (FT_UInt glyph = 1; glyph < FT_UInt(face->num_glyphs); ++glyph) {
        if (FT_Get_Glyph_Name(face, glyph, name, sizeof name) == 0 && !glyphs.contains(name))
            glyphs.insert(name, glyph);
    }
    return glyphs;
}

// Where glyphs begin in 'glyf', and where the last one ends.
QList<qsizetype> locations(FT_Face face)
{
    const auto *head = static_cast<TT_Header *>(FT_Get_Sfnt_Table(face, FT_SFNT_HEAD));
    FT_ULong size = 0;
    FT_Load_Sfnt_Table(face, TTAG_loca, 0, nullptr, &size);
    QByteArray loca(qsizetype(size), '\0');
    FT_Load_Sfnt_Table(face, TTAG_loca, 0, reinterpret_cast<FT_Byte *>(loca.data()), &size);
    QList<qsizetype> places;
    if (head->Index_To_Loc_Format == 0) {
        for (qsizetype i = 0; i + 2 <= loca.size(); i += 2)
            places << 2 * qsizetype(qFromBigEndian<quint16>(loca.constData() + i));
    } else {
        for (qsizetype i = 0; i + 4 <= loca.size(); i += 4)
            places << qFromBigEndian<quint32>(loca.constData() + i);
    }
    return places;
}

// ---- pages of glyphs

using Page = QByteArray; // kPagePixels rows of as many; 0 is black

const Page kBlankPage(qsizetype(kPagePixels) * kPagePixels, '\xff');

int shadeAt(const Page &page, int x, int y)
{
    return uchar(page[qsizetype(y) * kPagePixels + x]);
}

struct Place
{
    int page, x, y; // of a glyph's origin, in pixels from the lower left
};

Place placeOf(qsizetype index)
{
    const int onPage = int(index % kPageGlyphs);
    return {int(index / kPageGlyphs), onPage % kColumns * kCell + kOriginX,
            onPage / kColumns * kCell + kOriginY};
}

// Black ink on what is there.
void drawGlyph(Page &page, FT_Face face, FT_UInt glyph, Place place)
{
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP | FT_LOAD_RENDER) != 0)
        return;
    const FT_Bitmap &ink = face->glyph->bitmap;
    const int left = place.x + face->glyph->bitmap_left;
    const int top = kPagePixels - place.y - face->glyph->bitmap_top;
    char *pixels = page.data();
    for (int row = std::max(0, -top); row < int(ink.rows) && top + row < kPagePixels; ++row) {
        for (int i = std::max(0, -left); i < int(ink.width) && left + i < kPagePixels; ++i) {
            char &pixel = pixels[qsizetype(top + row) * kPagePixels + left + i];
            pixel = char(uchar(pixel) * (255 - ink.buffer[row * ink.pitch + i]) / 255);
        }
    }
}

Page drawPage(FT_Face face, const QList<FT_UInt> &glyphs, int number)
{
    Page page = kBlankPage;
    const qsizetype end = std::min<qsizetype>(glyphs.size(), (number + 1) * kPageGlyphs);
    for (qsizetype i = number * kPageGlyphs; i < end; ++i)
        drawGlyph(page, face, glyphs[i], placeOf(i));
    return page;
}

// How far a pixel of `page` is from the shades at and around it in `other`.
int distanceAt(const Page &page, const Page &other, int x, int y)
{
    int darkest = 255, lightest = 0;
    for (int row = std::max(0, y - 1); row <= std::min(kPagePixels - 1, y + 1); ++row) {
        for (int i = std::max(0, x - 1); i <= std::min(kPagePixels - 1, x + 1); ++i) {
            darkest = std::min(darkest, shadeAt(other, i, row));
            lightest = std::max(lightest, shadeAt(other, i, row));
        }
    }
    const int shade = shadeAt(page, x, y);
    return std::max({0, darkest - shade, shade - lightest});
}

// The glyphs, by their place on the page, that look otherwise; the greatest distance of all.
struct Differences
{
    QList<int> places;
    int greatest = 0;
};

Differences compare(const Page &page, const Page &other)
{
    Differences found;
    for (qsizetype i = 0; i < page.size(); ++i) {
        if (std::abs(uchar(page[i]) - uchar(other[i])) <= found.greatest)
            continue;
        const int x = int(i % kPagePixels), y = int(i / kPagePixels);
        const int distance = std::max(distanceAt(page, other, x, y), distanceAt(other, page, x, y));
        if (distance <= kAntialiasing) {
            found.greatest = std::max(found.greatest, distance);
            continue;
        }
        const int place = (kPagePixels - 1 - y) / kCell * kColumns + x / kCell;
        if (!found.places.contains(place))
            found.places << place;
    }
    return found;
}

// ---- the program, as Ghostscript reads it

// What is said of the font, a line "NAME VALUE" each, and its glyphs in their places.
QByteArray driverFor(const QString &program, const QList<QByteArray> &names)
{
    QByteArray driver =
        '(' + QFile::encodeName(program) + ") run\n/F /" + kFontName.toUtf8() + R"( findfont def
/say { print ( ) print = } bind def
F /FontType get (FontType) say
F /CharStrings get length (CharStrings) say
F /CharStrings get /.notdef known (HasNotdef) say
0 1 255 {
  dup StandardEncoding exch get F /CharStrings get 1 index known not { pop /.notdef } if
  1 index F /Encoding get exch get ne { (WrongCode) say } { pop } ifelse
} for
F /sfnts get { length (String) say } forall
)";
    const auto number = [](int value) { return QByteArray::number(value); };
    driver += "<< /PageSize [" + number(kPagePixels) + ' ' + number(kPagePixels)
        + "] >> setpagedevice\nF " + number(kEm) + " scalefont setfont\n";
    for (qsizetype i = 0; i < names.size(); ++i) {
        const Place place = placeOf(i);
        if (i > 0 && i % kPageGlyphs == 0)
            driver += "showpage\n";
        driver += number(place.x) + ' ' + number(place.y) + " moveto /" + postScriptName(names[i])
            + " glyphshow\n";
    }
    return driver + "showpage\n";
}

// Ghostscript at work on a program: pages one after the other, then what it said.
class Ghostscript
{
public:
    Ghostscript(const QByteArray &program, const QList<QByteArray> &names)
    {
        const QString programFile = m_folder.filePath(u"font.t42"_s);
        const QString driverFile = m_folder.filePath(u"driver.ps"_s);
        write(programFile, program);
        write(driverFile, driverFor(programFile, names));
        m_process.start(u"gs"_s,
                        {u"-q"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s, u"-dSAFER"_s,
                         u"--permit-file-read="_s + m_folder.path() + u'/', u"-sDEVICE=pgmraw"_s,
                         u"-r72"_s, u"-dTextAlphaBits=4"_s, u"-dGridFitTT=0"_s,
                         u"-sstdout=%stderr"_s, u"-sOutputFile=-"_s, driverFile});
    }

    // Empty where there is none.
    Page readPage()
    {
        const QByteArray headerEnd = "\n255\n";
        while (!m_pages.contains(headerEnd) && m_process.waitForReadyRead(kPatience))
            m_pages += m_process.readAllStandardOutput();
        const qsizetype begin = m_pages.indexOf(headerEnd) + headerEnd.size();
        while (m_pages.size() - begin < kBlankPage.size() && m_process.waitForReadyRead(kPatience))
            m_pages += m_process.readAllStandardOutput();
        if (m_pages.size() - begin < kBlankPage.size())
            return {};
        const Page page = m_pages.mid(begin, kBlankPage.size());
        m_pages.remove(0, begin + page.size());
        return page;
    }

    // The values by name, or what it said instead.
    Result<QMultiMap<QByteArray, QByteArray>> finish()
    {
        const bool ended = m_process.waitForFinished(kPatience);
        const QByteArray text = m_process.readAllStandardError();
        if (!ended || m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0)
            return Error{Error::Code::Refused, u"Ghostscript"_s,
                         QString::fromUtf8(text.right(2000)) + m_process.errorString()};
        QMultiMap<QByteArray, QByteArray> said;
        for (const QByteArray &line : text.split('\n')) {
            const qsizetype blank = line.indexOf(' ');
            if (blank > 0)
                said.insert(line.first(blank), line.mid(blank + 1));
        }
        return said;
    }

private:
    static constexpr int kPatience = 120'000; // ms

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }

    QTemporaryDir m_folder;
    QProcess m_process;
    QByteArray m_pages;
};

// ---- the judge

class Judge
{
public:
    Judge() { FT_Init_FreeType(&m_library); }
    ~Judge() { FT_Done_FreeType(m_library); }
    Judge(const Judge &) = delete;
    Judge &operator=(const Judge &) = delete;

    void judgeFile(const QString &path)
    {
        m_font = QFileInfo(path).fileName();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return fault(file.errorString());
        const QByteArray bytes = file.readAll();
        if (!bytes.startsWith("ttcf"))
            return judgeFont(bytes);
        const auto members = int(qFromBigEndian<quint32>(bytes.constData() + 8));
        for (int i = 0; i < members; ++i) {
            m_font = QFileInfo(path).fileName() + u" (%1)"_s.arg(i);
            const auto font = sfntOfMember(bytes, i);
            if (font)
                judgeFont(font.value());
            else
                fault(font.reason());
        }
    }

    int fonts() const { return m_fonts; }
    int faults() const { return m_faults; }

private:
    void say(const QString &text) const
    {
        std::printf("%s: %s\n", qPrintable(m_font), qPrintable(text));
        std::fflush(stdout);
    }

    void fault(const QString &text)
    {
        ++m_faults;
        say(u"FAULT: "_s + text);
    }

    void judgeFont(const QByteArray &font)
    {
        if (!hasTrueTypeOutlines(font))
            return say(u"left out: no TrueType outlines"_s);
        const Face face = openFace(m_library, font);
        if (!face)
            return fault(u"FreeType does not open it"_s);
        ++m_fonts;
        QByteArray program;
        const auto converted = convertTTFtoPS42(font, kFontName, program);
        if (!converted)
            return fault(converted.reason());
        const QMap<QByteArray, FT_UInt> glyphs = glyphsByName(face.get());
        Ghostscript ghostscript(program, glyphs.keys());
        const int distance = comparePages(ghostscript, face.get(), glyphs);
        const auto said = ghostscript.finish();
        if (!said)
            return fault(said.reason());
        judgeProgram(said.value(), program, face.get(), glyphs.size());
        judgeStrings(said.value(), program, font, face.get());
        say(u"%1 of %2 glyphs shown, distance %3, %4 strings"_s.arg(
            QString::number(glyphs.size()), QString::number(face->num_glyphs),
            QString::number(distance), QString::number(said.value().count("String"))));
    }

    int comparePages(Ghostscript &ghostscript, FT_Face face,
                     const QMap<QByteArray, FT_UInt> &glyphs)
    {
        const QList<QByteArray> names = glyphs.keys();
        const QList<FT_UInt> numbers = glyphs.values();
        int greatest = 0;
        for (int page = 0; page * kPageGlyphs < numbers.size(); ++page) {
            const Page shown = ghostscript.readPage();
            if (shown.isEmpty()) {
                fault(u"Ghostscript ends before page %1"_s.arg(page + 1));
                break;
            }
            const Differences found = compare(drawPage(face, numbers, page), shown);
            greatest = std::max(greatest, found.greatest);
            for (const int place : found.places) {
                const qsizetype at = page * kPageGlyphs + place;
                const QByteArray name = at < names.size() ? names[at] : "a neighbour of the last";
                fault(u"%1 looks otherwise"_s.arg(QString::fromUtf8(name)));
            }
        }
        return greatest;
    }

    void judgeProgram(const QMultiMap<QByteArray, QByteArray> &said, const QByteArray &program,
                      FT_Face face, qsizetype names)
    {
        if (said.value("FontType") != "42")
            fault(u"FontType is %1"_s.arg(QString::fromUtf8(said.value("FontType"))));
        if (said.value("CharStrings") != QByteArray::number(names))
            fault(u"%1 entries in CharStrings, not %2"_s.arg(
                QString::fromUtf8(said.value("CharStrings")), QString::number(names)));
        if (said.value("HasNotdef") != "true")
            fault(u".notdef is missing"_s);
        for (const QByteArray &code : said.values("WrongCode"))
            fault(u"code %1 is encoded otherwise"_s.arg(QString::fromUtf8(code)));
        if (!program.contains("/CharStrings " + QByteArray::number(qlonglong(face->num_glyphs))
                              + " dict dup begin\n"))
            fault(u"the number written is not %1"_s.arg(face->num_glyphs));
    }

    // The strings of the text are the font's bytes; Ghostscript says how long it took them for.
    void judgeStrings(const QMultiMap<QByteArray, QByteArray> &said, const QByteArray &program,
                      const QByteArray &font, FT_Face face)
    {
        QByteArray bytes;
        QList<qsizetype> ends;
        const qsizetype begin = program.indexOf("/sfnts [\n");
        const qsizetype end = program.indexOf("] def", begin);
        for (const QByteArray &text : program.mid(begin, end - begin).split('<').mid(1)) {
            const QByteArray string = QByteArray::fromHex(text.first(text.indexOf('>')));
            if (string.size() > kLongestString || !string.endsWith('\0'))
                fault(u"a string of %1 bytes"_s.arg(string.size()));
            if (!said.contains("String", QByteArray::number(string.size())))
                fault(u"Ghostscript has no string of %1 bytes"_s.arg(string.size()));
            bytes += string.chopped(1);
            ends << bytes.size();
        }
        if (ends.size() != said.count("String"))
            fault(u"Ghostscript has %1 strings, not %2"_s.arg(QString::number(said.count("String")),
                                                              QString::number(ends.size())));
        if (bytes != font)
            fault(u"the strings are not the font"_s);
        ends.removeLast();
        const qsizetype glyf = find_table("glyf", sfntDirectory(font))->data() - font.data();
        const QList<qsizetype> places = locations(face);
        for (const qsizetype stringEnd : ends) {
            const qsizetype at = stringEnd - glyf;
            const auto next = std::upper_bound(places.begin(), places.end(), at);
            if (next != places.begin() && next != places.end() && *(next - 1) != at)
                fault(u"the string that ends at %1 splits a glyph"_s.arg(stringEnd));
        }
    }

    FT_Library m_library = nullptr;
    QString m_font; // which is judged
    int m_fonts = 0, m_faults = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Judge judge;
    for (const QString &path : QCoreApplication::arguments().mid(1))
        judge.judgeFile(path);
    std::printf("%d fonts, %d faults\n", judge.fonts(), judge.faults());
    return judge.fonts() > 0 && judge.faults() == 0 ? 0 : 1;
}
