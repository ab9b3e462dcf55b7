#include "database_walk.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <new>

#include <qv_common_c/common_convert.h>

#include "database_access.h"
#include "database_shortage.h"
#include "database_trace.h"

namespace qv::database {
namespace {

/// The part of a record that a table describes, and the end of the whole block it lies in. Texts and row forms may run
/// over the end of their field into the fields behind it, which is how the documents behave, but never over the block's
/// end.
struct Block {
    char* pBegin;
    char* pEnd;

    char* at(const Field& field) const { return pBegin + field.offset; }
    std::size_t room(const Field& field) const { return static_cast<std::size_t>(pEnd - at(field)); }
    Block item(const Field& field, std::size_t index) const { return {at(field) + index * field.width, pEnd}; }
};

std::size_t getCounter(const Block& block, Counter counter)
{
    return static_cast<std::size_t>(
        QvCommonConvert_integer2Binary_(false, block.pBegin + counter.offset, counter.width, 0));
}

void setCounter(const Block& block, Counter counter, std::size_t value)
{
    QvCommonConvert_integer2Binary(block.pBegin + counter.offset, counter.width, 0, static_cast<ssize_t>(value));
}

/// The elements of a heap array, as a block of their own.
Block heapBlock(const Block& block, const Field& field, std::size_t number)
{
    char* pBegin = nullptr;
    std::memcpy(&pBegin, block.at(field), sizeof pBegin);
    return {pBegin, pBegin + number * field.width};
}

/// A row that failed: a nested record ends the walk, a plain member only leaves a note. The codec's full name is put
/// together here, where a line is due.
void traceRow(const Table& table, const Field& field, const char* pVerb, int status)
{
    char function[160];
    std::snprintf(function, sizeof function, "%s_%s", table.name, table.verb != nullptr ? table.verb : pVerb);
    const Place place{table.file, field.line, function};
    if (field.written == Element::Record) {
        traceFailure(place, status);
    } else {
        traceMember(place, field.key, status);
    }
}

// ---------------------------------------------------------------------------------------------------------- reading

int readFields(const Table& table, QvJsonValue_t* pValue, const Block& block);

int readBool(const Field& field, QvJsonValue_t* pValue, void* pData)
{
    bool* pBool = static_cast<bool*>(pData);
    return field.rank == 0 ? QvDatabaseAccess_bool(pValue, pBool, field.key)
                           : QvDatabaseAccess_bools(pValue, pBool, field.extents[0], field.key);
}

int readInteger(const Field& field, QvJsonValue_t* pValue, void* pData)
{
    const auto& n = field.extents;
    switch (field.rank) {
    case 0:
        return QvDatabaseAccess_integer(pValue, pData, field.width, field.key);
    case 1:
        return QvDatabaseAccess_integers(pValue, pData, field.width, n[0], field.key);
    case 2:
        return QvDatabaseAccess_intergers22(pValue, pData, field.width, n[0], n[1], field.key);
    default:
        return QvDatabaseAccess_intergers33(pValue, pData, field.width, n[0], n[1], n[2], field.key);
    }
}

int readFloat(const Field& field, QvJsonValue_t* pValue, void* pData, std::size_t room)
{
    const auto& n = field.extents;
    float* pFloat = static_cast<float*>(pData);
    if (field.columns != 0) {
        return readRows(pValue, pFloat, room / sizeof(float), field.key);
    }
    switch (field.rank) {
    case 0:
        return QvDatabaseAccess_float(pValue, pFloat, field.key);
    case 1:
        return QvDatabaseAccess_floats(pValue, pFloat, n[0], field.key);
    case 2:
        return QvDatabaseAccess_floats22(pValue, pFloat, n[0], n[1], field.key);
    default:
        return QvDatabaseAccess_floats33(pValue, pFloat, n[0], n[1], n[2], field.key);
    }
}

int readDouble(const Field& field, QvJsonValue_t* pValue, void* pData)
{
    double* pDouble = static_cast<double*>(pData);
    return field.rank == 0 ? QvDatabaseAccess_double(pValue, pDouble, field.key)
                           : QvDatabaseAccess_doubles(pValue, pDouble, field.extents[0], field.key);
}

int readText(const Field& field, QvJsonValue_t* pValue, char* pData)
{
    return field.rank == 0 ? QvDatabaseAccess_chars(pValue, pData, field.width, field.key)
                           : QvDatabaseAccess_chars22(pValue, pData, field.extents[0], field.width, field.key);
}

int readHeap(const Field& field, QvJsonValue_t* pValue, const Block& block)
{
    // The pointer and its counter are members of these types in every record that has such a list.
    auto** ppData = reinterpret_cast<void**>(block.at(field));
    auto* pLength = reinterpret_cast<std::size_t*>(block.pBegin + field.counter.offset);
    QvJsonValue_t* pList = nullptr;
    int status = QvDatabaseAccess_calloc(pValue, &pList, ppData, field.width, pLength, field.key);
    const Block heap = heapBlock(block, field, *pLength);
    if (heap.pBegin == nullptr && *pLength != 0) {
        return kBadArgument; // without memory for the array there is no record to read into
    }
    for (std::size_t i = 0; status == kSuccess && i < *pLength; ++i) {
        status = readFields(*field.table, QvJsonValue_item(pList, i), {heap.pBegin + i * field.width, heap.pEnd});
    }
    return status;
}

int readRecords(const Field& field, QvJsonValue_t* pValue, const Block& block)
{
    if (field.count == Count::Heap) {
        return readHeap(field, pValue, block);
    }
    QvJsonValue_t* pMember = QvJsonValue_member(pValue, field.key);
    if (field.count == Count::One) {
        return readFields(*field.table, pMember, block.item(field, 0));
    }

    const std::size_t capacity = field.extents[0];
    std::size_t number = std::min(capacity, QvJsonValue_size(pMember));
    if (field.count == Count::Fixed) {
        number = capacity;
    } else if (field.count == Count::Schedule) {
        setCounter(block, field.counter, number);
    } else if (field.count == Count::Measured) {
        // Stored first and then compared: a list that is too long leaves its length, cut to 8 bits, in the counter.
        setCounter(block, field.counter, QvJsonValue_size(pMember));
        if (getCounter(block, field.counter) > capacity) {
            return kCapacity;
        }
        const Counter bound = field.bound.width != 0 ? field.bound : field.counter;
        number = std::min(capacity, getCounter(block, bound));
    }
    int status = kSuccess;
    for (std::size_t i = 0; status == kSuccess && i < number; ++i) {
        status = readFields(*field.table, QvJsonValue_item(pMember, i), block.item(field, i));
    }
    return status;
}

/// The numbers of a record that a document holds as a list: what a reader takes of each, and a writer gives.
using ReadMember = std::uint16_t;
using WrittenMember = std::uint32_t;
constexpr std::size_t kMostMembers = 4;

/// Unlike every other field, such a record doesn't keep its values where the document lacks them: what is missing is 0.
int readMembers(const Field& field, QvJsonValue_t* pValue, const Block& block)
{
    ReadMember members[kMostMembers] = {};
    const std::size_t number = field.table->rows.size();
    const int status = QvDatabaseAccess_integers(pValue, members, sizeof(ReadMember), number, field.key);
    for (std::size_t i = 0; i < number; ++i) {
        std::memcpy(block.at(field) + field.table->rows[i].offset, &members[i], sizeof(ReadMember));
    }
    return status;
}

int readField(const Field& field, QvJsonValue_t* pValue, const Block& block)
{
    if (field.count == Count::Members) {
        return readMembers(field, pValue, block);
    }
    if (field.written == Element::Record) {
        return readRecords(field, pValue, block);
    }
    char* pData = block.at(field);
    switch (field.written) {
    case Element::Bool:
        return readBool(field, pValue, pData);
    case Element::Integer:
        return readInteger(field, pValue, pData);
    case Element::Float:
        return readFloat(field, pValue, pData, block.room(field));
    case Element::Double:
        return readDouble(field, pValue, pData);
    default:
        return readText(field, pValue, pData);
    }
}

int readFields(const Table& table, QvJsonValue_t* pValue, const Block& block)
{
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const Field* pField = &table.rows[i];
        if (pField->direction == Direction::WriteOnly) {
            continue;
        }
        if (i + 1 < table.rows.size() && table.rows[i + 1].isTwin) {
            ++i;
            if (QvJsonValue_member2(pValue, pField->key) == nullptr) {
                pField = &table.rows[i];
            }
        }
        const int status = readField(*pField, pValue, block);
        if (status != kSuccess) {
            traceRow(table, *pField, "parse", status);
            if (pField->written == Element::Record) {
                return status;
            }
        }
    }
    return kSuccess;
}

// ---------------------------------------------------------------------------------------------------------- writing

int writeFields(const Table& table, const Block& block, QvJsonValue_t* pValue);

int writeBool(const Field& field, void* pData, QvJsonValue_t* pValue)
{
    bool* pBool = static_cast<bool*>(pData);
    return field.rank == 0 ? QvDatabaseAccess_bool_(pValue, pBool, field.key)
                           : QvDatabaseAccess_bools_(pValue, pBool, field.extents[0], field.key);
}

int writeInteger(const Field& field, void* pData, QvJsonValue_t* pValue)
{
    const auto& n = field.extents;
    switch (field.rank) {
    case 0:
        return QvDatabaseAccess_integer_(pValue, field.isWrittenSigned, pData, field.width, field.key);
    case 1:
        return QvDatabaseAccess_integers_(pValue, field.isWrittenSigned, pData, field.width, n[0], field.key);
    case 2:
        return QvDatabaseAccess_intergers22_(pValue, field.isWrittenSigned, pData, field.width, n[0], n[1], field.key);
    default:
        return QvDatabaseAccess_intergers33_(pValue, field.isWrittenSigned, pData, field.width, n[0], n[1], n[2],
                                             field.key);
    }
}

int writeFloat(const Field& field, void* pData, QvJsonValue_t* pValue)
{
    const auto& n = field.extents;
    float* pFloat = static_cast<float*>(pData);
    if (field.columns != 0) {
        return QvDatabaseAccess_floats21_(pValue, pFloat, field.number(), field.key, field.columns);
    }
    switch (field.rank) {
    case 0:
        return QvDatabaseAccess_float_(pValue, pFloat, field.key);
    case 1:
        return QvDatabaseAccess_floats_(pValue, pFloat, n[0], field.key);
    case 2:
        return QvDatabaseAccess_floats22_(pValue, pFloat, n[0], n[1], field.key);
    default:
        return QvDatabaseAccess_floats33_(pValue, pFloat, n[0], n[1], n[2], field.key);
    }
}

int writeDouble(const Field& field, void* pData, QvJsonValue_t* pValue)
{
    double* pDouble = static_cast<double*>(pData);
    return field.rank == 0 ? QvDatabaseAccess_double_(pValue, pDouble, field.key)
                           : QvDatabaseAccess_doubles_(pValue, pDouble, field.extents[0], field.key);
}

/// A text goes out up to its first zero byte, wherever in the block that stands. Where none stands before the block's
/// end, a copy that ends there is written instead.
int writeText(const Field& field, char* pData, std::size_t room, QvJsonValue_t* pValue)
{
    std::unique_ptr<char[]> pCopy;
    const std::size_t last = field.size() - field.width;
    if (std::memchr(pData + last, 0, room - last) == nullptr) {
        pCopy.reset(new (std::nothrow) char[room + 1]);
        if (pCopy == nullptr) {
            return kNoMemory;
        }
        std::memcpy(pCopy.get(), pData, room);
        pCopy[room] = 0;
        pData = pCopy.get();
    }
    return field.rank == 0 ? QvDatabaseAccess_chars_(pValue, pData, field.key)
                           : QvDatabaseAccess_chars22_(pValue, pData, field.extents[0], field.width, field.key);
}

/// A schedule's list is always there, also with no rows in use, and each container is attached before it is filled.
int writeSchedule(const Field& field, const Block& block, QvJsonValue_t* pValue)
{
    QvJsonValue_t* pList = nullptr;
    int status = QvJsonValue_create(QvJsonValueType_Array, &pList);
    if (status != kSuccess) {
        return status;
    }
    status = QvJsonValue_addValueToObject(pValue, field.key, &pList);
    if (status != kSuccess) {
        QvJsonValue_delete(&pList);
        return status;
    }
    const std::size_t number = std::min<std::size_t>(field.extents[0], getCounter(block, field.counter));
    for (std::size_t i = 0; status == kSuccess && i < number; ++i) {
        QvJsonValue_t* pItem = nullptr;
        status = QvJsonValue_create(QvJsonValueType_Object, &pItem);
        if (status != kSuccess) {
            return status;
        }
        status = QvJsonValue_addValueToArray(pList, &pItem);
        if (status != kSuccess) {
            QvJsonValue_delete(&pItem);
            return status;
        }
        status = writeFields(*field.table, block.item(field, i), pItem);
    }
    return status;
}

/// How many elements of a list go out.
std::size_t writtenNumber(const Field& field, const Block& block)
{
    switch (field.count) {
    case Count::Counted:
        return std::min<std::size_t>(field.extents[0], getCounter(block, field.counter));
    case Count::Measured:
        // A count left too large by a failed load is followed as far as whole items lie in the block.
        return std::min(block.room(field) / field.width, getCounter(block, field.counter));
    case Count::Heap:
        return getCounter(block, field.counter);
    default:
        return field.extents[0];
    }
}

int writeRecords(const Field& field, const Block& block, QvJsonValue_t* pValue)
{
    if (field.count == Count::Schedule) {
        return writeSchedule(field, block, pValue);
    }
    QvJsonValue_t* pMember = writableMember(pValue, field.key);
    if (field.count == Count::One) {
        return writeFields(*field.table, block.item(field, 0), pMember);
    }
    std::size_t number = writtenNumber(field, block);
    const Block items = field.count == Count::Heap ? heapBlock(block, field, number) : block.item(field, 0);
    if (items.pBegin == nullptr) {
        number = 0;
    }
    int status = kSuccess;
    for (std::size_t i = 0; status == kSuccess && i < number; ++i) {
        char* pItem = items.pBegin + i * field.width;
        // An item behind the array is whatever the record holds there. Texts and lists end with it, or a record of a
        // few kilobytes could ask for gigabytes of text.
        const bool isBehind = field.count == Count::Measured && i >= field.extents[0];
        status =
            writeFields(*field.table, {pItem, isBehind ? pItem + field.width : items.pEnd}, writableItem(pMember, i));
    }
    return status;
}

int writeMembers(const Field& field, const Block& block, QvJsonValue_t* pValue)
{
    WrittenMember members[kMostMembers] = {};
    const std::size_t number = field.table->rows.size();
    for (std::size_t i = 0; i < number; ++i) {
        ReadMember member = 0;
        std::memcpy(&member, block.at(field) + field.table->rows[i].offset, sizeof member);
        members[i] = member;
    }
    return QvDatabaseAccess_integers_(pValue, false, members, sizeof(WrittenMember), number, field.key);
}

int writeField(const Field& field, const Block& block, QvJsonValue_t* pValue)
{
    if (field.count == Count::Members) {
        return writeMembers(field, block, pValue);
    }
    if (field.written == Element::Record) {
        return writeRecords(field, block, pValue);
    }
    char* pData = block.at(field);
    switch (field.written) {
    case Element::Bool:
        return writeBool(field, pData, pValue);
    case Element::Integer:
        return writeInteger(field, pData, pValue);
    case Element::Float:
        return writeFloat(field, pData, pValue);
    case Element::Double:
        return writeDouble(field, pData, pValue);
    default:
        return writeText(field, pData, block.room(field), pValue);
    }
}

int writeFields(const Table& table, const Block& block, QvJsonValue_t* pValue)
{
    for (const Field& field : table.rows) {
        if (field.direction == Direction::ReadOnly) {
            continue;
        }
        int status = kSuccess;
        if (field.direction == Direction::ReadWhileWriting) {
            writableMember(pValue, field.key); // a reader would make it just as well, but not tell where it can't
            status = readField(field, pValue, block);
        } else {
            status = writeField(field, block, pValue);
        }
        if (status != kSuccess) {
            traceRow(table, field, "serialize", status);
            if (field.written == Element::Record) {
                return status;
            }
        }
    }
    return kSuccess;
}

/// Writing only looks at the record, though the accessors take it without const.
Block blockOf(const Table& table, const void* pRecord)
{
    char* pBegin = static_cast<char*>(const_cast<void*>(pRecord));
    return {pBegin, pBegin + table.size};
}

} // namespace

int readTable(const Table& table, QvJsonValue_t* pValue, void* pRecord)
{
    return readFields(table, pValue, blockOf(table, pRecord));
}

int writeTable(const Table& table, const void* pRecord, QvJsonValue_t* pValue)
{
    return writeFields(table, blockOf(table, pRecord), pValue);
}

} // namespace qv::database
