#pragma once

#include <memory>
#include <random>
#include <string>
#include <string_view>

#include <qv_json_c/qv_json.h>

#include "common/traces.h"

namespace qv::test {

struct TreeDeleter {
    void operator()(QvJsonValue_t* pValue) const { QvJsonValue_delete(&pValue); }
};
using Tree = std::unique_ptr<QvJsonValue_t, TreeDeleter>;

// A name and a number behind it.
std::string numbered(const char* pName, int number);

// A list of so many numbers from the first on.
std::string listOf(int first, int number);

// A new value of the type.
Tree make(QvJsonValueType_t type);

// A copy of a text in a block of exactly its size, so that a sanitizer sees every byte that is read behind its end.
class Exact {
public:
    explicit Exact(std::string_view text);
    const char* begin() const { return block_.get() + 1; } // the byte before keeps the block apart for the empty text
    const char* end() const { return begin() + size_; }

private:
    std::unique_ptr<char[]> block_;
    size_t size_;
};

// A reader that closes itself.
class Reader {
public:
    Reader();
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    QvJsonReaderHandle_t handle() const { return handle_; }
    // The status; the tree is there with 0 alone.
    int parse(const Exact& text, Tree* pTree) const;

private:
    QvJsonReaderHandle_t handle_ = 0;
};

Tree read(std::string_view text, int expectedStatus = 0);

// The same as a compact tree.
Tree readCompact(std::string_view text, int expectedStatus = 0);

// The tree's text as the database writes it, or laid out otherwise.
std::string write(QvJsonValue_t* pValue, QvJsonWriterOpenParam_t* pParam = nullptr);

// A document of all that the language has, with blanks and comments between its tokens, some of them broken.
std::string layOut(std::mt19937& random);

// The document with one to three changes: pieces of it gone, doubled or moved, signs of the language in between.
std::string mutate(std::string_view document, std::mt19937& random);

} // namespace qv::test
