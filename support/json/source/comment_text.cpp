#include "comment_text.h"

#include <algorithm>
#include <string_view>

namespace qv::json {

namespace {

std::string_view trimmed(std::string_view line)
{
    constexpr std::string_view kBlanks = " \t\r\n\v\f";
    const size_t first = line.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

// Blank lines at both ends go, line by line the blanks around the text.
std::string trimmedLines(std::string_view inside)
{
    inside = trimmed(inside);
    std::string text;
    for (bool hasText = false; !inside.empty(); hasText = true) {
        const std::string_view line = inside.substr(0, inside.find('\n'));
        joinComment(text, hasText, std::string(trimmed(line)));
        inside.remove_prefix(std::min(line.size() + 1, inside.size()));
    }
    return text;
}

} // namespace

CommentScan scanComment(const char* p, const char* pEnd)
{
    CommentScan scan;
    const std::string_view rest(p, static_cast<size_t>(pEnd - p));
    if (rest.starts_with("//")) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        scan.text = std::string(trimmed(line.substr(2)));
        scan.pNext = p + line.size();
    } else if (rest.starts_with("/*")) {
        const size_t end = rest.find("*/", 2);
        if (end == std::string_view::npos) {
            scan.pError = pEnd;
            scan.pExpected = "'*/' at the end of a comment";
        } else {
            scan.text = trimmedLines(rest.substr(2, end - 2));
            scan.pNext = p + end + 2;
        }
    } else {
        scan.pError = p + 1;
        scan.pExpected = "'/' or '*' of a comment";
    }
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
