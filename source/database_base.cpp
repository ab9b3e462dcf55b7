#include <qv_database_c/database_base.h>

#include <bit>

#include "database_values.h"
#include "database_walk.h"

// Files hold records byte for byte; their sizes, asserted beside them, say nothing of the order of bytes.
static_assert(std::endian::native == std::endian::little);

namespace qv::database::tuning {
namespace {

namespace gain {
QV_RECORD(QvDatabaseGain_t);

// The documents hold the bit patterns of these floats as integers.
constexpr Field kRows[] = {
    QV_FIELD(blue).asInteger(),
    QV_FIELD(greenBlue).asInteger(),
    QV_FIELD(greenRed).asInteger(),
    QV_FIELD(red).asInteger(),
};

constexpr auto kTable = QV_TABLE("QvDatabaseGain", kRows);
} // namespace gain

namespace point {
QV_RECORD(QvDatabasePoint_t);

// Unsigned in the record, yet 32768 and above go out as negative numbers.
constexpr Field kRows[] = {
    QV_FIELD(x).writtenSigned(),
    QV_FIELD(y).writtenSigned(),
};

constexpr auto kTable = QV_TABLE("QvDatabasePoint", kRows);
} // namespace point

namespace range {
QV_RECORD(QvDatabaseRange_t);

// One key for both fields, and bit patterns as above; the key "min" is not in use.
constexpr Field kRows[] = {
    QV_FIELD(max).asInteger(),
    QV_FIELD_KEY(min, "max").asInteger(),
};

constexpr auto kTable = QV_TABLE("QvDatabaseRange", kRows);
} // namespace range

namespace rectangle {
QV_RECORD(QvDatabaseRectangle_t);

constexpr Field kRows[] = {
    QV_FIELD(height),
    QV_OBJECT(offset, kPoint),
    QV_FIELD(width),
};

constexpr auto kTable = QV_TABLE("QvDatabaseRectangle", kRows);
} // namespace rectangle

} // namespace

extern constinit const TableOf<QvDatabaseGain_t> kGain = gain::kTable;
extern constinit const TableOf<QvDatabasePoint_t> kPoint = point::kTable;
extern constinit const TableOf<QvDatabaseRange_t> kRange = range::kTable;
extern constinit const TableOf<QvDatabaseRectangle_t> kRectangle = rectangle::kTable;

} // namespace qv::database::tuning

using namespace qv::database;

// None of the eight tests its arguments.

QV_UNTESTED_CODECS(QvDatabaseGain, tuning::kGain)
QV_UNTESTED_CODECS(QvDatabasePoint, tuning::kPoint)
QV_UNTESTED_CODECS(QvDatabaseRange, tuning::kRange)
QV_UNTESTED_CODECS(QvDatabaseRectangle, tuning::kRectangle)
