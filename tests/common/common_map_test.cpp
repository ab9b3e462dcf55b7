#include <qv_common_c/common_map.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::multiset<void*> released;

int releaseAndFailFirst(void** ppObject)
{
    released.insert(*ppObject);
    return released.size() == 1 ? 12 : 0;
}

class CommonMap : public testing::Test {
protected:
    CommonMap()
    {
        released.clear();
        EXPECT_EQ(QvCommonMap_open(&param_, &hMap_), 0);
    }
    ~CommonMap() override { QvCommonMap_close(&hMap_); }

    int add(const char* pKey, void* pObject)
    {
        auto* pSlot = static_cast<QvCommonMapSlot_t*>(std::calloc(1, sizeof(QvCommonMapSlot_t)));
        pSlot->pObject = pObject;
        return QvCommonMap_add(hMap_, pKey, &pSlot);
    }

    QvCommonMapOpenParam_t param_ = {releaseAndFailFirst};
    QvCommonMapHandle_t hMap_ = 0;
    int objects_[3] = {};
};

TEST_F(CommonMap, SecondAddOfAKeyReplacesAndReleasesTheFirstAtOnce)
{
    char key[] = "HTG_2";
    ASSERT_EQ(add(key, &objects_[0]), 0);
    key[0] = '?'; // the map keeps a copy
    ASSERT_EQ(add("HTG_2", &objects_[1]), 0);
    EXPECT_EQ(released, (std::multiset<void*>{&objects_[0]}));

    // The same object in a new slot, and the very same slot, lose nothing.
    ASSERT_EQ(add("HTG_2", &objects_[1]), 0);
    QvCommonMapSlot_t* pSlot = nullptr;
    ASSERT_EQ(QvCommonMap_get(hMap_, "HTG_2", &pSlot), 0);
    ASSERT_EQ(QvCommonMap_add(hMap_, "HTG_2", &pSlot), 0);
    EXPECT_EQ(released.size(), 1U);
    EXPECT_EQ(pSlot->pObject, &objects_[1]);
}

// Keys of up to 16 characters are looked up in another way than longer ones.
TEST_F(CommonMap, KeysOfEveryLengthAreTold)
{
    std::vector<std::string> keys;
    for (std::size_t length = 0; length <= 40; ++length) {
        keys.push_back(std::string(length, 'k')); // each is the begin of the next
        keys.push_back(std::string(length, 'k') + "e");
        keys.push_back("\xE4" + std::string(length, '\xFF'));
    }
    std::vector<int> places(keys.size());
    for (std::size_t half = 0; half < 2; ++half) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            QvCommonMapSlot_t* pSlot = nullptr;
            const bool isThere = i % 2 < half;
            ASSERT_EQ(QvCommonMap_get(hMap_, keys[i].c_str(), &pSlot), isThere ? 0 : 8) << keys[i];
            ASSERT_EQ(pSlot->pObject, isThere ? &places[i] : nullptr);
        }
        for (std::size_t i = half; i < keys.size(); i += 2) {
            ASSERT_EQ(add(keys[i].c_str(), &places[i]), 0);
        }
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        QvCommonMapSlot_t* pSlot = nullptr;
        ASSERT_EQ(QvCommonMap_get(hMap_, keys[i].c_str(), &pSlot), 0) << keys[i];
        ASSERT_EQ(pSlot->pObject, &places[i]);
    }
    EXPECT_TRUE(released.empty());
}

TEST_F(CommonMap, MissLeadsToASlotThatCanBeRead)
{
    ASSERT_EQ(add("HTG", &objects_[0]), 0);
    for (const char* pKey : {"htg", "HT", "HTG ", ""}) {
        QvCommonMapSlot_t* pSlot = nullptr;
        EXPECT_EQ(QvCommonMap_get(hMap_, pKey, &pSlot), 8) << pKey;
        ASSERT_NE(pSlot, nullptr);
        EXPECT_EQ(pSlot->pObject, nullptr);
    }
    QvCommonMapSlot_t* pSlot = nullptr;
    EXPECT_EQ(QvCommonMap_add(hMap_, "none", &pSlot), 13);
    EXPECT_EQ(QvCommonMap_open(&param_, &hMap_), 13); // the variable isn't clear
}

TEST_F(CommonMap, CloseReleasesEverythingThoughAReleaseFails)
{
    ASSERT_EQ(add("a", &objects_[0]) + add("b", &objects_[1]) + add("c", &objects_[2]), 0);
    EXPECT_EQ(QvCommonMap_close(&hMap_), 12);
    EXPECT_EQ(hMap_, 0U);
    EXPECT_EQ(released, (std::multiset<void*>{&objects_[0], &objects_[1], &objects_[2]}));
    EXPECT_EQ(QvCommonMap_close(&hMap_), 13);
}

} // namespace
