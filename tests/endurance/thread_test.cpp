// Two threads with a database each and one tracer between them. Made for ThreadSanitizer, and worth running without.
#include <array>
#include <atomic>
#include <cstring>
#include <thread>

#include <gtest/gtest.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_setting.h>

#include "database/test_support.h"
#include "endurance/setting.h"

using namespace qv::test;
namespace fs = std::filesystem;

namespace {

/// Opens, loads, changes and saves all forms; gives the first thing that went wrong.
std::string work(int thread, int turns)
{
    const TemporaryFolder folder;
    for (int turn = 0; turn < turns; ++turn) {
        QvDatabaseOpenParam_t param{};
        QvDatabaseHandle_t database = 0;
        void* pSetting = nullptr;
        void* pMeta = nullptr;
        if (QvDatabase_open(&param, &database) != 0 || QvDatabase_query(database, "ST", &pSetting) != 0 ||
            QvDatabase_query(database, "MT", &pMeta) != 0) {
            return "open";
        }
        static_cast<QvDatabaseMeta_t*>(pMeta)->chipId = static_cast<std::uint32_t>(thread);
        if (QvDatabase_load(database, sample("imx477.json").c_str()) != 0) {
            return "load";
        }
        for (const QvDatabaseSettingProtocol_t protocol :
             {QvDatabaseSettingProtocol_Standard, QvDatabaseSettingProtocol_Simulator}) {
            static_cast<QvDatabaseSetting_t*>(pSetting)->protocol = protocol;
            for (const char* pName : {"file.json", "file.ini", "file.bin"}) {
                const fs::path file = folder / pName;
                if (QvDatabase_save(database, file.c_str()) != 0 || QvDatabase_load(database, file.c_str()) != 0) {
                    return pName;
                }
            }
            const fs::path meta = folder / "meta.json";
            if (QvDatabase_metaSave(database, meta.c_str()) != 0 || QvDatabase_metaLoad(database, meta.c_str()) != 0) {
                return "meta";
            }
        }
        void* pNone = nullptr;
        if (QvDatabase_query(database, "none", &pNone) == 0 || QvDatabase_load(database, "/none.json") != 3 ||
            fieldNumber(QvDatabaseCatalogDocument_Tuning) == 0 || QvDatabase_info(database) != 0 ||
            QvDatabase_reset(database) != 0) {
            return "rest";
        }
        if (static_cast<QvDatabaseMeta_t*>(pMeta)->chipId != static_cast<std::uint32_t>(thread)) {
            return "the other's record";
        }
        void* pDump = nullptr;
        if (QvDatabase_query(database, "DUMP", &pDump) != 0) {
            return "query";
        }
        void* pRegisters = nullptr;
        std::memcpy(&pRegisters, pDump, sizeof pRegisters);
        std::free(pRegisters);
        if (QvDatabase_close(&database) != 0) {
            return "close";
        }
    }
    return "";
}

void workInTwo()
{
    const int turns = isNight() ? 200 : 3;
    std::array<std::string, 2> faults;
    std::thread other([&] { faults[1] = work(1, turns); });
    faults[0] = work(0, turns);
    other.join();
    EXPECT_EQ(faults[0], "");
    EXPECT_EQ(faults[1], "");
}

TEST(Threads, HaveADatabaseEachAndOneTracer)
{
    std::atomic<std::size_t> lines = 0; // whole ones each: a test of the tracer's
    QvCommonTracerOpenParam_t param{};
    param.level = QvCommonTracerLevel_Debug;
    param.pUserData = &lines;
    param.pWrite = [](void* pUserData, QvCommonTracerLevel_t, const char*, size_t) {
        ++*static_cast<std::atomic<std::size_t>*>(pUserData);
        return 0;
    };
    ASSERT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
    workInTwo();
    EXPECT_EQ(QvCommonTracer_close(&hTracer), 0);
    EXPECT_GT(lines, 100U);
}

TEST(Threads, HaveADatabaseEachAndTheBuiltInTracer)
{
    testing::internal::CaptureStderr();
    workInTwo();
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_NE(text.find("info: ISP Version"), std::string::npos);
}

} // namespace
