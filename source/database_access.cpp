// All lists are read and written by two walks over nested arrays, one a direction; an accessor adds the kind of
// element.

#include "database_access.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <span>

#include <qv_common_c/common_convert.h>

#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"

// Not in the contract of the JSON library: with a build of it that lacks this one, lists grow as they are filled.
extern "C" [[gnu::weak]] decltype(QvJsonValue_reserve) QvJsonValue_reserve;

namespace qv::database {
namespace {

using Extents = std::span<const std::size_t>;

/// A boolean as the byte it is: an image may have stored any value in it.
bool isTrue(const bool* pData)
{
    unsigned char byte = 0;
    std::memcpy(&byte, pData, sizeof byte);
    return byte != 0;
}

/// The items of a list, one behind the other.
std::span<QvJsonValue_t> itemsOf(QvJsonValue_t* pList)
{
    const std::size_t number = QvJsonValue_size(pList);
    return number == 0 ? std::span<QvJsonValue_t>{} : std::span{pList->holder.pArray->pValues, number};
}

/// Calls store(item, index in the record) for each element that document and record both hold. The index in the record
/// follows from the extents alone, so a short row leaves the rows behind it in their places.
template <class Store>
void readList(QvJsonValue_t* pList, Extents extents, std::size_t base, const Store& store)
{
    const std::span<QvJsonValue_t> items = itemsOf(pList);
    const std::size_t number = std::min(extents.front(), items.size());
    for (std::size_t i = 0; i < number; ++i) {
        if (extents.size() == 1) {
            store(items[i], base + i);
        } else {
            readList(&items[i], extents.subspan(1), (base + i) * extents[1], store);
        }
    }
}

template <class Store>
int readMember(QvJsonValue_t* pValue, const char* pKey, std::initializer_list<std::size_t> extents, const Store& store)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    readList(pMember, {extents.begin(), extents.size()}, 0, store);
    return kSuccess;
}

/// Makes room for the items that a list is about to get.
void reserve(QvJsonValue_t* pList, std::size_t number)
{
    if (QvJsonValue_reserve != nullptr && number != 0) {
        // Without memory for it the adding fails, and says so.
        static_cast<void>(QvJsonValue_reserve(pList, QvJsonValue_size(pList) + number));
    }
}

/// Calls add(list, index in the record) for each element of the record; lists inside are attached before they are
/// filled.
template <class Add>
int writeList(QvJsonValue_t* pList, Extents extents, std::size_t base, const Place& place, const Add& add)
{
    reserve(pList, extents.front());
    for (std::size_t i = 0; i < extents.front(); ++i) {
        int status = 0;
        if (extents.size() == 1) {
            status = add(pList, base + i);
            if (status != kSuccess) {
                return traceFailure(place, status);
            }
            continue;
        }
        QvJsonValue_t* pRow = nullptr;
        status = QvJsonValue_create(QvJsonValueType_Array, &pRow);
        if (status != kSuccess) {
            return traceFailure(place, status);
        }
        status = QvJsonValue_addValueToArray(pList, &pRow);
        if (status != kSuccess) {
            QvJsonValue_delete(&pRow);
            return traceFailure(place, status);
        }
        status = writeList(pRow, extents.subspan(1), (base + i) * extents[1], place, add);
        if (status != kSuccess) {
            return status;
        }
    }
    return kSuccess;
}

/// A list of one level stands in the member that the lookup makes: with no elements it stays empty.
template <class Add>
int writeFlat(QvJsonValue_t* pValue, const char* pKey, std::size_t length, const Place& place, const Add& add)
{
    return writeList(writableMember(pValue, pKey), {&length, 1}, 0, place, add);
}

/// A list of lists is an array of its own, also with no elements.
template <class Add>
int writeNested(QvJsonValue_t* pValue, const char* pKey, std::initializer_list<std::size_t> extents, const Place& place,
                const Add& add)
{
    QvJsonValue_t* pOuter = nullptr;
    int status = QvJsonValue_create(QvJsonValueType_Array, &pOuter);
    if (status != kSuccess) {
        return traceFailure(place, status);
    }
    status = QvJsonValue_addValueToObject(pValue, pKey, &pOuter);
    if (status != kSuccess) {
        QvJsonValue_delete(&pOuter);
        return traceFailure(place, status);
    }
    return writeList(pOuter, {extents.begin(), extents.size()}, 0, place, add);
}

int traced(const Place& place, int status)
{
    return status == kSuccess ? status : traceFailure(place, status);
}

/// A number as a float. Most are of their own kind and need no call; what becomes of the others the JSON library says.
inline double floatOf(QvJsonValue_t& item)
{
    return item.type == QvJsonValueType_Float ? item.holder._float : QvJsonValue_asFloat(&item);
}

inline ssize_t integerOf(QvJsonValue_t& item)
{
    return item.type == QvJsonValueType_Integer ? item.holder.integer : QvJsonValue_asInteger(&item);
}

auto floatStore(float* pData)
{
    return [pData](QvJsonValue_t& item, std::size_t at) { pData[at] = static_cast<float>(floatOf(item)); };
}

auto floatAdd(const float* pData)
{
    return [pData](QvJsonValue_t* pList, std::size_t at) {
        return QvJsonValue_addFloatToArray(pList, static_cast<double>(pData[at]));
    };
}

/// Stores the low bytes of integers of type T.
template <class T>
auto narrowStore(void* pData)
{
    return [pData](QvJsonValue_t& item, std::size_t at) {
        const auto value = static_cast<T>(integerOf(item));
        std::memcpy(static_cast<char*>(pData) + at * sizeof(T), &value, sizeof(T));
    };
}

/// Reads a list of integers. The widths that fill the documents have a loop each, the others ask the conversion.
int readIntegers(QvJsonValue_t* pValue, const char* pKey, std::initializer_list<std::size_t> extents, void* pData,
                 std::size_t stride)
{
    switch (stride) {
    case sizeof(std::uint8_t):
        return readMember(pValue, pKey, extents, narrowStore<std::uint8_t>(pData));
    case sizeof(std::uint16_t):
        return readMember(pValue, pKey, extents, narrowStore<std::uint16_t>(pData));
    default:
        return readMember(pValue, pKey, extents, [pData, stride](QvJsonValue_t& item, std::size_t at) {
            QvCommonConvert_integer2Binary(pData, stride, at, integerOf(item));
        });
    }
}

/// Adds integers of type T.
template <class T>
auto narrowAdd(const void* pData)
{
    return [pData](QvJsonValue_t* pList, std::size_t at) {
        T value{};
        std::memcpy(&value, static_cast<const char*>(pData) + at * sizeof(T), sizeof(T));
        return QvJsonValue_addIntegerToArray(pList, value);
    };
}

/// Hands the way to add an element to write(add): as for reading, the widths that fill the documents have a loop each.
template <class Write>
int writeIntegers(bool isSigned, void* pData, std::size_t stride, const Write& write)
{
    switch (stride) {
    case sizeof(std::uint8_t):
        return isSigned ? write(narrowAdd<std::int8_t>(pData)) : write(narrowAdd<std::uint8_t>(pData));
    case sizeof(std::uint16_t):
        return isSigned ? write(narrowAdd<std::int16_t>(pData)) : write(narrowAdd<std::uint16_t>(pData));
    default:
        return write([=](QvJsonValue_t* pList, std::size_t at) {
            return QvJsonValue_addIntegerToArray(pList, QvCommonConvert_integer2Binary_(isSigned, pData, stride, at));
        });
    }
}

} // namespace

