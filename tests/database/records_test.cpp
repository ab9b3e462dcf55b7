#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <regex>
#include <sstream>

#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_exposure_control_2.h>
#include <qv_database_c/protocol_initialization.h> // with most records;
#include <qv_database_c/protocol_simulator.h>      // so has this one

#include "test_support.h"

using namespace qv::test;

namespace {

template <class R>
using Serialize = int (*)(R*, QvJsonValue_t*);
template <class R>
using Parse = int (*)(QvJsonValue_t*, R*);

template <class R>
void read(Parse<R> pParse, R& record, const std::string& text)
{
    EXPECT_EQ(parsed(pParse, text, record), 0) << text;
}

/// What a codec writes, without blanks and line ends.
template <class R>
std::string written(Serialize<R> pSerialize, R& record)
{
    std::string text = serialized(pSerialize, record);
    std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
    return text;
}

template <class R>
std::string defaults(int (*pReset)(R*), Serialize<R> pSerialize)
{
    const auto pRecord = std::make_unique<R>();
    std::memset(static_cast<void*>(pRecord.get()), 0x55, sizeof(R));
    EXPECT_EQ(pReset(pRecord.get()), 0);
    return written(pSerialize, *pRecord);
}

std::string keys(const std::string& text)
{
    static const std::regex pattern("\"(\\w+)\":");
    std::string all;
    for (std::sregex_iterator i(text.begin(), text.end(), pattern); i != std::sregex_iterator(); ++i) {
        all += (*i)[1].str() + " ";
    }
    return all;
}

/// A list in a document: what it begins with, filled up with one item.
std::string list(std::size_t length, const std::string& item, const std::string& begin = "")
{
    std::string text = begin;
    for (auto i = static_cast<std::size_t>(std::ranges::count(begin, ',')); i < length; ++i) {
        text += item + ",";
    }
    text.back() = ']';
    return "[" + text;
}

TEST(Records, ADocumentFillsExactlyTheBytesOfItsMembers)
{
    QvDatabase3DNoiseReduction_2_1_t record{};
    read(QvDatabase3DNoiseReduction_2_1_parse, record, R"({"enable": true, "motionDilateEn": 1, "strength": 200,
        "motionInv": -2, "delta": 4660, "updateTemporal": 65535, "temporalCurve": [258, 3], "rangeT": 7,
        "isStatistics": true, "class_": "x"})");
    std::string bytes(72, '\0');
    bytes.replace(0, 12, "\1\1\xC8\0\xFE\xFF\xFF\xFF\x34\x12\xFF\xFF", 12);
    bytes.replace(14, 3, "\2\1\3");
    bytes[48] = 7;
    EXPECT_EQ(std::string(reinterpret_cast<char*>(&record), 72), bytes);
    EXPECT_EQ(written(QvDatabase3DNoiseReduction_2_1_serialize, record),
              R"({"enable":true,"motionDilateEn":1,"strength":200,"motionInv":-2,"delta":4660,"updateTemporal":65535,)"
              R"("strengthCurveTemporal":0,"temporalCurve":)" +
                  list(17, "0", "258,3,") + R"(,"rangeT":7})");
}

TEST(Records, MembersThatAreMissingLeaveALineEachAndTheFieldAsItWas)
{
    QvDatabase2DNoiseReduction_5_2_t record{};
    record.sigma = 3.5F;
    const Traces traces;
    read(QvDatabase2DNoiseReduction_5_2_parse, record, "{}");
    EXPECT_EQ(traces.lines().size(), 9U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug,
                           "QvDatabase2DNoiseReduction_5_2_parse: (sigma) member missing or empty(10)"),
              1U);
    EXPECT_EQ(record.sigma, 3.5F);
}

