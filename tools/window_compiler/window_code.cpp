#include "window_code.h"

#include <QCryptographicHash>

namespace kelvo {

namespace {

// Three octal digits, so that no character behind it becomes a part of it.
QByteArray literal(const QByteArray &text)
{
    QByteArray quoted = "\"";
    for (const char c : text) {
        if (c >= ' ' && c < 0x7f && c != '"' && c != '\\' && c != '?')
            quoted += c;
        else
            quoted += '\\' + QByteArray::number(std::uint8_t(c), 8).rightJustified(3, '0');
    }
    return quoted + "\\0\"";
}

} // namespace

void WindowCode::begin(const QString &name, const QByteArray &file)
{
    m_windows.append({name, text(name), QCryptographicHash::hash(file, QCryptographicHash::Md5),
                      m_steps.size()});
}

void WindowCode::add(BuildStep step, std::initializer_list<std::int32_t> operands)
{
    m_steps.append(std::int32_t(step));
    m_steps.append(QList<std::int32_t>(operands));
}

void WindowCode::add(BuildStep step, const QString &property, const QList<std::int32_t> &operands)
{
    add(step, {text(property)});
    m_steps.append(operands);
}

void WindowCode::addList(BuildStep step, const QList<std::int32_t> &numbers)
{
    add(step, {std::int32_t(numbers.size())});
    m_steps.append(numbers);
}

std::int32_t WindowCode::text(const QString &text)
{
    const auto known = m_placeOf.constFind(text);
    if (known != m_placeOf.cend())
        return *known;
    const QByteArray bytes = text.toUtf8();
    const std::int32_t place = m_textsEnd;
    m_texts.append(bytes);
    m_textsEnd += std::int32_t(bytes.size()) + 1;
    m_placeOf.insert(text, place);
    return place;
}

QByteArray WindowCode::source() const
{
    QByteArray code = "// Made by tools/window_compiler of the bundle's .ui files.\n"
                      "#include \"compiled_windows.h\"\n\n#include <cstring>\n\n"
                      "namespace {\n\nconstexpr char texts[] =";
    for (const QByteArray &text : m_texts)
        code += "\n    " + literal(text);
    code += ";\n\nconstexpr std::int32_t steps[] = {";
    auto window = m_windows.cbegin();
    for (qsizetype i = 0; i < m_steps.size(); ++i) {
        if (window != m_windows.cend() && window->start == i)
            code += "\n    // " + (window++)->name.toUtf8() + "\n    ";
        code += QByteArray::number(m_steps[i]) + ',';
    }
    code += "\n};\n\nconstexpr kelvo::CompiledWindow windows[] = {\n";
    for (const Window &each : m_windows) {
        code += "    {" + QByteArray::number(each.nameText) + ", " + QByteArray::number(each.start)
            + ", {0x" + each.fileHash.toHex(',').replace(",", ", 0x") + "}},\n";
    }
    code += "};\n\nconstexpr kelvo::CompiledWindows table = {windows, "
        + QByteArray::number(m_windows.size())
        + ", steps, texts};\n\n} // namespace\n\n"
          "extern \"C\" __attribute__((visibility(\"default"
          "\"))) const kelvo::CompiledWindows *"
        + compiledWindowsEntry
        + "(const char *version)\n{\n"
          "    return std::strcmp(version, KELVO_VERSION) == 0 ? &table : nullptr;\n}\n";
    return code;
}

} // namespace kelvo
