#pragma once

#include <memory>
#include <random>
#include <string>
#include <string_view>

#include <qv_json_c/qv_json.h>

namespace qv::test {

struct TreeDeleter {
    void operator()(QvJsonValue_t* pValue) const { QvJsonValue_delete(&pValue); }
};
using Tree = std::unique_ptr<QvJsonValue_t, TreeDeleter>;

// A name and a number behind it.
std::string numbered(const char* pName, int number);

// A new value of the type.
Tree make(QvJsonValueType_t type);

// Reads a text out of a block of exactly its size, so that a sanitizer sees every byte that is read behind its end.
Tree read(std::string_view text, int expectedStatus = 0);

// The same as a compact tree.
Tree readCompact(std::string_view text, int expectedStatus = 0);

// The tree's text as the database writes it, or laid out otherwise.
std::string write(QvJsonValue_t* pValue, QvJsonWriterOpenParam_t* pParam = nullptr);

// The document with one to three changes: pieces of it gone, doubled or moved, signs of the language in between.
std::string mutate(std::string_view document, std::mt19937& random);

// Collects what is traced while it lives.
class Traces {
public:
    Traces();
    ~Traces();
    Traces(const Traces&) = delete;
    Traces& operator=(const Traces&) = delete;

    // Everything so far, each line with its end; then it starts anew.
    std::string take();

private:
    std::string text_;
};

} // namespace qv::test
