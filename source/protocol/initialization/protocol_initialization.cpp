#include "protocol_initialization.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

#include <qv_common_c/common_argument.h>
#include <qv_common_c/common_convert.h>
#include <qv_common_c/common_stdlib.h>
#include <qv_common_c/common_string.h>
#include <qv_initialization/initialization_member.h>
#include <qv_initialization/initialization_text.h>

#include "database_status.h"
#include "database_trace.h"

// Not in the contract of the initialization library. Nobody comes to writeLines with a build of it that lacks this one.
extern "C" [[gnu::weak]] decltype(QvInitializationText_addMember) QvInitializationText_addMember;

namespace qv::database {
namespace {

constexpr const char* kReading = "parse";
constexpr const char* kWriting = "serialize";

void readValue(const Field& field, const char* pText, char* pData, std::size_t room)
{
    switch (field.written) {
    case Element::Bool:
        *reinterpret_cast<bool*>(pData) = QvCommonString_equal(pText, "true", true);
        break;
    case Element::Float: {
        const float value = QvCommonStdlib_strtof(pText, nullptr);
        std::memcpy(pData, &value, sizeof value);
        break;
    }
    case Element::Text:
        // A text is not bound to its field: with its terminator it runs on into the fields behind, up to the record's
        // end.
        std::memcpy(pData, pText, std::min(std::strlen(pText) + 1, room));
        break;
    default:
        QvCommonConvert_integer2Binary(pData, field.width, 0, QvCommonStdlib_strtol(pText, nullptr, 10));
        break;
    }
}

/// Toward zero, and to the nearest end of the range where the float has no integer.
std::int64_t truncated(float value)
{
    constexpr float kLimit = 9223372036854775808.0F;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= kLimit) {
        return std::numeric_limits<std::int64_t>::max();
    }
    return value < -kLimit ? std::numeric_limits<std::int64_t>::min() : static_cast<std::int64_t>(value);
}

/// The text of a field, in the record itself or in `digits`.
std::string_view writtenValue(const Field& field, const char* pData, std::size_t room, std::span<char> digits)
{
    std::int64_t number = 0;
    switch (field.written) {
    case Element::Bool:
        return QvCommonConvert_integer2Binary_(false, const_cast<char*>(pData), 1, 0) != 0 ? "true" : "false";
    case Element::Text: {
        const void* pEnd = std::memchr(pData, 0, room);
        return {pData, pEnd == nullptr ? room : static_cast<std::size_t>(static_cast<const char*>(pEnd) - pData)};
    }
    case Element::Float: {
        // The fraction is cut off, on purpose: the section holds whole numbers only.
        float value = 0;
        std::memcpy(&value, pData, sizeof value);
        number = truncated(value);
        break;
    }
    default:
        number = QvCommonConvert_integer2Binary_(field.isWrittenSigned, const_cast<char*>(pData), field.width, 0);
        break;
    }
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), static_cast<std::size_t>(result.ptr - digits.data())};
}

/// A copy on the heap, as members own their texts; null when memory runs out.
char* duplicate(std::string_view text)
{
    auto* pCopy = static_cast<char*>(std::malloc(text.size() + 1));
    if (pCopy != nullptr) {
        std::memcpy(pCopy, text.data(), text.size());
        pCopy[text.size()] = 0;
    }
    return pCopy;
}

/// A step of a codec that failed: traced at the row, under the codec's full name.
int traceRow(const Table& table, const Field& field, const char* pVerb, int status)
{
    char function[80];
    std::snprintf(function, sizeof function, "%s_%s", table.name, pVerb);
    return traceFailure({table.file, field.line, function}, status);
}

/// The row of a key. Files mostly hold the members in the order of the rows, so the search begins at the row behind the
/// last hit, which `next` remembers.
const Field* findRow(const Table& table, const char* pKey, std::size_t& next)
{
    const std::size_t number = table.rows.size();
    for (std::size_t i = 0; i < number; ++i) {
        const std::size_t row = (next + i) % number;
        if (QvCommonArgument_match(pKey, table.rows[row].key)) {
            next = row + 1;
            return &table.rows[row];
        }
    }
    return nullptr;
}

int writeMember(const Table& table, const Field& field, std::string_view value, QvInitializationSection_t* pSection)
{
    QvInitializationMember_t* pMember = nullptr;
    int status = QvInitializationMember_create(&pMember);
    if (status != kSuccess) {
        return traceRow(table, field, kWriting, status);
    }
    // Without memory for a text the member in hand is not released.
    pMember->pKey = duplicate(field.key);
    if (pMember->pKey == nullptr) {
        return traceRow(table, field, kWriting, kNoMemory);
    }
    pMember->pValue = duplicate(value);
    if (pMember->pValue == nullptr) {
        return traceRow(table, field, kWriting, kNoMemory);
    }
    void* pElement = pMember;
    status = QvCommonDQueue_pushBack(pSection->hMember, &pElement);
    if (status != kSuccess) {
        QvInitializationMember_delete(&pMember);
        return traceRow(table, field, kWriting, status);
    }
    return kSuccess;
}

/// Calls write(row, value as text) for each row.
template <class Write>
int writeMembers(const Table& table, const void* pRecord, const Write& write)
{
    const char* pBegin = static_cast<const char*>(pRecord);
    for (const Field& field : table.rows) {
        char digits[24];
        const int status = write(field, writtenValue(field, pBegin + field.offset, table.size - field.offset, digits));
        if (status != kSuccess) {
            return status;
        }
    }
    return kSuccess;
}

} // namespace

int readSection(const Table& table, QvInitializationSection_t* pSection, void* pRecord)
{
    char* pBegin = static_cast<char*>(pRecord);
    std::size_t next = 0;
    const std::size_t number = QvCommonDQueue_length(pSection->hMember);
    for (std::size_t i = 0; i < number; ++i) {
        void* pElement = nullptr;
        int status = QvCommonDQueue_popFront(pSection->hMember, &pElement);
        if (status != kSuccess) {
            return traceRow(table, table.rows.front(), kReading, status);
        }
        auto* pMember = static_cast<QvInitializationMember_t*>(pElement);
        const Field* pField = findRow(table, pMember->pKey, next);
        if (pField != nullptr && pMember->pValue != nullptr) {
            readValue(*pField, pMember->pValue, pBegin + pField->offset, table.size - pField->offset);
        }
        status = QvCommonDQueue_pushBack(pSection->hMember, &pElement);
        if (status != kSuccess) {
            QvInitializationMember_delete(&pMember);
            return traceRow(table, table.rows.front(), kReading, status);
        }
    }
    return kSuccess;
}

int writeSection(const Table& table, const void* pRecord, QvInitializationSection_t* pSection)
{
    return writeMembers(table, pRecord, [&](const Field& field, std::string_view value) {
        return writeMember(table, field, value, pSection);
    });
}

int writeLines(const Table& table, const void* pRecord, QvInitializationTextHandle_t hText)
{
    return writeMembers(table, pRecord, [&](const Field& field, std::string_view value) {
        const int status = QvInitializationText_addMember(hText, field.key, value.data(), value.size());
        return status == kSuccess ? status : traceRow(table, field, kWriting, status);
    });
}

} // namespace qv::database
