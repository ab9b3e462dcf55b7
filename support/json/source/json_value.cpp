#include <qv_json_c/json_value.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "packed_numbers.h"
#include "scratch_value.h"
#include "value_tree.h"
#include <qv_common_c/common_error.h>

using namespace qv::json;

static_assert(sizeof(QvJsonValue_t) == 32, "the mark stands in what would be padding");

namespace {

/// So far past the end an index is a fault of its caller.
constexpr std::size_t kMaximumGap = std::size_t{1} << 20;

/// What an add puts in place, marked as standing there.
QvJsonValue_t placed(QvJsonValueType_t type, QvJsonValue_t::Holder holder)
{
    return {holder, nullptr, nullptr, type, kPlaced};
}

QvJsonValue_t scalar(bool value)
{
    QvJsonValue_t::Holder holder = {};
    holder._bool = value;
    return placed(QvJsonValueType_Boolean, holder);
}

QvJsonValue_t scalar(double value)
{
    QvJsonValue_t::Holder holder;
    holder._float = value;
    return placed(QvJsonValueType_Float, holder);
}

QvJsonValue_t scalar(ssize_t value)
{
    QvJsonValue_t::Holder holder;
    holder.integer = value;
    return placed(QvJsonValueType_Integer, holder);
}

/// The place of a new or existing member. It is found before anything is given up, so a failure changes nothing.
int memberPlace(QvJsonValue_t* pValue, const char* pKey, QvJsonValue_t** ppPlace)
{
    if (pValue == nullptr || pKey == nullptr ||
        (pValue->type != QvJsonValueType_Null && pValue->type != QvJsonValueType_Object)) {
        return QvCommonError_BadArgument;
    }
    if (!becomeObject(*pValue)) {
        return QvCommonError_OutOfMemory;
    }
    *ppPlace = findMember(*pValue, pKey);
    if (*ppPlace == nullptr) {
        *ppPlace = appendMember(*pValue, pKey);
    }
    return *ppPlace != nullptr ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

/// The place of a new item, still to be filled.
int itemPlace(QvJsonValue_t* pValue, QvJsonValue_t** ppPlace)
{
    // Lists are filled by one call an item, and most of them find room.
    if (pValue == nullptr || pValue->type != QvJsonValueType_Array) [[unlikely]] {
        if (pValue == nullptr || pValue->type != QvJsonValueType_Null) {
            return QvCommonError_BadArgument;
        }
        if (!becomeArray(*pValue)) {
            return QvCommonError_OutOfMemory;
        }
    }
    *ppPlace = addItem(*arrayOf(*pValue));
    if (*ppPlace == nullptr) [[unlikely]] {
        if (!makeRoom(*pValue, itemNumber(*pValue) + 1)) {
            return QvCommonError_OutOfMemory;
        }
        *ppPlace = addItem(*arrayOf(*pValue));
    }
    return QvCommonError_Success;
}

/// The item of an array for who only looks: one of a packed list is written to *pPacked. Null if there is none.
QvJsonValue_t* lookAt(QvJsonValue_t* pValue, std::size_t index, QvJsonValue_t* pPacked)
{
    QvJsonValue_t* pItem = findItem(pValue, index);
    if (pItem != nullptr || index >= QvJsonValue_size(pValue)) {
        return pItem;
    }
    *pPacked = packedItem(*packedOf(*pValue), index);
    return pPacked;
}

/// Puts kind and content of a value into a place; comments and address of the place stay.
void setContent(QvJsonValue_t& place, const QvJsonValue_t& content)
{
    releaseContent(place);
    place.type = content.type;
    place.holder = content.holder;
}

int addToObject(QvJsonValue_t* pValue, const char* pKey, const QvJsonValue_t& content)
{
    QvJsonValue_t* pPlace = nullptr;
    const int status = memberPlace(pValue, pKey, &pPlace);
    if (status == QvCommonError_Success) {
        setContent(*pPlace, content);
    }
    return status;
}

/// Adds what leaves an array flat.
int addToArray(QvJsonValue_t* pValue, const QvJsonValue_t& scalar)
{
    QvJsonValue_t* pPlace = nullptr;
    const int status = itemPlace(pValue, &pPlace);
    if (status == QvCommonError_Success) {
        *pPlace = scalar;
    }
    return status;
}

/// A text for the tree to own.
int makeText(const char* pText, QvJsonValue_t* pContent)
{
    if (pText == nullptr) {
        return QvCommonError_BadArgument;
    }
    QvJsonValue_t::Holder holder = {};
    holder.pChar = copyText(pText);
    *pContent = placed(QvJsonValueType_String, holder);
    return pContent->holder.pChar != nullptr ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

bool isFree(const QvJsonValue_t* pTarget, QvJsonValue_t* const* ppValue)
{
    return ppValue != nullptr && *ppValue != nullptr && *ppValue != pTarget && ((*ppValue)->reserved & kPlaced) == 0;
}

/// Moves a value with its comments into its place and lets the caller's variable follow.
void moveInto(QvJsonValue_t& place, QvJsonValue_t** ppValue)
{
    QvJsonValue_t* pShell = *ppValue;
    // What has nothing in it yet is begun anew where it is going to be filled.
    const bool isBegun =
        (place.reserved & kHasMemory) != 0 && QvJsonValue_isEmpty(pShell) &&
        (pShell->type == QvJsonValueType_Null || (pShell->type == QvJsonValueType_Array && becomeArray(place)) ||
         (pShell->type == QvJsonValueType_Object && becomeObject(place)));
    if (isBegun) {
        releaseContent(*pShell);
    } else {
        setContent(place, *pShell);
    }
    if (pShell->pComment != nullptr) {
        std::free(place.pComment);
        place.pComment = pShell->pComment;
    }
    if (pShell->pComment2 != nullptr) {
        std::free(place.pComment2);
        place.pComment2 = pShell->pComment2;
    }
    std::free(pShell);
    *ppValue = &place;
}

} // namespace

int QvJsonValue_create(QvJsonValueType_t type, QvJsonValue_t** ppValue)
{
    if (ppValue == nullptr || type < QvJsonValueType_Null || type > QvJsonValueType_String) {
        return QvCommonError_BadArgument;
    }
    auto* pValue = static_cast<QvJsonValue_t*>(std::calloc(1, sizeof(QvJsonValue_t)));
    if (pValue == nullptr) {
        return QvCommonError_OutOfMemory;
    }
    bool isMade = true;
    if (type == QvJsonValueType_Array) {
        beEmptyArray(*pValue);
    } else if (type == QvJsonValueType_Object) {
        beEmptyObject(*pValue);
    } else if (type == QvJsonValueType_String) {
        pValue->holder.pChar = copyText("");
        isMade = pValue->holder.pChar != nullptr;
    }
    if (!isMade) {
        std::free(pValue);
        return QvCommonError_OutOfMemory;
    }
    pValue->type = type;
    *ppValue = pValue;
    return QvCommonError_Success;
}

int QvJsonValue_delete(QvJsonValue_t** ppValue)
{
    if (ppValue == nullptr) {
        return QvCommonError_BadArgument;
    }
    if (*ppValue != nullptr) {
        clearValue(**ppValue);
        if (((*ppValue)->reserved & kPlaced) == 0) {
            std::free(*ppValue);
        }
        *ppValue = nullptr;
    }
    return QvCommonError_Success;
}

QvJsonValue_t* QvJsonValue_member(QvJsonValue_t* pValue, const char* pKey)
{
    QvJsonValue_t* pPlace = nullptr;
    return memberPlace(pValue, pKey, &pPlace) == QvCommonError_Success ? pPlace : scratchValue();
}

QvJsonValue_t* QvJsonValue_member2(QvJsonValue_t* pValue, const char* pKey)
{
    if (pValue == nullptr || pKey == nullptr || pValue->type != QvJsonValueType_Object) {
        return nullptr;
    }
    return findMember(*pValue, pKey);
}

bool QvJsonValue_isEmpty(QvJsonValue_t* pValue)
{
    if (pValue == nullptr) {
        return true;
    }
    switch (pValue->type) {
    case QvJsonValueType_Null:
        return true;
    case QvJsonValueType_Array:
        return itemNumber(*pValue) == 0;
    case QvJsonValueType_Object:
        return pValue->holder.pObject->number == 0;
    default:
        return false;
    }
}

std::size_t QvJsonValue_size(QvJsonValue_t* pValue)
{
    return pValue != nullptr && pValue->type == QvJsonValueType_Array ? itemNumber(*pValue) : 0;
}

QvJsonValue_t* QvJsonValue_item(QvJsonValue_t* pValue, std::size_t index)
{
    if (QvJsonValue_t* pItem = findItem(pValue, index); pItem != nullptr) {
        endFlat(*arrayOf(*pValue));
        return pItem;
    }
    const std::size_t number = QvJsonValue_size(pValue);
    if (pValue == nullptr || (index >= number && index - number >= kMaximumGap) || !becomeArray(*pValue) ||
        (packedOf(*pValue) != nullptr && !unpack(*pValue, std::max(index + 1, number)))) {
        return scratchValue();
    }
    if (index < number) {
        endFlat(*arrayOf(*pValue));
        return findItem(pValue, index);
    }
    QvJsonValue_t* pItem = appendItems(*pValue, index - number + 1);
    return pItem != nullptr ? pItem : scratchValue();
}

bool QvJsonValue_asBoolean(QvJsonValue_t* pValue)
{
    if (pValue == nullptr) {
        return false;
    }
    switch (pValue->type) {
    case QvJsonValueType_Boolean:
        return pValue->holder._bool;
    case QvJsonValueType_Integer:
        return pValue->holder.integer != 0;
    case QvJsonValueType_Float:
        return pValue->holder._float != 0 && !std::isnan(pValue->holder._float);
    default:
        return false;
    }
}

double QvJsonValue_asFloat(QvJsonValue_t* pValue)
{
    if (pValue == nullptr) {
        return 0;
    }
    switch (pValue->type) {
    case QvJsonValueType_Boolean:
        return pValue->holder._bool ? 1 : 0;
    case QvJsonValueType_Integer:
        return static_cast<double>(pValue->holder.integer);
    case QvJsonValueType_Float:
        return pValue->holder._float;
    default:
        return 0;
    }
}

ssize_t QvJsonValue_asInteger(QvJsonValue_t* pValue)
{
    if (pValue == nullptr) {
        return 0;
    }
    switch (pValue->type) {
    case QvJsonValueType_Boolean:
        return pValue->holder._bool ? 1 : 0;
    case QvJsonValueType_Integer:
        return pValue->holder.integer;
    case QvJsonValueType_Float: {
        using Limits = std::numeric_limits<ssize_t>;
        // The upper end itself is no double; the first number beyond it is, and so is the lower end.
        constexpr double kBeyond = -static_cast<double>(Limits::min());
        const double value = pValue->holder._float;
        if (std::isnan(value)) {
            return 0;
        }
        if (value >= kBeyond) {
            return Limits::max();
        }
        return value <= -kBeyond ? Limits::min() : static_cast<ssize_t>(value);
    }
    default:
        return 0;
    }
}

char* QvJsonValue_asString(QvJsonValue_t* pValue)
{
    return pValue != nullptr && pValue->type == QvJsonValueType_String ? pValue->holder.pChar : nullptr;
}

bool QvJsonValue_itemAsBoolean(QvJsonValue_t* pValue, std::size_t index)
{
    QvJsonValue_t packed;
    return QvJsonValue_asBoolean(lookAt(pValue, index, &packed));
}

double QvJsonValue_itemAsFloat(QvJsonValue_t* pValue, std::size_t index)
{
    QvJsonValue_t packed;
    return QvJsonValue_asFloat(lookAt(pValue, index, &packed));
}

ssize_t QvJsonValue_itemAsInteger(QvJsonValue_t* pValue, std::size_t index)
{
    QvJsonValue_t packed;
    return QvJsonValue_asInteger(lookAt(pValue, index, &packed));
}

char* QvJsonValue_itemAsString(QvJsonValue_t* pValue, std::size_t index)
{
    QvJsonValue_t packed;
    return QvJsonValue_asString(lookAt(pValue, index, &packed));
}

int QvJsonValue_addBooleanToObject(QvJsonValue_t* pValue, const char* pKey, bool value)
{
    return addToObject(pValue, pKey, scalar(value));
}

int QvJsonValue_addFloatToObject(QvJsonValue_t* pValue, const char* pKey, double value)
{
    return addToObject(pValue, pKey, scalar(value));
}

int QvJsonValue_addIntegerToObject(QvJsonValue_t* pValue, const char* pKey, ssize_t value)
{
    return addToObject(pValue, pKey, scalar(value));
}

int QvJsonValue_addStringToObject(QvJsonValue_t* pValue, const char* pKey, const char* pText)
{
    // The text is copied first: it may be the one that is replaced.
    QvJsonValue_t content;
    int status = makeText(pText, &content);
    if (status != QvCommonError_Success) {
        return status;
    }
    status = addToObject(pValue, pKey, content);
    if (status != QvCommonError_Success) {
        std::free(content.holder.pChar);
    }
    return status;
}

int QvJsonValue_addBooleanToArray(QvJsonValue_t* pValue, bool value)
{
    return addToArray(pValue, scalar(value));
}

int QvJsonValue_addFloatToArray(QvJsonValue_t* pValue, double value)
{
    return addToArray(pValue, scalar(value));
}

int QvJsonValue_addIntegerToArray(QvJsonValue_t* pValue, ssize_t value)
{
    return addToArray(pValue, scalar(value));
}

int QvJsonValue_addStringToArray(QvJsonValue_t* pValue, const char* pText)
{
    QvJsonValue_t content;
    int status = makeText(pText, &content);
    if (status != QvCommonError_Success) {
        return status;
    }
    QvJsonValue_t* pPlace = nullptr;
    status = itemPlace(pValue, &pPlace);
    if (status != QvCommonError_Success) {
        std::free(content.holder.pChar);
        return status;
    }
    endFlat(*arrayOf(*pValue));
    *pPlace = content;
    return QvCommonError_Success;
}

int QvJsonValue_reserve(QvJsonValue_t* pValue, std::size_t number)
{
    if (pValue == nullptr || (pValue->type != QvJsonValueType_Null && pValue->type != QvJsonValueType_Array)) {
        return QvCommonError_BadArgument;
    }
    bool isDone = true;
    if (pValue->type == QvJsonValueType_Null) {
        isDone = becomeArray(*pValue, number);
    } else if (packedOf(*pValue) != nullptr) {
        isDone = number <= itemNumber(*pValue) || unpack(*pValue, number);
    } else if (number > arrayOf(*pValue)->capacity) {
        isDone = growArray(*pValue, number, number);
    }
    return isDone ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvJsonValue_addValueToObject(QvJsonValue_t* pValue, const char* pKey, QvJsonValue_t** ppValue)
{
    if (!isFree(pValue, ppValue)) {
        return QvCommonError_BadArgument;
    }
    QvJsonValue_t* pPlace = nullptr;
    const int status = memberPlace(pValue, pKey, &pPlace);
    if (status == QvCommonError_Success) {
        moveInto(*pPlace, ppValue);
    }
    return status;
}

int QvJsonValue_addValueToArray(QvJsonValue_t* pValue, QvJsonValue_t** ppValue)
{
    if (!isFree(pValue, ppValue)) {
        return QvCommonError_BadArgument;
    }
    QvJsonValue_t* pPlace = nullptr;
    const int status = itemPlace(pValue, &pPlace);
    if (status == QvCommonError_Success) {
        beNullItem(*pPlace, *arrayOf(*pValue));
        moveInto(*pPlace, ppValue);
    }
    return status;
}
