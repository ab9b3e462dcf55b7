/** @file
 * Bit width and switch of each block for the software model of the pipeline (category `C_MODEL`).
 */
#ifndef QV_DATABASE_C_DATABASE_C_MODEL_H
#define QV_DATABASE_C_DATABASE_C_MODEL_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One block of the model. */
typedef struct QvDatabaseCModel_Unit {
    uint8_t bit; /**< bit width of the block; a document's number keeps its low 8 bits [bit] */
    bool enable; /**< block is on; default false for all blocks */
} QvDatabaseCModel_Unit_t;
static_assert(sizeof(QvDatabaseCModel_Unit_t) == 2, "the layout is part of the interface");

/** The blocks of the software model (category `C_MODEL`), carried by tuning documents, initialization files and the
    binary image. Keys are the field names, the leading underscores included. QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseCModel {
    QvDatabaseCModel_Unit_t _2dnr;    /**< 2D noise reduction; default 16 bits */
    QvDatabaseCModel_Unit_t _3dnr;    /**< 3D noise reduction; default 12 bits */
    QvDatabaseCModel_Unit_t awb;      /**< white balance; default 12 bits */
    QvDatabaseCModel_Unit_t ccm;      /**< colour correction matrix; default 12 bits */
    QvDatabaseCModel_Unit_t compand;  /**< companding; default 24 bits */
    QvDatabaseCModel_Unit_t cProc;    /**< colour process; default 10 bits */
    QvDatabaseCModel_Unit_t deMosaic; /**< demosaic; default 12 bits */
    QvDatabaseCModel_Unit_t dpcc;     /**< defect pixel cluster correction; default 16 bits */
    QvDatabaseCModel_Unit_t dpf;      /**< denoising filter; default 16 bits */
    QvDatabaseCModel_Unit_t drc;      /**< DRC; default 12 bits */
    QvDatabaseCModel_Unit_t ee;       /**< edge enhance; default 12 bits */
    QvDatabaseCModel_Unit_t gtm;      /**< GTM; default 24 bits */
    QvDatabaseCModel_Unit_t hdr;      /**< high dynamic range; default 24 bits */
    QvDatabaseCModel_Unit_t lsc;      /**< lens shading correction; default 12 bits */
    QvDatabaseCModel_Unit_t scale;    /**< scaler; default 8 bits */
} QvDatabaseCModel_t;
static_assert(sizeof(QvDatabaseCModel_t) == 30, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. Always 0; a missing member is traced at Debug and its field
    keeps its value. The arguments are not tested and must not be null. */
QV_DATABASE_API int QvDatabaseCModel_parse(QvJsonValue_t* pValue, QvDatabaseCModel_t* pConfig);

/** Adds the members of the record to its object in a tuning document. Always 0. The arguments are not tested and must
    not be null. */
QV_DATABASE_API int QvDatabaseCModel_serialize(QvDatabaseCModel_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. Always 0; pConfig is not tested and must not be null. */
QV_DATABASE_API int QvDatabaseCModel_reset(QvDatabaseCModel_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
