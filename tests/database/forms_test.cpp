// What holds for every table, with records and documents made up from the tables themselves. The blocks are exactly as
// large as the records, so that the address sanitizer sees each step outside.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <tuple>

#include <qv_database_c/database_auto_exposure_statistics_2.h>
#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_histogram.h>
#include <qv_initialization/initialization_member.h>

#include "database/form_listing.h"
#include "database/made_up_forms.h"
#include "database/test_support.h"
#include "database_forms.h"
#include "database_registry.h"
#include "protocol_initialization.h"

namespace qv::test {
namespace {

using namespace qv::database;

using Block = std::unique_ptr<char[]>;

Block filled(std::size_t size, int filler)
{
    Block block(new char[size]);
    std::memset(block.get(), filler, size);
    return block;
}

struct DeleteSection {
    void operator()(QvInitializationSection_t* pSection) const { QvInitializationSection_delete(&pSection); }
};
using Section = std::unique_ptr<QvInitializationSection_t, DeleteSection>;

Section makeSection()
{
    QvInitializationSection_t* pSection = nullptr;
    EXPECT_EQ(QvInitializationSection_create(&pSection), 0);
    return Section(pSection);
}

bool isSection(const Form& form)
{
    return std::strcmp(form.document, "initialization") == 0;
}

/// All forms but the one that points at a list on the heap, and those that are made up.
std::vector<Form> plainForms()
{
    std::vector<Form> plain{{"made up", "kinds", &kinds::kTable}, {"made up", "nested", &nested::kTable}};
    std::ranges::copy_if(forms(), std::back_inserter(plain),
                         [](const Form& form) { return form.table->rows[0].count != Count::Heap; });
    return plain;
}

const Table& tableOf(std::string_view document, std::string_view key)
{
    const auto form =
        std::ranges::find_if(forms(), [&](const Form& row) { return document == row.document && key == row.key; });
    return *form->table;
}

template <class T>
void store(char* pData, T value)
{
    std::memcpy(pData, &value, sizeof value);
}

/// Gives each field a value of its own that a document can carry. Lists with a counter are none, half or all in use.
void fill(const Table& table, char* pRecord, std::size_t halves, bool onlyCounters = false)
{
    static std::uint64_t seed = 0;
    for (const Field& field : table.rows) {
        for (std::size_t i = 0; i < field.number(); ++i) {
            char* pData = pRecord + field.offset + i * field.width;
            const std::uint64_t bits = ++seed * 0x9E3779B97F4A7C15U;
            const double number = static_cast<double>(seed % 8192) / 8 - 100;
            if (field.table != nullptr) {
                fill(*field.table, pData, halves, onlyCounters);
            } else if (onlyCounters) {
                continue;
            } else if (field.written == Element::Float) {
                store(pData, static_cast<float>(number));
            } else if (field.written == Element::Double) {
                store(pData, number);
            } else if (field.written == Element::Text) {
                std::memset(pData, 0, field.width);
                std::snprintf(pData, field.width, "t%u", static_cast<unsigned>(seed));
            } else if (field.written == Element::Bool) {
                *pData = static_cast<char>(bits >> 63U);
            } else {
                std::memcpy(pData, &bits, field.width);
            }
        }
    }
    for (const Field& field : table.rows) {
        const std::uint64_t used = (field.extents[0] * halves + 1) / 2;
        std::memcpy(pRecord + field.counter.offset, &used, field.counter.width);
    }
}

/// What must arrive: the bytes of all rows that are both written and read, and nothing else.
void carry(const Table& table, const char* pFrom, char* pTo, bool inSection)
{
    for (const Field& field : table.rows) {
        if (field.direction != Direction::Both) {
            continue;
        }
        // Where two rows have one key, a document holds the last of them.
        const auto last = std::ranges::find_if(table.rows.rbegin(), table.rows.rend(),
                                               [&](const Field& row) { return std::strcmp(row.key, field.key) == 0; });
        const char* pSource = pFrom + last->offset;
        char* pTarget = pTo + field.offset;
        if (field.table != nullptr) {
            std::uint64_t number = field.counter.width == 0 ? field.number() : 0;
            std::memcpy(&number, pFrom + field.counter.offset, field.counter.width);
            std::memcpy(pTo + field.counter.offset, &number, field.counter.width);
            for (std::size_t i = 0; i < number; ++i) {
                carry(*field.table, pSource + i * field.width, pTarget + i * field.width, inSection);
            }
        } else if (inSection && field.written == Element::Text) {
            std::strcpy(pTarget, pSource); // not padded
        } else if (inSection && field.written == Element::Float) {
            float value = 0;
            std::memcpy(&value, pSource, sizeof value);
            store(pTarget, std::trunc(value)); // whole numbers only
        } else {
            std::memcpy(pTarget, pSource, field.size());
        }
    }
}

void transfer(const Form& form, const char* pFrom, char* pTo)
{
    if (isSection(form)) {
        const Section section = makeSection();
        EXPECT_EQ(writeSection(*form.table, pFrom, section.get()), 0);
        EXPECT_EQ(readSection(*form.table, section.get(), pTo), 0);
        return;
    }
    const JsonValue written = parseJson("{}");
    EXPECT_EQ(writeTable(*form.table, pFrom, written.get()), 0);
    EXPECT_EQ(readTable(*form.table, parseJson(jsonText(written.get())).get(), pTo), 0);
}

TEST(Forms, CarryTheFieldsOfTheirRowsAndTouchNoOtherByte)
{
    const Traces traces;
    for (const Form& form : plainForms()) {
        for (std::size_t halves = 0; halves <= 2; ++halves) {
            const std::size_t size = form.table->size;
            const Block from = filled(size, 0x5A);
            const Block to = filled(size, 0xC3);
            const Block expected = filled(size, 0xC3);
            fill(*form.table, from.get(), halves);
            carry(*form.table, from.get(), expected.get(), isSection(form));
            transfer(form, from.get(), to.get());
            const auto at = std::mismatch(to.get(), to.get() + size, expected.get()).first - to.get();
            EXPECT_EQ(static_cast<std::size_t>(at), size)
                << form.document << " " << form.key << " with " << halves << "/2 in use differs at that byte";
        }
    }
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error), 0U);
}

