#include "findings.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "output.h"
#include "suggest.h"

namespace qv::tools {
namespace {

constexpr std::array kKinds = {
    FaultKind{Fault::Syntax, "syntax", Severity::Error,
              "the text is no JSON, or no `.ini`: the load refuses all of it"},
    FaultKind{Fault::UnknownMember, "unknown-member", Severity::Error, "a member that nobody reads"},
    FaultKind{Fault::UnknownCategory, "unknown-category", Severity::Error, "a category that there is none of"},
    FaultKind{Fault::UnknownClass, "unknown-class", Severity::Error,
              "an object of the simulator's document that names no class, or one that there is none of"},
    FaultKind{Fault::UnknownSection, "unknown-section", Severity::Error, "a section that there is none of"},
    FaultKind{Fault::UnknownKey, "unknown-key", Severity::Error, "a key that its section doesn't have"},
    FaultKind{Fault::DuplicateKey, "duplicate-key", Severity::Error,
              "a key that stands there again, and only then counts"},
    FaultKind{Fault::DuplicateClass, "duplicate-class", Severity::Error,
              "a class that a second object names, whose members win"},
    FaultKind{Fault::DuplicateSection, "duplicate-section", Severity::Warning, "a section that stands there again"},
    FaultKind{Fault::NotRead, "not-read", Severity::Error,
              "a member that is known and passed over for what stands or lacks beside it"},
    FaultKind{Fault::WrongKind, "wrong-kind", Severity::Error, "a value of a kind that the field doesn't take"},
    FaultKind{Fault::Converted, "converted", Severity::Warning,
              "a number for a boolean or the other way round, without a loss"},
    FaultKind{Fault::NullValue, "null-value", Severity::Warning,
              "null, which leaves its field as it was, or is 0 in a list; a save writes it for what isn't finite"},
    FaultKind{Fault::Fraction, "fraction", Severity::Error, "a fraction for an integer, which is cut off"},
    FaultKind{Fault::OutOfRange, "out-of-range", Severity::Error,
              "a number whose size or sign the field's type can't hold"},
    FaultKind{Fault::Precision, "precision", Severity::Warning,
              "an integer with more digits than a float keeps, or a number too small for it"},
    FaultKind{Fault::TooLong, "too-long", Severity::Error, "a list longer than its field"},
    FaultKind{Fault::TooShort, "too-short", Severity::Warning, "a list shorter than its field"},
    FaultKind{Fault::RaggedRows, "ragged-rows", Severity::Error, "rows of different lengths"},
    FaultKind{Fault::LoadFails, "load-fails", Severity::Error,
              "a list of the calibration that is too long, which makes the load fail"},
    FaultKind{Fault::TextCut, "text-cut", Severity::Error, "a text longer than its field, or with a zero character"},
    FaultKind{Fault::Unterminated, "unterminated", Severity::Error, "a text that leaves no room for its terminator"},
    FaultKind{Fault::CountMismatch, "count-mismatch", Severity::Error, "a count that isn't that of its list"},
    FaultKind{Fault::Version, "version", Severity::Warning, "a version other than that of this library"},
    FaultKind{Fault::NotRising, "not-rising", Severity::Warning, "gains, or positions of a curve, that don't rise"},
    FaultKind{Fault::Range, "range", Severity::Warning, "a number out of the range that is known of the field"},
    FaultKind{Fault::UnnamedValue, "unnamed-value", Severity::Warning,
              "a number that is none of the field's named values"},
    FaultKind{Fault::ImageSize, "image-size", Severity::Error, "an image that is longer or shorter than it must be"},
    FaultKind{Fault::BoolByte, "bool-byte", Severity::Error, "a boolean of an image that is neither 0 nor 1"},
    FaultKind{Fault::NotFinite, "not-finite", Severity::Warning, "a float of an image that is no finite number"},
    FaultKind{Fault::Missing, "missing", Severity::Note, "with --missing: a member that the document lacks"},
};

const char* severityName(Severity severity)
{
    constexpr std::array kNames = {"error", "warning", "note"};
    return kNames[static_cast<std::size_t>(severity)];
}

const char* colourOf(Severity severity)
{
    constexpr std::array kColours = {"\033[1;31m", "\033[1;35m", "\033[1;36m"};
    return kColours[static_cast<std::size_t>(severity)];
}

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        if (static_cast<std::size_t>(kKinds[i].fault) != i) {
            return false;
        }
    }
    return true;
}
static_assert(isInOrder());

