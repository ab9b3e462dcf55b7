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
    // The object, null where there is none: that slot can be read as well.
    void* get(const std::string& key)
    {
        QvCommonMapSlot_t* pSlot = nullptr;
        const int status = QvCommonMap_get(hMap_, key.c_str(), &pSlot);
        EXPECT_EQ(status, pSlot->pObject != nullptr ? 0 : 8) << key;
        return pSlot->pObject;
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

// Keys of up to 16 characters are looked up in another way than longer ones; the table grows on the way.
TEST_F(CommonMap, KeysOfEveryLengthAreTold)
{
    std::vector<std::string> keys;
    for (std::size_t length = 0; length <= 100; ++length) {
        keys.push_back(std::string(length, 'k')); // each is the begin of the next
        keys.push_back(std::string(length, 'k') + "e");
        keys.push_back("\xE4" + std::string(length, '\xFF'));
    }
    std::vector<int> places(keys.size());
    for (std::size_t half = 0; half < 3; ++half) {
        for (std::size_t i = 0; i < keys.size(); ++i) {
            ASSERT_EQ(get(keys[i]), i % 2 < half ? &places[i] : nullptr) << keys[i];
        }
        for (std::size_t i = half; i < keys.size() && half < 2; i += 2) {
            ASSERT_EQ(add(keys[i].c_str(), &places[i]), 0);
        }
    }
    for (const char* pKey : {"KK", "k ", " "}) {
        EXPECT_EQ(get(pKey), nullptr);
    }
    EXPECT_TRUE(released.empty());
}

TEST_F(CommonMap, BadArgumentsAreRefused)
{
    QvCommonMapSlot_t* pNone = nullptr;
    QvCommonMapSlot_t slot = {&objects_[0]};
    QvCommonMapSlot_t* pSlot = &slot;
    QvCommonMapHandle_t hNew = 0;
    EXPECT_EQ(QvCommonMap_open(nullptr, &hNew), 13);
    EXPECT_EQ(QvCommonMap_open(&param_, nullptr), 13);
    EXPECT_EQ(QvCommonMap_open(&param_, &hMap_), 13); // the variable isn't clear
    EXPECT_EQ(QvCommonMap_add(0, "key", &pSlot), 13);
    EXPECT_EQ(QvCommonMap_add(hMap_, nullptr, &pSlot), 13);
    EXPECT_EQ(QvCommonMap_add(hMap_, "key", nullptr), 13);
    EXPECT_EQ(QvCommonMap_add(hMap_, "key", &pNone), 13);
    EXPECT_EQ(QvCommonMap_get(0, "key", &pSlot), 13);
    EXPECT_EQ(QvCommonMap_get(hMap_, nullptr, &pSlot), 13);
    EXPECT_EQ(QvCommonMap_get(hMap_, "key", nullptr), 13);
    EXPECT_EQ(QvCommonMap_close(nullptr), 13);
    EXPECT_EQ(get("key"), nullptr);
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
