#include <sstream>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_binary.h>

#include "test_support.h"

using namespace qv::test;

namespace {

// The records of the image, each with its place and its bytes. Programs of all ages read these.
constexpr const char* kImage =
    "CLB 0 89736 2DNR_5_2 89736 84 A2DNR_5_2 89820 23328 3DNR_2_1 113148 72 A3DNR_2_1 113220 20528 AFM 133748 76 "
    "BLS 133824 20 ABLS 133844 8128 C_MODEL 141972 30 CCM_1_1 142002 76 ACCM_1_1 142078 3328 CNR_2_2 145406 40 "
    "ACNR_2_2 145446 7328 CP_1_2 152774 88 ACP_1_2 152862 8128 CPD_1_1 160990 536 DPCC 161526 8270 ADPCC 169796 48 "
    "DMSC_2 169844 128 ADMSC_2 169972 12528 DG 182500 44 EE_2 182544 340 AEE_2 182884 112928 EC_2 295812 76 "
    "AE_3 295888 4832 AES_2 300720 16400 FC 317120 32 AF_3 317152 312 GC_2 317464 420 AGC_2 317884 52928 "
    "GE 370812 32 HDR_2_1 370844 76 HTG 370920 176 HTG_2 371096 1056 LSC_4 372152 8864 ALSC_4 381016 3336 "
    "RGBIR_1_1 384352 104 TL 384456 8 WB_1_1 384464 44 AWB_3 384508 560 WDR_5_2_1 385068 840 AWDR_5_2_1 385908 59728 "
    "AWM 445636 21 DVC 445657 6 IPT 445663 152 MISC 445815 83 OPT 445898 304 SS 446202 116864 TM 563066 1664";

struct Row {
    std::string key;
    std::size_t offset = 0;
    std::size_t size = 0;
};

TEST(Binary, EveryRecordStandsAtItsPlaceInBothDirections)
{
    const Database source;
    const Database target;
    std::istringstream text(kImage);
    std::vector<Row> rows;
    for (Row row; text >> row.key >> row.offset >> row.size; rows.push_back(row)) {
        // Other bytes for every record at its begin and its end.
        char* pRecord = &source.record<char>(row.key.c_str());
        pRecord[0] = static_cast<char>(1 + rows.size());
        pRecord[row.size - 1] = static_cast<char>(101 + rows.size());
    }
    ASSERT_EQ(rows.size(), 49U);
    Traces traces;
    const std::string image = source.savedText("image");
    ASSERT_EQ(image.size(), 564730U);
    ASSERT_EQ(traces.lines().size(), 49U);
    EXPECT_EQ(traces.lines()[0].text, "debug: CLB        >>> offset=00000000, size=00015E88");
    EXPECT_EQ(traces.lines()[48].text, "debug: TM         >>> offset=0008977A, size=00000680");
    traces.clear();
    EXPECT_EQ(target.loadText(image + "what follows is passed over", "image"), 0);
    ASSERT_EQ(traces.count(QvCommonTracerLevel_Debug), 49U);
    EXPECT_EQ(traces.lines()[0].text, "debug: CLB        <<< offset=00000000, size=00015E88");
    EXPECT_EQ(traces.lines()[41].text, "debug: AWDR_5_2_1 <<< offset=0005E374, size=0000E950");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [key, offset, size] = rows[i];
        EXPECT_EQ(image[offset], static_cast<char>(1 + i)) << key;
        EXPECT_EQ(image[offset + size - 1], static_cast<char>(101 + i)) << key;
        EXPECT_TRUE(image.compare(offset, size, &target.record<char>(key.c_str()), size) == 0) << key;
    }
}

TEST(Binary, AFileThatEndsEarlyKeepsWhatWasReadAndFails)
{
    const Database source;
    const Database target;
    for (const char* pKey : {"CLB", "2DNR_5_2", "A2DNR_5_2"}) {
        source.record<char>(pKey) = 'x';
    }
    const std::string image = source.savedText("image");
    const Traces traces;
    EXPECT_EQ(target.loadText("", "image"), 6);
    EXPECT_EQ(target.record<char>("CLB"), 0);
    EXPECT_EQ(target.loadText(image.substr(0, 113147), "image"), 6); // a byte short of A2DNR_5_2
    EXPECT_EQ(target.record<char>("CLB"), 'x');
    EXPECT_EQ(target.record<char>("2DNR_5_2"), 'x');
    EXPECT_EQ(target.record<char>("A2DNR_5_2"), 0);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_load: too short or over capacity(6)"), 2U);
    EXPECT_EQ(traces.lines().size(), 4U); // and one line for each record that was read
}

TEST(Binary, WorksFromTheCursorOnAndLeavesAloneWhatItDoesNotHold)
{
    const Database database;
    std::size_t total = 100;
    EXPECT_EQ(QvDatabaseBinary_serialize(database.handle(), nullptr, &total), 0);
    EXPECT_EQ(total, 564830U);
    std::string content(564735, 'x');
    QvCommonBuffer_t buffer{};
    buffer.pBegin = content.data();
    buffer.offset = 5;
    buffer.size = content.size() - 1;
    EXPECT_EQ(QvDatabaseBinary_serialize(database.handle(), &buffer, nullptr), 6); // no room for TM
    EXPECT_EQ(buffer.offset, 563071U);
    EXPECT_EQ(content.substr(0, 6), std::string("xxxxx\0", 6));
    EXPECT_EQ(content.substr(563071), std::string(1664, 'x'));
    buffer.offset = 5;
    buffer.size = content.size();
    for (const char* pKey : {"CLB", "3AI_2", "AGE", "ISP", "MD", "MT", "RGT", "ST"}) {
        database.record<char>(pKey) = 9;
    }
    EXPECT_EQ(QvDatabaseBinary_parse(database.handle(), &buffer), 0);
    EXPECT_EQ(buffer.offset, content.size());
    EXPECT_EQ(database.record<char>("CLB"), 0);
    EXPECT_EQ(database.record<char>("TM"), 'x');
    for (const char* pKey : {"3AI_2", "AGE", "ISP", "MD", "MT", "RGT", "ST"}) {
        EXPECT_EQ(database.record<char>(pKey), 9) << pKey;
    }
    buffer.offset = buffer.size + 1;
    EXPECT_EQ(QvDatabaseBinary_parse(database.handle(), &buffer), 6) << "a cursor behind the end";
    EXPECT_EQ(QvDatabaseBinary_parse(0, &buffer), 13);
    EXPECT_EQ(QvDatabaseBinary_serialize(0, &buffer, &total), 13);
}

} // namespace
