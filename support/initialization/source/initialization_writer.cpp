#include "qv_initialization/initialization_writer.h"

#include <algorithm>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

// A section as it will be read: what has no header goes with the section above.
struct Part {
    std::string comments;
    std::string header; // with its line end; empty only in front of all headers
    std::string members;
};

std::vector<Part> partsOf(QvCommonDQueueHandle_t hQueue)
{
    std::vector<Part> parts;
    for (const auto* pSection : elementsOf<QvInitializationSection_t>(hQueue)) {
        if (parts.empty() || pSection->pHeader != nullptr) {
            parts.emplace_back();
        }
        Part& part = parts.back();
        for (const char* pComment : elementsOf<char>(pSection->hComment)) {
            appendComment(part.comments, pComment);
        }
        if (pSection->pHeader != nullptr) {
            part.header = "[";
            appendHeader(part.header, pSection->pHeader);
            part.header += "]\n";
        }
        for (const auto* pMember : elementsOf<QvInitializationMember_t>(pSection->hMember)) {
            appendMember(part.members, *pMember);
        }
    }
    if (parts.size() > 1 && parts.front().header.empty()) {
        // They would be taken for those of the first member in front of it, and behind all members are those of the
        // next header.
        parts[1].comments.insert(0, std::exchange(parts[0].comments, {}));
    }
    return parts;
}

std::string documentOf(const std::vector<Part>& parts)
{
    std::string document;
    for (const Part& part : parts) {
        const size_t begin = document.size();
        if (part.header.empty()) {
            document += part.members;
            document += part.comments;
        } else {
            document += part.comments;
            document += part.header;
            document += part.members;
        }
        if (document.size() != begin) {
            document += '\n';
        }
    }
    return document;
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
        const std::string document = documentOf(partsOf(hQueue));
        TextPointer pText = copyOf(document);
        throwUnlessSuccess(QvCommonBuffer_clear(pBuffer));
        pBuffer->pBegin = pText.release();
        pBuffer->size = document.size();
        pBuffer->isAllocated = true;
    });
}
