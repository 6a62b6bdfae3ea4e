#include "full_color_options.h"

#include "ticket_values.h"

#include <algorithm>

namespace kelvo {

namespace {

constexpr std::int32_t kMostAdjustment = 100; // either way
constexpr std::int32_t kMostTrapping = 20;
constexpr qsizetype kLongestName = 255; // characters

const QString colorCastKey = QStringLiteral("FCColorCast");
const QString trappingKey = QStringLiteral("FCTrapping");

bool isUnsetOrWithin(std::int32_t value, std::int32_t least, std::int32_t most)
{
    return value == kUnset || (value >= least && value <= most);
}

bool isAdjustment(std::int32_t value)
{
    return isUnsetOrWithin(value, -kMostAdjustment, kMostAdjustment);
}

bool isName(const std::optional<QString> &name)
{
    return name && name->size() <= kLongestName;
}

template <typename T>
OSStatus get(const T &value, T *out)
{
    if (!out)
        return paramErr;
    *out = value;
    return noErr;
}

template <typename T>
OSStatus setIf(bool isValid, T &value, const T &newValue)
{
    if (!isValid)
        return paramErr;
    value = newValue;
    return noErr;
}

} // namespace

struct FullColorOptions::Form
{
    struct Number
    {
        const char *entry;
        std::int32_t FullColorOptions::*value;
    };
    static constexpr Number numbers[] = {
        {"FCLightness", &FullColorOptions::m_lightness},
        {"FCContrast", &FullColorOptions::m_contrast},
        {"FCSaturation", &FullColorOptions::m_saturation},
        {"FCBlackOverprint", &FullColorOptions::m_blackOverprint},
        {"ImageRendering", &FullColorOptions::m_imageObjectRendering},
        {"TextRendering", &FullColorOptions::m_textObjectRendering},
        {"GraphicRendering", &FullColorOptions::m_graphicObjectRendering},
    };
    static constexpr Number colorCast[] = {
        {"FCCyanRed", &FullColorOptions::m_colorCastCyanRed},
        {"FCMagentaGreen", &FullColorOptions::m_colorCastMagentaGreen},
        {"FCYellowBlue", &FullColorOptions::m_colorCastYellowBlue},
    };
    static constexpr Number trappingDirections[] = {
        {"FCTrappingFastDirection", &FullColorOptions::m_trappingFastDirection},
        {"FCTrappingSlowDirection", &FullColorOptions::m_trappingSlowDirection},
    };

    struct Named
    {
        const char *entry;
        Profile FullColorOptions::*profile;
        std::int32_t namedKind;
    };
    static constexpr Named profiles[] = {
        {"RGBImagesProfile", &FullColorOptions::m_rgbImagesProfile, kNamedRGBProfile},
        {"RGBTextAndGraphicsProfile", &FullColorOptions::m_rgbTextAndGraphicsProfile,
         kNamedRGBProfile},
        {"CMYKImagesProfile", &FullColorOptions::m_cmykImagesProfile, kNamedCMYKProfile},
        {"CMYKTextAndGraphicsProfile", &FullColorOptions::m_cmykTextAndGraphicsProfile,
         kNamedCMYKProfile},
        {"DestinationProfile", &FullColorOptions::m_destinationProfile, kNamedDestinationProfile},
    };

    struct Text
    {
        const char *entry;
        std::optional<QString> FullColorOptions::*value;
        bool isProfileName;
    };
    static constexpr Text texts[] = {
        {"FCTRC", &FullColorOptions::m_trc, false},
        {"GrayImagesProfile", &FullColorOptions::m_grayImagesProfile, true},
        {"GrayTextAndGraphicsProfile", &FullColorOptions::m_grayTextAndGraphicsProfile, true},
    };

    static std::int32_t namedKindOf(Profile FullColorOptions::*profile)
    {
        return std::ranges::find(profiles, profile, &Named::profile)->namedKind;
    }

