#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

#include "content.h"
#include "grids.h"
#include "html.h"

namespace qv::tools::page {
namespace {

using Role = QvDatabaseCatalogRole_t;

Role roleOf(const PathNode& node)
{
    return node.isGroup() ? QvDatabaseCatalogRole_None : node.field.role;
}

bool isNumeric(const PathNode& node)
{
    return !node.isGroup() && (node.field.element == QvDatabaseCatalogElement_Integer ||
                               node.field.element == QvDatabaseCatalogElement_Float ||
                               node.field.element == QvDatabaseCatalogElement_Double);
}

const PathNode* withRole(const std::vector<PathNode>& members, Role role)
{
    for (const PathNode& node : members) {
        if (roleOf(node) == role) {
            return &node;
        }
    }
    return nullptr;
}

/// The field that a role names, by its C name.
const PathNode* otherOf(const std::vector<PathNode>& members, const PathNode& node)
{
    for (const PathNode& each : members) {
        if (node.field.pOther != nullptr && each.field.pName != nullptr &&
            std::string_view(each.field.pName) == node.field.pOther) {
            return &each;
        }
    }
    return nullptr;
}

std::string rangeOf(const std::vector<Line>& lines)
{
    double low = INFINITY;
    double high = -INFINITY;
    for (const Line& line : lines) {
        for (const double y : line.y) {
            low = std::min(low, y);
            high = std::max(high, y);
        }
    }
    return low > high ? "no values" : "values from " + shortNumber(low) + " to " + shortNumber(high);
}

std::string listText(const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers) {
        text += (text.empty() ? "[" : ",") + (std::isfinite(number) ? shortNumber(number) : std::string("null"));
    }
    return text.empty() ? "[]" : text + ']';
}

/// Head of a figure: name, unit and meaning.
std::string figureHead(const std::string& id, const std::string& attributes, const Target& field,
                       const std::string& title)
{
    const QvDatabaseCatalogField_t& row = field.pNode->field;
    std::string text = "<figure id=\"" + id + '"' + attributes + "><figcaption><code>" + escaped(title) + "</code>";
    if (row.pUnit != nullptr) {
        text += " <small>" + escaped(row.pUnit) + "</small>";
    }
    return text + " <span>" + meaningOf(row.pMeaning) + "</span></figcaption>";
}

class Maker {
public:
    explicit Maker(std::span<const Session* const> sides) : sides_(sides) {}

    Pictures take() { return std::move(pictures_); }

    void takeCategory(const PathCategory& category)
    {
        parts_ = {};
        takeRecord(PathTree::whole(category));
        const std::string name = category.name.empty() ? "calibration" : category.name;
        std::string* pages[] = {&pictures_.curves, &pictures_.schedules, &pictures_.matrices, &pictures_.maps};
        const std::string* parts[] = {&parts_.curves, &parts_.schedules, &parts_.matrices, &parts_.maps};
        for (std::size_t i = 0; i < 4; ++i) {
            if (parts[i]->empty()) {
                continue;
            }
            // Few pictures a record stand close together, each with its whole path; the others have a head.
            const bool hasHead = i == 1 || i == 3;
            *pages[i] += hasHead ? "<section class=\"category\"><h3>" + escaped(name) + " <small>" +
                                       meaningOf(category.category.pMeaning, true) + "</small></h3>" + *parts[i] +
                                       "</section>"
                                 : *parts[i];
        }
    }

private:
    std::size_t usedOf(const Target& list, std::size_t side) const
    {
        return usedItems(list, sides_[side]->record(list.pCategory->category.pKey));
    }
    /// As far as either set goes.
    std::size_t usedOf(const Target& list) const
    {
        std::size_t used = 0;
        for (std::size_t side = 0; side < sides_.size(); ++side) {
            used = std::max(used, usedOf(list, side));
        }
        return list.heapOffset == SIZE_MAX ? used : 0; // what lies on the heap is shown as a table
    }

    std::vector<double> numbersOf(const Target& list, std::size_t side) const
    {
        const std::byte* pBytes =
            bytesOf(list, static_cast<const void*>(sides_[side]->record(list.pCategory->category.pKey)));
        std::vector<double> numbers;
        for (std::size_t i = 0; i < list.elements(); ++i) {
            numbers.push_back(numberAt(list.pNode->field, pBytes + i * list.pNode->field.width));
        }
        return numbers;
    }

