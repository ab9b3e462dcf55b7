/** @file
 * A walk over a text with positions, for programs that tell where something stands, or change a text in place. The tree
 * keeps none of this.
 */
#ifndef QV_JSON_C_JSON_WALK_H
#define QV_JSON_C_JSON_WALK_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_value.h>
#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** No place. */
#define QV_JSON_WALK_NONE SIZE_MAX

/** What stands at a place of a text. */
typedef enum QvJsonWalkKind {
    QvJsonWalkKind_ObjectBegin = 0, /**< '{' */
    QvJsonWalkKind_ObjectEnd = 1,   /**< '}' */
    QvJsonWalkKind_ArrayBegin = 2,  /**< '[' */
    QvJsonWalkKind_ArrayEnd = 3,    /**< ']' */
    QvJsonWalkKind_Key = 4,         /**< a member's key; its value, or a Fault, comes next, but for comments */
    QvJsonWalkKind_Value = 5,       /**< null, a boolean, a number or a text */
    QvJsonWalkKind_Comment = 6,     /**< one comment */
    QvJsonWalkKind_Fault = 7        /**< what the reader would refuse */
} QvJsonWalkKind_t;

/** One event of a walk. It and all that it points at belong to the walk and are good until the visitor returns. */
typedef struct QvJsonWalkEvent {
    QvJsonWalkKind_t kind; /**< what stands there */
    /** Of a Value; Object or Array of a Begin and an End; Null of all others. */
    QvJsonValueType_t type;
    /** Number of containers around it. Those of an End are those of its Begin. */
    size_t depth;
    /** Of a Key, a Value, a Begin or an End: which member or item of its container it is, from 0. A doubled key counts
     * twice; an item that a Fault has passed over counts, too. */
    size_t index;
    /** The bytes of the token, from the text's first byte on, quotes and comment signs included. Of a Fault: its place,
     * and the end of what is passed over, which may be nothing. Of an End whose bracket is missing: twice the place
     * where it was missed. */
    size_t begin;
    size_t end; /**< behind its last byte, see begin */
    /** Of a Key or a text: its characters, escapes resolved, with a zero byte behind them. Of a Comment: its lines
     * without signs and blanks around them. Of a Fault: what is wrong, as "expected ',' or ']'". Else null. */
    const char* pText;
    /** Bytes at pText. The reader's strings end at a zero character in them ("\u0000"). */
    size_t length;
    /** Of a Value: what the tree would hold, for QvJsonValue_asInteger and the like; a text is that at pText. */
    QvJsonValue_t value;
    /** Of a Comment: whether it stands behind a value on its line, and so is of that one's pComment2. */
    bool isBehind;
    /** Of an End: where its container began. Of a Fault: where the text or comment that is broken began, or else the
     * innermost open container; QV_JSON_WALK_NONE outside of all. */
    size_t opened;
    /** Of a Fault which a bracket may have caused that is missing or one too many somewhere before (at the end of the
     * text, at a wrong bracket, behind the document): the bracket to look at first, judged by indentation: an opening
     * one that isn't closed, or a closing one that closes too much. Equals `opened` where nothing tells more. Else
     * QV_JSON_WALK_NONE. */
    size_t suspect;
} QvJsonWalkEvent_t;

/** Is called for each event, in the order of the text. Anything but 0 ends the walk with that status. */
typedef int (*QvJsonWalkVisit_t)(void* pUserData, const QvJsonWalkEvent_t* pEvent);

/**
 * Walks over the text from pBegin up to pEnd, which is read as QvJsonReader_parse reads it: a text without a Fault is
 * one that it takes, and the first Fault is what its trace would tell. The walk itself leaves no trace.
 *
 * After a Fault it goes on, so that a visitor is told of all faults at once: where a comma or colon is missing as if it
 * stood there; behind a broken text or comment; else at the next comma or closing bracket of the container. A container
 * that is never closed has its End at the place where that was noticed, so that each Begin has its End. Where a key
 * stands in an array that seems to be such a one, the Fault is at its colon, and the End and the Key come behind it.
 * Behind the document, and outside of all containers, the first Fault is the last event.
 *
 * What it takes grows with the length of the text and no faster. The visitor may use the reader.
 *
 * handle     an open reader
 * pBegin     not null
 * pEnd       not null, not before pBegin
 * pVisit     not null
 * pUserData  handed to the visitor
 *
 * 0; 5 when memory runs out; 7 after one Fault or more; 13 for bad arguments; else the status of the visitor.
 */
QV_JSON_API int QvJsonReader_walk(QvJsonReaderHandle_t handle, const char* pBegin, const char* pEnd,
                                  QvJsonWalkVisit_t pVisit, void* pUserData);

/**
 * Tells line and column of a byte as the reader's traces count them: from 1, the column in characters. It counts from
 * pBegin on: who asks for many places begins with the line of the one before.
 *
 * offset          at most pEnd - pBegin
 * pLine, pColumn  receive them; either may be null
 *
 * 0; 13 for a null text and an offset behind its end.
 */
QV_JSON_API int QvJsonReader_place(const char* pBegin, const char* pEnd, size_t offset, size_t* pLine, size_t* pColumn);

#ifdef __cplusplus
}
#endif

#endif
