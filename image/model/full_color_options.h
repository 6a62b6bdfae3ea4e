#pragma once

#include "setting_map.h"
#include "status.h"
#include "values.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace kelvo {

// Kinds of a profile that go by a name; they differ by family. Any other kind is a
// choice of the device's colour system.
inline constexpr std::int32_t kNamedRGBProfile = 5;
inline constexpr std::int32_t kNamedCMYKProfile = 3;
inline constexpr std::int32_t kNamedDestinationProfile = 2;

inline constexpr std::int32_t kTrappingWithAdjustments = 1;

// The full set of a job's colour management: adjustments, trapping, black
// overprint, tone curve, source and destination profiles, rendering intents. A
// number is kUnset and a text is missing where nothing is set.
//
// Dictionary form. Numbers are CFIndex numbers; what is not set has no key.
//   FCLightness, FCContrast, FCSaturation   integer  -100 to 100
//   FCColorCast                  dictionary  FCCyanRed, FCMagentaGreen, FCYellowBlue:
//                                            integers, -100 to 100; written when all are set
//   FCTrapping                   integer
//   FCTrappingFastDirection, FCTrappingSlowDirection
//                                integer  0 to 20; written with FCTrapping 1 only
//   FCBlackOverprint             integer
//   FCTRC                        string
//   RGBImagesProfile, RGBTextAndGraphicsProfile, CMYKImagesProfile,
//   CMYKTextAndGraphicsProfile, DestinationProfile
//                                string, the name of a named profile; else integer, the kind
//   GrayImagesProfile, GrayTextAndGraphicsProfile   string
//   ImageRendering, TextRendering, GraphicRendering   integer
//
// Every operation gives noErr, or paramErr for a null pointer or a value out of
// range; nothing changes then.
class FullColorOptions
{
public:
    FullColorOptions() = default;
    explicit FullColorOptions(const Dictionary *dictionary);
    // The name that a profile held before it became one of another kind is not
    // copied; assigning takes it over.
    FullColorOptions(const FullColorOptions &other);
    FullColorOptions &operator=(const FullColorOptions &) = default;
    ~FullColorOptions() = default;

    Dictionary asTicket() const;
    // Over the values there are; null changes nothing. A key that is missing, or
    // of another type, leaves its value, but for trapping: without "FCTrapping" it
    // and both directions are unset, and with it each direction that is missing
    // is. Ranges are not checked, so that what a ticket says comes back as it was.
    void fromTicket(const Dictionary *dictionary);

    OSStatus lightness(std::int32_t *value) const;
    OSStatus setLightness(std::int32_t value); // -100 to 100 or kUnset
    OSStatus contrast(std::int32_t *value) const;
    OSStatus setContrast(std::int32_t value);
    OSStatus saturation(std::int32_t *value) const;
    OSStatus setSaturation(std::int32_t value);

    // Pointers may be null; not all three.
    OSStatus colorCast(std::int32_t *cyanRed, std::int32_t *magentaGreen,
                       std::int32_t *yellowBlue) const;
    OSStatus setColorCast(std::int32_t cyanRed, std::int32_t magentaGreen, std::int32_t yellowBlue);

    OSStatus trapping(std::int32_t *value) const;
    OSStatus setTrapping(std::int32_t value);
    // One pointer may be null.
    OSStatus trappingAdjustment(std::int32_t *slow, std::int32_t *fast) const;
    OSStatus setTrappingAdjustment(std::int32_t slow, std::int32_t fast); // 0 to 20 or kUnset

    OSStatus blackOverprint(std::int32_t *value) const;
    OSStatus setBlackOverprint(std::int32_t value);

    OSStatus trc(std::optional<QString> *curve) const;
    OSStatus setTRC(const std::optional<QString> &curve);

    // Both pointers are needed. `name` is touched for the family's named kind only.
    OSStatus rgbImagesProfile(std::int32_t *kind, std::optional<QString> *name) const;
    OSStatus rgbTextAndGraphicsProfile(std::int32_t *kind, std::optional<QString> *name) const;
    OSStatus cmykImagesProfile(std::int32_t *kind, std::optional<QString> *name) const;
    OSStatus cmykTextAndGraphicsProfile(std::int32_t *kind, std::optional<QString> *name) const;
    OSStatus destinationProfile(std::int32_t *kind, std::optional<QString> *name) const;
    // The named kind needs a name of at most 255 characters. For another kind the
    // name is ignored, and the one from before stays held.
    OSStatus setRGBImagesProfile(std::int32_t kind, const std::optional<QString> &name);
    OSStatus setRGBTextAndGraphicsProfile(std::int32_t kind, const std::optional<QString> &name);
    OSStatus setCMYKImagesProfile(std::int32_t kind, const std::optional<QString> &name);
    OSStatus setCMYKTextAndGraphicsProfile(std::int32_t kind, const std::optional<QString> &name);
    OSStatus setDestinationProfile(std::int32_t kind, const std::optional<QString> &name);

    // Gray profiles are names only, of at most 255 characters.
    OSStatus grayImagesProfile(std::optional<QString> *name) const;
    OSStatus setGrayImagesProfile(const std::optional<QString> &name);
    OSStatus grayTextAndGraphicsProfile(std::optional<QString> *name) const;
    OSStatus setGrayTextAndGraphicsProfile(const std::optional<QString> &name);

    OSStatus imageObjectRendering(std::int32_t *value) const;
    OSStatus setImageObjectRendering(std::int32_t value);
    OSStatus textObjectRendering(std::int32_t *value) const;
    OSStatus setTextObjectRendering(std::int32_t value);
    OSStatus graphicObjectRendering(std::int32_t *value) const;
    OSStatus setGraphicObjectRendering(std::int32_t value);

private:
    struct Profile
    {
        std::int32_t kind = kUnset;
        std::optional<QString> name; // of the named kind; kept while it is another
    };
    struct Form; // which key holds which value

    OSStatus getProfile(Profile FullColorOptions::*profile, std::int32_t *kind,
                        std::optional<QString> *name) const;
    OSStatus setProfile(Profile FullColorOptions::*profile, std::int32_t kind,
                        const std::optional<QString> &name);

    std::int32_t m_lightness = kUnset;
    std::int32_t m_contrast = kUnset;
    std::int32_t m_saturation = kUnset;
    std::int32_t m_colorCastCyanRed = kUnset;
    std::int32_t m_colorCastMagentaGreen = kUnset;
    std::int32_t m_colorCastYellowBlue = kUnset;
    std::int32_t m_trapping = kUnset;
    std::int32_t m_trappingFastDirection = kUnset;
    std::int32_t m_trappingSlowDirection = kUnset;
    std::int32_t m_blackOverprint = kUnset;
    std::optional<QString> m_trc;
    Profile m_rgbImagesProfile;
    Profile m_rgbTextAndGraphicsProfile;
    Profile m_cmykImagesProfile;
    Profile m_cmykTextAndGraphicsProfile;
    std::optional<QString> m_grayImagesProfile;
    std::optional<QString> m_grayTextAndGraphicsProfile;
    Profile m_destinationProfile;
    std::int32_t m_imageObjectRendering = kUnset;
    std::int32_t m_textObjectRendering = kUnset;
    std::int32_t m_graphicObjectRendering = kUnset;
};

} // namespace kelvo
