/*
 * Counts the members of each section of an initialization file.
 *
 *     count_keys FILE
 */
#include <stdio.h>

#include <qv_common_c/qv_common.h>
#include <qv_initialization/qv_initialization.h>

int main(int argc, char* argv[])
{
    QvCommonBuffer_t* pBuffer = NULL;
    QvCommonDQueueHandle_t sections = 0;
    QvInitializationReaderHandle_t reader = 0;
    if (argc != 2 || QvCommonBuffer_create(&pBuffer) != 0 || QvCommonBuffer_load2(argv[1], 0, 0, pBuffer) != 0 ||
        QvCommonDQueue_open(NULL, &sections) != 0 || QvInitializationReader_open(&reader) != 0 ||
        QvInitializationReader_parse(reader, pBuffer, sections) != 0) {
        return 1;
    }
    void* pElement = NULL;
    while (QvCommonDQueue_popFront(sections, &pElement) == 0) {
        QvInitializationSection_t* pSection = pElement;
        printf("%s %zu\n", pSection->pHeader, QvCommonDQueue_length(pSection->hMember));
        QvInitializationSection_delete(&pSection);
    }
    QvInitializationReader_close(&reader);
    QvCommonDQueue_close(&sections);
    return QvCommonBuffer_delete(&pBuffer);
}
