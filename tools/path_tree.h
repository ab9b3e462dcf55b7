#pragma once

// All fields under the names that paths give them, and what a path leads to.

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <qv_database_c/database_catalog.h>

#include "paths.h"
#include "session.h"

namespace qv::tools {

/// A field of a record, and those of its own record.
struct PathNode {
    std::string name;               ///< a member's; "[0]" for a member of a record that stands as a list of its numbers
    QvDatabaseCatalogField_t field; ///< as its document holds it, but that a record held as a list of numbers is one
    bool isOnlyInMemory = false;    ///< and in images: the document whose names are used doesn't carry it
    std::vector<PathNode> members;

    bool isRecord() const { return field.element == QvDatabaseCatalogElement_Record && !members.empty(); }
    bool isGroup() const { return field.pName == nullptr; }
};

/// A category under the names of the document that people know it from.
struct PathCategory {
    QvDatabaseCatalogCategory_t category; ///< as memory has it
    QvDatabaseCatalogDocument_t document; ///< whose names its fields have
    std::string name;                     ///< what paths begin with; empty for calibration
    std::vector<PathNode> members;
};

/// A part of a record: an element, a list or a record.
struct Target {
    std::string path;
    const PathCategory* pCategory = nullptr;
    const PathNode* pNode = nullptr; ///< null for the category itself
    std::size_t offset = 0;          ///< bytes from the begin of the record, or of the array on the heap
    std::size_t rank = 0;            ///< dimensions that the path leaves open
    std::size_t extents[3] = {1, 1, 1};
    std::size_t heapOffset = SIZE_MAX; ///< place of the pointer to the array that `offset` counts in
    std::size_t counterBase = 0;       ///< begin of the record that the field belongs to, for its counter

    /// Whether it is one number, bool or text.
    bool isElement() const { return pNode != nullptr && rank == 0 && !pNode->isRecord() && !pNode->isGroup(); }
    std::size_t elements() const { return extents[0] * extents[1] * extents[2]; }
};

/// The categories by name, made as they are asked for.
class PathTree {
public:
    /// The names of tuning documents, or of the simulator's.
    explicit PathTree(bool isSimulator = false);

    /// All keys in the order of registration.
    const std::vector<QvDatabaseCatalogCategory_t>& keys() const { return keys_; }

    /// A category by its key; there must be one.
    const PathCategory& category(const std::string& key) const;

    /// The targets of a path, one or, with `*` and ranges, several. With a session, lists count as far as they are in
    /// use and items may be named. False where it leads nowhere, with the reason and a suggestion.
    bool find(const Path& path, const Session* pSession, std::vector<Target>& targets, std::string& error) const;

    /// The same for a path as text.
    bool find(const std::string& path, const Session* pSession, std::vector<Target>& targets, std::string& error) const;

    /// The target of a whole category.
    static Target whole(const PathCategory& category);

    /// A member of a record, or an item of a list.
    static Target member(const Target& record, const PathNode& node);
    static Target item(const Target& list, std::size_t index);

    /// The members of what a target is: of a record, a group or a category.
    static const std::vector<PathNode>& membersOf(const Target& target);

private:
    bool isSimulator_;
    std::vector<QvDatabaseCatalogCategory_t> keys_;
    mutable std::map<std::string, PathCategory> made_;
};

/// How many items of a list are in use: what its counter says, cut to the array; all where nothing counts them.
std::size_t usedItems(const Target& list, const void* pRecord);

/// Where a target's bytes are; null past the end of an array on the heap.
const std::byte* bytesOf(const Target& target, const void* pRecord);
std::byte* bytesOf(const Target& target, void* pRecord);

/// The element there as a number; 0 for a text.
double numberOf(const Target& element, const void* pRecord);

/// The element as a text: true, -7, 0.25 with as many digits as tell it from any other, the characters of a text.
std::string textOf(const Target& element, const void* pRecord);

/// The same as JSON writes it: texts in quotes, and null for what is no number or address.
std::string valueText(const Target& element, const void* pRecord);

/// The same three of an element of a field, wherever its bytes are.
double numberAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes);
std::string textAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes);
std::string valueAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes);

/// Which members a record is shown with: all, or those that the document carries whose names they have.
enum class Members { All, OfDocument };

/// A value as JSON, lists and records whole.
std::string jsonOf(const Target& target, const Session& session, Members members);

} // namespace qv::tools
