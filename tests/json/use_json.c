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

/* What a walk tells, a letter and the bytes of each event. */
struct Listing {
    char text[256];
    size_t length;
    int left;
};

static int list(void* pUserData, const QvJsonWalkEvent_t* pEvent)
{
    struct Listing* pListing = pUserData;
    int length = snprintf(pListing->text + pListing->length, sizeof(pListing->text) - pListing->length,
                          "%c%zu:%zu-%zu ", "{}[]kv/!"[pEvent->kind], pEvent -> index, pEvent -> begin, pEvent -> end);
    pListing->length += (size_t)length;
    return --pListing->left == 0 ? 99 : 0;
}

static void walk(QvJsonReaderHandle_t reader)
{
    const char text[] = "{\"a\": [x, 2 /**/],\n \"\xC3\xA4\" 1.5";
    const char* pEnd = text + strlen(text);
    const char expected[] = "{0:0-1 k0:1-4 [0:6-7 !0:7-8 v1:10-11 /0:12-16 ]0:16-17 k1:20-24 !0:25-25 v1:25-28 "
                            "!0:28-28 }0:28-28 ";
    struct Listing listing = {.left = 0};
    size_t line = 0;
    size_t column = 0;

    check(QvJsonReader_walk(reader, text, pEnd, list, &listing) == 7, "walk");
    check(strcmp(listing.text, expected) == 0, listing.text);
    listing.left = 3;
    check(QvJsonReader_walk(reader, text, pEnd, list, &listing) == 99 && listing.left == 0, "end of a walk");
    check(QvJsonReader_walk(0, text, pEnd, list, &listing) == 13, "walk without a reader");
    check(QvJsonReader_walk(reader, pEnd, text, list, &listing) == 13, "walk over no text");
    check(QvJsonReader_walk(reader, text, pEnd, NULL, NULL) == 13, "walk without a visitor");
    check(QvJsonReader_place(text, pEnd, 25, &line, &column) == 0 && line == 2 && column == 6, "place");
    check(QvJsonReader_place(text, text, 0, &line, &column) == 0 && line == 1 && column == 1, "first place");
    check(QvJsonReader_place(text, pEnd, strlen(text) + 1, &line, &column) == 13, "no place");
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
    walk(reader);
    check(QvJsonReader_close(&reader) == 0 && QvJsonWriter_close(&writer) == 0, "close");
    return failures == 0 ? 0 : 1;
}
