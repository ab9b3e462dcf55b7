#include "difference.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "catalog_tree.h"
#include "leaves.h"

namespace qv::tools {
namespace {

using Field = QvDatabaseCatalogField_t;

/// Elements of a list that are shown one by one.
constexpr std::size_t kFew = 4;

/// Half of the last digit that a text has behind the point.
constexpr double kHalfDigit = 0.5e-6;

bool isNumber(const Field& field)
{
    return field.element == QvDatabaseCatalogElement_Integer || field.element == QvDatabaseCatalogElement_Float ||
           field.element == QvDatabaseCatalogElement_Double;
}

/// Whether a number is one of a scale: no name, mask or length.
bool isQuantity(const Field& field)
{
    return isNumber(field) && field.valueNumber == 0 && field.role != QvDatabaseCatalogRole_Bits &&
           field.role != QvDatabaseCatalogRole_CountOf;
}

/// An object of the run time, which differs from one to the next.
bool isRuntime(const Field& field)
{
    return field.element == QvDatabaseCatalogElement_Pointer || field.role == QvDatabaseCatalogRole_Handle;
}

/// Whether a text holds two numbers in the same characters.
bool isWrittenSame(double left, double right)
{
    if (!std::isfinite(left) || !std::isfinite(right)) {
        return std::isfinite(left) == std::isfinite(right);
    }
    if (std::abs(left - right) > 4 * kHalfDigit) {
        return false;
    }
    std::array<char, 400> texts[2]; // as many digits as the greatest double has
    std::snprintf(texts[0].data(), texts[0].size(), "%.6f", left);
    std::snprintf(texts[1].data(), texts[1].size(), "%.6f", right);
    return std::strcmp(texts[0].data(), texts[1].data()) == 0;
}

class Comparison {
public:
    Comparison(const Carriage& carriage, const void* pLeft, const void* pRight, const Rules& rules)
        : carriage_(carriage), pLeft_(pLeft), pRight_(pRight), rules_(rules)
    {
    }

    void compareMembers(const Target& record)
    {
        const std::size_t base =
            record.pNode != nullptr && record.pNode->isGroup() ? record.counterBase : record.offset;
        const std::vector<PathNode>& members = PathTree::membersOf(record);
        for (const PathNode& node : members) {
            if (isOtherKey(members, node)) {
                continue;
            }
            const Field& field = node.field;
            // Paths are built only of what differs; what a counter counts may differ in its length alone.
            const bool isPlain = !node.isGroup() && field.counterWidth == 0;
            const std::size_t size = field.width * elementsOf(field);
            if (!isPlain || std::memcmp(bytesAt(record, base, pLeft_) + field.offset,
                                        bytesAt(record, base, pRight_) + field.offset, size) != 0) {
                compare(PathTree::member(record, node));
            }
        }
    }

    void comparePadding(const Target& whole)
    {
        Difference difference;
        difference.kind = Difference::Padding;
        difference.target = whole;
        const auto* pLeft = static_cast<const std::byte*>(pLeft_);
        const auto* pRight = static_cast<const std::byte*>(pRight_);
        for (std::size_t i = 0; i < whole.pCategory->category.recordSize; ++i) {
            if (pLeft[i] != pRight[i] && carriage_.isPadding(i)) {
                difference.most = difference.number == 0 ? i : difference.most;
                ++difference.number;
            }
        }
        if (difference.number != 0) {
            differences.push_back(difference);
        }
    }

    std::vector<Difference> differences;

private:
    static const std::byte* bytesAt(const Target& record, std::size_t offset, const void* pRecord)
    {
        return bytesOf(record, pRecord) - record.offset + offset;
    }

    void compare(const Target& field)
    {
        if (field.isElement() || (field.rank > 0 && !field.pNode->isRecord())) {
            compareElements(field);
        } else if (field.rank > 0) {
            compareItems(field);
        } else {
            compareMembers(field);
        }
    }

