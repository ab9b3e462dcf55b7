#include <cstring>
#include <numeric>
#include <regex>
#include <sstream>
#include <tuple>

#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/protocol_calibration.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// A record of its own on the heap, where a sanitizer sees each byte beyond its end.
class Calibration : public ::testing::Test {
protected:
    int read(const std::string& text) { return parsed(QvDatabaseProtocolCalibrationJson_parse, text, clb); }
    int readSensor(const std::string& members) { return read("{\"sensor\": {" + members + "}}"); }
    std::string written() { return serialized(QvDatabaseProtocolCalibrationJson_serialize, clb); }
    /// Each part, they stand between bars, occurs in the document.
    void expectWritten(const std::string& parts)
    {
        std::istringstream stream(parts);
        for (std::string part; std::getline(stream, part, '|');) {
            EXPECT_NE(written().find(part), std::string::npos) << part;
        }
    }

    Traces traces;
    std::unique_ptr<QvDatabaseCalibration_t> pRecord = std::make_unique<QvDatabaseCalibration_t>();
    QvDatabaseCalibration_t& clb = *pRecord;
};

template <std::size_t N>
std::vector<float> list(const float (&values)[N])
{
    return {values, values + N};
}

TEST_F(Calibration, ListsAreCountedInEightBitsFirstAndComparedThen)
{
    // What stands around a list, the items its array takes, the byte of the raw image that counts them.
    constexpr std::tuple<const char*, const char*, std::size_t, std::size_t> kLists[] = {
        {R"({"header": {"resolution": )", "}}", 1, 640},
        {R"({"header": {"resolution": [{"framerate": )", "}]}}", 5, 252 + 384},
        {R"({"sensor": {"AWB": {"globals": )", "}}}", 1, 644 + 4 + 952},
        {R"({"sensor": {"AWB": {"illumination": )", "}}}", 7, 644 + 4 + 6332},
        {R"({"sensor": {"BLS": )", "}}", 1, 644 + 6464},
        {R"({"sensor": {"BNR": )", "}}", 1, 644 + 6476},
        {R"({"sensor": {"CAC": )", "}}", 1, 644 + 6624},
        {R"({"sensor": {"CC": )", "}}", 14, 644 + 8364},
        {R"({"sensor": {"DPF": )", "}}", 1, 644 + 8584},
        {R"({"sensor": {"LSC": )", "}}", 8, 644 + 89036},
    };
    for (const auto& [pBefore, pAfter, capacity, counter] : kLists) {
        for (const std::size_t number :
             {capacity, capacity + 1, std::size_t{255}, std::size_t{256}, std::size_t{257}}) {
            clb = {};
            EXPECT_EQ(read(pBefore + listOf(number, "{}") + pAfter), number % 256 <= capacity ? 0 : 6) << pBefore;
            EXPECT_EQ(reinterpret_cast<unsigned char*>(&clb)[counter], number % 256) << pBefore << number;
            EXPECT_FALSE(written().empty()); // however large the counter, it reads nothing behind the record
        }
    }
    // A ninth shading item would end behind the record; a fifteenth colour item lies in the fields behind the list.
    clb.sensor.lscNumber = 255;
    clb.sensor.ccNumber = 15;
    JsonValue value = parseJson("{}");
    EXPECT_EQ(QvDatabaseProtocolCalibration_serialize(&clb, value.get()), 0);
    QvJsonValue_t* pSensor = QvJsonValue_member(value.get(), "sensor");
    EXPECT_EQ(QvJsonValue_size(QvJsonValue_member(pSensor, "LSC")), 8U);
    EXPECT_EQ(QvJsonValue_size(QvJsonValue_member(pSensor, "CC")), 15U);
}

TEST_F(Calibration, BayerNoiseIsReadAsOftenAsBlackLevelsAre)
{
    clb.sensor.bnr[0] = {3.0F, 4.0F};
    EXPECT_EQ(readSensor(R"("BLS": [{}], "BNR": [])"), 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug, "sensorBnr_parse: ("), 2U);
    expectWritten("\"BNR\": null");
    EXPECT_EQ(readSensor(R"("BNR": [{"k_a": 8.0, "p_b": 9.0}])"), 0);
    expectWritten("\"BLS\": null|\"BNR\": [{\n        \"k_a\": 3.000000,\n        \"p_b\": 4.000000\n      }]");
    EXPECT_EQ(readSensor(R"("BLS": [{}], "BNR": [{"k_a": 8.0, "p_b": 9.0}])"), 0);
    EXPECT_EQ(clb.sensor.bnr[0].pB, 9.0F);
}

