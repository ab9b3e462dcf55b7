// Text to tree and tree to text, beside the peers in the same run. Ratios to simdjson's parse and RapidJSON's writer
// are printed at the end; json_benchmark [file] reads another document than the sample.
#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <simdjson.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

#include "qv_json_c/qv_json.h"

namespace {

std::string readFile(const char* pFilename)
{
    std::ifstream file(pFilename, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void check(bool isGood, const char* pWhat)
{
    if (!isGood) {
        std::fprintf(stderr, "%s failed\n", pWhat);
        std::exit(1);
    }
}

// Our side of the contract, opened as the database opens it.
class Engine {
public:
    Engine() { check(QvJsonReader_open(&reader_) == 0 && QvJsonWriter_open(nullptr, &writer_) == 0, "open"); }
    ~Engine()
    {
        QvJsonReader_close(&reader_);
        QvJsonWriter_close(&writer_);
    }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    QvJsonValue_t* parse(const std::string& text) const
    {
        QvJsonValue_t* pTree = nullptr;
        check(QvJsonReader_parse(reader_, text.data(), text.data() + text.size(), &pTree) == 0, "parse");
        return pTree;
    }
    char* write(QvJsonValue_t* pTree) const
    {
        char* pText = nullptr;
        check(QvJsonWriter_stringify(writer_, pTree, &pText) == 0, "stringify");
        return pText;
    }

private:
    QvJsonReaderHandle_t reader_ = 0;
    QvJsonWriterHandle_t writer_ = 0;
};

// Some 2 MB in the form of a tuning document: categories with switches, short lists, curves and tables, all full.
std::string makeDocument()
{
    std::mt19937 random(477);
    std::uniform_real_distribution<double> fraction(-4, 4);
    QvJsonValue_t* pRoot = nullptr;
    check(QvJsonValue_create(QvJsonValueType_Object, &pRoot) == 0, "create");
    QvJsonValue_t* pTuning = QvJsonValue_member(pRoot, "tuning");
    for (int category = 0; category < 60; ++category) {
        QvJsonValue_t* pCategory = QvJsonValue_member(pTuning, ("CATEGORY_" + std::to_string(category)).c_str());
        QvJsonValue_addBooleanToObject(pCategory, "enable", category % 2 == 0);
        QvJsonValue_addStringToObject(pCategory, "mode", "automatic");
        for (int field = 0; field < 24; ++field) {
            const bool isFloat = field % 3 != 0;
            const auto name = (isFloat ? "strengthCurve" : "threshold") + std::to_string(field);
            QvJsonValue_t* pList = QvJsonValue_member(pCategory, name.c_str());
            for (int row = 0; row < 6; ++row) {
                QvJsonValue_t* pRow = QvJsonValue_item(pList, static_cast<size_t>(row));
                for (int column = 0; column < 24; ++column) {
                    if (isFloat) {
                        QvJsonValue_addFloatToArray(pRow, fraction(random));
                    } else {
                        QvJsonValue_addIntegerToArray(pRow, static_cast<ssize_t>(random() % 4096));
                    }
                }
            }
        }
    }
    const Engine engine;
    char* pText = engine.write(pRoot);
    std::string text = pText;
    std::free(pText);
    QvJsonValue_delete(&pRoot);
    return text;
}

void setBytes(benchmark::State& state, const std::string& text)
{
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

void parseOurs(benchmark::State& state, const std::string& text)
{
    const Engine engine;
    for ([[maybe_unused]] auto _ : state) {
        QvJsonValue_t* pTree = engine.parse(text);
        benchmark::DoNotOptimize(pTree);
        state.PauseTiming(); // simdjson keeps its tree for the next text: releasing ours is shown on its own
        QvJsonValue_delete(&pTree);
        state.ResumeTiming();
    }
    setBytes(state, text);
}

void parseAndReleaseOurs(benchmark::State& state, const std::string& text)
{
    const Engine engine;
    for ([[maybe_unused]] auto _ : state) {
        QvJsonValue_t* pTree = engine.parse(text);
        benchmark::DoNotOptimize(pTree);
        QvJsonValue_delete(&pTree);
    }
    setBytes(state, text);
}

void parseSimdjson(benchmark::State& state, const std::string& text)
{
    simdjson::dom::parser parser;
    const simdjson::padded_string padded(text);
    for ([[maybe_unused]] auto _ : state) {
        simdjson::dom::element tree;
        check(parser.parse(padded).get(tree) == simdjson::SUCCESS, "simdjson");
        benchmark::DoNotOptimize(tree);
    }
    setBytes(state, text);
}

void parseRapidjson(benchmark::State& state, const std::string& text)
{
    for ([[maybe_unused]] auto _ : state) {
        rapidjson::Document tree;
        tree.Parse<rapidjson::kParseFullPrecisionFlag | rapidjson::kParseValidateEncodingFlag>(text.data(),
                                                                                               text.size());
        check(!tree.HasParseError(), "RapidJSON");
        benchmark::DoNotOptimize(tree);
    }
    setBytes(state, text);
}

void parseNlohmann(benchmark::State& state, const std::string& text)
{
    for ([[maybe_unused]] auto _ : state) {
        auto tree = nlohmann::ordered_json::parse(text);
        benchmark::DoNotOptimize(tree);
    }
    setBytes(state, text);
}

void writeOurs(benchmark::State& state, const std::string& text)
{
    const Engine engine;
    QvJsonValue_t* pTree = engine.parse(text);
    for ([[maybe_unused]] auto _ : state) {
        char* pText = engine.write(pTree);
        benchmark::DoNotOptimize(pText);
        std::free(pText);
    }
    QvJsonValue_delete(&pTree);
    setBytes(state, text);
}

void writeRapidjson(benchmark::State& state, const std::string& text)
{
    rapidjson::Document tree;
    tree.Parse(text.data(), text.size());
    for ([[maybe_unused]] auto _ : state) {
        rapidjson::StringBuffer buffer;
        rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
        writer.SetIndent(' ', 2);
        writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
        tree.Accept(writer);
        benchmark::DoNotOptimize(buffer.GetString());
    }
    setBytes(state, text);
}

void writeNlohmann(benchmark::State& state, const std::string& text)
{
    const auto tree = nlohmann::ordered_json::parse(text);
    for ([[maybe_unused]] auto _ : state) {
        auto result = tree.dump(2);
        benchmark::DoNotOptimize(result);
    }
    setBytes(state, text);
}

// Shows the usual lines and keeps the best time of all repetitions, which other work on the machine disturbs least.
class Ratios : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                double& best = times_.try_emplace(run.run_name.function_name, run.GetAdjustedCPUTime()).first->second;
                best = std::min(best, run.GetAdjustedCPUTime());
            }
        }
    }

