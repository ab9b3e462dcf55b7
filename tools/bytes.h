#pragma once

// Bytes of a record as a value of C, and a number as text.

#include <charconv>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include <qv_database_c/database_catalog.h>

namespace qv::tools {

/// A value, wherever its bytes stand.
template <typename T>
T as(const std::byte* pBytes)
{
    T value{};
    std::memcpy(&value, pBytes, sizeof value);
    return value;
}

/// The characters of a text, which may fill its field without an end.
inline std::string_view charactersOf(const QvDatabaseCatalogField_t& field, const std::byte* pBytes)
{
    const char* pText = reinterpret_cast<const char*>(pBytes);
    return {pText, strnlen(pText, field.width)};
}

/// As many digits as tell a number from any other of its type.
template <typename T>
std::string digitsOf(T number)
{
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, number);
    return {text, result.ptr};
}

} // namespace qv::tools
