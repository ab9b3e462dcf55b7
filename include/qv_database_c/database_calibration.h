/** @file
 * What a calibration tool measured for one sensor (category `CLB`). The codecs stand in protocol_calibration.h.
 *
 * The record is one flat block of 89736 bytes without pointers, and raw images hold it as it is. The library computes
 * nothing with the coefficients. Each list has a counter behind it, which takes the length of the document's list, cut
 * to 8 bits: a list that is longer than its array fails with 6 and leaves that length in the counter, so a counter is
 * to be trusted only after a load that went well. Keys of a calibration document are often spelled unlike the fields;
 * the comments name those that are. Matrices stand in documents as rows: the reader takes the rows as they are without
 * a look at the room of the field, so too many values run on into the fields behind it. A text that fills its field has
 * no terminator, and writing it to a document runs on likewise.
 */
#ifndef QV_DATABASE_C_DATABASE_CALIBRATION_H
#define QV_DATABASE_C_DATABASE_CALIBRATION_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One frame rate of a resolution, an item of "framerate". */
typedef struct QvDatabaseCalibrationHeaderResolutionFramerate {
    char name[50]; /**< name of the frame rate */
    float fps;     /**< frames per second [1/s] */
} QvDatabaseCalibrationHeaderResolutionFramerate_t;
static_assert(sizeof(QvDatabaseCalibrationHeaderResolutionFramerate_t) == 56, "the layout is part of the interface");

/** One resolution for which the data was measured, an item of "resolution". */
typedef struct QvDatabaseCalibrationHeaderResolution {
    char name[50];                                                 /**< name of the resolution */
    char id[50];                                                   /**< identifier of the resolution */
    uint16_t width;                                                /**< number of columns [px] */
    uint16_t height;                                               /**< number of rows [px] */
    QvDatabaseCalibrationHeaderResolutionFramerate_t framerate[5]; /**< frame rates of the resolution */
    uint8_t framerateNumber;                                       /**< number in use [0..5; count-of framerate] */
} QvDatabaseCalibrationHeaderResolution_t;
static_assert(sizeof(QvDatabaseCalibrationHeaderResolution_t) == 388, "the layout is part of the interface");

/** Origin of the data, the member "header". */
typedef struct QvDatabaseCalibrationHeader {
    /** date of creation, as the tool wrote it; "creation_date" */
    char date[50];
    /** who made the data */
    char creator[50];
    /** name of the sensor; "sensor_name" */
    char sensorName[50];
    /** name of the sample of that sensor; "sample_name" */
    char sampleName[50];
    /** version of the tool; "generator_version" */
    char generatorVersion[50];
    /** resolutions; "resolution" */
    QvDatabaseCalibrationHeaderResolution_t resolutions[1];
    /** resolutions in use, at most 1 [0..1; count-of resolutions] */
    uint8_t resolutionNumber;
} QvDatabaseCalibrationHeader_t;
static_assert(sizeof(QvDatabaseCalibrationHeader_t) == 644, "the layout is part of the interface");

/** Autofocus, "AF". */
typedef struct QvDatabaseCalibrationSensorAf {
    int32_t tbd; /**< placeholder of the document, carried through unchanged */
} QvDatabaseCalibrationSensorAf_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAf_t) == 4, "the layout is part of the interface");

/** Damping filter of the white balance, the object "IIR". Keys begin with a capital letter. */
typedef struct QvDatabaseCalibrationSensorAwbGlobal_Iir {
    float dampCoefAdd;             /**< amount added to the damping coefficient */
    float dampCoefSub;             /**< amount subtracted from the damping coefficient */
    float dampFilterThreshold;     /**< threshold of the damping filter */
    float dampingCoefMin;          /**< smallest damping coefficient */
    float dampingCoefMax;          /**< largest damping coefficient */
    float dampingCoefInit;         /**< damping coefficient at the start */
    int32_t expPriorFilterSizeMax; /**< largest size of the exposure prior filter */
    int32_t expPriorFilterSizeMin; /**< smallest size of the exposure prior filter */
    float expPriorMiddle;          /**< middle of the exposure prior */
} QvDatabaseCalibrationSensorAwbGlobal_Iir_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbGlobal_Iir_t) == 36, "the layout is part of the interface");

