/** @file
 * A list of register actions of any length (category `DUMP`), the only record that owns heap memory.
 */
#ifndef QV_DATABASE_C_DATABASE_DUMP_H
#define QV_DATABASE_C_DATABASE_DUMP_H

#include <assert.h>
#include <stddef.h>

#include <qv_database_c/database_register.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Register actions (category `DUMP`), carried by tuning documents under "registers" and by no other form. Nothing in
    the library releases the array, neither QvDatabase_close nor a reset; who wants its memory back frees it and
    clears both fields, before the record is closed or loaded again. QvDatabase_reset leaves the record alone. */
typedef struct QvDatabaseDump {
    /** array on the heap, owned by the record; null until a tuning document is loaded */
    QvDatabaseRegister_t* pRegisters;
    /** elements in the array [count-of pRegisters] */
    size_t registerNumber;
} QvDatabaseDump_t;
static_assert(sizeof(QvDatabaseDump_t) == 16, "the layout is part of the interface");

/** Sizes the array to the list "registers" and fills it. 0; 13 where an argument is null; the status of a register that
    fails. A missing list counts as empty. A list that is loaded over an array resizes it: members that its items lack
    keep what stands there, and where the array grows, new - old elements times 28 bytes are cleared from byte `old` of
    the array on, which lies among the first elements and stops short of the new end, so that the tail is undefined as
    far as the document doesn't fill it. */
QV_DATABASE_API int QvDatabaseDump_parse(QvJsonValue_t* pValue, QvDatabaseDump_t* pConfig);

/** Adds the list "registers" with registerNumber items. 0; 13 where an argument is null; the status of a register that
    fails. */
QV_DATABASE_API int QvDatabaseDump_serialize(QvDatabaseDump_t* pConfig, QvJsonValue_t* pValue);

/** Sets the array to null and the count to 0. The array is not released. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDump_reset(QvDatabaseDump_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
