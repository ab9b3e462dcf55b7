#include "losses.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_text.h>

#include "catalog_tree.h"
#include "path_tree.h"

namespace qv::tools {
namespace {

using Document = QvDatabaseCatalogDocument_t;

/// Which bytes of a record something holds for.
using Mask = std::vector<char>;

std::vector<Document> documentsOf(Form form, bool isSimulator)
{
    switch (form) {
    case Form::Json:
        return {QvDatabaseCatalogDocument_Version, QvDatabaseCatalogDocument_Calibration,
                isSimulator ? QvDatabaseCatalogDocument_Simulator : QvDatabaseCatalogDocument_Tuning};
    case Form::Ini:
        return {QvDatabaseCatalogDocument_Initialization};
    case Form::Image:
        return {QvDatabaseCatalogDocument_Image};
    case Form::CalibrationText:
        break;
    }
    return {QvDatabaseCatalogDocument_Tuning}; // what it sets is named there
}

std::vector<Document> documentsRead(std::span<const Form> forms)
{
    std::vector<Document> documents;
    for (const Form form : forms) {
        for (const bool isSimulator : {false, true}) {
            for (const Document document : documentsOf(form, isSimulator)) {
                documents.push_back(document);
            }
        }
    }
    return documents;
}

std::size_t elementsOf(const QvDatabaseCatalogField_t& field)
{
    return field.extents[0] * field.extents[1] * field.extents[2];
}

void set(Mask& mask, std::size_t offset, std::size_t length, bool isSet = true)
{
    const std::size_t begin = std::min(offset, mask.size());
    const std::size_t end = std::min(offset + length, mask.size());
    std::fill(mask.begin() + static_cast<std::ptrdiff_t>(begin), mask.begin() + static_cast<std::ptrdiff_t>(end),
              isSet ? 1 : 0);
}

/// Lays a mask over a part of another.
void add(Mask& mask, const Mask& part, std::size_t offset)
{
    const std::size_t length = std::min(part.size(), mask.size() - std::min(offset, mask.size()));
    for (std::size_t i = 0; i < length; ++i) {
        mask[offset + i] = static_cast<char>(mask[offset + i] | part[i]);
    }
}

/// Marks what fields hold of a record that begins at `base`; an array on the heap stands for its pointer.
void mark(Mask& mask, const std::vector<FieldNode>& nodes, std::size_t base, bool isWriting)
{
    for (const FieldNode& node : nodes) {
        const QvDatabaseCatalogField_t& field = node.field;
        const bool isWay = field.direction == QvDatabaseCatalogDirection_Both ||
                           (field.direction == QvDatabaseCatalogDirection_WriteOnly) == isWriting;
        if (field.isTwin || !isWay) {
            continue;
        }
        if (field.pName == nullptr) {
            mark(mask, node.fields, base, isWriting);
            continue;
        }
        set(mask, base + field.counterOffset, field.counterWidth);
        if (field.count == QvDatabaseCatalogCount_Heap) {
            set(mask, base + field.offset, sizeof(void*));
        } else if (node.fields.empty()) {
            set(mask, base + field.offset, field.width * elementsOf(field));
        } else {
            Mask item(field.width); // all items alike
            mark(item, node.fields, 0, isWriting);
            for (std::size_t i = 0; i < elementsOf(field); ++i) {
                add(mask, item, base + field.offset + i * field.width);
            }
        }
    }
}

/// What some documents hold of a record, all together; nothing where none carries it.
Mask heldBy(std::span<const Document> documents, const QvDatabaseCatalogCategory_t& inMemory, bool isWriting)
{
    Mask mask;
    for (const Document document : documents) {
        if (!isCarriedBy(inMemory, document)) {
            continue;
        }
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
            if (std::string_view(category.pKey) == inMemory.pKey && (category.isWritten || !isWriting)) {
                mask.resize(inMemory.recordSize);
                mark(mask, fieldsOf(document, category), 0, isWriting);
            }
        }
    }
    return mask;
}

/// Addresses say nothing; an array on the heap differs where its items do.
void compareHeap(Mask& differs, const std::vector<PathNode>& nodes, std::size_t base, const void* pRecord,
                 const void* pFresh)
{
    for (const PathNode& node : nodes) {
        if (node.isGroup()) {
            compareHeap(differs, node.members, base, pRecord, pFresh);
        } else if (node.field.count == QvDatabaseCatalogCount_Heap) {
            std::size_t number = 0;
            std::memcpy(&number, static_cast<const char*>(pRecord) + base + node.field.counterOffset,
                        node.field.counterWidth);
            const bool isSame = std::memcmp(static_cast<const char*>(pRecord) + base + node.field.counterOffset,
                                            static_cast<const char*>(pFresh) + base + node.field.counterOffset,
                                            node.field.counterWidth) == 0;
            const char* pItems[2];
            std::memcpy(&pItems[0], static_cast<const char*>(pRecord) + base + node.field.offset, sizeof pItems[0]);
            std::memcpy(&pItems[1], static_cast<const char*>(pFresh) + base + node.field.offset, sizeof pItems[1]);
            const bool isSameItems = isSame && (number == 0 || pItems[0] == nullptr || pItems[1] == nullptr ||
                                                std::memcmp(pItems[0], pItems[1], number * node.field.width) == 0);
            set(differs, base + node.field.offset, sizeof(void*), !isSameItems);
        } else if (node.field.element == QvDatabaseCatalogElement_Pointer) {
            set(differs, base + node.field.offset, node.field.width * elementsOf(node.field), false);
        } else if (node.isRecord() && elementsOf(node.field) == 1) {
            compareHeap(differs, node.members, base + node.field.offset, pRecord, pFresh);
        }
    }
}

/// Whether a mask has a byte in one of these stretches.
bool isTouched(const Mask& mask, const std::vector<std::size_t>& begins, std::size_t width)
{
    for (const std::size_t begin : begins) {
        for (std::size_t i = begin; i < begin + width && i < mask.size(); ++i) {
            if (mask[i] != 0) {
                return true;
            }
        }
    }
    return false;
}

/// Fields with a lost byte in them, by their paths without the category's name; those of all items as [*]. A record
/// that is not kept in any part stands for its fields.
void addNames(std::vector<std::string>& names, Mask& lost, const Mask& kept, const std::vector<PathNode>& nodes,
              const std::vector<std::size_t>& bases, const std::string& path)
{
    for (const PathNode& node : nodes) {
        const std::string name = path.empty() || node.name.starts_with('[') ? path + node.name : path + '.' + node.name;
        if (node.isGroup()) {
            addNames(names, lost, kept, node.members, bases, name);
            continue;
        }
        const bool isHeap = node.field.count == QvDatabaseCatalogCount_Heap;
        const std::size_t width = isHeap ? sizeof(void*) : node.field.width;
        std::vector<std::size_t> begins;
        for (const std::size_t base : bases) {
            for (std::size_t i = 0; i < (isHeap ? 1 : elementsOf(node.field)); ++i) {
                begins.push_back(base + node.field.offset + i * width);
            }
        }
        if (!isTouched(lost, begins, width)) {
            continue;
        }
        if (node.isRecord() && !isHeap && isTouched(kept, begins, width)) {
            addNames(names, lost, kept, node.members, begins, name + (node.field.rank > 0 ? "[*]" : ""));
        } else {
            names.push_back(name);
            for (const std::size_t begin : begins) {
                set(lost, begin, width, false); // another key of the same bytes
            }
        }
    }
}

std::string nameOf(const PathCategory& category, Mask lost, const Mask& kept)
{
    std::vector<std::string> names;
    addNames(names, lost, kept, category.members, {0}, "");
    constexpr std::size_t kMost = 6;
    std::string line;
    for (std::size_t i = 0; i < names.size() && i < kMost; ++i) {
        line += (i == 0 ? "" : ", ") + (category.name.empty() ? "" : category.name + '.') + names[i];
    }
    return names.size() <= kMost ? line : line + " and " + std::to_string(names.size() - kMost) + " more";
}

/// A record differs where its bytes do, but for addresses.
Mask difference(const PathCategory& category, const void* pRecord, const void* pOther)
{
    const std::size_t size = category.category.recordSize;
    Mask differs(size);
    for (std::size_t i = 0; i < size; ++i) {
        differs[i] = static_cast<const char*>(pRecord)[i] != static_cast<const char*>(pOther)[i] ? 1 : 0;
    }
    compareHeap(differs, category.members, 0, pRecord, pOther);
    return differs;
}

bool any(const Mask& mask)
{
    return std::find(mask.begin(), mask.end(), 1) != mask.end();
}

/// Leaves of a mask what another has as well, or has not; an empty one has nothing.
void keep(Mask& mask, const Mask& other, bool isThere)
{
    if (other.empty()) {
        if (isThere) {
            std::fill(mask.begin(), mask.end(), 0);
        }
        return;
    }
    const char flip = isThere ? 0 : 1;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        mask[i] = static_cast<char>(mask[i] & (other[i] ^ flip));
    }
}

