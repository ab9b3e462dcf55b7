#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "catalog_tree.h"
#include "commands.h"
#include "files.h"
#include "leaves.h"
#include "output.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {
namespace {

using Category = QvDatabaseCatalogCategory_t;

/// Bytes and elements of a list that are shown for people.
constexpr std::size_t kShownBytes = 8;
constexpr std::size_t kShownElements = 6;

/// Bytes of an image that belong together: a field, or padding.
struct Stretch {
    std::size_t begin = 0; ///< from the first byte of the image on
    std::size_t size = 0;
    Target field; ///< that before it, for padding
    bool isPadding = false;
    bool isInUse = true;
};

std::string rowText(const Target& list, const void* pRecord)
{
    if (list.rank == 0) {
        return valueText(list, pRecord);
    }
    std::string text;
    for (std::size_t i = 0; i < list.extents[0]; ++i) {
        text += (i == 0 ? "" : ", ") + rowText(PathTree::item(list, i), pRecord);
    }
    return '[' + text + ']';
}

/// The first elements of a list, or what is no list.
std::string shortText(const Target& field, const void* pRecord)
{
    const std::size_t elements = field.elements();
    if (field.rank == 0 || elements <= kShownElements) {
        return rowText(field, pRecord);
    }
    std::string text;
    for (std::size_t i = 0; i < kShownElements; ++i) {
        text += (i == 0 ? "[" : ", ") + valueText(elementOf(field, i), pRecord);
    }
    return text + ", ... " + std::to_string(elements) + " in all]";
}

std::string hexOf(std::string_view bytes, const char* pBetween)
{
    std::string text;
    for (const char byte : bytes) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        text += (text.empty() ? "" : pBetween) + std::string(digits);
    }
    return text;
}

/// An image whose records stand in a database, as they are in the file and as far as it goes.
class Dump {
public:
    Dump(const Options& options, const Input& input, Session& session)
        : asJson_(options.asJson), input_(input), bytes_(input.bytes.view()), session_(session),
          categories_(categoriesOf(QvDatabaseCatalogDocument_Image))
    {
        for (const Category& category : categories_) {
            const std::size_t begin = std::min(category.imageOffset, bytes_.size());
            const std::string_view there = bytes_.substr(begin, category.recordSize);
            std::memset(session.record(category.pKey), 0, category.recordSize);
            std::memcpy(session.record(category.pKey), there.data(), there.size());
            end_ = std::max(end_, category.imageOffset + category.recordSize);
        }
    }

    ExitStatus dumpAll(const PathTree& tree)
    {
        begin();
        for (const Category& category : categories_) {
            for (const Stretch& stretch : stretchesOf(tree, category)) {
                print(stretch);
            }
        }
        end();
        // The record of the first category alone is the raw image of a calibration.
        if (bytes_.size() < end_ && bytes_.size() != categories_.front().recordSize) {
            complain(input_.shown() + " ends at " + std::to_string(bytes_.size()) + ", and an image has " +
                     std::to_string(end_) + " bytes");
        } else if (bytes_.size() > end_) {
            complain(input_.shown() + " has " + std::to_string(bytes_.size() - end_) + " bytes behind the last record");
        }
        return kDone;
    }

    ExitStatus dumpPath(const PathTree& tree, const std::string& path)
    {
        std::vector<Target> targets;
        std::string error;
        if (!tree.find(path, &session_, targets, error)) {
            complain(error);
            return kRefused;
        }
        std::vector<Stretch> stretches;
        for (const Target& target : targets) {
            const Category& category = target.pCategory->category;
            const std::size_t place = category.imageOffset;
            if (place == SIZE_MAX) {
                complain(path + ": " + category.pKey + " has no place in an image");
                return kRefused;
            }
            visitLeaves(target, session_.record(category.pKey), true, [&](const Target& leaf, bool isInUse) {
                stretches.push_back({place + leaf.offset, sizeOf(leaf), leaf, false, isInUse});
            });
        }
        for (const Stretch& stretch : stretches) {
            if (stretch.begin >= bytes_.size()) {
                complain(stretch.field.path + " stands at " + std::to_string(stretch.begin) + ", and " +
                         input_.shown() + " ends at " + std::to_string(bytes_.size()));
                return kRefused;
            }
        }
        begin();
        for (const Stretch& stretch : stretches) {
            print(stretch);
        }
        end();
        return kDone;
    }

    ExitStatus dumpAt(const PathTree& tree, std::size_t offset)
    {
        if (offset >= std::min(bytes_.size(), end_)) {
            complain("offset " + std::to_string(offset) + " is past the end: " +
                     (bytes_.size() < end_ ? input_.shown() + " has " : "the records of an image have ") +
                     std::to_string(std::min(bytes_.size(), end_)) + " bytes");
            return kRefused;
        }
        for (const Category& category : categories_) {
            if (offset < category.imageOffset || offset >= category.imageOffset + category.recordSize) {
                continue;
            }
            for (Stretch stretch : stretchesOf(tree, category)) {
                if (offset < stretch.begin || offset >= stretch.begin + stretch.size) {
                    continue;
                }
                if (!stretch.isPadding) {
                    const std::size_t width = stretch.field.pNode->field.width;
                    const std::size_t index = (offset - stretch.begin) / width;
                    stretch.field = elementOf(stretch.field, index);
                    stretch.begin += index * width;
                    stretch.size = width;
                }
                print(stretch, offset - stretch.begin + 1);
            }
        }
        std::printf("%s", asJson_ ? "\n" : "");
        return kDone;
    }

private:
    static std::size_t sizeOf(const Target& field) { return field.elements() * field.pNode->field.width; }

