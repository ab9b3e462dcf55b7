// Every operation is called with each of its arguments missing: the answer is 13, whatever the others are.
#include <tuple>

#include <qv_common_c/qv_common.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_ram.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>
#include <qv_database_c/database_tuning.h>
#include <qv_database_c/protocol_calibration.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// Calls with one argument after the other set to zero, but for those that are zero already, which may be.
template <std::size_t kIndex = 0, class... P, class... A>
void expectRefused(const char* pName, int (*pCall)(P...), const std::tuple<A...>& arguments)
{
    if constexpr (kIndex < sizeof...(A)) {
        std::tuple<P...> changed(arguments);
        if (std::get<kIndex>(changed) != std::tuple_element_t<kIndex, std::tuple<P...>>{}) {
            std::get<kIndex>(changed) = {};
            EXPECT_EQ(std::apply(pCall, changed), 13) << pName << " without argument " << kIndex;
        }
        expectRefused<kIndex + 1>(pName, pCall, arguments);
    }
}

#define QV_REFUSED(name, ...) expectRefused(#name, &name, std::make_tuple(__VA_ARGS__))

TEST(Arguments, OfTheDatabase)
{
    const Traces traces(QvCommonTracerLevel_Error);
    const Database database;
    const QvDatabaseHandle_t handle = database.handle();
    QvDatabaseHandle_t none = 0;
    QvDatabaseOpenParam_t param{};
    void* pData = nullptr;
    const JsonValue value = parseJson("{}");
    QvCommonBuffer_t buffer{};
    const auto pCalibration = std::make_unique<QvDatabaseCalibration_t>();
    QvDatabaseMeta_t meta{};
    QvDatabaseSetting_t setting{};
    QvDatabaseRam_t ram{};
    QvDatabaseColorCorrectionMatrix_1_1_t matrix{};
    QvDatabaseLensShadingCorrection_4_t shading{};
    const QvJsonWriterHandle_t writer = 1; // nobody gets as far as to use it
    QV_REFUSED(QvDatabase_open, &param, &none);
    EXPECT_EQ(QvDatabase_close(nullptr), 13);
    EXPECT_EQ(QvDatabase_close(&none), 13);
    QV_REFUSED(QvDatabase_query, handle, "MISC", &pData);
    QV_REFUSED(QvDatabase_info, handle);
    QV_REFUSED(QvDatabase_reset, handle);
    QV_REFUSED(QvDatabase_load, handle, "x");
    QV_REFUSED(QvDatabase_save, handle, "x");
    QV_REFUSED(QvDatabase_metaLoad, handle, "x");
    QV_REFUSED(QvDatabase_metaSave, handle, "x");
    QV_REFUSED(QvDatabaseText_parse, handle, &buffer);
    EXPECT_EQ(QvDatabaseText_parse(handle, &buffer), 13) << "without a text";
    QV_REFUSED(QvDatabaseText_serialize, handle, &buffer);
    EXPECT_EQ(QvDatabaseInitialization_serialize(handle, nullptr), 13);
    QV_REFUSED(QvDatabaseTuning_parse, handle, value.get());
    QV_REFUSED(QvDatabaseTuning_serialize, handle, value.get());
    QV_REFUSED(QvDatabaseProtocolSimulator_parse, handle, value.get());
    QV_REFUSED(QvDatabaseProtocolSimulator_serialize, handle, value.get());
    QV_REFUSED(QvDatabaseProtocolSimulator_meta_parse, value.get(), &meta);
    QV_REFUSED(QvDatabaseProtocolSimulator_meta_serialize, &meta, value.get());
    QV_REFUSED(QvDatabaseProtocolCalibration_parse, "{}", pCalibration.get());
    QV_REFUSED(QvDatabaseProtocolCalibration_serialize, pCalibration.get(), value.get());
    QV_REFUSED(QvDatabaseProtocolCalibrationBinary_parse, &buffer, pCalibration.get());
    QV_REFUSED(QvDatabaseProtocolCalibrationBinary_serialize, pCalibration.get(), &buffer);
    QV_REFUSED(QvDatabaseColorCorrectionMatrix_1_1_parse2, &buffer, &matrix);
    QV_REFUSED(QvDatabaseLensShadingCorrection_4_parse2, &buffer, &shading);
    QV_REFUSED(QvDatabaseMeta_serialize2, &meta, writer, &buffer);
    QV_REFUSED(QvDatabaseRam_reset, &ram);
    QV_REFUSED(QvDatabaseSetting_parse, value.get(), &setting);
    QV_REFUSED(QvDatabaseSetting_serialize, &setting, value.get());
    QV_REFUSED(QvDatabaseSetting_reset, &setting);
    EXPECT_EQ(QvDatabaseSetting_parse(value.get(), &setting), 0) << "it belongs to no document";
    EXPECT_EQ(QvDatabaseSetting_serialize(&setting, value.get()), 0);
    EXPECT_TRUE(QvJsonValue_isEmpty(value.get()));
}

