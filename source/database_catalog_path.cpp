// Paths: "A2DNR_5_2.tables[3].strength[7]" and where in the record they lead.

#include <charconv>
#include <cstdint>
#include <iterator>

#include "database_catalog.h"
#include "database_status.h"

using namespace qv::database;

namespace {

// What the library keeps in a place: the scope that the path is in, and the field of it that the path named last.
enum : std::size_t { kScope, kRow, kSiblings, kDepth };
constexpr std::intptr_t kNoRow = -1;

/// Whether a find has filled the place: it names a category, or says why there is none.
bool isFilled(const QvDatabaseCatalogPlace_t& place)
{
    return place.size >= sizeof place && (place.pKey != nullptr || place.stop != QvDatabaseCatalogStop_None);
}

class Follower {
public:
    Follower(QvDatabaseCatalogDocument_t document, std::string_view path, QvDatabaseCatalogPlace_t& place)
        : document_(document), path_(path), place_(place)
    {
        place_.document = document;
        place_.heapOffset = SIZE_MAX;
        place_.extents[0] = place_.extents[1] = place_.extents[2] = 1;
        place_.internal[kRow] = kNoRow;
    }

    bool follow() { return enterCategory() && followMembers(); }

private:
    bool stop(QvDatabaseCatalogStop_t why)
    {
        place_.stop = why;
        place_.reached = at_;
        return false;
    }

    bool isAtEnd() const { return at_ == path_.size(); }
    char next() const { return isAtEnd() ? '\0' : path_[at_]; }

    /// The name that stands here.
    std::string_view name() const { return path_.substr(at_, path_.find_first_of(".[", at_) - at_); }

    bool enterCategory()
    {
        const std::string_view head = name();
        Entry entry;
        Entry second;
        if (findEntry(document_, head, entry)) {
            at_ = head.size();
        } else if (!entryAt(document_, 0, entry) || entryAt(document_, 1, second)) {
            return stop(head.empty() ? QvDatabaseCatalogStop_Syntax : QvDatabaseCatalogStop_Category);
        }
        scope_ = Scope(entry);
        place_.pKey = entry.key;
        place_.length = scope_.recordSize();
        place_.internal[kSiblings] = static_cast<std::intptr_t>(scope_.handle(document_));
        return true;
    }

    /// One member behind the other, each from its dot or, at the path's begin, without one.
    bool followMembers()
    {
        while (!isAtEnd()) {
            if (at_ > 0) {
                if (next() == '[') {
                    return stop(QvDatabaseCatalogStop_Index);
                }
                ++at_; // a name ends in front of a dot, and so do indices
            }
            if (!enterMember() || !followIndices()) {
                return false;
            }
            if (!isAtEnd() && !leaveMember()) {
                return false;
            }
        }
        // At the end of a path its own members could follow.
        const bool isRecord = place_.internal[kRow] != kNoRow && field_.count != QvDatabaseCatalogCount_Members;
        if (const Scope nested = isRecord ? scope_.nested(row_) : Scope(); nested) {
            place_.internal[kSiblings] = static_cast<std::intptr_t>(nested.handle(document_));
        }
        place_.reached = at_;
        return true;
    }

    bool enterMember()
    {
        // The keys of an initialization file are flat: dots and brackets are part of them.
        const bool isFlat = document_ == QvDatabaseCatalogDocument_Initialization;
        const std::string_view wanted = isFlat ? path_.substr(at_) : name();
        for (std::size_t i = 0; i < scope_.size(); ++i) {
            if (wanted == scope_.key(i)) {
                at_ += wanted.size();
                enterField(i);
                return true;
            }
        }
        return stop(wanted.empty() ? QvDatabaseCatalogStop_Syntax : QvDatabaseCatalogStop_Member);
    }

    void enterField(std::size_t row)
    {
        field_ = scope_.field(row, depth_);
        place_.offset += field_.offset;
        place_.length = field_.width;
        place_.rank = field_.rank;
        for (std::size_t i = 0; i < std::size(field_.extents); ++i) {
            place_.extents[i] = field_.extents[i];
            place_.length *= field_.extents[i];
        }
        if (field_.count == QvDatabaseCatalogCount_Heap) {
            place_.heapOffset = place_.offset;
            place_.heapItem = field_.width;
            place_.heapCounter = place_.offset - field_.offset + field_.counterOffset;
            place_.offset = 0;
        } else if (field_.count == QvDatabaseCatalogCount_Members) {
            place_.length = field_.width;
        }
        place_.internal[kScope] = static_cast<std::intptr_t>(scope_.handle(document_));
        place_.internal[kRow] = static_cast<std::intptr_t>(row);
        place_.internal[kDepth] = static_cast<std::intptr_t>(depth_);
        place_.internal[kSiblings] = 0;
        row_ = row;
    }

