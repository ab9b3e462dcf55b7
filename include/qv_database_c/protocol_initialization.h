/** @file
 * The sections of the initialization document. Each category has a pair of codecs that move values between a section's
 * members and a record. All keys are flat: dots and indices are part of the key.
 *
 * The pairs share one contract. No argument may be null; section and record stay the caller's. Parsing takes each
 * member whose key it knows and whose value is not null: integers in base 10, where a text that is no number counts as
 * 0 and a number too large for the field is cut to its width without a word; booleans are true for the text "true"
 * alone; texts run on into the fields behind theirs when they are too long, yet never past the record. Members come out
 * in their first order. Serializing adds one member for each key. The result is 0, the status of a queue operation that
 * fails, or 5 when memory runs out.
 */
#ifndef QV_DATABASE_C_PROTOCOL_INITIALIZATION_H
#define QV_DATABASE_C_PROTOCOL_INITIALIZATION_H

#include <qv_database_c/database_c_model.h>
#include <qv_database_c/database_device.h>
#include <qv_database_c/database_input.h>
#include <qv_database_c/database_output.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_transmit.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_initialization/initialization_section.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads section "C_MODEL" into the record: 30 keys: bit width and switch of each unit. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_cModel_parse(QvInitializationSection_t* pSection,
                                                                  QvDatabaseCModel_t* pConfig);
/** Adds the record's members to section "C_MODEL". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_cModel_serialize(QvDatabaseCModel_t* pConfig,
                                                                      QvInitializationSection_t* pSection);
/** Reads section "DVC" into the record: 3 keys. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_device_parse(QvInitializationSection_t* pSection,
                                                                  QvDatabaseDevice_t* pConfig);
/** Adds the record's members to section "DVC". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_device_serialize(QvDatabaseDevice_t* pConfig,
                                                                      QvInitializationSection_t* pSection);
/** Reads section "IPT" into the record: 29 keys. The frame rate is read with its fraction and written without. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_input_parse(QvInitializationSection_t* pSection,
                                                                 QvDatabaseInput_t* pConfig);
/** Adds the record's members to section "IPT". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_input_serialize(QvDatabaseInput_t* pConfig,
                                                                     QvInitializationSection_t* pSection);
/** Reads section "OPT" into the record: 78 keys: 13 for each of the six paths. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_output_parse(QvInitializationSection_t* pSection,
                                                                  QvDatabaseOutput_t* pConfig);
/** Adds the record's members to section "OPT". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_output_serialize(QvDatabaseOutput_t* pConfig,
                                                                      QvInitializationSection_t* pSection);
/** Reads section "SS" into the record: 4 keys: the driver, its mode and the test pattern. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_sensor_parse(QvInitializationSection_t* pSection,
                                                                  QvDatabaseSensor_t* pConfig);
/** Adds the record's members to section "SS". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_sensor_serialize(QvDatabaseSensor_t* pConfig,
                                                                      QvInitializationSection_t* pSection);
/** Reads section "TM" into the record: 23 keys. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_transmit_parse(QvInitializationSection_t* pSection,
                                                                    QvDatabaseTransmit_t* pConfig);
/** Adds the record's members to section "TM". 0; 5; a status of the queue. */
QV_DATABASE_API int QvDatabaseProtocolInitialization_transmit_serialize(QvDatabaseTransmit_t* pConfig,
                                                                        QvInitializationSection_t* pSection);

#ifdef __cplusplus
}
#endif

#endif
