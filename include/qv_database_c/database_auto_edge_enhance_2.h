/** @file
 * The gain-scheduled parameters of edge enhancement: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_EDGE_ENHANCE_2_H
#define QV_DATABASE_C_DATABASE_AUTO_EDGE_ENHANCE_2_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of edge enhancement: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAutoEdgeEnhance_2_Table {
    float gains[20];           /**< gain points of the lists beside it, index by index [gain-axis] */
    uint8_t eeStrength[20];    /**< edge enhancement strength */
    uint8_t eeSrcStrength[20]; /**< strength of the source */
    uint32_t eeYUpGain[20];    /**< Y gain, up */
    uint32_t eeYDownGain[20];  /**< Y gain, down */
    uint16_t eeUVGain[20];     /**< UV gain; tuning key "eeUVGain", where `EE_2` has "eeUvGain" */
    uint32_t eeEdgeGain[20];   /**< edge gain */
    bool caEnable[20];         /**< switches CA on; 0 and 1 in documents, not true and false */
    uint16_t caCurve[20][65];  /**< 65 points of the CA curve for each gain point [curve] */
    bool dciEnable[20];        /**< switches DCI on; 0 and 1 in documents, not true and false */
    uint16_t dciCurve[20][65]; /**< 65 points of the DCI curve for each gain point [curve] */
    bool hdr;                  /**< HDR flag of the schedule; read from a tuning document, never written to one */
} QvDatabaseAutoEdgeEnhance_2_Table_t;
static_assert(sizeof(QvDatabaseAutoEdgeEnhance_2_Table_t) == 5644, "the layout is part of the interface");

/** Automatic parameters of edge enhancement, category `AEE_2`, the counterpart of `EE_2`: up to 20 schedules over
    the gain. The tuning document and the simulator document (class "Aeev1") carry it; which row is used and what
    holds between two gain points is up to the layers above. */
typedef struct QvDatabaseAutoEdgeEnhance_2 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAutoEdgeEnhance_2_Table_t tables[20];
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAutoEdgeEnhance_2_t;
static_assert(sizeof(QvDatabaseAutoEdgeEnhance_2_t) == 112928, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoEdgeEnhance_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoEdgeEnhance_2_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). On
    purpose `hdr` is not written: each row gets an empty "hdr", which costs one Debug trace a row and which a later
    read passes over as missing. */
QV_DATABASE_API int QvDatabaseAutoEdgeEnhance_2_serialize(QvDatabaseAutoEdgeEnhance_2_t* pConfig,
                                                          QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoEdgeEnhance_2_reset(QvDatabaseAutoEdgeEnhance_2_t* pConfig);
/** Tells that the record changed; does nothing but test its argument: 13 for null, else 0. For the layers above, the
    library never calls it. */
QV_DATABASE_API int QvDatabaseAutoEdgeEnhance_2_dataChanged(QvDatabaseAutoEdgeEnhance_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
