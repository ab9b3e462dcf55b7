#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>

#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_focus_control.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_setting.h>

#include "test_support.h"

using namespace qv::test;

namespace {

constexpr const char* kReset =
    "2DNR_5_2 3DNR_2_1 A2DNR_5_2 A3DNR_2_1 ABLS ACNR_2_2 ACP_1_2 ADMSC_2 AEE_2 ADPCC AE_3 AES_2 AF_3 AFM AGC_2 AGE "
    "AWB_3 AWDR_5_2_1 BLS CCM_1_1 CNR_2_2 CP_1_2 CPD_1_1 DPCC DMSC_2 DVC DG EE_2 GC_2 GE LSC_4 MISC RGBIR_1_1 SS TM "
    "WB_1_1 WDR_5_2_1";
constexpr const char* kKept = "CLB ST RAM DUMP MT MD IPT OPT TL ISP RGT C_MODEL 3AI_2 ACCM_1_1 ALSC_4 AWM EC_2 FC "
                              "HDR_2_1 HTG HTG_2";

std::vector<std::string> words(const char* pText)
{
    std::istringstream text(pText);
    return {std::istream_iterator<std::string>(text), {}};
}

std::string bytes(const Database& database, const std::string& key)
{
    std::size_t index = 0;
    while (QvDatabase_category(index)->pKey != key) {
        ++index;
    }
    return {&database.record<char>(key.c_str()), QvDatabase_category(index)->size};
}

TEST(Reset, TakesItsOwnCategoriesBackToDefaultsAndLeavesTheOthers)
{
    const Database fresh;
    const Database database;
    std::vector<std::string> keys = words(kReset);
    ASSERT_EQ(keys.size(), 37U);
    std::ranges::copy(words(kKept), std::back_inserter(keys));
    ASSERT_EQ(keys.size(), 58U);
    std::vector<char*> places;
    std::vector<std::string> scribbled;
    for (const std::string& key : keys) {
        // RAM begins with a handle that closing uses.
        const std::size_t skipped = key == "RAM" ? 8 : 0;
        places.push_back(&database.record<char>(key.c_str()));
        std::memset(places.back() + skipped, 0x41, bytes(fresh, key).size() - skipped);
        scribbled.push_back(bytes(database, key));
    }
    EXPECT_EQ(QvDatabase_reset(database.handle()), 0);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(places[i], &database.record<char>(keys[i].c_str())) << "a caller's pointer to " << keys[i];
        EXPECT_TRUE(bytes(database, keys[i]) == (i < 37 ? bytes(fresh, keys[i]) : scribbled[i])) << keys[i];
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
