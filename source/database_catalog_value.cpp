// One element of a record, by its place: as a number and as a text. What doesn't fit changes nothing.

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include <qv_common_c/common_convert.h>

#include "database_catalog.h"
#include "database_status.h"

using namespace qv::database;

namespace {

/// An element of a record and all that is known of it.
struct Slot {
    char* pData = nullptr;
    QvDatabaseCatalogField_t field = {};

    bool isText() const { return field.element == QvDatabaseCatalogElement_Text; }
    bool isKept() const { return field.internal[kIsKept] != 0; }
};

/// The address of a place in a record. 0; 6 past the end of a list on the heap; 13 for a place that is no element.
int locate(const QvDatabaseCatalogPlace_t* pPlace, const void* pRecord, Slot& slot)
{
    slot.field.size = sizeof slot.field;
    if (pRecord == nullptr || QvDatabaseCatalog_field(pPlace, &slot.field) != kSuccess ||
        pPlace->stop != QvDatabaseCatalogStop_None || pPlace->rank != 0 ||
        slot.field.element >= QvDatabaseCatalogElement_Record) {
        return kBadArgument;
    }
    const char* pBegin = static_cast<const char*>(pRecord);
    if (pPlace->heapOffset != SIZE_MAX) {
        std::size_t length = 0;
        std::memcpy(&length, pBegin + pPlace->heapCounter, sizeof length);
        std::memcpy(&pBegin, pBegin + pPlace->heapOffset, sizeof pBegin);
        if (pBegin == nullptr || pPlace->offset / pPlace->heapItem >= length) {
            return kCapacity;
        }
    }
    slot.pData = const_cast<char*>(pBegin) + pPlace->offset; // who only reads has a const record and writes nothing
    return kSuccess;
}

template <class T>
T load(const Slot& slot)
{
    T value{};
    std::memcpy(&value, slot.pData, sizeof value);
    return value;
}

template <class T>
int store(const Slot& slot, T value)
{
    std::memcpy(slot.pData, &value, sizeof value);
    return kSuccess;
}

std::int64_t loadInteger(const Slot& slot)
{
    return QvCommonConvert_integer2Binary_(slot.field.isSigned, slot.pData, slot.field.width, 0);
}

bool isInRange(const Slot& slot, double number)
{
    return number >= slot.field.minimum && number <= slot.field.maximum;
}

/// Stores an integer given as its sign and amount.
int storeInteger(const Slot& slot, bool isNegative, std::uint64_t amount)
{
    const std::size_t bits = slot.field.width * 8 - (slot.field.isSigned ? 1 : 0);
    const std::uint64_t most = bits == 64 ? UINT64_MAX : (std::uint64_t{1} << bits) - 1;
    const std::uint64_t limit = !isNegative ? most : slot.field.isSigned ? most + 1 : 0;
    const double number = isNegative ? -static_cast<double>(amount) : static_cast<double>(amount);
    if (amount > limit || !isInRange(slot, number)) {
        return kCapacity;
    }
    const std::uint64_t value = isNegative ? 0 - amount : amount;
    std::memcpy(slot.pData, &value, slot.field.width); // little-endian, as all records are
    return kSuccess;
}

int storeBool(const Slot& slot, double number)
{
    return number == 0 || number == 1 ? store(slot, number == 1) : static_cast<int>(kCapacity);
}

int storeNumber(const Slot& slot, double number)
{
    switch (slot.field.element) {
    case QvDatabaseCatalogElement_Bool:
        return storeBool(slot, number);
    case QvDatabaseCatalogElement_Integer:
        if (std::trunc(number) != number || std::fabs(number) >= 0x1p64) {
            return kCapacity;
        }
        return storeInteger(slot, number < 0, static_cast<std::uint64_t>(std::fabs(number)));
    case QvDatabaseCatalogElement_Float:
        if (!(std::fabs(number) <= static_cast<double>(std::numeric_limits<float>::max())) ||
            !isInRange(slot, number)) {
            return kCapacity;
        }
        return store(slot, static_cast<float>(number));
    default:
        return std::isfinite(number) && isInRange(slot, number) ? store(slot, number) : static_cast<int>(kCapacity);
    }
}

/// Whether a number that its type can't hold is too close to zero rather than too far from it.
template <class T>
bool isTiny(std::string_view text)
{
    double wide = 0;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), wide);
    return sizeof(T) < sizeof wide && error == std::errc{} && std::fabs(wide) < 1;
}

/// Stores the text of a float or double, rounded once.
template <class T>
int storeReal(const Slot& slot, std::string_view text)
{
    T value{};
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (pEnd != text.data() + text.size() || error == std::errc::invalid_argument) {
        return QvCommonError_Syntax;
    }
    if (error == std::errc::result_out_of_range && isTiny<T>(text) && isInRange(slot, 0)) {
        return store(slot, T{}); // as setting the number does
    }
    const bool fits = error == std::errc{} && std::isfinite(value) && isInRange(slot, static_cast<double>(value));
    return fits ? store(slot, value) : static_cast<int>(kCapacity);
}

