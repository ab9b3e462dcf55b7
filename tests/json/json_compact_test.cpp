// Compact trees: whoever goes by the operations sees the same as in any other tree.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "json_document.h"

using namespace qv::test;

namespace {

constexpr const char* kDocuments[] = {
    "[1, 2, 65535]",
    "[0]",
    "[-1, 0, 65535]",
    "[65536, 1]",
    "[1, 2147483648]",
    "[-2147483649, 1]",
    "[65536, 2147483647, -2147483648]",
    "[2147483648, -9223372036854775808, 9223372036854775807, 18446744073709551615]",
    "[0.5, -0.0, 1e300, 123456.789, -7.25]",
    "[1, 2.5, 3]",
    "[1e400, -1e400, 9.3e18, 0.1]",
    R"({"a": [1, 2], "b": [[3, 4], [5.5], [], [-6, "text"]], "c": {"d": [true, 1], "e": [7, 8]}, "a": [9, 10, 11]})",
    "{\"a\": [1, 2 /* two */, 3], \"b\": [4, 5] // behind\n}",
    "// above\n[1, 2]",
};

constexpr QvJsonNumber_t kKinds[] = {QvJsonNumber_Int8,   QvJsonNumber_Uint8, QvJsonNumber_Int16,
                                     QvJsonNumber_Uint16, QvJsonNumber_Int32, QvJsonNumber_Uint32,
                                     QvJsonNumber_Int64,  QvJsonNumber_Float, QvJsonNumber_Double};
constexpr size_t kWidths[] = {1, 1, 2, 2, 4, 4, 8, 4, 8};

// All lists of a tree, found by operations alone.
void collectLists(QvJsonValue_t* pValue, std::vector<QvJsonValue_t*>& lists)
{
    if (pValue->type == QvJsonValueType_Object) {
        for (size_t place = 0; place < pValue->holder.pObject->number; ++place) {
            collectLists(pValue->holder.pObject->pPairs[place].pValue, lists);
        }
        return;
    }
    if (pValue->type != QvJsonValueType_Array) {
        return;
    }
    lists.push_back(pValue);
    for (size_t index = 0; index < pValue->holder.pArray->number; ++index) { // a packed list has no lists in it
        collectLists(&pValue->holder.pArray->pValues[index], lists);
    }
}

std::vector<QvJsonValue_t*> listsOf(const Tree& tree)
{
    std::vector<QvJsonValue_t*> lists;
    collectLists(tree.get(), lists);
    return lists;
}

// Bytes that tell whether something was written.
std::vector<char> numbersOf(QvJsonValue_t* pList, size_t kind, size_t number)
{
    std::vector<char> bytes(1 + 9 * 8, '#');
    const size_t copied = QvJsonCompact_numbers(pList, kKinds[kind], bytes.data() + 1, number);
    EXPECT_EQ(copied, std::min(number, QvJsonValue_size(pList)));
    EXPECT_EQ(bytes[1 + copied * kWidths[kind]], '#');
    return bytes;
}

std::string inAllLayouts(QvJsonValue_t* pValue)
{
    std::string text = write(pValue);
    for (const int decimals : {0, 3, 17}) {
        QvJsonWriterOpenParam_t param = {decimals, static_cast<uint32_t>(decimals), "\t"};
        text += write(pValue, &param);
    }
    return text;
}

bool isPacked(const QvJsonValue_t& list)
{
    return list.holder.pArray->number == 0 && list.holder.pArray->pValues == nullptr;
}

} // namespace