TEST(Arguments, OfTheCatalog)
{
    const Database database;
    auto category = sized<QvDatabaseCatalogCategory_t>();
    auto cursor = sized<QvDatabaseCatalogCursor_t>();
    auto field = sized<QvDatabaseCatalogField_t>();
    auto place = sized<QvDatabaseCatalogPlace_t>();
    auto value = sized<QvDatabaseCatalogValue_t>();
    double number = 0;
    std::size_t length = 0;
    char text[8];
    auto* pRecord = &database.record<char>("GE");
    const auto document = QvDatabaseCatalogDocument_Memory;
    QV_REFUSED(QvDatabaseCatalog_category, document, 0U, &category);
    QV_REFUSED(QvDatabaseCatalog_walk, document, "GE", &cursor);
    QV_REFUSED(QvDatabaseCatalog_find, document, "GE", &place);
    ASSERT_EQ(QvDatabaseCatalog_walk(document, "GE", &cursor), 0);
    QV_REFUSED(QvDatabaseCatalog_next, &cursor, &field);
    ASSERT_EQ(QvDatabaseCatalog_next(&cursor, &field), 0);
    QV_REFUSED(QvDatabaseCatalog_skip, &cursor);
    QV_REFUSED(QvDatabaseCatalog_value, &field, 0U, &value);
    ASSERT_EQ(QvDatabaseCatalog_find(document, "GE.threshold", &place), 0);
    QV_REFUSED(QvDatabaseCatalog_field, &place, &field);
    QV_REFUSED(QvDatabaseCatalog_siblings, &place, &cursor);
    QV_REFUSED(QvDatabaseCatalog_number, &place, pRecord, &number);
    QV_REFUSED(QvDatabaseCatalog_setNumber, &place, pRecord, 0.0);
    QV_REFUSED(QvDatabaseCatalog_setText, &place, pRecord, "1");
    EXPECT_EQ(QvDatabaseCatalog_text(nullptr, pRecord, text, sizeof text, &length), 13);
    EXPECT_EQ(QvDatabaseCatalog_text(&place, nullptr, text, sizeof text, &length), 13);
    EXPECT_EQ(QvDatabaseCatalog_text(&place, pRecord, nullptr, 0, nullptr), 13);
    for (const char* pPath : {"", "GE", "MISC.versionNumber", "none", "CCM_1_1.ccMatrix"}) {
        const bool isText = QvDatabaseCatalog_find(document, pPath, &place) == 0 && pPath[0] == 'M';
        EXPECT_EQ(QvDatabaseCatalog_number(&place, pRecord, &number), 13) << pPath;
        EXPECT_EQ(QvDatabaseCatalog_setNumber(&place, pRecord, 1), 13) << pPath;
        EXPECT_TRUE(isText || QvDatabaseCatalog_setText(&place, pRecord, "1") == 13) << pPath;
    }
}

// What the tests of the siblings' own operations leave out.
TEST(Arguments, OfTheSiblings)
{
    QvCommonDQueueHandle_t queue = 0;
    void* pElement = &queue;
    EXPECT_EQ(QvCommonDQueue_open(nullptr, nullptr), 13);
    ASSERT_EQ(QvCommonDQueue_open(nullptr, &queue), 0);
    EXPECT_EQ(QvCommonDQueue_open(nullptr, &queue), 13);
    QV_REFUSED(QvCommonDQueue_pushBack, queue, &pElement);
    QV_REFUSED(QvCommonDQueue_popFront, queue, &pElement);
    EXPECT_EQ(QvCommonDQueue_close(&queue), 0);

    QvCommonBuffer_t* pBuffer = nullptr;
    EXPECT_EQ(QvCommonBuffer_create(nullptr), 13);
    EXPECT_EQ(QvCommonBuffer_delete(&pBuffer), 13);
    ASSERT_EQ(QvCommonBuffer_create(&pBuffer), 0);
    EXPECT_EQ(QvCommonBuffer_create(&pBuffer), 13);
    EXPECT_EQ(QvCommonBuffer_clear(nullptr), 13);
    QV_REFUSED(QvCommonBuffer_load2, "x", 0U, 0U, pBuffer);
    QV_REFUSED(QvCommonBuffer_save2, pBuffer, "x", 0U);
    EXPECT_EQ(QvCommonBuffer_delete(&pBuffer), 0);

    QvJsonReaderHandle_t reader = 0;
    ASSERT_EQ(QvJsonReader_open(&reader), 0);
    const JsonValue tree = parseJson("{}");
    QvJsonValue_t* pValue = nullptr;
    QV_REFUSED(QvJsonReader_load, reader, "x", &pValue);
    pValue = tree.get();
    EXPECT_EQ(QvJsonReader_load(reader, "x", &pValue), 13);
    QV_REFUSED(QvJsonPath, tree.get(), "a", &pValue);
    EXPECT_EQ(QvJsonReader_close(&reader), 0);
}

} // namespace
