#include <qv_database_c/protocol_calibration.h>

#include "database_walk.h"

// Sign flags are those that tools have always been given, also where they are not the field's own: grids and sector
// sizes of the lens shading go out signed, the offsets of the chromatic aberration unsigned.

namespace qv::database::calibration {
namespace {

namespace headerResolutionFramerate {
QV_RECORD(QvDatabaseCalibrationHeaderResolutionFramerate_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(fps),
};

constexpr auto kTable = QV_TABLE("headerResolutionFramerate", kRows);
} // namespace headerResolutionFramerate

namespace headerResolution {
QV_RECORD(QvDatabaseCalibrationHeaderResolution_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(id),
    QV_FIELD(width),
    QV_FIELD(height),
    QV_OBJECT_KEY(framerate, "framerate", headerResolutionFramerate::kTable).measuredInto(QV_COUNTER(framerateNumber)),
};

constexpr auto kTable = QV_TABLE("headerResolution", kRows);
} // namespace headerResolution

namespace header {
QV_RECORD(QvDatabaseCalibrationHeader_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(date, "creation_date"),
    QV_FIELD(creator),
    QV_FIELD_KEY(sensorName, "sensor_name"),
    QV_FIELD_KEY(sampleName, "sample_name"),
    QV_FIELD_KEY(generatorVersion, "generator_version"),
    QV_OBJECT_KEY(resolutions, "resolution", headerResolution::kTable).measuredInto(QV_COUNTER(resolutionNumber)),
};

constexpr auto kTable = QV_TABLE("header", kRows);
} // namespace header

namespace sensorAf {
QV_RECORD(QvDatabaseCalibrationSensorAf_t);

constexpr Field kRows[] = {
    QV_FIELD(tbd),
};

constexpr auto kTable = QV_TABLE("sensorAf", kRows);
} // namespace sensorAf

namespace iir {
QV_RECORD(QvDatabaseCalibrationSensorAwbGlobal_Iir_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(dampCoefAdd, "DampCoefAdd"),
    QV_FIELD_KEY(dampCoefSub, "DampCoefSub"),
    QV_FIELD_KEY(dampFilterThreshold, "DampFilterThreshold"),
    QV_FIELD_KEY(dampingCoefMin, "DampingCoefMin"),
    QV_FIELD_KEY(dampingCoefMax, "DampingCoefMax"),
    QV_FIELD_KEY(dampingCoefInit, "DampingCoefInit"),
    QV_FIELD_KEY(expPriorFilterSizeMax, "ExpPriorFilterSizeMax"),
    QV_FIELD_KEY(expPriorFilterSizeMin, "ExpPriorFilterSizeMin"),
    QV_FIELD_KEY(expPriorMiddle, "ExpPriorMiddle"),
};

constexpr auto kTable = QV_TABLE("sensorAwbGlobal", kRows);
} // namespace iir

namespace sensorAwbGlobal {
QV_RECORD(QvDatabaseCalibrationSensorAwbGlobal_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(resolution),
    QV_FIELD_KEY(svdMeanValue, "SVDMeanValue"),
    QV_FIELD_KEY(pcaMatrix, "PCAMatrix").inRowsOf(2),
    QV_FIELD_KEY(centerLine, "CenterLine"),
    QV_FIELD(afRg2),
    QV_FIELD(afMaxDist2),
    QV_FIELD(afRg1),
    QV_FIELD(afMaxDist1),
    QV_FIELD(afGlobalFade2),
    QV_FIELD(afGlobalGainDistance2),
    QV_FIELD(afGlobalFade1),
    QV_FIELD(afGlobalGainDistance1),
    QV_FIELD(fRgProjIndoorMin),
    QV_FIELD(fRgProjMax),
    QV_FIELD(fRgProjMaxSky),
    QV_FIELD(fRgProjOutdoorMin),
    QV_FIELD_KEY(awbClipOutDoor, "awb_clip_outdoor"),
    QV_FIELD_KEY(kFactor, "K_Factor"),
    QV_FIELD(afFade2),
    QV_FIELD(afCbMinRegionMax),
    QV_FIELD(afCrMinRegionMax),
    QV_FIELD(afMaxCSumRegionMax),
    QV_FIELD(afCbMinRegionMin),
    QV_FIELD(afCrMinRegionMin),
    QV_FIELD(afMaxCSumRegionMin),
    QV_FIELD_KEY(regionSize, "RegionSize"),
    QV_FIELD_KEY(regionSizeInc, "RegionSizeInc"),
    QV_FIELD_KEY(regionSizeDec, "RegionSizeDec"),
    QV_OBJECT_KEY(iir, "IIR", iir::kTable),
};

constexpr auto kTable = QV_TABLE("sensorAwbGlobal", kRows);
} // namespace sensorAwbGlobal

namespace gmm {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_Gmm_t);

constexpr Field kRows[] = {
    QV_FIELD(invCovMatrix).inRowsOf(2),
    QV_FIELD_KEY(gaussianScalingFactor, "GaussianScalingFactor"),
    QV_FIELD(tau),
    QV_FIELD_KEY(gaussianMeanValue, "GaussianMeanValue"),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace gmm

namespace alsc {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_Alsc_t);

constexpr Field kRows[] = {
    QV_FIELD(resolution),
    QV_FIELD_KEY(profile, "LSC_PROFILE_LIST"),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace alsc

namespace satCt {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_SatCt_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD_KEY(saturation, "sat"),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace satCt

namespace vigCt {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_VigCt_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD_KEY(vignetting, "vig"),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace vigCt

namespace acc {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_Acc_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(profile, "CC_PROFILE_LIST"),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace acc

namespace sensorAwbIllumination {
QV_RECORD(QvDatabaseCalibrationSensorAwbIllumination_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(doorType),
    QV_OBJECT_KEY(gmm, "GMM", gmm::kTable),
    QV_OBJECT_KEY(alsc, "aLSC", alsc::kTable).inList(),
    QV_FIELD_KEY(manualWb, "manualWB"),
    QV_FIELD_KEY(manualCcMatrix, "manualccMatrix").inRowsOf(3),
    QV_FIELD_KEY(manualCcOffset, "manualccOffsets"),
    QV_FIELD(awbType),
    QV_OBJECT_KEY(satCt, "sat_CT", satCt::kTable),
    QV_OBJECT_KEY(vigCt, "vig_CT", vigCt::kTable),
    QV_OBJECT_KEY(acc, "aCC", acc::kTable),
};

constexpr auto kTable = QV_TABLE("sensorAwbIllumination", kRows);
} // namespace sensorAwbIllumination

namespace sensorAwb {
QV_RECORD(QvDatabaseCalibrationSensorAwb_t);

constexpr Field kRows[] = {
    QV_OBJECT_KEY(globals, "globals", sensorAwbGlobal::kTable).measuredInto(QV_COUNTER(globalNumber)),
    QV_OBJECT_KEY(illuminations, "illumination", sensorAwbIllumination::kTable)
        .measuredInto(QV_COUNTER(illuminationNumber)),
};

constexpr auto kTable = QV_TABLE("sensorAwb", kRows);
} // namespace sensorAwb

namespace sensorBls {
QV_RECORD(QvDatabaseCalibrationSensorBls_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(resolution),
    QV_FIELD_KEY(data, "blsData"),
    QV_FIELD(bitWidth),
};

constexpr auto kTable = QV_TABLE("sensorBls", kRows);
} // namespace sensorBls

namespace sensorBnr {
QV_RECORD(QvDatabaseCalibrationSensorBnr_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(kA, "k_a"),
    QV_FIELD_KEY(pB, "p_b"),
};

constexpr auto kTable = QV_TABLE("sensorBnr", kRows);
} // namespace sensorBnr

namespace sensorCac {
QV_RECORD(QvDatabaseCalibrationSensorCac_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(resolution),
    QV_FIELD_KEY(xNormalShift, "x_normshift"),
    QV_FIELD_KEY(xNormalFactor, "x_normfactor"),
    QV_FIELD_KEY(yNormalShift, "y_normshift"),
    QV_FIELD_KEY(yNormalFactor, "y_normfactor"),
    QV_FIELD_KEY(xOffset, "x_offset").writtenUnsigned(),
    QV_FIELD_KEY(yOffset, "y_offset").writtenUnsigned(),
    QV_FIELD_KEY(redParameters, "red_parameters"),
    QV_FIELD_KEY(blueParameters, "blue_parameters"),
};

constexpr auto kTable = QV_TABLE("sensorCac", kRows);
} // namespace sensorCac

namespace sensorCc {
QV_RECORD(QvDatabaseCalibrationSensorCc_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(saturation),
    QV_FIELD(ccMatrix).inRowsOf(3),
    QV_FIELD_KEY(ccOffset, "ccOffsets"),
    QV_FIELD(wb),
    QV_FIELD_KEY(sensorGains, "SensorGains"),
};

constexpr auto kTable = QV_TABLE("sensorCc", kRows);
} // namespace sensorCc

namespace sensorDpf {
QV_RECORD(QvDatabaseCalibrationSensorDpf_t);

constexpr Field kRows[] = {
    QV_FIELD(name),
    QV_FIELD(resolution),
    QV_FIELD_KEY(nllSegmentation, "NLL_SEGMENTATION"),
    QV_FIELD_KEY(nllCoeffN, "nll_coeff_n"),
    QV_FIELD_KEY(sensorGains, "SensorGains"),
    QV_FIELD_KEY(nma, "NMa"),
    QV_FIELD_KEY(nmb, "NMb"),
    QV_FIELD_KEY(sigmaGreen, "SigmaGreen"),
    QV_FIELD_KEY(sigmaRedBlue, "SigmaRedBlue"),
    QV_FIELD_KEY(gradient, "Gradient"),
    QV_FIELD_KEY(offset, "Offset"),
    QV_FIELD_KEY(nlGains, "NlGains"),
};

constexpr auto kTable = QV_TABLE("sensorDpf", kRows);
} // namespace sensorDpf

namespace sensorLsc {
QV_RECORD(QvDatabaseCalibrationSensorLsc_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(sensorGains, "SensorGains"),
    QV_FIELD(name),
    QV_FIELD(resolution),
    QV_FIELD(illumination),
    QV_FIELD_KEY(sectors, "LSC_sectors"),
    QV_FIELD_KEY(no, "LSC_No"),
    QV_FIELD_KEY(xo, "LSC_Xo"),
    QV_FIELD_KEY(yo, "LSC_Yo"),
    QV_FIELD_KEY(sectSizeX, "LSC_SECT_SIZE_X").writtenSigned(),
    QV_FIELD_KEY(sectSizeY, "LSC_SECT_SIZE_Y").writtenSigned(),
    QV_FIELD(vignetting),
    QV_FIELD_KEY(sampleRed, "LSC_SAMPLES_red").writtenSigned(),
    QV_FIELD_KEY(sampleGreenR, "LSC_SAMPLES_greenR").writtenSigned(),
    QV_FIELD_KEY(sampleGreenB, "LSC_SAMPLES_greenB").writtenSigned(),
    QV_FIELD_KEY(sampleBlue, "LSC_SAMPLES_blue").writtenSigned(),
    QV_FIELD(center),
    QV_FIELD_KEY(offCenter, "off_center"),
    QV_FIELD_KEY(radialGain, "radial_gain"),
};

constexpr auto kTable = QV_TABLE("sensorLsc", kRows);
} // namespace sensorLsc

namespace sensor {
QV_RECORD(QvDatabaseCalibrationSensor_t);

constexpr Field kRows[] = {
    QV_OBJECT_KEY(af, "AF", sensorAf::kTable),
    QV_OBJECT_KEY(awb, "AWB", sensorAwb::kTable),
    QV_OBJECT_KEY(bls, "BLS", sensorBls::kTable).measuredInto(QV_COUNTER(blsNumber)),
    // The loop of the list before it bounds reading; kept as documents were always read.
    QV_OBJECT_KEY(bnr, "BNR", sensorBnr::kTable).measuredInto(QV_COUNTER(bnrNumber)).readUpTo(QV_COUNTER(blsNumber)),
    QV_OBJECT_KEY(cac, "CAC", sensorCac::kTable).measuredInto(QV_COUNTER(cacNumber)),
    QV_OBJECT_KEY(cc, "CC", sensorCc::kTable).measuredInto(QV_COUNTER(ccNumber)),
    QV_OBJECT_KEY(dpf, "DPF", sensorDpf::kTable).measuredInto(QV_COUNTER(dpfNumber)),
    QV_OBJECT_KEY(lsc, "LSC", sensorLsc::kTable).measuredInto(QV_COUNTER(lscNumber)),
};

constexpr auto kTable = QV_TABLE("sensor", kRows);
} // namespace sensor

namespace system {
QV_RECORD(QvDatabaseCalibrationSystem_t);

constexpr Field kGroupRows[] = {
    QV_FIELD_KEY(afpsDefault, "aFpsDefault"),
};

constexpr auto kGroup = QV_TABLE("system", kGroupRows);

constexpr Field kRows[] = {
    QV_GROUP("AFPS", kGroup),
};

constexpr auto kTable = QV_TABLE("system", kRows);
} // namespace system

QV_RECORD(QvDatabaseCalibration_t);

constexpr Field kRows[] = {
    QV_OBJECT(header, header::kTable),
    QV_OBJECT(sensor, sensor::kTable),
    QV_OBJECT(system, system::kTable),
};

// The fixed points of the raw image.
static_assert(offsetof(Record, sensor) == 644 && offsetof(Record, system) == 89684 &&
              offsetof(Record, isLoaded) == 89734);
using Header = QvDatabaseCalibrationHeader_t;
static_assert(offsetof(Header, resolutions) == 252 && offsetof(Header, resolutionNumber) == 640);
using Awb = QvDatabaseCalibrationSensorAwb_t;
static_assert(offsetof(Awb, globals) == 4 && offsetof(Awb, globalNumber) == 952 &&
              offsetof(Awb, illuminations) == 956 && offsetof(Awb, illuminationNumber) == 6332);
using Sensor = QvDatabaseCalibrationSensor_t;
static_assert(offsetof(Sensor, awb) == 4 && offsetof(Sensor, bls) == 6340 && offsetof(Sensor, bnr) == 6468 &&
              offsetof(Sensor, cac) == 6480 && offsetof(Sensor, cc) == 6628 && offsetof(Sensor, dpf) == 8368 &&
              offsetof(Sensor, lsc) == 8588);
static_assert(offsetof(Sensor, blsNumber) == 6464 && offsetof(Sensor, bnrNumber) == 6476 &&
              offsetof(Sensor, cacNumber) == 6624 && offsetof(Sensor, ccNumber) == 8364 &&
              offsetof(Sensor, dpfNumber) == 8584 && offsetof(Sensor, lscNumber) == 89036);

} // namespace

extern constinit const TableOf<Record> kCalibration = QV_TABLE("QvDatabaseProtocolCalibrationJson", kRows);

} // namespace qv::database::calibration

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolCalibrationJson, calibration::kCalibration)