/** White balance data that holds for all illuminations, an item of "globals". */
typedef struct QvDatabaseCalibrationSensorAwbGlobal {
    char name[50];                                  /**< name of the item */
    char resolution[50];                            /**< name of the resolution; not compared with the header's */
    float svdMeanValue[3];                          /**< three mean values of the SVD; "SVDMeanValue" */
    float pcaMatrix[6];                             /**< PCA matrix, rows of 2 in documents; "PCAMatrix" [matrix 3x2] */
    float centerLine[3];                            /**< centre line, three numbers; "CenterLine" */
    float afRg2[16];                                /**< 16 coefficients, known to the white balance algorithm alone */
    float afMaxDist2[16];                           /**< 16 coefficients, known to the white balance algorithm alone */
    float afRg1[16];                                /**< 16 coefficients, known to the white balance algorithm alone */
    float afMaxDist1[16];                           /**< 16 coefficients, known to the white balance algorithm alone */
    float afGlobalFade2[16];                        /**< 16 coefficients, known to the white balance algorithm alone */
    float afGlobalGainDistance2[16];                /**< 16 coefficients, known to the white balance algorithm alone */
    float afGlobalFade1[16];                        /**< 16 coefficients, known to the white balance algorithm alone */
    float afGlobalGainDistance1[16];                /**< 16 coefficients, known to the white balance algorithm alone */
    float fRgProjIndoorMin;                         /**< smallest projected Rg indoors */
    float fRgProjMax;                               /**< largest projected Rg */
    float fRgProjMaxSky;                            /**< largest projected Rg of the sky */
    float fRgProjOutdoorMin;                        /**< smallest projected Rg outdoors */
    char awbClipOutDoor[50];                        /**< outdoor clipping, as text; "awb_clip_outdoor" */
    float kFactor;                                  /**< K factor; "K_Factor" */
    float afFade2[6];                               /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afCbMinRegionMax[6];                    /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afCrMinRegionMax[6];                    /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afMaxCSumRegionMax[6];                  /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afCbMinRegionMin[6];                    /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afCrMinRegionMin[6];                    /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t afMaxCSumRegionMin[6];                  /**< 6 coefficients, known to the white balance algorithm alone */
    int32_t regionSize;                             /**< size of the region; "RegionSize" */
    float regionSizeInc;                            /**< increment of the region size; "RegionSizeInc" */
    float regionSizeDec;                            /**< decrement of the region size; "RegionSizeDec" */
    QvDatabaseCalibrationSensorAwbGlobal_Iir_t iir; /**< damping filter; "IIR" */
} QvDatabaseCalibrationSensorAwbGlobal_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbGlobal_t) == 948, "the layout is part of the interface");

/** Gaussian mixture model of an illumination, the object "GMM". */
typedef struct QvDatabaseCalibrationSensorAwbIllumination_Gmm {
    float invCovMatrix[4];       /**< inverse covariance matrix, rows of 2 in documents [matrix 2x2] */
    float gaussianScalingFactor; /**< scaling factor; "GaussianScalingFactor" */
    float tau[2];                /**< the two values of tau */
    float gaussianMeanValue[2];  /**< mean value, two numbers; "GaussianMeanValue" */
} QvDatabaseCalibrationSensorAwbIllumination_Gmm_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_Gmm_t) == 36, "the layout is part of the interface");

/** Lens shading profiles of an illumination, item 0 of the list "aLSC"; further items are passed over. */
typedef struct QvDatabaseCalibrationSensorAwbIllumination_Alsc {
    char resolution[50]; /**< name of the resolution; not compared with the header's */
    char profile[200];   /**< names of the profiles as one text; "LSC_PROFILE_LIST" */
} QvDatabaseCalibrationSensorAwbIllumination_Alsc_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_Alsc_t) == 250, "the layout is part of the interface");

