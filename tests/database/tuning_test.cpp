#include <regex>

#include <qv_database_c/database_auto_exposure_statistics_2.h>
#include <qv_database_c/database_auto_green_equilibration.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_setting.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// A document without the date of its save, and without ends of ranges, which go out and never come back in.
std::string comparable(const std::string& document)
{
    return std::regex_replace(undated(document), std::regex(R"re("(min|max|step)": [0-9.]+)re"), "");
}

TEST(Tuning, ASaveHoldsAllCategoriesInOrderButTheStatistics)
{
    const Database database;
    EXPECT_EQ(database.loadText(R"({"tuning": {"AES_2": {"inputSelect": 3}}})"), 0);
    EXPECT_EQ(database.record<QvDatabaseAutoExposureStatistics_2_t>("AES_2").inputSelect, 3);
    const JsonValue document = parseJson(database.savedText());
    EXPECT_EQ(keysOf(QvJsonValue_member(document.get(), "tuning")),
              "2DNR_5_2 A2DNR_5_2 3DNR_2_1 A3DNR_2_1 AFM BLS ABLS CCM_1_1 ACCM_1_1 CNR_2_2 ACNR_2_2 CP_1_2 ACP_1_2 "
              "CPD_1_1 DPCC ADPCC DMSC_2 ADMSC_2 DG EE_2 AEE_2 EC_2 AE_3 FC AF_3 GC_2 AGC_2 GE AGE HDR_2_1 HTG HTG_2 "
              "LSC_4 ALSC_4 RGBIR_1_1 TL WB_1_1 AWB_3 WDR_5_2_1 AWDR_5_2_1 AWM DUMP MISC C_MODEL DVC IPT OPT SS TM ");
}

TEST(Tuning, ALoadOverlaysWhatItNamesAndPassesOverTheRest)
{
    const Database database;
    const auto& green = database.record<QvDatabaseGreenEquilibration_t>("GE");
    const auto& schedule = database.record<QvDatabaseAutoGreenEquilibration_t>("AGE");
    EXPECT_EQ(database.loadText(R"({"tuning": {"GE": {"enable": true}, "AGE": {"tables": [{}, {}]}}})"), 0);
    EXPECT_EQ(database.loadText(R"({"tuning": {"GE": null, "ge": {"enable": false}, "RGT": {"address": "x"},
        "CLB": {"header": {"creation_date": "x"}}, "ST": {"protocol": 0}, "MT": {"bufChainId": 1}}})"),
              0);
    EXPECT_EQ(database.loadText(R"({"tuning": {"GE": {"threshold": 3.5, "class_": "x"}}})"), 0);
    EXPECT_TRUE(green.enable);
    EXPECT_EQ(green.threshold, 3.5F);
    EXPECT_EQ(schedule.tableNumber, 2U); // a document without the category is not one with an empty list
    EXPECT_STREQ(green.class_, "");
    for (const char* pKey : {"CLB", "MT", "RGT"}) {
        EXPECT_EQ(database.record<char>(pKey), 0) << pKey;
    }
    EXPECT_EQ(database.record<QvDatabaseSetting_t>("ST").protocol, QvDatabaseSettingProtocol_Standard);
}

TEST(Tuning, NoMemberOfARealDocumentIsPassedOver)
{
    const Database database;
    const std::string text = readFile(sample("imx477.json"));
    EXPECT_EQ(database.loadText(text), 0);
    EXPECT_EQ(database.record<QvDatabaseSensor_t>("SS").listInfos[0].drvModeInfos[0].aeInfo.aGainRange[0].max, 0.0F);
    const std::string saved = database.savedText();
    EXPECT_TRUE(comparable(saved) == comparable(text));

    // Once saved, a document comes back letter by letter, but for the date.
    const Database other;
    EXPECT_EQ(other.loadText(saved), 0);
    EXPECT_TRUE(undated(other.savedText()) == undated(saved));
}

} // namespace
