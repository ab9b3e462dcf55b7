#pragma once

// Goes through a document as a load does, and notes at each value which field takes it.

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document_fields.h"

namespace qv::tools {

class FieldBinder {
public:
    explicit FieldBinder(DocumentFields& fields) : fields_(fields), document_(fields.document()) {}

    void bind();

private:
    /// A place in documents: what may stand there, and what may stand below it.
    struct Stage {
        std::string key;                    ///< the member that it is; empty for items and the document
        std::vector<std::uint16_t> records; ///< categories whose members stand here, in the order of loading
        std::vector<std::uint16_t> classes; ///< categories that an object here may name by its class
        std::vector<Stage> members;
        std::vector<Stage> items; ///< one where this is a list; else none

        Stage& member(const std::string& name);
    };

    /// Members of a record, and where it lies.
    struct Source {
        const std::vector<FieldNode>* pFields;
        std::uint16_t category;
        std::uint32_t offset;
        std::uint32_t heapOffset;
    };

    DocumentKind kindOf() const;
    void addCategories(QvDatabaseCatalogDocument_t document, Stage& root);
    void bindIni();
    void bindSection(NodeIndex section, std::uint16_t category, std::map<const FieldNode*, NodeIndex>& seen);
    void bindStage(NodeIndex node, const Stage& stage);
    void bindItem(NodeIndex node, const Stage& stage);
    void bindMembers(NodeIndex node, std::span<const Source> sources, const Stage* pStage);
    std::vector<NodeIndex> sortMembers(NodeIndex object, std::span<const std::string_view> keys, bool areDistinct);
    void bindSource(const Source& source, std::span<const NodeIndex> children);
    void cutToBound(NodeIndex list, const QvDatabaseCatalogField_t& field, const std::vector<FieldNode>& fields,
                    std::span<const NodeIndex> children);
    void bindField(NodeIndex node, const FieldNode& field, const Source& source);
    void bindRecord(NodeIndex node, const Source& source);
    void bindRecords(NodeIndex node, const FieldNode& field, const Source& source);
    void bindNumbers(NodeIndex node, const FieldNode& field, const Source& source);
    void bindList(NodeIndex node, const FieldNode& field, const Source& source, std::size_t dimension, std::size_t base,
                  std::size_t limit);
    void bindItems(NodeIndex node, const FieldNode& field, const Source& source, std::size_t base, std::size_t limit);
    bool hasOddRows(NodeIndex node, const QvDatabaseCatalogField_t& field) const;
    Fate fateOf(NodeIndex node, const QvDatabaseCatalogField_t& field, bool isItem) const;
    void note(NodeIndex node, const FieldNode* pField, const Source& source, std::size_t offset, std::size_t open,
              Fate fate);
    Source sourceOf(std::uint16_t category);
    Bound& bound(NodeIndex node) { return fields_.bounds_[node]; }

    DocumentFields& fields_;
    const Document& document_;
    std::uint32_t order_ = 0;
};

} // namespace qv::tools