    void compareItems(const Target& list)
    {
        const std::size_t lengths[] = {usedItems(list, pLeft_), usedItems(list, pRight_)};
        if (lengths[0] != lengths[1]) {
            Difference difference;
            difference.kind = Difference::Length;
            difference.target = list;
            difference.number = 1;
            std::copy(std::begin(lengths), std::end(lengths), difference.lengths);
            differences.push_back(difference);
        }
        const bool isHeap = list.pNode->field.count == QvDatabaseCatalogCount_Heap;
        const std::size_t number = rules_.isExact && !isHeap ? list.extents[0] : std::min(lengths[0], lengths[1]);
        const std::size_t size = list.pNode->field.width * list.extents[1] * list.extents[2];
        for (std::size_t i = 0; i < number; ++i) {
            if (std::memcmp(bytesOf(list, pLeft_) + i * size, bytesOf(list, pRight_) + i * size, size) != 0) {
                compare(PathTree::item(list, i));
            }
        }
    }

    void compareElements(const Target& list)
    {
        const Field& field = list.pNode->field;
        if (isRuntime(field) || (!rules_.isExact && !carriage_.isSetting(list))) {
            return;
        }
        const std::byte* pLeft = bytesOf(list, pLeft_);
        const std::byte* pRight = bytesOf(list, pRight_);
        Difference difference;
        for (std::size_t i = 0; i < list.elements(); ++i, pLeft += field.width, pRight += field.width) {
            if (isSame(field, pLeft, pRight)) {
                continue;
            }
            if (difference.number++ == 0) {
                difference.most = i;
            }
            const double by = isNumber(field) ? std::abs(numberAt(field, pLeft) - numberAt(field, pRight)) : 0;
            if (by > difference.by || (std::isnan(by) && !std::isinf(difference.by))) {
                difference.by = std::isnan(by) ? HUGE_VAL : by;
                difference.most = i;
            }
            if (rules_.showsAll || difference.elements.size() < kFew) {
                difference.elements.push_back(i);
            }
        }
        if (difference.number != 0) {
            difference.kind = difference.elements.size() < difference.number ? Difference::Sum : Difference::Values;
            difference.target = list;
            differences.push_back(std::move(difference));
        }
    }

    bool isSame(const Field& field, const std::byte* pLeft, const std::byte* pRight) const
    {
        if (std::memcmp(pLeft, pRight, field.width) == 0) {
            return true;
        }
        if (rules_.isExact) {
            return false;
        }
        const bool isReal =
            field.element == QvDatabaseCatalogElement_Float || field.element == QvDatabaseCatalogElement_Double;
        if (field.element == QvDatabaseCatalogElement_Text) {
            return std::strncmp(reinterpret_cast<const char*>(pLeft), reinterpret_cast<const char*>(pRight),
                                field.width) == 0;
        }
        const double left = numberAt(field, pLeft);
        const double right = numberAt(field, pRight);
        if (field.element == QvDatabaseCatalogElement_Bool) {
            return left == right;
        }
        if (rules_.tolerance.has_value() && isQuantity(field) &&
            std::abs(left - right) <= *rules_.tolerance + kHalfDigit) {
            return true;
        }
        // A text that holds the bits of a float as an integer tells all of them apart.
        return isReal && field.written != QvDatabaseCatalogElement_Integer && isWrittenSame(left, right);
    }

    const Carriage& carriage_;
    const void* pLeft_;
    const void* pRight_;
    const Rules& rules_;
};

} // namespace

std::vector<Difference> differencesOf(const PathCategory& category, const Carriage& carriage, const Session& left,
                                      const Session& right, const Rules& rules)
{
    const char* pKey = category.category.pKey;
    const Target whole = PathTree::whole(category);
    Comparison comparison(carriage, left.record(pKey), right.record(pKey), rules);
    comparison.compareMembers(whole);
    if (rules.isExact) {
        comparison.comparePadding(whole);
    }
    return std::move(comparison.differences);
}

} // namespace qv::tools
