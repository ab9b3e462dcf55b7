// Trees lie in a few large chunks, whose pieces are never given back one by one: nobody may be able to tell, whatever is
// done to a tree, and no shortage of memory may harm. The library's calls of the allocator go through this file.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include <malloc.h>

#include "json_document.h"
#include "key_hash.h"

using namespace qv::test;

extern "C" {
void* __real_malloc(size_t size);
void* __real_calloc(size_t number, size_t size);
void* __real_realloc(void* pBlock, size_t size);
void __real_free(void* pBlock);
[[gnu::visibility("default")]] void* __wrap_malloc(size_t size);
[[gnu::visibility("default")]] void* __wrap_calloc(size_t number, size_t size);
[[gnu::visibility("default")]] void* __wrap_realloc(void* pBlock, size_t size);
[[gnu::visibility("default")]] void __wrap_free(void* pBlock);
}

namespace {

long allowed = -1;      // allocations until one fails; below zero none does
size_t takenBytes = 0;  // asked for so far
ssize_t usedBytes = 0;  // taken and not given back
bool failsOn = false;   // and all behind it
bool hasFailed = false; // an allocation did

bool isRefused(size_t bytes)
{
    takenBytes += bytes;
    if (allowed < 0) {
        return false;
    }
    const bool isNow = allowed == 0;
    hasFailed = hasFailed || isNow;
    allowed -= isNow && failsOn ? 0 : 1;
    return isNow;
}

void* counted(void* pBlock)
{
    usedBytes += static_cast<ssize_t>(malloc_usable_size(pBlock));
    return pBlock;
}

} // namespace

void* __wrap_malloc(size_t size)
{
    return isRefused(size) ? nullptr : counted(__real_malloc(size));
}

void* __wrap_calloc(size_t number, size_t size)
{
    return isRefused(number * size) ? nullptr : counted(__real_calloc(number, size));
}

void* __wrap_realloc(void* pBlock, size_t size)
{
    if (isRefused(size)) {
        return nullptr;
    }
    usedBytes -= static_cast<ssize_t>(malloc_usable_size(pBlock));
    return counted(__real_realloc(pBlock, size));
}

void __wrap_free(void* pBlock)
{
    usedBytes -= static_cast<ssize_t>(malloc_usable_size(pBlock));
    __real_free(pBlock);
}

