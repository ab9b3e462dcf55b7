/** @file
 * The simulator document: the codecs of protocol_simulator_codecs.h together with the records that they carry.
 */
#ifndef QV_DATABASE_C_PROTOCOL_SIMULATOR_H
#define QV_DATABASE_C_PROTOCOL_SIMULATOR_H

#include <qv_database_c/database_records.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#endif