int readRows(QvJsonValue_t* pValue, float* pData, std::size_t limit, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    const std::size_t rows = QvJsonValue_size(pMember);
    for (std::size_t i = 0; i < rows; ++i) {
        const std::span<QvJsonValue_t> row = itemsOf(QvJsonValue_item(pMember, i));
        for (std::size_t j = 0; j < row.size() && j + i * row.size() < limit; ++j) {
            pData[j + i * row.size()] = static_cast<float>(floatOf(row[j]));
        }
    }
    return kSuccess;
}

} // namespace qv::database

using namespace qv::database;

int QvDatabaseAccess_bool(QvJsonValue_t* pValue, bool* pData, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    *pData = QvJsonValue_asBoolean(pMember);
    return kSuccess;
}

int QvDatabaseAccess_bools(QvJsonValue_t* pValue, bool* pData, std::size_t length, const char* pKey)
{
    return readMember(pValue, pKey, {length},
                      [pData](QvJsonValue_t& item, std::size_t at) { pData[at] = QvJsonValue_asBoolean(&item); });
}

int QvDatabaseAccess_chars(QvJsonValue_t* pValue, char* pData, std::size_t length, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    const char* pText = QvJsonValue_asString(pMember);
    if (pText != nullptr) {
        std::strncpy(pData, pText, length);
    }
    return kSuccess;
}

