#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <thread>

#include "json_document.h"

using namespace qv::test;

TEST(JsonValue, NamingAMemberMakesItOnceAndItCountsAsEmpty)
{
    const Tree root = make(QvJsonValueType_Null);
    QvJsonValue_t* pFirst = QvJsonValue_member(root.get(), "first");
    ASSERT_NE(pFirst, nullptr);
    EXPECT_EQ(root->type, QvJsonValueType_Object);
    EXPECT_TRUE(QvJsonValue_isEmpty(pFirst));
    EXPECT_EQ(QvJsonValue_member(root.get(), "first"), pFirst);
    EXPECT_EQ(QvJsonValue_member2(root.get(), "first"), pFirst);
    EXPECT_EQ(QvJsonValue_member2(root.get(), "firs"), nullptr);
    EXPECT_EQ(QvJsonValue_member2(root.get(), "first "), nullptr);
    EXPECT_EQ(QvJsonValue_member2(root.get(), nullptr), nullptr);
    EXPECT_EQ(root->holder.pObject->number, 1U);
    EXPECT_NE(QvJsonValue_member(root.get(), ""), pFirst);
    EXPECT_EQ(QvJsonValue_member(root.get(), "")->type, QvJsonValueType_Null);
}

TEST(JsonValue, MembersNeverMoveAndKeepTheirOrder)
{
    const Tree root = read(R"({"a": 1, "b": 2})");
    QvJsonValue_t* pRead = QvJsonValue_member(root.get(), "a");
    QvJsonValue_t* pMade = QvJsonValue_member(root.get(), "c");
    // Enough for pairs and index to grow several times.
    for (int index = 0; index < 1000; ++index) {
        ASSERT_EQ(QvJsonValue_addIntegerToObject(root.get(), numbered("k", index).c_str(), index), 0);
    }
    EXPECT_EQ(QvJsonValue_member(root.get(), "a"), pRead);
    EXPECT_EQ(QvJsonValue_member(root.get(), "c"), pMade);
    ASSERT_EQ(root->holder.pObject->number, 1003U);
    for (int index = 999; index >= 0; --index) {
        const std::string key = numbered("k", index);
        ASSERT_EQ(QvJsonValue_asInteger(QvJsonValue_member2(root.get(), key.c_str())), index);
        EXPECT_EQ(root->holder.pObject->pPairs[index + 3].pKey, key);
    }
}

TEST(JsonValue, AnAddOfAKeyThatExistsReplacesTheValueInItsPlace)
{
    const Tree root = read("{\"class\": [[1], {\"x\": \"y\"}], // kept\n \"other\": 1}");
    QvJsonValue_t* pClass = QvJsonValue_member(root.get(), "class");
    EXPECT_EQ(QvJsonValue_addStringToObject(root.get(), "class", "Gamma"), 0);
    EXPECT_EQ(QvJsonValue_addStringToObject(root.get(), "class", QvJsonValue_asString(pClass)), 0);
    EXPECT_EQ(QvJsonValue_member(root.get(), "class"), pClass);
    EXPECT_STREQ(QvJsonValue_asString(pClass), "Gamma");
    EXPECT_STREQ(pClass->pComment2, "kept");

    QvJsonValue_t* pList = make(QvJsonValueType_Array).release();
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "class", &pList), 0);
    EXPECT_EQ(pList, pClass);
    EXPECT_STREQ(pClass->pComment2, "kept");
    QvJsonValue_t* pText = make(QvJsonValueType_String).release();
    EXPECT_STREQ(QvJsonValue_asString(pText), "");
    pText->pComment = strdup("above");
    pText->pComment2 = strdup("its own");
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "class", &pText), 0);
    EXPECT_STREQ(pClass->pComment, "above");
    EXPECT_STREQ(pClass->pComment2, "its own");
    EXPECT_EQ(root->holder.pObject->number, 2U);
}

