#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <qv_database_c/database_access.h>

#include "database/test_support.h"

namespace qv::test {
namespace {

/// Fields of every kind, in which a boolean's byte may hold anything.
struct Fields {
    unsigned char bytes[4] = {0, 1, 2, 255};
    char texts[12] = {'a', 'b', 0, 0, 'c', 'd', 'e', 0, 0, 0, 0, 0};
    double doubles[2] = {0.5, -2.0};
    float floats[8] = {0.25F, 1.0F, -3.5F, 4.0F, 5.0F, 6.0F, 7.0F, 8.0F};
    std::int16_t shorts[8] = {-1, 2, -32768, 4, 5, 6, 7, 8};

    bool* bools() { return reinterpret_cast<bool*>(bytes); }
};

int storeByte(QvJsonValue_t* pValue, char* pRecord)
{
    return QvDatabaseAccess_integer(pValue, pRecord, 1, "v");
}

QvJsonValue_t* pLastItem = nullptr;

int addByte(char* pRecord, QvJsonValue_t* pValue)
{
    pLastItem = pValue;
    return *pRecord == 'x' ? 77 : QvDatabaseAccess_integer_(pValue, true, pRecord, 1, "v");
}

JsonValue memberOf(const std::string& text)
{
    return parseJson("{\"k\": " + text + "}");
}

/// Two trees are the same where their texts are, whatever the writer's layout.
void expectTree(QvJsonValue_t* pValue, const std::string& expected, const char* pWhat = "")
{
    EXPECT_EQ(jsonText(pValue), jsonText(parseJson(expected).get())) << pWhat;
}

/// The fields as a document.
JsonValue show(Fields& f)
{
    JsonValue value = parseJson("{}");
    QvDatabaseAccess_integers_(value.get(), false, f.bytes, 1, 4, "bytes");
    QvDatabaseAccess_integers_(value.get(), false, f.texts, 1, 12, "texts");
    QvDatabaseAccess_doubles_(value.get(), f.doubles, 2, "doubles");
    QvDatabaseAccess_floats_(value.get(), f.floats, 8, "floats");
    QvDatabaseAccess_integers_(value.get(), true, f.shorts, 2, 8, "shorts");
    return value;
}

/// An accessor on the member "k" and one of the fields.
struct Accessor {
    const char* name;
    int (*call)(QvJsonValue_t* v, Fields& f);
    const char* text;         ///< the member, as it is read or written
    const char* changed = ""; ///< by reading: the field and what it then holds
    const char* now = "";
};
#define CALL(name, ...) #name, [](QvJsonValue_t * v, Fields & f) { return QvDatabaseAccess_##name(v, __VA_ARGS__); }

constexpr const char* kOverlong = "[[10, 11, 12, 13, 14], [15], [16]]";
constexpr const char* kPlanes = "[[[10], [11, 12, 13]], [[14], [15], [16]], [[17]]]";

constexpr Accessor kReaders[] = {
    {CALL(bool, f.bools(), "k"), "0.5", "bytes", "[1, 1, 2, 255]"},
    {CALL(bools, f.bools(), 4, "k"), R"([true, false, "x", null, true])", "bytes", "[1, 0, 0, 0]"},
    {CALL(bools, f.bools(), 4, "k"), "[-1]", "bytes", "[1, 1, 2, 255]"},
    {CALL(chars, f.texts, 12, "k"), "\"xyz\"", "texts", "[120, 121, 122, 0, 0, 0, 0, 0, 0, 0, 0, 0]"},
    {CALL(chars, f.texts, 4, "k"), "\"wxyz5\"", "texts", "[119, 120, 121, 122, 99, 100, 101, 0, 0, 0, 0, 0]"},
    {CALL(chars22, f.texts, 3, 4, "k"), R"(["x", 5, "wxyz5", "far"])", "texts",
     "[120, 0, 0, 0, 99, 100, 101, 0, 119, 120, 121, 122]"},
    {CALL(double, f.doubles, "k"), "\"5\"", "doubles", "[0.0, -2.0]"},
    {CALL(doubles, f.doubles, 2, "k"), "[7, null, 3]", "doubles", "[7.0, 0.0]"},
    {CALL(float, f.floats, "k"), "true", "floats", "[1.0, 1.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(float, f.floats, "k"), "1e300", "floats", "[null, 1.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(floats, f.floats, 2, "k"), "[9, 10, 11]", "floats", "[9.0, 10.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(floats, f.floats, 8, "k"), "[9, \"x\"]", "floats", "[9.0, 0.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    // Rows pack by their own length, and the capacity is not looked at.
    {CALL(floats21, f.floats, 4, "k"), "[[9, 8, 7], [6, 5, 4]]", "floats", "[9.0, 8.0, 7.0, 6.0, 5.0, 4.0, 7.0, 8.0]"},
    {CALL(floats21, f.floats, 4, "k"), "[[9, 8], [7, 6, 3]]", "floats", "[9.0, 8.0, -3.5, 7.0, 6.0, 3.0, 7.0, 8.0]"},
    {CALL(floats21, f.floats, 4, "k"), "[[9, 8, 7], [6], 5]", "floats", "[9.0, 6.0, 7.0, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(floats22, f.floats, 2, 4, "k"), kOverlong, "floats", "[10.0, 11.0, 12.0, 13.0, 15.0, 6.0, 7.0, 8.0]"},
    {CALL(floats22, f.floats, 2, 2, "k"), "[9, [10]]", "floats", "[0.25, 1.0, 10.0, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(floats33, f.floats, 2, 2, 2, "k"), kPlanes, "floats", "[10.0, 1.0, 11.0, 12.0, 14.0, 6.0, 15.0, 8.0]"},
    // What is too large leaves its low bytes.
    {CALL(integer, f.bytes, 1, "k"), "300", "bytes", "[44, 1, 2, 255]"},
    {CALL(integer, f.shorts, 2, "k"), "-65538", "shorts", "[-2, 2, -32768, 4, 5, 6, 7, 8]"},
    {CALL(integer, f.floats, 4, "k"), "5360320512", "floats", "[1.0, 1.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(integer, f.doubles, 8, "k"), "4607182418800017408", "doubles", "[1.0, -2.0]"},
    {CALL(integers, f.bytes, 1, 3, "k"), R"([257, "5", -1, 9])", "bytes", "[1, 0, 255, 255]"},
    {CALL(integers, f.floats, 4, 2, "k"), "[0, 1065353216]", "floats", "[0.0, 1.0, -3.5, 4.0, 5.0, 6.0, 7.0, 8.0]"},
    {CALL(integers, f.doubles, 8, 2, "k"), "[4607182418800017408]", "doubles", "[1.0, -2.0]"},
    {CALL(integers, f.bytes, 3, 1, "k"), "[257]", "bytes", "[0, 1, 2, 255]"}, // of a width that no integer has
    {CALL(intergers22, f.shorts, 2, 2, 4, "k"), kOverlong, "shorts", "[10, 11, 12, 13, 15, 6, 7, 8]"},
    {CALL(intergers33, f.shorts, 2, 2, 2, 2, "k"), kPlanes, "shorts", "[10, 2, 11, 12, 14, 6, 15, 8]"},
    {CALL(objects, f.bytes, 2, 2, "k", storeByte), R"([{"v": 7}, {"v": 8}, {"v": 9}])", "bytes", "[7, 1, 8, 255]"},
};
constexpr Accessor kWriters[] = {
    {CALL(bool_, f.bools() + 2, "k"), "true"},
    {CALL(bools_, f.bools(), 4, "k"), "[false, true, true, true]"},
    {CALL(chars_, f.texts, "k"), "\"ab\""},
    {CALL(chars22_, f.texts, 3, 4, "k"), R"(["ab", "cde", ""])"},
    {CALL(double_, f.doubles, "k"), "0.5"},
    {CALL(doubles_, f.doubles, 2, "k"), "[0.5, -2.0]"},
    {CALL(float_, f.floats + 2, "k"), "-3.5"},
    {CALL(floats_, f.floats, 3, "k"), "[0.25, 1.0, -3.5]"},
    {CALL(floats21_, f.floats, 8, "k", 3), "[[0.25, 1.0, -3.5], [4.0, 5.0, 6.0]]"},
    {CALL(floats22_, f.floats, 2, 2, "k"), "[[0.25, 1.0], [-3.5, 4.0]]"},
    {CALL(floats33_, f.floats, 2, 1, 2, "k"), "[[[0.25, 1.0]], [[-3.5, 4.0]]]"},
    {CALL(integer_, true, f.shorts, 2, "k"), "-1"},
    {CALL(integer_, false, f.shorts, 2, "k"), "65535"},
    {CALL(integers_, true, f.bytes, 1, 4, "k"), "[0, 1, 2, -1]"},
    {CALL(integers_, true, f.bytes, 3, 1, "k"), "[0]"},
    {CALL(intergers22_, true, f.shorts, 2, 2, 3, "k"), "[[-1, 2, -32768], [4, 5, 6]]"},
    {CALL(intergers33_, false, f.shorts, 2, 2, 2, 1, "k"), "[[[65535], [2]], [[32768], [4]]]"},
    {CALL(objects_, f.bytes, 3, 2, "k", addByte), R"([{"v": 0}, {"v": -1}])"},
};
#undef CALL

TEST(Access, ReadersClampEachDimensionAndKeepElementsInTheirPlaces)
{
    for (const Accessor& reader : kReaders) {
        Fields fields;
        const JsonValue expected = show(fields);
        QvJsonValue_t* pChanged = parseJson(reader.now).release();
        QvJsonValue_addValueToObject(expected.get(), reader.changed, &pChanged);
        const JsonValue document = memberOf(reader.text);
        EXPECT_EQ(reader.call(document.get(), fields), 0) << reader.name;
        expectTree(document.get(), jsonText(memberOf(reader.text).get()), reader.name); // stays as it is
        EXPECT_EQ(jsonText(show(fields).get()), jsonText(expected.get())) << reader.name << reader.text;
    }
}

TEST(Access, MissingAndEmptyMembersGive10AndTouchNothing)
{
    for (const Accessor& reader : kReaders) {
        const auto expectUntouched = [&](const std::string& text, int status) {
            Fields fields;
            const std::string before = jsonText(show(fields).get());
            EXPECT_EQ(reader.call(parseJson(text).get(), fields), status) << reader.name << text;
            EXPECT_EQ(jsonText(show(fields).get()), before) << reader.name << text;
        };
        for (const char* pText : {"{}", R"({"k": null})", R"({"k": []})", R"({"k": {}})", R"({"K": [1]})", "5"}) {
            expectUntouched(pText, 10);
        }
        // A list finds no items in what is no list, nor a text characters in what is no text: that is no failure.
        if (*reader.text == '[') {
            expectUntouched(R"({"k": 5})", 0);
            expectUntouched(R"({"k": "text"})", 0);
            expectUntouched(R"({"k": {"a": 1}})", 0);
        } else if (*reader.text == '"' && reader.name[0] == 'c') {
            expectUntouched(R"({"k": 5})", 0);
        }
    }
}

TEST(Access, WritersPutDownTheWholeField)
{
    for (const Accessor& writer : kWriters) {
        Fields fields;
        const JsonValue value = parseJson("{}");
        EXPECT_EQ(writer.call(value.get(), fields), 0) << writer.name;
        expectTree(value.get(), std::string("{\"k\": ") + writer.text + "}", writer.name);
    }
}

TEST(Access, AddThatFailsGivesItsStatusAndOneErrorTrace)
{
    for (const Accessor& writer : kWriters) {
        // A list of one level asks for its member and so fails on one that is no list; all others add to the object.
        const bool isFlat = *writer.text == '[' && std::strstr(writer.name, "s_") != nullptr;
        const char* pText = isFlat ? R"({"k": 5})" : "5";
        const JsonValue value = parseJson(pText);
        const Traces traces;
        Fields fields;
        EXPECT_EQ(writer.call(value.get(), fields), 13) << writer.name;
        EXPECT_EQ(traces.count(QvCommonTracerLevel_Error), 1U) << writer.name;
        EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, std::string("QvDatabaseAccess_") + writer.name + ": "), 1U);
        EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "(13)"), 1U) << writer.name;
        expectTree(value.get(), pText, writer.name);
    }
    QvJsonValue_delete(&pLastItem); // the item in hand stays behind, on purpose
}

TEST(Access, ListsOfLengthZeroAreWrittenByTheirShape)
{
    const JsonValue value = parseJson("{}");
    Fields f;
    EXPECT_EQ(QvDatabaseAccess_integers_(value.get(), true, f.shorts, 2, 0, "flat"), 0);
    EXPECT_EQ(QvDatabaseAccess_objects_(value.get(), f.shorts, 2, 0, "objects", addByte), 0);
    EXPECT_EQ(QvDatabaseAccess_chars22_(value.get(), f.texts, 0, 4, "texts"), 0);
    EXPECT_EQ(QvDatabaseAccess_floats33_(value.get(), f.floats, 1, 2, 0, "planes"), 0);
    EXPECT_EQ(QvDatabaseAccess_floats21_(value.get(), f.floats, 8, "columns", 0), 0);
    EXPECT_EQ(QvDatabaseAccess_integers_(value.get(), false, nullptr, 4, 0, "none"), 0); // a list of a record's heap
    expectTree(value.get(), R"({"flat": null, "objects": null, "texts": [], "planes": [[[], []]], "columns": [],
                               "none": null})");
}

TEST(Access, ObjectsStopAtTheFirstRecordThatFails)
{
    Traces traces;
    char data[4] = {9, 9, 9, 9};
    const JsonValue value = parseJson(R"({"k": [{"v": 1}, {"v": 2}, {"v": 3}], "x": [{"v": 4}, {}, {"v": 6}]})");
    EXPECT_EQ(QvDatabaseAccess_objects(value.get(), data, 2, 2, "k", storeByte), 0);
    EXPECT_EQ(std::string(data, 4), "\x01\x09\x02\x09");
    EXPECT_EQ(QvDatabaseAccess_objects(value.get(), data, 1, 3, "x", storeByte), 10);
    EXPECT_EQ(std::string(data, 4), "\x04\x09\x02\x09");
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error), 1U);
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "(10)"), 1U);

    char records[] = "\x01x\x02";
    EXPECT_EQ(QvDatabaseAccess_objects_(value.get(), records, 1, 3, "written", addByte), 77);
    expectTree(QvJsonValue_member2(value.get(), "written"), R"([{"v": 1}])");
    EXPECT_EQ(traces.count(QvCommonTracerLevel_Error, "(77)"), 1U);
    QvJsonValue_delete(&pLastItem);
}

TEST(Access, CallocAllocatesGrowsAndShrinksWithItsFillInBytes)
{
    const JsonValue value = parseJson(R"({"two": [1, 2], "three": [1, 2, 3], "one": [1]})");
    void* pData = nullptr;
    std::size_t length = 77;
    const auto sized = [&](const char* pKey, std::size_t bytes) {
        QvJsonValue_t* pList = nullptr;
        EXPECT_EQ(QvDatabaseAccess_calloc(value.get(), &pList, &pData, 28, &length, pKey), 0);
        EXPECT_EQ(pList, QvJsonValue_member2(value.get(), pKey));
        return std::to_string(length) + ":" + std::string(static_cast<char*>(pData), bytes);
    };
    EXPECT_EQ(sized("two", 56), "2:" + std::string(56, '\0'));
    std::memset(pData, 'o', 56);
    EXPECT_EQ(sized("three", 56), "3:oo" + std::string(28, '\0') + std::string(26, 'o'));
    EXPECT_EQ(sized("one", 28), "1:oo" + std::string(26, '\0'));
    EXPECT_EQ(sized("absent", 0), "0:");
    std::free(pData);
}

} // namespace
} // namespace qv::test
