#include "pdf_numbers.h"

#include <array>
#include <charconv>
#include <string_view>
#include <vector>

namespace kelvo::documents {

std::string numberText(double number)
{
    constexpr int decimals = 6;
    std::array<char, 400> digits; // the largest number has 309, and its decimals
    const auto [end, problem] =
        std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed, decimals);
    if (problem != std::errc())
        return "0";
    std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    if (text.find('.') == std::string_view::npos)
        return "0"; // infinite, or no number
    text = text.substr(0, text.find_last_not_of('0') + 1);
    if (text.ends_with('.'))
        text.remove_suffix(1);
    return text == "-0" ? "0" : std::string(text);
}

QPDFObjectHandle newNumber(double number)
{
    return QPDFObjectHandle::newReal(numberText(number));
}

QPDFObjectHandle newNumbers(std::initializer_list<double> numbers)
{
    std::vector<QPDFObjectHandle> items;
    items.reserve(numbers.size());
    for (const double number : numbers)
        items.push_back(newNumber(number));
    return QPDFObjectHandle::newArray(items);
}

QPDFObjectHandle newMatrix(const QPDFMatrix &matrix)
{
    return newNumbers({matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f});
}

QPDFObjectHandle newRectangle(const QPDFObjectHandle::Rectangle &rectangle)
{
    return newNumbers({rectangle.llx, rectangle.lly, rectangle.urx, rectangle.ury});
}

} // namespace kelvo::documents
