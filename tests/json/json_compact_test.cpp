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
#include <type_traits>
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

// Adds a number of that type, which may stand anywhere, by the operations for single items.
template <class T>
int addAlone(QvJsonValue_t* pList, const char* pNumber)
{
    T number{};
    std::memcpy(&number, pNumber, sizeof(T));
    if constexpr (std::is_floating_point_v<T>) {
        return QvJsonValue_addFloatToArray(pList, static_cast<double>(number));
    } else {
        return QvJsonValue_addIntegerToArray(pList, number);
    }
}

struct Kind {
    QvJsonNumber_t number;
    size_t width;
    int (*pAddAlone)(QvJsonValue_t*, const char*);
};

constexpr Kind kKinds[] = {
    {QvJsonNumber_Int8, 1, addAlone<int8_t>},   {QvJsonNumber_Uint8, 1, addAlone<uint8_t>},
    {QvJsonNumber_Int16, 2, addAlone<int16_t>}, {QvJsonNumber_Uint16, 2, addAlone<uint16_t>},
    {QvJsonNumber_Int32, 4, addAlone<int32_t>}, {QvJsonNumber_Uint32, 4, addAlone<uint32_t>},
    {QvJsonNumber_Int64, 8, addAlone<int64_t>}, {QvJsonNumber_Float, 4, addAlone<float>},
    {QvJsonNumber_Double, 8, addAlone<double>},
};

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
std::vector<char> numbersOf(QvJsonValue_t* pList, const Kind& kind, size_t number)
{
    std::vector<char> bytes(1 + 9 * 8, '#');
    const size_t copied = QvJsonCompact_numbers(pList, kind.number, bytes.data() + 1, number);
    EXPECT_EQ(copied, std::min(number, QvJsonValue_size(pList)));
    EXPECT_EQ(bytes[1 + copied * kind.width], '#');
    return bytes;
}

std::string inAllLayouts(QvJsonValue_t* pValue)
{
    std::string text = write(pValue);
    for (const int decimals : {0, 1, 3, 17}) {
        QvJsonWriterOpenParam_t param = {decimals, static_cast<uint32_t>(decimals), "\t"};
        text += write(pValue, &param);
    }
    return text;
}

// A compact tree: an object.
Tree makeCompact()
{
    QvJsonValue_t* pRoot = nullptr;
    EXPECT_EQ(QvJsonCompact_create(&pRoot), 0);
    return Tree(pRoot);
}

// A new array in the place of a member.
QvJsonValue_t* beginList(const Tree& tree, const std::string& key)
{
    QvJsonValue_t* pList = make(QvJsonValueType_Array).release();
    EXPECT_EQ(QvJsonValue_addValueToObject(tree.get(), key.c_str(), &pList), 0);
    return pList;
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
            for (const Kind& kind : kKinds) {
                for (size_t number = 0; number < 6; ++number) {
                    EXPECT_EQ(numbersOf(pPlain, kind, number), numbersOf(pCompact, kind, number)) << kind.number;
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

// The longest numbers of each width, at every distance from the end of the room that the writer has for its text.
TEST(JsonCompact, NoListIsWrittenPastTheRoomForTheText)
{
    for (const char* pNumber : {"-128", "-32768", "-2147483648", "-9223372036854775808"}) {
        std::vector<std::string> lists = {std::string("[") + pNumber};
        while (lists.size() < 256) {
            lists.push_back(lists.back() + ", " + pNumber);
        }
        for (int before = 0; before < 3; ++before) {
            for (const std::string& list : lists) {
                std::string text = "[";
                for (int index = 0; index < before; ++index) {
                    text += lists.back() + "], ";
                }
                text += list + "]]\n";
                ASSERT_TRUE(write(readCompact(text).get()) == text) << pNumber << " " << before << " " << list.size();
            }
        }
    }
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
    const Tree compact = makeCompact();
    EXPECT_EQ(write(compact.get()), "{}\n");
    const Tree plain = make(QvJsonValueType_Object);
    const Tree slow = make(QvJsonValueType_Object);
    for (int round = 0; round < 400; ++round) {
        // Any bytes, odd addresses, and lengths beyond what the writer makes room for at once.
        const Kind& kind = kKinds[random() % std::size(kKinds)];
        const size_t number = round % 40 == 0 ? 600 : random() % 9;
        std::vector<char> bytes(1 + number * 8);
        for (char& byte : bytes) {
            byte = static_cast<char>(random() % 3 == 0 ? random() : 0);
        }
        const char* pNumbers = bytes.data() + 1;
        const std::string key = numbered("k", static_cast<int>(random() % 200)); // some lists are continued
        const auto listOf = [&](const Tree& tree) {
            return round % 3 == 0 ? beginList(tree, key) : QvJsonValue_member(tree.get(), key.c_str());
        };
        for (const Tree* pTree : {&compact, &plain}) {
            ASSERT_EQ(QvJsonCompact_addNumbers(listOf(*pTree), kind.number, pNumbers, number), 0);
        }
        QvJsonValue_t* pList = listOf(slow);
        for (size_t index = 0; index < number; ++index) {
            ASSERT_EQ(kind.pAddAlone(pList, pNumbers + index * kind.width), 0);
        }
    }
    const std::string expected = inAllLayouts(slow.get());
    EXPECT_EQ(expected, inAllLayouts(plain.get()));
    EXPECT_EQ(expected, inAllLayouts(compact.get()));
}

// One number of a list decides how all of it is written.
TEST(JsonCompact, TheLargestNumberOfAListCanBeAnyOne)
{
    constexpr size_t kNumber = 300;
    for (const Kind& kind : kKinds) {
        if (kind.width == 1 || kind.number >= QvJsonNumber_Float) {
            continue;
        }
        for (const int64_t odd : {-32768, -1, 0, 8191, 8192, 9999, 10000, 32767, 65535, 65536, 99999, 100000}) {
            for (size_t place = 0; place < kNumber; place += 23) {
                char bytes[kNumber * 8];
                const Tree expected = make(QvJsonValueType_Object);
                for (size_t index = 0; index < kNumber; ++index) {
                    const int64_t number = index == place ? odd : static_cast<int64_t>(index * 27);
                    char* pNumber = bytes + index * kind.width;
                    std::memcpy(pNumber, &number, kind.width); // the low bytes
                    kind.pAddAlone(QvJsonValue_member(expected.get(), "k"), pNumber);
                }
                const Tree root = makeCompact();
                QvJsonValue_t* pList = QvJsonValue_member(root.get(), "k");
                ASSERT_EQ(QvJsonCompact_addNumbers(pList, kind.number, bytes, kNumber), 0);
                ASSERT_TRUE(isPacked(*pList));
                ASSERT_EQ(write(root.get()), write(expected.get()));
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
    const Tree root = makeCompact();
    QvJsonValue_t* pNew = beginList(root, "new");
    EXPECT_EQ(QvJsonCompact_addNumbers(pNew, QvJsonNumber_Int16, numbers, SIZE_MAX), 5);
    EXPECT_EQ(QvJsonCompact_addNumbers(pNew, QvJsonNumber_Int16, numbers, SIZE_MAX / 2 + 2), 5);
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(QvJsonValue_addIntegerToObject(root.get(), numbered("k", round).c_str(), round), 0);
        EXPECT_EQ(QvJsonValue_addIntegerToArray(pNew, round), 0);
    }
    EXPECT_EQ(QvJsonValue_itemAsInteger(pNew, 7), 7);
}
