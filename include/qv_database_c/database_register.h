/** @file
 * A register action: a single one of its own (category `RGT`) and the element of a register dump (category `DUMP`).
 *
 * A text that fills its field has no terminator, and writing it to a document runs on into the fields behind it.
 */
#ifndef QV_DATABASE_C_DATABASE_REGISTER_H
#define QV_DATABASE_C_DATABASE_REGISTER_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Whose register it is. */
typedef enum QvDatabaseRegisterType {
    QvDatabaseRegisterType_Isp = 0,    /**< register of the ISP */
    QvDatabaseRegisterType_Sensor = 1, /**< register of the sensor */
} QvDatabaseRegisterType_t;

/** One register action. As category `RGT` it is in no file at all and reached by QvDatabase_query alone; as an element
    of category `DUMP` it is in tuning documents. The library triggers nothing by it. QvDatabase_reset leaves it alone.
    */
typedef struct QvDatabaseRegister {
    char address[10];              /**< address, a text such as a document of `DUMP` holds */
    bool isReadAction;             /**< marks a read action; the library triggers nothing by it */
    QvDatabaseRegisterType_t type; /**< whose register it is, default the ISP's; not checked when read */
    char value[10];                /**< value, a text likewise */
} QvDatabaseRegister_t;
static_assert(sizeof(QvDatabaseRegister_t) == 28, "the layout is part of the interface");

/** Fills the record from its object in the list "registers" of a tuning document. 0, or 13 where an argument is null; a
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseRegister_parse(QvJsonValue_t* pValue, QvDatabaseRegister_t* pConfig);

/** Adds the members of the record to an object. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseRegister_serialize(QvDatabaseRegister_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseRegister_reset(QvDatabaseRegister_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