TEST(Records, BlocksKeepTheirOddSpellingsSignsAndOrders)
{
    QvDatabaseDeMosaic_2_t demosaic{};
    demosaic.dmscSkinCbThrMin = -1;
    std::string text = written(QvDatabaseDeMosaic_2_serialize, demosaic);
    EXPECT_NE(text.find(R"("dmscSkinCbThrMax":0,"dmscSkinCbThrMin":65535,)"), std::string::npos);
    EXPECT_EQ(keys(text).find("enable dmscCacEnable dmscDeMoireEnable dmscDePurpleEnable dmscSharpenEnable "), 0U);
    EXPECT_NE(keys(text).find(" dmscSharpenT1 dmscSharpenT2Shift dmscSharpenT3 dmscSharpenT4Shift dmscSharpenSize "
                              "dmscDenoiseStrength dmscSharpenLineR1 "),
              std::string::npos);
    read(QvDatabaseDeMosaic_2_parse, demosaic, R"({"cacCfgCenterHoffs": 65534, "cacCfgCenterVoffs": -3})");
    EXPECT_EQ(demosaic.cacCfgCenterHoffs, -2);
    EXPECT_EQ(demosaic.cacCfgCenterVoffs, -3);

    QvDatabaseHighDynamicRange_2_1_t hdr{};
    read(QvDatabaseHighDynamicRange_2_1_parse, hdr,
         R"({"transRange": [[1], [2, 2.5, 9]], "extendBit": [-1, 254], "sensorType": 5})");
    EXPECT_EQ(written(QvDatabaseHighDynamicRange_2_1_serialize, hdr),
              R"({"enable":false,"ratio":[0.000000,0.000000],"transRange":[[1.000000,0.000000],[2.000000,2.500000],)"
              R"([0.000000,0.000000],[0.000000,0.000000]],"colorWeight":[0,0,0],"extendBit":[-1,-2],"bypass":false,)"
              R"("bypassSelect":0})");
    EXPECT_EQ(hdr.sensorType, 0);

    QvDatabaseWideDynamicRange_5_2_1_t wdr{};
    wdr.contrast = -40;
    text = written(QvDatabaseWideDynamicRange_5_2_1_serialize, wdr);
    EXPECT_NE(text.find(R"("contrast":-40,)"), std::string::npos);
    EXPECT_NE(keys(text).find("curve2LoSat curve2HiFactor curve2LoFactor flatLevelGlobal "), std::string::npos);

    QvDatabaseAutoExposure_3_t exposure{};
    read(QvDatabaseAutoExposure_3_parse, exposure,
         R"({"antiFlickerMode": 1, "mode": 2, "roiNum": 2, "roiWindow": [[1], [2], [0, 0, 0, 0, 3]]})");
    EXPECT_EQ(exposure.antiFlickerMode + exposure.mode, 0);
    EXPECT_EQ(exposure.roiNum, 2);
    EXPECT_EQ(exposure.roiWindow[2][4], 3.0F);
    read(QvDatabaseAutoExposure_3_parse, exposure, R"({"antiFlikerMode": 1})");
    EXPECT_EQ(exposure.antiFlickerMode, 1);
}

TEST(Records, ExposureControlRemembersThatItWasRead)
{
    EXPECT_EQ(defaults(QvDatabaseExposureControl_2_reset, QvDatabaseExposureControl_2_serialize),
              R"({"gain":{"analog":)" + list(4, "1.000000") + R"(,"digital":)" + list(4, "1.000000") +
                  R"(},"integrationTime":)" + list(4, "100000.000000") + "}");
    QvDatabaseExposureControl_2_t record{};
    read(QvDatabaseExposureControl_2_parse, record, R"({"totalGain": 5})");
    EXPECT_TRUE(record.isParse);
    EXPECT_EQ(record.totalGain, 0.0F);
    EXPECT_EQ(QvDatabaseExposureControl_2_reset(&record), 0);
    EXPECT_FALSE(record.isParse);
}

