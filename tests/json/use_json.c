/* The interface as a C program uses it: read, look, change, write. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <qv_json_c/qv_json.h>

static int failures = 0;

static void check(bool isGood, const char* pWhat)
{
    if (!isGood) {
        fprintf(stderr, "failed: %s\n", pWhat);
        ++failures;
    }
}

static int endWalk(void* pUserData, const QvJsonWalkEvent_t* pEvent)
{
    *(size_t*)pUserData = pEvent->begin;
    return pEvent->kind == QvJsonWalkKind_Value ? 99 : 0;
}

int main(void)
{
    const char text[] = "{\"tuning\": {\"gain\": [1.5, 2]}}";
    const char expected[] = "{\n  \"tuning\": {\n    \"gain\": [1.50, 2],\n    \"rows\": [[\"x\"]]\n  }\n}\n";
    QvJsonReaderHandle_t reader = 0;
    QvJsonWriterHandle_t writer = 0;
    QvJsonWriterOpenParam_t param = {.decimals = 2, .elementNumberPerLine = 0, .indent = "  "};
    QvJsonValue_t* pRoot = NULL;
    QvJsonValue_t* pTuning = NULL;
    QvJsonValue_t* pRows = NULL;
    QvJsonValue_t* pRow = NULL;
    char* pText = NULL;
    size_t begin = 0;
    const union Holder* pHolder = NULL;

    check(QvJsonReader_open(&reader) == 0, "reader");
    check(QvJsonWriter_open(&param, &writer) == 0, "writer");
    check(QvJsonReader_parse(reader, text, text + strlen(text), &pRoot) == 0, "parse");
    check(QvJsonPath(pRoot, "tuning", &pTuning) == 0, "path");
    check(QvJsonValue_itemAsFloat(QvJsonValue_member(pTuning, "gain"), 0) == 1.5, "value");
    pHolder = &pTuning->holder.pObject->pPairs[0].pValue->holder.pArray->pValues[1].holder;
    check(pHolder->integer == 2, "holder");
    check(QvJsonValue_create(QvJsonValueType_Array, &pRows) == 0, "rows");
    check(QvJsonValue_addValueToObject(pTuning, "rows", &pRows) == 0, "add rows");
    check(QvJsonValue_create(QvJsonValueType_Array, &pRow) == 0, "row");
    check(QvJsonValue_addValueToArray(pRows, &pRow) == 0, "add row");
    check(QvJsonValue_addStringToArray(pRow, "x") == 0, "add text");
    check(QvJsonWriter_stringify(writer, pRoot, &pText) == 0, "stringify");
    check(pText != NULL && strcmp(pText, expected) == 0, "text");
    free(pText);
    check(QvJsonValue_delete(&pRoot) == 0 && pRoot == NULL, "delete");
    check(QvJsonReader_walk(reader, text, text + strlen(text), endWalk, &begin) == 99 && begin == 21, "walk");
    check(QvJsonReader_close(&reader) == 0 && QvJsonWriter_close(&writer) == 0, "close");
    return failures == 0 ? 0 : 1;
}
