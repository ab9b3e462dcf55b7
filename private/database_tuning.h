#pragma once

namespace qv::database {

/// One category of the tuning document.
struct TuningRow {
    const char* key;
    bool isWritten = true;
};

/// The categories of the tuning document in the order of reading and writing. AES_2 is read and not written: what it
/// held in memory stays through a save and a load.
inline constexpr TuningRow kTuningRows[] = {
    {"2DNR_5_2"},   {"A2DNR_5_2"}, {"3DNR_2_1"}, {"A3DNR_2_1"}, {"AFM"},     {"BLS"},     {"ABLS"},    {"CCM_1_1"},
    {"ACCM_1_1"},   {"CNR_2_2"},   {"ACNR_2_2"}, {"CP_1_2"},    {"ACP_1_2"}, {"CPD_1_1"}, {"DPCC"},    {"ADPCC"},
    {"DMSC_2"},     {"ADMSC_2"},   {"DG"},       {"EE_2"},      {"AEE_2"},   {"EC_2"},    {"AE_3"},    {"AES_2", false},
    {"FC"},         {"AF_3"},      {"GC_2"},     {"AGC_2"},     {"GE"},      {"AGE"},     {"HDR_2_1"}, {"HTG"},
    {"HTG_2"},      {"LSC_4"},     {"ALSC_4"},   {"RGBIR_1_1"}, {"TL"},      {"WB_1_1"},  {"AWB_3"},   {"WDR_5_2_1"},
    {"AWDR_5_2_1"}, {"AWM"},       {"DUMP"},     {"MISC"},      {"C_MODEL"}, {"DVC"},     {"IPT"},     {"OPT"},
    {"SS"},         {"TM"},
};

} // namespace qv::database