/** Gains and saturations, the object "sat_CT". */
typedef struct QvDatabaseCalibrationSensorAwbIllumination_SatCt {
    int32_t gain[4];       /**< four gains; "gains" */
    int32_t saturation[4]; /**< four saturations; "sat" */
} QvDatabaseCalibrationSensorAwbIllumination_SatCt_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_SatCt_t) == 32, "the layout is part of the interface");

/** Gains and vignetting, the object "vig_CT". */
typedef struct QvDatabaseCalibrationSensorAwbIllumination_VigCt {
    int32_t gain[4];       /**< four gains; "gains" */
    int32_t vignetting[4]; /**< four values of vignetting; "vig" */
} QvDatabaseCalibrationSensorAwbIllumination_VigCt_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_VigCt_t) == 32, "the layout is part of the interface");

/** Colour correction profiles of an illumination, the object "aCC". */
typedef struct QvDatabaseCalibrationSensorAwbIllumination_Acc {
    char profile[200]; /**< names of the profiles as one text; "CC_PROFILE_LIST" */
} QvDatabaseCalibrationSensorAwbIllumination_Acc_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_Acc_t) == 200, "the layout is part of the interface");

/** White balance data of one illumination, an item of "illumination". */
typedef struct QvDatabaseCalibrationSensorAwbIllumination {
    char name[50];                                          /**< name of the illumination */
    char doorType[50];                                      /**< "doorType", a text of the document */
    QvDatabaseCalibrationSensorAwbIllumination_Gmm_t gmm;   /**< Gaussian mixture model; "GMM" */
    QvDatabaseCalibrationSensorAwbIllumination_Alsc_t alsc; /**< lens shading profiles; "aLSC" */
    float manualWb[4];                                      /**< manual white balance, four values; "manualWB" */
    float manualCcMatrix[9];                                /**< matrix, rows of 3; "manualccMatrix" [matrix 3x3] */
    float manualCcOffset[3]; /**< manual colour offsets; "manualccOffsets" [matrix 1x3] */
    char awbType[50];        /**< type of the white balance, as text */
    QvDatabaseCalibrationSensorAwbIllumination_SatCt_t satCt; /**< gains and saturations; "sat_CT" */
    QvDatabaseCalibrationSensorAwbIllumination_VigCt_t vigCt; /**< gains and vignetting; "vig_CT" */
    QvDatabaseCalibrationSensorAwbIllumination_Acc_t acc;     /**< colour correction profiles; "aCC" */
} QvDatabaseCalibrationSensorAwbIllumination_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwbIllumination_t) == 768, "the layout is part of the interface");

/** White balance, "AWB". */
typedef struct QvDatabaseCalibrationSensorAwb {
    float sensorGains;                                             /**< gains of the sensor; in no document */
    QvDatabaseCalibrationSensorAwbGlobal_t globals[1];             /**< data for all illuminations */
    uint8_t globalNumber;                                          /**< number in use [0..1; count-of globals] */
    QvDatabaseCalibrationSensorAwbIllumination_t illuminations[7]; /**< data of each illumination; "illumination" */
    uint8_t illuminationNumber;                                    /**< number in use [0..7; count-of illuminations] */
} QvDatabaseCalibrationSensorAwb_t;
static_assert(sizeof(QvDatabaseCalibrationSensorAwb_t) == 6336, "the layout is part of the interface");

/** Black level, an item of "BLS". */
typedef struct QvDatabaseCalibrationSensorBls {
    char name[50];       /**< name of the item */
    char resolution[50]; /**< name of the resolution; not compared with the header's */
    int32_t data[4];     /**< four black levels; "blsData" */
    uint8_t bitWidth;    /**< bit width [bit] */
    float sensorGains;   /**< gains of the sensor; in no document */
} QvDatabaseCalibrationSensorBls_t;
static_assert(sizeof(QvDatabaseCalibrationSensorBls_t) == 124, "the layout is part of the interface");

