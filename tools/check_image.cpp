#include "check_image.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "catalog_tree.h"
#include "check_values.h"
#include "document_fields.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

std::string number(std::size_t count)
{
    return std::to_string(count);
}

/// One record of an image.
class RecordCheck {
public:
    RecordCheck(std::string_view image, std::size_t begin, const PathCategory& category, Findings& findings)
        : image_(image), begin_(begin), category_(category), findings_(findings)
    {
    }

    void run()
    {
        const std::vector<FieldNode> fields = fieldsOf(QvDatabaseCatalogDocument_Memory, category_.category);
        checkFields(fields, 0);
    }

private:
    std::uint64_t bits(std::size_t offset, std::size_t width) const
    {
        std::uint64_t value = 0;
        std::memcpy(&value, image_.data() + begin_ + offset, std::min(width, sizeof value));
        return value;
    }

    double floatAt(const CatalogField& field, std::size_t offset) const
    {
        if (field.element == QvDatabaseCatalogElement_Double) {
            double value = 0;
            std::memcpy(&value, image_.data() + begin_ + offset, sizeof value);
            return value;
        }
        float value = 0;
        std::memcpy(&value, image_.data() + begin_ + offset, sizeof value);
        return static_cast<double>(value);
    }

    double numberAt(const CatalogField& field, std::size_t offset) const
    {
        if (field.element != QvDatabaseCatalogElement_Integer) {
            return floatAt(field, offset);
        }
        const std::uint64_t value = bits(offset, field.width);
        const auto unused = static_cast<unsigned>(64 - 8 * field.width);
        return field.isSigned ? static_cast<double>(static_cast<std::int64_t>(value << unused) >> unused)
                              : static_cast<double>(value);
    }

    void add(Fault fault, const FieldNode& node, std::size_t offset, std::size_t open, const std::string& text)
    {
        if (!findings_.isWanted(fault)) {
            return;
        }
        Bound bound;
        bound.pField = &node;
        bound.offset = static_cast<std::uint32_t>(offset);
        bound.open = static_cast<std::uint8_t>(open);
        const auto place = static_cast<std::uint32_t>(begin_ + offset);
        findings_.add(fault, {place, place + static_cast<std::uint32_t>(node.field.width)},
                      DocumentFields::locate(category_, bound).path, text);
    }

    /// Items of a list that are in use, as the count beside it says.
    std::size_t usedItems(const std::vector<FieldNode>& fields, const FieldNode& list, std::size_t base) const
    {
        for (const FieldNode& node : fields) {
            if (node.field.role == QvDatabaseCatalogRole_CountOf && node.field.pOther != nullptr &&
                std::string_view(node.field.pOther) == list.field.pName) {
                const std::uint64_t count = bits(base + node.field.offset, node.field.width);
                return std::min<std::size_t>(count, list.field.extents[0]);
            }
        }
        return list.field.extents[0];
    }

    void checkFields(const std::vector<FieldNode>& fields, std::size_t base)
    {
        for (const FieldNode& node : fields) {
            const CatalogField& field = node.field;
            const std::size_t offset = base + field.offset;
            if (field.element == QvDatabaseCatalogElement_Pointer || field.role == QvDatabaseCatalogRole_Handle) {
                continue;
            }
            if (field.role == QvDatabaseCatalogRole_CountOf && !checkCounter(fields, node, offset)) {
                continue;
            }
            const std::size_t rows = field.rank == 0 ? 1 : usedItems(fields, node, base);
            const std::size_t items = rows * field.extents[1] * field.extents[2];
            for (std::size_t i = 0; i < items; ++i) {
                checkElement(node, offset + i * field.width);
            }
            if (field.role == QvDatabaseCatalogRole_GainAxis || field.role == QvDatabaseCatalogRole_CurveX) {
                const std::size_t length = field.extents[std::max<std::size_t>(field.rank, 1) - 1];
                for (std::size_t i = 0; i + length <= items; i += length) {
                    checkRising(node, offset + i * field.width, length);
                }
            }
        }
    }

