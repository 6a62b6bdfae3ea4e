#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include <cstdint>
#include <optional>

// The value types of tickets and property lists, and the one way to read them.
//
//   dictionary QVariantMap    string  QString      integer  qint64 (any Qt integer is accepted)
//   array      QVariantList   data    QByteArray   real     double (float is accepted)
//   date       QDateTime, UTC                      boolean  bool
//
// Numbers are never read with QVariant::toInt: it takes "12", 2.7 and 2^40
// without complaint. The readers below look at the stored type first and count
// what does not fit as missing.
namespace kelvo {

using Dictionary = QVariantMap;
using Array = QVariantList;

// A signed 64-bit integer: any integer type, or a real without a fraction.
// A boolean is not a number.
std::optional<std::int64_t> integer64(const QVariant &value);
// The same, and within signed 32 bits.
std::optional<std::int32_t> integer32(const QVariant &value);
// A real, or an integer that a double holds exactly.
std::optional<double> real(const QVariant &value);
std::optional<bool> boolean(const QVariant &value);
std::optional<QString> string(const QVariant &value);
std::optional<QByteArray> data(const QVariant &value);
std::optional<Dictionary> dictionary(const QVariant &value);
std::optional<Array> array(const QVariant &value);

std::optional<std::int64_t> integer64(const Dictionary &in, const QString &key);
std::optional<std::int32_t> integer32(const Dictionary &in, const QString &key);
std::optional<double> real(const Dictionary &in, const QString &key);
std::optional<bool> boolean(const Dictionary &in, const QString &key);
std::optional<QString> string(const Dictionary &in, const QString &key);
std::optional<Dictionary> dictionary(const Dictionary &in, const QString &key);
std::optional<Array> array(const Dictionary &in, const QString &key);

} // namespace kelvo
