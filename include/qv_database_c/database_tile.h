/** @file
 * How an image is split into tiles (category `TL`).
 */
#ifndef QV_DATABASE_C_DATABASE_TILE_H
#define QV_DATABASE_C_DATABASE_TILE_H

#include <assert.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Tile configuration (category `TL`), carried by tuning documents and the binary image; it has no section in
    initialization files. The library stores the numbers and gives them no meaning. QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseTile {
    uint16_t joint;     /**< joint setting; default 1 */
    uint16_t numberX;   /**< number of tiles in x */
    uint16_t numberY;   /**< number of tiles in y */
    uint16_t operation; /**< operation */
} QvDatabaseTile_t;
static_assert(sizeof(QvDatabaseTile_t) == 8, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. 0, or 13 where an argument is null; a missing member is
    traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseTile_parse(QvJsonValue_t* pValue, QvDatabaseTile_t* pConfig);

/** Adds the members of the record to its object in a tuning document. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseTile_serialize(QvDatabaseTile_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseTile_reset(QvDatabaseTile_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
