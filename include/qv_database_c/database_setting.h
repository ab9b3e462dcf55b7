/** @file
 * Settings of the database itself (category `ST`).
 */
#ifndef QV_DATABASE_C_DATABASE_SETTING_H
#define QV_DATABASE_C_DATABASE_SETTING_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The form in which JSON files are saved. Loading tells the form from the file. */
typedef enum QvDatabaseSettingProtocol {
    QvDatabaseSettingProtocol_Simulator = 0, /**< simulator document, simulator form of the metadata */
    QvDatabaseSettingProtocol_Standard = 1,  /**< tuning document, full form of the metadata */
} QvDatabaseSettingProtocol_t;

/** Settings of the database (category `ST`), set by the caller through QvDatabase_query. No file carries them, and
    QvDatabase_reset leaves them alone. */
typedef struct QvDatabaseSetting {
    bool isReset;                         /**< free for the caller; the library neither reads nor writes it */
    QvDatabaseSettingProtocol_t protocol; /**< form of saved JSON files, default Standard; only 0 is Simulator */
} QvDatabaseSetting_t;
static_assert(sizeof(QvDatabaseSetting_t) == 8, "the layout is part of the interface");

/** Reads nothing, since no document carries the settings. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseSetting_parse(QvJsonValue_t* pValue, QvDatabaseSetting_t* pConfig);

/** Writes nothing, since no document carries the settings. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseSetting_serialize(QvDatabaseSetting_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseSetting_reset(QvDatabaseSetting_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