namespace {

char* copyOf(const char* pText)
{
    return pText != nullptr ? strdup(pText) : nullptr;
}

// Adds the same value by operations: to an array, or with a key to an object.
int add(QvJsonValue_t* pTo, const char* pKey, const QvJsonValue_t& from)
{
    const auto& holder = from.holder;
    const bool isMember = pKey != nullptr;
    switch (from.type) {
    case QvJsonValueType_Integer:
        return isMember ? QvJsonValue_addIntegerToObject(pTo, pKey, holder.integer)
                        : QvJsonValue_addIntegerToArray(pTo, holder.integer);
    case QvJsonValueType_Float:
        return isMember ? QvJsonValue_addFloatToObject(pTo, pKey, holder._float)
                        : QvJsonValue_addFloatToArray(pTo, holder._float);
    case QvJsonValueType_Boolean:
        return isMember ? QvJsonValue_addBooleanToObject(pTo, pKey, holder._bool)
                        : QvJsonValue_addBooleanToArray(pTo, holder._bool);
    case QvJsonValueType_String:
        return isMember ? QvJsonValue_addStringToObject(pTo, pKey, holder.pChar)
                        : QvJsonValue_addStringToArray(pTo, holder.pChar);
    default:
        break;
    }
    QvJsonValue_t* pNew = make(from.type).release();
    return isMember ? QvJsonValue_addValueToObject(pTo, pKey, &pNew) : QvJsonValue_addValueToArray(pTo, &pNew);
}

// Makes the same content by operations.
void build(const QvJsonValue_t& from, QvJsonValue_t* pValue)
{
    pValue->pComment = copyOf(from.pComment);
    pValue->pComment2 = copyOf(from.pComment2);
    for (size_t index = 0; from.type == QvJsonValueType_Array && index < from.holder.pArray->number; ++index) {
        const QvJsonValue_t& item = from.holder.pArray->pValues[index];
        EXPECT_EQ(add(pValue, nullptr, item), 0);
        // A list of scalars stays one where nobody asks for an item.
        if (item.type == QvJsonValueType_Array || item.type == QvJsonValueType_Object || item.pComment != nullptr ||
            item.pComment2 != nullptr) {
            build(item, QvJsonValue_item(pValue, index));
        }
    }
    for (size_t place = 0; from.type == QvJsonValueType_Object && place < from.holder.pObject->number; ++place) {
        const QvJsonValuePair_t& pair = from.holder.pObject->pPairs[place];
        EXPECT_EQ(add(pValue, pair.pKey, *pair.pValue), 0);
        build(*pair.pValue, QvJsonValue_member(pValue, pair.pKey));
    }
}

Tree built(const QvJsonValue_t& from)
{
    Tree tree = make(from.type);
    build(from, tree.get());
    return tree;
}

constexpr std::string_view kDocuments[] = {
    "[1, 2.5, -3]",
    "[]",
    R"({"a": [1, 2, 3], "b": {"a": "text", "c": [true, false]}, "c": [[1, 2], [3, 4], []]})",
    "// top\n[1, 2, // two\n 3]",
    R"([1, 2, "three", {"a": [4, null, "five"]}, [6, [7, [8, "nine"]]]])",
    R"({"\u0061": "esc\naped", "b": {"a": [0.5, 1.5], "b": [{"c": "deep"}, {"c": ""}]}, "a": ["last", "wins"]})",
    "{\"a\": /* one */ [1, 2] /* two */, \"b\": \"x\" // three\n}",
};

// Some place in the tree. Lists are entered less often, so that some of them are never looked into.
QvJsonValue_t* somePlace(QvJsonValue_t* pRoot, std::mt19937& random)
{
    QvJsonValue_t* pValue = pRoot;
    while (random() % 5 != 0) {
        if (pValue->type == QvJsonValueType_Object && pValue->holder.pObject->number != 0) {
            const size_t place = random() % pValue->holder.pObject->number;
            pValue = QvJsonValue_member(pValue, pValue->holder.pObject->pPairs[place].pKey);
        } else if (QvJsonValue_size(pValue) != 0 && random() % 2 == 0) {
            pValue = QvJsonValue_item(pValue, random() % QvJsonValue_size(pValue));
        } else {
            break;
        }
    }
    return pValue;
}

enum class Origin { Read, Built, Compact };

Tree treeOf(std::string_view document, Origin origin)
{
    Tree tree = origin == Origin::Compact ? readCompact(document) : read(document);
    return origin == Origin::Built ? built(*tree) : std::move(tree);
}

// Changes something. Equal trees are changed alike, with parts of their own origin.
void change(QvJsonValue_t* pRoot, std::mt19937& random, Origin origin)
{
    constexpr const char* kKeys[] = {"a", "b", "c", "new"};
    QvJsonValue_t* pPlace = somePlace(pRoot, random);
    const char* pKey = kKeys[random() % std::size(kKeys)];
    const std::string_view document = kDocuments[random() % std::size(kDocuments)];
    QvJsonValue_t* pNew = nullptr;
    switch (random() % 14) {
    case 0:
        for (size_t number = random() % 40; number != 0; --number) {
            QvJsonValue_addIntegerToArray(pPlace, static_cast<ssize_t>(number));
        }
        break;
    case 1:
        QvJsonValue_addFloatToObject(pPlace, pKey, 0.25);
        break;
    case 2:
        QvJsonValue_addStringToArray(pPlace, "added");
        break;
    case 3:
        QvJsonValue_addStringToObject(pPlace, pKey, "replaced");
        break;
    case 4:
        QvJsonValue_addBooleanToArray(QvJsonValue_item(pPlace, QvJsonValue_size(pPlace) + random() % 3), true);
        break;
    case 5:
        QvJsonValue_addIntegerToObject(QvJsonValue_member(pPlace, pKey), "x", 7);
        break;
    case 6:
    case 7:
    case 8:
        pNew = treeOf(document, origin).release();
        if ((pPlace->type == QvJsonValueType_Object ? QvJsonValue_addValueToObject(pPlace, pKey, &pNew)
                                                    : QvJsonValue_addValueToArray(pPlace, &pNew)) != 0) {
            QvJsonValue_delete(&pNew);
        }
        break;
    case 9:
        std::free(pPlace->pComment);
        pPlace->pComment = strdup("noted");
        break;
    case 10:
        std::free(std::exchange(pPlace->pComment2, strdup(pKey)));
        break;
    case 11: {
        constexpr int16_t kNumbers[] = {-300, 0, 7, 32767};
        QvJsonCompact_addNumbers(pPlace, QvJsonNumber_Int16, kNumbers, random() % 5);
        break;
    }
    case 12:
        QvJsonValue_reserve(pPlace, random() % 20);
        break;
    default:
        if (pPlace != pRoot) {
            QvJsonValue_delete(&pPlace);
        }
        break;
    }
}

// Does the work again and again, with another allocation failing each time, alone or with all behind it, until none is
// left to fail. A work gives 0 or 5 and leaves nothing behind.
void failEachOnce(const std::function<int()>& work)
{
    for (const bool goesOn : {false, true}) {
        failsOn = goesOn;
        long number = 0;
        do {
            hasFailed = false;
            allowed = number;
            const int status = work();
            allowed = -1;
            ASSERT_TRUE(status == 0 || (status == 5 && hasFailed)) << "allocation " << number << ": " << status;
            ++number;
        } while (hasFailed);
    }
    failsOn = false;
}

} // namespace