TEST(JsonValue, AFailedAddLeavesTheValueWithItsCaller)
{
    const Tree number = read("1");
    const Tree root = make(QvJsonValueType_Object);
    QvJsonValue_t* pValue = make(QvJsonValueType_Object).release();
    QvJsonValue_t* const pBefore = pValue;
    QvJsonValue_t* pNone = nullptr;
    EXPECT_EQ(QvJsonValue_addValueToObject(number.get(), "key", &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToArray(number.get(), &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToArray(root.get(), &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToObject(nullptr, "key", &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), nullptr, &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToObject(pValue, "key", &pValue), 13);
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "key", &pNone), 13);
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "key", nullptr), 13);
    EXPECT_EQ(QvJsonValue_addValueToArray(root.get(), nullptr), 13);
    EXPECT_EQ(pValue, pBefore);
    EXPECT_TRUE(QvJsonValue_isEmpty(root.get()));
    EXPECT_EQ(QvJsonValue_asInteger(number.get()), 1);

    // Once placed it can't be placed again, and a delete only empties its place.
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "key", &pValue), 0);
    QvJsonValue_t* const pPlaced = pValue;
    EXPECT_EQ(QvJsonValue_addValueToObject(root.get(), "twice", &pValue), 13);
    EXPECT_EQ(QvJsonValue_delete(&pValue), 0);
    EXPECT_EQ(pValue, nullptr);
    EXPECT_EQ(QvJsonValue_member2(root.get(), "key"), pPlaced);
    EXPECT_EQ(pPlaced->type, QvJsonValueType_Null);
    EXPECT_EQ(QvJsonValue_delete(&pNone), 0);
    EXPECT_EQ(QvJsonValue_delete(nullptr), 13);
    EXPECT_EQ(QvJsonValue_create(static_cast<QvJsonValueType_t>(7), &pNone), 13);
    EXPECT_EQ(QvJsonValue_create(QvJsonValueType_Null, nullptr), 13);
}

TEST(JsonValue, AsksOfAWrongKindGiveEmptyValuesAndChangeNothing)
{
    const std::string text = "{\n  \"number\": 1,\n  \"text\": \"5\",\n  \"list\": [1]\n}\n";
    const Tree root = read(text);
    QvJsonValue_t* pList = QvJsonValue_member(root.get(), "list");
    for (QvJsonValue_t* pWrong : {QvJsonValue_member(root.get(), "number"), QvJsonValue_member(root.get(), "text"),
                                  static_cast<QvJsonValue_t*>(nullptr)}) {
        EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_member(pWrong, "key")));
        EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_item(pWrong, 0)));
        EXPECT_EQ(QvJsonValue_member2(pWrong, "key"), nullptr);
        EXPECT_EQ(QvJsonValue_size(pWrong), 0U);
        EXPECT_EQ(QvJsonValue_itemAsInteger(pWrong, 0), 0);
        EXPECT_EQ(QvJsonValue_addIntegerToArray(pWrong, 1), 13);
        EXPECT_EQ(QvJsonValue_addStringToObject(pWrong, "key", "value"), 13);
    }
    EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_member(root.get(), nullptr)));
    EXPECT_EQ(QvJsonValue_addStringToArray(pList, nullptr), 13);
    EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_member(pList, "key")));
    EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_item(root.get(), 3)));
    EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_item(pList, SIZE_MAX)));
    EXPECT_EQ(QvJsonValue_size(pList), 1U);
    EXPECT_EQ(write(root.get()), text);
}

TEST(JsonValue, ScratchValuesAreCleanWhenTheyComeAgain)
{
    std::thread([] {
        QvJsonValue_t* pScratch = QvJsonValue_member(nullptr, "key");
        EXPECT_EQ(QvJsonValue_addStringToObject(pScratch, "a", "text"), 0);
        EXPECT_EQ(QvJsonValue_addIntegerToArray(QvJsonValue_member(pScratch, "b"), 1), 0);
        int found = 0;
        for (int index = 0; index < 40; ++index) {
            QvJsonValue_t* pNext = QvJsonValue_item(nullptr, 0);
            EXPECT_TRUE(QvJsonValue_isEmpty(pNext));
            found += pNext == pScratch ? 1 : 0;
            EXPECT_EQ(QvJsonValue_addStringToArray(pNext, "released when the thread ends"), 0);
        }
        EXPECT_EQ(found, 2); // fifteen others come first
        QvJsonValue_delete(&pScratch);
    }).join();
}

TEST(JsonValue, ItemsAreMadeAtTheEndAndBeyond)
{
    const Tree root = make(QvJsonValueType_Null);
    EXPECT_TRUE(QvJsonValue_isEmpty(QvJsonValue_item(root.get(), 0)));
    EXPECT_EQ(QvJsonValue_size(root.get()), 1U);
    QvJsonValue_member(QvJsonValue_item(root.get(), 3), "x");
    EXPECT_EQ(write(root.get()), "[null, null, null, {\n    \"x\": null\n  }]\n");
    EXPECT_EQ(QvJsonValue_itemAsFloat(root.get(), 9), 0);
    EXPECT_EQ(QvJsonValue_itemAsString(root.get(), 9), nullptr);
    EXPECT_FALSE(QvJsonValue_itemAsBoolean(root.get(), 9));
    EXPECT_EQ(QvJsonValue_size(root.get()), 4U);
}

