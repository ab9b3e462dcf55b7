#include <sstream>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_binary.h>

#include "test_support.h"

using namespace qv::test;

namespace {

// The records of the image, one behind the other. Programs of all ages read these.
constexpr const char* kImage =
    "CLB 2DNR_5_2 A2DNR_5_2 3DNR_2_1 A3DNR_2_1 AFM BLS ABLS C_MODEL CCM_1_1 ACCM_1_1 CNR_2_2 ACNR_2_2 CP_1_2 ACP_1_2 "
    "CPD_1_1 DPCC ADPCC DMSC_2 ADMSC_2 DG EE_2 AEE_2 EC_2 AE_3 AES_2 FC AF_3 GC_2 AGC_2 GE HDR_2_1 HTG HTG_2 LSC_4 "
    "ALSC_4 RGBIR_1_1 TL WB_1_1 AWB_3 WDR_5_2_1 AWDR_5_2_1 AWM DVC IPT MISC OPT SS TM";

TEST(Binary, EveryRecordStandsAtItsPlaceInBothDirections)
{
    const Database source;
    const Database target;
    std::istringstream keys(kImage);
    std::string expected;
    char number = 0;
    for (std::string key; keys >> key; ++number) {
        // Other bytes for every record at its begin and its end.
        char* pRecord = &source.record<char>(key.c_str());
        pRecord[0] = static_cast<char>(1 + number);
        pRecord[recordOf(source.handle(), key).size() - 1] = static_cast<char>(101 + number);
        expected += recordOf(source.handle(), key);
    }
    Traces traces;
    const std::string image = source.savedText("image");
    EXPECT_EQ(image.size(), 564730U);
    EXPECT_TRUE(image == expected);
    ASSERT_EQ(traces.lines().size(), 49U);
    EXPECT_EQ(traces.lines()[0].text, "debug: CLB        >>> offset=00000000, size=00015E88");
    EXPECT_EQ(traces.lines()[48].text, "debug: TM         >>> offset=0008977A, size=00000680");
    traces.clear();
    EXPECT_EQ(target.loadText(image + "what follows is passed over", "image"), 0);
    ASSERT_EQ(traces.count(QvCommonTracerLevel_Debug), 49U);
    EXPECT_EQ(traces.lines()[0].text, "debug: CLB        <<< offset=00000000, size=00015E88");
    EXPECT_EQ(traces.lines()[41].text, "debug: AWDR_5_2_1 <<< offset=0005E374, size=0000E950");
    EXPECT_TRUE(target.savedText("image") == image);
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
