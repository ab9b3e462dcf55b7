#pragma once

// Files that are laid over each other, and which of their fields each one sets.

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document.h"
#include "document_fields.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {

/// One file, loaded alone.
class MergedFile {
public:
    MergedFile(Tracing& tracing, Input&& input) : session_(tracing), input_(std::move(input)) {}

    /// Looks at the file, which a load has taken. False, told in one line, when memory runs out.
    bool open(const Session& defaults);

    const Input& input() const { return input_; }
    /// What the file alone makes of the defaults.
    const Session& session() const { return session_; }

    /// How many elements of a target the file sets.
    std::size_t count(const Target& target) const;

    /// Where the file sets a target: the first of its elements, or the list or object.
    NodeIndex nodeOf(const Target& target) const;
    /// FILE:LINE:COLUMN; for an image the offset; the file's name where nothing more is known.
    std::string place(const Target& target) const;
    /// The same as members of a JSON object.
    std::string jsonPlace(const Target& target) const;

    /// How many elements of a category it sets that another file doesn't; 0 where the places are not known.
    std::size_t missingIn(const MergedFile& other, const PathCategory& category) const;

private:
    /// A value of the document, by where it goes.
    struct Holding {
        std::size_t heapOffset;
        std::size_t offset;
        NodeIndex node;

        bool operator<(const Holding& other) const
        {
            return heapOffset != other.heapOffset ? heapOffset < other.heapOffset : offset < other.offset;
        }
    };
    using Holdings = std::vector<Holding>;

    void hold(NodeIndex node, const Bound& bound);
    bool isInImage(const Target& target) const;
    std::size_t countDifferent(const Target& target) const;
    /// Those within a target.
    std::pair<Holdings::const_iterator, Holdings::const_iterator> within(const Target& target) const;
    std::size_t imageOffset(const Target& target) const;

    Session session_;
    Input input_;
    Document document_;
    std::unique_ptr<DocumentFields> pFields_; ///< of a text
    const Session* pDefaults_ = nullptr;
    std::map<std::string, Holdings, std::less<>> holdings_; ///< by category, in the order of offsets
};

} // namespace qv::tools
