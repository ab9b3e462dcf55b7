#include <qv_database_c/qv_database.h>

#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

namespace {

// What is not in this list is left alone, and on purpose: a loaded calibration, the setting, run-time objects,
// metadata, the pipeline's inputs and outputs, and a few blocks whose neighbours are reset.
constexpr const char* kKeys[] = {
    "2DNR_5_2",  "3DNR_2_1",   "A2DNR_5_2", "A3DNR_2_1", "ABLS",      "ACNR_2_2", "ACP_1_2", "ADMSC_2",
    "AEE_2",     "ADPCC",      "AE_3",      "AES_2",     "AF_3",      "AFM",      "AGC_2",   "AGE",
    "AWB_3",     "AWDR_5_2_1", "BLS",       "CCM_1_1",   "CNR_2_2",   "CP_1_2",   "CPD_1_1", "DPCC",
    "DMSC_2",    "DVC",        "DG",        "EE_2",      "GC_2",      "GE",       "LSC_4",   "MISC",
    "RGBIR_1_1", "SS",         "TM",        "WB_1_1",    "WDR_5_2_1",
};
static_assert(std::size(kKeys) == 37);

} // namespace

int QvDatabase_reset(QvDatabaseHandle_t handle)
{
    if (handle == 0) {
        return kBadArgument;
    }
    for (const char* pKey : kKeys) {
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        QV_TRY(queryCategory(handle, pKey, &pCategory, &pRecord));
        QV_TRY(pCategory->reset(pRecord));
    }
    return kSuccess;
}
