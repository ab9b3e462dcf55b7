#pragma once

// A record's form is a table: one row a field, in the order in which a document holds the members. A row takes key,
// offset, element, width, signedness and extents from the C member itself; what a document does otherwise stands on the
// row as an exception and so stands out:
//
//     constexpr Field kRows[] = {
//         QV_FIELD(enable),
//         QV_FIELD(motionDilateEn).asInteger(),  // a number in the document
//         QV_FIELD_KEY(antiFlickerMode, "antiFlikerMode"),
//         QV_OBJECT(rectangle, kRectangle),
//         QV_OBJECT(tables, kSchedule).scheduledBy(QV_COUNTER(tableNumber)),
//     };
//     extern constinit const TableOf<Record> kMisc = QV_TABLE("QvDatabaseMisc", kRows);
//
// QV_RECORD(type) stands before the rows and names their C record. Tables are data: whoever wants to list, check or
// compare fields walks the same rows that the codecs walk. One row stands on a line, since a trace names its row by it.

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace qv::database {

/// What one element of a field is.
enum class Element : std::uint8_t {
    Bool,
    Integer,
    Float,
    Double,
    Text,   ///< characters up to a zero byte or the end of the field
    Record, ///< a record with a table of its own
};

/// How many elements of an array of records a document holds.
enum class Count : std::uint8_t {
    One,      ///< a single object, no array
    Members,  ///< a single object whose numbers the document holds as a list; those that it lacks become 0
    Fixed,    ///< every element of the array in both directions, whatever the document's length
    Whole,    ///< read as far as document and array go, written whole
    Counted,  ///< read as far as document and array go, written as far as a counter says that is a row of its own
    Measured, ///< the document's length goes into a counter of 8 bits, which must not exceed the array
    Schedule, ///< the document's length, cut to the array, goes into a counter; written as far as that says
    Heap,     ///< an array on the heap that takes the document's length
};

/// Which codec carries a row.
enum class Direction : std::uint8_t {
    Both,
    ReadOnly,
    WriteOnly,
    ReadWhileWriting, ///< the writer reads the member as well, which leaves it empty in the document
};

struct Table;

/// The place of a counter in its record.
struct Counter {
    std::uint32_t offset = 0;
    std::uint8_t width = 0; ///< bytes; 0: there is none
};

/// One row of a table: a field of a record and the member that carries it. `element` and `isSigned` are the C member's
/// own; `written` and `isWrittenSigned` tell how the document holds it, and differ where the row says so.
struct Field {
    const char* key = nullptr;
    const Table* table = nullptr;         ///< rows of the nested record; null for any other element
    std::uint32_t offset = 0;             ///< bytes from the record's begin
    std::uint32_t width = 0;              ///< bytes of one element; a text's capacity; a nested record's size
    std::uint16_t extents[3] = {1, 1, 1}; ///< elements in each dimension, outermost first
    std::uint16_t line = 0;               ///< where the row stands in its source
    std::uint16_t columns = 0;            ///< row form: a flat array that a document holds in rows of this length
    std::uint8_t rank = 0;                ///< dimensions in use
    Element element = Element::Bool;
    Element written = Element::Bool;
    Count count = Count::One;
    Direction direction = Direction::Both;
    bool isSigned = false;
    bool isWrittenSigned = false;
    bool isTwin = false;  ///< read only where the row before it is absent from the document
    Counter counter = {}; ///< where a list's length stands
    Counter bound = {};   ///< a reader's loop ends here instead of at the counter

    /// The member is a number in the document, taken byte by byte, whatever the field's type is.
    constexpr Field asInteger() const
    {
        Field field = *this;
        field.written = Element::Integer;
        field.isWrittenSigned = false;
        return field;
    }
    constexpr Field writtenSigned() const { return withSign(true); }
    constexpr Field writtenUnsigned() const { return withSign(false); }
    constexpr Field readOnly() const { return withDirection(Direction::ReadOnly); }
    constexpr Field writeOnly() const { return withDirection(Direction::WriteOnly); }
    constexpr Field readWhileWriting() const { return withDirection(Direction::ReadWhileWriting); }

    /// Another key for the row before this one; that one wins where a document holds both.
    constexpr Field twin() const
    {
        Field field = readOnly();
        field.isTwin = true;
        return field;
    }
    /// A flat array of floats that stands in the document as rows of `length` numbers.
    constexpr Field inRowsOf(std::uint16_t length) const
    {
        Field field = *this;
        field.columns = length;
        return field;
    }
    /// A single record that the document holds as the first item of a list.
    constexpr Field inList() const { return withCount(Count::Fixed, {}); }
    /// A single record whose numbers stand in the document as a list, in the order of the nested table's rows.
    constexpr Field asMembers() const
    {
        Field field = withCount(Count::Members, {});
        field.written = Element::Integer;
        return field;
    }
    constexpr Field whole() const { return withCount(Count::Whole, {}); }
    constexpr Field countedBy(Counter by) const { return withCount(Count::Counted, by); }
    constexpr Field measuredInto(Counter into) const { return withCount(Count::Measured, into); }
    constexpr Field scheduledBy(Counter by) const { return withCount(Count::Schedule, by); }
    constexpr Field readUpTo(Counter other) const
    {
        Field field = *this;
        field.bound = other;
        return field;
    }

    /// Elements of the whole field.
    constexpr std::size_t number() const { return std::size_t{extents[0]} * extents[1] * extents[2]; }
    /// Bytes of the whole field in its record.
    constexpr std::size_t size() const { return number() * width; }

private:
    constexpr Field withSign(bool value) const
    {
        Field field = *this;
        field.isWrittenSigned = value;
        return field;
    }
    constexpr Field withDirection(Direction value) const
    {
        Field field = *this;
        field.direction = value;
        return field;
    }
    constexpr Field withCount(Count value, Counter by) const
    {
        Field field = *this;
        field.count = value;
        field.counter = by;
        return field;
    }
};

/// The form of a record: its rows in document order.
struct Table {
    const char* record; ///< name of the C type that the rows describe
    const char* name;   ///< the codec's name without its verb, for traces
    const char* file;   ///< source of the rows, relative to the project
    std::span<const Field> rows;
    std::size_t size; ///< bytes of the record
    const char* verb; ///< of the codec, where it is neither parse nor serialize; else null
};

/// A table that knows its record, so that rows and records that don't fit don't compile.
template <class R>
struct TableOf : Table {
    using Record = R;
};

template <class R>
constexpr TableOf<R> makeTable(const char* pRecord, const char* pName, const char* pFile, std::span<const Field> rows,
                               const char* pVerb = nullptr)
{
    return {{pRecord, pName, pFile, rows, sizeof(R), pVerb}};
}

template <class T>
constexpr Element elementOf()
{
    if constexpr (std::is_same_v<T, bool>) {
        return Element::Bool;
    } else if constexpr (std::is_same_v<T, float>) {
        return Element::Float;
    } else if constexpr (std::is_same_v<T, double>) {
        return Element::Double;
    } else if constexpr (std::is_same_v<T, char>) {
        return Element::Text;
    } else {
        static_assert(std::is_integral_v<T> || std::is_enum_v<T>, "a record needs QV_OBJECT and a table");
        return Element::Integer;
    }
}

constexpr std::uint16_t sourceLine(int line)
{
    return static_cast<std::uint16_t>(line);
}

/// The row of a plain member of type T.
template <class T>
constexpr Field makeField(const char* pKey, std::size_t offset, int line)
{
    using E = std::remove_all_extents_t<T>;
    constexpr bool kIsText = std::is_same_v<E, char>;
    constexpr std::size_t kRank = std::rank_v<T> - (kIsText ? 1 : 0);
    static_assert(kRank <= 3, "no field has more than three dimensions");

    Field field;
    field.key = pKey;
    field.offset = static_cast<std::uint32_t>(offset);
    field.line = sourceLine(line);
    field.rank = static_cast<std::uint8_t>(kRank);
    field.element = elementOf<E>();
    field.written = field.element;
    field.isSigned = std::is_signed_v<E> && std::is_integral_v<E> && !kIsText;
    field.isWrittenSigned = field.isSigned;
    if constexpr (kIsText) {
        static_assert(std::rank_v<T> > 0, "a text needs room");
        field.width = static_cast<std::uint32_t>(std::extent_v<T, kRank>);
    } else {
        field.width = static_cast<std::uint32_t>(sizeof(E));
    }
    if constexpr (kRank > 0) {
        field.extents[0] = static_cast<std::uint16_t>(std::extent_v<T, 0>);
    }
    if constexpr (kRank > 1) {
        field.extents[1] = static_cast<std::uint16_t>(std::extent_v<T, 1>);
    }
    if constexpr (kRank > 2) {
        field.extents[2] = static_cast<std::uint16_t>(std::extent_v<T, 2>);
    }
    return field;
}

/// The row of a nested record, or of an array of them, of type T.
template <class T>
constexpr Field makeRecord(const char* pKey, std::size_t offset, int line,
                           const TableOf<std::remove_all_extents_t<T>>& table)
{
    static_assert(std::rank_v<T> <= 1, "arrays of records have one dimension");
    Field field;
    field.key = pKey;
    field.table = &table;
    field.offset = static_cast<std::uint32_t>(offset);
    field.line = sourceLine(line);
    field.width = static_cast<std::uint32_t>(sizeof(std::remove_all_extents_t<T>));
    field.element = Element::Record;
    field.written = Element::Record;
    if constexpr (std::rank_v<T> == 1) {
        field.rank = 1;
        field.extents[0] = static_cast<std::uint16_t>(std::extent_v<T, 0>);
        field.count = Count::Fixed;
    }
    return field;
}

/// The row of an array of records on the heap: a pointer of type T and the counter of its elements.
template <class T>
constexpr Field makeHeap(const char* pKey, std::size_t offset, int line, const TableOf<std::remove_pointer_t<T>>& table,
                         Counter counter)
{
    Field field = makeRecord<std::remove_pointer_t<T>>(pKey, offset, line, table);
    field.count = Count::Heap;
    field.counter = counter;
    return field;
}

/// The row of an object in the document that groups fields of the same record.
template <class R>
constexpr Field makeGroup(const char* pKey, int line, const TableOf<R>& table)
{
    return makeRecord<R>(pKey, 0, line, table);
}

} // namespace qv::database

