#include <cstring>
#include <numeric>
#include <sstream>

#include <qv_database_c/database_setting.h>
#include <qv_database_c/protocol_simulator.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// Class strings in the order of a written document, each with the category that it names.
constexpr const char* kAutoClasses =
    "A2dnrv5_1=A2DNR_5_2 A3dnrv1=A3DNR_2_1 AdaptiveAe=AE_3 ABls=ABLS Accm=ACCM_1_1 ACnrv2=ACNR_2_2 ACproc=ACP_1_2 "
    "ADpcc=ADPCC ADmscv2=ADMSC_2 Aeev1=AEE_2 Af=AF_3 AGamma64=AGC_2 AGreenEqu=AGE ALscv2=ALSC_4 Awbv2=AWB_3 "
    "AWdrv511=AWDR_5_2_1 AutoWorkMode=AWM IspController=ISP SensorController=SS ";
constexpr const char* kManualClasses =
    "C2dnrv5_1=2DNR_5_2 C3Av2Interface=3AI_2 C3dnrv1=3DNR_2_1 ExpV2=AES_2 Afmv1=AFM Bls=BLS CCcm=CCM_1_1 "
    "CCnrv2_opt=CNR_2_2 CCproc=CP_1_2 CCpdv1=CPD_1_1 CDpcc=DPCC CDmscv2=DMSC_2 CDgain=DG CEEv1=EE_2 CGamma64=GC_2 "
    "CGreenEqu=GE CHdrv2=HDR_2_1 Hist64=HTG Hist256=HTG_2 CLscv2=LSC_4 CRgbIR=RGBIR_1_1 CManualWb=WB_1_1 "
    "CWdrv5_1=WDR_5_2_1 ";

/// Bytes of each record that the sample carries, with its two schedules or one; AWM travels whole.
constexpr const char* kCarried =
    " 2DNR_5_2=79 A2DNR_5_2=2311 3AI_2=720 3DNR_2_1=68 A3DNR_2_1=2071 BLS=17 ABLS=831 CCM_1_1=69 ACCM_1_1=194 "
    "CNR_2_2=35 ACNR_2_2=390 CP_1_2=79 ACP_1_2=430 CPD_1_1=533 DPCC=8267 ADPCC=22 DMSC_2=121 ADMSC_2=650 DG=37 "
    "EE_2=332 AEE_2=11311 AE_3=4820 AES_2=12 AFM=15 AF_3=302 GC_2=411 AGC_2=5311 GE=25 AGE=190 HDR_2_1=71 HTG=25 "
    "HTG_2=11 ISP=21 LSC_4=8861 ALSC_4=196 MD=4142 RGBIR_1_1=97 SS=21 WB_1_1=37 AWB_3=529 WDR_5_2_1=821 "
    "AWDR_5_2_1=5991 ";

struct SimulatorDatabase : Database {
    std::string saved() const
    {
        record<QvDatabaseSetting_t>("ST").protocol = QvDatabaseSettingProtocol_Simulator;
        return undated(savedText());
    }

    /// Fills the records that a simulator document carries, but for the version's.
    void fill(int value) const
    {
        for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
            if (countOf(kCarried, std::string(" ") + pCategory->pKey + "=") == 1) {
                std::memset(&record<char>(pCategory->pKey), value, pCategory->size);
            }
        }
    }
};

/// The categories in which two databases differ, with the count of their equal bytes where that is asked for.
std::string differences(const Database& left, const Database& right, bool counts = false)
{
    std::string text;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const char* pLeft = &left.record<char>(pCategory->pKey);
        const char* pRight = &right.record<char>(pCategory->pKey);
        const auto equal =
            std::inner_product(pLeft, pLeft + pCategory->size, pRight, 0, std::plus<>(), std::equal_to<>());
        if (static_cast<std::size_t>(equal) != pCategory->size && std::strcmp(pCategory->pKey, "RAM") != 0) {
            text += pCategory->pKey + (counts ? "=" + std::to_string(equal) : "") + " ";
        }
    }
    return text;
}

/// What loading a document over the defaults changes.
std::string changesOf(const std::string& text)
{
    const Database untouched;
    const Database database;
    EXPECT_EQ(database.loadText(text), 0) << text;
    return differences(database, untouched);
}

