#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "commands.h"
#include "leaves.h"
#include "output.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {
namespace {

constexpr const char* kCaution =
    "values between gain points are a reader's aid: the layers above the library decide them";

/// The lists of one record that run along its gain points.
struct Schedule {
    Target record;
    Target axis;
    std::vector<Target> lists;
};

/// Where a gain stands among points: at one, or between two.
struct Position {
    std::size_t rising = 0; ///< points from the first on that rise
    std::size_t lower = 0;
    std::size_t upper = 0;
    double share = 0; ///< of the way from the lower point to the upper one
    const char* pWhere = "at";
};

/// Whether a path leads to a place that another one names or to a part of it.
bool isWithin(std::string_view path, std::string_view other)
{
    return path.starts_with(other) &&
           (other.empty() || path.size() == other.size() || path[other.size()] == '.' || path[other.size()] == '[');
}

/// Collects the schedules of records below a target, as far as lists are in use.
void findSchedules(const Target& target, const void* pRecord, std::vector<Schedule>& schedules)
{
    if (target.rank > 0) {
        const std::size_t used = target.pNode->isRecord() ? usedItems(target, pRecord) : 0;
        for (std::size_t i = 0; i < used; ++i) {
            findSchedules(PathTree::item(target, i), pRecord, schedules);
        }
        return;
    }
    if (target.isElement()) {
        return;
    }
    Schedule schedule{target, {}, {}};
    for (const PathNode& node : PathTree::membersOf(target)) {
        const Target member = PathTree::member(target, node);
        findSchedules(member, pRecord, schedules);
        if (node.field.role == QvDatabaseCatalogRole_GainAxis && !node.isGroup()) {
            schedule.axis = member;
        } else if (member.rank > 0 && !node.isRecord()) {
            schedule.lists.push_back(member);
        }
    }
    if (schedule.axis.pNode != nullptr) {
        std::erase_if(schedule.lists, [&](const Target& list) { return list.extents[0] != schedule.axis.extents[0]; });
        schedules.push_back(std::move(schedule));
    }
}

/// The schedules, cut to the lists that a path names. A path that leads deeper names no list.
std::vector<Schedule> chosenBy(const Target& wanted, const std::vector<Schedule>& all)
{
    std::vector<Schedule> chosen;
    for (Schedule schedule : all) {
        const bool isWhole = isWithin(schedule.record.path, wanted.path) || schedule.axis.path == wanted.path;
        if (!isWhole) {
            std::erase_if(schedule.lists, [&](const Target& list) { return list.path != wanted.path; });
        }
        if (isWhole || !schedule.lists.empty()) {
            chosen.push_back(std::move(schedule));
        }
    }
    return chosen;
}

double pointAt(const Schedule& schedule, const void* pRecord, std::size_t index)
{
    return numberOf(PathTree::item(schedule.axis, index), pRecord);
}

Position positionOf(const Schedule& schedule, const void* pRecord, double gain)
{
    Position position;
    position.rising = 1;
    while (position.rising < schedule.axis.extents[0] &&
           pointAt(schedule, pRecord, position.rising) > pointAt(schedule, pRecord, position.rising - 1)) {
        ++position.rising;
    }
    const std::size_t last = position.rising - 1;
    if (!(gain >= pointAt(schedule, pRecord, 0))) {
        position.pWhere = "below";
    } else if (gain > pointAt(schedule, pRecord, last)) {
        position.pWhere = "beyond";
        position.lower = position.upper = last;
    } else {
        while (position.lower < last && pointAt(schedule, pRecord, position.lower + 1) <= gain) {
            ++position.lower;
        }
        position.upper = position.lower;
        const double lower = pointAt(schedule, pRecord, position.lower);
        if (gain > lower) {
            ++position.upper;
            position.share = (gain - lower) / (pointAt(schedule, pRecord, position.upper) - lower);
            position.pWhere = "between";
        }
    }
    return position;
}

/// A row of a list, whatever stands for one element.
template <typename TextOf>
std::string rowText(const Target& row, const TextOf& textOf)
{
    if (row.rank == 0) {
        return textOf(row);
    }
    std::string text;
    for (std::size_t i = 0; i < row.extents[0]; ++i) {
        text += (i == 0 ? "" : ", ") + rowText(PathTree::item(row, i), textOf);
    }
    return '[' + text + ']';
}

class Report {
public:
    Report(const Options& options, const Session& session)
        : asJson_(options.asJson), gain_(*options.gain), how_(options.interpolation), session_(session)
    {
    }

    void begin() const
    {
        if (asJson_) {
            std::printf("{\n  \"gain\": %s,\n  \"note\": %s,\n  \"schedules\": [", numberText(gain_).c_str(),
                        jsonText(kCaution).c_str());
        }
    }

    void print(const Schedule& schedule)
    {
        pRecord_ = session_.record(schedule.record.pCategory->category.pKey);
        position_ = positionOf(schedule, pRecord_, gain_);
        if (asJson_) {
            printJson(schedule);
        } else {
            printLines(schedule);
        }
        ++printed_;
    }

    void end() const
    {
        if (asJson_) {
            std::printf("\n  ]\n}\n");
        } else if (!how_.empty()) {
            std::printf("%s\n", kCaution);
        }
    }

private:
    static std::string numberText(double number)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.7g", number);
        return text;
    }

    bool isSingle() const { return position_.lower == position_.upper; }

    std::string rowOf(const Target& list, std::size_t index) const
    {
        return rowText(PathTree::item(list, index),
                       [this](const Target& element) { return valueText(element, pRecord_); });
    }

