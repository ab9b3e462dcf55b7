#pragma once

// A text through reader, tree and writer, as tests of steps and of memory count it. Each gives the first status that is
// none of success, and releases what it has made until there.

#include <cstdlib>
#include <string>

#include <qv_common_c/qv_common.h>
#include <qv_initialization/qv_initialization.h>
#include <qv_json_c/qv_json.h>

namespace qv::test {

/// Does one step after the other until one fails. It takes no memory.
template <class... Steps>
int inTurn(const Steps&... steps)
{
    int status = 0;
    static_cast<void>((((status = steps()) == 0) && ...));
    return status;
}

/// Read, searched and written.
inline int throughJson(const std::string& text)
{
    QvJsonReaderHandle_t reader = 0;
    QvJsonWriterHandle_t writer = 0;
    QvJsonValue_t* pRoot = nullptr;
    char* pText = nullptr;
    const auto search = [&] {
        bool isFound = true;
        if (pRoot->type == QvJsonValueType_Object) {
            // From the last to the first: never the one that is looked for next.
            for (size_t place = pRoot->holder.pObject->number; place-- > 0;) {
                isFound = isFound && QvJsonValue_member2(pRoot, pRoot->holder.pObject->pPairs[place].pKey) != nullptr;
            }
        }
        return isFound ? 0 : -1;
    };
    const int status =
        inTurn([&] { return QvJsonReader_open(&reader); }, [&] { return QvJsonWriter_open(nullptr, &writer); },
               [&] { return QvJsonReader_parse(reader, text.data(), text.data() + text.size(), &pRoot); }, search,
               [&] { return QvJsonWriter_stringify(writer, pRoot, &pText); });
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
    QvCommonBuffer_t buffer = {const_cast<char*>(text.data()), 0, text.size(), nullptr, false};
    const int status = inTurn([&] { return QvInitializationReader_open(&reader); },
                              [&] { return QvInitializationWriter_open(&writer); },
                              [&] { return QvCommonDQueue_open(&param, &queue); },
                              [&] { return QvInitializationReader_parse(reader, &buffer, queue); },
                              [&] { return QvInitializationWriter_serialize(writer, queue, &buffer); });
    QvCommonBuffer_clear(&buffer);
    QvCommonDQueue_close(&queue);
    QvInitializationWriter_close(&writer);
    QvInitializationReader_close(&reader);
    return status;
}

} // namespace qv::test
