#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "../carriage.h"
#include "../check_file.h"
#include "../commands.h"
#include "../difference.h"
#include "../files.h"
#include "../layers.h"
#include "../leaves.h"
#include "../output.h"
#include "../path_tree.h"
#include "../session.h"
#include "content.h"
#include "html.h"
#include "page.h"

namespace qv::tools {
namespace {

using page::escaped;
using page::shortNumber;

/// One file and what came of it.
struct Side {
    explicit Side(Tracing& tracing) : session(tracing) {}

    Input input;
    Session session;
    Layer layer;
};

/// A row of the table of files; the calibration's header tells sensor and creator.
std::string fileRow(const PathTree& tree, const Side& side, const char* pName)
{
    std::string text = "<tr><th scope=\"row\">" + std::string(pName) + "</th><td><code>" + escaped(side.input.shown()) +
                       "</code></td>";
    for (const std::string& word : {std::string(formName(side.input.form)), side.layer.version, side.layer.date}) {
        text += "<td>" + escaped(word) + "</td>";
    }
    for (const char* pPath : {"header.sensor_name", "header.creator"}) {
        std::vector<Target> targets;
        std::string error;
        const bool isThere = tree.find(pPath, &side.session, targets, error) && targets.size() == 1;
        text += "<td>" +
                (isThere ? escaped(textOf(targets[0], side.session.record(targets[0].pCategory->category.pKey))) : "") +
                "</td>";
    }
    return text + "</tr>";
}

/// What a file sets, leaves at its default, and lacks, by category.
std::string chips(const Side& side, const Session& fresh)
{
    std::string text = "<ul class=\"chips\">";
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const LayerCategory* pSet = nullptr;
        for (const LayerCategory& each : side.layer.categories) {
            pSet = each.key == pCategory->pKey ? &each : pSet;
        }
        const bool isDefault =
            std::memcmp(side.session.record(pCategory->pKey), fresh.record(pCategory->pKey), pCategory->size) == 0;
        const char* pState = pSet == nullptr ? "absent" : (isDefault ? "default" : "set");
        text += std::string("<li class=\"") + pState + "\"><code>" + pCategory->pKey + "</code> <small>" + pState +
                (pSet != nullptr && pSet->values > 0 ? " " + std::to_string(pSet->values) : "") + "</small></li>";
    }
    return text + "</ul>";
}

/// What is wrong with a file, each with a link to where it is shown.
std::string findingsOf(const PathTree& tree, const Side& side, const page::Pictures& pictures, const Options& options)
{
    Findings findings(std::vector<bool>(faultKinds().size()));
    Document document;
    if (!findFaults(side.input, options, tree, document, findings)) {
        return "";
    }
    std::string rows;
    for (const Finding& finding : findings.sorted()) {
        const FaultKind& kind = kindOf(finding.fault);
        std::string place = std::to_string(finding.begin);
        if (side.input.form != Form::Image) {
            const TextPlace at = document.place(finding.begin);
            place = std::to_string(at.line) + ':' + std::to_string(at.column);
        }
        std::vector<Target> targets;
        std::string error;
        const bool isShown =
            !finding.path.empty() && tree.find(finding.path, &side.session, targets, error) && targets.size() == 1;
        const std::string path = "<code>" + escaped(finding.path) + "</code>";
        rows += std::string("<li class=\"") + (kind.severity == Severity::Error ? "error" : "warning") + "\"><code>" +
                place + "</code> " + (kind.severity == Severity::Error ? "error" : "warning") + ": " +
                (isShown ? "<a href=\"#" + page::placeOf(pictures, targets[0]) + "\">" + path + "</a>" : path) + " " +
                escaped(finding.text) + " <small>" + kind.pId + "</small></li>";
    }
    return rows.empty() ? ""
                        : "<h3>Findings in <code>" + escaped(side.input.shown()) +
                              "</code></h3><ul class=\"findings\" tabindex=\"0\">" + rows + "</ul>";
}

/// The words for one difference: old and new, or the sum of a list.
std::string differenceRow(const Difference& difference, const std::array<Side, 2>& sides,
                          const page::Pictures& pictures)
{
    const Target& field = difference.target;
    const auto line = [&](const std::string& path, const std::string& words) {
        return "<tr><td><a href=\"#" + page::placeOf(pictures, field) + "\"><code>" + escaped(path) +
               "</code></a></td>" + words + "</tr>";
    };
    if (difference.kind == Difference::Length) {
        return line(field.path, "<td>" + std::to_string(difference.lengths[0]) + " items</td><td>" +
                                    std::to_string(difference.lengths[1]) + " items</td>");
    }
    if (difference.kind == Difference::Sum) {
        return line(field.path, "<td colspan=\"2\">" + std::to_string(difference.number) + " of " +
                                    std::to_string(field.elements()) + " differ, at most by " +
                                    shortNumber(difference.by) + "</td>");
    }
    std::string text;
    for (const std::size_t index : difference.elements) {
        const Target element = elementOf(field, index);
        const char* pKey = field.pCategory->category.pKey;
        text += line(element.path, "<td>" + escaped(textOf(element, sides[0].session.record(pKey))) + "</td><td>" +
                                       escaped(textOf(element, sides[1].session.record(pKey))) + "</td>");
    }
    return text;
}

std::string differencesOf(const PathTree& tree, const std::array<Side, 2>& sides, const page::Pictures& pictures)
{
    std::string rows;
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        if (!isInSets(key) ||
            std::memcmp(sides[0].session.record(key.pKey), sides[1].session.record(key.pKey), key.recordSize) == 0) {
            continue;
        }
        const PathCategory& category = tree.category(key.pKey);
        for (const Difference& difference :
             differencesOf(category, Carriage(category.category), sides[0].session, sides[1].session, Rules{})) {
            rows += differenceRow(difference, sides, pictures);
        }
    }
    return "<h2 id=\"differences-title\">Differences</h2>" +
           (rows.empty()
                ? "<p>A and B are the same.</p>"
                : "<div class=\"wide\" "
                  "id=\"differences\"><table><thead><tr><th>path</th><th>A</th><th>B</th></tr></thead><tbody>" +
                      rows + "</tbody></table></div>");
}