    /// Fields and padding of a record in the order of their bytes.
    std::vector<Stretch> stretchesOf(const PathTree& tree, const Category& category) const
    {
        std::vector<Stretch> fields;
        visitLeaves(PathTree::whole(tree.category(category.pKey)), session_.record(category.pKey), true,
                    [&](const Target& leaf, bool isInUse) {
                        fields.push_back({category.imageOffset + leaf.offset, sizeOf(leaf), leaf, false, isInUse});
                    });
        std::sort(fields.begin(), fields.end(),
                  [](const Stretch& left, const Stretch& right) { return left.begin < right.begin; });
        std::vector<Stretch> stretches;
        std::size_t reached = category.imageOffset;
        const auto pad = [&](std::size_t end) {
            if (end > reached) {
                stretches.push_back(
                    {reached, end - reached, stretches.empty() ? Target{} : stretches.back().field, true, true});
            }
        };
        for (Stretch& field : fields) {
            pad(field.begin);
            reached = field.begin + field.size;
            stretches.push_back(std::move(field));
        }
        pad(category.imageOffset + category.recordSize);
        return stretches;
    }

    void begin() const { std::printf("%s", asJson_ ? "[" : ""); }
    void end() const { std::printf("%s", asJson_ ? "\n]\n" : ""); }

    /// `byte` counts from 1, where one of the stretch is meant. What lies behind the end of the file is not shown.
    void print(const Stretch& stretch, std::size_t byte = 0)
    {
        if (stretch.begin >= bytes_.size()) {
            return;
        }
        const std::string_view there = bytes_.substr(stretch.begin, stretch.size);
        const bool isCut = there.size() < stretch.size;
        if (asJson_) {
            printJson(stretch, there, isCut, byte);
        } else {
            printLine(stretch, there, isCut, byte);
        }
        ++printed_;
    }

    void printLine(const Stretch& stretch, std::string_view there, bool isCut, std::size_t byte) const
    {
        const bool isLong = there.size() > kShownBytes;
        std::string hex = hexOf(there.substr(0, isLong ? kShownBytes - 1 : kShownBytes), " ");
        hex += isLong ? " .." : "";
        std::string text = "  padding";
        if (!stretch.isPadding) {
            text =
                "  " + stretch.field.path + "  " +
                (isCut ? "cut off" : shortText(stretch.field, session_.record(stretch.field.pCategory->category.pKey)));
        }
        if (byte != 0 && stretch.size > 1) {
            text += "  (byte " + std::to_string(byte) + " of " + std::to_string(stretch.size) + ')';
        }
        std::printf("0x%06zx %7zu  %-23s%s%s\n", stretch.begin, stretch.begin, hex.c_str(), text.c_str(),
                    stretch.isInUse ? "" : "  (not in use)");
    }

    void printJson(const Stretch& stretch, std::string_view there, bool isCut, std::size_t byte) const
    {
        std::string text =
            R"({"offset": )" + std::to_string(stretch.begin) + R"(, "size": )" + std::to_string(stretch.size);
        text += byte == 0 ? "" : R"(, "byte": )" + std::to_string(byte);
        text += R"(, "bytes": ")" + hexOf(there, "") + '"';
        const bool isValue = !stretch.isPadding && !isCut;
        text += R"(, "path": )" + (stretch.isPadding ? "null" : jsonText(stretch.field.path)) + R"(, "isInUse": )" +
                (stretch.isInUse ? "true" : "false") + R"(, "value": )" +
                (isValue ? rowText(stretch.field, session_.record(stretch.field.pCategory->category.pKey)) : "null");
        std::printf("%s%s}", byte != 0 ? "" : (printed_ == 0 ? "\n  " : ",\n  "), text.c_str());
    }

    bool asJson_;
    const Input& input_;
    std::string_view bytes_;
    Session& session_;
    const std::vector<Category>& categories_;
    std::size_t end_ = 0;
    std::size_t printed_ = 0;
};

/// Only a name that says otherwise is taken for no image.
bool isText(const std::string& name)
{
    return name.ends_with(".json") || name.ends_with(".ini") || name.ends_with(".txt");
}

} // namespace

ExitStatus dump(const Options& options)
{
    const std::string& name = options.words[0];
    if (options.offset.has_value() && options.words.size() > 1) {
        return refuseUsage(options, "either a path or --at");
    }
    if (isText(name)) {
        complain(name + " is no image; qvdb convert makes one of it");
        return kRefused;
    }
    Options asImage = options;
    asImage.from = formName(Form::Image);
    Tracing tracing(options);
    Session session(tracing);
    Input input;
    if (!session.open() || !readInput(name, asImage, input)) {
        return kRefused;
    }
    const PathTree tree;
    Dump dump(options, input, session);
    if (options.offset.has_value()) {
        return dump.dumpAt(tree, *options.offset);
    }
    return options.words.size() > 1 ? dump.dumpPath(tree, options.words[1]) : dump.dumpAll(tree);
}

} // namespace qv::tools