TEST(JsonCompact, ATextIsReadAsTheSameDocument)
{
    for (const char* pText : kDocuments) {
        SCOPED_TRACE(pText);
        const Tree plain = read(pText);
        const Tree compact = readCompact(pText);
        EXPECT_EQ(inAllLayouts(plain.get()), inAllLayouts(compact.get()));
        const auto plainLists = listsOf(plain);
        const auto compactLists = listsOf(compact);
        ASSERT_EQ(plainLists.size(), compactLists.size());
        for (size_t at = 0; at < plainLists.size(); ++at) {
            QvJsonValue_t* pPlain = plainLists[at];
            QvJsonValue_t* pCompact = compactLists[at];
            ASSERT_EQ(QvJsonValue_size(pPlain), QvJsonValue_size(pCompact));
            EXPECT_EQ(QvJsonValue_isEmpty(pPlain), QvJsonValue_isEmpty(pCompact));
            for (size_t kind = 0; kind < std::size(kKinds); ++kind) {
                for (size_t number = 0; number < 6; ++number) {
                    EXPECT_EQ(numbersOf(pPlain, kind, number), numbersOf(pCompact, kind, number)) << kind;
                }
            }
            for (size_t index = 0; index < QvJsonValue_size(pPlain) + 1; ++index) {
                EXPECT_EQ(QvJsonValue_itemAsInteger(pPlain, index), QvJsonValue_itemAsInteger(pCompact, index));
                EXPECT_EQ(QvJsonValue_itemAsFloat(pPlain, index), QvJsonValue_itemAsFloat(pCompact, index));
                EXPECT_EQ(QvJsonValue_itemAsBoolean(pPlain, index), QvJsonValue_itemAsBoolean(pCompact, index));
                EXPECT_EQ(QvJsonValue_itemAsString(pPlain, index) == nullptr,
                          QvJsonValue_itemAsString(pCompact, index) == nullptr);
            }
        }
        // Last, since it makes lists of values of them.
        for (size_t at = 0; at < plainLists.size(); ++at) {
            for (size_t index = QvJsonValue_size(plainLists[at]); index-- > 0;) {
                const QvJsonValue_t* pItem = QvJsonValue_item(compactLists[at], index);
                ASSERT_EQ(pItem, &compactLists[at]->holder.pArray->pValues[index]);
                EXPECT_EQ(pItem->type, QvJsonValue_item(plainLists[at], index)->type);
            }
        }
        EXPECT_EQ(inAllLayouts(plain.get()), inAllLayouts(compact.get()));
    }
    readCompact("[1, 2", 7);
    readCompact("[1, 02]", 7);
    EXPECT_EQ(QvJsonCompact_setReader(0), 13);
}

TEST(JsonCompact, ListsOfNumbersArePacked)
{
    const Tree tree = readCompact(R"({"a": [1, 2], "b": [0.5], "c": [1, 0.5], "d": [], "e": ["x"], "f": [[-1]]})");
    EXPECT_TRUE(isPacked(*QvJsonValue_member(tree.get(), "a")));
    EXPECT_TRUE(isPacked(*QvJsonValue_member(tree.get(), "b")));
    for (const char* pKey : {"c", "e", "f"}) {
        EXPECT_EQ(QvJsonValue_member(tree.get(), pKey)->holder.pArray->number,
                  QvJsonValue_size(QvJsonValue_member(tree.get(), pKey)));
    }
    EXPECT_TRUE(isPacked(*QvJsonValue_item(QvJsonValue_member(tree.get(), "f"), 0)));
}