TEST(Simulator, AClassStringNamesOneCategory)
{
    for (const bool isAuto : {true, false}) {
        std::istringstream classes(isAuto ? kAutoClasses : kManualClasses);
        for (std::string pair; classes >> pair;) {
            const std::string name = pair.substr(0, pair.find('='));
            const std::string object = "\": \"" + name + R"(", "enable": 1, "bls": [7], "expand_enable": true,
                "demosaic_enable": true})";
            EXPECT_EQ(changesOf(isAuto ? R"({"root": [{"classname)" + object + "]}"
                                       : R"({"root": [{"driver": [{"class)" + object + "]}]}"),
                      pair.substr(name.size() + 1) + " ");
        }
    }
}

TEST(Simulator, ADocumentHoldsEachClassOnceInOrder)
{
    const SimulatorDatabase database;
    std::memset(&database.record<char>("2DNR_5_2") + 61, 'x', 84 - 61); // no zero byte behind the class string's begin
    const std::string text = database.saved();
    EXPECT_EQ(text.find("xx"), std::string::npos);
    EXPECT_EQ(database.saved(), text);
    const JsonValue document = parseJson(text);
    EXPECT_EQ(keysOf(document.get()), "version header sensor system root ");
    QvJsonValue_t* pRoot = QvJsonValue_member(document.get(), "root");
    ASSERT_EQ(QvJsonValue_size(pRoot), 20U);
    QvJsonValue_t* pDriver = QvJsonValue_item(pRoot, 19);
    EXPECT_EQ(keysOf(pDriver), "nr_reloc dpccRawEnable driver enable id input output ");
    pDriver = QvJsonValue_member(pDriver, "driver");
    ASSERT_EQ(QvJsonValue_size(pDriver), 23U);
    for (const bool isAuto : {true, false}) {
        std::istringstream classes(isAuto ? kAutoClasses : kManualClasses);
        std::string pair;
        for (std::size_t i = 0; classes >> pair; ++i) {
            QvJsonValue_t* pObject = QvJsonValue_item(isAuto ? pRoot : pDriver, i);
            EXPECT_EQ(QvJsonValue_asString(QvJsonValue_member(pObject, isAuto ? "classname" : "class")),
                      pair.substr(0, pair.find('=')));
        }
    }
}

TEST(Simulator, TheSampleComesBackWithEveryFieldThatBothFormsCarry)
{
    const SimulatorDatabase source;
    const SimulatorDatabase ones;
    const SimulatorDatabase zeros;
    ASSERT_EQ(source.load(sample("imx477.json")), 0);
    const std::string text = source.saved();
    ones.fill(1);
    zeros.fill(0);
    ASSERT_EQ(ones.loadText(text), 0);
    ASSERT_EQ(zeros.loadText(text), 0);
    EXPECT_EQ(" " + differences(ones, zeros, true), kCarried) << "what no key carries, and that alone, stays as it was";
    EXPECT_EQ(ones.saved(), text);
    // Each of the 18 schedules has its gain axis under one key; the other "gain" is that of the white balance.
    EXPECT_EQ(countOf(text, "\"gains\": [1.000000, 1.414214, 2.000000"), 18U);
    EXPECT_EQ(countOf(text, "\"gain\": ["), 1U);
    EXPECT_EQ(countOf(text, "\"hdr\": "), 18U);

    // One key stands for the flags of two categories, and the driver's is written last.
    EXPECT_TRUE(source.record<QvDatabaseMisc_t>("MISC").nrReloc);
    EXPECT_FALSE(ones.record<QvDatabaseMisc_t>("MISC").nrReloc);
}

TEST(Simulator, WhatNamesNoClassOfItsPlaceChangesNothing)
{
    for (const char* pRoot :
         {"[]", "{}", "5", "\"A2dnrv5_1\"", "[5, null, [], {}]", R"({"classname": "A2dnrv5_1", "nr_reloc": true})",
          R"([{"classname": "C2dnrv5_1", "enable": 1}])", R"([{"classname": "a2dnrv5_1", "enable": true}])",
          R"([{"classname": "A2dnrv5_1 ", "enable": true}])", R"([{"classname": "", "nr_reloc": true}])",
          R"([{"classname": 7, "nr_reloc": true}])", R"([{"classname": ["Af"], "nr_reloc": true}])",
          R"([{"driver": [{"class": "A2dnrv5_1", "enable": 1}, {"class": 7}, {"class": null}, {}, 5]}])",
          R"([{"driver": [{"classname": "C2dnrv5_1", "enable": 1}]}])", R"([{"driver": {"class": "Bls"}}])"}) {
        const Traces traces(QvCommonTracerLevel_Warning);
        EXPECT_EQ(changesOf(std::string("{\"root\": ") + pRoot + "}"), "") << pRoot;
        EXPECT_TRUE(traces.lines().empty()) << pRoot;
    }
    EXPECT_EQ(changesOf(R"({"root": [{"nr_reloc": true}]})"), "MISC MD ");
    EXPECT_EQ(changesOf(R"({"root": [{"classname": null, "driver": [], "id": 4}]})"), "MD ");
    EXPECT_EQ(changesOf(R"({"root": [{"class": "C2dnrv5_1", "enable": 1}]})"), "MD ");
}