/** Bayer noise, an item of "BNR". */
typedef struct QvDatabaseCalibrationSensorBnr {
    float kA; /**< coefficient k_a; "k_a" */
    float pB; /**< coefficient p_b; "p_b" */
} QvDatabaseCalibrationSensorBnr_t;
static_assert(sizeof(QvDatabaseCalibrationSensorBnr_t) == 8, "the layout is part of the interface");

/** Chromatic aberration, an item of "CAC". The signed offsets are written as unsigned numbers, -3 as 65533; reading
    that back gives -3. */
typedef struct QvDatabaseCalibrationSensorCac {
    char name[50];           /**< name of the item */
    char resolution[50];     /**< name of the resolution; not compared with the header's */
    float xNormalShift;      /**< normalization shift in x; "x_normshift" */
    float xNormalFactor;     /**< normalization factor in x; "x_normfactor" */
    float yNormalShift;      /**< normalization shift in y; "y_normshift" */
    float yNormalFactor;     /**< normalization factor in y; "y_normfactor" */
    int16_t xOffset;         /**< offset in x; "x_offset" */
    int16_t yOffset;         /**< offset in y; "y_offset" */
    float redParameters[3];  /**< three parameters of red; "red_parameters" */
    float blueParameters[3]; /**< three parameters of blue; "blue_parameters" */
} QvDatabaseCalibrationSensorCac_t;
static_assert(sizeof(QvDatabaseCalibrationSensorCac_t) == 144, "the layout is part of the interface");

/** Colour correction, an item of "CC". */
typedef struct QvDatabaseCalibrationSensorCc {
    char name[50];     /**< name of the item */
    float saturation;  /**< saturation of the profile */
    float ccMatrix[9]; /**< colour matrix, rows of 3 in documents [matrix 3x3] */
    float ccOffset[3]; /**< offsets of the three colours; "ccOffsets" [matrix 1x3] */
    float wb[4];       /**< white balance, four values */
    float sensorGains; /**< gains of the sensor; "SensorGains" */
} QvDatabaseCalibrationSensorCc_t;
static_assert(sizeof(QvDatabaseCalibrationSensorCc_t) == 124, "the layout is part of the interface");

/** Denoising filter, an item of "DPF". */
typedef struct QvDatabaseCalibrationSensorDpf {
    char name[50];         /**< name of the item */
    char resolution[50];   /**< name of the resolution; not compared with the header's */
    float nllSegmentation; /**< segmentation of the NLL coefficients; "NLL_SEGMENTATION" */
    int32_t nllCoeffN[17]; /**< 17 NLL coefficients; "nll_coeff_n" */
    float sensorGains;     /**< gains of the sensor; "SensorGains" */
    float nma;             /**< parameter NMa; "NMa" */
    float nmb;             /**< parameter NMb; "NMb" */
    float sigmaGreen;      /**< sigma of green; "SigmaGreen" */
    float sigmaRedBlue;    /**< sigma of red and blue; "SigmaRedBlue" */
    float gradient;        /**< gradient; "Gradient" */
    float offset;          /**< offset; "Offset" */
    float nlGains[4];      /**< four NL gains; "NlGains" */
} QvDatabaseCalibrationSensorDpf_t;
static_assert(sizeof(QvDatabaseCalibrationSensorDpf_t) == 216, "the layout is part of the interface");

/** Lens shading, an item of "LSC". Sector sizes and samples are written as signed numbers, 40000 as -25536; reading
    that back gives 40000. */
