#include <regex>

#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_misc.h>

#include "test_support.h"

using namespace qv::test;

namespace {

constexpr const char* kThreshold = R"({"tuning": {"GE": {"threshold": 2.5}}})";

QvDatabaseGreenEquilibration_t& green(const Database& database)
{
    return database.record<QvDatabaseGreenEquilibration_t>("GE");
}

TEST(Text, TheEndOfTheNameAloneChoosesTheForm)
{
    const Database database;
    const Traces traces;
    EXPECT_EQ(database.loadText(kThreshold, "x.JSON"), 6); // an image, and far too short
    EXPECT_EQ(database.loadText("[MISC]\n", "x.ini.json"), 7);
    EXPECT_EQ(database.loadText("[MISC]\n", "x.json.ini"), 0);
    EXPECT_EQ(database.loadText(kThreshold, ".json"), 0);
    EXPECT_EQ(green(database).threshold, 2.5F);
    EXPECT_EQ(database.savedText("x.JSON").size(), 564730U);
    EXPECT_EQ(database.savedText("x.json").substr(0, 4), "{\n  ");
    EXPECT_EQ(database.savedText("x.ini").substr(0, 1), "[");

    const TemporaryFolder folder;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder / ".");
    for (const char* pName : {"n", "ini", "json"}) { // shorter than a suffix
        EXPECT_EQ(database.save(pName), 0);
        EXPECT_EQ(std::filesystem::file_size(pName), 564730U) << pName;
        EXPECT_EQ(database.load(pName), 0);
    }
    std::filesystem::current_path(before);
}

TEST(Text, WhatCannotBeReadIsReportedWithItsPlaceAndTouchesNothing)
{
    const Database database;
    const TemporaryFolder folder;
    const Traces traces;
    EXPECT_EQ(database.load(folder / "none.json"), 3);
    EXPECT_EQ(database.load(folder / "."), 9);
    EXPECT_EQ(database.save(folder / "none/x.json"), 3);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_load: file not found(3)"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_load: is a folder(9)"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_save: file not found(3)"), 1U);
    EXPECT_EQ(database.loadText(""), 7);
    EXPECT_EQ(database.loadText(" <header/>"), 7); // only the very first byte sends a text to calibration
    EXPECT_EQ(database.loadText("{\"tuning\": {\"GE\": {\"threshold\": 2.5}},\n"
                                " \"x\" 1}"),
              7);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "syntax error(7): expected a value at line 1, column 1"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "syntax error(7): expected a value at line 1, column 2"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, " at line 2, column 6"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabaseText_parse: syntax error(7)"), 3U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_load: syntax error(7)"), 3U);
    EXPECT_EQ(green(database).threshold, 0.0F);
}

TEST(Text, ADocumentWithNothingInItChangesNothing)
{
    const Database database;
    const std::string before = database.savedText("image");
    const Traces traces;
    for (const char* pText :
         {"{}", "[]", "null", R"({"other": 1})", R"({"version": {}, "root": [], "header": null, "tuning": {}})"}) {
        EXPECT_EQ(database.loadText(pText), 0) << pText;
    }
    EXPECT_EQ(traces.lines().size(), 0U);
    EXPECT_TRUE(database.savedText("image") == before);
}

TEST(Text, AnotherVersionIsTakenWithAWarningWhoseLabelsAreReversed)
{
    const Database database;
    auto& misc = database.record<QvDatabaseMisc_t>("MISC");
    Traces traces;
    EXPECT_EQ(database.loadText(R"({"version": {"versionNumber": "6.8.25.2", "exportDate": "then"}})"), 0);
    EXPECT_EQ(traces.lines().size(), 0U);
    EXPECT_EQ(database.loadText(R"({"version": {"exportDate": "then"}})"), 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug, "(versionNumber) member missing or empty(10)"), 1U);
    EXPECT_STREQ(misc.exportDate, "");
    traces.clear();
    EXPECT_EQ(database.loadText(R"({"version": {"versionNumber": "7.0"}, "tuning": {"GE": {"threshold": 2.5}}})"), 0);
    EXPECT_EQ(traces.lines()[0].text,
              "warning: Json and code version are not match, CODE version: 7.0, JSON version: 6.8.25.2");
    EXPECT_STREQ(misc.versionNumber, "7.0");
    EXPECT_EQ(green(database).threshold, 2.5F);

    // A version that fills its field has no end of its own.
    const char* pLong = R"({"version": {"versionNumber": "01234567890123456789abc"}})";
    EXPECT_EQ(database.loadText(pLong), 0);
    EXPECT_EQ(database.loadText(pLong), 0); // the same again, no warning
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Warning), 2U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Warning, "CODE version: 01234567890123456789, JSON version: 7.0"), 1U);
    EXPECT_NE(
        database.savedText().find("\"versionNumber\": \"01234567890123456789" + std::string(misc.exportDate) + '"'),
        std::string::npos);
}

TEST(Text, ASaveStampsTheDateAndWritesTheMembersInOrder)
{
    const Database database;
    const std::string text = database.savedText();
    const std::string date = database.record<QvDatabaseMisc_t>("MISC").exportDate;
    EXPECT_TRUE(std::regex_match(date, std::regex(R"(20\d\d-[01]\d-[0-3]\dT[0-2]\d:[0-5]\d:[0-6]\d)"))) << date;
    EXPECT_EQ(text.find("{\n  \"version\": {\n    \"versionNumber\": \"6.8.25.2\",\n    \"exportDate\": \"" + date +
                        "\"\n  },\n  \"header\": {\n    \"creation_date\": \"\","),
              0U);
    EXPECT_LT(text.find("\n  \"sensor\": {"), text.find("\n  \"system\": {"));
    EXPECT_LT(text.find("\n  \"system\": {"), text.find("\n  \"tuning\": {"));
    EXPECT_EQ(text.find("\n  \"root\": "), std::string::npos);
}

TEST(Text, TheMembersAreReadInAnOrderOfTheirOwn)
{
    const Database database;
    // Tuning has the last word wherever it stands, and the simulator's content is read beside it.
    EXPECT_EQ(database.loadText(R"({"tuning": {"GE": {"threshold": 2.5}}, "header": {"creator": "me"},
        "root": [{"driver": [{"class": "CGreenEqu", "enable": 1, "threshold": 8.5}]}]})"),
              0);
    EXPECT_EQ(green(database).threshold, 2.5F);
    EXPECT_TRUE(green(database).enable);
    auto& calibration = database.record<QvDatabaseCalibration_t>("CLB");
    EXPECT_TRUE(calibration.isLoaded);
    EXPECT_EQ(database.loadText(kThreshold), 0);
    EXPECT_STREQ(calibration.header.creator, "me"); // a document without a header leaves calibration alone
    EXPECT_EQ(database.loadText(R"({"header": {"sensor_name": "s"}})"), 0);
    EXPECT_STREQ(calibration.header.creator, ""); // any other begins from a clean record
    EXPECT_STREQ(calibration.header.sensorName, "s");
}

} // namespace
