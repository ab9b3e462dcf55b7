#pragma once

namespace qv::database {

/// One category of the tuning document.
struct TuningRow {
    const char* key;
    const char* place; ///< in the document, as a JSON Pointer
    bool isWritten = true;
};

/// The categories of the tuning document in the order of reading and writing. AES_2 is read and not written: what it
/// held in memory stays through a save and a load.
#define QV_TUNING(key) key, "/tuning/" key
inline constexpr TuningRow kTuningRows[] = {
    {QV_TUNING("2DNR_5_2")},   {QV_TUNING("A2DNR_5_2")}, {QV_TUNING("3DNR_2_1")}, {QV_TUNING("A3DNR_2_1")},
    {QV_TUNING("AFM")},        {QV_TUNING("BLS")},       {QV_TUNING("ABLS")},     {QV_TUNING("CCM_1_1")},
    {QV_TUNING("ACCM_1_1")},   {QV_TUNING("CNR_2_2")},   {QV_TUNING("ACNR_2_2")}, {QV_TUNING("CP_1_2")},
    {QV_TUNING("ACP_1_2")},    {QV_TUNING("CPD_1_1")},   {QV_TUNING("DPCC")},     {QV_TUNING("ADPCC")},
    {QV_TUNING("DMSC_2")},     {QV_TUNING("ADMSC_2")},   {QV_TUNING("DG")},       {QV_TUNING("EE_2")},
    {QV_TUNING("AEE_2")},      {QV_TUNING("EC_2")},      {QV_TUNING("AE_3")},     {QV_TUNING("AES_2"), false},
    {QV_TUNING("FC")},         {QV_TUNING("AF_3")},      {QV_TUNING("GC_2")},     {QV_TUNING("AGC_2")},
    {QV_TUNING("GE")},         {QV_TUNING("AGE")},       {QV_TUNING("HDR_2_1")},  {QV_TUNING("HTG")},
    {QV_TUNING("HTG_2")},      {QV_TUNING("LSC_4")},     {QV_TUNING("ALSC_4")},   {QV_TUNING("RGBIR_1_1")},
    {QV_TUNING("TL")},         {QV_TUNING("WB_1_1")},    {QV_TUNING("AWB_3")},    {QV_TUNING("WDR_5_2_1")},
    {QV_TUNING("AWDR_5_2_1")}, {QV_TUNING("AWM")},       {QV_TUNING("DUMP")},     {QV_TUNING("MISC")},
    {QV_TUNING("C_MODEL")},    {QV_TUNING("DVC")},       {QV_TUNING("IPT")},      {QV_TUNING("OPT")},
    {QV_TUNING("SS")},         {QV_TUNING("TM")},
};
#undef QV_TUNING

} // namespace qv::database