int QvDatabaseAccess_chars22(QvJsonValue_t* pValue, char* pData, std::size_t length, std::size_t length2,
                             const char* pKey)
{
    return readMember(pValue, pKey, {length}, [=](QvJsonValue_t& item, std::size_t at) {
        const char* pText = QvJsonValue_asString(&item);
        if (pText != nullptr) {
            std::strncpy(pData + at * length2, pText, length2);
        }
    });
}

int QvDatabaseAccess_double(QvJsonValue_t* pValue, double* pData, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    *pData = QvJsonValue_asFloat(pMember);
    return kSuccess;
}

int QvDatabaseAccess_doubles(QvJsonValue_t* pValue, double* pData, std::size_t length, const char* pKey)
{
    return readMember(pValue, pKey, {length},
                      [pData](QvJsonValue_t& item, std::size_t at) { pData[at] = floatOf(item); });
}

int QvDatabaseAccess_float(QvJsonValue_t* pValue, float* pData, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    *pData = static_cast<float>(QvJsonValue_asFloat(pMember));
    return kSuccess;
}

int QvDatabaseAccess_floats(QvJsonValue_t* pValue, float* pData, std::size_t length, const char* pKey)
{
    return readMember(pValue, pKey, {length}, floatStore(pData));
}

int QvDatabaseAccess_floats21(QvJsonValue_t* pValue, float* pData, std::size_t /*length*/, const char* pKey)
{
    return readRows(pValue, pData, SIZE_MAX, pKey);
}

int QvDatabaseAccess_floats22(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                              const char* pKey)
{
    return readMember(pValue, pKey, {length, length2}, floatStore(pData));
}

int QvDatabaseAccess_floats33(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                              std::size_t length3, const char* pKey)
{
    return readMember(pValue, pKey, {length, length2, length3}, floatStore(pData));
}

int QvDatabaseAccess_integer(QvJsonValue_t* pValue, void* pData, std::size_t stride, const char* pKey)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    QvCommonConvert_integer2Binary(pData, stride, 0, QvJsonValue_asInteger(pMember));
    return kSuccess;
}

int QvDatabaseAccess_integers(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                              const char* pKey)
{
    return readIntegers(pValue, pKey, {length}, pData, stride);
}

int QvDatabaseAccess_intergers22(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                                 std::size_t length2, const char* pKey)
{
    return readIntegers(pValue, pKey, {length, length2}, pData, stride);
}

int QvDatabaseAccess_intergers33(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                                 std::size_t length2, std::size_t length3, const char* pKey)
{
    return readIntegers(pValue, pKey, {length, length2, length3}, pData, stride);
}

int QvDatabaseAccess_objects(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                             const char* pKey, Parse_t* pParse)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    const std::size_t number = std::min(length, QvJsonValue_size(pMember));
    for (std::size_t i = 0; i < number; ++i) {
        QV_TRY(pParse(QvJsonValue_item(pMember, i), static_cast<char*>(pData) + i * stride));
    }
    return kSuccess;
}

int QvDatabaseAccess_calloc(QvJsonValue_t* pValue, QvJsonValue_t** ppValue2, void** ppData, std::size_t stride,
                            std::size_t* pLength, const char* pKey)
{
    *ppValue2 = QvJsonValue_member(pValue, pKey);
    const std::size_t number = QvJsonValue_size(*ppValue2);
    if (*ppData == nullptr) {
        *ppData = std::calloc(number, stride);
    } else {
        *ppData = std::realloc(*ppData, number * stride);
        if (*ppData != nullptr && number > *pLength) {
            // Begins at a count taken as a byte offset, on purpose: see the header.
            std::memset(static_cast<char*>(*ppData) + *pLength, 0, (number - *pLength) * stride);
        }
    }
    *pLength = number;
    return kSuccess;
}

int QvDatabaseAccess_bool_(QvJsonValue_t* pValue, bool* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addBooleanToObject(pValue, pKey, isTrue(pData)));
}

