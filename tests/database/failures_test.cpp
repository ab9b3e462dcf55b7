#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_ram.h>

#include "test_support.h"

using namespace qv::test;

namespace {

TEST(Failures, ACalibrationListOverCapacityKeepsWhatWasReadBeforeIt)
{
    const Database database;
    auto& calibration = database.record<QvDatabaseCalibration_t>("CLB");
    auto& green = database.record<QvDatabaseGreenEquilibration_t>("GE");
    const Traces traces;
    // The header is whole but for its last list, and what comes after that is not reached.
    EXPECT_EQ(database.loadText(R"({"header": {"creator": "me", "resolution": [{"width": 640, "framerate": [{"fps": 1},
        {"fps": 2}, {"fps": 3}, {"fps": 4}, {"fps": 5}, {"fps": 6}]}]}, "system": {"AFPS": {"aFpsDefault": "30"}},
        "root": [{"driver": [{"class": "CGreenEqu", "threshold": 8.5}]}], "tuning": {"GE": {"threshold": 2.5}}})"),
              6);
    EXPECT_STREQ(calibration.header.creator, "me");
    EXPECT_EQ(calibration.header.resolutions[0].width, 640);
    EXPECT_EQ(calibration.header.resolutions[0].framerateNumber, 6);
    EXPECT_EQ(calibration.header.resolutions[0].framerate[0].fps, 0.0F);
    EXPECT_STREQ(calibration.system.afpsDefault, "");
    EXPECT_FALSE(calibration.isLoaded);
    EXPECT_EQ(green.threshold, 8.5F);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "calibration_textParse: too short or over capacity(6)"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_load: too short or over capacity(6)"), 1U);
    // What it left is written and told of as far as the record goes.
    EXPECT_NE(database.savedText().find("\"creator\": \"me\""), std::string::npos);
    EXPECT_EQ(QvDatabase_info(database.handle()), 0);
}

TEST(Failures, ATextThatBeginsLikeATagIsACalibrationThatFails)
{
    const Database database;
    auto& calibration = database.record<QvDatabaseCalibration_t>("CLB");
    const Traces traces;
    EXPECT_EQ(database.loadText(R"({"header": {"creator": "me"}})"), 0);
    EXPECT_EQ(database.loadText("<header/>"), 7);
    EXPECT_FALSE(calibration.isLoaded);
    EXPECT_STREQ(calibration.header.creator, "");
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "calibration_textParse: syntax error(7)"), 1U);
}

TEST(Failures, AnImageOfAnythingSavesAsADocumentOfBoundedSize)
{
    const Database database;
    const Traces traces(QvCommonTracerLevel_Error);
    // Counters of 255 inside lists of 255, and not one text that ends.
    EXPECT_EQ(database.loadText(std::string(564730, '\xFF'), "image.bin"), 0);
    EXPECT_LT(database.savedText().size(), 50'000'000U);
}

TEST(Failures, AResetEndsTheQueueAndTheValueThatTheRecordHolds)
{
    QvDatabaseRam_t ram{};
    ASSERT_EQ(QvCommonBufferQueue_open(nullptr, &ram.hBufferQueueFile), 0);
    ram.pJSensorQuery = parseJson("[1]").release();
    EXPECT_EQ(QvDatabaseRam_reset(&ram), 0);
    EXPECT_EQ(ram.hBufferQueueFile, 0U);
    EXPECT_EQ(ram.pJSensorQuery, nullptr);
}

TEST(Failures, AQueueThatTheApplicationClosedDoesNotKeepTheDatabaseOpen)
{
    const Database database; // closes at its end, and wants 0 of that
    EXPECT_EQ(QvDatabaseRam_reset(&database.record<QvDatabaseRam_t>("RAM")), 0);
}

TEST(Failures, MetadataThatCannotBeReadTouchesNothing)
{
    const Database database;
    const TemporaryFolder folder;
    auto& meta = database.record<QvDatabaseMeta_t>("MT");
    const Traces traces;
    writeFile(folder / "broken", R"({"chipId": 5)");
    writeFile(folder / "odd", R"({"chipId": 6, "root": 5})"); // no metadata under root: the plain form
    EXPECT_EQ(QvDatabase_metaLoad(database.handle(), (folder / "none").c_str()), 3);
    EXPECT_EQ(QvDatabase_metaLoad(database.handle(), (folder / "broken").c_str()), 7);
    EXPECT_EQ(meta.chipId, 0U);
    EXPECT_EQ(QvDatabase_metaLoad(database.handle(), (folder / "odd").c_str()), 0);
    EXPECT_EQ(meta.chipId, 6U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_metaLoad: file not found(3)"), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "QvDatabase_metaLoad: syntax error(7)"), 1U);
}

} // namespace
