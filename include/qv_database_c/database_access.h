/** @file
 * Typed access to the members of a JSON object: one function for each shape of data, one pair for each direction. The
 * plain name reads from the document into the record, its twin with a trailing underscore writes from the record into
 * the document. Record codecs are built on these; they are exported for codecs of records outside this library.
 *
 * 1. `pValue` is the JSON object that holds the key; it stays the caller's. `pKey` is the member's name.
 * 2. `pData` is the field, or the first element of an array, in the record; it stays the caller's. None keeps it.
 * 3. `stride` is the width of one integer element in bytes: 1, 2, 4 or 8. `length`, `length2` and `length3` are the
 *    capacities of the dimensions in the record, outermost first.
 * 4. `isSigned` says whether the stored integer is extended with its sign when written. Reading stores the low bytes of
 *    the document's number, whatever its sign; a number too large for the field keeps its low bytes.
 * 5. No function tests its arguments for null.
 * 6. Reading gives 10 and touches nothing when the member is missing or empty, else 0. Lists are read as far as
 *    document and array both go: what the document holds beyond the array is passed over, what the array holds beyond
 *    the document keeps its value. The place of an element in the record follows from the declared capacities alone.
 * 7. Writing gives 0, or the status of the first JSON operation that fails after an error trace; what was added stays.
 *    All elements of the declared capacity are written.
 */
#ifndef QV_DATABASE_C_DATABASE_ACCESS_H
#define QV_DATABASE_C_DATABASE_ACCESS_H

#include <stdbool.h>
#include <stddef.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads one record from a JSON value; 0 or a status. */
typedef int Parse_t(QvJsonValue_t* pValue, char* pRecord);
/** Writes one record into a JSON value; 0 or a status. */
typedef int Serialize_t(char* pRecord, QvJsonValue_t* pValue);

/** One boolean; a number counts as true unless it is zero. */
QV_DATABASE_API int QvDatabaseAccess_bool(QvJsonValue_t* pValue, bool* pData, const char* pKey);
/** A list of booleans. */
QV_DATABASE_API int QvDatabaseAccess_bools(QvJsonValue_t* pValue, bool* pData, size_t length, const char* pKey);
/** One text into a field of `length` bytes. A shorter text pads with zero bytes; a text of `length` bytes or more is
   cut and leaves no terminator. A member that is no text gives 0 and leaves the field as it was. */
QV_DATABASE_API int QvDatabaseAccess_chars(QvJsonValue_t* pValue, char* pData, size_t length, const char* pKey);
/** A list of texts, each into a row of `length2` bytes by the rule of one text. */
QV_DATABASE_API int QvDatabaseAccess_chars22(QvJsonValue_t* pValue, char* pData, size_t length, size_t length2,
                                             const char* pKey);
/** One double. */
QV_DATABASE_API int QvDatabaseAccess_double(QvJsonValue_t* pValue, double* pData, const char* pKey);
/** A list of doubles. */
QV_DATABASE_API int QvDatabaseAccess_doubles(QvJsonValue_t* pValue, double* pData, size_t length, const char* pKey);
/** One float, narrowed from the document's double. */
QV_DATABASE_API int QvDatabaseAccess_float(QvJsonValue_t* pValue, float* pData, const char* pKey);
/** A list of floats. */
QV_DATABASE_API int QvDatabaseAccess_floats(QvJsonValue_t* pValue, float* pData, size_t length, const char* pKey);
/** Rows of floats into a flat array: element j of row i goes to pData[j + i * length of that row]. `length` is not
   looked at and nothing is cut, so the caller answers for the room behind pData. */
QV_DATABASE_API int QvDatabaseAccess_floats21(QvJsonValue_t* pValue, float* pData, size_t length, const char* pKey);
/** Rows of floats into a matrix of length by length2. */
QV_DATABASE_API int QvDatabaseAccess_floats22(QvJsonValue_t* pValue, float* pData, size_t length, size_t length2,
                                              const char* pKey);
/** Planes of rows of floats. */
QV_DATABASE_API int QvDatabaseAccess_floats33(QvJsonValue_t* pValue, float* pData, size_t length, size_t length2,
                                              size_t length3, const char* pKey);
/** One integer of `stride` bytes. */
QV_DATABASE_API int QvDatabaseAccess_integer(QvJsonValue_t* pValue, void* pData, size_t stride, const char* pKey);
/** A list of integers of `stride` bytes. */
QV_DATABASE_API int QvDatabaseAccess_integers(QvJsonValue_t* pValue, void* pData, size_t stride, size_t length,
                                              const char* pKey);
/** Rows of integers into a matrix of length by length2. */
QV_DATABASE_API int QvDatabaseAccess_intergers22(QvJsonValue_t* pValue, void* pData, size_t stride, size_t length,
                                                 size_t length2, const char* pKey);