// A list handed over whole is the list filled one by one, in any tree and of any kind.
TEST(JsonCompact, NumbersAreAddedAsOneByOne)
{
    std::mt19937_64 random(1618);
    QvJsonValue_t* pCompact = nullptr;
    ASSERT_EQ(QvJsonCompact_create(&pCompact), 0);
    const Tree compact(pCompact);
    EXPECT_EQ(write(pCompact), "{}\n");
    const Tree plain = make(QvJsonValueType_Object);
    const Tree slow = make(QvJsonValueType_Object);
    for (int round = 0; round < 400; ++round) {
        // Any bytes, odd addresses, and lengths beyond what the writer makes room for at once.
        const size_t kind = random() % std::size(kKinds);
        const size_t number = round % 40 == 0 ? 600 : random() % 9;
        std::vector<char> bytes(1 + number * 8);
        for (char& byte : bytes) {
            byte = static_cast<char>(random() % 3 == 0 ? random() : 0);
        }
        const char* pNumbers = bytes.data() + 1;
        const std::string key = numbered("k", static_cast<int>(random() % 200)); // some lists are continued
        for (const Tree* pTree : {&compact, &plain}) {
            QvJsonValue_t* pList = QvJsonValue_member(pTree->get(), key.c_str());
            if (round % 3 == 0) { // as an array that was there before
                QvJsonValue_t* pNew = nullptr;
                ASSERT_EQ(QvJsonValue_create(QvJsonValueType_Array, &pNew), 0);
                ASSERT_EQ(QvJsonValue_addValueToObject(pTree->get(), key.c_str(), &pNew), 0);
                pList = pNew;
            }
            ASSERT_EQ(QvJsonCompact_addNumbers(pList, kKinds[kind], pNumbers, number), 0);
        }
        QvJsonValue_t* pList = QvJsonValue_member(slow.get(), key.c_str());
        if (round % 3 == 0) {
            QvJsonValue_delete(&pList);
            pList = nullptr;
            ASSERT_EQ(QvJsonValue_create(QvJsonValueType_Array, &pList), 0);
            ASSERT_EQ(QvJsonValue_addValueToObject(slow.get(), key.c_str(), &pList), 0);
        }
        for (size_t index = 0; index < number; ++index) {
            const auto at = [&]<class T>(T value) {
                std::memcpy(&value, pNumbers + index * sizeof(T), sizeof(T));
                return value;
            };
            int64_t integer = 0;
            double real = 0;
            switch (kKinds[kind]) {
            case QvJsonNumber_Int8:
                integer = static_cast<int64_t>(at(int8_t{}));
                break;
            case QvJsonNumber_Uint8:
                integer = at(uint8_t{});
                break;
            case QvJsonNumber_Int16:
                integer = at(int16_t{});
                break;
            case QvJsonNumber_Uint16:
                integer = at(uint16_t{});
                break;
            case QvJsonNumber_Int32:
                integer = at(int32_t{});
                break;
            case QvJsonNumber_Uint32:
                integer = at(uint32_t{});
                break;
            case QvJsonNumber_Int64:
                integer = at(int64_t{});
                break;
            case QvJsonNumber_Float:
                real = static_cast<double>(at(float{}));
                break;
            case QvJsonNumber_Double:
                real = at(double{});
                break;
            }
            ASSERT_EQ(kKinds[kind] < QvJsonNumber_Float ? QvJsonValue_addIntegerToArray(pList, integer)
                                                        : QvJsonValue_addFloatToArray(pList, real),
                      0);
        }
    }
    const std::string expected = inAllLayouts(slow.get());
    EXPECT_EQ(expected, inAllLayouts(plain.get()));
    EXPECT_EQ(expected, inAllLayouts(compact.get()));
}

// One number of a list decides how all of it is written.
TEST(JsonCompact, TheLargestNumberOfAListCanBeAnyOne)
{
    for (const QvJsonNumber_t kind :
         {QvJsonNumber_Int16, QvJsonNumber_Uint16, QvJsonNumber_Int32, QvJsonNumber_Int64}) {
        for (const int64_t odd : {-32768, -1, 0, 8191, 8192, 9999, 10000, 32767, 65535, 65536, 99999, 100000}) {
            for (size_t place = 0; place < 300; place += 23) {
                int64_t numbers[300] = {};
                std::string expected = "[";
                std::vector<char> bytes;
                for (size_t index = 0; index < std::size(numbers); ++index) {
                    numbers[index] = index == place ? odd : static_cast<int64_t>(index * 27);
                    if (kind == QvJsonNumber_Int16) {
                        numbers[index] = static_cast<int16_t>(numbers[index]);
                    } else if (kind == QvJsonNumber_Uint16) {
                        numbers[index] = static_cast<uint16_t>(numbers[index]);
                    }
                    const auto add = [&bytes](auto number) {
                        const char* pBytes = reinterpret_cast<const char*>(&number);
                        bytes.insert(bytes.end(), pBytes, pBytes + sizeof number);
                    };
                    if (kind == QvJsonNumber_Int64) {
                        add(numbers[index]);
                    } else if (kind == QvJsonNumber_Int32) {
                        add(static_cast<int32_t>(numbers[index]));
                    } else {
                        add(static_cast<int16_t>(numbers[index]));
                    }
                    expected += (index != 0 ? ", " : "") + std::to_string(numbers[index]);
                }
                QvJsonValue_t* pRoot = nullptr;
                ASSERT_EQ(QvJsonCompact_create(&pRoot), 0);
                const Tree root(pRoot);
                QvJsonValue_t* pList = QvJsonValue_member(pRoot, "k");
                ASSERT_EQ(QvJsonCompact_addNumbers(pList, kind, bytes.data(), std::size(numbers)), 0);
                ASSERT_TRUE(isPacked(*pList));
                ASSERT_EQ(write(pRoot), "{\n  \"k\": " + expected + "]\n}\n");
            }
        }
    }
}

