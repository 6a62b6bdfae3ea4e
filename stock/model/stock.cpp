#include "stock.h"

#include "ticket_values.h"

#include <array>

namespace kelvo {

namespace {

// Stored in tickets and in users' files: a key once written keeps its spelling.
const QString sizeKey = QStringLiteral("Size");
const QString widthKey = QStringLiteral("Width");
const QString lengthKey = QStringLiteral("Length");
const QString typeKey = QStringLiteral("Type");
const QString customTypeKey = QStringLiteral("CustomType");
const QString modulusKey = QStringLiteral("Modulus");
const QString colorKey = QStringLiteral("Color");
const QString customColorKey = QStringLiteral("CustomColor");
const QString weightKey = QStringLiteral("Weight");
const QString punchedKey = QStringLiteral("Punched");
const QString descriptionKey = QStringLiteral("Description");
const QString sidesCoatedKey = QStringLiteral("SidesCoated");
const QString coatingTypeKey = QStringLiteral("kCoatingType");
const QString finishKey = QStringLiteral("Finish");
const QString grainKey = QStringLiteral("kGrain");
const QString customNameKey = QStringLiteral("CustomName");
const QString customNameOnlyKey = QStringLiteral("CustomNameOnly");
const QString commentKey = QStringLiteral("CustomComment");
const QString sourceKey = QStringLiteral("Source");

// False, and `number` left alone, when there is no such number.
bool readNumber(const Dictionary &dictionary, const QString &key, std::int32_t *number)
{
    const std::optional<std::int32_t> found = integer32(dictionary, key);
    if (found)
        *number = *found;
    return found.has_value();
}

void readText(const Dictionary &dictionary, const QString &key, QString *text)
{
    if (const std::optional<QString> found = string(dictionary, key))
        *text = *found;
}

void writeNumber(Dictionary &dictionary, const QString &key, std::int32_t number)
{
    if (number != kUnset)
        WriteTicketValue(dictionary, key, number);
}

void writeText(Dictionary &dictionary, const QString &key, const QString &text)
{
    if (!text.isEmpty())
        dictionary.insert(key, text);
}

bool sameText(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

Stock::Stock(const Dictionary *dictionary)
    : m_color(kUnset)
{
    if (!dictionary)
        return;
    const Dictionary &in = *dictionary;
    if (readNumber(in, sizeKey, &m_size) && m_size == kStockSizeCustom) {
        readNumber(in, widthKey, &m_width);
        readNumber(in, lengthKey, &m_length);
    }
    readNumber(in, typeKey, &m_type);
    readText(in, customTypeKey, &m_customType);
    if (m_type == kStockTypePrecutTab || m_type == kStockTypeOrdered)
        readNumber(in, modulusKey, &m_modulus);
    readNumber(in, colorKey, &m_color);
    readText(in, customColorKey, &m_customColor);
    readNumber(in, weightKey, &m_weight);
    readNumber(in, punchedKey, &m_punched);
    readText(in, descriptionKey, &m_description);
    if (readNumber(in, sidesCoatedKey, &m_sidesCoated))
        readNumber(in, coatingTypeKey, &m_coatingType);
    readNumber(in, finishKey, &m_finish);
    readNumber(in, grainKey, &m_grain);
    readText(in, customNameKey, &m_customName);
    m_customNameOnly = boolean(in, customNameOnlyKey).value_or(false);
    readText(in, commentKey, &m_comment);
    readNumber(in, sourceKey, &m_source);
}

Stock &Stock::operator=(const Stock &other)
{
    if (this == &other)
        return *this;
    m_size = other.m_size;
    m_width = other.m_width;
    m_length = other.m_length;
    if (m_width != kUnset || m_length != kUnset)
        m_size = kStockSizeCustom;
    m_type = other.m_type;
    m_customType = other.m_customType;
    m_color = other.m_color;
    m_customColor = other.m_customColor;
    m_modulus = other.m_modulus;
    m_punched = other.m_punched;
    m_weight = other.m_weight;
    m_description = other.m_description;
    m_sidesCoated = other.m_sidesCoated;
    m_coatingType = other.m_coatingType;
    m_finish = other.m_finish;
    m_grain = other.m_grain;
    m_customName = other.m_customName;
    m_customNameOnly = other.m_customNameOnly;
    m_comment = other.m_comment;
    m_source = other.m_source;
    return *this;
}

bool Stock::operator==(const Stock &other) const
{
    const auto numbers = [](const Stock &stock) {
        return std::array{stock.m_size,        stock.m_width,
                          stock.m_length,      stock.m_color,
                          stock.m_type,        stock.m_modulus,
                          stock.m_weight,      stock.m_punched,
                          stock.m_sidesCoated, stock.m_coatingType,
                          stock.m_finish,      stock.m_grain,
                          stock.m_source,      std::int32_t(stock.m_customNameOnly)};
    };
    return numbers(*this) == numbers(other) && sameText(m_customColor, other.m_customColor)
        && sameText(m_customType, other.m_customType)
        && sameText(m_description, other.m_description)
        && sameText(m_customName, other.m_customName) && sameText(m_comment, other.m_comment);
}

Dictionary Stock::asTicket() const
{
    Dictionary dictionary;
    writeNumber(dictionary, sizeKey, m_size);
    if (m_size == kStockSizeCustom) {
        WriteTicketValue(dictionary, widthKey, m_width);
        WriteTicketValue(dictionary, lengthKey, m_length);
    }
    writeNumber(dictionary, typeKey, m_type);
    writeText(dictionary, customTypeKey, m_customType);
    writeNumber(dictionary, modulusKey, m_modulus);
    writeNumber(dictionary, colorKey, m_color);
    writeText(dictionary, customColorKey, m_customColor);
    writeNumber(dictionary, weightKey, m_weight);
    writeNumber(dictionary, punchedKey, m_punched);
    writeText(dictionary, descriptionKey, m_description);
    if (m_sidesCoated != kUnset) {
        WriteTicketValue(dictionary, sidesCoatedKey, m_sidesCoated);
        WriteTicketValue(dictionary, coatingTypeKey, m_coatingType);
    }
    writeNumber(dictionary, finishKey, m_finish);
    writeNumber(dictionary, grainKey, m_grain);
    writeText(dictionary, customNameKey, m_customName);
    if (m_customNameOnly)
        dictionary.insert(customNameOnlyKey, true);
    writeText(dictionary, commentKey, m_comment);
    writeNumber(dictionary, sourceKey, m_source);
    return dictionary;
}

void Stock::setSize(std::int32_t size)
{
    m_size = size;
    if (m_size != kStockSizeCustom) {
        m_width = kUnset;
        m_length = kUnset;
    }
}

void Stock::setWidth(std::int32_t width)
{
    m_width = width;
    if (m_width != kUnset)
        m_size = kStockSizeCustom;
}

void Stock::setLength(std::int32_t length)
{
    m_length = length;
    if (m_length != kUnset)
        m_size = kStockSizeCustom;
}

void DefaultStock(Stock *stock, JobContext jobContext)
{
    if (!stock)
        return;
    const bool isJob = jobContext == kJobContextJob;
    stock->setSize(isJob ? kStockSizeLetter : kUnset);
    stock->setColor(isJob ? kStockColorWhite : kUnset);
    stock->setType(isJob ? kStockTypeStandard : kUnset);
    stock->setPunched(kUnset);
    stock->setWeight(kUnset);
    stock->setModulus(kUnset);
    stock->setSidesCoated(kUnset);
    stock->setCustomType(QStringLiteral(""));
    stock->setCustomColor(QStringLiteral(""));
    stock->setDescription(QStringLiteral(""));
    stock->setCustomName(QStringLiteral(""));
    stock->setCustomNameOnly(false);
}

} // namespace kelvo
