#pragma once

#include <cstddef>
#include <string_view>

// The inside of a text in quotes.
namespace qv::json {

/// Length of the UTF-8 sequence at p, 1 to 4; 0 if there is no valid one.
std::size_t sequenceLength(const char* p, const char* pEnd);

/// What a scan of a text's inside found.
struct StringScan {
    const char* pQuote = nullptr;    // the closing quote; null if the text is broken
    const char* pError = nullptr;    // where it is broken
    const char* pExpected = nullptr; // and what should stand there
    bool hasEscape = false;
};

/// Looks for the closing quote, from the first byte of a text on, and checks everything before it.
StringScan scanString(const char* p, const char* pEnd);

/// Writes a checked text with its escapes resolved to pTarget, which has room for text.size() bytes. Returns the number
/// of bytes written.
std::size_t resolveEscapes(std::string_view text, char* pTarget);

} // namespace qv::json