TEST_F(Calibration, TextsThatFillTheirFieldRunOnButNotPastTheRecord)
{
    const std::string fifty(50, 'x');
    const std::string system = R"("system": {"AFPS": {"aFpsDefault": ")" + fifty + "\"}}}";
    EXPECT_EQ(read(R"({"header": {"creator": ")" + fifty + R"(cut", "sensor_name": "imx477"}, )" + system), 0);
    clb.isLoaded = true;
    reinterpret_cast<char*>(&clb)[sizeof clb - 1] = 'Z'; // the padding, so that no zero ends the text
    expectWritten("\"creator\": \"" + fifty + "imx477\"|\"aFpsDefault\": \"" + fifty + "\\u0001Z\"");
}

TEST_F(Calibration, ListsLongerThanTheirFieldAreCutButRowsRunOn)
{
    const std::string many = listOf(3000, "7");
    const std::string grid = listOf(40, listOf(140, "9"));
    EXPECT_EQ(readSensor(R"("AWB": {"globals": [{"PCAMatrix": [[1, 2], [3, 4], [5, 6], [7, 8]], "afRg2": )" + many +
                         R"(, "IIR": {}}], "illumination": [{"manualccMatrix": [[1, 2, 3, 4], [5, 6], [7]], "tau": )" +
                         many + R"(}]}, "BLS": [{"blsData": )" + many + R"(}], "DPF": [{"nll_coeff_n": )" + many +
                         R"(}], "LSC": [{"LSC_SECT_SIZE_X": )" + many + R"(, "LSC_SAMPLES_blue": )" + grid +
                         R"(, "radial_gain": )" + grid + "}]"),
              0);
    const auto& [af, awb, bls, blsNumber, bnr, bnrNumber, cac, cacNumber, cc, ccNumber, dpf, dpfNumber, lsc, n] =
        clb.sensor;
    EXPECT_EQ(list(awb.globals[0].centerLine), (std::vector<float>{7, 8, 0}));
    EXPECT_EQ(awb.globals[0].afMaxDist2[0] + dpf[0].sensorGains + lsc[1].sensorGains, 0.0F);
    // Element c of row r stands at c + r times the length of that very row.
    EXPECT_EQ(list(awb.illuminations[0].manualCcMatrix), (std::vector<float>{1, 2, 7, 6, 0, 0, 0, 0, 0}));
    EXPECT_EQ(bls[0].bitWidth + lsc[0].sectSizeY[0] + lsc[0].sampleGreenB[32][32] + lsc[0].center[0], 0);
    EXPECT_EQ(lsc[0].sampleBlue[32][32] + lsc[0].radialGain[3][128] + lsc[0].sectSizeX[31], 9 + 9 + 7);
    expectWritten("[[1.000000, 2.000000], [3.000000, 4.000000], [5.000000, 6.000000]]");

    EXPECT_EQ(readSensor(R"("CC": [{"ccMatrix": )" + listOf(10000, "[1, 1, 1]") + "}]"), 0);
    float last = 0;
    std::memcpy(&last, reinterpret_cast<char*>(&clb + 1) - sizeof last, sizeof last);
    EXPECT_EQ(last, 1.0F) << "rows run on to the end of the record";
}

TEST_F(Calibration, RawImagesFollowEachOtherInABuffer)
{
    std::strcpy(clb.header.sensorName, "one");
    std::strcpy(clb.system.afpsDefault, "rate");
    QvCommonBuffer_t buffer{};
    ASSERT_EQ(QvDatabaseProtocolCalibrationBinary_serialize(&clb, &buffer), 0);
    EXPECT_TRUE(buffer.size == 89736 && buffer.offset == 89736 && buffer.isAllocated);
    EXPECT_EQ(std::string(buffer.pBegin + 100) + (buffer.pBegin + 89684), "onerate");
    EXPECT_EQ(QvDatabaseProtocolCalibrationBinary_serialize(&clb, &buffer), 13) << "it is in use";
    std::string images = std::string(buffer.pBegin, 89736) + std::string(buffer.pBegin, 89736);
    images.replace(89736 + 100, 3, "two");
    QvCommonBuffer_clear(&buffer);
    buffer.pBegin = images.data(); // its size is not looked at
    for (const char* pName : {"one", "two"}) {
        clb.isLoaded = false;
        EXPECT_EQ(QvDatabaseProtocolCalibrationBinary_parse(&buffer, &clb), 0);
        EXPECT_STREQ(clb.header.sensorName, pName);
        EXPECT_TRUE(clb.isLoaded);
    }
    EXPECT_EQ(buffer.offset, 2 * 89736U);
}

