#pragma once

// PATH=VALUE, and what it makes of the records in memory.

#include <string>
#include <string_view>
#include <vector>

#include "document.h"
#include "path_tree.h"
#include "routes.h"
#include "session.h"

namespace qv::tools {

/// A part of a record that a setting has changed: an element, or a list of records that got another length.
struct Change {
    Target target;
    std::string before;      ///< as JSON writes it
    std::size_t setting = 0; ///< which of the settings it comes from
};

/// Stores values in records, as far as their fields hold them.
class Settings {
public:
    Settings(const PathTree& tree, const FieldTrees& fields, Session& session)
        : tree_(tree), fields_(fields), session_(session)
    {
    }

    /// Stores a setting such as "AE_3.setPoint=45". Elements that hold the value already count as changed, too, since a
    /// document may not hold them. False where it can't be done, with the reason.
    bool apply(const std::string& setting, std::string& error);

    /// What was set, in the order of the settings.
    const std::vector<Change>& changes() const { return changes_; }

private:
    bool store(const Target& target, NodeIndex value);
    bool storeElement(const Target& element, NodeIndex value);
    bool storeList(const Target& list, NodeIndex value);
    bool storeRecord(const Target& record, NodeIndex value);
    bool storeItems(const Target& record, const std::vector<PathNode>& members, NodeIndex value);
    bool resize(const Target& list, std::size_t number);
    bool fail(const Target& target, const std::string& reason);

    const PathTree& tree_;
    const FieldTrees& fields_;
    Session& session_;
    std::size_t number_ = 0; ///< of settings
    std::string text_;       ///< the value in hand
    Document document_;      ///< and what it is as JSON
    std::vector<Change> changes_;
    std::string error_;
};

} // namespace qv::tools
