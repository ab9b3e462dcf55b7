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
#include <qv_json_c/json_compact.h>

#include "database_field.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"

// Not in the contract of the JSON library: with a build of it that lacks these, lists grow as they are filled, and numbers
// are handed over and taken one by one.
extern "C" {
[[gnu::weak]] decltype(QvJsonValue_reserve) QvJsonValue_reserve;
[[gnu::weak]] decltype(QvJsonCompact_addNumbers) QvJsonCompact_addNumbers;
[[gnu::weak]] decltype(QvJsonCompact_numbers) QvJsonCompact_numbers;
}

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

int traced(const Place& place, int status)
{
    return status == kSuccess ? status : traceFailure(place, status);
}

/// The lists in a list, one behind the other. In a compact tree one of numbers shows none, and holds none.
std::span<QvJsonValue_t> itemsOf(QvJsonValue_t* pList)
{
    if (pList->type != QvJsonValueType_Array) {
        return {};
    }
    return {pList->holder.pArray->pValues, pList->holder.pArray->number};
}

/// Makes room for the items that a list is about to get.
void reserve(QvJsonValue_t* pList, std::size_t number)
{
    if (QvJsonValue_reserve != nullptr && number != 0) {
        // Without memory for it the adding fails, and says so.
        static_cast<void>(QvJsonValue_reserve(pList, QvJsonValue_size(pList) + number));
    }
}

/// What became of adding a value, which is released where it wasn't added.
int orDeleted(int status, QvJsonValue_t** ppValue)
{
    if (status != kSuccess) {
        QvJsonValue_delete(ppValue);
    }
    return status;
}

/// A list in a member of its own.
int makeList(QvJsonValue_t* pValue, const char* pKey, QvJsonValue_t** ppList)
{
    const int status = QvJsonValue_create(QvJsonValueType_Array, ppList);
    return status != kSuccess ? status : orDeleted(QvJsonValue_addValueToObject(pValue, pKey, ppList), ppList);
}

/// A list in a list.
int makeRow(QvJsonValue_t* pList, QvJsonValue_t** ppRow)
{
    const int status = QvJsonValue_create(QvJsonValueType_Array, ppRow);
    return status != kSuccess ? status : orDeleted(QvJsonValue_addValueToArray(pList, ppRow), ppRow);
}

/// Where a record holds numbers of one kind.
struct Numbers {
    void* pData;
    std::size_t width; ///< bytes of one
    Element element;   ///< Integer, Float or Double
    bool isSigned;     ///< of integers, for writing

    char* at(std::size_t index) const { return static_cast<char*>(pData) + index * width; }
};

Numbers floatsAt(float* pData)
{
    return {pData, sizeof(float), Element::Float, true};
}

Numbers doublesAt(double* pData)
{
    return {pData, sizeof(double), Element::Double, true};
}

/// The kind of numbers for the JSON library. False where it has none for them.
bool kindOf(const Numbers& numbers, QvJsonNumber_t* pKind)
{
    if (numbers.pData == nullptr) {
        return false;
    }
    if (numbers.element != Element::Integer) {
        *pKind = numbers.element == Element::Float ? QvJsonNumber_Float : QvJsonNumber_Double;
        return true;
    }
    switch (numbers.width) {
    case 1:
        *pKind = numbers.isSigned ? QvJsonNumber_Int8 : QvJsonNumber_Uint8;
        return true;
    case 2:
        *pKind = numbers.isSigned ? QvJsonNumber_Int16 : QvJsonNumber_Uint16;
        return true;
    case 4:
        *pKind = numbers.isSigned ? QvJsonNumber_Int32 : QvJsonNumber_Uint32;
        return true;
    case 8:
        *pKind = QvJsonNumber_Int64;
        return true;
    default:
        return false;
    }
}

void takeNumber(QvJsonValue_t* pList, std::size_t index, const Numbers& numbers, std::size_t at)
{
    if (numbers.element == Element::Integer) {
        QvCommonConvert_integer2Binary(numbers.pData, numbers.width, at, QvJsonValue_itemAsInteger(pList, index));
        return;
    }
    const double value = QvJsonValue_itemAsFloat(pList, index);
    if (numbers.element == Element::Double) {
        std::memcpy(numbers.at(at), &value, sizeof value);
    } else {
        const auto rounded = static_cast<float>(value);
        std::memcpy(numbers.at(at), &rounded, sizeof rounded);
    }
}

int addNumber(QvJsonValue_t* pList, const Numbers& numbers, std::size_t at)
{
    if (numbers.element == Element::Integer) {
        return QvJsonValue_addIntegerToArray(
            pList, QvCommonConvert_integer2Binary_(numbers.isSigned, numbers.pData, numbers.width, at));
    }
    double value = 0;
    if (numbers.element == Element::Double) {
        std::memcpy(&value, numbers.at(at), sizeof value);
    } else {
        float narrow = 0;
        std::memcpy(&narrow, numbers.at(at), sizeof narrow);
        value = static_cast<double>(narrow);
    }
    return QvJsonValue_addFloatToArray(pList, value);
}