TEST_F(Calibration, TheSampleSurvivesASaveOverAnotherOne)
{
    const auto sections = [](const std::string& document) { // from "header" up to what follows "system"
        return document.substr(document.find("\"header\""), document.find("\"tuning\"") - document.find("\"header\""));
    };
    const Database first;
    const Database second;
    ASSERT_EQ(first.load(sample("imx477.json")), 0);
    auto& loaded = second.record<QvDatabaseCalibration_t>("CLB");
    std::memset(&loaded.sensor, 1, sizeof loaded.sensor);
    EXPECT_EQ(second.loadText(R"({"sensor": {"AF": {"tbd": 5}}})"), 0);
    EXPECT_EQ(loaded.sensor.af.tbd, 0x01010101) << "a document without header holds no calibration";
    ASSERT_EQ(second.loadText(first.savedText()), 0);
    EXPECT_EQ(sections(second.savedText()), sections(readFile(sample("imx477.json"))));
    EXPECT_TRUE(loaded.isLoaded);
}

/// What is traced below the levels that only a load goes through.
std::string parserTraces(Traces& traces)
{
    return std::regex_replace(traces.take(), std::regex(".*(database_text|qv_database)\\.cpp.*\n"), "");
}

// A load walks the tree that it has; the parser of texts makes one of its own. Both are the same to their callers.
TEST(CalibrationText, ALoadGivesWhatTheParserOfTextsGives)
{
    const JsonValue document = parseJson(readFile(sample("imx477.json")));
    for (const char* pKey : {"version", "tuning"}) { // their traces would stand between
        QvJsonValue_t* pMember = QvJsonValue_member(document.get(), pKey);
        QvJsonValue_delete(&pMember);
    }
    const std::pair<std::string, int> cases[] = {
        {jsonText(document.get()), 0},
        {R"({"header": {"creator": "x"}, "sensor": {"BLS": [{"name": "a"}], "BNR": [{}]}, "system": {"AFPS": {}}})", 0},
        {R"({"header": {"creator": 5, "resolution": 7}, "sensor": [1, 2], "system": "x"})", 0},
        {R"({"header": {"resolution": {"a": 1}}, "sensor": {"AWB": 1, "CC": "x", "LSC": [[], 5, null]}})", 0},
        {R"({"header": [1], "sensor": {"CC": [{"ccMatrix": [[1], 2, "x"], "wb": 3, "name": [5]}]}})", 0},
        {R"({"header": {"resolution": )" + listOf(6, "{}") + "}}", 6},
        {R"({"header": {"resolution": [{"framerate": )" + listOf(6, "{}") + "}]}}", 6},
        {R"({"header": {"creator": "x"}, "sensor": {"AWB": {"illumination": )" + listOf(255, R"({"name": "n"})") +
             "}}}",
         6},
        {R"({"header": {"creator": "x"}, "sensor": {"LSC": )" + listOf(256, R"({"name": "n"})") + "}}", 0},
    };
    for (const auto& [text, status] : cases) {
        SCOPED_TRACE(text.substr(0, 80));
        const Database database;
        auto& record = database.record<QvDatabaseCalibration_t>("CLB");
        Traces traces;
        EXPECT_EQ(QvDatabaseProtocolCalibration_parse(text.c_str(), &record), status);
        const std::string bytes = recordOf(database.handle(), "CLB");
        const std::string lines = parserTraces(traces);
        EXPECT_EQ(database.loadText(text), status);
        EXPECT_EQ(record.isLoaded, status == 0);
        record.isLoaded = false;
        EXPECT_TRUE(recordOf(database.handle(), "CLB") == bytes);
        EXPECT_EQ(parserTraces(traces), lines);
    }
}

TEST(CalibrationText, TheScannerTakesWhatStandsBetweenTheFirstBrackets)
{
    // Items go up to white space or "]"; a status stands in place of them where there can be none.
    constexpr std::string_view kCases[] = {
        "ctm = [1 2\t3] => 1|2|3|",
        "ctm = [ \t\r\n ] => ",
        "ctm[] => ",
        "myctmOld = [9] ctm = [1] => 9|",
        "# ctm\nother [7] ctm [1] => 7|",
        "ctm = [1,2,3 4] => 1,2,3|4|",
        "ctm = [[1 2] 3] => [1|2|",
        "[4] ctm ] [5] => 5|",
        "CTM = [1] => 15",
        "ctm = 1 2 => 15",
        "[1] ] ctm => 15",
        "ctm = [1 2 => 15",
    };
    for (const std::string_view test : kCases) {
        std::string text(test.substr(0, test.find(" => ")));
        const std::string_view expected = test.substr(text.size() + 4);
        const int status = expected == "15" ? 15 : 0;
        QvCommonBuffer_t buffer{};
        buffer.pBegin = text.data();
        buffer.offset = 6; // plays no part
        QvCommonDQueueHandle_t hQueue = 0;
        ASSERT_EQ(QvCommonDQueue_open(nullptr, &hQueue), 0);
        Traces traces;
        EXPECT_EQ(QvDatabaseCalibrationTxt_extractArray(&buffer, "ctm", hQueue), status) << test;
        EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "(15)"), status == 0 ? 0U : 1U) << test;
        std::string items;
        for (void* pItem = nullptr; QvCommonDQueue_popFront(hQueue, &pItem) == 0;) {
            const char* pBegin = static_cast<const char*>(pItem);
            items += std::string(pBegin, std::strcspn(pBegin, " \t\r\n]")) + "|";
        }
        EXPECT_EQ(items, status == 0 ? expected : "") << test;
        QvCommonDQueue_close(&hQueue);
    }
}