TEST(JsonMemory, ATreeChangesInTheSameWayWhereverItComesFrom)
{
    std::mt19937 random(2718);
    for (int round = 0; round < 600; ++round) {
        const std::string_view document = kDocuments[static_cast<size_t>(round) % std::size(kDocuments)];
        std::mt19937 next = random;
        std::string text;
        for (const Origin origin : {Origin::Read, Origin::Built, Origin::Compact}) {
            const Tree tree = treeOf(document, origin);
            std::mt19937 same = random;
            for (int step = 0; step < 25; ++step) {
                change(tree.get(), same, origin);
            }
            next = same;
            text = text.empty() ? write(tree.get()) : text;
            ASSERT_EQ(text, write(tree.get())) << "round " << round << ", origin " << static_cast<int>(origin);
        }
        ASSERT_EQ(text, write(read(text).get()));
        random = next;
    }
}

// Nobody can choose keys for a document that all meet in one place: a new process has another hash.
TEST(JsonMemory, TheHashOfKeysCanNotBeForeseen)
{
    if (std::getenv("QV_TELL_HASH") != nullptr) {
        std::printf("hash %zu\n", qv::json::hashOfKey("key"));
        return;
    }
    std::set<std::string> hashes;
    for (int process = 0; process < 3; ++process) {
        const std::string program = std::filesystem::read_symlink("/proc/self/exe");
        const std::string command = "QV_TELL_HASH=1 '" + program + "' --gtest_filter=*CanNotBeForeseen";
        FILE* pOutput = popen(command.c_str(), "r");
        char line[256];
        while (std::fgets(line, sizeof(line), pOutput) != nullptr) {
            if (std::string_view(line).starts_with("hash ")) {
                hashes.insert(line);
            }
        }
        EXPECT_EQ(pclose(pOutput), 0);
    }
    EXPECT_EQ(hashes.size(), 3U);
}