    std::string sideName(std::size_t side) const { return sides_.size() == 1 ? "" : (side == 0 ? "A " : "B "); }

    /// Opens a figure and remembers that the field has one.
    std::string begin(const std::string& record, const Target& field, const std::string& attributes = "",
                      bool isShort = false)
    {
        note(record, *field.pNode, *field.pNode);
        pictures_.figures.insert(idOf(record + '.' + field.pNode->name));
        const std::string title = isShort ? field.pNode->name : field.path + (itemName_.empty() ? "" : ' ' + itemName_);
        return figureHead(idOf(record + '.' + field.pNode->name), attributes, field, title);
    }
    void note(const std::string& record, const PathNode& node, const PathNode& shownBy)
    {
        pictures_.ids[{&node, record}] = idOf(record + '.' + shownBy.name);
    }

    void takeRecord(const Target& record)
    {
        const std::vector<PathNode>& members = PathTree::membersOf(record);
        takeMaps(record, members);
        for (const PathNode& node : members) {
            const Target field = PathTree::member(record, node);
            if (node.isGroup()) {
                takeRecord(field);
            } else if (roleOf(node) == QvDatabaseCatalogRole_Window) {
                takeIfAny(record, field, windowsOf(field, sides_));
            } else if (node.isRecord()) {
                takeRecords(field, node);
            } else if (roleOf(node) == QvDatabaseCatalogRole_CurveY || roleOf(node) == QvDatabaseCatalogRole_Curve) {
                takeCurve(record, field, members);
            } else if (roleOf(node) == QvDatabaseCatalogRole_Matrix && field.heapOffset == SIZE_MAX) {
                takeIfAny(record, field, matrixOf(field, sides_));
            }
        }
    }

    /// A picture of nothing but zeros is none; the field then stands in the tables.
    void takeIfAny(const Target& record, const Target& field, const std::string& picture)
    {
        if (!picture.empty()) {
            parts_.matrices += begin(record.path, field) + picture + "</figure>";
        }
    }

    void takeRecords(const Target& list, const PathNode& node)
    {
        if (const PathNode* pAxis = withRole(node.members, QvDatabaseCatalogRole_GainAxis);
            pAxis != nullptr && list.rank == 1) {
            takeSchedules(list, *pAxis);
            return;
        }
        if (list.rank == 0) {
            takeRecord(list);
            return;
        }
        const std::size_t used = usedOf(list);
        for (std::size_t i = 0; i < used; ++i) {
            takeItem(PathTree::item(list, i));
        }
    }

    void takeItem(const Target& item)
    {
        if (item.rank > 0) {
            takeRecords(item, *item.pNode);
            return;
        }
        const std::string outer = itemName_;
        itemName_ = itemName(item);
        takeRecord(item);
        itemName_ = outer;
    }

    /// The first text of a record, by which people know it.
    std::string itemName(const Target& item) const
    {
        for (const PathNode& node : item.pNode->members) {
            if (!node.isGroup() && node.field.element == QvDatabaseCatalogElement_Text && node.field.rank == 0) {
                return textOf(PathTree::member(item, node), sides_[0]->record(item.pCategory->category.pKey));
            }
        }
        return "";
    }

    void takeCurve(const Target& record, const Target& field, const std::vector<PathNode>& members)
    {
        if (field.rank != 1 || field.heapOffset != SIZE_MAX) {
            return;
        }
        const PathNode* pX =
            roleOf(*field.pNode) == QvDatabaseCatalogRole_CurveY ? otherOf(members, *field.pNode) : nullptr;
        LinePicture picture;
        for (std::size_t side = 0; side < sides_.size(); ++side) {
            picture.lines.push_back(
                {positions(record, pX, field, side), numbersOf(field, side), side, 0, sideName(side)});
        }
        picture.label =
            field.path + ": curve of " + std::to_string(field.extents[0]) + " points, " + rangeOf(picture.lines);
        parts_.curves += begin(record.path, field) + svgOf(picture) + "</figure>";
        if (pX != nullptr) {
            note(record.path, *pX, *field.pNode);
        }
    }