TEST(Simulator, LaterObjectsOverlayEarlierOnes)
{
    const Database database;
    EXPECT_EQ(database.loadText(R"({"root": [{"classname": "unknown"}, {"classname": "Af", "mode": 1, "maxFocal": 9},
        {"nr_reloc": true, "id": 1, "driver": [{"class": "CDgain", "digital_gain_b": 2}, {"class": "Bls", "bls": [1, 2]}]},
        {"id": 2, "driver": [{"class": "Bls", "bls": [3]}]}, {"classname": "Af", "mode": 2}]})"),
              0);
    EXPECT_EQ(database.record<QvDatabaseAutoFocus_3_t>("AF_3").mode, 2);
    EXPECT_EQ(database.record<QvDatabaseAutoFocus_3_t>("AF_3").focalMax, 9);
    EXPECT_EQ(database.record<QvDatabaseMetaDriver_t>("MD").id, 2);
    EXPECT_TRUE(database.record<QvDatabaseMetaDriver_t>("MD").nrReloc &&
                database.record<QvDatabaseMisc_t>("MISC").nrReloc);
    EXPECT_EQ(database.record<QvDatabaseDigitalGain_t>("DG").digitalGainB, 2.0F);
    const auto& bls = database.record<QvDatabaseBlackLevelSubtraction_t>("BLS");
    EXPECT_EQ(bls.bls[0] * 10 + bls.bls[1], 32U);
    EXPECT_TRUE(bls.bitWidth == 12 && bls.overrideCaliEn);
}

TEST(Simulator, TheWindowsOfTheStatisticsAreZeroedWhereTheDocumentLacksThem)
{
    const std::pair<const char*, const char*> kCases[] = {
        {R"({"windows": [1, 65538, 3, 40000, 5]})", "[1, 2, 3, 40000]"},
        {R"({"windows": [7]})", "[7, 0, 0, 0]"},
        {"{}", "[0, 0, 0, 0]"}};
    for (const auto& [pText, pWindows] : kCases) {
        auto pRecord = std::make_unique<QvDatabaseAutoExposureStatistics_2_t>();
        pRecord->enable = true;
        pRecord->rectangle = {9, {9, 9}, 9};
        EXPECT_EQ(parsed(QvDatabaseProtocolSimulator_autoExposureStatistics_2_parse, pText, *pRecord), 0);
        EXPECT_EQ(
            serialized(QvDatabaseProtocolSimulator_autoExposureStatistics_2_serialize, *pRecord),
            "{\n  \"enable\": true,\n  \"windowSetCustomEnable\": false,\n  \"inputSelect\": 0,\n  \"windows\": " +
                std::string(pWindows) + "\n}\n");
    }
}

TEST(Simulator, ZerosOfTheExpansionCurveRepeatTheValueBeforeThem)
{
    QvDatabaseCompand_1_1_t record{};
    record.expandCurveY[60] = 9;
    EXPECT_EQ(parsed(QvDatabaseProtocolSimulator_compand_1_1_parse, R"({"expand_curve_y": [0, 5, 0, 0, 7]})", record),
              0);
    std::string curve = "[0, 5, 5, 5";
    for (int i = 4; i < 64; ++i) {
        curve += i < 60 ? ", 7" : ", 9";
    }
    EXPECT_NE(serialized(QvDatabaseProtocolSimulator_compand_1_1_serialize, record).find(curve + "]"),
              std::string::npos);
    std::memset(record.expandCurveY, 0, sizeof record.expandCurveY);
    record.expandCurveY[0] = 4; // goes out as it stands
    EXPECT_NE(serialized(QvDatabaseProtocolSimulator_compand_1_1_serialize, record).find("[4, 0, 0,"),
              std::string::npos);
}

} // namespace
