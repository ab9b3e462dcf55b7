#include "paths.h"

#include <charconv>

namespace qv::tools {
namespace {

bool readNumber(std::string_view text, std::size_t& number)
{
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return !text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size();
}

/// What stands between brackets: an index, a range, `*`, or the name of an item.
bool readBrackets(std::string_view text, PathStep& step)
{
    step.isBracketed = true;
    const std::size_t colon = text.find(':');
    if (text == "*") {
        step.kind = PathStep::Any;
    } else if (readNumber(text, step.first)) {
        step.kind = PathStep::Index;
    } else if (colon != std::string_view::npos && readNumber(text.substr(0, colon), step.first) &&
               readNumber(text.substr(colon + 1), step.last)) {
        step.kind = PathStep::Range;
        return step.first < step.last;
    } else {
        step.name = text;
    }
    return !text.empty();
}

/// A name between dots; one of digits alone is an index.
PathStep stepOf(std::string_view text)
{
    PathStep step;
    if (text == "*") {
        step.kind = PathStep::Any;
    } else if (readNumber(text, step.first)) {
        step.kind = PathStep::Index;
    } else {
        step.name = text;
    }
    return step;
}

/// `~1` stands for a slash and `~0` for a tilde.
std::string unescaped(std::string_view text)
{
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '~' && i + 1 < text.size() && (text[i + 1] == '0' || text[i + 1] == '1')) {
            name += text[++i] == '0' ? '~' : '/';
        } else {
            name += text[i];
        }
    }
    return name;
}

bool readPointer(std::string_view text, std::vector<PathStep>& steps, std::string& error)
{
    std::size_t at = 1;
    while (at <= text.size()) {
        const std::size_t end = std::min(text.find('/', at), text.size());
        if (end == at) {
            error = "a name is missing at character " + std::to_string(at + 1);
            return false;
        }
        steps.push_back(stepOf(unescaped(text.substr(at, end - at))));
        steps.back().begin = at;
        at = end + 1;
    }
    return true;
}

bool readDotted(std::string_view text, std::vector<PathStep>& steps, std::string& error)
{
    std::size_t at = 0;
    bool wantsName = true;
    while (at < text.size() || wantsName) {
        if (at < text.size() && text[at] == '[' && !wantsName) {
            const std::size_t end = text.find(']', at);
            PathStep step;
            step.begin = at;
            if (end == std::string_view::npos || !readBrackets(text.substr(at + 1, end - at - 1), step)) {
                error = "an index, a range such as [2:5], [*] or a name is wanted in the brackets at character " +
                        std::to_string(at + 1);
                return false;
            }
            steps.push_back(step);
            at = end + 1;
        } else if (wantsName) {
            const std::size_t end = std::min(text.find_first_of(".[]", at), text.size());
            if (end == at) {
                error = "a name is missing at character " + std::to_string(at + 1);
                return false;
            }
            steps.push_back(stepOf(text.substr(at, end - at)));
            steps.back().begin = at;
            at = end;
        } else if (text[at] != '.') {
            error = "a dot or a bracket is wanted at character " + std::to_string(at + 1);
            return false;
        }
        wantsName = at < text.size() && text[at] == '.';
        at += wantsName ? 1 : 0;
    }
    return true;
}

} // namespace

bool readPath(std::string_view text, Path& path, std::string& error)
{
    path.text = text;
    path.steps.clear();
    const bool isPointer = text.starts_with('/');
    if (!(isPointer ? readPointer(text, path.steps, error) : readDotted(text, path.steps, error))) {
        return false;
    }
    if (path.steps.size() > 1 && path.steps[0].kind == PathStep::Name && path.steps[0].name == "tuning") {
        path.steps.erase(path.steps.begin());
    }
    return true;
}

} // namespace qv::tools
