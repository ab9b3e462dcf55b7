#include "html.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qv::tools::page {

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            // What no page may hold becomes a blank.
            result += static_cast<unsigned char>(character) < 0x20 ? ' ' : character;
        }
    }
    return result;
}

std::string meaningOf(const char* pMeaning, bool isShort)
{
    std::string text = pMeaning == nullptr ? "" : pMeaning;
    std::erase(text, '`');
    if (isShort) {
        for (const char* pEnd : {" (", "; ", ": ", ". ", ", category", ", class"}) {
            text.resize(std::min(text.find(pEnd), text.size()));
        }
    }
    return escaped(text);
}

std::string axisNumber(double number)
{
    const double size = std::abs(number);
    if (size >= 1e6) {
        return shortNumber(number / 1e6) + "M";
    }
    return size >= 1e4 ? shortNumber(number / 1e3) + "k" : shortNumber(number);
}

std::string shortNumber(double number)
{
    if (!std::isfinite(number)) {
        return std::isnan(number) ? "NaN" : (number < 0 ? "-∞" : "∞");
    }
    char text[64];
    const auto result =
        std::to_chars(text, text + sizeof text, number == 0 ? 0.0 : number, std::chars_format::general, 6);
    return {text, result.ptr};
}

} // namespace qv::tools::page
