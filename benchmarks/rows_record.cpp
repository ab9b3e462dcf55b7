// Finding records, and making and releasing all of them.
#include "rows.h"

#include <cstdlib>
#include <cstring>
#include <string_view>
#include <unordered_map>

namespace qv::benchmark {
namespace {

std::vector<QvDatabaseCategory_t> categories()
{
    std::vector<QvDatabaseCategory_t> result;
    while (const QvDatabaseCategory_t* pCategory = QvDatabase_category(result.size())) {
        result.push_back(*pCategory);
    }
    return result;
}

/// Records of the same sizes as ours. Two are made twice, as the database registers them twice.
void allocateAndFree(const std::vector<std::size_t>& sizes)
{
    std::vector<void*> blocks;
    blocks.reserve(sizes.size());
    for (const std::size_t size : sizes) {
        void* pBlock = std::calloc(1, size);
        check(pBlock != nullptr, "calloc");
        keep(pBlock);                 // else the compiler drops block and fill, since nobody reads them
        std::memset(pBlock, 0, size); // the defaults
        keep(pBlock);
        blocks.push_back(pBlock);
    }
    for (void* pBlock : blocks) {
        std::free(pBlock);
    }
}

} // namespace

void recordRows(Report& report, const Document& document)
{
    const auto list = categories();
    const Database database(document.json);
    std::unordered_map<std::string_view, void*> map;
    std::vector<std::string_view> keys;
    std::vector<std::size_t> sizes;
    for (const QvDatabaseCategory_t& category : list) {
        map.emplace(category.pKey, database.record(category.pKey));
        keys.emplace_back(category.pKey);
        sizes.push_back(category.size);
        if (keys.back() == "HTG" || keys.back() == "HTG_2") {
            sizes.push_back(category.size);
        }
    }
    check(keys.size() == 58 && sizes.size() == 60, "counting the categories");

    report.add("query of 58 keys", "unordered_map by string_view", 0.8, document.name,
               compare(
                   [&] {
                       for (const QvDatabaseCategory_t& category : list) {
                           void* pData = nullptr;
                           check(QvDatabase_query(database.handle(), category.pKey, &pData) == 0, category.pKey);
                           keep(pData);
                       }
                   },
                   [&] {
                       for (const std::string_view key : keys) {
                           const auto found = map.find(key);
                           check(found != map.end(), "find");
                           void* pData = found->second;
                           keep(pData);
                       }
                   }));

    report.add("open and close", "60 calloc, fill, free", 1.2, document.name,
               compare(
                   [] {
                       QvDatabaseOpenParam_t param{};
                       QvDatabaseHandle_t handle = 0;
                       check(QvDatabase_open(&param, &handle) == 0 && QvDatabase_close(&handle) == 0, "open");
                   },
                   [&] { allocateAndFree(sizes); }));
}

} // namespace qv::benchmark
