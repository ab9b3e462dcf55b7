/** @file
 * The walk along a path of keys.
 */
#ifndef QV_JSON_C_JSON_PATH_H
#define QV_JSON_C_JSON_PATH_H

#include <qv_json_c/json_value.h>
#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Walks a path of member names separated by '/', such as "root/metadata", and gives the value there.
 *
 * Where a step is missing and the walk stands on an object or a null value, the member is made, as QvJsonValue_member
 * does. Where it stands on another kind (a number, a text, a list), nothing is changed and *ppValue is an empty value
 * that belongs to the library, valid as QvJsonValue_member tells. Empty steps are skipped, and the empty path gives
 * pValue itself. The value stays owned by the tree.
 *
 * @param pValue where the walk begins, not null
 * @param pPath names in UTF-8 up to a zero byte, not null
 * @param ppValue receives the value, not null; never holds null after status 0
 * @return 0; 5 when memory runs out; 13 for a null argument. On 5 and 13 *ppValue is left as it was.
 */
QV_JSON_API int QvJsonPath(QvJsonValue_t* pValue, const char* pPath, QvJsonValue_t** ppValue);

#ifdef __cplusplus
}
#endif

#endif
