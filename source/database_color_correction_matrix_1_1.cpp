#include <iterator>

#include <qv_common_c/common_stdlib.h>
#include <qv_database_c/database_color_correction_matrix_1_1.h>

#include "database_walk.h"
#include "protocol_calibration_array.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseColorCorrectionMatrix_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(ccMatrix),
    QV_FIELD(ccOffset),
    QV_FIELD(overrideCaliEn),
};

Record default_()
{
    Record record{};
    record.overrideCaliEn = true;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kColorCorrectionMatrix_1_1 =
    QV_TABLE("QvDatabaseColorCorrectionMatrix_1_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseColorCorrectionMatrix_1_1, tuning::kColorCorrectionMatrix_1_1)
QV_DEFAULT_RESET(QvDatabaseColorCorrectionMatrix_1_1, tuning::default_())

int QvDatabaseColorCorrectionMatrix_1_1_parse2(QvCommonBuffer_t* pBuffer,
                                               QvDatabaseColorCorrectionMatrix_1_1_t* pConfig)
{
    if (pBuffer == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    const auto into = [](float* pData) {
        return [pData](std::size_t i, const char* pItem) { pData[i] = QvCommonStdlib_strtof(pItem, nullptr); };
    };
    const int status = readArray(pBuffer, "ctm", std::size(pConfig->ccMatrix), QV_HERE, into(pConfig->ccMatrix));
    if (status != kSuccess) {
        return status;
    }
    return readArray(pBuffer, "successional_color_offset", std::size(pConfig->ccOffset), QV_HERE,
                     into(pConfig->ccOffset));
}
