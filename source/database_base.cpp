#include <qv_database_c/database_base.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace gain {
using Record = QvDatabaseGain_t;

// The documents hold the bit patterns of these floats as integers.
constexpr Field kRows[] = {
    QV_FIELD(blue).asInteger(),
    QV_FIELD(greenBlue).asInteger(),
    QV_FIELD(greenRed).asInteger(),
    QV_FIELD(red).asInteger(),
};
} // namespace gain

namespace point {
using Record = QvDatabasePoint_t;

// Unsigned in the record, yet 32768 and above go out as negative numbers.
constexpr Field kRows[] = {
    QV_FIELD(x).writtenSigned(),
    QV_FIELD(y).writtenSigned(),
};
} // namespace point

namespace range {
using Record = QvDatabaseRange_t;

// One key for both fields, and bit patterns as above; the key "min" is not in use.
constexpr Field kRows[] = {
    QV_FIELD(max).asInteger(),
    QV_FIELD_KEY(min, "max").asInteger(),
};
} // namespace range

namespace rectangle {
using Record = QvDatabaseRectangle_t;

constexpr Field kRows[] = {
    QV_FIELD(height),
    QV_OBJECT(offset, kPoint),
    QV_FIELD(width),
};
} // namespace rectangle

} // namespace

constinit const TableOf<QvDatabaseGain_t> kGain{"QvDatabaseGain", __FILE__, gain::kRows};
constinit const TableOf<QvDatabasePoint_t> kPoint{"QvDatabasePoint", __FILE__, point::kRows};
constinit const TableOf<QvDatabaseRange_t> kRange{"QvDatabaseRange", __FILE__, range::kRows};
constinit const TableOf<QvDatabaseRectangle_t> kRectangle{"QvDatabaseRectangle", __FILE__, rectangle::kRows};

} // namespace qv::database::tuning

using namespace qv::database;

// None of the eight tests its arguments.

int QvDatabaseGain_parse(QvJsonValue_t* pValue, QvDatabaseGain_t* pConfig)
{
    return readTable(tuning::kGain, pValue, pConfig);
}

int QvDatabaseGain_serialize(QvDatabaseGain_t* pConfig, QvJsonValue_t* pValue)
{
    return writeTable(tuning::kGain, pConfig, pValue);
}

int QvDatabasePoint_parse(QvJsonValue_t* pValue, QvDatabasePoint_t* pConfig)
{
    return readTable(tuning::kPoint, pValue, pConfig);
}

int QvDatabasePoint_serialize(QvDatabasePoint_t* pConfig, QvJsonValue_t* pValue)
{
    return writeTable(tuning::kPoint, pConfig, pValue);
}

int QvDatabaseRange_parse(QvJsonValue_t* pValue, QvDatabaseRange_t* pConfig)
{
    return readTable(tuning::kRange, pValue, pConfig);
}

int QvDatabaseRange_serialize(QvDatabaseRange_t* pConfig, QvJsonValue_t* pValue)
{
    return writeTable(tuning::kRange, pConfig, pValue);
}

int QvDatabaseRectangle_parse(QvJsonValue_t* pValue, QvDatabaseRectangle_t* pConfig)
{
    return readTable(tuning::kRectangle, pValue, pConfig);
}

int QvDatabaseRectangle_serialize(QvDatabaseRectangle_t* pConfig, QvJsonValue_t* pValue)
{
    return writeTable(tuning::kRectangle, pConfig, pValue);
}
