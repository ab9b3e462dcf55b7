#include <cstdio>
#include <string>
#include <vector>

#include "carriage.h"
#include "commands.h"
#include "leaves.h"
#include "output.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {
namespace {

/// Adds each row of a list, or what is no list.
void addRows(const Target& field, std::vector<Target>& targets)
{
    if (field.rank <= 1) {
        targets.push_back(field);
        return;
    }
    for (std::size_t i = 0; i < field.extents[0]; ++i) {
        addRows(PathTree::item(field, i), targets);
    }
}

/// All settings that a file of the set can carry.
std::vector<Target> allSettings(const PathTree& tree, const Session& session)
{
    std::vector<Target> targets;
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        if (isInSets(key)) {
            const Carriage carriage(key);
            visitLeaves(PathTree::whole(tree.category(key.pKey)), session.record(key.pKey), false,
                        [&](const Target& leaf, bool) {
                            if (carriage.isSetting(leaf)) {
                                addRows(leaf, targets);
                            }
                        });
        }
    }
    return targets;
}

} // namespace

ExitStatus get(const Options& options)
{
    Tracing tracing(options);
    Session session(tracing);
    Input input;
    if (!session.openWith(options.words[0], options, input)) {
        return kRefused;
    }
    const PathTree tree(options.names == "simulator");
    const bool isAll = options.words.size() == 1;
    std::vector<Target> targets;
    if (isAll) {
        targets = allSettings(tree, session);
    }
    for (std::size_t i = 1; i < options.words.size(); ++i) {
        std::string error;
        if (!tree.find(options.words[i], &session, targets, error)) {
            complain(error);
            return kRefused;
        }
    }
    if (!options.asJson) {
        for (const Target& target : targets) {
            const void* pRecord = session.record(target.pCategory->category.pKey);
            if (isAll) {
                std::printf("%s = %s\n", target.path.c_str(), jsonOf(target, session, Members::OfDocument).c_str());
                continue;
            }
            const std::string text =
                target.isElement() ? textOf(target, pRecord) : jsonOf(target, session, Members::OfDocument);
            std::printf("%s\n", text.c_str());
        }
        return kDone;
    }
    const char* pSeparator = "{";
    for (const Target& target : targets) {
        std::printf("%s\n  %s: %s", pSeparator, jsonText(target.path).c_str(),
                    jsonOf(target, session, Members::OfDocument).c_str());
        pSeparator = ",";
    }
    std::printf("%s\n}\n", targets.empty() ? "{" : "");
    return kDone;
}

} // namespace qv::tools
