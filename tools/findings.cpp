#include "findings.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "output.h"
#include "suggest.h"

namespace qv::tools {
namespace {

constexpr std::array kKinds = {
    FaultKind{Fault::Syntax, "syntax", Severity::Error},
    FaultKind{Fault::UnknownMember, "unknown-member", Severity::Error},
    FaultKind{Fault::UnknownCategory, "unknown-category", Severity::Error},
    FaultKind{Fault::UnknownClass, "unknown-class", Severity::Error},
    FaultKind{Fault::UnknownSection, "unknown-section", Severity::Error},
    FaultKind{Fault::UnknownKey, "unknown-key", Severity::Error},
    FaultKind{Fault::DuplicateKey, "duplicate-key", Severity::Error},
    FaultKind{Fault::DuplicateClass, "duplicate-class", Severity::Error},
    FaultKind{Fault::DuplicateSection, "duplicate-section", Severity::Warning},
    FaultKind{Fault::NotRead, "not-read", Severity::Error},
    FaultKind{Fault::WrongKind, "wrong-kind", Severity::Error},
    FaultKind{Fault::Converted, "converted", Severity::Warning},
    FaultKind{Fault::NullValue, "null-value", Severity::Warning},
    FaultKind{Fault::Fraction, "fraction", Severity::Error},
    FaultKind{Fault::OutOfRange, "out-of-range", Severity::Error},
    FaultKind{Fault::Precision, "precision", Severity::Warning},
    FaultKind{Fault::TooLong, "too-long", Severity::Error},
    FaultKind{Fault::TooShort, "too-short", Severity::Warning},
    FaultKind{Fault::RaggedRows, "ragged-rows", Severity::Error},
    FaultKind{Fault::LoadFails, "load-fails", Severity::Error},
    FaultKind{Fault::Bounded, "bounded", Severity::Warning},
    FaultKind{Fault::TextCut, "text-cut", Severity::Error},
    FaultKind{Fault::Unterminated, "unterminated", Severity::Error},
    FaultKind{Fault::CountMismatch, "count-mismatch", Severity::Error},
    FaultKind{Fault::Version, "version", Severity::Warning},
    FaultKind{Fault::NotRising, "not-rising", Severity::Warning},
    FaultKind{Fault::Range, "range", Severity::Warning},
    FaultKind{Fault::UnnamedValue, "unnamed-value", Severity::Warning},
    FaultKind{Fault::ImageSize, "image-size", Severity::Error},
    FaultKind{Fault::BoolByte, "bool-byte", Severity::Error},
    FaultKind{Fault::NotFinite, "not-finite", Severity::Warning},
    FaultKind{Fault::Missing, "missing", Severity::Note},
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
    const std::string* pUnknown = nullptr;
    for (const std::string& id : options.disabled) {
        const auto found = std::find(ids.begin(), ids.end(), id);
        if (found == ids.end()) {
            pUnknown = &id;
        } else {
            isDisabled[static_cast<std::size_t>(found - ids.begin())] = true;
        }
    }
    if (pUnknown != nullptr) {
        status = refuseUsage(options, "there is no finding " + *pUnknown + suggestion(*pUnknown, ids) +
                                          "; those there are: " + all);
    }
    return pUnknown == nullptr;
}

void Findings::add(Fault fault, Span place, std::string path, std::string text)
{
    if (isWanted(fault)) {
        findings_.push_back({fault, place.begin, place.end, std::move(path), std::move(text)});
    }
}

bool Findings::isRepeated(Fault fault, NodeIndex list)
{
    if (!isWanted(fault)) {
        return true;
    }
    const auto [found, isFirst] = lists_.emplace(std::pair{fault, list}, findings_.size());
    if (!isFirst) {
        ++findings_[found->second].more;
    }
    return !isFirst;
}

std::span<const Finding> Findings::sorted()
{
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const Finding& left, const Finding& right) { return left.begin < right.begin; });
    lists_.clear();
    return findings_;
}

void Findings::print(const std::string& file, const Document* pDocument, bool asJson)
{
    for (const Finding& finding : sorted()) {
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
