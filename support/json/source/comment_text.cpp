#include "comment_text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace qv::json {

namespace {

/// Blank lines at both ends go, line by line the blanks around the text.
std::string trimmedLines(std::string_view inside)
{
    inside = trimmedLine(inside);
    std::string text;
    for (bool hasText = false; !inside.empty(); hasText = true) {
        const std::string_view line = inside.substr(0, inside.find('\n'));
        joinComment(text, hasText, std::string(trimmedLine(line)));
        inside.remove_prefix(std::min(line.size() + 1, inside.size()));
    }
    return text;
}

} // namespace

std::string_view trimmedLine(std::string_view line)
{
    constexpr std::string_view kBlanks = " \t\r\n\v\f";
    const std::size_t first = line.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

CommentScan scanComment(const char* p, const char* pEnd)
{
    CommentScan scan;
    const auto fail = [&scan](const char* pError, const char* pExpected) {
        scan.pError = pError;
        scan.pExpected = pExpected;
        return scan;
    };
    const std::string_view rest(p, static_cast<std::size_t>(pEnd - p));
    std::size_t end = 0;
    std::size_t next = 0;
    if (rest.starts_with("//")) {
        end = std::min(rest.find('\n'), rest.size());
        next = end;
    } else if (rest.starts_with("/*")) {
        end = rest.find("*/", 2);
        if (end == std::string_view::npos) {
            return fail(pEnd, "'*/' at the end of a comment");
        }
        next = end + 2;
    } else {
        return fail(p + 1, "'/' or '*' of a comment");
    }
    const std::string_view inside = rest.substr(2, end - 2);
    if (const std::size_t zero = inside.find('\0'); zero != std::string_view::npos) {
        return fail(inside.data() + zero, "a comment without zero bytes"); // they would end its string
    }
    scan.text = next == end ? std::string(trimmedLine(inside)) : trimmedLines(inside);
    scan.pNext = p + next;
    return scan;
}

void joinComment(std::string& text, bool hasText, const std::string& more)
{
    if (hasText) {
        text += '\n';
    }
    text += more;
}

} // namespace qv::json
