#include "grids.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "heat_map.h"
#include "html.h"

namespace qv::tools::page {
namespace {

using Numbers = std::vector<double>;

const void* recordOf(const Target& field, const Session& session)
{
    return session.record(field.pCategory->category.pKey);
}

Numbers numbersOf(const Target& field, const Session& session)
{
    const std::byte* pBytes = bytesOf(field, recordOf(field, session));
    Numbers numbers;
    for (std::size_t i = 0; pBytes != nullptr && i < field.elements(); ++i) {
        numbers.push_back(numberAt(field.pNode->field, pBytes + i * field.pNode->field.width));
    }
    return numbers;
}

double greatest(const Numbers& numbers)
{
    double most = 0;
    for (const double number : numbers) {
        most = std::isfinite(number) ? std::max(most, std::abs(number)) : most;
    }
    return most;
}

std::string cell(double value, double most, const char* pClass)
{
    return std::string("<span class=\"") + pClass + "\" style=\"background:" + cellColour(value, most) + "\">" +
           shortNumber(value) + "</span>";
}

/// What the picture of a map shows, for whoever doesn't see it.
std::string mapLabel(const std::string& path, const Numbers& values, const char* pScale)
{
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return path + ", " + pScale + ": from " + shortNumber(*least) + " to " + shortNumber(*most);
}

std::string mapImage(const HeatMap& map, const std::string& label, const std::string& name)
{
    return "<div><img alt=\"" + escaped(label) + "\" title=\"" + escaped(label) + "\" src=\"" + pngOf(map) +
           "\"><small>" + escaped(name) + "</small></div>";
}

struct Channel {
    std::string path;
    std::string name;
    std::array<Numbers, 2> values;
};

void takeRange(const Numbers& values, double& low, double& high)
{
    for (const double value : values) {
        if (std::isfinite(value)) {
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
}

/// One row of maps with one scale, or each with its own.
std::string mapRow(const std::vector<Channel>& channels, std::size_t side, std::size_t rows, std::size_t columns,
                   bool isCommon, const std::string& title)
{
    double low = INFINITY;
    double high = -INFINITY;
    for (const Channel& channel : channels) {
        takeRange(channel.values[side], low, high);
    }
    std::string text =
        "<div class=\"row\"><h5>" + title + (isCommon ? ", one scale" : ", each with its own scale") + "</h5>";
    for (const Channel& channel : channels) {
        double ownLow = INFINITY;
        double ownHigh = -INFINITY;
        takeRange(channel.values[side], ownLow, ownHigh);
        const HeatMap map{rows, columns, channel.values[side], isCommon ? low : ownLow, isCommon ? high : ownHigh,
                          false};
        text +=
            mapImage(map, mapLabel(channel.path, channel.values[side], isCommon ? "scale of all" : "scale of its own"),
                     channel.name + (isCommon ? "" : " " + shortNumber(ownLow) + " … " + shortNumber(ownHigh)));
    }
    return text + (isCommon ? colourBar(low, high, false) : "") + "</div>";
}

std::string differenceRow(const std::vector<Channel>& channels, std::size_t rows, std::size_t columns)
{
    std::vector<Numbers> differences;
    double most = 0;
    for (const Channel& channel : channels) {
        differences.emplace_back();
        for (std::size_t i = 0; i < channel.values[0].size(); ++i) {
            differences.back().push_back(channel.values[1][i] - channel.values[0][i]);
        }
        most = std::max(most, greatest(differences.back()));
    }
    std::string text = "<div class=\"row\"><h5>B − A</h5>";
    for (std::size_t i = 0; i < channels.size(); ++i) {
        text += mapImage({rows, columns, differences[i], -most, most, true},
                         mapLabel(channels[i].path, differences[i], "difference of B from A"), channels[i].name);
    }
    return text + colourBar(-most, most, true) + "</div>";
}

/// The place of a region among its numbers.
struct Window {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    std::size_t side = 0;
    std::string name;

    bool isEmpty() const { return !(width > 0) || !(height > 0); }
};

/// Takes the numbers of a rectangle out of its record, by the names that its type gives them.
void takeMembers(const Target& record, const void* pRecord, Window& window)
{
    for (const PathNode& node : PathTree::membersOf(record)) {
        const Target member = PathTree::member(record, node);
        if (node.isRecord()) {
            takeMembers(member, pRecord, window);
            continue;
        }
        const std::string_view name = node.field.pName == nullptr ? "" : node.field.pName;
        double* pPlace = name == "x"       ? &window.x
                         : name == "y"     ? &window.y
                         : name == "width" ? &window.width
                                           : &window.height;
        *pPlace = numberOf(member, pRecord);
    }
}

void takeWindows(const Target& field, std::size_t side, const Session& session, std::vector<Window>& windows)
{
    Window window;
    window.side = side;
    window.name = field.path;
    if (field.pNode->isRecord() && field.rank == 0) {
        takeMembers(field, recordOf(field, session), window);
        windows.push_back(window);
    } else if (field.pNode->isRecord() || field.rank == 2) {
        const std::size_t used = usedItems(field, recordOf(field, session));
        for (std::size_t i = 0; i < used; ++i) {
            takeWindows(PathTree::item(field, i), side, session, windows);
        }
    } else if (field.rank == 1 && field.extents[0] >= 4) {
        const Numbers numbers = numbersOf(field, session);
        window.x = numbers[0];
        window.y = numbers[1];
        window.width = numbers[2];
        window.height = numbers[3];
        windows.push_back(window);
    }
}

} // namespace

std::string matrixOf(const Target& field, std::span<const Session* const> sides)
{
    const std::size_t rows = field.pNode->field.roleRows;
    const std::size_t columns = field.pNode->field.roleColumns;
    std::vector<Numbers> values;
    double most = 0;
    for (const Session* pSession : sides) {
        values.push_back(numbersOf(field, *pSession));
        most = std::max(most, greatest(values.back()));
    }
    if (most == 0) {
        return "";
    }
    const std::size_t size = rows * columns;
    const bool isDifferent = sides.size() == 2 && values[0] != values[1];
    std::string text;
    for (std::size_t begin = 0; size > 0 && begin + size <= values[0].size(); begin += size) {
        text += "<table class=\"matrix\" aria-label=\"" + escaped(field.path) + ", " + std::to_string(rows) + " by " +
                std::to_string(columns) + (rows > 1 ? ", sums of the rows behind them" : "") + "\">";
        for (std::size_t i = 0; i < rows; ++i) {
            text += "<tr>";
            std::array<double, 2> sums{};
            for (std::size_t k = 0; k < columns; ++k) {
                text += "<td>";
                for (std::size_t side = 0; side < (isDifferent ? 2U : 1U); ++side) {
                    const double value = values[side][begin + i * columns + k];
                    sums[side] += value;
                    text += cell(value, most, !isDifferent ? "" : (side == 0 ? "a" : "b"));
                }
                text += "</td>";
            }
            if (rows > 1) {
                text += "<th>Σ " + shortNumber(sums[0]) + (isDifferent ? "<br>" + shortNumber(sums[1]) : "") + "</th>";
            }
            text += "</tr>";
        }
        text += "</table>";
    }
    return text;
}

std::string mapsOf(std::span<const Target> fields, std::span<const Session* const> sides)
{
    const QvDatabaseCatalogField_t& row = fields.front().pNode->field;
    const std::size_t size = row.roleRows * row.roleColumns;
    std::vector<Channel> channels;
    for (const Target& field : fields) {
        // The dimensions in front of the grid's own are channels, too.
        const std::size_t number = size == 0 ? 0 : field.elements() / size;
        for (std::size_t i = 0; i < number; ++i) {
            Channel channel{field.path, field.pNode->name + (number > 1 ? '[' + std::to_string(i) + ']' : ""), {}};
            for (std::size_t side = 0; side < sides.size(); ++side) {
                const Numbers numbers = numbersOf(field, *sides[side]);
                const auto begin = numbers.begin() + static_cast<std::ptrdiff_t>(i * size);
                channel.values[side].assign(begin, begin + static_cast<std::ptrdiff_t>(size));
            }
            channels.push_back(std::move(channel));
        }
    }
    const bool isEmpty = std::all_of(channels.begin(), channels.end(), [](const Channel& channel) {
        return greatest(channel.values[0]) == 0 && greatest(channel.values[1]) == 0;
    });
    if (isEmpty) {
        return "";
    }
    std::string text;
    const bool isSame = sides.size() == 2 && std::all_of(channels.begin(), channels.end(), [](const Channel& channel) {
                            return channel.values[0] == channel.values[1];
                        });
    for (std::size_t side = 0; side < (isSame ? 1 : sides.size()); ++side) {
        const std::string title = isSame ? "A and B" : sides.size() == 1 ? "values" : (side == 0 ? "A" : "B");
        text += mapRow(channels, side, row.roleRows, row.roleColumns, true, title);
        if (channels.size() > 1) {
            text += mapRow(channels, side, row.roleRows, row.roleColumns, false, title);
        }
    }
    return sides.size() == 2 && !isSame ? text + differenceRow(channels, row.roleRows, row.roleColumns) : text;
}

std::string windowsOf(const Target& field, std::span<const Session* const> sides)
{
    std::vector<Window> windows;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        takeWindows(field, side, *sides[side], windows);
    }
    std::erase_if(windows, [](const Window& window) { return window.isEmpty(); });
    if (windows.empty()) {
        return "";
    }
    double right = 0;
    double bottom = 0;
    std::string words;
    for (const Window& window : windows) {
        right = std::max(right, window.x + window.width);
        bottom = std::max(bottom, window.y + window.height);
        words += (words.empty() ? "" : "; ") +
                 (sides.size() == 2 ? std::string(window.side == 0 ? "A " : "B ") : std::string()) +
                 shortNumber(window.width) + " x " + shortNumber(window.height) + " at " + shortNumber(window.x) +
                 ", " + shortNumber(window.y);
    }
    // Regions in parts of the image fill one; regions in pixels reach as far as they do.
    right = right <= 1 && bottom <= 1 ? 1 : right;
    bottom = right == 1 ? 1 : bottom;
    const double scale = 2400 / std::max(right, bottom * 1.4);
    const auto place = [&](double value) { return std::to_string(std::lround(value * scale)); };
    std::string text = "<svg class=\"windows\" viewBox=\"-20 -20 " + place(right + 60 / scale) + ' ' +
                       place(bottom + 60 / scale) + "\" role=\"img\" aria-label=\"" +
                       escaped(field.path + ": " + words) + "\"><rect class=\"frame\" width=\"" + place(right) +
                       "\" height=\"" + place(bottom) + "\"/>";
    for (const Window& window : windows) {
        text += std::string("<rect class=\"") + (window.side == 0 ? "a" : "b") + "\" x=\"" + place(window.x) +
                "\" y=\"" + place(window.y) + "\" width=\"" + place(window.width) + "\" height=\"" +
                place(window.height) + "\"><title>" + escaped(window.name) + "</title></rect>";
    }
    return text + "</svg><p class=\"words\">" + escaped(words) + "</p>";
}

} // namespace qv::tools::page
