#include <cstring>

#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_focus_control.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_setting.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// The 37 categories that a reset takes back; of the other 21 it touches no byte.
constexpr const char* kReset =
    " 2DNR_5_2 3DNR_2_1 A2DNR_5_2 A3DNR_2_1 ABLS ACNR_2_2 ACP_1_2 ADMSC_2 AEE_2 ADPCC AE_3 AES_2 AF_3 AFM AGC_2 AGE "
    "AWB_3 AWDR_5_2_1 BLS CCM_1_1 CNR_2_2 CP_1_2 CPD_1_1 DPCC DMSC_2 DVC DG EE_2 GC_2 GE LSC_4 MISC RGBIR_1_1 SS TM "
    "WB_1_1 WDR_5_2_1 ";

TEST(Reset, TakesItsOwnCategoriesBackToDefaultsAndLeavesTheOthers)
{
    const Database fresh;
    const Database database;
    struct Record {
        std::string key;
        char* pPlace;
        std::string expected;
    };
    std::vector<Record> records;
    std::size_t resets = 0;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const std::string key = pCategory->pKey;
        const std::size_t skipped = key == "RAM" ? 8 : 0; // it begins with a handle that closing uses
        char* pPlace = &database.record<char>(pCategory->pKey);
        std::memset(pPlace + skipped, 0x41, pCategory->size - skipped);
        const bool isReset = countOf(kReset, " " + key + " ") == 1;
        resets += isReset ? 1U : 0U;
        records.push_back({key, pPlace, recordOf(isReset ? fresh.handle() : database.handle(), key)});
    }
    EXPECT_EQ(resets, 37U);
    EXPECT_EQ(QvDatabase_reset(database.handle()), 0);
    for (const auto& [key, pPlace, expected] : records) {
        EXPECT_EQ(pPlace, &database.record<char>(key.c_str())) << "a caller's pointer to " << key;
        EXPECT_TRUE(recordOf(database.handle(), key) == expected) << key;
    }
    database.record<QvDatabaseDump_t>("DUMP") = {}; // it holds no array to release
}

TEST(Reset, KeepsTheProtocolSoThatTheNextSaveIsASimulatorDocument)
{
    const Database database;
    EXPECT_EQ(database.loadText(R"({"tuning": {"GE": {"threshold": 2.5}, "FC": {"position": 420}}})"), 0);
    auto& setting = database.record<QvDatabaseSetting_t>("ST");
    EXPECT_EQ(setting.protocol, QvDatabaseSettingProtocol_Standard);
    setting.protocol = QvDatabaseSettingProtocol_Simulator;
    EXPECT_EQ(database.record<QvDatabaseGreenEquilibration_t>("GE").threshold, 2.5F);
    EXPECT_EQ(QvDatabase_reset(database.handle()), 0);
    EXPECT_EQ(database.record<QvDatabaseGreenEquilibration_t>("GE").threshold, 0.0F);
    EXPECT_EQ(database.record<QvDatabaseFocusControl_t>("FC").position, 420U);
    const JsonValue document = parseJson(database.savedText());
    EXPECT_EQ(QvJsonValue_size(QvJsonValue_member2(document.get(), "root")), 20U);
    EXPECT_EQ(QvJsonValue_member2(document.get(), "tuning"), nullptr);
}

} // namespace
