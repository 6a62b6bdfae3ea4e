#include "ipp_ppd.h"

#include "ipp_options.h"
#include "standard_words.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr double pointsPerHundredth = 72 / 2540.0; // of a hundredth of a millimetre

// Within quotes, on one line.
QByteArray quotable(const QString &text)
{
    QString plain = text.simplified().left(70);
    plain.removeIf([](QChar character) { return character == u'"' || !character.isPrint(); });
    return plain.toUtf8();
}

QByteArray points(int hundredths)
{
    return QByteArray::number(hundredths * pointsPerHundredth, 'f', 3);
}

struct Choice
{
    QString name;
    QByteArray code;
};

// Each name once: two that differ in nothing that a PPD can have are one.
class ChoiceList
{
public:
    void add(const QString &name, const QByteArray &code)
    {
        const bool isThere = std::ranges::any_of(m_choices, [&name](const Choice &other) {
            return other.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (!name.isEmpty() && !isThere)
            m_choices.push_back({name, code});
    }
    // With a default of its own, or the first one.
    QByteArray text(const QString &option, const QString &byDefault) const
    {
        const QByteArray name = option.toLatin1();
        const bool isChoice = std::ranges::any_of(
            m_choices, [&byDefault](const Choice &choice) { return choice.name == byDefault; });
        QByteArray text = "*OpenUI *" + name + ": PickOne\n*OrderDependency: 10 AnySetup *" + name
            + "\n*Default" + name + ": "
            + (isChoice ? byDefault : m_choices.front().name).toLatin1() + '\n';
        for (const Choice &choice : m_choices)
            text += '*' + name + ' ' + choice.name.toLatin1() + ": \"" + choice.code + "\"\n";
        return text + "*CloseUI: *" + name + '\n';
    }
    std::size_t size() const { return m_choices.size(); }

private:
    std::vector<Choice> m_choices;
};

// What the printer is told: enumerations go as numbers.
QByteArray codeOf(const QString &attribute, const QString &value)
{
    const bool isEnumeration =
        attribute == QLatin1String("print-quality") || attribute == QLatin1String("finishings");
    return isEnumeration ? QByteArray::number(
               ippEnumValue(attribute.toUtf8().constData(), value.toUtf8().constData()))
                         : value.toUtf8();
}

QString paperNameOf(const IppMedia &media)
{
    const pwg_media_t *known = pwgMediaForPWG(media.name.toUtf8().constData());
    if (!known || !known->ppd)
        known = pwgMediaForSize(media.width, media.length);
    return known && known->ppd ? ppdName(QString::fromUtf8(known->ppd)) : QString();
}

QByteArray papersOf(const IppDescription &description)
{
    ChoiceList sizes;
    QString byDefault;
    QByteArray dimensions;
    for (const IppMedia &media : description.media) {
        QString name = paperNameOf(media);
        if (name.isEmpty())
            continue;
        const bool hasBorderedTwin =
            std::ranges::any_of(description.media, [&media](const IppMedia &other) {
                return other.name == media.name && !other.isBorderless();
            });
        if (media.isBorderless() && hasBorderedTwin)
            name += QStringLiteral(".Borderless");
        else if (media.name == description.defaultMedia)
            byDefault = name;
        const std::size_t before = sizes.size();
        sizes.add(name, media.name.toUtf8());
        if (sizes.size() == before)
            continue;
        dimensions += "*PaperDimension " + name.toLatin1() + ": \"" + points(media.width) + ' '
            + points(media.length) + "\"\n*ImageableArea " + name.toLatin1() + ": \""
            + points(media.left) + ' ' + points(media.bottom) + ' '
            + points(media.width - media.right) + ' ' + points(media.length - media.top) + "\"\n";
    }
    if (sizes.size() == 0)
        return {};
    QByteArray text = sizes.text(QStringLiteral("PageSize"), byDefault) + dimensions;
    if (const auto &custom = description.customMedia)
        text += "*HWMargins: 0 0 0 0\n*VariablePaperSize: True\n*MaxMediaWidth: \""
            + points(custom->maxWidth) + "\"\n*MaxMediaHeight: \"" + points(custom->maxLength)
            + "\"\n*CustomPageSize True: \"\"\n*ParamCustomPageSize Width: 1 points "
            + points(custom->minWidth) + ' ' + points(custom->maxWidth)
            + "\n*ParamCustomPageSize Height: 2 points " + points(custom->minLength) + ' '
            + points(custom->maxLength)
            + "\n*ParamCustomPageSize WidthOffset: 3 points 0 0\n"
              "*ParamCustomPageSize HeightOffset: 4 points 0 0\n"
              "*ParamCustomPageSize Orientation: 5 int 0 0\n";
    return text;
}

QByteArray optionOf(const QString &attribute, const IppValues &values)
{
    ChoiceList choices;
    for (const QString &value : values.values)
        choices.add(choiceOfIpp(attribute, value), codeOf(attribute, value));
    if (choices.size() < 2)
        return {}; // nothing to choose
    return choices.text(optionOfIpp(attribute), choiceOfIpp(attribute, values.byDefault));
}

QByteArray finishingsOf(const IppDescription &description)
{
    const QString none = QStringLiteral("None");
    const IppValues finishings = description.values.value(QStringLiteral("finishings"));
    const IppValues templates = description.values.value(QStringLiteral("finishing-template"));
    QByteArray options, constraints;
    const QString byTemplate = optionOfIpp(QStringLiteral("finishing-template"));
    for (const QString &option : finishingOptions()) {
        ChoiceList choices;
        choices.add(none, {});
        QString byDefault = none;
        for (const QString &value : finishings.values) {
            if (optionOfFinishing(value) != option)
                continue;
            choices.add(ppdName(value), codeOf(QStringLiteral("finishings"), value));
            if (value == finishings.byDefault)
                byDefault = ppdName(value);
        }
        if (choices.size() < 2)
            continue;
        options += choices.text(option, byDefault);
        // A job says the one or the other.
        if (!templates.values.isEmpty())
            constraints += "*UIConstraints: *" + option.toLatin1() + " *" + byTemplate.toLatin1()
                + "\n*UIConstraints: *" + byTemplate.toLatin1() + " *" + option.toLatin1() + '\n';
    }
    if (!templates.values.isEmpty()) {
        ChoiceList choices;
        choices.add(none, {});
        for (const QString &value : templates.values)
            choices.add(ppdName(value), value.toUtf8());
        options += choices.text(byTemplate, none);
    }
    if (options.isEmpty())
        return {};
    return "*OpenGroup: Finishing/Finishing\n" + options + "*CloseGroup: Finishing\n" + constraints;
}

} // namespace

QByteArray ppdFrom(const IppDescription &description)
{
    const QByteArray papers = papersOf(description);
    if (papers.isEmpty())
        return {};
    const QString model = description.makeAndModel.simplified();
    const QByteArray name = quotable(model.isEmpty() ? QStringLiteral("IPP") : model);
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                      "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n"
                      "*PCFileName: \"IPP.PPD\"\n*Manufacturer: \""
        + quotable(model.section(u' ', 0, 0)) + "\"\n*ModelName: \"" + name
        + "\"\n*ShortNickName: \"" + name + "\"\n*NickName: \"" + name + "\"\n*Product: \"(IPP)\"\n"
        + "*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n*FileSystem: False\n*KelvoIpp: \""
        + (description.isBehindQueue ? "printer" : "queue") + "\"\n" + papers;
    for (const QString &attribute : ippAttributes()) {
        if (!optionOfIpp(attribute).isEmpty() && attribute != QLatin1String("finishing-template"))
            text += optionOf(attribute, description.values.value(attribute));
    }
    return text + finishingsOf(description);
}

} // namespace kelvo
