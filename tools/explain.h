#pragma once

// Which of several files has its way, field by field.

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "merged_file.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {

/// Layers in the order of loading, and what comes of them.
class Explanation {
public:
    Explanation(const PathTree& tree, Tracing& tracing)
        : tree_(tree), tracing_(tracing), defaults_(tracing), merged_(tracing)
    {
    }

    bool open() { return defaults_.open() && merged_.open(); }
    /// Lays a file over those before. A failure is told in one line.
    bool add(Input&& input);
    /// Prints every field that more than one file sets, and what is replaced as a whole.
    void print(bool asJson);

    std::size_t fields() const { return fields_; }
    std::size_t differing() const { return differing_; }

private:
    /// What a file takes away from those before it.
    struct Replaced {
        std::string path;
        std::string place;
        std::string jsonPlace;
        std::string text;
        std::string json;
    };
    using Lengths = std::map<std::string, std::size_t>;

    void noteLengths(const Target& target, Lengths& lengths) const;
    void noteReplaced(const Target& target, const Lengths& before);
    void noteCalibration(const PathCategory& category);
    std::vector<std::size_t> settersOf(const Target& target) const;
    void walk(const Target& target);
    void report(const Target& target, const std::vector<std::size_t>& setters);
    void reportJson(const Target& target, const std::vector<std::size_t>& setters, bool isSame) const;
    std::size_t differentFrom(const Target& target, std::size_t left, std::size_t right) const;
    bool isCleared(const Target& target, std::size_t layer) const;
    std::string shownValue(const Target& target, std::size_t layer) const;
    std::size_t mostItems(const Target& list) const;

    const PathTree& tree_;
    Tracing& tracing_;
    Session defaults_;
    Session merged_; ///< all files over each other
    std::vector<std::unique_ptr<MergedFile>> layers_;
    std::vector<Replaced> replaced_;
    bool asJson_ = false;
    std::size_t fields_ = 0;
    std::size_t differing_ = 0;
};

} // namespace qv::tools