TEST(JsonValue, WhatCountsAsEmpty)
{
    const Tree root = read(R"([null, [], {}, "", 0, false, [null]])");
    const bool expected[] = {true, true, true, false, false, false, false};
    for (size_t index = 0; index < std::size(expected); ++index) {
        EXPECT_EQ(QvJsonValue_isEmpty(QvJsonValue_item(root.get(), index)), expected[index]) << index;
    }
    EXPECT_TRUE(QvJsonValue_isEmpty(nullptr));
}

TEST(JsonValue, NumbersConvertAndTextsDont)
{
    const Tree root = read(R"([7, -2.9, true, "8", null, 1e300, -1e300, 0.0, false])");
    const ssize_t integers[] = {7, -2, 1, 0, 0, INT64_MAX, INT64_MIN, 0, 0};
    const double floats[] = {7, -2.9, 1, 0, 0, 1e300, -1e300, 0, 0};
    const bool booleans[] = {true, true, true, false, false, true, true, false, false};
    for (size_t index = 0; index < std::size(integers); ++index) {
        EXPECT_EQ(QvJsonValue_itemAsInteger(root.get(), index), integers[index]) << index;
        EXPECT_EQ(QvJsonValue_itemAsFloat(root.get(), index), floats[index]) << index;
        EXPECT_EQ(QvJsonValue_itemAsBoolean(root.get(), index), booleans[index]) << index;
        EXPECT_EQ(QvJsonValue_itemAsString(root.get(), index) != nullptr, index == 3) << index;
    }
    QvJsonValue_addFloatToArray(root.get(), std::nan(""));
    EXPECT_EQ(QvJsonValue_itemAsInteger(root.get(), 9), 0);
    EXPECT_FALSE(QvJsonValue_itemAsBoolean(root.get(), 9));
    EXPECT_EQ(QvJsonValue_asInteger(nullptr), 0);
    EXPECT_EQ(QvJsonValue_asFloat(nullptr), 0);
    EXPECT_EQ(QvJsonValue_asString(nullptr), nullptr);
}

TEST(JsonValue, ATreeOfAnyDepthIsReleased)
{
    const Tree root = make(QvJsonValueType_Null);
    QvJsonValue_t* pValue = root.get();
    for (int depth = 0; depth < 200000; ++depth) {
        pValue = depth % 2 == 0 ? QvJsonValue_item(pValue, 0) : QvJsonValue_member(pValue, "deeper");
    }
}

TEST(JsonPath, WalksMakesWhatIsMissingAndStopsAtOtherKinds)
{
    const Tree root = read(R"({"root": {"metadata": [1], "null": null}, "text": "x"})");
    QvJsonValue_t* pValue = nullptr;
    EXPECT_EQ(QvJsonPath(root.get(), "root/metadata", &pValue), 0);
    EXPECT_EQ(QvJsonValue_itemAsInteger(pValue, 0), 1);
    EXPECT_EQ(QvJsonPath(root.get(), "", &pValue), 0);
    EXPECT_EQ(pValue, root.get());
    EXPECT_EQ(QvJsonPath(root.get(), "/root//null/a/b", &pValue), 0);
    EXPECT_TRUE(QvJsonValue_isEmpty(pValue));
    EXPECT_EQ(QvJsonValue_member2(
                  QvJsonValue_member2(QvJsonValue_member(QvJsonValue_member(root.get(), "root"), "null"), "a"), "b"),
              pValue);
    for (const char* pPath : {"text/a", "root/metadata/0"}) {
        const std::string before = write(root.get());
        EXPECT_EQ(QvJsonPath(root.get(), pPath, &pValue), 0);
        EXPECT_TRUE(QvJsonValue_isEmpty(pValue));
        EXPECT_EQ(write(root.get()), before);
    }
    EXPECT_EQ(QvJsonPath(nullptr, "a", &pValue), 13);
    EXPECT_EQ(QvJsonPath(root.get(), nullptr, &pValue), 13);
    EXPECT_EQ(QvJsonPath(root.get(), "a", nullptr), 13);
}
