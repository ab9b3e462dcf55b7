/** @file
 * The parameter database of an ISP software stack: open it, ask for a category by its key, read and write that record
 * in place, load and save the whole set.
 *
 *     QvDatabaseOpenParam_t param = {0};
 *     QvDatabaseHandle_t database = 0;
 *     int status = QvDatabase_open(&param, &database);
 *
 *     void* pData = NULL;
 *     status = QvDatabase_query(database, "MISC", &pData);
 *     QvDatabaseMisc_t* pMisc = pData;
 *
 * Conventions of this interface
 *
 *  1. Functions return a status: 0 is success, else a number of QvCommonError_t (qv_common_c/common_error.h), whose
 *     text QvCommonError_text gives. The library itself makes 2, 5, 6, 10, 13 and 15; others come from the support
 *     libraries. A failure leaves a trace through hTracer that names source, line and function, but for bad arguments
 *     (13) and an image that is too short (6).
 *  2. Output variables must be clear on entry: a handle 0, a pointer null.
 *     Whoever queries clears the pointer each time.
 *  3. The database owns all records. A pointer from a query stays valid until QvDatabase_close, also through loads and
 *     resets. Records are plain memory: no copy is made, nobody is told of a change.
 *  4. Records are read and written by pairs of codecs: `_parse(pValue, pConfig)` from a document into the record,
 *     `_serialize(pConfig, pValue)` from the record into a document. The source of the transfer stands first. `_reset`
 *     puts the defaults into a record, which are zero where its header names no other.
 *  5. Reading overlays. A member that the document lacks leaves its field as it was and costs a line at Debug; it is no
 *     failure. Lists of numbers are read as far as document and array both go, and written whole; lists of objects have
 *     their rule in the record's header. Unknown members are passed over.
 *  6. A null argument gives 13 and changes nothing, except where a function says that it tests nothing.
 *  7. Text fields are read up to their size: a text that fills its field has no terminator, and writing it back runs on
 *     into the fields behind it up to the next zero byte, but never past the record. Nothing that a document holds
 *     makes the library touch memory outside the record that it reads into.
 *  8. One thread at a time uses a handle; two handles are independent of each other but for hTracer.
 *  9. Records have the natural layout of 64-bit little-endian targets. Their sizes are fixed, since files hold them.
 */
#ifndef QV_DATABASE_C_QV_DATABASE_H
#define QV_DATABASE_C_QV_DATABASE_H

#include <stddef.h>

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_database_c/qv_database_version.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One category of the database. */
typedef struct QvDatabaseCategory {
    const char* pKey;    /**< what QvDatabase_query takes, such as "AE_3" */
    const char* pRecord; /**< name of the record's C type, such as "QvDatabaseAutoExposure_3_t" */
    size_t size;         /**< bytes of the record */
} QvDatabaseCategory_t;

/** Opens a database with all records at their defaults and prints the banner at Info.
    pParam is copied; pHandle must point at 0. 13 for null or a handle in use; any other status means that something
   could not be opened: the variable then holds what was opened until there, and nothing is released. */
QV_DATABASE_API int QvDatabase_open(QvDatabaseOpenParam_t* pParam, QvDatabaseHandle_t* pHandle);

/** Releases the database with all records and sets the variable to 0. 13 for null or 0; another status leaves the
   handle and what had not been released yet as they were. */
QV_DATABASE_API int QvDatabase_close(QvDatabaseHandle_t* pHandle);

/** Gives the record of a category. *ppData must be null. 13 for a zero handle, a null or empty key, or a pointer in
   use. A key that is not registered goes to the logger of the open parameters: if that takes the message, the status is
   0 and *ppData stays null; without a logger it is 13, with a Warning trace that names the key. */
QV_DATABASE_API int QvDatabase_query(QvDatabaseHandle_t handle, const char* pCategory, void** ppData);

/** Prints how many items of each kind the calibration holds, at Info. 13 for a zero handle. */
QV_DATABASE_API int QvDatabase_info(QvDatabaseHandle_t handle);

/** The categories one by one, in the order of registration and each key once; null past the last. Needs no open
   database. The result lives as long as the library. */
QV_DATABASE_API const QvDatabaseCategory_t* QvDatabase_category(size_t index);

/** Loads a file: ".json" as a text container, ".ini" as an initialization document, any other name as a binary image.
   The name's end decides, letter by letter, and the content never does. Nothing is reset first except calibration; what
   a failing load has read until there stays. 13 for a zero handle or a null name; 3, 4, 9, 11 for a file that can't be
    read; else the container's status. */
QV_DATABASE_API int QvDatabase_load(QvDatabaseHandle_t handle, const char* pFilename);

/** Saves to a file in the form that its name asks for, as above. The file is replaced at once or not at all. A text
   save sets `exportDate` of MISC. 13 for a zero handle or a null name; else the status of the container or of the file.
 */
QV_DATABASE_API int QvDatabase_save(QvDatabaseHandle_t handle, const char* pFilename);

/** Loads frame metadata, category MT, from a JSON file of either form: one with something at "root/metadata" is of the
    simulator's, else of the plain one. 13 for a zero handle or a null name; else the reader's status. */
QV_DATABASE_API int QvDatabase_metaLoad(QvDatabaseHandle_t handle, const char* pFilename);

/** Saves frame metadata, in the form that the protocol of category ST asks for. Statuses as for a save. */
QV_DATABASE_API int QvDatabase_metaSave(QvDatabaseHandle_t handle, const char* pFilename);

/** Puts 37 categories back to their defaults. CLB, ST, RAM, DUMP, MT, MD, IPT, OPT, TL, ISP, RGT, C_MODEL, 3AI_2,
   ACCM_1_1, ALSC_4, AWM, EC_2, FC, HDR_2_1, HTG and HTG_2 keep what they hold. 13 for a zero handle. */
QV_DATABASE_API int QvDatabase_reset(QvDatabaseHandle_t handle);

#ifdef __cplusplus
}
#endif

#endif