    void print(const std::string& document) const
    {
        const auto ratio = [&](const char* pOurs, const char* pPeer) {
            const auto ours = times_.find(pOurs + document);
            const auto peer = times_.find(pPeer + document);
            return ours != times_.end() && peer != times_.end() ? ours->second / peer->second : 0;
        };
        std::printf("%s: text to tree / simdjson DOM parse %.2f (at most 1.30; with the release of the tree %.2f), "
                    "tree to text / RapidJSON PrettyWriter %.2f (at most 0.80)\n",
                    document.c_str(), ratio("parse/ours/", "parse/simdjson/"),
                    ratio("parse+release/ours/", "parse/simdjson/"), ratio("write/ours/", "write/rapidjson/"));
    }

private:
    std::map<std::string, double> times_;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const char* pFilename = argc > 1 ? argv[1] : QV_SOURCE_DIR "/examples/documents/imx477.json";
    const std::map<std::string, std::string> documents = {{"sample", readFile(pFilename)},
                                                          {"generated", makeDocument()}};
    check(!documents.at("sample").empty(), pFilename);
    for (const auto& [name, text] : documents) {
        std::printf("%s: %zu bytes\n", name.c_str(), text.size());
        const auto add = [&name = name, &text = text](const char* pWhat, auto* pFunction) {
            benchmark::RegisterBenchmark((pWhat + name).c_str(), pFunction, text)->Unit(benchmark::kMicrosecond);
        };
        add("parse/ours/", parseOurs);
        add("parse+release/ours/", parseAndReleaseOurs);
        add("parse/simdjson/", parseSimdjson);
        add("parse/rapidjson/", parseRapidjson);
        add("parse/nlohmann/", parseNlohmann);
        add("write/ours/", writeOurs);
        add("write/rapidjson/", writeRapidjson);
        add("write/nlohmann/", writeNlohmann);
    }
    Ratios ratios;
    benchmark::RunSpecifiedBenchmarks(&ratios);
    for (const auto& document : documents) {
        ratios.print(document.first);
    }
    return 0;
}