std::string pageOf(const PathTree& tree, const std::array<Side, 2>& sides, std::size_t number, const Session& fresh,
                   const Options& options)
{
    std::vector<const Session*> sessions;
    for (std::size_t i = 0; i < number; ++i) {
        sessions.push_back(&sides[i].session);
    }
    const bool isPair = number == 2;
    const page::Pictures pictures = page::picturesOf(tree, sessions);
    const std::string title =
        escaped(sides[0].input.shown()) + (isPair ? " and " + escaped(sides[1].input.shown()) : "");
    std::string text =
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; style-src "
        "'unsafe-inline'; script-src 'unsafe-inline'\"><title>" +
        title + "</title><style>" + page::kStyle + "</style></head><body data-sides=\"" + std::to_string(number) +
        "\"><header><h1>" + title +
        "</h1><div class=\"wide\"><table><thead><tr><th></th><th>file</th><th>form</th>"
        "<th>version</th><th>date</th><th>sensor</th><th>creator</th></tr></thead><tbody>" +
        fileRow(tree, sides[0], isPair ? "A <i class=\"key a\"></i>" : "") +
        (isPair ? fileRow(tree, sides[1], "B <i class=\"key b\"></i>") : "") + "</tbody></table></div>";
    for (std::size_t i = 0; i < number; ++i) {
        text += std::string("<h2>What ") + (isPair ? (i == 0 ? "A" : "B") : "the set") + " holds</h2>" +
                chips(sides[i], fresh) + findingsOf(tree, sides[i], pictures, options);
    }
    text += std::string("</header>") + page::kBar + "<nav aria-label=\"parts\">";
    struct Part {
        const char* pId;
        const char* pTitle;
        const std::string& content;
        bool isFlowing; ///< few pictures a category: several categories side by side
    };
    const std::string values = page::tablesOf(tree, sessions, fresh, pictures);
    const Part parts[] = {{"curves", "Curves", pictures.curves, true},
                          {"schedules", "Schedules over gain", pictures.schedules, false},
                          {"matrices", "Matrices, weights and windows", pictures.matrices, true},
                          {"maps", "Maps", pictures.maps, false},
                          {"values", "All other values", values, false}};
    std::string content = isPair ? differencesOf(tree, sides, pictures) : "";
    if (isPair) {
        text += "<a href=\"#differences-title\">Differences</a>";
    }
    for (const Part& part : parts) {
        if (!part.content.empty()) {
            text += std::string("<a href=\"#") + part.pId + "\">" + part.pTitle + "</a>";
            content += std::string("<h2 id=\"") + part.pId + "\">" + part.pTitle + "</h2>" +
                       (part.isFlowing ? "<div class=\"flow\">" + part.content + "</div>" : part.content);
        }
    }
    return text + "</nav></div><main><p id=\"nothing\" role=\"status\" hidden>Nothing found.</p>" + content +
           "</main><script>" + page::kScript + "</script></body></html>\n";
}

} // namespace

ExitStatus report(const Options& options)
{
    if (options.output.empty()) {
        return refuseUsage(options, "-o says which page to write");
    }
    Tracing tracing(options);
    std::array<Side, 2> sides{Side(tracing), Side(tracing)};
    Session fresh(tracing);
    if (!fresh.open()) {
        return kRefused;
    }
    for (std::size_t i = 0; i < options.words.size(); ++i) {
        Side& side = sides[i];
        if (!side.session.open() || !readInput(options.words[i], options, side.input)) {
            return kRefused;
        }
        side.layer = layerOf(side.input, side.session);
        if (!side.session.load(side.input)) {
            return kRefused;
        }
    }
    const PathTree tree;
    return writeOutput(options.output, pageOf(tree, sides, options.words.size(), fresh, options)) ? kDone : kRefused;
}

} // namespace qv::tools
