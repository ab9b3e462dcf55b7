#include "initialization_quote.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace qv::initialization {

namespace {

constexpr std::string_view kHexadecimal = "0123456789ABCDEF";

/// The escapes of one letter, and what they stand for.
struct Escape {
    char letter;
    char byte;
};
constexpr std::array<Escape, 5> kEscapes{{{'\\', '\\'}, {'"', '"'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

constexpr bool isControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F;
}

constexpr bool isAnyOf(char character, std::string_view set)
{
    // A loop: the sets are a few characters, and find() calls memchr() for them.
    for (const char one : set) {
        if (one == character) {
            return true;
        }
    }
    return false;
}

/// The value of a hexadecimal digit, or -1.
int digitOf(char character)
{
    if (character >= '0' && character <= '9') {
        return character - '0';
    }
    if (character >= 'A' && character <= 'F') {
        return character - 'A' + 10;
    }
    if (character >= 'a' && character <= 'f') {
        return character - 'a' + 10;
    }
    return -1;
}

/// Appends what the escape at the start of `text`, a backslash with something behind it, stands for. Gives the number
/// of characters it took.
std::size_t readEscape(std::string_view text, std::string& result)
{
    for (const Escape& escape : kEscapes) {
        if (escape.letter == text[1]) {
            result += escape.byte;
            return 2;
        }
    }
    if (text[1] == 'x' && text.size() >= 4) {
        const int high = digitOf(text[2]);
        const int low = digitOf(text[3]);
        // The zero byte stays an escape: a C string can't hold it.
        if (high >= 0 && low >= 0 && high + low > 0) {
            result += static_cast<char>(high * 16 + low);
            return 4;
        }
    }
    result += text[0];
    return 1;
}

void appendQuoted(std::string& document, std::string_view text)
{
    document += '"';
    for (const char character : text) {
        const auto* pEscape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                           [character](const Escape& escape) { return escape.byte == character; });
        if (pEscape != kEscapes.end()) {
            document += '\\';
            document += pEscape->letter;
        } else if (isControl(character)) {
            const auto byte = static_cast<unsigned char>(character);
            document += "\\x";
            document += kHexadecimal[byte / 16];
            document += kHexadecimal[byte % 16];
        } else {
            document += character;
        }
    }
    document += '"';
}

/// What stands somewhere in a text: marks for a whole text are those of its characters together.
constexpr uint8_t kMisread = 1; // a character that is misread wherever it stands
constexpr uint8_t kEqual = 2;
constexpr uint8_t kBracket = 4;

constexpr auto kMarks = [] {
    std::array<uint8_t, 256> marks{};
    for (std::size_t byte = 0; byte < marks.size(); ++byte) {
        const auto character = static_cast<char>(byte);
        marks[byte] = isControl(character) || isAnyOf(character, kCommentMarks) ? kMisread : 0;
    }
    marks['='] = kEqual;
    marks['['] = kBracket;
    marks[']'] = kBracket;
    return marks;
}();

/// True for a text that, wherever it stands, would be read differently or could be misread, or that has one of the
/// marks.
bool needsQuotes(std::string_view text, uint8_t marks = 0)
{
    if (text.empty()) {
        return false;
    }
    uint8_t found = 0;
    for (const char character : text) {
        found |= kMarks[static_cast<unsigned char>(character)];
    }
    return (found & (marks | kMisread)) != 0 || isAnyOf(text.front(), kBlanks) || isAnyOf(text.back(), kBlanks) ||
           text.front() == '"';
}

void append(std::string& document, std::string_view text, bool isQuoted)
{
    if (isQuoted) {
        appendQuoted(document, text);
    } else {
        document += text;
    }
}

} // namespace

std::string_view trimLeft(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text;
}

std::string_view trim(std::string_view text)
{
    return trimLeft(text.substr(0, text.find_last_not_of(kBlanks) + 1));
}

std::optional<Unquoted> unquote(std::string_view text)
{
    if (!text.starts_with('"')) {
        return std::nullopt;
    }
    Unquoted result;
    std::size_t i = 1;
    while (i < text.size() && text[i] != '"') {
        if (text[i] == '\\' && i + 1 < text.size()) {
            i += readEscape(text.substr(i), result.text);
        } else {
            result.text += text[i];
            i++;
        }
    }
    if (i == text.size()) {
        return std::nullopt;
    }
    result.rest = trimLeft(text.substr(i + 1));
    return result;
}

bool isEndOrComment(std::string_view rest)
{
    return rest.empty() || isAnyOf(rest.front(), kCommentMarks);
}

void appendHeader(std::string& document, std::string_view header)
{
    append(document, header, header.empty() || needsQuotes(header, kBracket));
}

bool isKeyQuoted(std::string_view key)
{
    // A byte order mark counts as text anywhere but at the start of the document, which is where a key may stand.
    return key.empty() || key.front() == '[' || key.starts_with(kByteOrderMark) || needsQuotes(key, kEqual);
}

bool isValueQuoted(std::string_view value)
{
    return needsQuotes(value);
}

void appendKey(std::string& document, std::string_view key)
{
    append(document, key, isKeyQuoted(key));
}

void appendValue(std::string& document, std::string_view value)
{
    append(document, value, isValueQuoted(value));
}

} // namespace qv::initialization
