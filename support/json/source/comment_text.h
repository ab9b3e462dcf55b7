#pragma once

#include <string>
#include <string_view>

namespace qv::json {

/// A comment in a text.
struct CommentScan {
    const char* pNext = nullptr;     // behind the comment; null if it is broken
    const char* pError = nullptr;    // where it is broken
    const char* pExpected = nullptr; // and what should stand there
    std::string text;                // without delimiters, each line trimmed
};

/// A line without the blanks around it, as the reader takes it and so as the writer writes it.
std::string_view trimmedLine(std::string_view line);

/// Reads the comment whose first slash stands at p. The line end behind // is not part of it.
CommentScan scanComment(const char* p, const char* pEnd);

/// Several comments of one value are lines of one text. An empty comment is a line, too: `hasText` tells whether there
/// was one before.
void joinComment(std::string& text, bool hasText, const std::string& more);

} // namespace qv::json