TEST(Records, AScheduleHasAsManyRowsAsItsLastDocument)
{
    QvDatabaseAutoGreenEquilibration_t record{};
    read(QvDatabaseAutoGreenEquilibration_parse, record,
         R"({"tables": )" + list(25, R"({"threshold": [0, 1.5]})") + "}");
    EXPECT_EQ(record.tableNumber, 20U);
    EXPECT_EQ(record.tables[19].threshold[1], 1.5F);
    EXPECT_EQ(record.tableIdx, 0U);
    read(QvDatabaseAutoGreenEquilibration_parse, record, R"({"tables": [{"hdr": true, "gains": [4]}, {}]})");
    EXPECT_EQ(record.tableNumber, 2U);
    EXPECT_EQ(record.tables[2].threshold[1], 1.5F);
    const std::string rest = list(20, "0.000000", "0.000000,1.500000,") + "}";
    EXPECT_EQ(written(QvDatabaseAutoGreenEquilibration_serialize, record),
              R"({"enable":false,"tables":[{"hdr":true,"gains":)" + list(20, "0.000000", "4.000000,") +
                  R"(,"threshold":)" + rest + R"(,{"hdr":false,"gains":)" + list(20, "0.000000") + R"(,"threshold":)" +
                  rest + "]}");
    read(QvDatabaseAutoGreenEquilibration_parse, record, R"({"enable": true, "tableNumber": 7})");
    EXPECT_EQ(written(QvDatabaseAutoGreenEquilibration_serialize, record), R"({"enable":true,"tables":[]})");
    EXPECT_EQ(record.tables[0].gains[0], 4.0F);
}

template <class R>
std::string rowKeys(Serialize<R> pSerialize)
{
    const auto pRecord = std::make_unique<R>();
    pRecord->tableNumber = 1;
    return keys(written(pSerialize, *pRecord)).substr(std::strlen("enable tables "));
}

TEST(Records, RowsOfSchedulesHaveOrdersOfTheirOwn)
{
    EXPECT_EQ(rowKeys(QvDatabaseAutoGammaCorrection_2_serialize), "curve gain hdr ");
    EXPECT_EQ(rowKeys(QvDatabaseAutoColorNoiseReduction_2_2_serialize),
              "cnrStrength cSigmaLayer0 cSigmaLayer1 cSigmaLayer2 gains hdr textureMask ");
    EXPECT_EQ(rowKeys(QvDatabaseAuto2DNoiseReduction_5_2_serialize), "gain sigma strength lumaCurveX lumaCurveY ");
}

TEST(Records, EdgeEnhanceSchedulesWriteAnEmptyHdrAndNumbersForSwitches)
{
    const auto pRecord = std::make_unique<QvDatabaseAutoEdgeEnhance_2_t>();
    read(QvDatabaseAutoEdgeEnhance_2_parse, *pRecord,
         R"({"tables": [{"hdr": true, "caEnable": [1, 0, 1]}, {"dciCurve": [[], [1, 2]]}]})");
    EXPECT_EQ(pRecord->tables[1].dciCurve[1][1], 2);
    const Traces traces;
    const std::string text = written(QvDatabaseAutoEdgeEnhance_2_serialize, *pRecord);
    EXPECT_EQ(traces.lines().size(), 2U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug, "(hdr) member missing or empty(10)"), 2U);
    EXPECT_NE(text.find(R"("caEnable":)" + list(20, "0", "1,0,1,")), std::string::npos);
    EXPECT_NE(text.find(R"(],"hdr":null},{"gains":)"), std::string::npos);
    read(QvDatabaseAutoEdgeEnhance_2_parse, *pRecord, text);
    EXPECT_TRUE(pRecord->tables[0].hdr);
    EXPECT_EQ(QvDatabaseAutoEdgeEnhance_2_dataChanged(pRecord.get()), 0);
    EXPECT_EQ(QvDatabaseAutoEdgeEnhance_2_dataChanged(nullptr), 13);
}

