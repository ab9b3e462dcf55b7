// Makes a small document with the JSON library alone and prints it.

#include <cstdlib>
#include <iostream>

#include <qv_json_c/qv_json.h>

int main()
{
    QvJsonWriterHandle_t writer = 0;
    QvJsonValue_t* pRoot = nullptr;
    char* pText = nullptr;
    if (QvJsonWriter_open(nullptr, &writer) != 0 || QvJsonValue_create(QvJsonValueType_Object, &pRoot) != 0 ||
        QvJsonValue_addIntegerToObject(pRoot, "answer", 42) != 0 ||
        QvJsonWriter_stringify(writer, pRoot, &pText) != 0) {
        return 1;
    }
    std::cout << pText;
    std::free(pText);
    QvJsonValue_delete(&pRoot);
    return QvJsonWriter_close(&writer);
}
