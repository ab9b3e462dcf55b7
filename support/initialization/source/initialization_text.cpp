#include <qv_initialization/initialization_text.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>

#include "initialization_quote.h"
#include "initialization_record.h"

namespace {

using namespace qv::initialization;

/// A text in a block of the malloc family, which is given away in the end.
class Text {
public:
    Text() = default;
    ~Text() { std::free(pBegin_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    bool isEmpty() const { return size_ == 0; }

    /// The place behind the text, with room for that many characters. May throw, and changes nothing then.
    char* room(std::size_t number)
    {
        if (capacity_ - size_ < number) {
            const std::size_t capacity = std::max(size_ + number, size_ * 2) + kFirstRoom;
            resize(capacity);
        }
        return pBegin_ + size_;
    }
    void use(std::size_t number) { size_ += number; }

    void append(std::string_view text)
    {
        text.copy(room(text.size()), text.size());
        use(text.size());
    }

    /// Ends the last section, and the text with a zero byte. May throw, and changes nothing then.
    void finish(QvCommonBuffer_t* pBuffer)
    {
        const std::size_t size = isEmpty() ? 0 : size_ + 1;
        char* p = room(2);
        p[0] = '\n';
        pBegin_[size] = '\0';
        resize(size + 1);
        throwUnlessSuccess(QvCommonBuffer_clear(pBuffer));
        pBuffer->pBegin = pBegin_;
        pBuffer->size = size;
        pBuffer->isAllocated = true;
        pBegin_ = nullptr;
        size_ = 0;
        capacity_ = 0;
    }

private:
    /// What most texts have room in.
    static constexpr std::size_t kFirstRoom = 8192;

    void resize(std::size_t capacity)
    {
        auto* pBegin = static_cast<char*>(std::realloc(pBegin_, capacity));
        if (pBegin == nullptr) {
            throw std::bad_alloc();
        }
        pBegin_ = pBegin;
        capacity_ = capacity;
    }

    char* pBegin_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

Text* textOf(QvInitializationTextHandle_t handle)
{
    return reinterpret_cast<Text*>(handle);
}

} // namespace

int QvInitializationText_open(QvInitializationTextHandle_t* phText)
{
    if (phText == nullptr || *phText != 0) {
        return QvCommonError_BadArgument;
    }
    *phText = reinterpret_cast<QvInitializationTextHandle_t>(new (std::nothrow) Text);
    return *phText != 0 ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvInitializationText_close(QvInitializationTextHandle_t* phText)
{
    if (phText == nullptr || *phText == 0) {
        return QvCommonError_BadArgument;
    }
    delete textOf(*phText);
    *phText = 0;
    return QvCommonError_Success;
}

int QvInitializationText_addHeader(QvInitializationTextHandle_t hText, const char* pHeader)
{
    if (hText == 0 || pHeader == nullptr) {
        return QvCommonError_BadArgument;
    }
    return statusOf([hText, pHeader] {
        Text& text = *textOf(hText);
        std::string line = text.isEmpty() ? "[" : "\n[";
        appendHeader(line, pHeader);
        line += "]\n";
        text.append(line);
    });
}

int QvInitializationText_addMember(QvInitializationTextHandle_t hText, const char* pKey, const char* pValue,
                                   std::size_t length)
{
    if (hText == 0 || pKey == nullptr) {
        return QvCommonError_BadArgument;
    }
    const std::string_view key = pKey;
    const std::string_view value = pValue != nullptr ? std::string_view(pValue, length) : "";
    return statusOf([&] {
        Text& text = *textOf(hText);
        if (pValue != nullptr && !isKeyQuoted(key) && !isValueQuoted(value)) { // as most are
            const std::size_t size = key.size() + 3 + value.size() + 1;
            char* p = text.room(size);
            p += key.copy(p, key.size());
            std::memcpy(p, " = ", 3);
            p += 3;
            p[value.copy(p, value.size())] = '\n';
            text.use(size);
            return;
        }
        std::string line;
        appendKey(line, key);
        if (pValue != nullptr) {
            line += " = ";
            appendValue(line, value);
        }
        line += '\n';
        text.append(line);
    });
}

int QvInitializationText_finish(QvInitializationTextHandle_t hText, QvCommonBuffer_t* pBuffer)
{
    if (hText == 0 || pBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    return statusOf([hText, pBuffer] { textOf(hText)->finish(pBuffer); });
}