TEST(Records, StatisticsLeaveThroughWritersOfTheirOwn)
{
    QvDatabaseHistogram_t histogram{};
    QvDatabaseHistogram_2_t histogram2{};
    QvDatabaseAutoExposureStatistics_2_t exposure{};
    histogram.bin[0] = histogram2.bin[0] = exposure.statistics.data[0] = 4294967295;
    exposure.statistics.type = 65535;
    const std::string begin = "4294967295,";
    EXPECT_EQ(written(QvDatabaseHistogram_statistics, histogram), R"({"bin":)" + list(32, "0", begin) + "}");
    EXPECT_EQ(written(QvDatabaseHistogram_2_statistics, histogram2), R"({"bin":)" + list(256, "0", begin) + "}");
    EXPECT_EQ(written(QvDatabaseAutoExposureStatistics_2_statistics, exposure),
              R"({"data":)" + list(4096, "0", begin) + R"(,"type":65535})");
    EXPECT_EQ(keys(written(QvDatabaseHistogram_serialize, histogram)),
              "enable mode channel window rCoeff gCoeff bCoeff ");
    // A number takes no member: the trace names the function that was called.
    const Traces traces;
    EXPECT_EQ(QvDatabaseAutoExposureStatistics_2_statistics(&exposure, parseJson("5").get()), 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug,
                           "QvDatabaseAutoExposureStatistics_2_statistics: (type) bad arguments(13)"),
              1U);
}

TEST(Records, SensorListsEndAtTheirCapacitiesAndTheirCountsStandAlone)
{
    const auto pRecord = std::make_unique<QvDatabaseSensor_t>();
    const std::string modes = list(21, R"({"afMode": -1, "aeInfo": {"aGainRange": [{"min": 1}]}})");
    read(QvDatabaseSensor_parse, *pRecord,
         R"({"driverName": "a", "name": "b", "modeNumber": 2, "testPattern": {"type": 3}, "pattern": {"type": 4},
            "listInfoNumber": 500, "connectPortInfoNumber": 3, "modes": )" +
             list(25, R"({"fpsMax": 30})") + R"(, "listInfos": )" +
             list(31, R"({"number": 21, "drvModeInfos": )" + modes + "}") + R"(, "connectPortInfos": )" +
             list(3, R"({"chipId": 9, "name": "port"})") + "}");
    EXPECT_STREQ(pRecord->driverName, "b");
    EXPECT_EQ(pRecord->modeNumber, 2U);
    EXPECT_EQ(pRecord->testPattern.type, 3);
    EXPECT_EQ(pRecord->listInfos[29].drvModeInfos[19].afMode, -1);
    EXPECT_EQ(pRecord->listInfos[0].drvModeInfos[0].aeInfo.aGainRange[0].min, 0.0F);
    EXPECT_STREQ(pRecord->connectPortInfos[1].name, "port");
    EXPECT_STREQ(pRecord->class_, "");
    pRecord->listInfos[0].drvModeInfos[0].aeInfo.dGainRange[0] = {2.0F, 1.0F, 0.5F};
    const std::string text = written(QvDatabaseSensor_serialize, *pRecord);
    EXPECT_NE(text.find(R"("dGainRange":[{"min":1.000000,"max":2.000000,"step":0.500000},{"min":0.0)"),
              std::string::npos);
    const auto count = [&](const char* pText) {
        int number = 0;
        for (std::size_t at = 0; (at = text.find(pText, at)) != std::string::npos; ++at) {
            ++number;
        }
        return number;
    };
    EXPECT_EQ(count(R"("fpsMax":30,)"), 20);
    EXPECT_EQ(count(R"("number":21,)"), 30);
    EXPECT_EQ(count(R"("afMode":4294967295,)"), 600);
    EXPECT_EQ(count(R"("chipId":9,)"), 2);
    EXPECT_EQ(QvDatabaseSensor_reset(pRecord.get()), 0);
    read(QvDatabaseSensor_parse, *pRecord, R"({"pattern": {"enable": true, "type": 4}})");
    const std::string alone = written(QvDatabaseSensor_serialize, *pRecord);
    EXPECT_EQ(alone.find(R"({"driverName":"ov2775","modeIdx":0,"modeNumber":0,"modes":[{"autoFocusMode":0,)"), 0U);
    EXPECT_NE(alone.find(R"(}],"testPattern":{"enable":true,"type":4},"listInfoNumber":0,"listInfos":null,)"
                         R"("connectPortInfoNumber":0,"connectPortInfos":null})"),
              std::string::npos);
}

std::string rectangle(const std::string& height, const std::string& width)
{
    return R"("rectangle":{"height":)" + height + R"(,"offset":{"x":0,"y":0},"width":)" + width + "}";
}

