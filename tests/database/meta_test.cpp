#include <cstdlib>
#include <cstring>

#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/protocol_simulator.h>

#include "test_support.h"

using namespace qv::test;

namespace {

struct MetaDatabase : Database {
    QvDatabaseMeta_t& meta = record<QvDatabaseMeta_t>("MT");

    int metaLoad(const std::string& text) const
    {
        const TemporaryFolder folder;
        writeFile(folder / "meta.json", text);
        return QvDatabase_metaLoad(handle(), (folder / "meta.json").c_str());
    }
    std::string metaSaved(QvDatabaseSettingProtocol_t protocol) const
    {
        const TemporaryFolder folder;
        record<QvDatabaseSetting_t>("ST").protocol = protocol;
        EXPECT_EQ(QvDatabase_metaSave(handle(), (folder / "meta.json").c_str()), 0);
        return readFile(folder / "meta.json");
    }
};

TEST(Meta, TheFullFormComesBack)
{
    MetaDatabase database;
    EXPECT_EQ(database.meta.tableNumber, 1U);
    database.meta.bufChainId = -1;
    database.meta.frameCount = 12345678901;
    database.meta.integrationTimeRange[0] = {3, 1, 2};
    database.meta.bitWidth = 12;
    database.meta.ccmConfig.ccmMatrix[0] = 1.5F;
    database.meta.meanLuma[0].meanRoiWin[0] = {4, {40000, 2}, 3};
    const std::string text = database.metaSaved(QvDatabaseSettingProtocol_Standard);
    constexpr const char* kParts[] = {
        "{\n  \"bufChainId\": 4294967295,\n  \"chipId\": 0,\n  \"frameCount\": 12345678901,\n",
        "\"integrationTimeRange\": [{\n      \"max\": 3,\n      \"min\": 1,\n      \"step\": 2\n    }, {\n",
        "  \"ccmConfig\": {\n    \"enable\": false,\n    \"ccmMatrix\": [1.500000, 0.000000, ",
        "\"offset\": {\n            \"x\": -25536,\n            \"y\": 2\n          },\n          \"width\": 3\n",
    };
    for (const char* pPart : kParts) {
        EXPECT_NE(text.find(pPart), std::string::npos) << pPart;
    }

    MetaDatabase other;
    EXPECT_EQ(other.metaLoad(text), 0);
    EXPECT_EQ(other.meta.bitWidth, 0) << "written and never read";
    database.meta.bitWidth = 0;
    EXPECT_EQ(other.metaSaved(QvDatabaseSettingProtocol_Standard),
              database.metaSaved(QvDatabaseSettingProtocol_Standard));
}

TEST(Meta, WhatADocumentLacksKeepsItsValue)
{
    const auto pMeta = std::make_unique<QvDatabaseMeta_t>();
    std::memset(pMeta.get(), 1, sizeof *pMeta);
    Traces traces;
    EXPECT_EQ(parsed(QvDatabaseMeta_parse, R"({"frameCount": 9, "bitWidth": 8, "width": 8, "height": 8,
        "bayerPattern": 8, "sensorMode": 8, "modeAe": 8, "tableIndex": 8})",
                     *pMeta),
              0);
    // 14 plain members, 18 range objects, 8 channel objects, one matrix object, six windows lists of 25 each.
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Debug, "member"), 14 + 18 * 3U + 8 * 4 + 3 + 6 * (1 + 25 * 4 + 5));
    EXPECT_EQ(pMeta->frameCount, 9U);
    pMeta->frameCount = 0x0101010101010101;
    const std::vector<char> ones(sizeof *pMeta, 1);
    EXPECT_EQ(std::memcmp(pMeta.get(), ones.data(), ones.size()), 0);
}

TEST(Meta, TheContentOfAFileTellsItsForm)
{
    Traces traces;
    const std::pair<const char*, int> kCases[] = {
        {R"({"frameCount": 7})", 7},
        {R"({"root": {"frame_index": 8}, "frameCount": 7})", 7},
        {R"({"root": {"metadata": {}}, "frameCount": 7})", 7},
        {R"({"root": {"metadata": null}, "frameCount": 7})", 7},
        {R"({"root": [{"metadata": {"frame_index": 8}, "classname": "Af"}], "frameCount": 7})", 7},
        {R"({"root": {"metadata": {"frame_index": 8}}, "frameCount": 7})", 8},
        {R"({"root": {"metadata": {"image_gain": [1]}}, "frameCount": 7})", 3},
        {R"({"root": {"metadata": 5}, "frameCount": 7})", 3},
        {R"({"metadata": {"frame_index": 8}})", 3},
    };
    for (const auto& [pText, frameCount] : kCases) {
        const MetaDatabase database;
        database.meta.frameCount = 3;
        EXPECT_EQ(database.metaLoad(pText), 0) << pText;
        EXPECT_EQ(database.meta.frameCount, static_cast<std::uint64_t>(frameCount)) << pText;
    }
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error), 0U);

    // A file of the simulator's metadata is no document to load: its root is no list.
    const MetaDatabase database;
    EXPECT_EQ(database.loadText(R"({"root": {"metadata": {"frame_index": 8}}})"), 0);
    EXPECT_EQ(database.meta.frameCount, 0U);
    EXPECT_EQ(QvDatabase_metaSave(database.handle(), "/nowhere/meta.json"), 3);
}

TEST(Meta, ASaveFollowsTheSetting)
{
    const MetaDatabase database;
    database.meta.chipId = 4;
    EXPECT_EQ(database.metaLoad(R"({"root": {"metadata": {"image_gain": [1.5, 2, 3, 4, 5, 6, 7], "frame_index": 5,
        "image_int_time": [10, 20]}}})"),
              0);
    EXPECT_EQ(database.metaSaved(QvDatabaseSettingProtocol_Simulator),
              "{\n  \"root\": {\n    \"metadata\": {\n      \"frame_index\": 5,\n"
              "      \"image_int_time\": [10, 20, 0, 0, 0, 0],\n"
              "      \"image_gain\": [1.500000, 2.000000, 3.000000, 4.000000, 5.000000, 6.000000]\n    }\n  }\n}\n");
    const std::string full = database.metaSaved(QvDatabaseSettingProtocol_Standard);
    EXPECT_NE(full.find("\"chipId\": 4"), std::string::npos);
    EXPECT_NE(full.find("\"sensorDigitalGain\": [1.500000, 2.000000"), std::string::npos);

    QvJsonWriterHandle_t hWriter = 0;
    QvCommonBuffer_t buffer{};
    buffer.pBegin = static_cast<char*>(std::calloc(1, 7));
    buffer.isAllocated = true;
    buffer.offset = 3;
    ASSERT_EQ(QvJsonWriter_open(nullptr, &hWriter), 0);
    EXPECT_EQ(QvDatabaseMeta_serialize2(&database.meta, hWriter, &buffer), 0);
    EXPECT_EQ(std::string(buffer.pBegin), full);
    EXPECT_EQ(buffer.size, full.size());
    EXPECT_TRUE(buffer.isAllocated && buffer.offset == 0);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(buffer.pUserData), 5U);
    QvCommonBuffer_clear(&buffer);
    QvJsonWriter_close(&hWriter);
}

} // namespace