    bool checkCounter(const std::vector<FieldNode>& fields, const FieldNode& counter, std::size_t offset)
    {
        for (const FieldNode& list : fields) {
            const std::uint64_t count = bits(offset, counter.field.width);
            if (counter.field.pOther != nullptr && std::string_view(counter.field.pOther) == list.field.pName &&
                list.field.rank > 0 && list.field.element != QvDatabaseCatalogElement_Pointer &&
                count > list.field.extents[0]) {
                add(Fault::CountMismatch, counter, offset, 0,
                    "counts " + number(count) + ", and " + list.field.pName + " has room for " +
                        number(list.field.extents[0]));
                return false;
            }
        }
        return true;
    }

    void checkElement(const FieldNode& node, std::size_t offset)
    {
        const CatalogField& field = node.field;
        switch (field.element) {
        case QvDatabaseCatalogElement_Bool:
            if (bits(offset, 1) > 1) {
                add(Fault::BoolByte, node, offset, 0, "the byte is " + number(bits(offset, 1)) + ", neither 0 nor 1");
            }
            return;
        case QvDatabaseCatalogElement_Text:
            // One that fills its field may end with the byte behind it.
            if (std::memchr(image_.data() + begin_ + offset, 0,
                            std::min(field.width + 1, category_.category.recordSize - offset)) == nullptr) {
                add(Fault::Unterminated, node, offset, 0,
                    "none of the " + number(field.width) + " bytes ends the text");
            }
            return;
        case QvDatabaseCatalogElement_Record:
            checkFields(node.fields, offset);
            return;
        case QvDatabaseCatalogElement_Float:
        case QvDatabaseCatalogElement_Double:
            if (!std::isfinite(floatAt(field, offset))) {
                add(Fault::NotFinite, node, offset, 0, shortNumber(floatAt(field, offset)) + " is no finite number");
                return;
            }
            break;
        default:
            break;
        }
        if (field.valueNumber != 0 || !std::isinf(field.minimum) || !std::isinf(field.maximum)) {
            faults_.clear();
            checkMeaning(field, numberAt(field, offset), faults_);
            for (const ValueFault& fault : faults_) {
                add(fault.fault, node, offset, 0, fault.text);
            }
        }
    }

    /// As in a document: zeros at the end are points that are not in use, and one number alone is the distance of all.
    void checkRising(const FieldNode& node, std::size_t offset, std::size_t length)
    {
        const CatalogField& field = node.field;
        while (length > 0 && numberAt(field, offset + (length - 1) * field.width) == 0) {
            --length;
        }
        bool isSame = true;
        for (std::size_t i = 1; i < length; ++i) {
            isSame = isSame && numberAt(field, offset + i * field.width) == numberAt(field, offset);
        }
        for (std::size_t i = 1; i < length && !isSame; ++i) {
            const double before = numberAt(field, offset + (i - 1) * field.width);
            const double at = numberAt(field, offset + i * field.width);
            if (at <= before) {
                add(Fault::NotRising, node, offset + i * field.width, 0,
                    shortNumber(at) + " doesn't rise from " + shortNumber(before) + " before it");
                return;
            }
        }
    }

    std::string_view image_;
    std::size_t begin_;
    const PathCategory& category_;
    Findings& findings_;
    std::vector<ValueFault> faults_;
};

} // namespace

void checkImage(std::string_view image, const PathTree& tree, Findings& findings)
{
    // The raw image of calibration is that record alone.
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Calibration)) {
        if (image.size() == category.recordSize) {
            RecordCheck(image, 0, tree.category(category.pKey), findings).run();
            return;
        }
    }
    std::size_t wanted = 0;
    std::string ending;
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Image)) {
        const std::size_t end = category.imageOffset + category.recordSize;
        wanted = std::max(wanted, end);
        if (end <= image.size()) {
            RecordCheck(image, category.imageOffset, tree.category(category.pKey), findings).run();
        } else if (ending.empty()) {
            ending = tree.category(category.pKey).name.empty() ? category.pKey : tree.category(category.pKey).name;
        }
    }
    const auto size = static_cast<std::uint32_t>(image.size());
    if (size < wanted) {
        findings.add(Fault::ImageSize, {size, size}, ending,
                     "the image ends here with " + number(size) + " of " + number(wanted) +
                         " bytes, and the load fails (6)");
    } else if (size > wanted) {
        findings.add(Fault::ImageSize, {static_cast<std::uint32_t>(wanted), size}, "",
                     number(size - wanted) + " bytes more than the " + number(wanted) + " of an image are passed over");
    }
}

} // namespace qv::tools
