/** @file
 * The text of an initialization file, written a line at a time without sections and members.
 */
#ifndef QV_INITIALIZATION_TEXT_H
#define QV_INITIALIZATION_TEXT_H

#include <stddef.h>
#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * A text that is written line by line, for who has no sections and members at hand and wants none: the text is the one
 * that QvInitializationWriter_serialize gives for sections with these headers and members, which have no comments.
 */

/** A text in the making; 0 is none. One thread at a time may add to it. */
typedef uintptr_t QvInitializationTextHandle_t;

/**
 * Begins an empty text.
 * phText: receives the handle; must hold 0.
 * Returns 0; 5 when out of memory; 13 when phText is null or doesn't hold 0.
 */
QV_INITIALIZATION_API int QvInitializationText_open(QvInitializationTextHandle_t* phText);

/**
 * Drops the text and sets the handle to 0.
 * Returns 0; 13 when phText is null or holds 0.
 */
QV_INITIALIZATION_API int QvInitializationText_close(QvInitializationTextHandle_t* phText);

/**
 * Begins a section. What was added before the first one stands in front of all headers.
 * pHeader: the section's name; not null.
 * Returns 0; 5 when out of memory, and then nothing was added; 13 for bad arguments.
 */
QV_INITIALIZATION_API int QvInitializationText_addHeader(QvInitializationTextHandle_t hText, const char* pHeader);

/**
 * Adds a member to the section.
 * pKey: not null.
 * pValue: the first of `length` characters, none of which is a zero byte; null for a key alone.
 * Returns 0; 5 when out of memory, and then nothing was added; 13 for bad arguments.
 */
QV_INITIALIZATION_API int QvInitializationText_addMember(QvInitializationTextHandle_t hText, const char* pKey,
                                                         const char* pValue, size_t length);

/**
 * Ends the last section and gives the text away; then it is empty again.
 * pBuffer: receives it as from QvInitializationWriter_serialize.
 * Returns 0; 5 when out of memory; 13 for bad arguments; else the status of the buffer.
 */
QV_INITIALIZATION_API int QvInitializationText_finish(QvInitializationTextHandle_t hText, QvCommonBuffer_t* pBuffer);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_TEXT_H */
