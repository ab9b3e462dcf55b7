#pragma once

#include <span>

namespace qv::database {

/// A class of the simulator document and the category whose record it carries.
struct SimulatorClass {
    const char* name;
    const char* key;
};

/// The classes of one array in the order of writing, and the member that names an element's class.
struct ClassTable {
    const char* member;
    std::span<const SimulatorClass> rows;
};

inline constexpr SimulatorClass kAutoRows[] = {
    {"A2dnrv5_1", "A2DNR_5_2"}, {"A3dnrv1", "A3DNR_2_1"}, {"AdaptiveAe", "AE_3"},
    {"ABls", "ABLS"},           {"Accm", "ACCM_1_1"},     {"ACnrv2", "ACNR_2_2"},
    {"ACproc", "ACP_1_2"},      {"ADpcc", "ADPCC"},       {"ADmscv2", "ADMSC_2"},
    {"Aeev1", "AEE_2"},         {"Af", "AF_3"},           {"AGamma64", "AGC_2"},
    {"AGreenEqu", "AGE"},       {"ALscv2", "ALSC_4"},     {"Awbv2", "AWB_3"},
    {"AWdrv511", "AWDR_5_2_1"}, {"AutoWorkMode", "AWM"},  {"IspController", "ISP"},
    {"SensorController", "SS"},
};

inline constexpr SimulatorClass kManualRows[] = {
    {"C2dnrv5_1", "2DNR_5_2"}, {"C3Av2Interface", "3AI_2"},
    {"C3dnrv1", "3DNR_2_1"},   {"ExpV2", "AES_2"},
    {"Afmv1", "AFM"},          {"Bls", "BLS"},
    {"CCcm", "CCM_1_1"},       {"CCnrv2_opt", "CNR_2_2"},
    {"CCproc", "CP_1_2"},      {"CCpdv1", "CPD_1_1"},
    {"CDpcc", "DPCC"},         {"CDmscv2", "DMSC_2"},
    {"CDgain", "DG"},          {"CEEv1", "EE_2"},
    {"CGamma64", "GC_2"},      {"CGreenEqu", "GE"},
    {"CHdrv2", "HDR_2_1"},     {"Hist64", "HTG"},
    {"Hist256", "HTG_2"},      {"CLscv2", "LSC_4"},
    {"CRgbIR", "RGBIR_1_1"},   {"CManualWb", "WB_1_1"},
    {"CWdrv5_1", "WDR_5_2_1"},
};

/// Elements of the member "root".
inline constexpr ClassTable kAutoClasses = {"classname", kAutoRows};
/// Elements of the member "driver" of the driver object, which is the one element of "root" without a class.
inline constexpr ClassTable kManualClasses = {"class", kManualRows};
/// The categories whose members stand in the driver object itself, ahead of "driver" and behind it.
inline constexpr const char* kDriverKeys[] = {"MISC", "MD"};

} // namespace qv::database
