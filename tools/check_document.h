#pragma once

// What can be found in a text document.

#include <map>
#include <set>
#include <string>
#include <vector>

#include "check_values.h"
#include "document_fields.h"
#include "findings.h"
#include "path_tree.h"

namespace qv::tools {

class DocumentCheck {
public:
    DocumentCheck(const DocumentFields& fields, const PathTree& tree, Findings& findings)
        : document_(fields.document()), fields_(fields), tree_(tree), findings_(findings)
    {
    }

    void run();

    /// Members that a document lacks, and categories.
    void findMissing();

    /// The texts of the document's version, with the field each goes into.
    std::vector<NodeIndex> versionTexts() const;

    /// Adds a finding about a node, with its path.
    void add(Fault fault, NodeIndex node, const std::string& text) { add(fault, node, document_[node].value, text); }

private:
    void add(Fault fault, NodeIndex node, Span place, const std::string& text);
    void checkSyntax();
    void checkNode(NodeIndex node);
    void checkUnknown(NodeIndex node);
    void checkUnread(NodeIndex node);
    void checkKept(NodeIndex node);
    void checkWrongKind(NodeIndex node);
    void checkTaken(NodeIndex node);
    void checkElement(NodeIndex node);
    void checkLength(NodeIndex list);
    void checkRows(NodeIndex list);
    void checkEnds(NodeIndex list, std::size_t count, std::size_t wanted);
    void checkRising(NodeIndex list);
    void checkCounts(NodeIndex record);
    void checkAgain(NodeIndex record);

    const std::vector<FieldNode>& membersOf(NodeIndex record) const;
    const std::vector<std::string>& keysBelow(NodeIndex node);
    NodeIndex childOf(NodeIndex record, const FieldNode& field) const;
    NodeIndex outerList(NodeIndex node) const;
    bool isEndedBehind(NodeIndex text) const;
    bool isRagged(NodeIndex list) const;
    std::string lineOf(NodeIndex node) const;

    const Document& document_;
    const DocumentFields& fields_;
    const PathTree& tree_;
    Findings& findings_;
    std::vector<ValueFault> faults_;
    std::set<std::size_t> suspects_; ///< brackets that faults of the syntax point at
    NodeIndex keysNode_ = kNoNode;   ///< the object that keysBelow_ is of
    std::vector<std::string> keysBelow_;
    std::map<std::uint16_t, NodeIndex> objects_; ///< class objects and sections so far
};

} // namespace qv::tools
