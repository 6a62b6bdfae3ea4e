#include "standard_words.h"

#include "texts.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace kelvo {

namespace {

struct WordsRow
{
    const char *option; // of the choice; empty: the row is an option's
    const char *name;   // of the option, or the choice as IPP writes it; %1 stands for a number
    const char *words;
};
// clang-format off
constexpr WordsRow rows[] = {
    {"", "Duplex", QT_TRANSLATE_NOOP("StandardWords", "Two-sided printing")},
    {"", "ColorModel", QT_TRANSLATE_NOOP("StandardWords", "Color")},
    {"", "InputSlot", QT_TRANSLATE_NOOP("StandardWords", "Paper source")},
    {"", "MediaType", QT_TRANSLATE_NOOP("StandardWords", "Paper type")},
    {"", "PageSize", QT_TRANSLATE_NOOP("StandardWords", "Paper size")},
    {"", "cupsPrintQuality", QT_TRANSLATE_NOOP("StandardWords", "Print quality")},
    {"", "OutputBin", QT_TRANSLATE_NOOP("StandardWords", "Output destination")},
    {"", "Resolution", QT_TRANSLATE_NOOP("StandardWords", "Resolution")},
    {"", "print-content-optimize", QT_TRANSLATE_NOOP("StandardWords", "Optimize for")},
    {"", "StapleLocation", QT_TRANSLATE_NOOP("StandardWords", "Stapling")},
    {"", "PunchMedia", QT_TRANSLATE_NOOP("StandardWords", "Hole punch")},
    {"", "FoldType", QT_TRANSLATE_NOOP("StandardWords", "Folding")},
    {"", "CutMedia", QT_TRANSLATE_NOOP("StandardWords", "Trimming")},
    {"", "BindType", QT_TRANSLATE_NOOP("StandardWords", "Binding")},
    {"", "OtherFinishing", QT_TRANSLATE_NOOP("StandardWords", "Other finishing")},
    {"", "cupsFinishingTemplate", QT_TRANSLATE_NOOP("StandardWords", "Finishing preset")},
    {"", "Finishing", QT_TRANSLATE_NOOP("StandardWords", "Finishing")},
    // Duplex
    {"Duplex", "none", QT_TRANSLATE_NOOP("StandardWords", "1-sided print")},
    {"Duplex", "duplex-no-tumble", QT_TRANSLATE_NOOP("StandardWords", "2-sided print")},
    {"Duplex", "duplex-tumble", QT_TRANSLATE_NOOP("StandardWords", "2-sided print, flip on short edge")},
    // ColorModel
    {"ColorModel", "gray", QT_TRANSLATE_NOOP("StandardWords", "Black and white")},
    {"ColorModel", "rgb", QT_TRANSLATE_NOOP("StandardWords", "Color")},
    {"ColorModel", "auto", QT_TRANSLATE_NOOP("StandardWords", "Automatic")},
    {"ColorModel", "auto-monochrome", QT_TRANSLATE_NOOP("StandardWords", "Automatic, black and white")},
    {"ColorModel", "bi-level", QT_TRANSLATE_NOOP("StandardWords", "Black only, no shades")},
    {"ColorModel", "highlight", QT_TRANSLATE_NOOP("StandardWords", "Black and one color")},
    {"ColorModel", "process-bi-level", QT_TRANSLATE_NOOP("StandardWords", "Black only, mixed from colors")},
    {"ColorModel", "process-monochrome", QT_TRANSLATE_NOOP("StandardWords", "Black and white, mixed from colors")},
    {"ColorModel", "cmyk", QT_TRANSLATE_NOOP("StandardWords", "Color (CMYK)")},
    // cupsPrintQuality
    {"cupsPrintQuality", "draft", QT_TRANSLATE_NOOP("StandardWords", "Draft")},
    {"cupsPrintQuality", "normal", QT_TRANSLATE_NOOP("StandardWords", "Normal")},
    {"cupsPrintQuality", "high", QT_TRANSLATE_NOOP("StandardWords", "High")},
    // InputSlot
    {"InputSlot", "auto", QT_TRANSLATE_NOOP("StandardWords", "Automatic")},
    {"InputSlot", "main", QT_TRANSLATE_NOOP("StandardWords", "Main tray")},
    {"InputSlot", "alternate", QT_TRANSLATE_NOOP("StandardWords", "Alternate tray")},
    {"InputSlot", "alternate-roll", QT_TRANSLATE_NOOP("StandardWords", "Alternate roll")},
    {"InputSlot", "by-pass-tray", QT_TRANSLATE_NOOP("StandardWords", "Bypass tray")},
    {"InputSlot", "manual", QT_TRANSLATE_NOOP("StandardWords", "Manual feed")},
    {"InputSlot", "top", QT_TRANSLATE_NOOP("StandardWords", "Top tray")},
    {"InputSlot", "middle", QT_TRANSLATE_NOOP("StandardWords", "Middle tray")},
    {"InputSlot", "bottom", QT_TRANSLATE_NOOP("StandardWords", "Bottom tray")},
    {"InputSlot", "left", QT_TRANSLATE_NOOP("StandardWords", "Left tray")},
    {"InputSlot", "right", QT_TRANSLATE_NOOP("StandardWords", "Right tray")},
    {"InputSlot", "center", QT_TRANSLATE_NOOP("StandardWords", "Center tray")},
    {"InputSlot", "rear", QT_TRANSLATE_NOOP("StandardWords", "Rear tray")},
    {"InputSlot", "side", QT_TRANSLATE_NOOP("StandardWords", "Side tray")},
    {"InputSlot", "disc", QT_TRANSLATE_NOOP("StandardWords", "Disc tray")},
    {"InputSlot", "envelope", QT_TRANSLATE_NOOP("StandardWords", "Envelope feed")},
    {"InputSlot", "large-capacity", QT_TRANSLATE_NOOP("StandardWords", "High-capacity tray")},
    {"InputSlot", "main-roll", QT_TRANSLATE_NOOP("StandardWords", "Main roll")},
    {"InputSlot", "photo", QT_TRANSLATE_NOOP("StandardWords", "Photo tray")},
    {"InputSlot", "tray-%1", QT_TRANSLATE_NOOP("StandardWords", "Tray %1")},
    {"InputSlot", "roll-%1", QT_TRANSLATE_NOOP("StandardWords", "Roll %1")},
    // MediaType
    {"MediaType", "auto", QT_TRANSLATE_NOOP("StandardWords", "Automatic")},
    {"MediaType", "any", QT_TRANSLATE_NOOP("StandardWords", "Any")},
    {"MediaType", "other", QT_TRANSLATE_NOOP("StandardWords", "Other")},
    {"MediaType", "stationery", QT_TRANSLATE_NOOP("StandardWords", "Plain paper")},
    {"MediaType", "stationery-lightweight", QT_TRANSLATE_NOOP("StandardWords", "Thin paper")},
    {"MediaType", "stationery-heavyweight", QT_TRANSLATE_NOOP("StandardWords", "Thick paper")},
    {"MediaType", "stationery-heavyweight-coated", QT_TRANSLATE_NOOP("StandardWords", "Thick coated paper")},
    {"MediaType", "stationery-coated", QT_TRANSLATE_NOOP("StandardWords", "Coated paper")},
    {"MediaType", "stationery-inkjet", QT_TRANSLATE_NOOP("StandardWords", "Inkjet paper")},
    {"MediaType", "stationery-fine", QT_TRANSLATE_NOOP("StandardWords", "Fine paper")},
    {"MediaType", "stationery-bond", QT_TRANSLATE_NOOP("StandardWords", "Bond paper")},
    {"MediaType", "stationery-recycled", QT_TRANSLATE_NOOP("StandardWords", "Recycled paper")},
    {"MediaType", "stationery-colored", QT_TRANSLATE_NOOP("StandardWords", "Colored paper")},
    {"MediaType", "stationery-letterhead", QT_TRANSLATE_NOOP("StandardWords", "Letterhead")},
    {"MediaType", "stationery-preprinted", QT_TRANSLATE_NOOP("StandardWords", "Preprinted paper")},
    {"MediaType", "stationery-prepunched", QT_TRANSLATE_NOOP("StandardWords", "Prepunched paper")},
    {"MediaType", "stationery-cotton", QT_TRANSLATE_NOOP("StandardWords", "Cotton paper")},
    {"MediaType", "stationery-archival", QT_TRANSLATE_NOOP("StandardWords", "Archival paper")},
    {"MediaType", "cardstock", QT_TRANSLATE_NOOP("StandardWords", "Cardstock")},
    {"MediaType", "cardboard", QT_TRANSLATE_NOOP("StandardWords", "Cardboard")},
    {"MediaType", "continuous", QT_TRANSLATE_NOOP("StandardWords", "Continuous paper")},
    {"MediaType", "disc", QT_TRANSLATE_NOOP("StandardWords", "Disc")},
    {"MediaType", "envelope", QT_TRANSLATE_NOOP("StandardWords", "Envelope")},
    {"MediaType", "envelope-plain", QT_TRANSLATE_NOOP("StandardWords", "Plain envelope")},
    {"MediaType", "envelope-window", QT_TRANSLATE_NOOP("StandardWords", "Window envelope")},
    {"MediaType", "fabric", QT_TRANSLATE_NOOP("StandardWords", "Fabric")},
    {"MediaType", "film", QT_TRANSLATE_NOOP("StandardWords", "Film")},
    {"MediaType", "back-print-film", QT_TRANSLATE_NOOP("StandardWords", "Back-print film")},
    {"MediaType", "transparency", QT_TRANSLATE_NOOP("StandardWords", "Transparency")},
    {"MediaType", "labels", QT_TRANSLATE_NOOP("StandardWords", "Labels")},
    {"MediaType", "labels-continuous", QT_TRANSLATE_NOOP("StandardWords", "Continuous labels")},
    {"MediaType", "photographic", QT_TRANSLATE_NOOP("StandardWords", "Photo paper")},
    {"MediaType", "photographic-glossy", QT_TRANSLATE_NOOP("StandardWords", "Photo paper, glossy")},
    {"MediaType", "photographic-high-gloss", QT_TRANSLATE_NOOP("StandardWords", "Photo paper, high gloss")},
    {"MediaType", "photographic-matte", QT_TRANSLATE_NOOP("StandardWords", "Photo paper, matte")},
    {"MediaType", "photographic-satin", QT_TRANSLATE_NOOP("StandardWords", "Photo paper, satin")},
    {"MediaType", "photographic-semi-gloss", QT_TRANSLATE_NOOP("StandardWords", "Photo paper, semi-gloss")},
    {"MediaType", "photographic-film", QT_TRANSLATE_NOOP("StandardWords", "Photo film")},
    {"MediaType", "tab-stock", QT_TRANSLATE_NOOP("StandardWords", "Tab stock")},
    {"MediaType", "pre-cut-tabs", QT_TRANSLATE_NOOP("StandardWords", "Precut tabs")},
    {"MediaType", "tractor", QT_TRANSLATE_NOOP("StandardWords", "Fanfold paper")},
    {"MediaType", "multi-layer", QT_TRANSLATE_NOOP("StandardWords", "Multi-part form")},
    // OutputBin
    {"OutputBin", "auto", QT_TRANSLATE_NOOP("StandardWords", "Automatic")},
    {"OutputBin", "face-up", QT_TRANSLATE_NOOP("StandardWords", "Face up")},
    {"OutputBin", "face-down", QT_TRANSLATE_NOOP("StandardWords", "Face down")},
    {"OutputBin", "top", QT_TRANSLATE_NOOP("StandardWords", "Top tray")},
    {"OutputBin", "middle", QT_TRANSLATE_NOOP("StandardWords", "Middle tray")},
    {"OutputBin", "bottom", QT_TRANSLATE_NOOP("StandardWords", "Bottom tray")},
    {"OutputBin", "left", QT_TRANSLATE_NOOP("StandardWords", "Left tray")},
    {"OutputBin", "right", QT_TRANSLATE_NOOP("StandardWords", "Right tray")},
    {"OutputBin", "center", QT_TRANSLATE_NOOP("StandardWords", "Center tray")},
    {"OutputBin", "rear", QT_TRANSLATE_NOOP("StandardWords", "Rear tray")},
    {"OutputBin", "side", QT_TRANSLATE_NOOP("StandardWords", "Side tray")},
    {"OutputBin", "large-capacity", QT_TRANSLATE_NOOP("StandardWords", "High-capacity tray")},
    {"OutputBin", "my-mailbox", QT_TRANSLATE_NOOP("StandardWords", "My mailbox")},
    {"OutputBin", "tray-%1", QT_TRANSLATE_NOOP("StandardWords", "Tray %1")},
    {"OutputBin", "mailbox-%1", QT_TRANSLATE_NOOP("StandardWords", "Mailbox %1")},
    {"OutputBin", "stacker-%1", QT_TRANSLATE_NOOP("StandardWords", "Stacker %1")},
    // print-content-optimize
    {"print-content-optimize", "auto", QT_TRANSLATE_NOOP("StandardWords", "Automatic")},
    {"print-content-optimize", "graphics", QT_TRANSLATE_NOOP("StandardWords", "Graphics")},
    {"print-content-optimize", "photo", QT_TRANSLATE_NOOP("StandardWords", "Photos")},
    {"print-content-optimize", "text", QT_TRANSLATE_NOOP("StandardWords", "Text")},
    {"print-content-optimize", "text-and-graphics", QT_TRANSLATE_NOOP("StandardWords", "Text and graphics")},
    // StapleLocation
    {"StapleLocation", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // PunchMedia
    {"PunchMedia", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // FoldType
    {"FoldType", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // CutMedia
    {"CutMedia", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // BindType
    {"BindType", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // OtherFinishing
    {"OtherFinishing", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // cupsFinishingTemplate
    {"cupsFinishingTemplate", "none", QT_TRANSLATE_NOOP("StandardWords", "None")},
    // StapleLocation
    {"StapleLocation", "staple", QT_TRANSLATE_NOOP("StandardWords", "1 staple")},
    {"StapleLocation", "staple-top-left", QT_TRANSLATE_NOOP("StandardWords", "1 staple, top left")},
    {"StapleLocation", "staple-bottom-left", QT_TRANSLATE_NOOP("StandardWords", "1 staple, bottom left")},
    {"StapleLocation", "staple-top-right", QT_TRANSLATE_NOOP("StandardWords", "1 staple, top right")},
    {"StapleLocation", "staple-bottom-right", QT_TRANSLATE_NOOP("StandardWords", "1 staple, bottom right")},
    {"StapleLocation", "edge-stitch", QT_TRANSLATE_NOOP("StandardWords", "Along an edge")},
    {"StapleLocation", "edge-stitch-left", QT_TRANSLATE_NOOP("StandardWords", "Along the left edge")},
    {"StapleLocation", "edge-stitch-top", QT_TRANSLATE_NOOP("StandardWords", "Along the top edge")},
    {"StapleLocation", "edge-stitch-right", QT_TRANSLATE_NOOP("StandardWords", "Along the right edge")},
    {"StapleLocation", "edge-stitch-bottom", QT_TRANSLATE_NOOP("StandardWords", "Along the bottom edge")},
    {"StapleLocation", "saddle-stitch", QT_TRANSLATE_NOOP("StandardWords", "Through the fold")},
    {"StapleLocation", "staple-dual-left", QT_TRANSLATE_NOOP("StandardWords", "2 staples, left")},
    {"StapleLocation", "staple-dual-top", QT_TRANSLATE_NOOP("StandardWords", "2 staples, top")},
    {"StapleLocation", "staple-dual-right", QT_TRANSLATE_NOOP("StandardWords", "2 staples, right")},
    {"StapleLocation", "staple-dual-bottom", QT_TRANSLATE_NOOP("StandardWords", "2 staples, bottom")},
    {"StapleLocation", "staple-triple-left", QT_TRANSLATE_NOOP("StandardWords", "3 staples, left")},
    {"StapleLocation", "staple-triple-top", QT_TRANSLATE_NOOP("StandardWords", "3 staples, top")},
    {"StapleLocation", "staple-triple-right", QT_TRANSLATE_NOOP("StandardWords", "3 staples, right")},
    {"StapleLocation", "staple-triple-bottom", QT_TRANSLATE_NOOP("StandardWords", "3 staples, bottom")},
    {"StapleLocation", "single-portrait", QT_TRANSLATE_NOOP("StandardWords", "1 staple, top left")},
    {"StapleLocation", "single-landscape", QT_TRANSLATE_NOOP("StandardWords", "1 staple, top right")},
    {"StapleLocation", "dual-portrait", QT_TRANSLATE_NOOP("StandardWords", "2 staples, left")},
    {"StapleLocation", "dual-landscape", QT_TRANSLATE_NOOP("StandardWords", "2 staples, top")},
    {"StapleLocation", "triple-portrait", QT_TRANSLATE_NOOP("StandardWords", "3 staples, left")},
    {"StapleLocation", "triple-landscape", QT_TRANSLATE_NOOP("StandardWords", "3 staples, top")},
    // PunchMedia
    {"PunchMedia", "punch", QT_TRANSLATE_NOOP("StandardWords", "Holes")},
    {"PunchMedia", "punch-dual-left", QT_TRANSLATE_NOOP("StandardWords", "2 holes, left")},
    {"PunchMedia", "punch-dual-top", QT_TRANSLATE_NOOP("StandardWords", "2 holes, top")},
    {"PunchMedia", "punch-dual-right", QT_TRANSLATE_NOOP("StandardWords", "2 holes, right")},
    {"PunchMedia", "punch-dual-bottom", QT_TRANSLATE_NOOP("StandardWords", "2 holes, bottom")},
    {"PunchMedia", "punch-triple-left", QT_TRANSLATE_NOOP("StandardWords", "3 holes, left")},
    {"PunchMedia", "punch-triple-top", QT_TRANSLATE_NOOP("StandardWords", "3 holes, top")},
    {"PunchMedia", "punch-triple-right", QT_TRANSLATE_NOOP("StandardWords", "3 holes, right")},
    {"PunchMedia", "punch-triple-bottom", QT_TRANSLATE_NOOP("StandardWords", "3 holes, bottom")},
    {"PunchMedia", "punch-quad-left", QT_TRANSLATE_NOOP("StandardWords", "4 holes, left")},
    {"PunchMedia", "punch-quad-top", QT_TRANSLATE_NOOP("StandardWords", "4 holes, top")},
    {"PunchMedia", "punch-quad-right", QT_TRANSLATE_NOOP("StandardWords", "4 holes, right")},
    {"PunchMedia", "punch-quad-bottom", QT_TRANSLATE_NOOP("StandardWords", "4 holes, bottom")},
    {"PunchMedia", "punch-multiple-left", QT_TRANSLATE_NOOP("StandardWords", "Many holes, left")},
    {"PunchMedia", "punch-multiple-top", QT_TRANSLATE_NOOP("StandardWords", "Many holes, top")},
    {"PunchMedia", "punch-multiple-right", QT_TRANSLATE_NOOP("StandardWords", "Many holes, right")},
    {"PunchMedia", "punch-multiple-bottom", QT_TRANSLATE_NOOP("StandardWords", "Many holes, bottom")},
    {"PunchMedia", "dual-portrait", QT_TRANSLATE_NOOP("StandardWords", "2 holes, left")},
    {"PunchMedia", "dual-landscape", QT_TRANSLATE_NOOP("StandardWords", "2 holes, top")},
    {"PunchMedia", "triple-portrait", QT_TRANSLATE_NOOP("StandardWords", "3 holes, left")},
    {"PunchMedia", "triple-landscape", QT_TRANSLATE_NOOP("StandardWords", "3 holes, top")},
    {"PunchMedia", "quad-portrait", QT_TRANSLATE_NOOP("StandardWords", "4 holes, left")},
    {"PunchMedia", "quad-landscape", QT_TRANSLATE_NOOP("StandardWords", "4 holes, top")},
    {"PunchMedia", "multiple-portrait", QT_TRANSLATE_NOOP("StandardWords", "Many holes, left")},
    {"PunchMedia", "multiple-landscape", QT_TRANSLATE_NOOP("StandardWords", "Many holes, top")},
    // FoldType
    {"FoldType", "fold", QT_TRANSLATE_NOOP("StandardWords", "Fold")},
    {"FoldType", "fold-accordion", QT_TRANSLATE_NOOP("StandardWords", "Accordion fold")},
    {"FoldType", "fold-double-gate", QT_TRANSLATE_NOOP("StandardWords", "Double gate fold")},
    {"FoldType", "fold-engineering-z", QT_TRANSLATE_NOOP("StandardWords", "Engineering Z fold")},
    {"FoldType", "fold-gate", QT_TRANSLATE_NOOP("StandardWords", "Gate fold")},
    {"FoldType", "fold-half", QT_TRANSLATE_NOOP("StandardWords", "Half fold")},
    {"FoldType", "fold-half-z", QT_TRANSLATE_NOOP("StandardWords", "Half Z fold")},
    {"FoldType", "fold-left-gate", QT_TRANSLATE_NOOP("StandardWords", "Left gate fold")},
    {"FoldType", "fold-letter", QT_TRANSLATE_NOOP("StandardWords", "C fold")},
    {"FoldType", "fold-parallel", QT_TRANSLATE_NOOP("StandardWords", "Parallel fold")},
    {"FoldType", "fold-poster", QT_TRANSLATE_NOOP("StandardWords", "Poster fold")},
    {"FoldType", "fold-right-gate", QT_TRANSLATE_NOOP("StandardWords", "Right gate fold")},
    {"FoldType", "fold-z", QT_TRANSLATE_NOOP("StandardWords", "Z fold")},
    // CutMedia
    {"CutMedia", "trim", QT_TRANSLATE_NOOP("StandardWords", "Trim")},
    {"CutMedia", "trim-after-pages", QT_TRANSLATE_NOOP("StandardWords", "After each page")},
    {"CutMedia", "trim-after-documents", QT_TRANSLATE_NOOP("StandardWords", "After each document")},
    {"CutMedia", "trim-after-copies", QT_TRANSLATE_NOOP("StandardWords", "After each copy")},
    {"CutMedia", "trim-after-job", QT_TRANSLATE_NOOP("StandardWords", "After the job")},
    // BindType
    {"BindType", "bind", QT_TRANSLATE_NOOP("StandardWords", "Bind")},
    {"BindType", "bind-left", QT_TRANSLATE_NOOP("StandardWords", "Left edge")},
    {"BindType", "bind-top", QT_TRANSLATE_NOOP("StandardWords", "Top edge")},
    {"BindType", "bind-right", QT_TRANSLATE_NOOP("StandardWords", "Right edge")},
    {"BindType", "bind-bottom", QT_TRANSLATE_NOOP("StandardWords", "Bottom edge")},
    // OtherFinishing
    {"OtherFinishing", "cover", QT_TRANSLATE_NOOP("StandardWords", "Cover")},
    {"OtherFinishing", "bale", QT_TRANSLATE_NOOP("StandardWords", "Bale")},
    {"OtherFinishing", "booklet-maker", QT_TRANSLATE_NOOP("StandardWords", "Booklet")},
    {"OtherFinishing", "jog-offset", QT_TRANSLATE_NOOP("StandardWords", "Offset each set")},
    {"OtherFinishing", "coat", QT_TRANSLATE_NOOP("StandardWords", "Coat")},
    {"OtherFinishing", "laminate", QT_TRANSLATE_NOOP("StandardWords", "Laminate")},
};
// clang-format on

// Null where there are none. Most PPDs ask for a few of their hundreds of choices, or for none.
const char *findWords(const QString &option, const QString &name)
{
    for (const WordsRow &row : rows) {
        if (name == QLatin1String(row.name) && option == QLatin1String(row.option))
            return row.words;
    }
    return nullptr;
}

// Of papers whose PPD name is none that people use. `prefix` is followed by what stands for %1.
struct PaperRow
{
    const char *prefix;
    const char *words;
};
constexpr PaperRow paperRows[] = {
    {"Env", QT_TRANSLATE_NOOP("StandardWords", "Envelope %1")},
    {"DoublePostcard", QT_TRANSLATE_NOOP("StandardWords", "Double postcard")},
    {"Postcard", QT_TRANSLATE_NOOP("StandardWords", "Postcard")},
    {"Index", QT_TRANSLATE_NOOP("StandardWords", "Index card %1")},
    {"Photo", QT_TRANSLATE_NOOP("StandardWords", "Photo %1")},
};

// "EnvDL" as "Envelope DL"; empty for "A4" as for "210x297mm", which says no more than its size.
QString paperName(const QString &name)
{
    static const QRegularExpression size(QStringLiteral("^(w?[0-9.]+[xh][0-9.]+)(mm|in|cm)?$"));
    if (size.match(name).hasMatch())
        return {};
    for (const PaperRow &row : paperRows) {
        const QString prefix = QLatin1String(row.prefix);
        if (!name.startsWith(prefix))
            continue;
        const QString rest = name.mid(prefix.size());
        const QString words = translate("StandardWords", row.words);
        if (words.contains(QLatin1String("%1")) ? !rest.isEmpty() : rest.isEmpty())
            return rest.isEmpty() ? words : words.arg(rest);
    }
    return readable(name);
}

QString sizeWords(double width, double height)
{
    const auto eighths = [](double points) { return points / 72 * 8; };
    const auto isWhole = [](double number) { return std::abs(number - std::round(number)) < 0.02; };
    const auto number = [](double value, double unit) {
        return QString::number(std::round(value / unit * 1000) / 1000);
    };
    if (isWhole(eighths(width)) && isWhole(eighths(height)))
        return translate("StandardWords", "%1 × %2 in").arg(number(width, 72), number(height, 72));
    const auto millimetres = [](double points) {
        return QString::number(std::round(points / 72 * 25.4));
    };
    return translate("StandardWords", "%1 × %2 mm").arg(millimetres(width), millimetres(height));
}

} // namespace

QString ippKeyword(const QString &ppdName)
{
    QString keyword;
    for (qsizetype i = 0; i < ppdName.size(); ++i) {
        const QChar now = ppdName[i];
        const QChar before = i > 0 ? ppdName[i - 1] : QChar(u'-');
        if ((now.isUpper() && before.isLower()) || (now.isDigit() && before.isLetter()))
            keyword += u'-';
        keyword += now == u'_' ? QChar(u'-') : now.toLower();
    }
    return keyword;
}

QString ppdName(const QString &ippKeyword)
{
    constexpr qsizetype longest = 40; // PPD_MAX_NAME without its end
    QString name;
    bool isStart = true;
    for (const QChar character : ippKeyword) {
        const bool isPlain = character.unicode() < 0x80 && character.isLetterOrNumber();
        const bool isKept = isPlain || character == u'.' || character == u'_';
        if (isKept)
            name += isStart ? character.toUpper() : character;
        isStart = !isKept;
    }
    return name.left(longest);
}

QString standardOptionWords(const QString &option)
{
    const char *words = findWords({}, option);
    return words ? translate("StandardWords", words) : QString();
}

// "600dpi", "600x1200dpi"; empty for anything else.
static QString resolutionWords(const QString &choice)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+)(?:x([0-9]+))?dpi$"));
    const auto match = form.match(choice);
    if (!match.hasMatch())
        return {};
    const QString down = match.captured(2);
    return down.isEmpty() ? translate("StandardWords", "%1 dpi").arg(match.captured(1))
                          : translate("StandardWords", "%1 × %2 dpi").arg(match.captured(1), down);
}

QString standardChoiceWords(const QString &option, const QString &choice)
{
    if (option == QLatin1String("Resolution"))
        return resolutionWords(choice);
    const QString keyword = ippKeyword(choice);
    if (const char *words = findWords(option, keyword))
        return translate("StandardWords", words);
    const QString number = keyword.section(u'-', -1);
    bool isNumber = false;
    (void)number.toUInt(&isNumber);
    const char *words = isNumber
        ? findWords(option, keyword.chopped(number.size()) + QStringLiteral("%1"))
        : nullptr;
    return words ? translate("StandardWords", words).arg(number) : QString();
}

QString readable(const QString &name)
{
    // A maker's own begin with its domain.
    QString words = ippKeyword(name.count(u'.') > 1 ? name.section(u'.', -1) : name);
    words.replace(u'-', u' ');
    // What a maker writes in capitals is an abbreviation.
    if (name == name.toUpper())
        words = name;
    words = words.simplified();
    if (!words.isEmpty())
        words[0] = words[0].toUpper();
    return words;
}

QString paperWords(const QString &name, double width, double height)
{
    const QString borderless = QStringLiteral(".Borderless");
    const bool isBorderless = name.endsWith(borderless);
    const QString paper = paperName(isBorderless ? name.chopped(borderless.size()) : name);
    QString words = paper.isEmpty() ? sizeWords(width, height) : paper;
    if (isBorderless)
        words = translate("StandardWords", "%1, borderless").arg(words);
    if (paper.isEmpty())
        return words;
    return translate("StandardWords", "%1 (%2)").arg(words, sizeWords(width, height));
}

} // namespace kelvo
