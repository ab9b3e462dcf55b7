#include <cstdio>
#include <string>
#include <vector>

#include "commands.h"
#include "output.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {
namespace {

/// A value as JSON: lists and records whole, with the members that the target's document carries.
std::string jsonOf(const Target& target, const Session& session)
{
    const void* pRecord = session.record(target.pCategory->category.pKey);
    std::string text;
    const char* pSeparator = "";
    if (target.rank > 0) {
        const std::size_t used = usedItems(target, pRecord);
        for (std::size_t i = 0; i < used; ++i) {
            text += pSeparator + jsonOf(PathTree::item(target, i), session);
            pSeparator = ", ";
        }
        return '[' + text + ']';
    }
    if (!target.isElement()) {
        const bool isList = target.pNode != nullptr && target.pNode->field.count == QvDatabaseCatalogCount_Members;
        for (const PathNode& node : PathTree::membersOf(target)) {
            if (!node.isOnlyInMemory || target.pCategory->document == QvDatabaseCatalogDocument_Memory) {
                text += pSeparator + (isList ? "" : jsonText(node.name) + ": ") +
                        jsonOf(PathTree::member(target, node), session);
                pSeparator = ", ";
            }
        }
        return isList ? '[' + text + ']' : '{' + text + '}';
    }
    return valueText(target, pRecord);
}

} // namespace

ExitStatus get(const Options& options)
{
    Tracing tracing(options);
    Session session(tracing);
    Input input;
    if (!session.open() || !readInput(options.words[0], options, input) || !session.load(input)) {
        return kRefused;
    }
    const PathTree tree(options.names == "simulator");
    std::vector<Target> targets;
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
            const std::string text = target.isElement() ? textOf(target, pRecord) : jsonOf(target, session);
            std::printf("%s\n", text.c_str());
        }
        return kDone;
    }
    const char* pSeparator = "{";
    for (const Target& target : targets) {
        std::printf("%s\n  %s: %s", pSeparator, jsonText(target.path).c_str(), jsonOf(target, session).c_str());
        pSeparator = ",";
    }
    std::printf("%s\n}\n", targets.empty() ? "{" : "");
    return kDone;
}

} // namespace qv::tools
