#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <cstring>

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

TEST(Records, ExposureControlRemembersThatItWasRead)
{
    EXPECT_EQ(defaults(QvDatabaseExposureControl_2_reset, QvDatabaseExposureControl_2_serialize),
              R"({"gain":{"analog":)" + listOf(4, "1.000000") + R"(,"digital":)" + listOf(4, "1.000000") +
                  R"(},"integrationTime":)" + listOf(4, "100000.000000") + "}");
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
         R"({"tables": )" + listOf(25, R"({"threshold": [0, 1.5]})") + "}");
    EXPECT_EQ(record.tableNumber, 20U);
    EXPECT_EQ(record.tables[19].threshold[1], 1.5F);
    EXPECT_EQ(record.tableIdx, 0U);
    read(QvDatabaseAutoGreenEquilibration_parse, record, R"({"tables": [{"hdr": true, "gains": [4]}, {}]})");
    EXPECT_EQ(record.tableNumber, 2U);
    EXPECT_EQ(record.tables[2].threshold[1], 1.5F);
    const std::string rest = listOf(20, "0.000000", "0.000000,1.500000,") + "}";
    EXPECT_EQ(written(QvDatabaseAutoGreenEquilibration_serialize, record),
              R"({"enable":false,"tables":[{"hdr":true,"gains":)" + listOf(20, "0.000000", "4.000000,") +
                  R"(,"threshold":)" + rest + R"(,{"hdr":false,"gains":)" + listOf(20, "0.000000") +
                  R"(,"threshold":)" + rest + "]}");
    read(QvDatabaseAutoGreenEquilibration_parse, record, R"({"enable": true, "tableNumber": 7})");
    EXPECT_EQ(written(QvDatabaseAutoGreenEquilibration_serialize, record), R"({"enable":true,"tables":[]})");
    EXPECT_EQ(record.tables[0].gains[0], 4.0F);
}

TEST(Records, EdgeEnhanceSchedulesWriteAnEmptyHdrAndNumbersForSwitches)
{
    const auto pRecord = std::make_unique<QvDatabaseAutoEdgeEnhance_2_t>();
    read(QvDatabaseAutoEdgeEnhance_2_parse, *pRecord, R"({"tables": [{"hdr": true, "caEnable": [1, 0, 1]}, {}]})");
    const Traces traces;
    const std::string text = written(QvDatabaseAutoEdgeEnhance_2_serialize, *pRecord);
    EXPECT_EQ(traces.lines().size(), 2U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug, "(hdr) member missing or empty(10)"), 2U);
    EXPECT_NE(text.find(R"("caEnable":)" + listOf(20, "0", "1,0,1,")), std::string::npos);
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
    EXPECT_EQ(written(QvDatabaseHistogram_statistics, histogram), R"({"bin":)" + listOf(32, "0", begin) + "}");
    EXPECT_EQ(written(QvDatabaseHistogram_2_statistics, histogram2), R"({"bin":)" + listOf(256, "0", begin) + "}");
    EXPECT_EQ(written(QvDatabaseAutoExposureStatistics_2_statistics, exposure),
              R"({"data":)" + listOf(4096, "0", begin) + R"(,"type":65535})");
    // A number takes no member: the trace names the function that was called.
    const Traces traces;
    EXPECT_EQ(QvDatabaseAutoExposureStatistics_2_statistics(&exposure, parseJson("5").get()), 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug,
                           "QvDatabaseAutoExposureStatistics_2_statistics: (type) bad arguments(13)"),
              1U);
}

