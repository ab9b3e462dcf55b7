#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "initialization_record.h"

namespace qv::initialization {

/// Where a text broke the rules, and what should have stood there.
struct SyntaxError {
    const char* pExpected;
    std::size_t line;   // from 1
    std::size_t column; // in bytes, from 1
};

/// Reads one text line by line into sections. The text must outlive the parser.
class Parser {
public:
    /// The sections of the text in file order. Throws SyntaxError, StatusError or std::bad_alloc.
    std::vector<SectionPointer> parse(std::string_view text);

private:
    void parseLine();
    void parseHeader(std::string_view text);
    void parseMember(std::string_view text);
    void addMember(std::string_view key, std::string_view rest);
    void addComment(std::string_view rest);
    void moveCommentsTo(QvInitializationSection_t& section);
    QvInitializationSection_t& currentSection();
    [[noreturn]] void fail(const char* pExpected, const char* pPlace) const;

    std::string_view line_;      // the line at hand without its end
    std::size_t lineNumber_ = 0; // its number, from 1
    std::vector<SectionPointer> sections_;
    std::vector<std::string_view> comments_; // those that wait for the section or key below them
};

} // namespace qv::initialization
