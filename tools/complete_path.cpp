#include <cstdio>
#include <string>
#include <vector>

#include "commands.h"
#include "findings.h"
#include "path_tree.h"

namespace qv::tools {
namespace {

/// A target under the name by which it was reached; its own may differ, as [0] does from [*].
struct Candidate {
    std::string path;
    Target target;
};

/// What a path begins with: categories, and the members of calibration.
std::vector<Candidate> begins(const PathTree& tree)
{
    std::vector<Candidate> found;
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        const Target category = PathTree::whole(tree.category(key.pKey));
        if (!category.path.empty()) {
            found.push_back({category.path, category});
            continue;
        }
        for (const PathNode& node : PathTree::membersOf(category)) {
            const Target member = PathTree::member(category, node);
            found.push_back({member.path, member});
        }
    }
    return found;
}

/// Members of a record, or items of a list.
std::vector<Candidate> behind(const std::string& path, const Target& target)
{
    std::vector<Candidate> found;
    if (target.rank > 0 && target.extents[0] > 0) {
        found.push_back({path + "[*]", PathTree::item(target, 0)});
        for (std::size_t i = 0; i < target.extents[0]; ++i) {
            found.push_back({path + '[' + std::to_string(i) + ']', PathTree::item(target, i)});
        }
    } else if (target.rank == 0 && !target.isElement()) {
        for (const PathNode& node : PathTree::membersOf(target)) {
            found.push_back({path + (node.name.starts_with('[') ? "" : ".") + node.name, //
                             PathTree::member(target, node)});
        }
    }
    return found;
}

/// What is to be typed next, as a folder's name ends in a slash.
const char* endOf(const Target& target, bool isSetting)
{
    if (target.isElement()) {
        return isSetting ? "=" : "";
    }
    return target.rank > 0 ? "[" : ".";
}

} // namespace

ExitStatus completePath(const Options& options)
{
    const std::string& kind = options.words[0];
    const std::string& begin = options.words[1];
    const PathTree tree(options.names == "simulator");
    if (kind == "category") {
        for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
            std::printf("%s\n", key.pKey);
        }
        return kDone;
    }
    if (kind == "finding") {
        for (const FaultKind& fault : faultKinds()) {
            std::printf("%s\n", fault.pId);
        }
        return kDone;
    }
    const std::size_t step = begin.find_last_of(".[");
    std::vector<Candidate> candidates;
    std::vector<Target> targets;
    std::string error;
    if (step == std::string::npos) {
        candidates = begins(tree);
    } else if (tree.find(begin.substr(0, step), nullptr, targets, error)) {
        candidates = behind(begin.substr(0, step), targets.front());
    }
    for (const Candidate& candidate : candidates) {
        if (candidate.path.starts_with(begin)) {
            std::printf("%s%s\n", candidate.path.c_str(), endOf(candidate.target, kind == "setting"));
        }
    }
    return kDone;
}

} // namespace qv::tools