TEST(Records, OlderKeysOfTheSensorAreReadWhereTheOthersAreAbsentAndItsCountsStandAlone)
{
    const auto pRecord = std::make_unique<QvDatabaseSensor_t>();
    const std::string ranges = R"({"aeInfo": {"aGainRange": [{"min": 1}]}})";
    read(QvDatabaseSensor_parse, *pRecord,
         R"({"driverName": "a", "name": "b", "modeNumber": 2, "testPattern": {"type": 3}, "pattern": {"type": 4},
            "listInfoNumber": 500, "modes": )" +
             listOf(25, R"({"fpsMax": 30})") + R"(, "listInfos": )" +
             listOf(31, R"({"number": 21, "drvModeInfos": )" + listOf(21, ranges) + "}") + "}");
    EXPECT_STREQ(pRecord->driverName, "b");
    EXPECT_EQ(pRecord->modeNumber, 2U);
    EXPECT_EQ(pRecord->testPattern.type, 3);
    EXPECT_EQ(pRecord->listInfos[0].drvModeInfos[0].aeInfo.aGainRange[0].min, 0.0F) << "written and never read";
    std::string text = written(QvDatabaseSensor_serialize, *pRecord);
    EXPECT_EQ(countOf(text, R"("fpsMax":30,)"), 20U) << "whole";
    EXPECT_EQ(countOf(text, R"("number":21,)"), 30U) << "as far as the list goes";
    EXPECT_EQ(countOf(text, R"("aGainRange":)"), 600U);
    EXPECT_EQ(QvDatabaseSensor_reset(pRecord.get()), 0);
    read(QvDatabaseSensor_parse, *pRecord, R"({"pattern": {"enable": true, "type": 4}})");
    text = written(QvDatabaseSensor_serialize, *pRecord);
    EXPECT_EQ(text.find(R"({"driverName":"ov2775","modeIdx":0,"modeNumber":0,"modes":[{"autoFocusMode":0,)"), 0U);
    EXPECT_TRUE(text.ends_with(R"(}],"testPattern":{"enable":true,"type":4},"listInfoNumber":0,"listInfos":null,)"
                               R"("connectPortInfoNumber":0,"connectPortInfos":null})"));
}

// What initialization documents hold of the defaults, their test tells word for word.
TEST(Records, DefaultsAreThoseThatAFreshDatabaseWrites)
{
    EXPECT_EQ(defaults(QvDatabaseBlackLevelSubtraction_reset, QvDatabaseBlackLevelSubtraction_serialize),
              R"({"overrideCaliEn":true,"bls":[0,0,0,0],"bitWidth":12})");
    EXPECT_EQ(defaults(QvDatabaseMisc_reset, QvDatabaseMisc_serialize),
              R"({"ispVersion":"QVP1200L_V2407","nrReloc":false,"dpccRawEnable":false})");
    EXPECT_TRUE(defaults(QvDatabaseInput_reset, QvDatabaseInput_serialize).ends_with(R"(],"type":2})"));
    EXPECT_TRUE(defaults(QvDatabaseOutput_reset, QvDatabaseOutput_serialize).ends_with(R"(],"snapshotNumber":0})"));
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
    // A text goes on to the end of the list where it has none of its own, and no further.
    struct {
        QvDatabaseRegister_t list[2];
        char behind[8];
    } room;
    std::memset(room.list, 'x', sizeof room.list);
    std::memset(room.behind, '@', sizeof room.behind);
    dump = {room.list, 2};
    EXPECT_EQ(written(QvDatabaseDump_serialize, dump).find('@'), std::string::npos);
    // An address that fills its field runs on into the flag behind it.
    QvDatabaseRegister_t one{};
    read(QvDatabaseRegister_parse, one, R"({"address": "012345678901", "isReadAction": true, "value": "0x1"})");
    EXPECT_EQ(written(QvDatabaseRegister_serialize, one),
              R"({"address":"0123456789\u0001","isReadAction":true,"type":0,"value":"0x1"})");
}

TEST(Records, ARangeHoldsBitPatternsUnderOneKeyTwice)
{
    QvDatabaseRange_t range{1.0F, 2.0F};
    EXPECT_EQ(written(QvDatabaseRange_serialize, range), R"({"max":1073741824})");
    read(QvDatabaseRange_parse, range, R"({"max": 1065353216, "min": 5})");
    EXPECT_EQ(range.max, 1.0F);
    EXPECT_EQ(range.min, 1.0F);
}

} // namespace