    /// Positions of a curve: those of the other field where they rise, else the points are counted.
    std::vector<double> positions(const Target& record, const PathNode* pX, const Target& field, std::size_t side) const
    {
        std::vector<double> x;
        if (pX != nullptr) {
            x = numbersOf(PathTree::member(record, *pX), side);
        }
        const bool rises = x.size() == field.extents[0] && std::is_sorted(x.begin(), x.end()) && x.front() != x.back();
        if (!rises) {
            x.clear();
            for (std::size_t i = 0; i < field.extents[0]; ++i) {
                x.push_back(static_cast<double>(i));
            }
        }
        return x;
    }

    /// Everything that runs along a gain axis, of all schedules at once.
    void takeSchedules(const Target& list, const PathNode& axis)
    {
        struct Schedule {
            std::size_t side;
            std::size_t index;
            Target record;
            std::vector<double> gains;
        };
        std::vector<Schedule> schedules;
        std::string gains;
        for (std::size_t side = 0; side < sides_.size(); ++side) {
            for (std::size_t i = 0; i < usedOf(list, side); ++i) {
                const Target record = PathTree::item(list, i);
                schedules.push_back({side, i, record, numbersOf(PathTree::member(record, axis), side)});
                gains += (gains.empty() ? "[" : ",") + ("[" + std::to_string(side)) + ',' + std::to_string(i) + ',' +
                         listText(schedules.back().gains) + ']';
            }
        }
        if (schedules.empty()) {
            return;
        }
        std::string text;
        const Target& first = schedules.front().record;
        const std::string all = list.path + "[]"; // one figure shows all schedules
        for (const PathNode& node : list.pNode->members) {
            const Target shape = PathTree::member(first, node);
            if (!isNumeric(node) || &node == &axis || shape.rank == 0 || shape.rank > 2 ||
                shape.extents[0] != axis.field.extents[0]) {
                continue;
            }
            if (roleOf(node) == QvDatabaseCatalogRole_CurveX) {
                if (const PathNode* pY = otherOf(list.pNode->members, node); pY != nullptr) {
                    note(all, node, *pY);
                }
                continue;
            }
            const bool isCurve =
                shape.rank == 2 && (roleOf(node) != QvDatabaseCatalogRole_None || shape.extents[1] > 16);
            const PathNode* pX =
                roleOf(node) == QvDatabaseCatalogRole_CurveY ? otherOf(list.pNode->members, node) : nullptr;
            LinePicture picture;
            picture.isOverGain = !isCurve;
            picture.fadesWithGain = isCurve;
            std::string values;
            for (const Schedule& schedule : schedules) {
                const Target field = PathTree::member(schedule.record, node);
                const std::vector<double> numbers = numbersOf(field, schedule.side);
                const std::string name =
                    sideName(schedule.side) + list.pNode->name + '[' + std::to_string(schedule.index) + ']';
                const std::size_t columns = shape.extents[1];
                for (std::size_t k = 0; k < (isCurve ? schedule.gains.size() : columns); ++k) {
                    Line line{{}, {}, schedule.side, 0, name};
                    if (isCurve) {
                        line.gain = schedule.gains[k];
                        const Target row = PathTree::item(field, k);
                        const Target rowX =
                            pX == nullptr ? row : PathTree::item(PathTree::member(schedule.record, *pX), k);
                        line.y = numbersOf(row, schedule.side);
                        line.x = pX == nullptr ? counted(line.y.size()) : rising(numbersOf(rowX, schedule.side));
                    } else {
                        for (std::size_t i = 0; i < schedule.gains.size(); ++i) {
                            line.x.push_back(schedule.gains[i]);
                            line.y.push_back(numbers[i * columns + k]);
                        }
                    }
                    dropWithoutGain(line, isCurve);
                    if (!line.x.empty()) {
                        picture.lines.push_back(std::move(line));
                    }
                }
                values += (values.empty() ? "[" : ",") + (shape.rank == 1 ? listText(numbers) : std::string("[]"));
            }
            if (node.isOnlyInMemory && !hasValues(picture)) {
                continue; // in files of no form but images, and not there
            }
            picture.label = all + '.' + node.name + (isCurve ? ": a curve for each gain" : " over gain") + " of " +
                            std::to_string(schedules.size()) + " schedules, " + rangeOf(picture.lines);
            text += begin(all, shape, shape.rank == 1 ? " data-values=\"" + values + "]\"" : "", true) +
                    svgOf(picture) + "<output></output></figure>";
        }
        note(all, axis, axis);
        parts_.schedules += "<div class=\"schedules\" id=\"" + idOf(all + '.' + axis.name) + "\" data-gains=\"" +
                            gains + "]\">" + text + "</div>";
    }