constexpr std::size_t kWrongs = 8;
constexpr std::size_t kTooLong = 7; // the last of them

/// What is wrong about the lists of records in a document.
enum class Lists { None, TooLong, BeyondCounter };
constexpr Lists kLists[] = {Lists::None, Lists::TooLong, Lists::BeyondCounter};

/// A value that doesn't fit the field: of a wrong kind, too long or too short.
std::string wrongValue(const Field& field, std::size_t wrong)
{
    const std::string text = '"' + std::string(300, 'x') + '"';
    if (wrong == kTooLong) {
        std::string value = field.written == Element::Text ? text : "-2.5";
        for (std::size_t i = field.rank; i-- > 0;) {
            value = listOf(field.extents[i] + 2U, value);
        }
        if (field.columns != 0) {
            value = std::string("[[],[],").append(listOf(9000, "-2.5")).append("]"); // beyond any record
        }
        return value;
    }
    const std::string wrongs[] = {"-7", "1e300", "true", "null", R"({"a": [1]})", "[[7], [], 7, [[]]]", text};
    return wrongs[wrong];
}

/// A document whose values don't fit. Its lists of records are such values too, or a little too long, or so long that a
/// counter of 8 bits begins anew.
std::string wrongDocument(const Table& table, std::size_t wrong, Lists lists)
{
    std::string text;
    for (const Field& field : table.rows) {
        std::string value;
        if (field.written != Element::Record || lists == Lists::None) {
            value = wrongValue(field, wrong);
        } else {
            value = wrongDocument(*field.table, wrong, lists);
            if (field.count != Count::One) {
                const std::size_t number = field.extents[0] + 2U;
                value = listOf(number, value);
                if (lists == Lists::BeyondCounter) {
                    value.back() = ',';
                    value += listOf(257 - number, "{}").substr(1);
                }
            }
        }
        text += std::string(text.empty() ? "{\"" : ",\"") + field.key + "\":" + value;
    }
    return text + "}";
}

