#include "database_facts.h"

#include <algorithm>

#include <qv_database_c/database_records.h>

namespace qv::database {

// The numbers of enumerations and records are their places in the list.

#define QV_ENUMERATION(name, meaning) name,
#define QV_VALUE(owner, name, meaning)
#define QV_TYPE(name, meaning)
#define QV_MEMBER(owner, name, meaning, ...)
enum class EnumerationId : std::int8_t {
#include "database_facts.inc"
};
#undef QV_ENUMERATION
#undef QV_TYPE

#define QV_ENUMERATION(name, meaning)
#define QV_TYPE(name, meaning) name,
enum class TypeId : std::int16_t {
#include "database_facts.inc"
};
#undef QV_ENUMERATION
#undef QV_TYPE

namespace {

template <class T>
constexpr TypeId kTypeOf = kNoType;
template <class T>
constexpr EnumerationId kEnumerationOf = kNoEnumeration;

#define QV_ENUMERATION(name, meaning)                                                                                  \
    template <>                                                                                                        \
    constexpr EnumerationId kEnumerationOf<name> = EnumerationId::name;
#define QV_TYPE(name, meaning)                                                                                         \
    template <>                                                                                                        \
    constexpr TypeId kTypeOf<name> = TypeId::name;
#include "database_facts.inc"
#undef QV_ENUMERATION
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

// All texts, one behind the other.

#define QV_ENUMERATION(name, meaning)
#define QV_VALUE(owner, name, text)                                                                                    \
    char name_##name[sizeof #name];                                                                                    \
    char meaning_##name[sizeof text];
#define QV_TYPE(name, text)                                                                                            \
    char name_##name[sizeof #name];                                                                                    \
    char meaning_##name[sizeof text];
#define QV_MEMBER(owner, name, text, ...)                                                                              \
    char name_##owner##_##name[sizeof #name];                                                                          \
    char meaning_##owner##_##name[sizeof text];
struct Texts {
#include "database_facts.inc"
};
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

#define QV_VALUE(owner, name, text) #name, text,
#define QV_TYPE(name, text) #name, text,
#define QV_MEMBER(owner, name, text, ...) #name, text,
constexpr Texts kTexts = {
#include "database_facts.inc"
};
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

#define QV_TEXT(member) static_cast<std::uint32_t>(offsetof(Texts, member))

// What a row may say of a member. Each is a call in database_facts.inc.

consteval Facts range(double minimum, double maximum)
{
    // An end that is left out is kOpen at either side.
    return {.minimum = minimum == kOpen ? -kOpen : minimum, .maximum = maximum};
}

consteval Facts unit(std::string_view name)
{
    for (std::size_t i = 1; i < std::size(kUnits); ++i) {
        if (name == kUnits[i]) {
            return {.unit = static_cast<std::uint8_t>(i)};
        }
    }
    throw "the unit is not in the list of units";
}

consteval Facts enumeration(EnumerationId id)
{
    return {.enumeration = id};
}

consteval Facts only(Role role)
{
    return {.role = role};
}

consteval Facts grid(Role role, std::uint16_t rows, std::uint16_t columns)
{
    return {.role = role, .rows = rows, .columns = columns};
}

consteval Facts about(Role role, Sibling other)
{
    return {.role = role, .other = other};
}

consteval Facts gainAxis()
{
    return only(Role::GainAxis);
}
consteval Facts measured()
{
    return only(Role::Measured);
}
consteval Facts window()
{
    return only(Role::Window);
}
consteval Facts handle()
{
    return only(Role::Handle);
}
[[maybe_unused]] consteval Facts bits()
{
    return only(Role::Bits);
}
consteval Facts curve()
{
    return only(Role::Curve);
}
consteval Facts curveX(Sibling other)
{
    return about(Role::CurveX, other);
}
consteval Facts curveY(Sibling other)
{
    return about(Role::CurveY, other);
}
consteval Facts countOf(Sibling other)
{
    return about(Role::CountOf, other);
}
consteval Facts matrix(std::uint16_t rows, std::uint16_t columns)
{
    return grid(Role::Matrix, rows, columns);
}
consteval Facts map(std::uint16_t rows, std::uint16_t columns)
{
    return grid(Role::Map, rows, columns);
}
[[maybe_unused]] consteval Facts weights(std::uint16_t rows, std::uint16_t columns)
{
    return grid(Role::Weights, rows, columns);
}

template <class T>
consteval Sibling sibling(std::size_t offset)
{
    const auto last = std::rank_v<T> == 0 ? 0 : std::extent_v < T, std::rank_v<T> == 0 ? 0 : std::rank_v<T> - 1 > ;
    return {static_cast<std::uint32_t>(offset), static_cast<std::uint16_t>(last),
            std::is_array_v<T> || std::is_pointer_v<T>};
}

/// Whether the last dimensions hold `number` elements.
consteval bool endsIn(const Field& field, std::size_t number)
{
    std::size_t product = 1;
    for (std::size_t i = field.rank; i-- > 0;) {
        product *= field.extents[i];
        if (product == number) {
            return true;
        }
    }
    return false;
}

consteval void checkRange(const Field& field, const Facts& facts)
{
    const bool isRanged = facts.minimum != -kOpen || facts.maximum != kOpen;
    if (!isRanged) {
        return;
    }
    if (facts.minimum > facts.maximum) {
        throw "the range is empty";
    }
    if (field.element == Element::Integer) {
        const double reach = static_cast<double>(std::uint64_t{1} << (field.width * 8 - 1U));
        const double least = field.isSigned ? -reach : 0;
        const double most = field.isSigned ? reach - 1 : 2 * reach - 1;
        if ((facts.minimum != -kOpen && facts.minimum < least) || (facts.maximum != kOpen && facts.maximum > most)) {
            throw "the type can't hold the range";
        }
    } else if (field.element != Element::Float && field.element != Element::Double) {
        throw "only a number has a range";
    }
}

consteval void checkRole(const Field& field, const Facts& facts)
{
    const bool isInteger = field.element == Element::Integer;
    const bool isNumber = isInteger || field.element == Element::Float || field.element == Element::Double;
    const std::uint16_t last = field.rank == 0 ? std::uint16_t{0} : field.extents[field.rank - 1];
    bool isSound = true;
    switch (facts.role) {
    case Role::None:
    case Role::Measured:
        break;
    case Role::GainAxis:
        isSound = field.element == Element::Float && field.rank == 1;
        break;
    case Role::Curve:
        isSound = isNumber && field.rank > 0;
        break;
    case Role::CurveX:
    case Role::CurveY:
        isSound = isNumber && field.rank > 0 && facts.other.last == last;
        break;
    case Role::Matrix:
    case Role::Map:
    case Role::Weights:
        isSound = isNumber && endsIn(field, std::size_t{facts.rows} * facts.columns);
        break;
    case Role::Window:
        isSound = field.element == Element::Record || (isNumber && (last == 4 || last == 5)); // with a weight
        break;
    case Role::CountOf:
        isSound = isInteger && field.rank == 0 && facts.other.isList;
        break;
    case Role::Bits:
    case Role::Handle:
        isSound = isInteger;
        break;
    }
    if (!isSound) {
        throw "the member's type or extents contradict its role";
    }
}

/// The C side of a member of type T: the row that a table would make of it, with records and pointers allowed.
template <class T>
consteval Field fieldOf()
{
    using E = std::remove_all_extents_t<T>;
    if constexpr (std::is_pointer_v<E> || std::is_class_v<E>) {
        static_assert(std::rank_v<T> <= 1, "arrays of records have one dimension");
        Field field;
        if constexpr (std::is_pointer_v<E>) {
            field.width = sizeof(void*);
        } else {
            field.width = sizeof(E);
        }
        field.element = Element::Record;
        field.rank = std::rank_v<T>;
        if constexpr (std::rank_v<T> == 1) {
            field.extents[0] = static_cast<std::uint16_t>(std::extent_v<T>);
        }
        return field;
    } else {
        return makeField<T>(nullptr, 0, 0);
    }
}

struct MemberTexts {
    std::uint32_t name;
    std::uint32_t meaning;
};

template <class T, class... F>
consteval Member member(TypeId owner, MemberTexts texts, std::size_t offset, F... each)
{
    using E = std::remove_all_extents_t<T>;
    Facts facts{};
    facts.enumeration = kEnumerationOf<E>;
    ((facts = facts.with(each)), ...);
    const Field field = fieldOf<T>();
    checkRange(field, facts);
    checkRole(field, facts);
    if (facts.enumeration != kNoEnumeration && field.element != Element::Integer) {
        throw "only an integer holds the values of an enumeration";
    }
    return {.name = texts.name,
            .meaning = texts.meaning,
            .offset = static_cast<std::uint32_t>(offset),
            .width = field.width,
            .other = facts.other.offset,
            .extents = {field.extents[0], field.extents[1], field.extents[2]},
            .rows = facts.rows,
            .columns = facts.columns,
            .owner = owner,
            .type = kTypeOf<std::remove_pointer_t<E>>,
            .enumeration = facts.enumeration,
            .rank = field.rank,
            .unit = facts.unit,
            .element = field.element,
            .role = facts.role,
            .isSigned = field.isSigned,
            .isPointer = std::is_pointer_v<E>,
            .minimum = facts.minimum,
            .maximum = facts.maximum};
}

#define QV_SIBLING(owner, name) sibling<decltype(owner::name)>(offsetof(owner, name))
#define QV_VALUE(owner, name, text)
#define QV_TYPE(name, text)
#define QV_MEMBER(owner, name, text, ...)                                                                              \
    member<decltype(owner::name)>(TypeId::owner, {QV_TEXT(name_##owner##_##name), QV_TEXT(meaning_##owner##_##name)},  \
                                  offsetof(owner, name) __VA_OPT__(, ) __VA_ARGS__),
constexpr Member kMembers[] = {
#include "database_facts.inc"
};
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

consteval Type type(TypeId id, std::uint32_t name, std::uint32_t meaning, std::size_t size)
{
    std::uint16_t first = 0;
    while (kMembers[first].owner != id) {
        ++first;
    }
    std::uint16_t number = 0;
    while (std::size_t{first} + number < std::size(kMembers) && kMembers[first + number].owner == id) {
        ++number;
    }
    return {name, meaning, static_cast<std::uint32_t>(size), first, number};
}

#define QV_VALUE(owner, name, text)
#define QV_TYPE(name, text) type(TypeId::name, QV_TEXT(name_##name), QV_TEXT(meaning_##name), sizeof(name)),
#define QV_MEMBER(owner, name, text, ...)
constexpr Type kTypes[] = {
#include "database_facts.inc"
};
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

#define QV_VALUE(owner, name, text)                                                                                    \
    NamedValue{QV_TEXT(name_##name), QV_TEXT(meaning_##name), static_cast<std::int32_t>(owner{name}),                  \
               EnumerationId::owner},
#define QV_TYPE(name, text)
#define QV_MEMBER(owner, name, text, ...)
constexpr NamedValue kNamedValues[] = {
#include "database_facts.inc"
};
#undef QV_ENUMERATION
#undef QV_VALUE
#undef QV_TYPE
#undef QV_MEMBER

} // namespace

const char* factText(std::uint32_t place)
{
    return reinterpret_cast<const char*>(&kTexts) + place;
}

std::span<const Type> recordTypes()
{
    return kTypes;
}

const Type& recordType(TypeId id)
{
    return kTypes[static_cast<std::size_t>(id)];
}

const Type* findRecordType(std::string_view name)
{
    for (const Type& row : kTypes) {
        if (name == factText(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

std::span<const Member> membersOf(const Type& type)
{
    return std::span{kMembers}.subspan(type.first, type.number);
}

std::span<const NamedValue> namedValuesOf(EnumerationId id)
{
    const auto isOther = [id](const NamedValue& row) { return row.owner != id; };
    const auto* pFirst = std::find_if_not(std::begin(kNamedValues), std::end(kNamedValues), isOther);
    return {pFirst, std::find_if(pFirst, std::end(kNamedValues), isOther)};
}

} // namespace qv::database
