/** @file
 * Codecs of the calibration record (category `CLB`): the calibration document as text and as a JSON tree, the raw
 * image, and a scanner that takes one list out of a calibration tool's plain text.
 *
 * Where a codec returns a status, 0 stands for success and 13 for a null argument, with nothing changed. A member that
 * is missing from a document is traced at Debug and its field keeps its value. Whatever else fails is traced at Error.
 */
#ifndef QV_DATABASE_C_PROTOCOL_CALIBRATION_H
#define QV_DATABASE_C_PROTOCOL_CALIBRATION_H

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads a calibration document from its text, which ends with a zero byte, stays the caller's and is not kept. The
   record is neither reset before nor is isLoaded set; both are the caller's to do. 0; 13; what the JSON reader returns,
   with the record unchanged; 6 for a list that is longer than its array, with the record filled up to there and the
   list's length in its counter. After a failure the reader or the tree of the document stays allocated. */
QV_DATABASE_API int QvDatabaseProtocolCalibration_parse(const char* pText, QvDatabaseCalibration_t* pConfig);

/** Adds the members "header", "sensor" and "system" to an object, whether or not isLoaded is set. As many items of a
   list are written as its counter says. 0; 13; the status of a section that fails. */
QV_DATABASE_API int QvDatabaseProtocolCalibration_serialize(QvDatabaseCalibration_t* pConfig, QvJsonValue_t* pValue);

/** Fills the record with zero: texts empty, counters 0, isLoaded false. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseProtocolCalibration_reset(QvDatabaseCalibration_t* pConfig);

/** Reads the members "header", "sensor" and "system", in this order, of a document that is parsed already. What the
    document doesn't hold keeps its value. pValue stays the caller's. 0; 13; 6 as above, which ends the reading. */
QV_DATABASE_API int QvDatabaseProtocolCalibrationJson_parse(QvJsonValue_t* pValue, QvDatabaseCalibration_t* pConfig);

/** Does the work of QvDatabaseProtocolCalibration_serialize. */
QV_DATABASE_API int QvDatabaseProtocolCalibrationJson_serialize(QvDatabaseCalibration_t* pConfig,
                                                                QvJsonValue_t* pValue);

/** Copies a raw image of 89736 bytes into the record, from the buffer's cursor on, and moves the cursor behind it, so
   that a second call reads the image that follows. isLoaded becomes true whatever the image holds. The size of the
   buffer is not looked at; the caller answers for the bytes behind the cursor. 0, or 13. */
QV_DATABASE_API int QvDatabaseProtocolCalibrationBinary_parse(QvCommonBuffer_t* pBuffer,
                                                              QvDatabaseCalibration_t* pConfig);

/** Copies the record into a new heap block of 89736 bytes, which belongs to the buffer; the cursor ends behind it. The
    buffer must be empty. 0; 13, also where pBegin is set already, the buffer being unchanged. */
QV_DATABASE_API int QvDatabaseProtocolCalibrationBinary_serialize(QvDatabaseCalibration_t* pConfig,
                                                                  QvCommonBuffer_t* pBuffer);

/** Finds a list in plain text and appends a pointer to each of its items to a queue. White space alone separates items;
    an item isn't terminated, it ends where its reader stops. No argument is tested, none may be null.
    @param pBuffer the text from pBegin on, which ends with a zero byte; size and cursor play no part
    @param pKey text in front of the list: its first occurrence counts, be it a part of a longer word, then the first
                "[" behind it and the first "]" behind that, so lists within lists are not understood
    @param hDQueue receives pointers into the text, which are valid as long as the text is and belong to no one, so the
                   queue is to be opened without a delete handler
    @return 0, also for an empty list; 15 where key or bracket is missing, the queue being unchanged. An item that can't
            be queued is traced at Error and left out. */
QV_DATABASE_API int QvDatabaseCalibrationTxt_extractArray(QvCommonBuffer_t* pBuffer, const char* pKey,
                                                          QvCommonDQueueHandle_t hDQueue);

#ifdef __cplusplus
}
#endif

#endif