/// The first numbers of a list go to the record, from the place `base` on.
void takeNumbers(QvJsonValue_t* pList, std::size_t number, const Numbers& numbers, std::size_t base)
{
    QvJsonNumber_t kind{};
    if (QvJsonCompact_numbers != nullptr && kindOf(numbers, &kind)) {
        QvJsonCompact_numbers(pList, kind, numbers.at(base), number);
        return;
    }
    for (std::size_t i = 0; i < number; ++i) {
        takeNumber(pList, i, numbers, base + i);
    }
}

int addNumbers(QvJsonValue_t* pList, std::size_t number, const Numbers& numbers, std::size_t base)
{
    QvJsonNumber_t kind{};
    if (QvJsonCompact_addNumbers != nullptr && kindOf(numbers, &kind)) {
        return QvJsonCompact_addNumbers(pList, kind, numbers.at(base), number);
    }
    reserve(pList, number);
    int status = kSuccess;
    for (std::size_t i = 0; status == kSuccess && i < number; ++i) {
        status = addNumber(pList, numbers, base + i);
    }
    return status;
}

/// Reads each innermost list as far as document and record both go. The index in the record follows from the extents alone,
/// so a short row leaves the rows behind it in their places.
void readList(QvJsonValue_t* pList, Extents extents, std::size_t base, const Numbers& numbers)
{
    if (extents.size() == 1) {
        takeNumbers(pList, std::min(extents.front(), QvJsonValue_size(pList)), numbers, base);
        return;
    }
    const std::span<QvJsonValue_t> lists = itemsOf(pList);
    const std::size_t number = std::min(extents.front(), lists.size());
    for (std::size_t i = 0; i < number; ++i) {
        readList(&lists[i], extents.subspan(1), (base + i) * extents[1], numbers);
    }
}

int readNumbers(QvJsonValue_t* pValue, const char* pKey, std::initializer_list<std::size_t> extents,
                const Numbers& numbers)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    readList(pMember, {extents.begin(), extents.size()}, 0, numbers);
    return kSuccess;
}

/// Lists inside are attached before they are filled.
int writeList(QvJsonValue_t* pList, Extents extents, std::size_t base, const Numbers& numbers)
{
    if (extents.size() == 1) {
        return addNumbers(pList, extents.front(), numbers, base);
    }
    reserve(pList, extents.front());
    int status = kSuccess;
    for (std::size_t i = 0; status == kSuccess && i < extents.front(); ++i) {
        QvJsonValue_t* pRow = nullptr;
        status = makeRow(pList, &pRow);
        if (status == kSuccess) {
            status = writeList(pRow, extents.subspan(1), (base + i) * extents[1], numbers);
        }
    }
    return status;
}

/// A list of one level stands in the member that the lookup makes: with no elements it stays empty.
int writeFlatNumbers(QvJsonValue_t* pValue, const char* pKey, std::size_t length, const Place& place,
                     const Numbers& numbers)
{
    return traced(place, addNumbers(writableMember(pValue, pKey), length, numbers, 0));
}

/// A list of lists is an array of its own, also with no elements.
int writeNestedNumbers(QvJsonValue_t* pValue, const char* pKey, std::initializer_list<std::size_t> extents,
                       const Place& place, const Numbers& numbers)
{
    QvJsonValue_t* pList = nullptr;
    int status = makeList(pValue, pKey, &pList);
    if (status == kSuccess) {
        status = writeList(pList, {extents.begin(), extents.size()}, 0, numbers);
    }
    return traced(place, status);
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
        QvJsonValue_t* pRow = QvJsonValue_item(pMember, i);
        const std::size_t length = QvJsonValue_size(pRow);
        if (i * length >= limit) {
            continue;
        }
        takeNumbers(pRow, std::min(length, limit - i * length), floatsAt(pData), i * length);
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
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    const std::size_t number = std::min(length, QvJsonValue_size(pMember));
    for (std::size_t i = 0; i < number; ++i) {
        pData[i] = QvJsonValue_itemAsBoolean(pMember, i);
    }
    return kSuccess;
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
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, pKey);
    if (QvJsonValue_isEmpty(pMember)) {
        return kMemberMissing;
    }
    const std::size_t number = std::min(length, QvJsonValue_size(pMember));
    for (std::size_t i = 0; i < number; ++i) {
        const char* pText = QvJsonValue_itemAsString(pMember, i);
        if (pText != nullptr) {
            std::strncpy(pData + i * length2, pText, length2);
        }
    }
    return kSuccess;
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
    return readNumbers(pValue, pKey, {length}, doublesAt(pData));
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
    return readNumbers(pValue, pKey, {length}, floatsAt(pData));
}