    /// What stands between two rows: numbers on the line between them, or what is nearer; that alone where numbers are
    /// names or bits.
    std::string between(const Target& list) const
    {
        const QvDatabaseCatalogField_t& field = list.pNode->field;
        const bool isQuantity = field.element >= QvDatabaseCatalogElement_Integer &&
                                field.element <= QvDatabaseCatalogElement_Double && field.valueNumber == 0 &&
                                field.role != QvDatabaseCatalogRole_Bits;
        if (how_ == "nearest" || isSingle() || !isQuantity) {
            return rowOf(list, position_.share > 0.5 ? position_.upper : position_.lower);
        }
        const Target lower = PathTree::item(list, position_.lower);
        const std::size_t step = PathTree::item(list, position_.upper).offset - lower.offset;
        return rowText(lower, [&](const Target& element) {
            Target other = element;
            other.offset += step;
            const double from = numberOf(element, pRecord_);
            const double value = from + position_.share * (numberOf(other, pRecord_) - from);
            return std::isfinite(value) ? numberText(value) : std::string("null");
        });
    }

    std::string pointText(const Schedule& schedule, std::size_t index) const
    {
        return '[' + std::to_string(index) + "] " + valueText(PathTree::item(schedule.axis, index), pRecord_);
    }

    void printLines(const Schedule& schedule) const
    {
        std::string where = std::string(position_.pWhere) + " the " + (position_.lower == 0 ? "first" : "last") +
                            " point, " + pointText(schedule, position_.lower);
        if (position_.pWhere == std::string_view("at")) {
            where = "at point " + pointText(schedule, position_.lower);
        } else if (!isSingle()) {
            where = "between " + pointText(schedule, position_.lower) + " and " + pointText(schedule, position_.upper);
        }
        std::printf("%s  gain %s is %s\n", schedule.record.path.c_str(), numberText(gain_).c_str(), where.c_str());
        if (position_.rising < schedule.axis.extents[0]) {
            std::printf("  %s rises up to [%zu] alone; the points behind it are left out\n",
                        schedule.axis.pNode->name.c_str(), position_.rising - 1);
        }
        for (const Target& list : schedule.lists) {
            // Rows that are lists stand below each other.
            const bool isLong = list.rank > 1;
            const std::string gap = isLong ? "\n  " + std::string(kNameWidth, ' ') + ' ' : "  ";
            std::string text = '[' + std::to_string(position_.lower) + "] " + rowOf(list, position_.lower);
            if (!isSingle()) {
                text += gap + '[' + std::to_string(position_.upper) + "] " + rowOf(list, position_.upper);
            }
            if (!how_.empty()) {
                text += gap + how_ + ' ' + between(list);
            }
            std::printf("  %-*s %s\n", static_cast<int>(kNameWidth), list.pNode->name.c_str(), text.c_str());
        }
    }

    void printJson(const Schedule& schedule) const
    {
        std::string points = rowJson(schedule.axis);
        std::printf(
            "%s\n    {\"path\": %s, \"axis\": %s, \"where\": \"%s\", \"risingPoints\": %zu,\n"
            "     \"points\": %s, \"gains\": %s, \"lists\": [",
            printed_ == 0 ? "" : ",", jsonText(schedule.record.path).c_str(), jsonText(schedule.axis.path).c_str(),
            position_.pWhere, position_.rising,
            isSingle() ? ('[' + std::to_string(position_.lower) + ']').c_str()
                       : ('[' + std::to_string(position_.lower) + ", " + std::to_string(position_.upper) + ']').c_str(),
            points.c_str());
        const char* pSeparator = "";
        for (const Target& list : schedule.lists) {
            std::printf("%s\n      {\"path\": %s, \"rows\": %s%s}", pSeparator, jsonText(list.path).c_str(),
                        rowJson(list).c_str(), how_.empty() ? "" : (", \"" + how_ + "\": " + between(list)).c_str());
            pSeparator = ",";
        }
        std::printf("]}");
    }

    std::string rowJson(const Target& list) const
    {
        return '[' + rowOf(list, position_.lower) + (isSingle() ? "" : ", " + rowOf(list, position_.upper)) + ']';
    }

    static constexpr std::size_t kNameWidth = 20;

    bool asJson_;
    double gain_;
    const std::string& how_;
    const Session& session_;
    const void* pRecord_ = nullptr;
    Position position_;
    std::size_t printed_ = 0;
};

} // namespace

ExitStatus at(const Options& options)
{
    if (!options.gain.has_value() || !std::isfinite(*options.gain)) {
        return refuseUsage(options, "wants --gain with a number");
    }
    const std::string& path = options.words[1];
    Tracing tracing(options);
    Session session(tracing);
    Input input;
    if (!session.openWith(options.words[0], options, input)) {
        return kRefused;
    }
    const PathTree tree(options.names == "simulator");
    std::vector<Target> targets;
    std::string error;
    if (!tree.find(path, &session, targets, error)) {
        complain(error);
        return kRefused;
    }
    std::vector<Schedule> chosen;
    for (const Target& target : targets) {
        std::vector<Schedule> all;
        findSchedules(PathTree::whole(*target.pCategory), session.record(target.pCategory->category.pKey), all);
        std::vector<Schedule> ofTarget = chosenBy(target, all);
        std::move(ofTarget.begin(), ofTarget.end(), std::back_inserter(chosen));
    }
    if (chosen.empty()) {
        complain(path + ": nothing there runs along a gain, or no schedule is in use");
        return kRefused;
    }
    Report report(options, session);
    report.begin();
    for (const Schedule& schedule : chosen) {
        report.print(schedule);
    }
    report.end();
    return kDone;
}

} // namespace qv::tools
