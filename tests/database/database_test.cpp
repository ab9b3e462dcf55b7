#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include <qv_common_c/common_logger.h>
#include <qv_database_c/database_calibration.h>

#include "test_support.h"

using namespace qv::test;

namespace {

// Key and bytes of every record; files hold these sizes.
constexpr const char* kSizes =
    "CLB 89736 2DNR_5_2 84 A2DNR_5_2 23328 3AI_2 724 3DNR_2_1 72 A3DNR_2_1 20528 BLS 20 ABLS 8128 C_MODEL 30 "
    "CCM_1_1 76 ACCM_1_1 3328 CNR_2_2 40 ACNR_2_2 7328 CP_1_2 88 ACP_1_2 8128 CPD_1_1 536 DPCC 8270 ADPCC 48 "
    "DMSC_2 128 ADMSC_2 12528 DVC 6 DG 44 DUMP 16 EE_2 340 AEE_2 112928 EC_2 76 AE_3 4832 AES_2 16400 RAM 16 FC 32 "
    "AFM 76 AF_3 312 GC_2 420 AGC_2 52928 GE 32 AGE 3328 HDR_2_1 76 HTG 176 HTG_2 1056 IPT 152 ISP 28 LSC_4 8864 "
    "ALSC_4 3336 MT 4808 MISC 83 MD 4144 OPT 304 RGT 28 RGBIR_1_1 104 SS 116864 ST 8 TL 8 TM 1664 WB_1_1 44 AWM 21 "
    "AWB_3 560 WDR_5_2_1 840 AWDR_5_2_1 59728 ";

int query(QvDatabaseHandle_t handle, const char* pKey, void* pData = nullptr)
{
    return QvDatabase_query(handle, pKey, &pData);
}

TEST(Database, OpeningPrintsTheBannerAndBadArgumentsPrintNothing)
{
    Traces traces;
    QvDatabaseOpenParam_t param{};
    QvDatabaseHandle_t handle = 0;
    ASSERT_EQ(QvDatabase_open(&param, &handle), 0);
    EXPECT_EQ(traces.take(), "info: ISP Version: QVP1200L_V2407\ninfo: Qv_frameworks Version Number: 6.8.25.2\n");
    EXPECT_EQ(QvDatabase_open(&param, &handle), 13);
    EXPECT_EQ(query(handle, ""), 13);
    EXPECT_EQ(query(handle, "MISC", &param), 13);
    EXPECT_EQ(QvDatabase_close(&handle), 0);
    EXPECT_EQ(handle, 0U);
    EXPECT_EQ(QvDatabase_close(&handle), 13);
    EXPECT_EQ(query(handle, "MISC"), 13);
    EXPECT_EQ(traces.take(), "");
}

TEST(Database, TheLibraryTellsTheVersionOfItsHeader)
{
    int major = -1;
    int minor = -1;
    int patch = -1;
    char rest = 0;
    ASSERT_EQ(std::sscanf(QvDatabase_version(), "%d.%d.%d%c", &major, &minor, &patch, &rest), 3);
    EXPECT_EQ(major * 10000 + minor * 100 + patch, QV_DATABASE_VERSION_NUMBER);
    // The name of the library that was loaded ends in the same version; the build takes it from the header's text.
    Dl_info info{};
    ASSERT_NE(dladdr(reinterpret_cast<const void*>(&QvDatabase_version), &info), 0);
    const std::string real = std::filesystem::canonical(info.dli_fname).filename();
    EXPECT_EQ(real, "libqv_database_c.so." + std::string(QvDatabase_version()));
}

TEST(Database, EveryCategoryIsListedOnceWithItsSize)
{
    const Database database;
    std::string listed;
    const QvDatabaseCategory_t* pCategory = nullptr;
    for (std::size_t i = 0; (pCategory = QvDatabase_category(i)) != nullptr; ++i) {
        listed += std::string(pCategory->pKey) + " " + std::to_string(pCategory->size) + " ";
        EXPECT_EQ(query(database.handle(), pCategory->pKey), 0) << pCategory->pKey;
    }
    EXPECT_EQ(listed, kSizes);
}

TEST(Database, AKeyThatMissesGoesToTheLoggerWhoseStatusCounts)
{
    struct Log {
        int status = 0;
        std::string text;
    } log;
    QvCommonLoggerOpenParam_t loggerParam{};
    loggerParam.pUserData = &log;
    loggerParam.pWrite = [](void* pUserData, const char* pText, size_t) {
        static_cast<Log*>(pUserData)->text = pText;
        return static_cast<Log*>(pUserData)->status;
    };
    Traces traces;
    QvDatabaseOpenParam_t param{};
    QvDatabaseHandle_t handle = 0;
    ASSERT_EQ(QvCommonLogger_open(&loggerParam, &param.hLogger), 0);
    ASSERT_EQ(QvDatabase_open(&param, &handle), 0);
    traces.take();
    void* pData = nullptr;
    EXPECT_EQ(QvDatabase_query(handle, "misc", &pData), 0); // the message was taken; there is no record all the same
    EXPECT_EQ(pData, nullptr);
    EXPECT_EQ(log.text, "Database: misc is never registered");
    EXPECT_EQ(traces.take(), "");
    log.status = 12;
    EXPECT_EQ(query(handle, std::string(300, 'K').c_str()), 12);
    EXPECT_EQ(log.text, "Database: " + std::string(245, 'K')); // 255 characters and the terminator
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_query: write error(12)"), 1U);
    EXPECT_EQ(QvDatabase_close(&handle), 0);
    EXPECT_EQ(QvCommonLogger_close(&param.hLogger), 0);

    const Database silent;
    EXPECT_EQ(query(silent.handle(), "misc"), 13);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Warning, "Database: misc is never registered"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_query: bad arguments(13)"), 1U);
}

TEST(Database, InfoCountsWhatTheCalibrationHolds)
{
    const Database database;
    auto& [header, sensor, system, isLoaded] = database.record<QvDatabaseCalibration_t>("CLB");
    Traces traces;
    EXPECT_EQ(QvDatabase_info(database.handle()), 0);
    EXPECT_EQ(traces.take(), "info: header/resolution: 0\ninfo: awb/global: 0\ninfo: awb/illumination: 0\n"
                             "info: bls: 0\ninfo: bnr: 0\ninfo: cac: 0\ninfo: cc: 0\ninfo: dpf: 0\ninfo: lsc: 0\n");
    header.resolutionNumber = 2; // as a failed load may leave it; there is one, and what follows it is all zero
    header.resolutions[0].framerateNumber = 200;
    sensor.awb.globalNumber = 2;
    sensor.awb.illuminationNumber = 3;
    sensor.blsNumber = 4;
    sensor.bnrNumber = 5;
    sensor.cacNumber = 6;
    sensor.ccNumber = 7;
    sensor.dpfNumber = 8;
    sensor.lscNumber = 9;
    EXPECT_EQ(QvDatabase_info(database.handle()), 0);
    EXPECT_EQ(traces.take(),
              "info: header/resolution: 2\ninfo: header/resolution[0]/framerate: 200\n"
              "info: header/resolution[1]/framerate: 0\ninfo: awb/global: 2\n"
              "info: awb/illumination: 3\ninfo: bls: 4\ninfo: bnr: 5\ninfo: cac: 6\ninfo: cc: 7\ninfo: dpf: 8\n"
              "info: lsc: 9\n");
    header.resolutionNumber = 255; // more than there are whole items behind the list in the record
    EXPECT_EQ(QvDatabase_info(database.handle()), 0);
    const std::size_t room = sizeof(QvDatabaseCalibration_t) - offsetof(QvDatabaseCalibrationHeader_t, resolutions);
    EXPECT_EQ(std::ranges::count(traces.take(), '['), room / sizeof header.resolutions[0]);
}

} // namespace