Section wrongSection(const Table& table, const char* pValue)
{
    Section section = makeSection();
    for (const Field& field : table.rows) {
        QvInitializationMember_t* pMember = nullptr;
        EXPECT_EQ(QvInitializationMember_create(&pMember), 0);
        pMember->pKey = strdup(field.key);
        pMember->pValue = strdup(pValue);
        void* pElement = pMember;
        EXPECT_EQ(QvCommonDQueue_pushBack(section->hMember, &pElement), 0);
    }
    return section;
}

TEST(Forms, NeverStepOutsideTheRecordWhateverADocumentHolds)
{
    const Traces traces(QvCommonTracerLevel_Sum);
    const std::string text(200000, 'x');
    for (const Form& form : plainForms()) {
        const Block record = filled(form.table->size, 0xC3);
        for (const char* pValue : {"", "text", "-1", "1e400", "99999999999999999999999", text.c_str()}) {
            if (isSection(form)) {
                EXPECT_EQ(readSection(*form.table, wrongSection(*form.table, pValue).get(), record.get()), 0);
            }
        }
        for (std::size_t i = 0; i < 3 * kWrongs && !isSection(form); ++i) {
            const JsonValue value = parseJson(wrongDocument(*form.table, i / 3, kLists[i % 3]));
            const int status = readTable(*form.table, value.get(), record.get());
            EXPECT_TRUE(status == 0 || status == 6) << form.document << " " << form.key << ": " << status;
        }
    }
}

TEST(Forms, WriteAnyBytesWithoutLookingBeyondTheRecordOrChangingIt)
{
    for (const Form& form : plainForms()) {
        const std::size_t size = form.table->size;
        for (const int filler : {0xFF, static_cast<int>('A'), 0}) {
            const Block record = filled(size, filler == 0 ? 'A' : filler);
            if (filler == 0) {
                fill(*form.table, record.get(), 2, true); // no text has an end
            }
            for (std::size_t i = 0; filler != 0 && i + 64 < size; i += 64) {
                record[i] = 0; // counters are huge; ends of texts keep the document small
            }
            const std::string before(record.get(), size);
            const int status = isSection(form) ? writeSection(*form.table, record.get(), makeSection().get())
                                               : writeTable(*form.table, record.get(), parseJson("{}").get());
            EXPECT_EQ(status, 0) << form.document << " " << form.key;
            EXPECT_TRUE(before == std::string(record.get(), size)) << form.document << " " << form.key;
        }
    }
}

TEST(Forms, ListOnTheHeapTakesTheDocumentsLength)
{
    const Table& dumpTable = tableOf("tuning", "DUMP");
    QvDatabaseRegister_t registers[3];
    for (QvDatabaseRegister_t& item : registers) {
        fill(*dumpTable.rows[0].table, reinterpret_cast<char*>(&item), 0);
    }
    const JsonValue value = parseJson("{}");
    QvDatabaseDump_t dump{registers, 3};
    EXPECT_EQ(writeTable(dumpTable, &dump, value.get()), 0);
    dump = {};
    EXPECT_EQ(readTable(dumpTable, value.get(), &dump), 0);
    EXPECT_EQ(dump.registerNumber, 3U);
    EXPECT_EQ(serialized(QvDatabaseDump_serialize, dump), jsonText(value.get()));
    for (std::size_t i = 0; i < 3 * kWrongs; ++i) {
        const JsonValue document = parseJson(wrongDocument(dumpTable, i / 3, kLists[i % 3]));
        EXPECT_EQ(readTable(dumpTable, document.get(), &dump), 0);
        EXPECT_EQ(dump.registerNumber, QvJsonValue_size(QvJsonValue_member2(document.get(), "registers")));
    }
    std::free(dump.pRegisters);
}