int QvDatabaseAccess_bools_(QvJsonValue_t* pValue, bool* pData, std::size_t length, const char* pKey)
{
    return writeFlat(pValue, pKey, length, QV_HERE, [pData](QvJsonValue_t* pList, std::size_t at) {
        return QvJsonValue_addBooleanToArray(pList, isTrue(pData + at));
    });
}

int QvDatabaseAccess_chars_(QvJsonValue_t* pValue, char* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addStringToObject(pValue, pKey, pData));
}

int QvDatabaseAccess_chars22_(QvJsonValue_t* pValue, char* pData, std::size_t length, std::size_t length2,
                              const char* pKey)
{
    return writeNested(pValue, pKey, {length}, QV_HERE, [=](QvJsonValue_t* pList, std::size_t at) {
        return QvJsonValue_addStringToArray(pList, pData + at * length2);
    });
}

int QvDatabaseAccess_double_(QvJsonValue_t* pValue, double* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addFloatToObject(pValue, pKey, *pData));
}

int QvDatabaseAccess_doubles_(QvJsonValue_t* pValue, double* pData, std::size_t length, const char* pKey)
{
    return writeFlat(pValue, pKey, length, QV_HERE, [pData](QvJsonValue_t* pList, std::size_t at) {
        return QvJsonValue_addFloatToArray(pList, pData[at]);
    });
}

int QvDatabaseAccess_float_(QvJsonValue_t* pValue, float* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addFloatToObject(pValue, pKey, QvCommonConvert_float2Double(*pData)));
}

int QvDatabaseAccess_floats_(QvJsonValue_t* pValue, float* pData, std::size_t length, const char* pKey)
{
    return writeFlat(pValue, pKey, length, QV_HERE, floatAdd(pData));
}

int QvDatabaseAccess_floats21_(QvJsonValue_t* pValue, float* pData, std::size_t length, const char* pKey,
                               std::size_t stride)
{
    const std::size_t rows = stride == 0 ? 0 : length / stride;
    return writeNested(pValue, pKey, {rows, stride}, QV_HERE, floatAdd(pData));
}

int QvDatabaseAccess_floats22_(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                               const char* pKey)
{
    return writeNested(pValue, pKey, {length, length2}, QV_HERE, floatAdd(pData));
}

int QvDatabaseAccess_floats33_(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                               std::size_t length3, const char* pKey)
{
    return writeNested(pValue, pKey, {length, length2, length3}, QV_HERE, floatAdd(pData));
}

int QvDatabaseAccess_integer_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride, const char* pKey)
{
    const auto value = QvCommonConvert_integer2Binary_(isSigned, pData, stride, 0);
    return traced(QV_HERE, QvJsonValue_addIntegerToObject(pValue, pKey, value));
}

int QvDatabaseAccess_integers_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                               std::size_t length, const char* pKey)
{
    const Place place = QV_HERE;
    return writeIntegers(isSigned, pData, stride,
                         [&](const auto& add) { return writeFlat(pValue, pKey, length, place, add); });
}

int QvDatabaseAccess_intergers22_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                                  std::size_t length, std::size_t length2, const char* pKey)
{
    const Place place = QV_HERE;
    return writeIntegers(isSigned, pData, stride, [&](const auto& add) {
        return writeNested(pValue, pKey, {length, length2}, place, add);
    });
}

int QvDatabaseAccess_intergers33_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                                  std::size_t length, std::size_t length2, std::size_t length3, const char* pKey)
{
    const Place place = QV_HERE;
    return writeIntegers(isSigned, pData, stride, [&](const auto& add) {
        return writeNested(pValue, pKey, {length, length2, length3}, place, add);
    });
}

int QvDatabaseAccess_objects_(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                              const char* pKey, Serialize_t* pSerialize)
{
    QvJsonValue_t* pList = writableMember(pValue, pKey);
    for (std::size_t i = 0; i < length; ++i) {
        QvJsonValue_t* pItem = nullptr;
        QV_TRY(QvJsonValue_create(QvJsonValueType_Object, &pItem));
        // A failure leaves the item in hand to the process: callers hold no second pointer to it.
        QV_TRY(pSerialize(static_cast<char*>(pData) + i * stride, pItem));
        QV_TRY(QvJsonValue_addValueToArray(pList, &pItem));
    }
    return kSuccess;
}
