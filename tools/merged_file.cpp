#include "merged_file.h"

#include <algorithm>
#include <cstring>

#include "output.h"
#include "reload.h"

namespace qv::tools {
namespace {

std::size_t lengthOf(const Target& target)
{
    return target.pNode == nullptr ? target.pCategory->category.recordSize
                                   : target.pNode->field.width * target.elements();
}

} // namespace

bool MergedFile::open(const Session& defaults)
{
    pDefaults_ = &defaults;
    if (!session_.open()) {
        return false;
    }
    if (input_.form == Form::CalibrationText) {
        return session_.load(input_);
    }
    // It was loaded before, over the others, and what was to say of it is said.
    reload(input_.bytes.view(), input_.form, session_);
    if (input_.form == Form::Image) {
        return true;
    }
    if (!document_.read(input_.bytes.view(), input_.form)) {
        return false;
    }
    pFields_ = std::make_unique<DocumentFields>(document_);
    for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
        hold(node, (*pFields_)[node]);
    }
    for (const auto& [node, bound] : pFields_->seconds()) {
        hold(node, bound);
    }
    for (auto& [key, holdings] : holdings_) {
        std::stable_sort(holdings.begin(), holdings.end());
    }
    return true;
}

void MergedFile::hold(NodeIndex node, const Bound& bound)
{
    if (bound.isTaken() && bound.hasCategory() && bound.pField != nullptr && !document_[node].isContainer()) {
        const std::size_t heapOffset = bound.heapOffset == UINT32_MAX ? SIZE_MAX : bound.heapOffset;
        holdings_[pFields_->key(bound)].push_back({heapOffset, bound.offset, node});
    }
}

std::pair<MergedFile::Holdings::const_iterator, MergedFile::Holdings::const_iterator>
MergedFile::within(const Target& target) const
{
    static const Holdings kNone;
    const auto found = holdings_.find(std::string_view(target.pCategory->category.pKey));
    const Holdings& holdings = found == holdings_.end() ? kNone : found->second;
    if (target.pNode == nullptr) {
        return {holdings.begin(), holdings.end()};
    }
    // A list on the heap goes on as far as the document does.
    const bool isHeapList = target.pNode->field.count == QvDatabaseCatalogCount_Heap && target.rank == 1;
    const std::size_t end = isHeapList ? SIZE_MAX : target.offset + lengthOf(target);
    return {std::lower_bound(holdings.begin(), holdings.end(), Holding{target.heapOffset, target.offset, 0}),
            std::lower_bound(holdings.begin(), holdings.end(), Holding{target.heapOffset, end, 0})};
}

bool MergedFile::isInImage(const Target& target) const
{
    return target.pCategory->category.imageOffset != SIZE_MAX && target.heapOffset == SIZE_MAX;
}

/// Elements that differ from the defaults, for a file whose places are not known.
std::size_t MergedFile::countDifferent(const Target& target) const
{
    const char* pKey = target.pCategory->category.pKey;
    if (target.pNode == nullptr) {
        return std::memcmp(session_.record(pKey), pDefaults_->record(pKey), lengthOf(target)) != 0 ? 1 : 0;
    }
    const std::size_t width = target.pNode->field.width;
    const std::byte* pOwn = bytesOf(target, static_cast<const void*>(session_.record(pKey)));
    const std::byte* pDefault = bytesOf(target, static_cast<const void*>(pDefaults_->record(pKey)));
    std::size_t different = 0;
    for (std::size_t i = 0; i < target.elements() && pOwn != nullptr && pDefault != nullptr; ++i) {
        different += std::memcmp(pOwn + i * width, pDefault + i * width, width) != 0 ? 1U : 0U;
    }
    return different;
}

std::size_t MergedFile::count(const Target& target) const
{
    if (input_.form == Form::Image) {
        return isInImage(target) ? target.elements() : 0;
    }
    if (input_.form == Form::CalibrationText) {
        return countDifferent(target);
    }
    const auto [first, last] = within(target);
    std::size_t number = 0;
    for (auto holding = first; holding != last; ++holding) {
        const bool isAgain = holding != first && !(*(holding - 1) < *holding);
        number += isAgain ? 0U : 1U;
    }
    return number;
}

std::size_t MergedFile::missingIn(const MergedFile& other, const PathCategory& category) const
{
    const Target whole = PathTree::whole(category);
    if (other.input_.form == Form::Image) {
        return isInImage(whole) ? 0 : count(whole);
    }
    const auto [first, last] = within(whole);
    const auto [otherFirst, otherLast] = other.within(whole);
    std::size_t number = 0;
    for (auto holding = first; holding != last; ++holding) {
        const bool isAgain = holding != first && !(*(holding - 1) < *holding);
        number += isAgain || std::binary_search(otherFirst, otherLast, *holding) ? 0U : 1U;
    }
    return number;
}

NodeIndex MergedFile::nodeOf(const Target& target) const
{
    if (pFields_ == nullptr) {
        return kNoNode;
    }
    if (target.rank > 0 && target.pNode->isRecord()) {
        return pFields_->find(target); // also one with nothing in it
    }
    const auto [first, last] = within(target);
    if (first == last) {
        return kNoNode;
    }
    // Of what stands there twice the one that a load takes last.
    auto best = first;
    for (auto other = first; other != last && other->offset == first->offset; ++other) {
        best = (*pFields_)[other->node].order > (*pFields_)[best->node].order ? other : best;
    }
    NodeIndex node = best->node;
    if (target.rank > 0 && target.pNode->field.rank > 0) {
        const bool isFirst = best->offset == target.offset;
        for (std::size_t i = 0; isFirst && i < target.rank && document_[node].parent != kNoNode &&
                                document_[document_[node].parent].type == QvJsonValueType_Array;
             ++i) {
            node = document_[node].parent;
        }
    }
    return node;
}

std::size_t MergedFile::imageOffset(const Target& target) const
{
    return target.pCategory->category.imageOffset + target.offset;
}

std::string MergedFile::place(const Target& target) const
{
    std::string name = input_.shown();
    if (input_.form == Form::Image) {
        return name + ", offset " + std::to_string(imageOffset(target));
    }
    const NodeIndex node = nodeOf(target);
    if (node == kNoNode) {
        return name;
    }
    const TextPlace place = document_.place(document_[node].value.begin);
    return name + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

std::string MergedFile::jsonPlace(const Target& target) const
{
    const NodeIndex node = nodeOf(target);
    std::string line = "null";
    std::string column = "null";
    if (node != kNoNode) {
        const TextPlace place = document_.place(document_[node].value.begin);
        line = std::to_string(place.line);
        column = std::to_string(place.column);
    }
    const std::string offset = input_.form == Form::Image ? std::to_string(imageOffset(target)) : "null";
    return "\"file\": " + jsonText(input_.shown()) + ", \"line\": " + line + ", \"column\": " + column +
           ", \"offset\": " + offset;
}

} // namespace qv::tools