int QvDatabaseAccess_floats21(QvJsonValue_t* pValue, float* pData, std::size_t /*length*/, const char* pKey)
{
    return readRows(pValue, pData, SIZE_MAX, pKey);
}

int QvDatabaseAccess_floats22(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                              const char* pKey)
{
    return readNumbers(pValue, pKey, {length, length2}, floatsAt(pData));
}

int QvDatabaseAccess_floats33(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                              std::size_t length3, const char* pKey)
{
    return readNumbers(pValue, pKey, {length, length2, length3}, floatsAt(pData));
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
    return readNumbers(pValue, pKey, {length}, {pData, stride, Element::Integer, false});
}

int QvDatabaseAccess_intergers22(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                                 std::size_t length2, const char* pKey)
{
    return readNumbers(pValue, pKey, {length, length2}, {pData, stride, Element::Integer, false});
}

int QvDatabaseAccess_intergers33(QvJsonValue_t* pValue, void* pData, std::size_t stride, std::size_t length,
                                 std::size_t length2, std::size_t length3, const char* pKey)
{
    return readNumbers(pValue, pKey, {length, length2, length3}, {pData, stride, Element::Integer, false});
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
    QvJsonValue_t* pList = writableMember(pValue, pKey);
    reserve(pList, length);
    for (std::size_t i = 0; i < length; ++i) {
        QV_TRY(QvJsonValue_addBooleanToArray(pList, isTrue(pData + i)));
    }
    return kSuccess;
}

int QvDatabaseAccess_chars_(QvJsonValue_t* pValue, char* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addStringToObject(pValue, pKey, pData));
}

int QvDatabaseAccess_chars22_(QvJsonValue_t* pValue, char* pData, std::size_t length, std::size_t length2,
                              const char* pKey)
{
    QvJsonValue_t* pList = nullptr;
    QV_TRY(makeList(pValue, pKey, &pList));
    reserve(pList, length);
    for (std::size_t i = 0; i < length; ++i) {
        QV_TRY(QvJsonValue_addStringToArray(pList, pData + i * length2));
    }
    return kSuccess;
}

int QvDatabaseAccess_double_(QvJsonValue_t* pValue, double* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addFloatToObject(pValue, pKey, *pData));
}

int QvDatabaseAccess_doubles_(QvJsonValue_t* pValue, double* pData, std::size_t length, const char* pKey)
{
    return writeFlatNumbers(pValue, pKey, length, QV_HERE, doublesAt(pData));
}

int QvDatabaseAccess_float_(QvJsonValue_t* pValue, float* pData, const char* pKey)
{
    return traced(QV_HERE, QvJsonValue_addFloatToObject(pValue, pKey, QvCommonConvert_float2Double(*pData)));
}

int QvDatabaseAccess_floats_(QvJsonValue_t* pValue, float* pData, std::size_t length, const char* pKey)
{
    return writeFlatNumbers(pValue, pKey, length, QV_HERE, floatsAt(pData));
}

int QvDatabaseAccess_floats21_(QvJsonValue_t* pValue, float* pData, std::size_t length, const char* pKey,
                               std::size_t stride)
{
    const std::size_t rows = stride == 0 ? 0 : length / stride;
    return writeNestedNumbers(pValue, pKey, {rows, stride}, QV_HERE, floatsAt(pData));
}

int QvDatabaseAccess_floats22_(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                               const char* pKey)
{
    return writeNestedNumbers(pValue, pKey, {length, length2}, QV_HERE, floatsAt(pData));
}

int QvDatabaseAccess_floats33_(QvJsonValue_t* pValue, float* pData, std::size_t length, std::size_t length2,
                               std::size_t length3, const char* pKey)
{
    return writeNestedNumbers(pValue, pKey, {length, length2, length3}, QV_HERE, floatsAt(pData));
}

int QvDatabaseAccess_integer_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride, const char* pKey)
{
    const auto value = QvCommonConvert_integer2Binary_(isSigned, pData, stride, 0);
    return traced(QV_HERE, QvJsonValue_addIntegerToObject(pValue, pKey, value));
}

int QvDatabaseAccess_integers_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                               std::size_t length, const char* pKey)
{
    return writeFlatNumbers(pValue, pKey, length, QV_HERE, {pData, stride, Element::Integer, isSigned});
}

int QvDatabaseAccess_intergers22_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                                  std::size_t length, std::size_t length2, const char* pKey)
{
    return writeNestedNumbers(pValue, pKey, {length, length2}, QV_HERE, {pData, stride, Element::Integer, isSigned});
}

int QvDatabaseAccess_intergers33_(QvJsonValue_t* pValue, bool isSigned, void* pData, std::size_t stride,
                                  std::size_t length, std::size_t length2, std::size_t length3, const char* pKey)
{
    return writeNestedNumbers(pValue, pKey, {length, length2, length3}, QV_HERE,
                              {pData, stride, Element::Integer, isSigned});
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