TEST(JsonMemory, AnyKindOfRootIsItsOwn)
{
    const Tree collection = make(QvJsonValueType_Null);
    for (const char* pText : {"1", "\"text\"", "\"esc\\u0061ped\"", "null", "[1, 2]", "{\"a\": \"b\"}", "[[\"x\"]]"}) {
        QvJsonValue_t* pRoot = read(pText).release();
        ASSERT_EQ(QvJsonValue_addValueToArray(collection.get(), &pRoot), 0);
        read(pText);
    }
    // A root that outgrows its chunk takes the chunk along.
    Tree root = read(R"(["first", [1, 2]])");
    for (int index = 0; index < 1000; ++index) {
        ASSERT_EQ(QvJsonValue_addIntegerToArray(root.get(), index), 0);
    }
    QvJsonValue_t* pMoved = root.release();
    ASSERT_EQ(QvJsonValue_addValueToArray(collection.get(), &pMoved), 0);
    EXPECT_STREQ(QvJsonValue_itemAsString(pMoved, 0), "first");
    EXPECT_EQ(QvJsonValue_itemAsInteger(QvJsonValue_item(pMoved, 1), 1), 2);
    EXPECT_EQ(QvJsonValue_itemAsInteger(pMoved, 1001), 999);
}

// The reader judges by samples how much a text will need. A text that looks like nothing where it samples makes lists,
// objects and texts go over from one chunk to the next at every kind of place.
TEST(JsonMemory, ATreeGoesFromChunkToChunk)
{
    std::mt19937 random(31);
    std::string text = "{\n  \"list\": [";
    const std::string blanks(300, ' ');
    for (int index = 0; index < 40000; ++index) {
        text += index != 0 ? ", " : "";
        text += text.size() % 8192 > 8100 ? blanks : "";
        switch (random() % 5) {
        case 0:
            text += "[1, 2, 3]";
            break;
        case 1:
            text += numbered("\"a text with its number ", index) + "\"";
            break;
        case 2:
            text += numbered("{\"key\": [], \"other\": ", index) + "}";
            break;
        default:
            text += std::to_string(index);
            break;
        }
    }
    text += "],\n  \"numbers\": [";
    for (int index = 0; index < 200000; ++index) {
        text += text.size() % 8192 > 8100 ? blanks : "";
        text += std::to_string(index) + (index < 199999 ? ", " : "]\n}\n");
    }
    const Tree root = read(text);
    const Tree copy = built(*root);
    EXPECT_TRUE(write(root.get()) == write(copy.get()));
    const QvJsonValueArray_t& numbers = *QvJsonValue_member(root.get(), "numbers")->holder.pArray;
    ASSERT_EQ(numbers.number, 200000U);
    for (size_t index = 0; index < numbers.number; ++index) {
        ASSERT_EQ(numbers.pValues[index].holder.integer, static_cast<ssize_t>(index));
    }
    EXPECT_EQ(QvJsonValue_size(QvJsonValue_member(root.get(), "list")), 40000U);
}

TEST(JsonMemory, ATreeTakesLittleMoreThanItsValues)
{
    std::string text = "[";
    for (int row = 0; row < 100; ++row) {
        text += listOf(1000, 200) + ", ";
    }
    text += "0]";
    takenBytes = 0;
    const Tree root = read(text);
    EXPECT_LT(takenBytes, 100 * 200 * sizeof(QvJsonValue_t) * 12 / 10);
    takenBytes = 0;
    const Tree tiny = read("[1]");
    EXPECT_LT(takenBytes, 3000U);
}