TEST(Forms, AListOnTheHeapEndsWithTheItemThatFails)
{
    onHeap::OnHeap record{};
    const Traces traces;
    const JsonValue document = parseJson(R"({"list": [{"measured": [{"value": 1}]}, {"measured": [{}, {}, {}]},
                                                      {"measured": [{"value": 2}]}]})");
    EXPECT_EQ(readTable(onHeap::kTable, document.get(), &record), 6);
    ASSERT_EQ(record.number, 3U);
    EXPECT_EQ(record.pList[0].measured[0].value, 1.0F);
    EXPECT_EQ(record.pList[1].measuredNumber, 3);
    EXPECT_EQ(record.pList[2].measuredNumber, 0);
    const JsonValue written = parseJson("{}");
    EXPECT_EQ(writeTable(onHeap::kTable, &record, written.get()), 0);
    EXPECT_EQ(QvJsonValue_size(QvJsonValue_member(written.get(), "list")), 3U);
    std::free(record.pList);
}

TEST(Forms, ATextWithoutAnEndGoesOnIntoTheNextItem)
{
    const names::Names record{{{{'a', 'b', 'c', 'd'}}, {{'e', 'f', 0, 0}}}, 2};
    const JsonValue written = parseJson("{}");
    EXPECT_EQ(writeTable(names::kTable, &record, written.get()), 0);
    QvJsonValue_t* pList = QvJsonValue_member(written.get(), "list");
    EXPECT_STREQ(QvJsonValue_asString(QvJsonValue_member(QvJsonValue_item(pList, 0), "text")), "abcdef");
    EXPECT_STREQ(QvJsonValue_asString(QvJsonValue_member(QvJsonValue_item(pList, 1), "text")), "ef");
}

TEST(Registry, AResetWritesEveryByteOfARecordThatIsNotZeroedFirst)
{
    for (const Category& category : categories()) {
        const Block one = filled(category.size, 0xA5);
        const Block other = filled(category.size, 0x5A);
        if (category.isResetPartial) {
            continue;
        }
        EXPECT_EQ(category.reset(one.get()), 0) << category.key;
        EXPECT_EQ(category.reset(other.get()), 0) << category.key;
        EXPECT_EQ(std::memcmp(one.get(), other.get(), category.size), 0) << category.key;
    }
}

TEST(Registry, CodecsRefuseARecordOrAValueThatIsNull)
{
    const JsonValue value = parseJson("{}");
    for (const Category& category : categories()) {
        const std::string key = category.key;
        const Block record = filled(category.size, 0);
        EXPECT_TRUE(category.isResetUnguarded || category.reset(nullptr) == 13) << key;
        for (const Codec& codec : {category.tuning, category.simulator}) {
            if (codec.parse != nullptr && key != "C_MODEL" && key != "TM") { // those two test nothing
                EXPECT_EQ(codec.parse(nullptr, record.get()), 13) << key;
                EXPECT_EQ(codec.parse(value.get(), nullptr), 13) << key;
                EXPECT_EQ(codec.serialize(nullptr, value.get()), 13) << key;
                EXPECT_EQ(codec.serialize(record.get(), nullptr), 13) << key;
            }
        }
    }
    EXPECT_EQ(QvDatabaseHistogram_statistics(nullptr, value.get()), 13);
    EXPECT_EQ(QvDatabaseAutoExposureStatistics_2_statistics(nullptr, value.get()), 13);
}