    bool followIndices()
    {
        while (next() == '[') {
            std::size_t index = 0;
            const char* pEnd = path_.data() + path_.size();
            const auto [pNext, error] = std::from_chars(path_.data() + at_ + 1, pEnd, index);
            if (pNext == pEnd || *pNext != ']' || error == std::errc::invalid_argument) {
                return stop(QvDatabaseCatalogStop_Syntax);
            }
            if (place_.rank == 0) {
                return stop(QvDatabaseCatalogStop_Index);
            }
            if (error != std::errc{} || !takeIndex(index)) {
                return stop(QvDatabaseCatalogStop_OutOfRange);
            }
            at_ = static_cast<std::size_t>(pNext + 1 - path_.data());
        }
        return true;
    }

    bool takeIndex(std::size_t index)
    {
        if (field_.count == QvDatabaseCatalogCount_Heap) {
            if (index > UINT32_MAX) {
                return false;
            }
            place_.length = field_.width; // how long the list is, its record tells
        } else {
            if (index >= place_.extents[0]) {
                return false;
            }
            if (field_.count == QvDatabaseCatalogCount_Members) {
                enterListed(index);
                return true;
            }
            place_.length /= place_.extents[0];
        }
        place_.offset += index * place_.length;
        place_.extents[0] = place_.extents[1];
        place_.extents[1] = place_.extents[2];
        place_.extents[2] = 1;
        --place_.rank;
        return true;
    }

    /// A number of the list that stands for a record.
    void enterListed(std::size_t index)
    {
        scope_ = scope_.nested(row_);
        ++depth_;
        enterField(index);
    }

    /// From a field to its members, at the dot in front of the next name.
    bool leaveMember()
    {
        if (next() != '.') {
            return stop(QvDatabaseCatalogStop_Syntax);
        }
        const Scope nested = field_.count == QvDatabaseCatalogCount_Members ? Scope() : scope_.nested(row_);
        if (!nested) {
            return stop(QvDatabaseCatalogStop_Scalar);
        }
        if (place_.rank != 0) {
            return stop(QvDatabaseCatalogStop_List);
        }
        scope_ = nested;
        ++depth_;
        place_.internal[kSiblings] = static_cast<std::intptr_t>(scope_.handle(document_));
        return true;
    }

    QvDatabaseCatalogDocument_t document_;
    std::string_view path_;
    QvDatabaseCatalogPlace_t& place_;
    std::size_t at_ = 0;
    std::size_t depth_ = 0;
    std::size_t row_ = 0;
    Scope scope_;
    QvDatabaseCatalogField_t field_{};
};

} // namespace

int QvDatabaseCatalog_find(QvDatabaseCatalogDocument_t document, const char* pPath, QvDatabaseCatalogPlace_t* pPlace)
{
    if (pPath == nullptr || pPlace == nullptr) {
        return kBadArgument;
    }
    QvDatabaseCatalogPlace_t all{};
    const bool isFound = Follower(document, pPath, all).follow();
    const int status = handOver(all, pPlace);
    return status != kSuccess || isFound ? status : static_cast<int>(kMemberMissing);
}

int QvDatabaseCatalog_field(const QvDatabaseCatalogPlace_t* pPlace, QvDatabaseCatalogField_t* pField)
{
    if (pPlace == nullptr || pField == nullptr || !isFilled(*pPlace)) {
        return kBadArgument;
    }
    if (pPlace->pKey == nullptr || pPlace->internal[kRow] == kNoRow) {
        return kMemberMissing;
    }
    const Scope scope = Scope::ofHandle(static_cast<std::uintptr_t>(pPlace->internal[kScope]), pPlace->document);
    return handOver(scope.field(static_cast<std::size_t>(pPlace->internal[kRow]),
                                static_cast<std::size_t>(pPlace->internal[kDepth])),
                    pField);
}

int QvDatabaseCatalog_siblings(const QvDatabaseCatalogPlace_t* pPlace, QvDatabaseCatalogCursor_t* pCursor)
{
    if (pPlace == nullptr || pCursor == nullptr || !isFilled(*pPlace)) {
        return kBadArgument;
    }
    if (pPlace->internal[kSiblings] == 0) {
        return kMemberMissing;
    }
    QvDatabaseCatalogCursor_t all{};
    all.document = pPlace->document;
    all.depth = 1;
    all.table[0] = static_cast<std::uintptr_t>(pPlace->internal[kSiblings]);
    return handOver(all, pCursor);
}