TEST(JsonMemory, AListThatIsReservedTakesItsMemoryAtOnce)
{
    const Tree root = read(R"({"text": "1", "list": [1, 2], "null": null})");
    for (const char* pKey : {"list", "null", "new", "text"}) {
        QvJsonValue_t* pValue = QvJsonValue_member(root.get(), pKey);
        const size_t number = QvJsonValue_size(pValue);
        if (pValue->type == QvJsonValueType_String) {
            EXPECT_EQ(QvJsonValue_reserve(pValue, 1), 13);
            continue;
        }
        EXPECT_EQ(QvJsonValue_reserve(pValue, 5000), 0);
        EXPECT_EQ(QvJsonValue_size(pValue), number);
        EXPECT_EQ(pValue->type, QvJsonValueType_Array);
        const size_t before = takenBytes;
        EXPECT_EQ(QvJsonValue_reserve(pValue, 3), 0);
        for (size_t index = number; index < 5000; ++index) {
            ASSERT_EQ(QvJsonValue_addFloatToArray(pValue, 0.5), 0);
        }
        EXPECT_EQ(takenBytes, before);
        EXPECT_EQ(QvJsonValue_addFloatToArray(pValue, 0.5), 0);
        EXPECT_EQ(QvJsonValue_reserve(pValue, SIZE_MAX), 5);
        EXPECT_EQ(QvJsonValue_size(pValue), 5001U);
    }
    EXPECT_EQ(QvJsonValue_itemAsInteger(QvJsonValue_member(root.get(), "list"), 1), 2);
    EXPECT_EQ(QvJsonValue_reserve(nullptr, 1), 13);

    const Tree none = make(QvJsonValueType_Null);
    EXPECT_EQ(QvJsonValue_reserve(none.get(), SIZE_MAX), 5);
    EXPECT_EQ(none->type, QvJsonValueType_Null);
}

// Looking into a packed list takes no memory, and a list that can't become one of values stays what it is.
TEST(JsonMemory, APackedListOutlivesAShortage)
{
    const std::string text = listOf(0, 5000) + "\n"; // as values they have room in no chunk
    for (int index = 0; index < 16;
         ++index) { // what is given out of no tree needs memory once, and then gives some back
        static_cast<void>(QvJsonValue_item(nullptr, 0));
    }
    const ssize_t before = usedBytes;
    Tree list = readCompact(text);
    takenBytes = 0;
    short numbers[3] = {};
    EXPECT_EQ(QvJsonCompact_numbers(list.get(), QvJsonNumber_Int16, numbers, 3), 3U);
    EXPECT_EQ(numbers[2], 2);
    EXPECT_EQ(QvJsonValue_itemAsFloat(list.get(), 4999), 4999.0);
    EXPECT_EQ(takenBytes, 0U);
    for (const auto& work : {+[](QvJsonValue_t* p) { return QvJsonValue_addBooleanToArray(p, true); },
                             +[](QvJsonValue_t* p) { return QvJsonValue_reserve(p, 5001); },
                             +[](QvJsonValue_t* p) { return QvJsonCompact_addNumbers(p, QvJsonNumber_Int8, "", 1); },
                             +[](QvJsonValue_t* p) { return QvJsonValue_item(p, 7)->type == 0 ? 5 : 0; }}) {
        allowed = 0;
        EXPECT_EQ(work(list.get()), 5);
        allowed = -1;
        EXPECT_TRUE(write(list.get()) == text);
    }
    EXPECT_EQ(QvJsonValue_addBooleanToArray(list.get(), true), 0);
    EXPECT_EQ(QvJsonValue_size(list.get()), 5001U);
    EXPECT_EQ(QvJsonValue_item(list.get(), 4999)->holder.integer, 4999);
    list.reset();
    EXPECT_EQ(usedBytes, before);
}