    static void writeNumber(const FullColorOptions &options, const Number &number,
                            Dictionary &dictionary)
    {
        if (options.*number.value != kUnset)
            WriteTicketValue(dictionary, QString::fromLatin1(number.entry), options.*number.value);
    }
    static void readNumber(FullColorOptions &options, const Number &number,
                           const Dictionary &dictionary)
    {
        if (const auto value = integer32(dictionary, QString::fromLatin1(number.entry)))
            options.*number.value = *value;
    }
};

FullColorOptions::FullColorOptions(const Dictionary *dictionary)
{
    fromTicket(dictionary);
}

FullColorOptions::FullColorOptions(const FullColorOptions &other)
{
    *this = other;
    for (const Form::Named &row : Form::profiles) {
        Profile &profile = this->*row.profile;
        if (profile.kind != row.namedKind)
            profile.name.reset();
    }
}

Dictionary FullColorOptions::asTicket() const
{
    Dictionary dictionary;
    for (const Form::Number &number : Form::numbers)
        Form::writeNumber(*this, number, dictionary);
    Dictionary cast;
    for (const Form::Number &number : Form::colorCast)
        Form::writeNumber(*this, number, cast);
    if (cast.size() == std::ssize(Form::colorCast))
        dictionary.insert(colorCastKey, cast);
    if (m_trapping != kUnset)
        WriteTicketValue(dictionary, trappingKey, m_trapping);
    if (m_trapping == kTrappingWithAdjustments) {
        for (const Form::Number &number : Form::trappingDirections)
            Form::writeNumber(*this, number, dictionary);
    }
    for (const Form::Named &row : Form::profiles) {
        const Profile &profile = this->*row.profile;
        const QString key = QString::fromLatin1(row.entry);
        // A ticket may have given the named kind by its number: without a name that
        // was held before, it goes back as it came.
        if (profile.kind == row.namedKind && profile.name)
            dictionary.insert(key, *profile.name);
        else if (profile.kind != kUnset)
            WriteTicketValue(dictionary, key, profile.kind);
    }
    for (const Form::Text &text : Form::texts) {
        if (this->*text.value)
            dictionary.insert(QString::fromLatin1(text.entry), *(this->*text.value));
    }
    return dictionary;
}

void FullColorOptions::fromTicket(const Dictionary *dictionary)
{
    if (!dictionary)
        return;
    for (const Form::Number &number : Form::numbers)
        Form::readNumber(*this, number, *dictionary);
    const Dictionary cast = kelvo::dictionary(*dictionary, colorCastKey).value_or(Dictionary());
    for (const Form::Number &number : Form::colorCast)
        Form::readNumber(*this, number, cast);
    const std::optional<std::int32_t> trapping = integer32(*dictionary, trappingKey);
    m_trapping = trapping.value_or(kUnset);
    for (const Form::Number &number : Form::trappingDirections) {
        this->*number.value = kUnset;
        if (trapping)
            Form::readNumber(*this, number, *dictionary);
    }
    for (const Form::Named &row : Form::profiles) {
        Profile &profile = this->*row.profile;
        const QString key = QString::fromLatin1(row.entry);
        const std::optional<QString> name = string(*dictionary, key);
        if (const auto kind = integer32(*dictionary, key))
            profile.kind = *kind;
        else if (isName(name))
            profile = {row.namedKind, name};
    }
    for (const Form::Text &text : Form::texts) {
        const std::optional<QString> value = string(*dictionary, QString::fromLatin1(text.entry));
        if (value && (!text.isProfileName || isName(value)))
            this->*text.value = value;
    }
}

OSStatus FullColorOptions::lightness(std::int32_t *value) const
{
    return get(m_lightness, value);
}

OSStatus FullColorOptions::setLightness(std::int32_t value)
{
    return setIf(isAdjustment(value), m_lightness, value);
}

OSStatus FullColorOptions::contrast(std::int32_t *value) const
{
    return get(m_contrast, value);
}

OSStatus FullColorOptions::setContrast(std::int32_t value)
{
    return setIf(isAdjustment(value), m_contrast, value);
}

OSStatus FullColorOptions::saturation(std::int32_t *value) const
{
    return get(m_saturation, value);
}

OSStatus FullColorOptions::setSaturation(std::int32_t value)
{
    return setIf(isAdjustment(value), m_saturation, value);
}

OSStatus FullColorOptions::colorCast(std::int32_t *cyanRed, std::int32_t *magentaGreen,
                                     std::int32_t *yellowBlue) const
{
    if (cyanRed)
        *cyanRed = m_colorCastCyanRed;
    if (magentaGreen)
        *magentaGreen = m_colorCastMagentaGreen;
    if (yellowBlue)
        *yellowBlue = m_colorCastYellowBlue;
    return cyanRed || magentaGreen || yellowBlue ? noErr : paramErr;
}

OSStatus FullColorOptions::setColorCast(std::int32_t cyanRed, std::int32_t magentaGreen,
                                        std::int32_t yellowBlue)
{
    if (!isAdjustment(cyanRed) || !isAdjustment(magentaGreen) || !isAdjustment(yellowBlue))
        return paramErr;
    m_colorCastCyanRed = cyanRed;
    m_colorCastMagentaGreen = magentaGreen;
    m_colorCastYellowBlue = yellowBlue;
    return noErr;
}

OSStatus FullColorOptions::trapping(std::int32_t *value) const
{
    return get(m_trapping, value);
}

OSStatus FullColorOptions::setTrapping(std::int32_t value)
{
    return setIf(true, m_trapping, value);
}

OSStatus FullColorOptions::trappingAdjustment(std::int32_t *slow, std::int32_t *fast) const
{
    if (slow)
        *slow = m_trappingSlowDirection;
    if (fast)
        *fast = m_trappingFastDirection;
    return slow || fast ? noErr : paramErr;
}

OSStatus FullColorOptions::setTrappingAdjustment(std::int32_t slow, std::int32_t fast)
{
    if (!isUnsetOrWithin(slow, 0, kMostTrapping) || !isUnsetOrWithin(fast, 0, kMostTrapping))
        return paramErr;
    m_trappingSlowDirection = slow;
    m_trappingFastDirection = fast;
    return noErr;
}

OSStatus FullColorOptions::blackOverprint(std::int32_t *value) const
{
    return get(m_blackOverprint, value);
}

OSStatus FullColorOptions::setBlackOverprint(std::int32_t value)
{
    return setIf(true, m_blackOverprint, value);
}

OSStatus FullColorOptions::trc(std::optional<QString> *curve) const
{
    return get(m_trc, curve);
}

OSStatus FullColorOptions::setTRC(const std::optional<QString> &curve)
{
    return setIf(true, m_trc, curve);
}

OSStatus FullColorOptions::rgbImagesProfile(std::int32_t *kind, std::optional<QString> *name) const
{
    return getProfile(&FullColorOptions::m_rgbImagesProfile, kind, name);
}

OSStatus FullColorOptions::rgbTextAndGraphicsProfile(std::int32_t *kind,
                                                     std::optional<QString> *name) const
{
    return getProfile(&FullColorOptions::m_rgbTextAndGraphicsProfile, kind, name);
}

OSStatus FullColorOptions::cmykImagesProfile(std::int32_t *kind, std::optional<QString> *name) const
{
    return getProfile(&FullColorOptions::m_cmykImagesProfile, kind, name);
}

OSStatus FullColorOptions::cmykTextAndGraphicsProfile(std::int32_t *kind,
                                                      std::optional<QString> *name) const
{
    return getProfile(&FullColorOptions::m_cmykTextAndGraphicsProfile, kind, name);
}

OSStatus FullColorOptions::destinationProfile(std::int32_t *kind,
                                              std::optional<QString> *name) const
{
    return getProfile(&FullColorOptions::m_destinationProfile, kind, name);
}

OSStatus FullColorOptions::setRGBImagesProfile(std::int32_t kind,
                                               const std::optional<QString> &name)
{
    return setProfile(&FullColorOptions::m_rgbImagesProfile, kind, name);
}

OSStatus FullColorOptions::setRGBTextAndGraphicsProfile(std::int32_t kind,
                                                        const std::optional<QString> &name)
{
    return setProfile(&FullColorOptions::m_rgbTextAndGraphicsProfile, kind, name);
}

OSStatus FullColorOptions::setCMYKImagesProfile(std::int32_t kind,
                                                const std::optional<QString> &name)
{
    return setProfile(&FullColorOptions::m_cmykImagesProfile, kind, name);
}

OSStatus FullColorOptions::setCMYKTextAndGraphicsProfile(std::int32_t kind,
                                                         const std::optional<QString> &name)
{
    return setProfile(&FullColorOptions::m_cmykTextAndGraphicsProfile, kind, name);
}

OSStatus FullColorOptions::setDestinationProfile(std::int32_t kind,
                                                 const std::optional<QString> &name)
{
    return setProfile(&FullColorOptions::m_destinationProfile, kind, name);
}

OSStatus FullColorOptions::grayImagesProfile(std::optional<QString> *name) const
{
    return get(m_grayImagesProfile, name);
}

OSStatus FullColorOptions::setGrayImagesProfile(const std::optional<QString> &name)
{
    return setIf(isName(name), m_grayImagesProfile, name);
}

OSStatus FullColorOptions::grayTextAndGraphicsProfile(std::optional<QString> *name) const
{
    return get(m_grayTextAndGraphicsProfile, name);
}

OSStatus FullColorOptions::setGrayTextAndGraphicsProfile(const std::optional<QString> &name)
{
    return setIf(isName(name), m_grayTextAndGraphicsProfile, name);
}

OSStatus FullColorOptions::imageObjectRendering(std::int32_t *value) const
{
    return get(m_imageObjectRendering, value);
}

OSStatus FullColorOptions::setImageObjectRendering(std::int32_t value)
{
    return setIf(true, m_imageObjectRendering, value);
}

OSStatus FullColorOptions::textObjectRendering(std::int32_t *value) const
{
    return get(m_textObjectRendering, value);
}

OSStatus FullColorOptions::setTextObjectRendering(std::int32_t value)
{
    return setIf(true, m_textObjectRendering, value);
}

OSStatus FullColorOptions::graphicObjectRendering(std::int32_t *value) const
{
    return get(m_graphicObjectRendering, value);
}

OSStatus FullColorOptions::setGraphicObjectRendering(std::int32_t value)
{
    return setIf(true, m_graphicObjectRendering, value);
}

OSStatus FullColorOptions::getProfile(Profile FullColorOptions::*profile, std::int32_t *kind,
                                      std::optional<QString> *name) const
{
    if (!kind || !name)
        return paramErr;
    const Profile &held = this->*profile;
    *kind = held.kind;
    if (held.kind == Form::namedKindOf(profile))
        *name = held.name;
    return noErr;
}

OSStatus FullColorOptions::setProfile(Profile FullColorOptions::*profile, std::int32_t kind,
                                      const std::optional<QString> &name)
{
    const bool isNamed = kind == Form::namedKindOf(profile);
    if (isNamed && !isName(name))
        return paramErr;
    Profile &held = this->*profile;
    held.kind = kind;
    if (isNamed)
        held.name = name;
    return noErr;
}

} // namespace kelvo
