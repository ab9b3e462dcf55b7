/** @file
 * One section of an initialization file.
 */
#ifndef QV_INITIALIZATION_SECTION_H
#define QV_INITIALIZATION_SECTION_H

#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One section of an initialization file. All that hangs on it belongs to it. */
typedef struct QvInitializationSection {
    /** Queue of char*, the comment lines above the section, each without its mark: heap strings of the malloc family.
        */
    QvCommonDQueueHandle_t hComment;
    /** The section's name, a heap string of the malloc family. Null for the keys that stand before the first header of
     * a file. */
    char* pHeader;
    /** Queue of QvInitializationMember_t*, in file order. Walk it by popping the front and pushing it back. */
    QvCommonDQueueHandle_t hMember;
} QvInitializationSection_t;

/**
 * Allocates a section with both queues open and empty and a null pHeader. The queues own what is pushed to them:
 * strings in hComment are freed, members in hMember deleted, together with the section.
 * @param ppSection receives the section, which is the caller's until it is pushed to a queue; must hold null.
 * @return 0; 5 when out of memory; 13 when ppSection is null or doesn't hold null.
 */
QV_INITIALIZATION_API int QvInitializationSection_create(QvInitializationSection_t** ppSection);

/**
 * Frees the section with its queues and all strings and clears the variable. A variable that holds null is left as it
 * is. It has the form of a queue's delete handler: cast it to QvCommonDQueueDeleteDataHandler_t.
 * @param ppSection address of the variable that holds the section.
 * @return 0, or the status with which a queue closed (the section is gone all the same); 13 when ppSection
 * is null or holds null.
 */
QV_INITIALIZATION_API int QvInitializationSection_delete(QvInitializationSection_t** ppSection);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_SECTION_H */
