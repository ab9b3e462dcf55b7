/** @file
 * One line of key and value.
 */
#ifndef QV_INITIALIZATION_MEMBER_H
#define QV_INITIALIZATION_MEMBER_H

#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One line of key and value. The strings are heap blocks of the malloc family that belong to the member. */
typedef struct QvInitializationMember {
    /** The key. Never null from the reader; the writer takes null as an empty key. */
    char* pKey;
    /** The value. Null where the line is a key alone, empty where nothing follows the '='. */
    char* pValue;
    /** The comment lines above the member, without their marks and joined by line feeds; null where there are none.
        A comment that stands behind the value on its own line comes last. */
    char* pComment;
} QvInitializationMember_t;

/**
 * Allocates a member whose three strings are null.
 * @param ppMember receives the member, which is the caller's until it is pushed to a section's queue; must hold null.
 * @return 0; 5 when out of memory; 13 when ppMember is null or doesn't hold null.
 */
QV_INITIALIZATION_API int QvInitializationMember_create(QvInitializationMember_t** ppMember);

/**
 * Frees the member and its strings and sets the variable to null.
 * @param ppMember address of the variable that holds the member.
 * @return 0; 13 when ppMember is null or holds null.
 */
QV_INITIALIZATION_API int QvInitializationMember_delete(QvInitializationMember_t** ppMember);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_MEMBER_H */
