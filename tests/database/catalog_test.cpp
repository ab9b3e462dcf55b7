#include <cmath>
#include <cstdint>
#include <cstring>

#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_records.h>

#include "test_support.h"

using namespace qv::test;

namespace {

/// A field on a walk, with its path through the last element of each list and the place that the walk adds up.
struct Leaf {
    std::string path; ///< behind the category
    std::size_t offset;
    bool isOnHeap;
    QvDatabaseCatalogField_t field;
};

std::vector<QvDatabaseCatalogCategory_t> categoriesOf(QvDatabaseCatalogDocument_t document)
{
    std::vector<QvDatabaseCatalogCategory_t> all;
    auto category = sized<QvDatabaseCatalogCategory_t>();
    for (std::size_t i = 0; QvDatabaseCatalog_category(document, i, &category) == 0; ++i) {
        all.push_back(category);
    }
    return all;
}

std::vector<Leaf> leavesOf(QvDatabaseCatalogDocument_t document, const char* pKey)
{
    std::vector<Leaf> all;
    std::vector<Leaf> parents;
    auto cursor = sized<QvDatabaseCatalogCursor_t>();
    auto field = sized<QvDatabaseCatalogField_t>();
    EXPECT_EQ(QvDatabaseCatalog_walk(document, pKey, &cursor), 0);
    while (QvDatabaseCatalog_next(&cursor, &field) == 0) {
        parents.resize(field.depth);
        Leaf leaf{"", 0, false, field};
        if (!parents.empty()) {
            leaf = parents.back();
            leaf.field = field;
        }
        leaf.path += std::string(".") + field.pKey;
        leaf.offset += field.offset;
        std::size_t number = 1;
        for (std::size_t i = 0; i < field.rank; ++i) {
            const std::size_t last = field.extents[i] == 0 ? 0 : field.extents[i] - 1;
            leaf.path += "[" + std::to_string(last) + "]";
            number *= last + 1;
        }
        if (field.count == QvDatabaseCatalogCount_Heap) {
            leaf.isOnHeap = true;
            leaf.offset = 0;
        } else if (field.count != QvDatabaseCatalogCount_Members) {
            leaf.offset += (number - 1) * field.width;
        }
        if (field.count == QvDatabaseCatalogCount_Members) {
            QvDatabaseCatalog_skip(&cursor); // its numbers have no names
        }
        parents.push_back(leaf);
        all.push_back(leaf);
    }
    return all;
}

QvDatabaseCatalogPlace_t placeOf(QvDatabaseCatalogDocument_t document, const std::string& path, int status = 0)
{
    auto place = sized<QvDatabaseCatalogPlace_t>();
    EXPECT_EQ(QvDatabaseCatalog_find(document, path.c_str(), &place), status) << path;
    return place;
}

TEST(Catalog, ListsEachCategoryWhereItStands)
{
    std::size_t image = 0;
    for (const auto& category : categoriesOf(QvDatabaseCatalogDocument_Image)) {
        EXPECT_EQ(category.imageOffset, image) << category.pKey;
        image += category.recordSize;
    }
    EXPECT_EQ(image, 564730U);
    std::string places;
    for (const auto& category : categoriesOf(QvDatabaseCatalogDocument_Memory)) {
        const std::string key = category.pKey;
        for (int i = 0; i < QvDatabaseCatalogDocument_Sum; ++i) {
            const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
            bool isListed = false;
            for (const auto& other : categoriesOf(document)) {
                isListed = isListed || key == other.pKey;
            }
            EXPECT_EQ(isListed, (category.documents >> i & 1U) != 0) << key << " " << i;
        }
    }
    for (const auto& category : categoriesOf(QvDatabaseCatalogDocument_Simulator)) {
        places += std::string(category.pKey) + " " + category.pPlace + " ";
        EXPECT_EQ(category.pClass == nullptr, category.pClassKey == nullptr);
    }
    EXPECT_TRUE(places.starts_with("A2DNR_5_2 /root/* A3DNR_2_1 /root/* ")) << places;
    EXPECT_TRUE(places.ends_with("WDR_5_2_1 /root/*/driver/* MD /root/* MT /root/metadata ")) << places;
}

TEST(Catalog, LeadsEachPathToThePlaceThatAWalkAddsUp)
{
    std::size_t number = 0;
    for (int i = 0; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        for (const auto& category : categoriesOf(document)) {
            for (const Leaf& leaf : leavesOf(document, category.pKey)) {
                const std::string path = category.pKey + leaf.path;
                ASSERT_TRUE(leaf.isOnHeap || leaf.offset + leaf.field.width <= category.recordSize) << path;
                if (leaf.field.count == QvDatabaseCatalogCount_Members) {
                    continue;
                }
                const auto place = placeOf(document, path);
                ASSERT_EQ(place.offset, leaf.offset) << path;
                ASSERT_EQ(place.length, leaf.field.width) << path;
                ASSERT_EQ(place.reached, path.size());
                auto field = sized<QvDatabaseCatalogField_t>();
                ASSERT_EQ(QvDatabaseCatalog_field(&place, &field), 0) << path;
                ASSERT_EQ(std::memcmp(&field, &leaf.field, sizeof field), 0) << path;
                ASSERT_TRUE(field.pName != nullptr || field.pRecord != nullptr) << path;
                ++number;
            }
        }
    }
    EXPECT_GT(number, 3000U);
}

TEST(Catalog, TellsWhereAPathWentWrongAndWhatCouldStandThere)
{
    constexpr auto kTuning = QvDatabaseCatalogDocument_Tuning;
    constexpr auto kSimulator = QvDatabaseCatalogDocument_Simulator;
    constexpr auto kCalibration = QvDatabaseCatalogDocument_Calibration;
    constexpr auto kInitialization = QvDatabaseCatalogDocument_Initialization;
    const struct {
        QvDatabaseCatalogDocument_t document;
        const char* path;
        const char* mark; ///< a caret below the first character that leads nowhere
        QvDatabaseCatalogStop_t stop;
        const char* sibling; ///< the first member that could stand there
    } cases[] = {
        {kTuning, "AE_4.setPoint", "^", QvDatabaseCatalogStop_Category, nullptr},
        {kTuning, "", "^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "AE_3.setPont", "     ^", QvDatabaseCatalogStop_Member, "enable"},
        {kTuning, "AE_3.", "     ^", QvDatabaseCatalogStop_Syntax, "enable"},
        {kTuning, "AE_3[0]", "    ^", QvDatabaseCatalogStop_Index, "enable"},
        {kTuning, "A2DNR_5_2.tables[3].gian", "                    ^", QvDatabaseCatalogStop_Member, "gain"},
        {kTuning, "A2DNR_5_2.tables.gain", "                ^", QvDatabaseCatalogStop_List, nullptr},
        {kTuning, "A2DNR_5_2.tables[20]", "                ^", QvDatabaseCatalogStop_OutOfRange, nullptr},
        {kTuning, "A2DNR_5_2.tables[1][0]", "                   ^", QvDatabaseCatalogStop_Index, nullptr},
        {kTuning, "A2DNR_5_2.tables[99999999999999999999]", "                ^", QvDatabaseCatalogStop_OutOfRange,
         nullptr},
        {kTuning, "A2DNR_5_2.tables[x]", "                ^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "A2DNR_5_2.tables[]", "                ^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "DUMP.registers[4294967296]", "              ^", QvDatabaseCatalogStop_OutOfRange, nullptr},
        {kTuning, "A2DNR_5_2.tables[-1]", "                ^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "A2DNR_5_2.tables[1", "                ^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "A2DNR_5_2.tables[1]x", "                   ^", QvDatabaseCatalogStop_Syntax, nullptr},
        {kTuning, "AE_3.enable.x", "           ^", QvDatabaseCatalogStop_Scalar, nullptr},
        {kTuning, "SS.driverName[0]", "             ^", QvDatabaseCatalogStop_Index, nullptr},
        {kSimulator, "ExpV2.windows.width", "             ^", QvDatabaseCatalogStop_Scalar, nullptr},
        {kSimulator, "ExpV2.windows[4]", "             ^", QvDatabaseCatalogStop_OutOfRange, nullptr},
        {kCalibration, "sensr.CC", "^", QvDatabaseCatalogStop_Member, "header"},
        {kCalibration, "sensor.CC[14]", "         ^", QvDatabaseCatalogStop_OutOfRange, nullptr},
        {kInitialization, "IPT.paths[3].enable", "    ^", QvDatabaseCatalogStop_Member, "framerate"},
    };
    for (const auto& [document, path, mark, stop, sibling] : cases) {
        const auto place = placeOf(document, path, 10);
        EXPECT_EQ(place.reached, std::strlen(mark) - 1) << path;
        EXPECT_EQ(place.stop, stop) << path;
        auto cursor = sized<QvDatabaseCatalogCursor_t>();
        auto field = sized<QvDatabaseCatalogField_t>();
        ASSERT_EQ(QvDatabaseCatalog_siblings(&place, &cursor), sibling == nullptr ? 10 : 0) << path;
        if (sibling != nullptr) {
            ASSERT_EQ(QvDatabaseCatalog_next(&cursor, &field), 0) << path;
            EXPECT_STREQ(field.pKey, sibling) << path;
        }
        double number = 0;
        char record[23328] = {};
        EXPECT_EQ(QvDatabaseCatalog_number(&place, record, &number), 13) << path;
    }
}

TEST(Catalog, GivesListsAndRowsAndNumbersOfTheDocumentsForm)
{
    const auto list = placeOf(QvDatabaseCatalogDocument_Tuning, "A2DNR_5_2.tables[1].lumaCurveX[3]");
    EXPECT_EQ(list.offset, offsetof(QvDatabaseAuto2DNoiseReduction_5_2_t, tables[1].lumaCurveX[3]));
    EXPECT_EQ(list.rank, 1U);
    EXPECT_EQ(list.extents[0], 12U);
    EXPECT_EQ(list.length, 24U);
    // A record that stands as a list of its numbers.
    EXPECT_EQ(placeOf(QvDatabaseCatalogDocument_Simulator, "AES_2.windows[2]").offset,
              offsetof(QvDatabaseAutoExposureStatistics_2_t, rectangle.width));
    EXPECT_EQ(placeOf(QvDatabaseCatalogDocument_Simulator, "AES_2.windows").rank, 1U);
}

TEST(Catalog, ReadsAndStoresOneElementAndNothingElse)
{
    const Database database;
    const struct {
        const char* path;
        const char* text;
        int status;
        const char* after; ///< what the element then reads as
    } cases[] = {
        {"AE_3.enable", "true", 0, "true"},
        {"AE_3.enable", "2", 7, "true"},
        {"AE_3.enable", "0", 0, "false"},
        {"AE_3.roiNum", "25", 0, "25"},
        {"AE_3.roiNum", "26", 6, "25"}, // the type would hold it, the list has no more
        {"AE_3.roiNum", "256", 6, "25"},
        {"AE_3.roiNum", "-1", 6, "25"},
        {"AE_3.roiNum", "2.5", 7, "25"},
        {"AE_3.roiNum", "99999999999999999999", 6, "25"},
        {"AE_3.roiNum", "", 7, "25"},
        {"AE_3.setPoint", "16777217.0000000001", 0, "16777218"}, // rounded once
        {"AE_3.setPoint", "0.1", 0, "0.1"},
        {"AE_3.setPoint", "1e39", 6, "0.1"},
        {"AE_3.setPoint", "-1e-60", 0, "0"}, // too close to zero is zero
        {"AE_3.setPoint", "0.1", 0, "0.1"},
        {"AE_3.setPoint", "nan", 6, "0.1"},
        {"AE_3.setPoint", "1x", 7, "0.1"},
        {"AE_3.roiWindow[24][4]", "-2.5", 0, "-2.5"},
        {"WDR_5_2_1.minGain", "1e-400", 6, "0"}, // a double takes no text that only a wider type could
        {"WDR_5_2_1.minGain", "0.1", 0, "0.1"},
        {"WDR_5_2_1.minGain", "inf", 6, "0.1"},
        {"SS.listInfos[29].drvModeInfos[19].sensorType", "-2147483648", 0, "-2147483648"},
        {"SS.listInfos[29].drvModeInfos[19].sensorType", "-2147483649", 6, "-2147483648"},
        {"SS.driverName", "imx477", 0, "imx477"},
        {"DUMP.registerNumber", "5", 13, "0"},
        {"ST.protocol", "Simulator", 0, "0"},
        {"ST.protocol", "QvDatabaseSettingProtocol_Standard", 0, "1"},
        {"ST.protocol", "Nothing", 7, "1"},
        {"TM.fs.frameCount", "18446744073709551615", 0, "18446744073709551615"},
        {"TM.fs.frameCount", "18446744073709551616", 6, "18446744073709551615"},
        {"TM.rtmp.nginxIp", "192.168.100.1000", 6, "127.0.0.1"}, // no room for the terminator
        {"TM.rtmp.nginxIp", "192.168.100.100", 0, "192.168.100.100"},
    };
    for (const auto& [path, text, status, after] : cases) {
        const auto place = placeOf(QvDatabaseCatalogDocument_Memory, path);
        char* pRecord = &database.record<char>(place.pKey);
        std::string before = recordOf(database.handle(), place.pKey);
        EXPECT_EQ(QvDatabaseCatalog_setText(&place, pRecord, text), status) << path << " = " << text;
        char found[64];
        std::size_t length = 0;
        EXPECT_EQ(QvDatabaseCatalog_text(&place, pRecord, found, sizeof found, &length), 0) << path;
        EXPECT_STREQ(found, after) << path << " = " << text;
        EXPECT_EQ(length, std::strlen(after));
        EXPECT_EQ(QvDatabaseCatalog_text(&place, pRecord, found, length, nullptr), 6);
        before.replace(place.offset, place.length, pRecord + place.offset, place.length);
        EXPECT_TRUE(before == recordOf(database.handle(), place.pKey)) << path << " touched its neighbours";
    }
    const struct {
        const char* path;
        double number;
        int status;
    } numbers[] = {
        {"AE_3.enable", 1, 0},
        {"AE_3.enable", 0, 0},
        {"AE_3.enable", 0.5, 6},
        {"AE_3.roiNum", 3, 0},
        {"AE_3.roiNum", 3.5, 6},
        {"AE_3.roiNum", -1, 6},
        {"AE_3.roiNum", NAN, 6},
        {"AE_3.setPoint", 1e39, 6},
        {"AE_3.setPoint", INFINITY, 6},
        {"WDR_5_2_1.maxGain", 0x1.0000001p0, 0}, // a double
        {"WDR_5_2_1.maxGain", INFINITY, 6},
        {"TM.fs.frameCount", 0x1p63, 0},
        {"TM.fs.frameCount", 0x1p64, 6},
        {"SS.driverName", 1, 13},
        {"SS.modes", 1, 13},
        {"RAM.hBufferQueueFile", 5, 13}, // the library's own
        {"DUMP.registerNumber", 5, 13},
        {"AE_3", 1, 13},
    };
    for (const auto& [path, number, status] : numbers) {
        const auto place = placeOf(QvDatabaseCatalogDocument_Memory, path);
        char* pRecord = &database.record<char>(place.pKey);
        const std::string before = recordOf(database.handle(), place.pKey);
        EXPECT_EQ(QvDatabaseCatalog_setNumber(&place, pRecord, number), status) << path << " = " << number;
        EXPECT_TRUE(status == 0 || recordOf(database.handle(), place.pKey) == before) << path << " = " << number;
        double found = 0;
        if (status == 0) {
            EXPECT_EQ(QvDatabaseCatalog_number(&place, pRecord, &found), 0) << path;
            EXPECT_EQ(found, number) << path;
        }
    }
}

TEST(Catalog, FollowsAListOnTheHeapAsFarAsItGoes)
{
    QvDatabaseRegister_t registers[2] = {};
    QvDatabaseDump_t dump = {registers, 2};
    const auto place = placeOf(QvDatabaseCatalogDocument_Tuning, "DUMP.registers[1].address");
    EXPECT_EQ(QvDatabaseCatalog_setText(&place, &dump, "0x1F"), 0);
    EXPECT_STREQ(registers[1].address, "0x1F");
    dump.registerNumber = 1;
    EXPECT_EQ(QvDatabaseCatalog_setText(&place, &dump, "0x2F"), 6);
    dump = {nullptr, 2};
    EXPECT_EQ(QvDatabaseCatalog_setText(&place, &dump, "0x2F"), 6);
    EXPECT_STREQ(registers[1].address, "0x1F");
}

TEST(Catalog, TellsWhatMayFollowARecord)
{
    for (const auto& [path, first] : {std::pair{"AEE_2.tables[3]", "gains"}, std::pair{"C_MODEL._2dnr", "bit"},
                                      std::pair{"AEE_2.tables", "gains"}, std::pair{"AEE_2", "enable"}}) {
        const auto place = placeOf(QvDatabaseCatalogDocument_Tuning, path);
        auto cursor = sized<QvDatabaseCatalogCursor_t>();
        auto field = sized<QvDatabaseCatalogField_t>();
        ASSERT_EQ(QvDatabaseCatalog_siblings(&place, &cursor), 0) << path;
        ASSERT_EQ(QvDatabaseCatalog_next(&cursor, &field), 0) << path;
        EXPECT_STREQ(field.pKey, first) << path;
    }
    const auto scalar = placeOf(QvDatabaseCatalogDocument_Tuning, "AEE_2.enable");
    auto cursor = sized<QvDatabaseCatalogCursor_t>();
    EXPECT_EQ(QvDatabaseCatalog_siblings(&scalar, &cursor), 10);
}

TEST(Catalog, SkipsARecordThatHasJustBeenGivenAndNothingElse)
{
    auto cursor = sized<QvDatabaseCatalogCursor_t>();
    auto field = sized<QvDatabaseCatalogField_t>();
    for (const bool isOther : {true, false}) {
        ASSERT_EQ(QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_Tuning, "AGE", &cursor), 0);
        std::string keys;
        while (QvDatabaseCatalog_next(&cursor, &field) == 0) {
            keys += std::string(field.pKey) + " ";
            if (isOther == (std::strcmp(field.pKey, "tables") != 0)) {
                EXPECT_EQ(QvDatabaseCatalog_skip(&cursor), 0);
            }
        }
        EXPECT_EQ(keys, isOther ? "enable tables hdr gains threshold " : "enable tables ");
    }
}

TEST(Catalog, KnowsTheFactsOfTheHeaders)
{
    const auto fieldAt = [](const char* pPath) {
        const auto place = placeOf(QvDatabaseCatalogDocument_Memory, pPath);
        auto field = sized<QvDatabaseCatalogField_t>();
        EXPECT_EQ(QvDatabaseCatalog_field(&place, &field), 0);
        return field;
    };
    const auto rate = fieldAt("SS.modes[0].fpsMax");
    EXPECT_STREQ(rate.pUnit, "1/s");
    EXPECT_EQ(rate.maximum, INFINITY);
    const auto count = fieldAt("A2DNR_5_2.tableNumber");
    EXPECT_EQ(count.role, QvDatabaseCatalogRole_CountOf);
    EXPECT_STREQ(count.pOther, "tables");
    EXPECT_EQ(count.minimum, 0);
    EXPECT_EQ(count.maximum, 20);
    EXPECT_STREQ(fieldAt("2DNR_5_2.lumaCurveX").pOther, "lumaCurveY");
    const auto map = fieldAt("LSC_4.matrix");
    EXPECT_EQ(map.role, QvDatabaseCatalogRole_Map);
    EXPECT_EQ(map.roleRows * map.roleColumns, 33U * 33U);
    const auto type = fieldAt("OPT.pathIndex");
    auto value = sized<QvDatabaseCatalogValue_t>();
    EXPECT_EQ(type.valueNumber, 6U); // how many there are is no value
    EXPECT_EQ(QvDatabaseCatalog_value(&type, 3, &value), 0);
    EXPECT_STREQ(value.pShort, "RawHdr");
    EXPECT_EQ(value.value, 3);
    EXPECT_EQ(QvDatabaseCatalog_value(&type, 6, &value), 8);
}

TEST(Catalog, RefusesStructsOfNoSizeAndWhatIsPastTheEnd)
{
    auto category = sized<QvDatabaseCatalogCategory_t>();
    EXPECT_EQ(QvDatabaseCatalog_category(QvDatabaseCatalogDocument_Sum, 0, &category), 8);
    EXPECT_EQ(QvDatabaseCatalog_category(QvDatabaseCatalogDocument_Meta, 1, &category), 8);
    EXPECT_EQ(QvDatabaseCatalog_document(QvDatabaseCatalogDocument_Sum), nullptr);
    EXPECT_EQ(QvDatabaseCatalog_category(static_cast<QvDatabaseCatalogDocument_t>(9), 0, &category), 8);
    auto cursor = sized<QvDatabaseCatalogCursor_t>();
    EXPECT_EQ(QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_Tuning, "CLB", &cursor), 10);
    EXPECT_EQ(QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_Tuning, "AE_3", &cursor), 0);
    QvDatabaseCatalogField_t unsizedField{};
    EXPECT_EQ(QvDatabaseCatalog_next(&cursor, &unsizedField), 13);
    auto field = sized<QvDatabaseCatalogField_t>();
    EXPECT_EQ(QvDatabaseCatalog_next(&cursor, &field), 0);
    EXPECT_STREQ(field.pKey, "enable") << "a refused call must not step on";
    auto found = placeOf(QvDatabaseCatalogDocument_Memory, "OPT.pathIndex");
    ASSERT_EQ(QvDatabaseCatalog_field(&found, &field), 0);
    QvDatabaseCatalogCategory_t unsizedCategory{};
    QvDatabaseCatalogCursor_t unsizedCursor{};
    QvDatabaseCatalogPlace_t unsizedPlace{};
    QvDatabaseCatalogValue_t unsizedValue{};
    EXPECT_EQ(QvDatabaseCatalog_category(QvDatabaseCatalogDocument_Meta, 0, &unsizedCategory), 13);
    EXPECT_EQ(QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_Tuning, "AE_3", &unsizedCursor), 13);
    EXPECT_EQ(QvDatabaseCatalog_find(QvDatabaseCatalogDocument_Tuning, "AE_3", &unsizedPlace), 13);
    const auto record = placeOf(QvDatabaseCatalogDocument_Memory, "OPT");
    EXPECT_EQ(QvDatabaseCatalog_siblings(&record, &unsizedCursor), 13);
    EXPECT_EQ(QvDatabaseCatalog_field(&found, &unsizedField), 13);
    EXPECT_EQ(QvDatabaseCatalog_value(&field, 0, &unsizedValue), 13);
    // What no call has filled is refused, not followed, and so is what lost its size.
    auto place = sized<QvDatabaseCatalogPlace_t>();
    auto value = sized<QvDatabaseCatalogValue_t>();
    auto unfilledCursor = sized<QvDatabaseCatalogCursor_t>();
    const auto unfilledField = sized<QvDatabaseCatalogField_t>();
    found.size = 0;
    field.size = 0;
    EXPECT_EQ(QvDatabaseCatalog_value(&field, 0, &value), 13);
    EXPECT_EQ(QvDatabaseCatalog_value(&unfilledField, 0, &value), 13);
    for (const QvDatabaseCatalogPlace_t& refused : {place, found}) {
        EXPECT_EQ(QvDatabaseCatalog_siblings(&refused, &unfilledCursor), 13);
        EXPECT_EQ(QvDatabaseCatalog_field(&refused, &unsizedField), 13);
    }
    for (QvDatabaseCatalogCursor_t refused : {unfilledCursor, unsizedCursor}) {
        EXPECT_EQ(QvDatabaseCatalog_skip(&refused), 13);
        EXPECT_EQ(QvDatabaseCatalog_next(&refused, &field), 13);
    }
    // A newer program's struct is larger; what the library doesn't know stays as it is.
    struct {
        QvDatabaseCatalogField_t field;
        char more[16];
    } newer{{}, "as before"};
    newer.field.size = sizeof newer;
    EXPECT_EQ(QvDatabaseCatalog_next(&cursor, &newer.field), 0);
    EXPECT_EQ(newer.field.size, sizeof newer);
    EXPECT_STREQ(newer.more, "as before");
}

} // namespace
