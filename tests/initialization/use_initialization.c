/* The interface as a C program uses it: it fills records with strings of its own and leaves the freeing to the library.
 */
#include <stdlib.h>
#include <string.h>

#include <qv_initialization/qv_initialization.h>

#define CHECK(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            return __LINE__;                                                                                           \
        }                                                                                                              \
    } while (0)

int initializationFromC(void);

static char* copyOf(const char* pText)
{
    char* pCopy = malloc(strlen(pText) + 1);
    return pCopy != NULL ? strcpy(pCopy, pText) : NULL;
}

static int addMember(QvInitializationSection_t* pSection, char* pKey, char* pValue)
{
    QvInitializationMember_t* pMember = NULL;
    CHECK(QvInitializationMember_create(&pMember) == 0);
    CHECK(pMember->pKey == NULL && pMember->pValue == NULL && pMember->pComment == NULL);
    pMember->pKey = pKey;
    pMember->pValue = pValue;
    void* pElement = pMember;
    return QvCommonDQueue_pushBack(pSection->hMember, &pElement);
}

static int endWalk(void* pUserData, const QvInitializationWalkEvent_t* pEvent)
{
    *(size_t*)pUserData = pEvent->begin;
    return 99;
}

/* Returns 0, or the line of the check that failed. */
int initializationFromC(void)
{
    QvCommonDQueueOpenParam_t param = {(QvCommonDQueueDeleteDataHandler_t)QvInitializationSection_delete, false};
    QvCommonDQueueHandle_t hQueue = 0;
    CHECK(QvCommonDQueue_open(&param, &hQueue) == 0);
    QvInitializationSection_t* pSection = NULL;
    CHECK(QvInitializationSection_create(&pSection) == 0);
    CHECK(pSection->pHeader == NULL && pSection->hComment != 0 && pSection->hMember != 0);
    CHECK(addMember(pSection, NULL, NULL) == 0);
    CHECK(addMember(pSection, NULL, copyOf("no key")) == 0);
    CHECK(addMember(pSection, copyOf("k"), copyOf("v")) == 0);
    void* pElement = NULL;
    CHECK(QvCommonDQueue_pushBack(pSection->hMember, &pElement) == 0);
    CHECK(QvCommonDQueue_pushBack(pSection->hComment, &pElement) == 0);
    CHECK(QvCommonDQueue_pushBack(hQueue, &pElement) == 0);
    pElement = pSection;
    CHECK(QvCommonDQueue_pushBack(hQueue, &pElement) == 0);

    QvInitializationWriterHandle_t hWriter = 0;
    QvInitializationReaderHandle_t hReader = 0;
    QvCommonBuffer_t buffer = {NULL, 0, 0, NULL, false};
    CHECK(QvInitializationWriter_open(&hWriter) == 0);
    CHECK(QvInitializationReader_open(&hReader) == 0);
    CHECK(QvInitializationWriter_serialize(hWriter, hQueue, &buffer) == 0);
    CHECK(strcmp(buffer.pBegin, "\"\" = no key\nk = v\n\n") == 0);
    CHECK(QvCommonDQueue_popFront(hQueue, &pElement) == 0 && pElement == NULL);

    /* What is read goes behind what the queue holds, and the cursor of the buffer plays no part. */
    buffer.offset = 3;
    CHECK(QvInitializationReader_parse(hReader, &buffer, hQueue) == 0);
    CHECK(buffer.offset == 3);
    CHECK(QvCommonDQueue_length(hQueue) == 2);
    CHECK(QvCommonDQueue_popFront(hQueue, &pElement) == 0 && pElement == pSection);
    CHECK(QvInitializationSection_delete(&pSection) == 0 && pSection == NULL);

    const char text[] = "\n [a]\n";
    size_t begin = 0;
    CHECK(QvInitializationReader_walk(hReader, text, text + strlen(text), endWalk, &begin) == 99 && begin == 2);

    CHECK(QvInitializationReader_close(&hReader) == 0);
    CHECK(QvInitializationWriter_close(&hWriter) == 0);
    CHECK(QvCommonBuffer_clear(&buffer) == 0);
    CHECK(QvCommonDQueue_close(&hQueue) == 0);
    return 0;
}
