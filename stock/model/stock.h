#pragma once

#include "setting_map.h"
#include "values.h"

#include <QString>

#include <cstdint>

// The paper of a job, or of one special page of it.
namespace kelvo {

// Page sizes, types and colours that mean more than a choice of the PPD or
// have a picture of their own. The numbers are ticket values of "PageSize",
// "MediaType" and "MediaColor".
inline constexpr std::int32_t kStockSizeLetter = 1;
inline constexpr std::int32_t kStockSizeCustom = 75; // width and length say which

inline constexpr std::int32_t kStockTypeStandard = 1;
inline constexpr std::int32_t kStockTypeTransparency = 2;
inline constexpr std::int32_t kStockTypePrecutTab = 4; // modulus says how many tabs
inline constexpr std::int32_t kStockTypeOrdered = 6;   // customType and modulus say which
inline constexpr std::int32_t kStockTypeCustom = 7;    // customType says which
inline constexpr std::int32_t kStockTypeEnvelope = 8;
inline constexpr std::int32_t kStockTypeLabels = 9;
inline constexpr std::int32_t kStockTypePunched = 11;
inline constexpr std::int32_t kStockTypeSystemDefault = 23;
inline constexpr std::int32_t kStockTypeTab = 24;
inline constexpr std::int32_t kStockTypeHeavyLabels = 25;
inline constexpr std::int32_t kStockTypeHeavyTab = 33;
inline constexpr std::int32_t kStockTypeUnspecified = 34;
inline constexpr std::int32_t kStockTypeExtraHeavyLabels = 39;

inline constexpr std::int32_t kStockColorWhite = 1;
inline constexpr std::int32_t kStockColorBlue = 2;
inline constexpr std::int32_t kStockColorYellow = 3;
inline constexpr std::int32_t kStockColorGreen = 4;
inline constexpr std::int32_t kStockColorPink = 5;
inline constexpr std::int32_t kStockColorClear = 6;
inline constexpr std::int32_t kStockColorBuff = 7;
inline constexpr std::int32_t kStockColorGoldenrod = 8;
inline constexpr std::int32_t kStockColorRed = 9;
inline constexpr std::int32_t kStockColorCustom = 10; // customColor says which
inline constexpr std::int32_t kStockColorIvory = 11;
inline constexpr std::int32_t kStockColorGray = 12;
inline constexpr std::int32_t kStockColorOrange = 13;
inline constexpr std::int32_t kStockColorUnspecified = 22;

inline constexpr std::int32_t kStockPrePunched = 2;
inline constexpr std::int32_t kStockSourceInserter = 10; // the post-print inserter

// A number is kUnset and a text is empty where the stock says nothing; for a
// special page the job's own setting applies then.
//
// Dictionary form, in tickets and in the user's library of stocks. Numbers are
// CFIndex numbers. A field that is not set has no key; what is missing, or of
// another type, leaves the field unset, and the colour too.
//
//   Size             integer  ticket value of "PageSize"
//   Width, Length    integer  1/100 mm; written and read with Size 75 only
//   Type             integer  ticket value of "MediaType", 4, 6 or 7
//   CustomType       string
//   Modulus          integer  tabs in a set; written for any type, read for 4 and 6
//   Color            integer  ticket value of "MediaColor", or 10
//   CustomColor      string
//   Weight           integer  g/m2
//   Punched          integer  a value of PunchedMap
//   Description      string
//   SidesCoated      integer  a value of SidesCoatedMap
//   kCoatingType     integer  a value of CoatingTypeMap; goes with SidesCoated only
//   Finish           integer  a value of SurfaceFinishMap
//   kGrain           integer  a value of GrainMap
//   CustomName       string
//   CustomNameOnly   boolean  left out when false
//   CustomComment    string
//   Source           integer  a paper source in place of size, colour and type
//
// The two keys with a "k" are spelled as stored tickets have them.
class Stock
{
public:
    // White and coating type 1; everything else is not set.
    Stock() = default;
    // Colour unset as well where the dictionary has none; null reads as empty.
    explicit Stock(const Dictionary *dictionary);
    Stock(const Stock &) = default;
    // A width or a length that is set makes the size custom.
    Stock &operator=(const Stock &other);
    virtual ~Stock() = default;

    // Texts are compared ignoring case.
    bool operator==(const Stock &other) const;

    Dictionary asTicket() const;

    // Any other size than custom has no width and length of its own.
    void setSize(std::int32_t size);
    // 1/100 mm. One that is set makes the size custom.
    void setWidth(std::int32_t width);
    void setLength(std::int32_t length);

    std::int32_t size() const { return m_size; }
    std::int32_t width() const { return m_width; }
    std::int32_t length() const { return m_length; }
    std::int32_t type() const { return m_type; }
    void setType(std::int32_t type) { m_type = type; }
    const QString &customType() const { return m_customType; }
    void setCustomType(const QString &customType) { m_customType = customType; }
    std::int32_t color() const { return m_color; }
    void setColor(std::int32_t color) { m_color = color; }
    const QString &customColor() const { return m_customColor; }
    void setCustomColor(const QString &customColor) { m_customColor = customColor; }
    std::int32_t modulus() const { return m_modulus; }
    void setModulus(std::int32_t modulus) { m_modulus = modulus; }
    std::int32_t punched() const { return m_punched; }
    void setPunched(std::int32_t punched) { m_punched = punched; }
    std::int32_t weight() const { return m_weight; }
    void setWeight(std::int32_t weight) { m_weight = weight; }
    const QString &description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    std::int32_t sidesCoated() const { return m_sidesCoated; }
    void setSidesCoated(std::int32_t sidesCoated) { m_sidesCoated = sidesCoated; }
    std::int32_t coatingType() const { return m_coatingType; }
    void setCoatingType(std::int32_t coatingType) { m_coatingType = coatingType; }
    std::int32_t finish() const { return m_finish; }
    void setFinish(std::int32_t finish) { m_finish = finish; }
    std::int32_t grain() const { return m_grain; }
    void setGrain(std::int32_t grain) { m_grain = grain; }
    const QString &customName() const { return m_customName; }
    void setCustomName(const QString &customName) { m_customName = customName; }
    bool customNameOnly() const { return m_customNameOnly; }
    void setCustomNameOnly(bool customNameOnly) { m_customNameOnly = customNameOnly; }
    const QString &comment() const { return m_comment; }
    void setComment(const QString &comment) { m_comment = comment; }
    std::int32_t source() const { return m_source; }
    void setSource(std::int32_t source) { m_source = source; }

private:
    std::int32_t m_size = kUnset;
    std::int32_t m_width = kUnset;
    std::int32_t m_length = kUnset;
    std::int32_t m_type = kUnset;
    QString m_customType = QStringLiteral("");
    std::int32_t m_color = kStockColorWhite;
    QString m_customColor = QStringLiteral("");
    std::int32_t m_modulus = kUnset;
    std::int32_t m_punched = kUnset;
    std::int32_t m_weight = kUnset;
    QString m_description = QStringLiteral("");
    std::int32_t m_sidesCoated = kUnset;
    std::int32_t m_coatingType = 1;
    std::int32_t m_finish = kUnset;
    std::int32_t m_grain = kUnset;
    QString m_customName = QStringLiteral("");
    bool m_customNameOnly = false;
    QString m_comment = QStringLiteral("");
    std::int32_t m_source = kUnset;
};

// The stock that a context begins with: white standard Letter for the job, the
// job's own size, colour and type for a special page. Coating type, finish,
// grain, comment and source keep their values.
void DefaultStock(Stock *stock, JobContext jobContext);

} // namespace kelvo