/// Names the record that the rows and the table behind it describe.
#define QV_RECORD(type)                                                                                                \
    using Record = type;                                                                                               \
    constexpr const char* kRecord = #type
/// The table over rows of the record in scope; `name` is the codec's name without its verb, and a codec that is neither
/// parse nor serialize gives its verb behind the rows.
#define QV_TABLE(name, ...) ::qv::database::makeTable<Record>(kRecord, name, __FILE__, __VA_ARGS__)
#define QV_FIELD_KEY(member, key)                                                                                      \
    ::qv::database::makeField<decltype(Record::member)>(key, offsetof(Record, member), __LINE__)
#define QV_FIELD(member) QV_FIELD_KEY(member, #member)
#define QV_OBJECT_KEY(member, key, table)                                                                              \
    ::qv::database::makeRecord<decltype(Record::member)>(key, offsetof(Record, member), __LINE__, table)
#define QV_OBJECT(member, table) QV_OBJECT_KEY(member, #member, table)
#define QV_HEAP_KEY(member, key, table, counter)                                                                       \
    ::qv::database::makeHeap<decltype(Record::member)>(key, offsetof(Record, member), __LINE__, table, counter)
#define QV_GROUP(key, table) ::qv::database::makeGroup<Record>(key, __LINE__, table)
#define QV_COUNTER(member)                                                                                             \
    (::qv::database::Counter{static_cast<std::uint32_t>(offsetof(Record, member)), sizeof(Record::member)})