int storeIntegerText(const Slot& slot, std::string_view text)
{
    QvDatabaseCatalogValue_t named{};
    named.size = sizeof named;
    for (std::size_t i = 0; QvDatabaseCatalog_value(&slot.field, i, &named) == kSuccess; ++i) {
        if (text == named.pName || text == named.pShort) {
            return storeNumber(slot, static_cast<double>(named.value));
        }
    }
    const bool isNegative = text.starts_with('-');
    const std::string_view digits = text.substr(isNegative ? 1 : 0);
    std::uint64_t amount = 0;
    const auto [pEnd, error] = std::from_chars(digits.data(), digits.data() + digits.size(), amount);
    if (pEnd != digits.data() + digits.size() || error == std::errc::invalid_argument) {
        return QvCommonError_Syntax;
    }
    return error == std::errc{} ? storeInteger(slot, isNegative, amount) : static_cast<int>(kCapacity);
}

int storeText(const Slot& slot, std::string_view text)
{
    switch (slot.field.element) {
    case QvDatabaseCatalogElement_Bool:
        if (text == "true" || text == "1") {
            return store(slot, true);
        }
        return text == "false" || text == "0" ? store(slot, false) : static_cast<int>(QvCommonError_Syntax);
    case QvDatabaseCatalogElement_Integer:
        return storeIntegerText(slot, text);
    case QvDatabaseCatalogElement_Float:
        return storeReal<float>(slot, text);
    case QvDatabaseCatalogElement_Double:
        return storeReal<double>(slot, text);
    default:
        if (text.size() >= slot.field.width) {
            return kCapacity;
        }
        std::memset(slot.pData, 0, slot.field.width);
        std::memcpy(slot.pData, text.data(), text.size());
        return kSuccess;
    }
}

/// The element's text, in the record or in `digits`.
std::string_view loadText(const Slot& slot, std::span<char> digits)
{
    char* pBegin = digits.data();
    char* pEnd = pBegin + digits.size();
    std::to_chars_result result{};
    switch (slot.field.element) {
    case QvDatabaseCatalogElement_Bool:
        return *slot.pData != 0 ? "true" : "false"; // an image may hold any byte
    case QvDatabaseCatalogElement_Integer: {
        const std::int64_t value = loadInteger(slot);
        result = slot.field.isSigned ? std::to_chars(pBegin, pEnd, value)
                                     : std::to_chars(pBegin, pEnd, static_cast<std::uint64_t>(value));
        break;
    }
    case QvDatabaseCatalogElement_Float:
        result = std::to_chars(pBegin, pEnd, load<float>(slot));
        break;
    case QvDatabaseCatalogElement_Double:
        result = std::to_chars(pBegin, pEnd, load<double>(slot));
        break;
    default:
        return {slot.pData, strnlen(slot.pData, slot.field.width)};
    }
    return {pBegin, static_cast<std::size_t>(result.ptr - pBegin)};
}

} // namespace

int QvDatabaseCatalog_number(const QvDatabaseCatalogPlace_t* pPlace, const void* pRecord, double* pNumber)
{
    Slot slot;
    const int status = locate(pPlace, pRecord, slot);
    if (status != kSuccess || pNumber == nullptr || slot.isText()) {
        return status != kSuccess ? status : static_cast<int>(kBadArgument);
    }
    switch (slot.field.element) {
    case QvDatabaseCatalogElement_Bool:
        *pNumber = *slot.pData != 0 ? 1 : 0;
        break;
    case QvDatabaseCatalogElement_Integer: {
        const std::int64_t value = loadInteger(slot);
        *pNumber =
            slot.field.isSigned ? static_cast<double>(value) : static_cast<double>(static_cast<std::uint64_t>(value));
        break;
    }
    case QvDatabaseCatalogElement_Float:
        *pNumber = static_cast<double>(load<float>(slot));
        break;
    default:
        *pNumber = load<double>(slot);
        break;
    }
    return kSuccess;
}

int QvDatabaseCatalog_setNumber(const QvDatabaseCatalogPlace_t* pPlace, void* pRecord, double number)
{
    Slot slot;
    const int status = locate(pPlace, pRecord, slot);
    if (status != kSuccess || slot.isText() || slot.isKept()) {
        return status != kSuccess ? status : static_cast<int>(kBadArgument);
    }
    return storeNumber(slot, number);
}

int QvDatabaseCatalog_text(const QvDatabaseCatalogPlace_t* pPlace, const void* pRecord, char* pText,
                           std::size_t capacity, std::size_t* pLength)
{
    Slot slot;
    const int status = locate(pPlace, pRecord, slot);
    if (status != kSuccess) {
        return status;
    }
    char digits[32];
    const std::string_view text = loadText(slot, digits);
    if (pLength != nullptr) {
        *pLength = text.size();
    }
    if (pText == nullptr) {
        return pLength == nullptr ? kBadArgument : kSuccess;
    }
    if (text.size() >= capacity) {
        return kCapacity;
    }
    std::memcpy(pText, text.data(), text.size());
    pText[text.size()] = 0;
    return kSuccess;
}

int QvDatabaseCatalog_setText(const QvDatabaseCatalogPlace_t* pPlace, void* pRecord, const char* pText)
{
    Slot slot;
    const int status = locate(pPlace, pRecord, slot);
    if (status != kSuccess || pText == nullptr || slot.isKept()) {
        return status != kSuccess ? status : static_cast<int>(kBadArgument);
    }
    return storeText(slot, pText);
}