TEST(JsonCompact, BadArgumentsChangeNothing)
{
    const int8_t numbers[] = {1, 2};
    int8_t taken[] = {7, 7};
    const Tree text = read("\"text\"");
    const Tree none = make(QvJsonValueType_Null);
    const auto unknown = static_cast<QvJsonNumber_t>(9);
    EXPECT_EQ(QvJsonCompact_create(nullptr), 13);
    EXPECT_EQ(QvJsonCompact_addNumbers(nullptr, QvJsonNumber_Int8, numbers, 2), 13);
    EXPECT_EQ(QvJsonCompact_addNumbers(text.get(), QvJsonNumber_Int8, numbers, 2), 13);
    EXPECT_EQ(QvJsonCompact_addNumbers(none.get(), unknown, numbers, 2), 13);
    EXPECT_EQ(QvJsonCompact_addNumbers(none.get(), QvJsonNumber_Int8, nullptr, 2), 13);
    EXPECT_EQ(QvJsonCompact_addNumbers(none.get(), QvJsonNumber_Int8, nullptr, 0), 0);
    EXPECT_EQ(QvJsonCompact_addNumbers(none.get(), QvJsonNumber_Int8, numbers, SIZE_MAX), 5);
    EXPECT_EQ(none->type, QvJsonValueType_Null);
    EXPECT_STREQ(QvJsonValue_asString(text.get()), "text");
    const Tree list = readCompact("[3, 4]");
    EXPECT_EQ(QvJsonCompact_numbers(nullptr, QvJsonNumber_Int8, taken, 2), 0U);
    EXPECT_EQ(QvJsonCompact_numbers(text.get(), QvJsonNumber_Int8, taken, 2), 0U);
    EXPECT_EQ(QvJsonCompact_numbers(list.get(), unknown, taken, 2), 0U);
    EXPECT_EQ(QvJsonCompact_numbers(list.get(), QvJsonNumber_Int8, nullptr, 2), 0U);
    EXPECT_EQ(taken[0], 7);

    // More than any list can hold, where a list has just been begun.
    QvJsonValue_t* pRoot = nullptr;
    ASSERT_EQ(QvJsonCompact_create(&pRoot), 0);
    const Tree root(pRoot);
    QvJsonValue_t* pNew = nullptr;
    ASSERT_EQ(QvJsonValue_create(QvJsonValueType_Array, &pNew), 0);
    ASSERT_EQ(QvJsonValue_addValueToObject(pRoot, "new", &pNew), 0);
    EXPECT_EQ(QvJsonCompact_addNumbers(pNew, QvJsonNumber_Int16, numbers, SIZE_MAX), 5);
    EXPECT_EQ(QvJsonCompact_addNumbers(pNew, QvJsonNumber_Int16, numbers, SIZE_MAX / 2 + 2), 5);
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(QvJsonValue_addIntegerToObject(pRoot, numbered("k", round).c_str(), round), 0);
        EXPECT_EQ(QvJsonValue_addIntegerToArray(pNew, round), 0);
    }
    EXPECT_EQ(QvJsonValue_itemAsInteger(pNew, 7), 7);
}
