#include "ipp_options.h"

#include "ppd_file.h"
#include "standard_words.h"

namespace kelvo {

namespace {

const char *const originAttribute = "KelvoIpp"; // in the PPD: "queue", or "printer" behind one

struct OptionRow
{
    const char *attribute;
    const char *option;
};
// In the order of a panel. cupsd has these names where it makes a PPD of the same.
constexpr OptionRow optionRows[] = {
    {"sides", "Duplex"},
    {"print-color-mode", "ColorModel"},
    {"media-source", "InputSlot"},
    {"media-type", "MediaType"},
    {"print-quality", "cupsPrintQuality"},
    {"print-content-optimize", "print-content-optimize"},
    {"printer-resolution", "Resolution"},
    {"output-bin", "OutputBin"},
    {"finishing-template", "cupsFinishingTemplate"},
};

struct ChoiceRow
{
    const char *attribute;
    const char *value;
    const char *choice;
};
// What is not only written in another way.
constexpr ChoiceRow choiceRows[] = {
    {"sides", "one-sided", "None"},
    {"sides", "two-sided-long-edge", "DuplexNoTumble"},
    {"sides", "two-sided-short-edge", "DuplexTumble"},
    {"print-color-mode", "color", "RGB"},
    {"print-color-mode", "monochrome", "Gray"},
};

struct FinishingRow
{
    const char *option;
    const char *beginning; // of the finishing's keyword
};
constexpr FinishingRow finishingRows[] = {
    {"StapleLocation", "staple"},
    {"StapleLocation", "edge-stitch"},
    {"StapleLocation", "saddle-stitch"},
    {"PunchMedia", "punch"},
    {"FoldType", "fold"},
    {"CutMedia", "trim"},
    {"BindType", "bind"},
    {"OtherFinishing", ""},
};

} // namespace

bool isMadeOfIpp(const PpdFile *ppd)
{
    return ppd && ppd->attribute(originAttribute);
}

bool isBehindQueue(const PpdFile &ppd)
{
    return ppd.attribute(originAttribute) == QStringLiteral("printer");
}

QString optionOfIpp(const QString &attribute)
{
    for (const OptionRow &row : optionRows) {
        if (attribute.compare(QLatin1String(row.attribute), Qt::CaseInsensitive) == 0)
            return QLatin1String(row.option);
    }
    return {};
}

QString ippAttributeOf(const QString &option)
{
    for (const OptionRow &row : optionRows) {
        if (option == QLatin1String(row.option))
            return QLatin1String(row.attribute);
    }
    return finishingOptions().contains(option) ? QStringLiteral("finishings") : QString();
}

QStringList ippAttributes()
{
    QStringList attributes;
    for (const OptionRow &row : optionRows)
        attributes << QLatin1String(row.attribute);
    attributes.insert(attributes.size() - 1, QStringLiteral("finishings"));
    return attributes;
}

QStringList finishingOptions()
{
    QStringList options;
    for (const FinishingRow &row : finishingRows)
        options << QLatin1String(row.option);
    options.removeDuplicates();
    return options;
}

QString choiceOfIpp(const QString &attribute, const QString &value)
{
    for (const ChoiceRow &row : choiceRows) {
        if (attribute == QLatin1String(row.attribute) && value == QLatin1String(row.value))
            return QLatin1String(row.choice);
    }
    return ppdName(value);
}

QString optionOfFinishing(const QString &keyword)
{
    for (const FinishingRow &row : finishingRows) {
        if (keyword.startsWith(QLatin1String(row.beginning)))
            return QLatin1String(row.option);
    }
    return {};
}

} // namespace kelvo
