/** @file
 * Compact trees: a list of nothing but numbers lies there as the numbers themselves, in two to eight bytes each, where a
 * value takes 32. That is for trees that are large and short-lived: read, looked through and deleted, or built, written
 * and deleted.
 *
 * All operations of json_value.h work on such a tree as on any other. Only who reads the structs finds such a list empty
 * (number is 0), until QvJsonValue_item was called for an item of it or something else than numbers was added to it:
 * then it becomes a list of values. Where there is no memory for that, QvJsonValue_item gives an empty value and an add
 * answers 5. Nothing else here or there needs memory to look into a list.
 */
#ifndef QV_JSON_C_JSON_COMPACT_H
#define QV_JSON_C_JSON_COMPACT_H

#include <stddef.h>

#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_value.h>
#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** How numbers lie in memory. */
typedef enum QvJsonNumber {
    QvJsonNumber_Int8 = 0,
    QvJsonNumber_Uint8 = 1,
    QvJsonNumber_Int16 = 2,
    QvJsonNumber_Uint16 = 3,
    QvJsonNumber_Int32 = 4,
    QvJsonNumber_Uint32 = 5,
    QvJsonNumber_Int64 = 6,
    QvJsonNumber_Float = 7, /**< a C float */
    QvJsonNumber_Double = 8
} QvJsonNumber_t;

/** Makes an empty object whose tree is compact. Otherwise as QvJsonValue_create: 0; 5; 13 for a null pointer. */
QV_JSON_API int QvJsonCompact_create(QvJsonValue_t** ppValue);

/** Lets the trees that the reader gives from now on be compact. 0; 13 where handle is zero. */
QV_JSON_API int QvJsonCompact_setReader(QvJsonReaderHandle_t handle);

/**
 * Adds numbers at the end of an array; a null value becomes an array first, unless there is no number to add. In any
 * tree it does what adding them one by one does; in a compact one an empty list takes them as they are.
 *
 * pNumbers   one behind the other, in any alignment; not null unless number is 0
 *
 * 0; 5 when memory runs out; 13 for a null pointer, for a value of another kind and for an unknown kind of numbers. A
 * failure changes nothing, but that a null value may have become an empty array.
 */
QV_JSON_API int QvJsonCompact_addNumbers(QvJsonValue_t* pValue, QvJsonNumber_t kind, const void* pNumbers,
                                         size_t number);

/**
 * Copies the first items of an array, up to `number` of them, whatever tree it stands in. Each is converted as
 * QvJsonValue_itemAsFloat and QvJsonValue_itemAsInteger do it; then a float is rounded, and of an integer the low bytes
 * are taken. pNumbers may have any alignment. Returns how many were copied: 0 for null pointers, for a value of another
 * kind and for an unknown kind of numbers.
 */
QV_JSON_API size_t QvJsonCompact_numbers(QvJsonValue_t* pValue, QvJsonNumber_t kind, void* pNumbers, size_t number);

#ifdef __cplusplus
}
#endif

#endif