/// Makes of a second database what a load of the text makes that a save of this one writes.
bool reload(const Session& session, Session& other, Form form)
{
    Input input;
    input.name = "what was saved, loaded again";
    input.form = form;
    const int status = form == Form::Json ? QvDatabaseText_serialize(session.handle(), input.bytes.get())
                                          : QvDatabaseInitialization_serialize(session.handle(), input.bytes.get());
    return status == 0 && other.open() && other.load(input);
}

} // namespace

std::vector<std::string> lossesOf(const Session& session, Tracing& tracing, std::span<const Form> read, Form written,
                                  bool isSimulator)
{
    Session fresh(tracing);
    Session reloaded(tracing);
    if (!fresh.open()) {
        return {};
    }
    const PathTree tree;
    const std::vector<Document> from = documentsRead(read);
    const std::vector<Document> to = documentsOf(written, isSimulator);
    std::vector<std::string> losses;
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        const void* pRecord = session.record(key.pKey);
        const void* pFresh = fresh.record(key.pKey);
        if (std::memcmp(pRecord, pFresh, key.recordSize) == 0) {
            continue;
        }
        const PathCategory& category = tree.category(key.pKey);
        const Mask kept = heldBy(to, key, true);
        Mask lost = difference(category, pRecord, pFresh);
        keep(lost, kept, false);
        if (!any(lost)) {
            continue;
        }
        keep(lost, heldBy(from, key, false), true);
        // An image holds everything; marks that a load of a text sets itself don't get lost.
        const bool isMemory = std::find(read.begin(), read.end(), Form::Image) != read.end();
        if (any(lost) && isMemory && !kept.empty() && written != Form::Image) {
            if (reloaded.handle() == 0 && !reload(session, reloaded, written)) {
                return losses;
            }
            keep(lost, difference(category, pRecord, reloaded.record(key.pKey)), true);
        }
        if (any(lost)) {
            losses.push_back(kept.empty() ? key.pKey : nameOf(category, lost, kept));
        }
    }
    return losses;
}

} // namespace qv::tools
