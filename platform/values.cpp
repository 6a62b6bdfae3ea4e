#include "values.h"

#include <QMetaType>

#include <cmath>
#include <limits>

namespace kelvo {

namespace {

// 2^63, which a double holds exactly.
constexpr double twoTo63 = 9223372036854775808.0;

std::optional<double> storedReal(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return *static_cast<const double *>(value.constData());
    case QMetaType::Float:
        return static_cast<double>(*static_cast<const float *>(value.constData()));
    default:
        return std::nullopt;
    }
}

// Only for the stored types that are integers, so that toLongLong cannot convert.
std::optional<std::int64_t> storedInteger(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return value.toLongLong();
    case QMetaType::ULongLong:
    case QMetaType::ULong: {
        const quint64 number = value.toULongLong();
        if (number > static_cast<quint64>(std::numeric_limits<std::int64_t>::max()))
            return std::nullopt;
        return static_cast<std::int64_t>(number);
    }
    default:
        return std::nullopt;
    }
}

template <typename T>
std::optional<T> stored(const QVariant &value, QMetaType::Type type)
{
    if (value.typeId() != type)
        return std::nullopt;
    return *static_cast<const T *>(value.constData());
}

// The entry itself, so that reading one key never copies a whole subtree.
template <typename Reader>
auto entry(const Dictionary &in, const QString &key, Reader reader) -> decltype(reader(QVariant()))
{
    const auto found = in.constFind(key);
    if (found == in.constEnd())
        return std::nullopt;
    return reader(*found);
}

} // namespace

std::optional<std::int64_t> integer64(const QVariant &value)
{
    if (const auto number = storedInteger(value))
        return number;
    const auto number = storedReal(value);
    // The comparison is also what keeps NaN out.
    if (!number || !(*number >= -twoTo63 && *number < twoTo63) || std::trunc(*number) != *number)
        return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

std::optional<std::int32_t> integer32(const QVariant &value)
{
    const auto number = integer64(value);
    if (!number || *number < std::numeric_limits<std::int32_t>::min()
        || *number > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

std::optional<double> real(const QVariant &value)
{
    if (const auto number = storedReal(value))
        return number;
    const auto number = storedInteger(value);
    if (!number)
        return std::nullopt;
    const double exact = static_cast<double>(*number);
    // 2^63 - 1 rounds up to 2^63, which would not fit the way back.
    if (exact >= twoTo63 || static_cast<std::int64_t>(exact) != *number)
        return std::nullopt;
    return exact;
}

std::optional<bool> boolean(const QVariant &value)
{
    return stored<bool>(value, QMetaType::Bool);
}

std::optional<QString> string(const QVariant &value)
{
    return stored<QString>(value, QMetaType::QString);
}

std::optional<QByteArray> data(const QVariant &value)
{
    return stored<QByteArray>(value, QMetaType::QByteArray);
}

std::optional<Dictionary> dictionary(const QVariant &value)
{
    return stored<Dictionary>(value, QMetaType::QVariantMap);
}

std::optional<Array> array(const QVariant &value)
{
    if (value.typeId() == QMetaType::QStringList) {
        const auto &texts = *static_cast<const QStringList *>(value.constData());
        return Array(texts.cbegin(), texts.cend());
    }
    return stored<Array>(value, QMetaType::QVariantList);
}

std::optional<std::int64_t> integer64(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return integer64(value); });
}

std::optional<std::int32_t> integer32(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return integer32(value); });
}

std::optional<double> real(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return real(value); });
}

std::optional<bool> boolean(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return boolean(value); });
}

std::optional<QString> string(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return string(value); });
}

std::optional<Dictionary> dictionary(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return dictionary(value); });
}

std::optional<Array> array(const Dictionary &in, const QString &key)
{
    return entry(in, key, [](const QVariant &value) { return array(value); });
}

} // namespace kelvo
