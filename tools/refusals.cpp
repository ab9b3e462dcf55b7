#include "refusals.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include <qv_common_c/common_error.h>
#include <qv_database_c/database_catalog.h>
#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_walk.h>

#include "catalog_tree.h"

namespace qv::tools {
namespace {

/// Ends a walk early.
constexpr int kFoundIt = -1;

class Walk {
public:
    explicit Walk(std::string_view text) : text_(text) {}
    virtual ~Walk() = default;
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    void run()
    {
        QvJsonReaderHandle_t handle = 0;
        if (QvJsonReader_open(&handle) == 0) {
            QvJsonReader_walk(handle, text_.data(), text_.data() + text_.size(), &Walk::visit, this);
            QvJsonReader_close(&handle);
        }
    }

    /// "line 3, column 7"
    std::string placeOf(std::size_t offset) const
    {
        std::size_t line = 0;
        std::size_t column = 0;
        QvJsonReader_place(text_.data(), text_.data() + text_.size(), offset, &line, &column);
        return "line " + std::to_string(line) + ", column " + std::to_string(column);
    }

    std::string found;

protected:
    virtual int see(const QvJsonWalkEvent_t& event) = 0;
    std::string_view text_;

private:
    static int visit(void* pUserData, const QvJsonWalkEvent_t* pEvent)
    {
        return static_cast<Walk*>(pUserData)->see(*pEvent);
    }
};

/// The first place that is no JSON, and the bracket that may have caused it.
class FaultWalk : public Walk {
public:
    using Walk::Walk;

protected:
    int see(const QvJsonWalkEvent_t& event) override
    {
        if (event.kind != QvJsonWalkKind_Fault) {
            return 0;
        }
        found = event.pText + (" at " + placeOf(event.begin));
        if (event.suspect != QV_JSON_WALK_NONE && event.suspect < text_.size()) {
            const char bracket = text_[event.suspect];
            if (bracket == '{' || bracket == '[') {
                found += std::string("; the ") + (bracket == '{' ? "object" : "list") + " opened at " +
                         placeOf(event.suspect) + " was never closed";
            } else {
                found += std::string("; the ") + bracket + " at " + placeOf(event.suspect) + " closes too much";
            }
        }
        return kFoundIt;
    }
};

/// The first list of calibration that has more items than its array.
class ListWalk : public Walk {
public:
    using Walk::Walk;

protected:
    int see(const QvJsonWalkEvent_t& event) override
    {
        if (event.kind == QvJsonWalkKind_Key) {
            key_ = event.pText;
            return 0;
        }
        const bool isBegin = event.kind == QvJsonWalkKind_ObjectBegin || event.kind == QvJsonWalkKind_ArrayBegin;
        const bool isEnd = event.kind == QvJsonWalkKind_ObjectEnd || event.kind == QvJsonWalkKind_ArrayEnd;
        if ((isBegin || event.kind == QvJsonWalkKind_Value) && !open_.empty()) {
            open_.back().items = event.index + 1;
        }
        if (isBegin) {
            const bool isItem = !open_.empty() && open_.back().isArray;
            std::string path = open_.empty() ? "" : open_.back().path;
            if (isItem) {
                path += '[' + std::to_string(event.index) + ']';
            } else if (event.depth > 0) {
                path += (path.empty() ? "" : ".") + key_;
            }
            open_.push_back({path, event.kind == QvJsonWalkKind_ArrayBegin, 0});
        } else if (isEnd && !open_.empty()) {
            const Container closed = open_.back();
            open_.pop_back();
            return closed.isArray ? compare(closed, event.opened) : 0;
        }
        return 0;
    }

private:
    struct Container {
        std::string path;
        bool isArray;
        std::size_t items;
    };

    int compare(const Container& list, std::size_t opened)
    {
        QvDatabaseCatalogPlace_t place{};
        place.size = sizeof place;
        QvDatabaseCatalogField_t field{};
        field.size = sizeof field;
        if (QvDatabaseCatalog_find(QvDatabaseCatalogDocument_Calibration, list.path.c_str(), &place) != 0 ||
            QvDatabaseCatalog_field(&place, &field) != 0 || field.count != QvDatabaseCatalogCount_Measured) {
            return 0;
        }
        // The counter is compared, and keeps no more of the length than its width holds.
        const std::size_t counted = list.items & ((std::size_t{1} << (field.counterWidth * 8)) - 1);
        if (counted <= field.extents[0]) {
            return 0;
        }
        found = list.path + " at " + placeOf(opened) + " has " + std::to_string(list.items) + " items, and " +
                std::to_string(field.extents[0]) + " is the most";
        return kFoundIt;
    }

    std::string key_;
    std::vector<Container> open_;
};

} // namespace

std::size_t imageSize()
{
    std::size_t size = 0;
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Image)) {
        size = std::max(size, category.imageOffset + category.recordSize);
    }
    return size;
}

std::string refusalOf(const Input& input, int status)
{
    if (input.form == Form::Image && status == QvCommonError_Capacity) {
        return "it is " + std::to_string(input.bytes.view().size()) + " bytes long, and an image has " +
               std::to_string(imageSize());
    }
    if (input.form == Form::Json && status == QvCommonError_Syntax) {
        FaultWalk walk(input.bytes.view());
        walk.run();
        return walk.found;
    }
    if (input.form == Form::Json && status == QvCommonError_Capacity) {
        ListWalk walk(input.bytes.view());
        walk.run();
        return walk.found;
    }
    return "";
}

} // namespace qv::tools