/// A part of the line around a place, no wider than a terminal, and a caret under the place.
std::string excerpt(const Document& document, const Finding& finding, bool isColoured)
{
    constexpr std::size_t kWidth = 100;
    constexpr std::size_t kBefore = 40;
    const std::string_view line = document.line(document.place(finding.begin).line);
    const std::size_t lineBegin = static_cast<std::size_t>(line.data() - document.text().data());
    const auto isInside = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    const std::size_t at = std::min(finding.begin - lineBegin, line.size());
    std::size_t begin = line.size() > kWidth && at > kBefore ? at - kBefore : 0;
    while (begin < line.size() && isInside(line[begin])) {
        ++begin;
    }
    std::size_t end = std::min(begin + kWidth, line.size());
    while (end < line.size() && isInside(line[end])) {
        ++end;
    }
    std::string shown = "    ";
    std::string carets = shown;
    for (std::size_t i = begin; i < end; ++i) {
        shown += static_cast<unsigned char>(line[i]) < ' ' ? ' ' : line[i];
        if (!isInside(line[i]) && i <= at) {
            carets += i == at ? '^' : ' ';
        } else if (!isInside(line[i]) && i + lineBegin < finding.end) {
            carets += '~';
        }
    }
    if (at >= end) {
        carets += '^';
    }
    return shown + '\n' + (isColoured ? "\033[1;32m" : "") + carets + (isColoured ? "\033[0m\n" : "\n");
}

std::string wholeText(const Finding& finding)
{
    return finding.text + (finding.more == 0 ? "" : ", and " + std::to_string(finding.more) + " more of this list");
}

void printJson(const std::string& file, const Document* pDocument, const Finding& finding)
{
    const FaultKind& kind = kindOf(finding.fault);
    std::string line = "{\"file\": " + jsonText(file);
    if (pDocument != nullptr) {
        const TextPlace place = pDocument->place(finding.begin);
        line += ", \"line\": " + std::to_string(place.line) + ", \"column\": " + std::to_string(place.column);
    }
    line += ", \"offset\": " + std::to_string(finding.begin) +
            ", \"length\": " + std::to_string(finding.end - finding.begin) + ", \"severity\": \"" +
            severityName(kind.severity) + "\", \"id\": \"" + kind.pId + "\", \"path\": " + jsonText(finding.path) +
            ", \"text\": " + jsonText(finding.text) + ", \"more\": " + std::to_string(finding.more) + "}\n";
    std::fputs(line.c_str(), stdout);
}

void printLine(const std::string& file, const Document* pDocument, const Finding& finding)
{
    const FaultKind& kind = kindOf(finding.fault);
    const bool hasColours = isColoured(stderr);
    const char* pBold = hasColours ? "\033[1m" : "";
    const char* pPlain = hasColours ? "\033[0m" : "";
    std::string place;
    if (pDocument != nullptr) {
        const TextPlace at = pDocument->place(finding.begin);
        place = std::to_string(at.line) + ':' + std::to_string(at.column);
    } else {
        char offset[32];
        std::snprintf(offset, sizeof offset, "0x%zx", finding.begin);
        place = offset;
    }
    std::string line = pBold + file + ':' + place + ": " + (hasColours ? colourOf(kind.severity) : "") +
                       severityName(kind.severity) + ": " + pPlain + (finding.path.empty() ? "" : finding.path + ": ") +
                       wholeText(finding) + " [" + kind.pId + "]\n";
    if (pDocument != nullptr && isTerminal(stderr)) {
        line += excerpt(*pDocument, finding, hasColours);
    }
    std::fputs(line.c_str(), stderr);
}

} // namespace

std::span<const FaultKind> faultKinds()
{
    return kKinds;
}

const FaultKind& kindOf(Fault fault)
{
    return kKinds[static_cast<std::size_t>(fault)];
}

bool readDisabled(const Options& options, std::vector<bool>& isDisabled, ExitStatus& status)
{
    isDisabled.assign(kKinds.size(), false);
    std::vector<std::string> ids;
    std::string all;
    for (const FaultKind& kind : kKinds) {
        ids.emplace_back(kind.pId);
        all += (all.empty() ? "" : ", ") + ids.back();
    }
    for (const std::string& id : options.disabled) {
        const auto found = std::find(ids.begin(), ids.end(), id);
        if (found == ids.end()) {
            status =
                refuseUsage(options, "there is no finding " + id + suggestion(id, ids) + "; those there are: " + all);
            return false;
        }
        isDisabled[static_cast<std::size_t>(found - ids.begin())] = true;
    }
    return true;
}

void Findings::add(Fault fault, Span place, std::string path, std::string text)
{
    if (isWanted(fault)) {
        findings_.push_back({fault, place.begin, place.end, std::move(path), std::move(text)});
    }
}

bool Findings::isRepeated(Fault fault, NodeIndex list)
{
    const auto [found, isFirst] = lists_.emplace(std::pair{fault, list}, findings_.size());
    if (isFirst || found->second >= findings_.size()) {
        return false;
    }
    ++findings_[found->second].more;
    return true;
}

void Findings::print(const std::string& file, const Document* pDocument, bool asJson)
{
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const Finding& left, const Finding& right) { return left.begin < right.begin; });
    lists_.clear();
    for (const Finding& finding : findings_) {
        asJson ? printJson(file, pDocument, finding) : printLine(file, pDocument, finding);
    }
}

std::size_t Findings::count(Severity severity) const
{
    return static_cast<std::size_t>(
        std::count_if(findings_.begin(), findings_.end(),
                      [severity](const Finding& finding) { return kindOf(finding.fault).severity == severity; }));
}

} // namespace qv::tools
