/* The interface as C sees it: the headers compile, and a handle, a function of the caller and hTracer work. */
#include <qv_common_c/qv_common.h>

#include <stdlib.h>
#include <string.h>

static int release(void** ppObject)
{
    free(*ppObject);
    return QvCommonError_Success;
}

static int countLine(void* pUserData, QvCommonTracerLevel_t level, const char* pText, size_t length)
{
    const char* pExpected = "error: a.c:7: f: bad arguments(13)";
    *(int*)pUserData += level == QvCommonTracerLevel_Error && length == strlen(pExpected) && !strcmp(pText, pExpected);
    return 0;
}

int main(void)
{
    QvCommonMapOpenParam_t mapParam = {.pFree = release};
    QvCommonMapHandle_t hMap = 0;
    QvCommonMapSlot_t* pSlot = calloc(1, sizeof(*pSlot));
    if (pSlot == NULL || QvCommonMap_open(&mapParam, &hMap) != 0) {
        return 1;
    }
    pSlot->pObject = malloc(4);
    if (QvCommonMap_add(hMap, "KEY", &pSlot) != 0 || QvCommonMap_close(&hMap) != 0 || hMap != 0) {
        return 2;
    }

    int lines = 0;
    QvCommonTracerOpenParam_t tracerParam = {.pWrite = countLine, .pUserData = &lines};
    if (QvCommonTracer_open(&tracerParam, &hTracer) != 0) {
        return 3;
    }
    for (int level = 3; level < 100; level += 96) { /* a number that is no level comes as an error */
        QvCommonTracer_prefixSet(hTracer, (QvCommonTracerLevel_t)level, "a.c", 7, "f");
        fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", QvCommonError_text(13), 13);
    }
    return QvCommonTracer_close(&hTracer) == 0 && hTracer == 0 && lines == 2 ? 0 : 4;
}
