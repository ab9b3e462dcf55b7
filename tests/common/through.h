#pragma once

// A text through reader, tree and writer, as tests of steps and of memory count it. Each gives the first status that is
// none of success, and releases what it has made until there.

#include <cstdlib>
#include <initializer_list>
#include <string>

#include <qv_common_c/qv_common.h>
#include <qv_initialization/qv_initialization.h>
#include <qv_json_c/qv_json.h>

namespace qv::test {

inline int firstOf(std::initializer_list<int> statuses)
{
    for (const int status : statuses) {
        if (status != 0) {
            return status;
        }
    }
    return 0;
}

/// Read, searched and written; where there is a file name also saved and loaded.
inline int throughJson(const std::string& text, const char* pFilename = nullptr)
{
    QvJsonReaderHandle_t reader = 0;
    QvJsonWriterHandle_t writer = 0;
    QvJsonValue_t* pRoot = nullptr;
    char* pText = nullptr;
    int status = firstOf({QvJsonReader_open(&reader), QvJsonWriter_open(nullptr, &writer)});
    if (status == 0) {
        status = QvJsonReader_parse(reader, text.data(), text.data() + text.size(), &pRoot);
    }
    if (status == 0 && pRoot->type == QvJsonValueType_Object) {
        // From the last to the first: never the one that is looked for next.
        for (size_t place = pRoot->holder.pObject->number; place-- > 0;) {
            status = QvJsonValue_member2(pRoot, pRoot->holder.pObject->pPairs[place].pKey) != nullptr ? status : -1;
        }
    }
    if (status == 0) {
        status = QvJsonWriter_stringify(writer, pRoot, &pText);
    }
    if (status == 0 && pFilename != nullptr) {
        status = QvJsonWriter_save(writer, pRoot, pFilename);
        QvJsonValue_delete(&pRoot);
        status = status == 0 ? QvJsonReader_load(reader, pFilename, &pRoot) : status;
    }
    std::free(pText);
    QvJsonValue_delete(&pRoot);
    QvJsonWriter_close(&writer);
    QvJsonReader_close(&reader);
    return status;
}

inline int throughInitialization(const std::string& text)
{
    QvInitializationReaderHandle_t reader = 0;
    QvInitializationWriterHandle_t writer = 0;
    QvCommonDQueueHandle_t queue = 0;
    QvCommonDQueueOpenParam_t param = {};
    param.pDeleteDataHandler = [](void** ppSection) {
        return QvInitializationSection_delete(reinterpret_cast<QvInitializationSection_t**>(ppSection));
    };
    int status = firstOf({QvInitializationReader_open(&reader), QvInitializationWriter_open(&writer),
                          QvCommonDQueue_open(&param, &queue)});
    QvCommonBuffer_t buffer = {const_cast<char*>(text.data()), 0, text.size(), nullptr, false};
    if (status == 0) {
        status = QvInitializationReader_parse(reader, &buffer, queue);
    }
    if (status == 0) {
        status = QvInitializationWriter_serialize(writer, queue, &buffer);
    }
    QvCommonBuffer_clear(&buffer);
    QvCommonDQueue_close(&queue);
    QvInitializationWriter_close(&writer);
    QvInitializationReader_close(&reader);
    return status;
}

} // namespace qv::test
