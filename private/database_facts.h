#pragma once

// What each member of each record is, said once: the facts that the comments of the public headers give, joined with
// what the C type tells. source/database_facts.inc holds a row a member; it is made by scripts/facts and checked here
// by the compiler, so that a fact about a member that doesn't exist, a range that the type can't hold, a role that the
// extents contradict and a unit or enumeration that nobody knows don't compile.
//
// The rows hold no pointer: texts are offsets into one pool, so that all of it is plain read-only data which costs a
// program that never asks nothing when the library is loaded.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <type_traits>

#include "database_field.h"

namespace qv::database {

/// What a member is there for, where more is known than its type.
enum class Role : std::uint8_t {
    None,
    GainAxis, ///< gain points of a schedule; the lists beside it run along it
    CurveX,   ///< positions of the curve in the other member
    CurveY,   ///< values of the curve whose positions the other member holds
    Curve,    ///< values of a curve without positions
    Matrix,
    Map,     ///< values on a grid over the image
    Weights, ///< weights of a grid of windows over the image
    Window,  ///< a region of the image
    CountOf, ///< how many elements of the other member are in use
    Measured,
    Bits,
    Handle, ///< an object of the run time, no setting
};

inline constexpr char kUnits[][5] = {"", "1/s", "bit", "px"};
constexpr double kOpen = std::numeric_limits<double>::infinity();

enum class EnumerationId : std::int8_t;
enum class TypeId : std::int16_t;
constexpr auto kNoEnumeration = static_cast<EnumerationId>(-1);
constexpr auto kNoType = static_cast<TypeId>(-1);

/// A member that another one names.
struct Sibling {
    std::uint32_t offset = 0;
    std::uint16_t last = 0; ///< its innermost extent
    bool isList = false;    ///< an array, or a pointer to one
};

/// What a comment says behind a member's meaning.
struct Facts {
    double minimum = -kOpen;
    double maximum = kOpen;
    std::uint8_t unit = 0;
    EnumerationId enumeration = kNoEnumeration;
    Role role = Role::None;
    std::uint16_t rows = 0;
    std::uint16_t columns = 0;
    Sibling other = {};

    consteval Facts with(const Facts& fact) const
    {
        Facts all = *this;
        if (fact.minimum != -kOpen || fact.maximum != kOpen) {
            all.minimum = fact.minimum;
            all.maximum = fact.maximum;
        }
        all.unit = fact.unit != 0 ? fact.unit : unit;
        all.enumeration = fact.enumeration != kNoEnumeration ? fact.enumeration : enumeration;
        if (fact.role != Role::None) {
            all.role = fact.role;
            all.rows = fact.rows;
            all.columns = fact.columns;
            all.other = fact.other;
        }
        return all;
    }
};

/// A member of a record: its C type and its facts.
struct Member {
    std::uint32_t name; ///< places in the pool of texts
    std::uint32_t meaning;
    std::uint32_t offset;
    std::uint32_t width; ///< bytes of one element; a text's capacity; a nested record's size
    std::uint32_t other; ///< offset of the member that the role names
    std::uint16_t extents[3];
    std::uint16_t rows; ///< of a matrix, map or grid of weights
    std::uint16_t columns;
    TypeId owner;
    TypeId type; ///< nested record, also behind a pointer
    EnumerationId enumeration;
    std::uint8_t rank;
    std::uint8_t unit;
    Element element;
    Role role;
    bool isSigned;
    bool isPointer; ///< to an array of `type` on the heap, or to what is no record
    double minimum;
    double maximum;

    std::size_t number() const { return std::size_t{extents[0]} * extents[1] * extents[2]; }
};

/// A record, and its members as part of all members.
struct Type {
    std::uint32_t name;
    std::uint32_t meaning;
    std::uint32_t size;
    std::uint16_t first;
    std::uint16_t number;
};

struct NamedValue {
    std::uint32_t name;
    std::uint32_t meaning;
    std::int32_t value;
    EnumerationId owner;
};

/// The text at a place in the pool.
const char* factText(std::uint32_t place);
/// All records, in the order of their headers.
std::span<const Type> recordTypes();
const Type& recordType(TypeId id);
/// The record of a name such as "QvDatabaseGain_t"; null when there is none.
const Type* findRecordType(std::string_view name);
std::span<const Member> membersOf(const Type& type);
/// The values of an enumeration in their order.
std::span<const NamedValue> namedValuesOf(EnumerationId id);

} // namespace qv::database
