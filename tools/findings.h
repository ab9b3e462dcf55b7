#pragma once

// What `check` finds, and how it is told.

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "document.h"
#include "options.h"

namespace qv::tools {

/// What can be found; docs/qvdb.md tells what each means. The order is that of the table in findings.cpp.
enum class Fault {
    Syntax,
    UnknownMember,
    UnknownCategory,
    UnknownClass,
    UnknownSection,
    UnknownKey,
    DuplicateKey,
    DuplicateClass,
    DuplicateSection,
    NotRead,
    WrongKind,
    Converted,
    NullValue,
    Fraction,
    OutOfRange,
    Precision,
    TooLong,
    TooShort,
    RaggedRows,
    LoadFails,
    Bounded,
    TextCut,
    Unterminated,
    CountMismatch,
    Version,
    NotRising,
    Range,
    UnnamedValue,
    ImageSize,
    BoolByte,
    NotFinite,
    Missing
};

/// An error is what a load loses, changes or refuses; a warning is loaded as it stands and looks wrong all the same; a
/// note was asked for.
enum class Severity { Error, Warning, Note };

struct FaultKind {
    Fault fault;
    const char* pId;
    Severity severity;
};

std::span<const FaultKind> faultKinds();
const FaultKind& kindOf(Fault fault);

/// The set of findings that --disable leaves out. False for an id that there is none of: a usage error, which has been
/// told.
bool readDisabled(const Options& options, std::vector<bool>& isDisabled, ExitStatus& status);

struct Finding {
    Fault fault;
    std::size_t begin; ///< in bytes from the file's first one
    std::size_t end;
    std::string path; ///< empty where a syntax error hides it
    std::string text;
    std::size_t more = 0; ///< further items of the same list with the same fault
};

/// The findings of one file.
class Findings {
public:
    explicit Findings(std::vector<bool> isDisabled) : isDisabled_(std::move(isDisabled)) {}

    bool isWanted(Fault fault) const { return !isDisabled_[static_cast<std::size_t>(fault)]; }

    void add(Fault fault, Span place, std::string path, std::string text);

    /// Counts one more item of a list that has been found to have that fault: true where it needs no finding of its
    /// own.
    bool isRepeated(Fault fault, NodeIndex list);

    /// All of them, in the order of their places.
    std::span<const Finding> sorted();

    /// Prints all of them in that order: as lines to standard error, or as objects to standard output. Of an image
    /// pDocument is null.
    void print(const std::string& file, const Document* pDocument, bool asJson);

    std::size_t count(Severity severity) const;

private:
    std::vector<bool> isDisabled_;
    std::vector<Finding> findings_;
    std::map<std::pair<Fault, NodeIndex>, std::size_t> lists_; ///< to the finding that counts them
};

} // namespace qv::tools
