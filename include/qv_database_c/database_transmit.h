/** @file
 * How frames and control traffic move in and out of the system: files, HTTP, RTMP, TCP and UART (category `TM`).
 *
 * The library stores these settings and opens no file, socket or device by them. A text that fills its field has no
 * terminator, and writing it to a document runs on into the fields behind it. Texts from an initialization file are
 * copied without regard to the size of the field: one that is too long runs on into the fields behind it.
 */
#ifndef QV_DATABASE_C_DATABASE_TRANSMIT_H
#define QV_DATABASE_C_DATABASE_TRANSMIT_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Transport by files. Texts are empty by default. */
typedef struct QvDatabaseTransmitFs {
    bool isBmp;                 /**< frames are BMP files */
    size_t frameCount;          /**< number of frames */
    bool isInputBlock;          /**< block flag of the input */
    char inputFolder[256];      /**< folder of the input frames */
    size_t inputFrameBegin;     /**< first input frame */
    size_t inputFrameEnd;       /**< end of the input frames */
    char inputStream[256];      /**< input stream */
    size_t jobsCount;           /**< number of jobs; default 2 */
    char metaFolder[256];       /**< folder of the metadata */
    char outputFolder[256];     /**< folder of the output frames */
    char outputFilePrefix[256]; /**< what the names of output files begin with */
    char outputStream[256];     /**< output stream */
} QvDatabaseTransmitFs_t;
static_assert(sizeof(QvDatabaseTransmitFs_t) == 1584, "the layout is part of the interface");

/** Transport by HTTP. */
typedef struct QvDatabaseTransmitHttp {
    uint16_t portControl; /**< port of the control traffic; default 8080 */
} QvDatabaseTransmitHttp_t;
static_assert(sizeof(QvDatabaseTransmitHttp_t) == 2, "the layout is part of the interface");

/** Stream by RTMP. */
typedef struct QvDatabaseTransmitRtmp {
    char nginxIp[16];    /**< dotted IPv4 address, at most 15 characters; default the loopback address */
    uint16_t portStream; /**< port of the stream; default 1935 */
} QvDatabaseTransmitRtmp_t;
static_assert(sizeof(QvDatabaseTransmitRtmp_t) == 18, "the layout is part of the interface");

/** Ports of the transport by TCP. */
typedef struct QvDatabaseTransmitTcp {
    bool isDump;             /**< dump flag; in no text form */
    uint16_t portControl;    /**< port of the control traffic; default 2000 */
    uint16_t portInject;     /**< port of injected frames; default 2001 */
    uint16_t portMeta;       /**< port of the metadata; default 2005 */
    uint16_t portRaw;        /**< port of raw frames; default 2002 */
    uint16_t portStatistics; /**< port of the statistics; default 2003 */
    uint16_t portStream;     /**< port of the stream; default 45679 */
} QvDatabaseTransmitTcp_t;
static_assert(sizeof(QvDatabaseTransmitTcp_t) == 14, "the layout is part of the interface");

/** Control by a serial line. */
typedef struct QvDatabaseTransmitUart {
    char portControl[40]; /**< path of the device, not a number; default "/dev/ttyS0" */
} QvDatabaseTransmitUart_t;
static_assert(sizeof(QvDatabaseTransmitUart_t) == 40, "the layout is part of the interface");

/** Transport configuration (category `TM`), carried by tuning documents, initialization files and the binary image.
    QvDatabase_reset puts the defaults back. */
typedef struct QvDatabaseTransmit {
    QvDatabaseTransmitFs_t fs;     /**< files */
    QvDatabaseTransmitHttp_t http; /**< HTTP */
    QvDatabaseTransmitRtmp_t rtmp; /**< RTMP */
    bool isStreamable;             /**< streaming is possible; default true; a member of the record's object itself */
    QvDatabaseTransmitTcp_t tcp;   /**< TCP */
    QvDatabaseTransmitUart_t uart; /**< UART */
    bool isExit;                   /**< exit flag; in no text form */
} QvDatabaseTransmit_t;
static_assert(sizeof(QvDatabaseTransmit_t) == 1664, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. Always 0; a missing member is traced at Debug and its field
    keeps its value. The arguments are not tested and must not be null. */
QV_DATABASE_API int QvDatabaseTransmit_parse(QvJsonValue_t* pValue, QvDatabaseTransmit_t* pConfig);

/** Adds the members of the record to its object in a tuning document. Always 0. The arguments are not tested and must
    not be null. */
QV_DATABASE_API int QvDatabaseTransmit_serialize(QvDatabaseTransmit_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseTransmit_reset(QvDatabaseTransmit_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