TEST(Records, DefaultsAreThoseThatAFreshDatabaseWrites)
{
    EXPECT_EQ(defaults(QvDatabaseBlackLevelSubtraction_reset, QvDatabaseBlackLevelSubtraction_serialize),
              R"({"overrideCaliEn":true,"bls":[0,0,0,0],"bitWidth":12})");
    EXPECT_EQ(defaults(QvDatabaseMisc_reset, QvDatabaseMisc_serialize),
              R"({"ispVersion":"QVP1200L_V2407","nrReloc":false,"dpccRawEnable":false})");
    const auto input = [](const std::string& enable) {
        return R"({"bayerPattern":0,"enable":)" + enable + R"(,"format":0,"formatExt":65535,)" +
               rectangle("1080", "1920") + R"(,"stitchingMode":0})";
    };
    EXPECT_EQ(defaults(QvDatabaseInput_reset, QvDatabaseInput_serialize),
              R"({"framerate":2.000000,"isInjectLive":true,"paths":[)" + input("true") + "," + input("true") + "," +
                  input("false") + R"(],"type":2})");
    const auto output = [](const std::string& switches, const std::string& region) {
        return R"({"bayerPattern":0,"bitsIndex":0,"isCrop":false,"cropR)" + rectangle("0", "0").substr(2) + "," +
               switches + "," + region + "},";
    };
    const std::string hd = rectangle("1080", "1920");
    EXPECT_EQ(defaults(QvDatabaseOutput_reset, QvDatabaseOutput_serialize),
              R"({"paths":)" +
                  list(1, "",
                       output(R"("enable":true,"format":3)", hd) +
                           output(R"("enable":true,"format":0)", rectangle("0", "0")) +
                           output(R"("enable":true,"format":17)", hd) + output(R"("enable":true,"format":17)", hd) +
                           output(R"("enable":false,"format":5)", hd) + output(R"("enable":false,"format":5)", hd)) +
                  R"(,"snapshotNumber":0})");
    EXPECT_EQ(defaults(QvDatabaseTransmit_reset, QvDatabaseTransmit_serialize),
              R"({"fs":{"isBmp":false,"frameCount":0,"isInputBlock":false,"inputFolder":"","inputFrameBegin":0,)"
              R"("inputFrameEnd":0,"inputStream":"","jobsCount":2,"metaFolder":"","outputFolder":"",)"
              R"("outputFilePrefix":"","outputStream":""},"http":{"portControl":8080},)"
              R"("rtmp":{"nginxIp":"127.0.0.1","portStream":1935},"isStreamable":true,"tcp":{"portControl":2000,)"
              R"("portInject":2001,"portMeta":2005,"portRaw":2002,"portStatistics":2003,"portStream":45679},)"
              R"("uart":{"portControl":"/dev/ttyS0"}})");
    std::istringstream bits(
        "_2dnr 16 _3dnr 12 awb 12 ccm 12 compand 24 cProc 10 deMosaic 12 dpcc 16 dpf 16 drc 12 ee 12 "
        "gtm 24 hdr 24 lsc 12 scale 8");
    std::string units;
    for (std::string unit, bit; bits >> unit >> bit;) {
        units.append(units.empty() ? "{\"" : ",\"").append(unit).append(R"(":{"bit":)").append(bit);
        units += R"(,"enable":false})";
    }
    EXPECT_EQ(defaults(QvDatabaseCModel_reset, QvDatabaseCModel_serialize), units + "}");
    QvDatabaseMeta_t meta{};
    EXPECT_EQ(QvDatabaseMeta_reset(&meta), 0);
    std::string zero(sizeof meta, '\0');
    zero[offsetof(QvDatabaseMeta_t, tableNumber)] = 1;
    EXPECT_EQ(std::string(reinterpret_cast<char*>(&meta), sizeof meta), zero);
}

