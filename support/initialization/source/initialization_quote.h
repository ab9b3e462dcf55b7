#pragma once

#include <optional>
#include <string>
#include <string_view>

// The characters that mean something in an initialization file, and texts in quotes.
namespace qv::initialization {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kCommentMarks = ";#";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view trimLeft(std::string_view text);
std::string_view trim(std::string_view text);

struct Unquoted {
    std::string text;      // what the quotes stand for
    std::string_view rest; // what follows the closing quote and the blanks behind it
};

/// Reads a text in quotes at the start of `text`. Nothing when there is none, or its closing quote is missing.
std::optional<Unquoted> unquote(std::string_view text);

/// True where there is nothing more on a line but perhaps a comment.
bool isEndOrComment(std::string_view rest);

/// Whether a key or a value would be read differently without quotes.
bool isKeyQuoted(std::string_view key);
bool isValueQuoted(std::string_view value);

/// Each appends the text to a document, in quotes where it would be read differently without.
void appendHeader(std::string& document, std::string_view header);
void appendKey(std::string& document, std::string_view key);
void appendValue(std::string& document, std::string_view value);

} // namespace qv::initialization
