#include <qv_json_c/json_compact.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "packed_numbers.h"
#include "text_parser.h"
#include "value_tree.h"
#include <qv_common_c/common_error.h>

using namespace qv::json;

namespace {

/// Stores a number of any type T.
template <class T>
void store(void* pNumbers, std::size_t index, T number)
{
    std::memcpy(static_cast<char*>(pNumbers) + index * sizeof(T), &number, sizeof(T));
}

template <class T>
T numberOf(QvJsonValue_t& item)
{
    if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(QvJsonValue_asFloat(&item));
    } else {
        return static_cast<T>(QvJsonValue_asInteger(&item));
    }
}

/// Copies numbers between kinds that convert by a cast; what doesn't goes one value at a time. These are the kinds that
/// the lists of a text have.
template <class To, class From>
void copyPacked(const PackedBlock& packed, void* pNumbers, std::size_t number)
{
    for (std::size_t index = 0; index < number; ++index) {
        store(pNumbers, index, static_cast<To>(numberAt<From>(&packed + 1, index)));
    }
}

template <class To>
void copyPacked(const PackedBlock& packed, void* pNumbers, std::size_t number)
{
    if (packed.kind == QvJsonNumber_Uint16) {
        copyPacked<To, uint16_t>(packed, pNumbers, number);
    } else if (packed.kind == QvJsonNumber_Int32) {
        copyPacked<To, int32_t>(packed, pNumbers, number);
    } else if (packed.kind == QvJsonNumber_Double && std::is_floating_point_v<To>) {
        copyPacked<To, double>(packed, pNumbers, number);
    } else {
        for (std::size_t index = 0; index < number; ++index) {
            QvJsonValue_t item = packedItem(packed, index);
            store(pNumbers, index, numberOf<To>(item));
        }
    }
}

} // namespace

int QvJsonCompact_create(QvJsonValue_t** ppValue)
{
    QvJsonValue_t* pValue = nullptr;
    const int status =
        ppValue != nullptr ? QvJsonValue_create(QvJsonValueType_Null, &pValue) : QvCommonError_BadArgument;
    if (status != QvCommonError_Success) {
        return status;
    }
    if (!becomeObject(*pValue)) {
        QvJsonValue_delete(&pValue);
        return QvCommonError_OutOfMemory;
    }
    objectOf(*pValue)->pMemory->isCompact = true;
    *ppValue = pValue;
    return QvCommonError_Success;
}

int QvJsonCompact_setReader(QvJsonReaderHandle_t handle)
{
    if (handle == 0) {
        return QvCommonError_BadArgument;
    }
    reinterpret_cast<ParserMemory*>(handle)->isCompact = true;
    return QvCommonError_Success;
}

int QvJsonCompact_addNumbers(QvJsonValue_t* pValue, QvJsonNumber_t kind, const void* pNumbers, std::size_t number)
{
    if (pValue == nullptr || !isKind(kind) || (pNumbers == nullptr && number != 0) ||
        (pValue->type != QvJsonValueType_Null && pValue->type != QvJsonValueType_Array)) {
        return QvCommonError_BadArgument;
    }
    if (number == 0 || pack(*pValue, kind, pNumbers, number)) {
        return QvCommonError_Success;
    }
    if (number > kMaximumCapacity || !becomeArray(*pValue, number) ||
        !makeRoom(*pValue, itemNumber(*pValue) + number)) {
        return QvCommonError_OutOfMemory;
    }
    callForKind(kind, [&](auto type) {
        ArrayBlock& array = *arrayOf(*pValue);
        for (std::size_t index = 0; index < number; ++index) {
            *addItem(array) = placedNumber(numberAt<decltype(type)>(pNumbers, index));
        }
    });
    return QvCommonError_Success;
}

std::size_t QvJsonCompact_numbers(QvJsonValue_t* pValue, QvJsonNumber_t kind, void* pNumbers, std::size_t number)
{
    if (pValue == nullptr || pValue->type != QvJsonValueType_Array || pNumbers == nullptr || !isKind(kind)) {
        return 0;
    }
    number = std::min(number, itemNumber(*pValue));
    const PackedBlock* pPacked = packedOf(*pValue);
    callForKind(kind, [&](auto type) {
        using T = decltype(type);
        if (pPacked != nullptr) {
            copyPacked<T>(*pPacked, pNumbers, number);
            return;
        }
        for (std::size_t index = 0; index < number; ++index) {
            store(pNumbers, index, numberOf<T>(pValue->holder.pArray->pValues[index]));
        }
    });
    return number;
}
