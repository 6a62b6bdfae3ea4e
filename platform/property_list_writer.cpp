#include "property_list.h"

#include "base64.h"
#include "characters.h"
#include "size_limits.h"
#include "texts.h"
#include "values.h"

#include <QDateTime>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kelvo {

namespace {

using Code = Error::Code;

class Writer
{
public:
    Result<QByteArray> write(const QVariant &list);

private:
    // One step of the key path that is being written; the steps stand on the
    // stack, so that a path costs nothing until it is needed.
    struct Step
    {
        const Step *outer;
        const QString *key; // null in an array
        qsizetype index;
    };

    bool value(const QVariant &variant, int depth, const Step *path);
    bool dictionary(const Dictionary &dictionary, int depth, const Step *path);
    template <typename List>
    bool array(const List &list, int depth, const Step *path);
    bool text(const char *element, const QString &string, const Step *path);
    bool date(const QDateTime &moment, const Step *path);
    bool real(double number, const Step *path);
    void integer(auto number);
    bool escaped(const QString &string);
    bool mayNest(int depth, const Step *path);
    bool fail(Code code, const QString &detail, const Step *path);
    void indent(int depth) { m_out.append(depth, '\t'); }

    QByteArray m_out;
    qint64 m_nodes = 0;
    std::optional<Error> m_error;
};

bool Writer::fail(Code code, const QString &detail, const Step *path)
{
    QString where;
    for (const Step *step = path; step; step = step->outer) {
        const QString name = step->key ? *step->key : QString::number(step->index);
        where = where.isEmpty() ? name : name + u'/' + where;
    }
    m_error = Error{code, where.isEmpty() ? translate("Files", "property list") : where, detail};
    return false;
}

// A container may begin at `depth`, which is 0 for the outermost value.
bool Writer::mayNest(int depth, const Step *path)
{
    return depth < limits::plistDepth
        || fail(Code::TooLarge,
                translate("Files", "nested more than %1 deep").arg(limits::plistDepth), path);
}

// Appends `string` as UTF-8; false when it holds what XML cannot.
bool Writer::escaped(const QString &string)
{
    const QChar *unit = string.constData();
    const QChar *const end = unit + string.size();
    std::array<char, 256> part;
    std::size_t used = 0;
    const auto flush = [&] {
        m_out.append(part.data(), static_cast<qsizetype>(used));
        used = 0;
    };
    const auto put = [&](std::string_view bytes) {
        for (const char byte : bytes)
            part[used++] = byte;
    };
    for (; unit != end; ++unit) {
        if (used > part.size() - 8) // room for the longest replacement
            flush();
        char32_t code = unit->unicode();
        if (code < 0x80) {
            switch (code) {
            case '&':
                put("&amp;");
                break;
            case '<':
                put("&lt;");
                break;
            case '>':
                put("&gt;");
                break;
            case '\r': // bare, it would be read as a newline
                put("&#13;");
                break;
            default:
                if (!isKept(code))
                    return false;
                part[used++] = static_cast<char>(code);
            }
            continue;
        }
        if (unit->isHighSurrogate() && unit + 1 != end && unit[1].isLowSurrogate()) {
            code = QChar::surrogateToUcs4(unit[0], unit[1]);
            ++unit;
        } else if (!isKept(code)) {
            return false;
        }
        const auto tail = [&](int shift) {
            part[used++] = static_cast<char>(0x80 | (code >> shift & 0x3F));
        };
        if (code < 0x800) {
            part[used++] = static_cast<char>(0xC0 | code >> 6);
        } else if (code < 0x10000) {
            part[used++] = static_cast<char>(0xE0 | code >> 12);
            tail(6);
        } else {
            part[used++] = static_cast<char>(0xF0 | code >> 18);
            tail(12);
            tail(6);
        }
        tail(0);
    }
    flush();
    return true;
}

bool Writer::text(const char *element, const QString &string, const Step *path)
{
    m_out.append('<').append(element).append('>');
    if (!escaped(string))
        return fail(Code::Unsupported,
                    element == QLatin1String("key")
                        ? translate("Files", "the key holds a character that XML cannot hold")
                        : translate("Files", "the string holds a character that XML cannot hold"),
                    path);
    m_out.append("</").append(element).append(">\n");
    return true;
}

bool Writer::date(const QDateTime &moment, const Step *path)
{
    const QDateTime utc = moment.toUTC();
    if (!utc.isValid() || utc.date().year() < 1 || utc.date().year() > 9999)
        return fail(Code::OutOfRange, translate("Files", "a date outside the years 1 to 9999"),
                    path);
    m_out.append("<date>")
        .append(utc.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")).toLatin1())
        .append("</date>\n");
    return true;
}

void Writer::integer(auto number)
{
    std::array<char, 24> digits; // a sign and 20 digits are the most
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    m_out.append("<integer>").append(digits.data(), end - digits.data()).append("</integer>\n");
}

bool Writer::real(double number, const Step *path)
{
    if (!std::isfinite(number))
        return fail(Code::OutOfRange, translate("Files", "a number that is not finite"), path);
    std::array<char, 32> digits; // the shortest form has at most 24 characters
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    m_out.append("<real>").append(digits.data(), end - digits.data()).append("</real>\n");
    return true;
}

bool Writer::dictionary(const Dictionary &dictionary, int depth, const Step *path)
{
    if (!mayNest(depth, path))
        return false;
    if (dictionary.isEmpty()) {
        m_out.append("<dict/>\n");
        return true;
    }
    m_out.append("<dict>\n");
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        const Step step{path, &entry.key(), 0};
        indent(depth + 1);
        if (!text("key", entry.key(), &step))
            return false;
        indent(depth + 1);
        if (!value(entry.value(), depth + 1, &step))
            return false;
    }
    indent(depth);
    m_out.append("</dict>\n");
    return true;
}

template <typename List>
bool Writer::array(const List &list, int depth, const Step *path)
{
    if (!mayNest(depth, path))
        return false;
    if (list.isEmpty()) {
        m_out.append("<array/>\n");
        return true;
    }
    m_out.append("<array>\n");
    for (qsizetype i = 0; i < list.size(); ++i) {
        const Step step{path, nullptr, i};
        indent(depth + 1);
        if (!value(list[i], depth + 1, &step))
            return false;
    }
    indent(depth);
    m_out.append("</array>\n");
    return true;
}

bool Writer::value(const QVariant &variant, int depth, const Step *path)
{
    if (++m_nodes > limits::plistNodes)
        return fail(Code::TooLarge,
                    translate("Files", "more than %1 values").arg(limits::plistNodes), path);
    if (m_out.size() > limits::plistBytes)
        return fail(Code::TooLarge,
                    translate("Files", "more than %1 bytes").arg(limits::plistBytes), path);
    const void *stored = variant.constData();
    switch (variant.typeId()) {
    case QMetaType::Bool:
        m_out.append(*static_cast<const bool *>(stored) ? "<true/>\n" : "<false/>\n");
        return true;
    case QMetaType::QString:
        return text("string", *static_cast<const QString *>(stored), path);
    case QMetaType::QVariantMap:
        return dictionary(*static_cast<const Dictionary *>(stored), depth, path);
    case QMetaType::QVariantList:
        return array(*static_cast<const Array *>(stored), depth, path);
    case QMetaType::QStringList:
        return array(*static_cast<const QStringList *>(stored), depth, path);
    case QMetaType::Double:
        return real(*static_cast<const double *>(stored), path);
    case QMetaType::Float: // as a double, so that the value stays what it is
        return real(static_cast<double>(*static_cast<const float *>(stored)), path);
    case QMetaType::QByteArray:
        m_out.append("<data>");
        appendBase64(m_out, *static_cast<const QByteArray *>(stored));
        m_out.append("</data>\n");
        return true;
    case QMetaType::QDateTime:
        return date(*static_cast<const QDateTime *>(stored), path);
    default:
        break;
    }
    switch (variant.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        if (const auto number = integer64(variant)) {
            integer(*number);
            return true;
        }
        return fail(Code::OutOfRange, translate("Files", "an integer beyond signed 64 bits"), path);
    default:
        return fail(Code::WrongType,
                    variant.isValid() ? translate("Files", "a property list holds no %1")
                                            .arg(QLatin1String(variant.typeName()))
                                      : translate("Files", "there is no value"),
                    path);
    }
}

Result<QByteArray> Writer::write(const QVariant &list)
{
    m_out.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                 "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                 "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                 "<plist version=\"1.0\">\n");
    if (!value(list, 0, nullptr))
        return *std::move(m_error);
    m_out.append("</plist>\n");
    if (m_out.size() > limits::plistBytes)
        return Error{Code::TooLarge, translate("Files", "property list"),
                     translate("Files", "more than %1 bytes").arg(limits::plistBytes)};
    return std::move(m_out);
}

} // namespace

Result<QByteArray> CFPropertyListCreateXMLData(const QVariant &list)
{
    return Writer().write(list);
}

} // namespace kelvo