TEST(CalibrationText, MatrixAndShadingComeOutOfTheSample)
{
    std::string text = readFile(sample("imx477_calibration.txt"));
    std::string odd = "ctm [1e1 -2 +.5 5,6 six] successional_color_offset [1 2 3 4] LSC_SECT_SIZE_X [70000 -1 12.9]"
                      "LSC_SECT_SIZE_Y [] LSC_SAMPLES_red [1] LSC_SAMPLES_greenAtRedLine [2]"
                      "LSC_SAMPLES_greenAtBlueLine [3] LSC_SAMPLES_blue [4]";
    QvDatabaseColorCorrectionMatrix_1_1_t ccm{};
    const auto pLsc = std::make_unique<QvDatabaseLensShadingCorrection_4_t>();
    QvCommonBuffer_t buffer{};
    buffer.pBegin = text.data();
    EXPECT_EQ(QvDatabaseColorCorrectionMatrix_1_1_parse2(&buffer, &ccm), 0);
    EXPECT_EQ(QvDatabaseLensShadingCorrection_4_parse2(&buffer, pLsc.get()), 0);
    EXPECT_EQ(list(ccm.ccMatrix), (std::vector<float>{2.18464F, -0.95493F, -0.22971F, -0.36826F, 2.00298F, -0.63471F,
                                                      -0.15219F, -0.38055F, 1.53274F}));
    EXPECT_EQ(list(ccm.ccOffset), (std::vector<float>{-12.0F, -10.5F, -11.25F}));
    EXPECT_EQ(std::vector<int>(pLsc->xSize, pLsc->xSize + 32), std::vector<int>(32, 127));
    EXPECT_EQ(std::vector<int>(pLsc->ySize, pLsc->ySize + 32), std::vector<int>(32, 95));
    // The first sample, the second row's first, the last, the sum of all.
    constexpr int kExpected[] = {1667, 1647, 1714, 1366394, 1591, 1575, 1629, 1342129,
                                 1591, 1575, 1629, 1342129, 1591, 1576, 1655, 1355843};
    for (int plane = 0; plane < 4; ++plane) {
        const auto& samples = pLsc->matrix[plane];
        const int found[] = {samples[0], samples[33], samples[1088], std::accumulate(samples, samples + 1089, 0)};
        EXPECT_TRUE(std::equal(found, found + 4, kExpected + 4 * plane)) << plane;
    }
    buffer.pBegin = odd.data(); // short lists keep the rest, long ones lose their tail
    EXPECT_EQ(QvDatabaseColorCorrectionMatrix_1_1_parse2(&buffer, &ccm), 0);
    EXPECT_EQ(QvDatabaseLensShadingCorrection_4_parse2(&buffer, pLsc.get()), 0);
    EXPECT_EQ(list(ccm.ccMatrix), (std::vector<float>{10, -2, .5F, 5, 0, -0.63471F, -0.15219F, -0.38055F, 1.53274F}));
    EXPECT_EQ(list(ccm.ccOffset), (std::vector<float>{1, 2, 3}));
    EXPECT_EQ(std::vector<int>(pLsc->xSize, pLsc->xSize + 4), (std::vector<int>{4464, 65535, 12, 127}));
    EXPECT_EQ(pLsc->ySize[0] + pLsc->matrix[0][0] + pLsc->matrix[1][0] * 10 + pLsc->matrix[3][0] * 100, 95 + 421);
    EXPECT_FALSE(ccm.enable || ccm.overrideCaliEn || pLsc->enable || pLsc->overrideCaliEn);

    odd.erase(odd.find("[4]"), 1); // a table that is missing keeps those before it
    *pLsc = {};
    const Traces traces;
    EXPECT_EQ(QvDatabaseLensShadingCorrection_4_parse2(&buffer, pLsc.get()), 15);
    EXPECT_EQ(pLsc->matrix[0][0] * 100 + pLsc->matrix[1][0] * 10 + pLsc->matrix[2][0], 123);
    EXPECT_EQ(pLsc->matrix[3][0], 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "key or bracket not found(15)"), 2U);
}

} // namespace
