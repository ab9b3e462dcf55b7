/** @file
 * A walk over the text of an initialization file with positions, for programs that tell where something stands or change
 * a text in place.
 */
#ifndef QV_INITIALIZATION_WALK_H
#define QV_INITIALIZATION_WALK_H

#include <stdbool.h>
#include <stddef.h>

#include <qv_initialization/initialization_reader.h>
#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What stands at a place of a text. */
typedef enum QvInitializationWalkKind {
    QvInitializationWalkKind_Section = 0, /**< a header; what comes up to the next one is in its section */
    QvInitializationWalkKind_Member = 1,  /**< a key, and the value if there is one */
    QvInitializationWalkKind_Comment = 2, /**< one comment */
    QvInitializationWalkKind_Fault = 3    /**< what the reader would refuse */
} QvInitializationWalkKind_t;

/** One event of a walk. It and all that it points at belong to the walk and are good until the visitor returns. */
typedef struct QvInitializationWalkEvent {
    QvInitializationWalkKind_t kind; /**< what stands there */
    /** Where it begins, as the reader's traces count: from 1, the column in bytes. */
    size_t line;
    size_t column; /**< see line */
    /** Bytes from the text's first one on. A Section: from '[' until behind ']'. A Member: its key, quotes included. A
     * Comment: from its mark on. A Fault: its place, and the end of its line. */
    size_t begin;
    size_t end; /**< behind its last byte, see begin */
    /** Of a Member: the bytes of the value, quotes included; behind the '=' where it is empty. Else both are `end`. */
    size_t valueBegin;
    size_t valueEnd; /**< behind the last of them, see valueBegin */
    /** Of a Section its name, of a Member its key, without quotes and escapes. Of a Comment its text without the mark.
     * Of a Fault what is wrong, as "expected ']'". A zero byte follows. */
    const char* pText;
    size_t length; /**< bytes at pText */
    /** Of a Member: the value without quotes and escapes, a zero byte behind it. Null where there is none. */
    const char* pValue;
    size_t valueLength; /**< bytes at pValue */
    /** Of a Comment: whether it stands on the line of the Section or Member before it, and so is that one's. */
    bool isBehind;
} QvInitializationWalkEvent_t;

/** Is called for each event, in the order of the text. Anything but 0 ends the walk with that status. */
typedef int (*QvInitializationWalkVisit_t)(void* pUserData, const QvInitializationWalkEvent_t* pEvent);

/**
 * Walks over the text from pBegin up to pEnd, which is read as QvInitializationReader_parse reads it: a text without a
 * Fault is one that it takes, and the first Fault is what its trace would tell. The walk itself leaves no trace.
 *
 * After a Fault it goes on with the next line. A broken header is a Section all the same behind its Fault, by the name
 * that can be made out, so that what stands below it isn't taken for the section above.
 *
 * hReader: an open reader.
 * pBegin, pEnd: the text; both may be null for an empty one.
 * pVisit: not null; pUserData is handed to it.
 * Returns 0; 5 when out of memory; 7 after one Fault or more; 13 for bad arguments; else the status of the visitor.
 */
QV_INITIALIZATION_API int QvInitializationReader_walk(QvInitializationReaderHandle_t hReader, const char* pBegin,
                                                      const char* pEnd, QvInitializationWalkVisit_t pVisit,
                                                      void* pUserData);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_WALK_H */
