#pragma once

#include <cstddef>
#include <string_view>

// The signs of the language, for who looks at a text by single characters.
namespace qv::json {

inline bool startsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-';
}

inline bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

inline bool isEndBracket(char c)
{
    return c == ']' || c == '}';
}

/// The words of the language that begin at p: length 0 if none does.
inline std::size_t wordLength(const char* p, const char* pEnd)
{
    const std::string_view rest(p, static_cast<std::size_t>(pEnd - p));
    for (const std::string_view word : {"true", "false", "null"}) {
        if (rest.starts_with(word)) {
            return word.size();
        }
    }
    return 0;
}

inline bool startsValue(const char* p, const char* pEnd)
{
    return *p == '"' || *p == '[' || *p == '{' || startsNumber(*p) || wordLength(p, pEnd) != 0;
}

} // namespace qv::json
