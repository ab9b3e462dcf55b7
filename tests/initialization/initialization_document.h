#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <qv_initialization/qv_initialization.h>

// Initialization files as plain C++ values, moved through the C interface, so that tests can compare them.
struct Member {
    std::string key;
    std::optional<std::string> value = {};
    std::optional<std::string> comment = {};

    bool operator==(const Member&) const = default;
};

struct Section {
    std::optional<std::string> header;
    std::vector<Member> members = {};
    std::vector<std::string> comments = {};

    bool operator==(const Section&) const = default;
};

struct ReadResult {
    int status = -1;
    std::vector<Section> sections; // what the queue holds afterwards
    std::vector<std::string> traces;
};

// Pieces that mean something somewhere in the syntax, and lines of them.
extern const std::vector<std::string> kPieces;

// Calls the reader with an exact copy of the text, so that a sanitizer sees a read past its end.
ReadResult readText(std::string_view text);

// Calls the writer and checks that the queue came out as it went in and the buffer ends in a zero byte.
std::string writeText(const std::vector<Section>& sections);

// One line for each section, as in: ['SS']{comment} 'key'='value'{its comment} 'key alone'
std::string show(const std::vector<Section>& sections);