void expectSound(const Table& table, const std::string& where)
{
    std::set<std::string> keys;
    std::vector<bool> isWritten(table.size);
    std::uint16_t line = 0;
    for (const Field& field : table.rows) {
        const std::string place = where + "." + field.key;
        EXPECT_GT(field.line, line) << place << " shares its line, so that its traces point at two rows";
        line = field.line;
        const std::size_t size = field.count == Count::Heap ? sizeof(void*) : field.size();
        ASSERT_TRUE(field.offset + size <= table.size && field.counter.offset + field.counter.width <= table.size &&
                    field.bound.offset + field.bound.width <= table.size)
            << place;
        if (field.table != nullptr) {
            expectSound(*field.table, place);
        }
        if (field.direction != Direction::ReadOnly) {
            // The two ends of a range share their key, on purpose.
            EXPECT_TRUE(keys.insert(field.key).second || place == "value.QvDatabaseRange_t.max") << place << " twice";
            const auto begin = isWritten.begin() + static_cast<std::ptrdiff_t>(field.offset);
            const auto end = begin + static_cast<std::ptrdiff_t>(size);
            EXPECT_EQ(std::find(begin, end, true), end) << place << " shares bytes with another row";
            std::fill(begin, end, true);
        }
    }
}

TEST(Forms, RowsStandInsideTheirRecordsAndApart)
{
    for (const Form& form : forms()) {
        expectSound(*form.table, std::string(form.document) + "." + form.key);
    }
}

/// From here on the catalog gives the rows of a table, each with those of its record behind it.
void expectTold(const Table& table, std::size_t depth, QvDatabaseCatalogCursor_t& cursor)
{
    for (const Field& row : table.rows) {
        auto told = sized<QvDatabaseCatalogField_t>();
        ASSERT_EQ(QvDatabaseCatalog_next(&cursor, &told), 0) << row.key;
        const std::size_t number = row.count == Count::Members ? row.table->rows.size() : row.number();
        EXPECT_EQ(told.extents[0] * told.extents[1] * told.extents[2], row.count == Count::Heap ? 0 : number)
            << row.key;
        EXPECT_EQ(std::tuple(std::string(told.pKey), told.depth, told.offset, told.width, int{told.written},
                             told.isWrittenSigned, int{told.direction}, int{told.count}, told.isTwin,
                             told.counterOffset, told.counterWidth),
                  std::tuple(std::string(row.key), depth, row.offset, row.width, static_cast<int>(row.written),
                             row.isWrittenSigned, static_cast<int>(row.direction), static_cast<int>(row.count),
                             row.isTwin, row.counter.offset, row.counter.width));
        if (row.table != nullptr) {
            expectTold(*row.table, depth + 1, cursor);
        }
    }
}

TEST(Forms, AreWhatTheCatalogTells)
{
    std::size_t number = 0;
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        for (const Form& form : forms()) {
            if (std::strcmp(form.document, QvDatabaseCatalog_document(document)) == 0) {
                SCOPED_TRACE(std::string(form.document) + " " + form.key);
                auto cursor = sized<QvDatabaseCatalogCursor_t>();
                auto field = sized<QvDatabaseCatalogField_t>();
                ASSERT_EQ(QvDatabaseCatalog_walk(document, form.key, &cursor), 0);
                expectTold(*form.table, 0, cursor);
                EXPECT_EQ(QvDatabaseCatalog_next(&cursor, &field), 8) << "more than there are rows";
                ++number;
            }
        }
    }
    EXPECT_EQ(number, 104U);
}

TEST(Forms, MatchTheCheckedInListing)
{
    const std::string listing = listForms();
    const std::string checkedIn = readFile(std::filesystem::path(QV_SOURCE_DIR) / "tests/data/forms.txt");
    const auto at = std::mismatch(listing.begin(), listing.end(), checkedIn.begin(), checkedIn.end()).first;
    EXPECT_TRUE(listing == checkedIn) << "The forms differ from tests/data/forms.txt from line "
                                      << std::count(listing.begin(), at, '\n') + 1 << " on. If that is meant:\n"
                                      << "    list_forms > tests/data/forms.txt";
}

} // namespace
} // namespace qv::test
