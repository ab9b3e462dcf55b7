#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/qv_database.h>

#include "calibration_text.h"
#include "commands.h"
#include "files.h"
#include "layers.h"
#include "output.h"
#include "session.h"

namespace qv::tools {
namespace {

/// A text of a record, which may fill its field.
template <std::size_t N>
std::string textIn(const char (&field)[N])
{
    return {field, strnlen(field, N)};
}

/// What came of a category.
struct Row {
    const QvDatabaseCategory_t* pCategory;
    std::size_t values = 0; ///< that text documents set
    bool isWhole = false;   ///< set by an image or by calibration text
    bool isChanged = false; ///< differs from what an open database begins with
    bool isRunTime = false; ///< says nothing of a set

    bool isSet() const { return values != 0 || isWhole; }
};

std::vector<Row> rowsOf(const Session& session, const Session& fresh, const std::vector<Layer>& layers)
{
    std::vector<Row> rows;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const std::string_view key = pCategory->pKey;
        Row row{pCategory};
        row.isRunTime = key == "RAM";
        row.isChanged = std::memcmp(session.record(pCategory->pKey), fresh.record(pCategory->pKey), //
                                    pCategory->size) != 0;
        for (const Layer& layer : layers) {
            for (const LayerCategory& set : layer.categories) {
                row.values += set.key == key ? set.values : 0;
                row.isWhole = row.isWhole || (set.key == key && set.values == 0);
            }
        }
        rows.push_back(row);
    }
    return rows;
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

void printLine(const char* pName, const std::string& value)
{
    if (!value.empty()) {
        std::printf("  %-9s  %s\n", pName, plainText(value).c_str());
    }
}

void printLayer(const Layer& layer)
{
    std::printf("%s\n", layer.name.c_str());
    printLine("form", formName(layer.form));
    printLine("holds", joined(layer.documents));
    printLine("version", layer.version);
    printLine("date", layer.date);
    std::string sets = layer.values == 0 ? "" : std::to_string(layer.values) + " values of ";
    sets += std::to_string(layer.categories.size()) + (layer.categories.size() == 1 ? " category" : " categories");
    printLine("sets", layer.categories.empty() ? "nothing" : sets);
    printLine("unknown", joined(layer.unknown));
    printLine("replaces", joined(layer.replaced));
    printLine("doubt", layer.categories.empty() ? "" : layer.doubt);
}

/// What was measured, for which sensor and by whom.
bool printCalibration(Session& session, Tracing& tracing, bool hasSensor)
{
    const auto* pCalibration = static_cast<const QvDatabaseCalibration_t*>(session.record("CLB"));
    const QvDatabaseCalibrationHeader_t& header = pCalibration->header;
    const auto* pSensor = static_cast<const QvDatabaseSensor_t*>(session.record("SS"));
    if (hasSensor) {
        std::printf("sensor\n");
        printLine("driver", textIn(pSensor->driverName));
    }
    std::printf("calibration\n");
    if (!pCalibration->isLoaded) {
        std::printf("  none\n");
        return true;
    }
    printLine("sensor", textIn(header.sensorName));
    printLine("sample", textIn(header.sampleName));
    printLine("creator", textIn(header.creator));
    printLine("date", textIn(header.date));
    printLine("generator", textIn(header.generatorVersion));
    tracing.traces().showsInfo = true;
    const bool isDone = session.check("info", QvDatabase_info(session.handle()));
    tracing.traces().showsInfo = false;
    return isDone;
}

void printRows(const std::vector<Row>& rows)
{
    std::printf("\n%-11s %8s  %8s  %-8s  %s\n", "category", "bytes", "set", "state", "record");
    for (const Row& row : rows) {
        const std::string set = row.isWhole ? "whole" : (row.isSet() ? std::to_string(row.values) : "-");
        const char* pState = row.isRunTime ? "run time" : (row.isChanged ? "changed" : "default");
        std::printf("%-11s %8zu  %8s  %-8s  %s\n", row.pCategory->pKey, row.pCategory->size, set.c_str(), pState,
                    row.pCategory->pRecord);
    }
}

std::string jsonList(const std::vector<std::string>& words)
{
    std::string text = "[";
    for (const std::string& word : words) {
        text += (text.size() == 1 ? "" : ", ") + jsonText(word);
    }
    return text + ']';
}

void printJson(const Session& session, const std::vector<Layer>& layers, const std::vector<Row>& rows)
{
    std::printf("{\n  \"files\": [");
    const char* pSeparator = "\n";
    for (const Layer& layer : layers) {
        std::printf("%s    {\"name\": %s, \"form\": %s, \"holds\": %s, \"version\": %s, \"date\": %s, \"values\": %zu, "
                    "\"categories\": %zu, \"unknown\": %s, \"replaces\": %s, \"doubt\": %s}",
                    pSeparator, jsonText(layer.name).c_str(), jsonText(formName(layer.form)).c_str(),
                    jsonList(layer.documents).c_str(), jsonText(layer.version).c_str(), jsonText(layer.date).c_str(),
                    layer.values, layer.categories.size(), jsonList(layer.unknown).c_str(),
                    jsonList(layer.replaced).c_str(), jsonText(layer.doubt).c_str());
        pSeparator = ",\n";
    }
    const auto* pCalibration = static_cast<const QvDatabaseCalibration_t*>(session.record("CLB"));
    const QvDatabaseCalibrationHeader_t& header = pCalibration->header;
    std::printf("\n  ],\n  \"calibration\": ");
    if (pCalibration->isLoaded) {
        std::printf("{\"sensor\": %s, \"sample\": %s, \"creator\": %s, \"date\": %s, \"generator\": %s}",
                    jsonText(textIn(header.sensorName)).c_str(), jsonText(textIn(header.sampleName)).c_str(),
                    jsonText(textIn(header.creator)).c_str(), jsonText(textIn(header.date)).c_str(),
                    jsonText(textIn(header.generatorVersion)).c_str());
    } else {
        std::printf("null");
    }
    const auto* pSensor = static_cast<const QvDatabaseSensor_t*>(session.record("SS"));
    std::printf(",\n  \"driver\": %s,\n  \"categories\": [", jsonText(textIn(pSensor->driverName)).c_str());
    pSeparator = "\n";
    for (const Row& row : rows) {
        std::printf(
            "%s    {\"key\": %s, \"record\": %s, \"bytes\": %zu, \"set\": %s, \"values\": %zu, \"changed\": %s}",
            pSeparator, jsonText(row.pCategory->pKey).c_str(), jsonText(row.pCategory->pRecord).c_str(),
            row.pCategory->size, row.isSet() ? "true" : "false", row.values,
            row.isChanged && !row.isRunTime ? "true" : "false");
        pSeparator = ",\n";
    }
    std::printf("\n  ]\n}\n");
}

} // namespace

ExitStatus info(const Options& options)
{
    Tracing tracing(options);
    Session session(tracing);
    Session fresh(tracing);
    if (!session.open() || !fresh.open()) {
        return kRefused;
    }
    std::vector<Layer> layers;
    for (const std::string& name : options.words) {
        Input input;
        if (!readInput(name, options, input)) {
            return kRefused;
        }
        const bool isText = input.form == Form::CalibrationText;
        std::vector<std::string> keys;
        layers.push_back(isText ? Layer() : layerOf(input, session));
        if (!(isText ? loadCalibrationText(session, input, keys) : session.load(input))) {
            return kRefused;
        }
        if (isText) {
            layers.back() = layerOf(input, keys);
        }
    }
    const std::vector<Row> rows = rowsOf(session, fresh, layers);
    if (options.asJson) {
        printJson(session, layers, rows);
        return kDone;
    }
    for (const Layer& layer : layers) {
        printLayer(layer);
    }
    const auto isSensor = [](const Row& row) { return std::string_view(row.pCategory->pKey) == "SS" && row.isSet(); };
    if (!printCalibration(session, tracing, std::any_of(rows.begin(), rows.end(), isSensor))) {
        return kRefused;
    }
    printRows(rows);
    return kDone;
}

} // namespace qv::tools
