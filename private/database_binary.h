#pragma once

#include <cstdio>
#include <iterator>
#include <span>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_tracer.h>

#include "database_registry.h"
#include "database_status.h"

namespace qv::database {

/// The categories of the binary image. The list and its order are the file format and never change. AGE and DUMP are
/// not in it, on purpose.
inline constexpr const char* kImageKeys[] = {
    "CLB",       "2DNR_5_2", "A2DNR_5_2", "3DNR_2_1", "A3DNR_2_1", "AFM",        "BLS",     "ABLS",  "C_MODEL",
    "CCM_1_1",   "ACCM_1_1", "CNR_2_2",   "ACNR_2_2", "CP_1_2",    "ACP_1_2",    "CPD_1_1", "DPCC",  "ADPCC",
    "DMSC_2",    "ADMSC_2",  "DG",        "EE_2",     "AEE_2",     "EC_2",       "AE_3",    "AES_2", "FC",
    "AF_3",      "GC_2",     "AGC_2",     "GE",       "HDR_2_1",   "HTG",        "HTG_2",   "LSC_4", "ALSC_4",
    "RGBIR_1_1", "TL",       "WB_1_1",    "AWB_3",    "WDR_5_2_1", "AWDR_5_2_1", "AWM",     "DVC",   "IPT",
    "MISC",      "OPT",      "SS",        "TM",
};
static_assert(std::size(kImageKeys) == 49);

/// The same as categories.
std::span<const Category* const> imageCategories();

/// Checks that a record fits behind the buffer's offset and leaves a line with its place at Debug; pArrow tells the
/// direction. 0, or 6 without a line.
inline int enterRecord(const QvCommonBuffer_t* pBuffer, const Category& row, const char* pArrow)
{
    if (pBuffer->offset > pBuffer->size || pBuffer->size - pBuffer->offset < row.size) {
        return kCapacity;
    }
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Debug, nullptr, 0, nullptr);
    std::fprintf(QvCommonTracer_file(hTracer), "%-10s %s offset=%08lX, size=%08lX\n", row.key, pArrow, pBuffer->offset,
                 row.size);
    return kSuccess;
}

} // namespace qv::database
