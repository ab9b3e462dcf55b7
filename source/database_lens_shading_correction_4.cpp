#include <cstdint>
#include <span>

#include <qv_common_c/common_stdlib.h>
#include <qv_database_c/database_lens_shading_correction_4.h>

#include "database_walk.h"
#include "protocol_calibration_array.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseLensShadingCorrection_4_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(matrix),
    QV_FIELD(xSize),
    QV_FIELD(ySize),
    QV_FIELD(overrideCaliEn),
};
// clang-format on

Record default_()
{
    Record record{};
    record.overrideCaliEn = true;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kLensShadingCorrection_4 = QV_TABLE("QvDatabaseLensShadingCorrection_4", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseLensShadingCorrection_4, tuning::kLensShadingCorrection_4)
QV_DEFAULT_RESET(QvDatabaseLensShadingCorrection_4, tuning::default_())

int QvDatabaseLensShadingCorrection_4_parse2(QvCommonBuffer_t* pBuffer, QvDatabaseLensShadingCorrection_4_t* pConfig)
{
    if (pBuffer == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    const struct {
        const char* key;
        std::span<std::uint16_t> target;
    } arrays[] = {
        {"LSC_SECT_SIZE_X", pConfig->xSize},
        {"LSC_SECT_SIZE_Y", pConfig->ySize},
        {"LSC_SAMPLES_red", pConfig->matrix[0]},
        {"LSC_SAMPLES_greenAtRedLine", pConfig->matrix[1]},
        {"LSC_SAMPLES_greenAtBlueLine", pConfig->matrix[2]},
        {"LSC_SAMPLES_blue", pConfig->matrix[3]},
    };
    for (const auto& array : arrays) {
        const auto store = [&array](std::size_t i, const char* pItem) {
            // A number too large for a sample keeps its low 16 bits.
            array.target[i] = static_cast<std::uint16_t>(QvCommonStdlib_strtol(pItem, nullptr, 10));
        };
        const int status = readArray(pBuffer, array.key, array.target.size(), QV_HERE, store);
        if (status != kSuccess) {
            return status;
        }
    }
    return kSuccess;
}