typedef struct QvDatabaseCalibrationSensorLsc {
    float sensorGains;             /**< gains of the sensor; "SensorGains" */
    char name[50];                 /**< name of the profile */
    char resolution[50];           /**< name of the resolution; not compared with the header's */
    char illumination[50];         /**< name of the illumination */
    int32_t sectors;               /**< number of sectors; "LSC_sectors" */
    int32_t no;                    /**< "LSC_No", meaning known to the calibration tool alone */
    int32_t xo;                    /**< "LSC_Xo", likewise */
    int32_t yo;                    /**< "LSC_Yo", likewise */
    uint16_t sectSizeX[32];        /**< sizes of the 32 sectors along x; "LSC_SECT_SIZE_X" */
    uint16_t sectSizeY[32];        /**< sizes of the 32 sectors along y; "LSC_SECT_SIZE_Y" */
    int32_t vignetting;            /**< vignetting of the profile */
    uint16_t sampleRed[33][33];    /**< correction samples of red; "LSC_SAMPLES_red" [map 33x33] */
    uint16_t sampleGreenR[33][33]; /**< samples of green in red rows; "LSC_SAMPLES_greenR" [map 33x33] */
    uint16_t sampleGreenB[33][33]; /**< samples of green in blue rows; "LSC_SAMPLES_greenB" [map 33x33] */
    uint16_t sampleBlue[33][33];   /**< correction samples of blue; "LSC_SAMPLES_blue" [map 33x33] */
    int16_t center[2];             /**< centre, two numbers; signed in documents */
    uint16_t offCenter;            /**< off-centre value; "off_center" */
    uint16_t radialGain[4][129];   /**< radial gains, 4 rows of 129; "radial_gain" */
} QvDatabaseCalibrationSensorLsc_t;
static_assert(sizeof(QvDatabaseCalibrationSensorLsc_t) == 10056, "the layout is part of the interface");

/** What was measured for each block, the member "sensor". Keys are the names in capitals. */
typedef struct QvDatabaseCalibrationSensor {
    /** autofocus */
    QvDatabaseCalibrationSensorAf_t af;
    /** white balance */
    QvDatabaseCalibrationSensorAwb_t awb;
    /** black level */
    QvDatabaseCalibrationSensorBls_t bls[1];
    /** items of bls in use, at most 1; the reader takes as many items of "BNR" as this says [0..1; count-of bls] */
    uint8_t blsNumber;
    /** Bayer noise */
    QvDatabaseCalibrationSensorBnr_t bnr[1];
    /** length of "BNR", at most 1; as many are written [0..1; count-of bnr] */
    uint8_t bnrNumber;
    /** chromatic aberration */
    QvDatabaseCalibrationSensorCac_t cac[1];
    /** items of cac in use, at most 1 [0..1; count-of cac] */
    uint8_t cacNumber;
    /** colour correction */
    QvDatabaseCalibrationSensorCc_t cc[14];
    /** items of cc in use, at most 14 [0..14; count-of cc] */
    uint8_t ccNumber;
    /** denoising filter */
    QvDatabaseCalibrationSensorDpf_t dpf[1];
    /** items of dpf in use, at most 1 [0..1; count-of dpf] */
    uint8_t dpfNumber;
    /** lens shading */
    QvDatabaseCalibrationSensorLsc_t lsc[8];
    /** items of lsc in use, at most 8 [0..8; count-of lsc] */
    uint8_t lscNumber;
} QvDatabaseCalibrationSensor_t;
static_assert(sizeof(QvDatabaseCalibrationSensor_t) == 89040, "the layout is part of the interface");

/** System section, the member "system". */
typedef struct QvDatabaseCalibrationSystem {
    char afpsDefault[50]; /**< name of the default automatic frame rate setting; "aFpsDefault" in the object "AFPS" */
} QvDatabaseCalibrationSystem_t;
static_assert(sizeof(QvDatabaseCalibrationSystem_t) == 50, "the layout is part of the interface");

/** Calibration of the sensor (category `CLB`), carried by calibration documents and the binary image. All zero until
    something is loaded. Loading a calibration document resets it first; QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseCalibration {
    QvDatabaseCalibrationHeader_t header; /**< origin of the data */
    QvDatabaseCalibrationSensor_t sensor; /**< data of each block */
    QvDatabaseCalibrationSystem_t system; /**< system section */
    bool isLoaded;                        /**< true once a document or raw image was read completely; in no text form */
} QvDatabaseCalibration_t;
static_assert(sizeof(QvDatabaseCalibration_t) == 89736, "the layout is part of the interface");

#ifdef __cplusplus
}
#endif

#endif