TEST(Records, RegistersGrowWithAFillThatBeginsInsideTheFirst)
{
    QvDatabaseDump_t dump{};
    read(QvDatabaseDump_parse, dump, R"({"registers": [{"address": "0x11", "isReadAction": true, "type": 1,
        "value": "0xAA"}, {"address": "ABCD", "isReadAction": true, "type": 1, "value": "0xBB"}]})");
    read(QvDatabaseDump_parse, dump, R"({"registers": [{"type": 1}, {"type": 0}, {"address": "0x33",
        "isReadAction": true, "type": 1, "value": "0xCC"}]})");
    ASSERT_EQ(dump.registerNumber, 3U);
    EXPECT_EQ(std::string(dump.pRegisters[1].address, 4), std::string("\0\0CD", 4));
    EXPECT_EQ(written(QvDatabaseDump_serialize, dump),
              R"({"registers":[{"address":"0x","isReadAction":false,"type":1,"value":""},)"
              R"({"address":"","isReadAction":true,"type":0,"value":"0xBB"},)"
              R"({"address":"0x33","isReadAction":true,"type":1,"value":"0xCC"}]})");
    read(QvDatabaseDump_parse, dump, R"({"registers": [{}]})");
    EXPECT_EQ(dump.registerNumber, 1U);
    EXPECT_STREQ(dump.pRegisters[0].address, "0x");
    std::free(dump.pRegisters);
    // An address that fills its field runs on into the flag behind it.
    QvDatabaseRegister_t one{};
    read(QvDatabaseRegister_parse, one, R"({"address": "012345678901", "isReadAction": true, "value": "0x1"})");
    EXPECT_EQ(written(QvDatabaseRegister_serialize, one),
              R"({"address":"0123456789\u0001","isReadAction":true,"type":0,"value":"0x1"})");
}

TEST(Records, ValueRecordsHoldBitPatternsOneKeyTwiceAndSignedPoints)
{
    QvDatabaseGain_t gain{1.0F, 0.0F, 0.0F, -2.0F};
    QvDatabaseRange_t range{1.0F, 2.0F};
    QvDatabaseRectangle_t region{1, {65534, 3}, 4};
    EXPECT_EQ(written(QvDatabaseGain_serialize, gain),
              R"({"blue":1065353216,"greenBlue":0,"greenRed":0,"red":3221225472})");
    EXPECT_EQ(written(QvDatabaseRange_serialize, range), R"({"max":1073741824})");
    read(QvDatabaseRange_parse, range, R"({"max": 1065353216, "min": 5})");
    EXPECT_EQ(range.max, 1.0F);
    EXPECT_EQ(range.min, 1.0F);
    read(QvDatabaseRectangle_parse, region, R"({"height": 65535, "width": 5})");
    EXPECT_EQ(written(QvDatabaseRectangle_serialize, region), R"({"height":65535,"offset":{"x":-2,"y":3},"width":5})");
    read(QvDatabasePoint_parse, region.offset, R"({"y": -1})");
    EXPECT_EQ(region.offset.y, 65535);
}

template <class R>
void refusesNull(Parse<R> pParse, Serialize<R> pSerialize, int (*pReset)(R*))
{
    const auto pRecord = std::make_unique<R>();
    const JsonValue value = parseJson("{}");
    const int statuses[] = {pParse(nullptr, pRecord.get()), pParse(value.get(), nullptr),
                            pSerialize(nullptr, value.get()), pSerialize(pRecord.get(), nullptr), pReset(nullptr)};
    EXPECT_EQ(std::ranges::count(statuses, 13), 5);
}

#define QV_REFUSES_NULL(stem) refusesNull(stem##_parse, stem##_serialize, stem##_reset)

TEST(Records, NullIsRefusedByEveryKindOfCodec)
{
    QV_REFUSES_NULL(QvDatabase3DNoiseReduction_2_1);
    QV_REFUSES_NULL(QvDatabaseExposureControl_2);
    QV_REFUSES_NULL(QvDatabaseAutoEdgeEnhance_2);
    QV_REFUSES_NULL(QvDatabaseAutoExposureStatistics_2);
    QV_REFUSES_NULL(QvDatabaseInput);
    QV_REFUSES_NULL(QvDatabaseDump);
    EXPECT_EQ(QvDatabaseHistogram_statistics(nullptr, nullptr), 13);
    EXPECT_EQ(QvDatabaseAutoExposureStatistics_2_statistics(nullptr, nullptr), 13);
}

} // namespace
