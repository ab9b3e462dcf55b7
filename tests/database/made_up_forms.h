// Records of kinds that the walk knows and no form has, with their tables.
#pragma once

#include <cstdint>

#include "database_walk.h"

namespace qv::test {

using namespace qv::database;

namespace kinds {
struct Kinds {
    std::int32_t cube[2][3][2];
    float floats[2][2][2];
    std::int8_t small[3];
    std::int8_t smallGrid[2][2];
    double pair[2];
};
QV_RECORD(Kinds);
constexpr Field kRows[] = {
    QV_FIELD(cube), QV_FIELD(floats), QV_FIELD(small), QV_FIELD(smallGrid), QV_FIELD(pair),
};
constexpr auto kTable = QV_TABLE("kinds", kRows);
} // namespace kinds

namespace item {
struct Item {
    float value;
};
QV_RECORD(Item);
constexpr Field kRows[] = {
    QV_FIELD(value),
};
constexpr auto kTable = QV_TABLE("item", kRows);
} // namespace item

namespace lists {
struct Lists {
    item::Item schedule[2];
    item::Item measured[2];
    std::uint8_t scheduleNumber;
    std::uint8_t measuredNumber;
};
QV_RECORD(Lists);
constexpr Field kRows[] = {
    QV_OBJECT(schedule, item::kTable).scheduledBy(QV_COUNTER(scheduleNumber)),
    QV_OBJECT(measured, item::kTable).measuredInto(QV_COUNTER(measuredNumber)),
};
constexpr auto kTable = QV_TABLE("lists", kRows);
} // namespace lists

namespace nested {
struct Nested {
    lists::Lists fixed[2];
    lists::Lists schedule[2];
    std::uint8_t number;
};
QV_RECORD(Nested);
constexpr Field kRows[] = {
    QV_OBJECT(fixed, lists::kTable),
    QV_OBJECT(schedule, lists::kTable).scheduledBy(QV_COUNTER(number)),
};
constexpr auto kTable = QV_TABLE("nested", kRows);
} // namespace nested

namespace name {
struct Name {
    char text[4];
};
QV_RECORD(Name);
constexpr Field kRows[] = {
    QV_FIELD(text),
};
constexpr auto kTable = QV_TABLE("name", kRows);
} // namespace name

namespace names {
struct Names {
    name::Name list[2];
    std::uint8_t number;
};
QV_RECORD(Names);
constexpr Field kRows[] = {
    QV_OBJECT(list, name::kTable).measuredInto(QV_COUNTER(number)),
};
constexpr auto kTable = QV_TABLE("names", kRows);
} // namespace names

namespace onHeap {
struct OnHeap {
    lists::Lists* pList;
    std::size_t number;
};
QV_RECORD(OnHeap);
constexpr Field kRows[] = {
    QV_HEAP_KEY(pList, "list", lists::kTable, QV_COUNTER(number)),
};
constexpr auto kTable = QV_TABLE("onHeap", kRows);
} // namespace onHeap

} // namespace qv::test