// A long life of changes doesn't make a tree larger and larger.
TEST(JsonMemory, WhatIsReplacedAgainAndAgainGivesItsMemoryBack)
{
    const auto replaceAll = [](QvJsonValue_t* pRoot) {
        QvJsonValue_t* pList = nullptr;
        QvJsonValue_create(QvJsonValueType_Array, &pList);
        QvJsonValue_addValueToObject(pRoot, "list", &pList);
        for (int index = 0; index < 50; ++index) {
            QvJsonValue_addStringToObject(QvJsonValue_item(pList, static_cast<size_t>(index)), "key", "some text");
        }
        QvJsonValue_addStringToObject(pRoot, "text", "a text that is longer than the one before it");
        QvJsonValue_t* pEmptied = QvJsonValue_member(pRoot, "object");
        QvJsonValue_delete(&pEmptied);
        QvJsonValue_addIntegerToArray(QvJsonValue_member(QvJsonValue_member(pRoot, "object"), "inner"), 1);
    };
    const Tree fromText = read(R"({"list": [1, 2, {"a": "b"}], "text": "t", "object": {"inner": [1, 2]}})");
    const Tree fromNothing = make(QvJsonValueType_Null);
    for (const Tree* pTree : {&fromText, &fromNothing}) {
        for (int round = 0; round < 3; ++round) {
            replaceAll(pTree->get());
        }
        const ssize_t before = usedBytes;
        for (int round = 0; round < 100; ++round) {
            replaceAll(pTree->get());
        }
        EXPECT_LT(usedBytes, before + 2000); // the allocator rounds now so, now so
    }
}

TEST(JsonMemory, NoAllocationThatFailsDoesHarm)
{
    const Traces traces; // made before memory runs short
    const Reader reader;
    std::string keys = "{";
    for (int index = 0; index < 40; ++index) {
        keys += numbered("\"k", index) + "\": [1, \"x\"],";
    }
    const std::string many = keys + "\"k0\": [\"\\u0061\"], \"\\u0061\": \"b\", // note\n \"c\": [1 /* one */, 2]}";
    const auto parse = [&](const std::string& text, Tree* pTree) {
        QvJsonValue_t* pValue = nullptr;
        const int status = QvJsonReader_parse(reader.handle(), text.data(), text.data() + text.size(), &pValue);
        pTree->reset(pValue);
        return status;
    };
    failEachOnce([&] {
        Tree tree;
        return parse(many, &tree);
    });
    // A large chunk is only an offer: where it can't be had, smaller ones do.
    Tree small;
    const std::string blanks(100000, ' ');
    allowed = 1; // behind the root's value
    hasFailed = false;
    EXPECT_EQ(parse("[[1, 2]" + blanks + ", 3]", &small), 0);
    EXPECT_TRUE(hasFailed);
    failEachOnce([&] {
        Tree tree;
        const int status = parse(many + "]", &tree);
        return status == 7 ? 0 : status;
    });
    failEachOnce([&] {
        Tree outer;
        Tree inner;
        int status = parse(R"([1, 2, "three"])", &outer);
        status = status != 0 ? status : parse(R"({"a": ["b"]})", &inner);
        if (status != 0) {
            return status;
        }
        QvJsonValue_t* pInner = inner.release();
        status = QvJsonValue_addValueToArray(outer.get(), &pInner);
        if (status != 0) {
            EXPECT_EQ(QvJsonValue_size(outer.get()), 3U);
            inner.reset(pInner);
            return status;
        }
        EXPECT_EQ(QvJsonValue_size(outer.get()), 4U);
        status = QvJsonValue_addStringToObject(pInner, "a", "replaced");
        if (status != 0) {
            EXPECT_STREQ(QvJsonValue_itemAsString(QvJsonValue_member(pInner, "a"), 0), "b");
        }
        return status;
    });
    const std::string longKey(5000, 'k');
    failEachOnce([&] {
        QvJsonValue_t* pRoot = nullptr;
        int status = QvJsonValue_create(QvJsonValueType_Null, &pRoot);
        const Tree tree(pRoot);
        status = status != 0 ? status : QvJsonValue_addIntegerToObject(pRoot, longKey.c_str(), 1);
        for (int index = 0; status == 0 && index < 3000; ++index) {
            QvJsonValue_t* pList = QvJsonValue_member(pRoot, "list");
            status = QvJsonValue_addIntegerToArray(pList, index);
            EXPECT_TRUE(QvJsonValue_size(pList) == static_cast<size_t>(index) + (status == 0 ? 1 : 0) || hasFailed);
        }
        QvJsonValue_t* pPlace = nullptr;
        return status != 0 ? status : QvJsonPath(pRoot, "a/b/c", &pPlace);
    });
}