    static bool hasValues(const LinePicture& picture)
    {
        for (const Line& line : picture.lines) {
            if (std::any_of(line.y.begin(), line.y.end(), [](double value) { return value != 0; })) {
                return true;
            }
        }
        return false;
    }

    static std::vector<double> counted(std::size_t number)
    {
        std::vector<double> x;
        for (std::size_t i = 0; i < number; ++i) {
            x.push_back(static_cast<double>(i));
        }
        return x;
    }
    static std::vector<double> rising(std::vector<double> x)
    {
        return std::is_sorted(x.begin(), x.end()) && x.front() != x.back() ? x : counted(x.size());
    }
    /// A gain of 0 or less is no point of a schedule, and has no place on the axis.
    static void dropWithoutGain(Line& line, bool isCurve)
    {
        if (isCurve) {
            if (!(line.gain > 0)) {
                line.x.clear();
            }
            return;
        }
        for (std::size_t i = line.x.size(); i-- > 0;) {
            if (!(line.x[i] > 0)) {
                line.x.erase(line.x.begin() + static_cast<std::ptrdiff_t>(i));
                line.y.erase(line.y.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
    }

    /// Maps of one record lie side by side, since they are channels of the same thing.
    void takeMaps(const Target& record, const std::vector<PathNode>& members)
    {
        std::vector<Target> maps;
        for (const PathNode& node : members) {
            if (roleOf(node) == QvDatabaseCatalogRole_Map) {
                maps.push_back(PathTree::member(record, node));
            } else if (roleOf(node) == QvDatabaseCatalogRole_Weights) {
                const Target weights = PathTree::member(record, node);
                takeIfAny(record, weights, mapsOf(std::span(&weights, 1), sides_));
            }
        }
        if (maps.empty()) {
            return;
        }
        const std::string pictures = mapsOf(maps, sides_);
        if (pictures.empty()) {
            return;
        }
        const PathNode& first = *maps.front().pNode;
        note(record.path, first, first);
        pictures_.figures.insert(idOf(record.path + '.' + first.name));
        const bool isOne = maps.size() == 1;
        parts_.maps +=
            figureHead(idOf(record.path + '.' + first.name), " class=\"maps\"", maps.front(),
                       (isOne ? maps.front().path : record.path) + (itemName_.empty() ? "" : ' ' + itemName_)) +
            pictures + "</figure>";
        for (std::size_t i = 1; i < maps.size(); ++i) {
            note(record.path, *maps[i].pNode, *maps.front().pNode);
        }
    }

    struct Parts {
        std::string curves;
        std::string schedules;
        std::string matrices;
        std::string maps;
    };

    std::span<const Session* const> sides_;
    Pictures pictures_;
    Parts parts_;
    std::string itemName_; ///< of the item of a list that is being looked through
};

} // namespace

Pictures picturesOf(const PathTree& tree, std::span<const Session* const> sides)
{
    Maker maker(sides);
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        maker.takeCategory(tree.category(key.pKey));
    }
    return maker.take();
}

std::string placeOf(const Pictures& pictures, const Target& field)
{
    const std::size_t end = field.pNode == nullptr ? std::string::npos : field.path.rfind('.' + field.pNode->name);
    if (end != std::string::npos) {
        std::string record = field.path.substr(0, end);
        for (int i = 0; i < 2; ++i) {
            if (const auto found = pictures.ids.find({field.pNode, record}); found != pictures.ids.end()) {
                return found->second;
            }
            record.erase(std::min(record.rfind('['), record.size())) += "[]"; // one for all schedules
        }
    }
    return idOf(field.path);
}

std::string idOf(const std::string& path)
{
    std::string id;
    for (const char character : path) {
        id += character == '[' ? '(' : (character == ']' ? ')' : character);
    }
    return id;
}

} // namespace qv::tools::page