/** Planes of rows of integers. */
QV_DATABASE_API int QvDatabaseAccess_intergers33(QvJsonValue_t* pValue, void* pData, size_t stride, size_t length,
                                                 size_t length2, size_t length3, const char* pKey);
/** A list of objects into an array of records of `stride` bytes, each through pParse. The first status of pParse that
   is not 0 is traced and returned; the items behind it are not read. */
QV_DATABASE_API int QvDatabaseAccess_objects(QvJsonValue_t* pValue, void* pData, size_t stride, size_t length,
                                             const char* pKey, Parse_t* pParse);
/** Sizes an array on the heap to the list under the key and gives the list back in *ppValue2 for reading its items.
    Always 0; a key that is absent counts as a list of no items.
    *ppData null: the array is allocated zeroed. Else it is reallocated, and where it grows, (new count - *pLength) *
   stride bytes are cleared from byte *pLength of the array on: the count is taken as a byte offset on purpose, so the
   fill begins inside the old elements and stops short of the new end. The array is the caller's, who releases it with
   free. *pLength receives the new count. */
QV_DATABASE_API int QvDatabaseAccess_calloc(QvJsonValue_t* pValue, QvJsonValue_t** ppValue2, void** ppData,
                                            size_t stride, size_t* pLength, const char* pKey);

/** One boolean: true unless the byte is zero. */
QV_DATABASE_API int QvDatabaseAccess_bool_(QvJsonValue_t* pValue, bool* pData, const char* pKey);
/** A list of booleans. */
QV_DATABASE_API int QvDatabaseAccess_bools_(QvJsonValue_t* pValue, bool* pData, size_t length, const char* pKey);
/** One text, up to its terminator, which the caller answers for. */
QV_DATABASE_API int QvDatabaseAccess_chars_(QvJsonValue_t* pValue, char* pData, const char* pKey);
/** A list of `length` texts, each up to its terminator, from rows of `length2` bytes. */
QV_DATABASE_API int QvDatabaseAccess_chars22_(QvJsonValue_t* pValue, char* pData, size_t length, size_t length2,
                                              const char* pKey);
/** One double. */
QV_DATABASE_API int QvDatabaseAccess_double_(QvJsonValue_t* pValue, double* pData, const char* pKey);
/** A list of doubles. */
QV_DATABASE_API int QvDatabaseAccess_doubles_(QvJsonValue_t* pValue, double* pData, size_t length, const char* pKey);
/** One float, widened by QvCommonConvert_float2Double; the lists below widen by plain conversion. */
QV_DATABASE_API int QvDatabaseAccess_float_(QvJsonValue_t* pValue, float* pData, const char* pKey);
/** A list of floats. */
QV_DATABASE_API int QvDatabaseAccess_floats_(QvJsonValue_t* pValue, float* pData, size_t length, const char* pKey);
/** A flat array of `length` floats as rows of `stride`; what is left over behind the last whole row is not written, and
   a stride of 0 gives no rows. */
QV_DATABASE_API int QvDatabaseAccess_floats21_(QvJsonValue_t* pValue, float* pData, size_t length, const char* pKey,
                                               size_t stride);
/** A matrix of floats as rows. */
QV_DATABASE_API int QvDatabaseAccess_floats22_(QvJsonValue_t* pValue, float* pData, size_t length, size_t length2,
                                               const char* pKey);
/** Planes of rows of floats. */
QV_DATABASE_API int QvDatabaseAccess_floats33_(QvJsonValue_t* pValue, float* pData, size_t length, size_t length2,
                                               size_t length3, const char* pKey);
/** One integer of `stride` bytes. */
QV_DATABASE_API int QvDatabaseAccess_integer_(QvJsonValue_t* pValue, bool isSigned, void* pData, size_t stride,
                                              const char* pKey);
/** A list of integers of `stride` bytes. */
QV_DATABASE_API int QvDatabaseAccess_integers_(QvJsonValue_t* pValue, bool isSigned, void* pData, size_t stride,
                                               size_t length, const char* pKey);
/** A matrix of integers as rows. */
QV_DATABASE_API int QvDatabaseAccess_intergers22_(QvJsonValue_t* pValue, bool isSigned, void* pData, size_t stride,
                                                  size_t length, size_t length2, const char* pKey);
/** Planes of rows of integers. */
QV_DATABASE_API int QvDatabaseAccess_intergers33_(QvJsonValue_t* pValue, bool isSigned, void* pData, size_t stride,
                                                  size_t length, size_t length2, size_t length3, const char* pKey);
/** An array of `length` records of `stride` bytes as a list of objects, each through pSerialize. */
QV_DATABASE_API int QvDatabaseAccess_objects_(QvJsonValue_t* pValue, void* pData, size_t stride, size_t length,
                                              const char* pKey, Serialize_t* pSerialize);

#ifdef __cplusplus
}
#endif

#endif
