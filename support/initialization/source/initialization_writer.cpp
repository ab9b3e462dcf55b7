#include "qv_initialization/initialization_writer.h"

#include <algorithm>
#include <new>
#include <string>
#include <string_view>

#include "initialization_quote.h"
#include "initialization_record.h"

namespace {

using namespace qv::initialization;

// A writer has nothing to remember; its address is its handle.
struct Writer {};

// Appends a line of comment for each line of the text.
void appendComment(std::string& document, std::string_view text)
{
    while (true) {
        const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = trim(text.substr(0, length));
        document += line.empty() ? ";" : "; ";
        document += line;
        document += '\n';
        text.remove_prefix(length);
        if (text.empty()) {
            return;
        }
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
}

void appendMember(std::string& document, const QvInitializationMember_t& member)
{
    if (member.pKey == nullptr && member.pValue == nullptr) {
        return;
    }
    if (member.pComment != nullptr) {
        appendComment(document, member.pComment);
    }
    appendKey(document, member.pKey != nullptr ? member.pKey : "");
    if (member.pValue != nullptr) {
        document += " = ";
        appendValue(document, member.pValue);
    }
    document += '\n';
}

void appendSection(std::string& document, const QvInitializationSection_t& section)
{
    std::string comments;
    for (const char* pComment : elementsOf<char>(section.hComment)) {
        appendComment(comments, pComment);
    }
    if (section.pHeader != nullptr) {
        document += comments;
        document += '[';
        appendHeader(document, section.pHeader);
        document += "]\n";
    }
    for (const auto* pMember : elementsOf<QvInitializationMember_t>(section.hMember)) {
        appendMember(document, *pMember);
    }
    if (section.pHeader == nullptr) {
        // In front they would be taken for comments of the first member.
        document += comments;
    }
    document += '\n';
}

} // namespace

int QvInitializationWriter_open(QvInitializationWriterHandle_t* phWriter)
{
    if (phWriter == nullptr || *phWriter != 0) {
        return QvCommonError_BadArgument;
    }
    *phWriter = reinterpret_cast<QvInitializationWriterHandle_t>(new (std::nothrow) Writer);
    return *phWriter != 0 ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvInitializationWriter_close(QvInitializationWriterHandle_t* phWriter)
{
    if (phWriter == nullptr || *phWriter == 0) {
        return QvCommonError_BadArgument;
    }
    delete reinterpret_cast<Writer*>(*phWriter);
    *phWriter = 0;
    return QvCommonError_Success;
}

int QvInitializationWriter_serialize(QvInitializationWriterHandle_t hWriter, QvCommonDQueueHandle_t hQueue,
                                     QvCommonBuffer_t* pBuffer)
{
    if (hWriter == 0 || hQueue == 0 || pBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    return statusOf([hQueue, pBuffer] {
        std::string document;
        for (const auto* pSection : elementsOf<QvInitializationSection_t>(hQueue)) {
            appendSection(document, *pSection);
        }
        TextPointer pText = copyOf(document);
        throwUnlessSuccess(QvCommonBuffer_clear(pBuffer));
        pBuffer->pBegin = pText.release();
        pBuffer->size = document.size();
        pBuffer->isAllocated = true;
    });
}
