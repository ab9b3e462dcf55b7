#include <qv_common_c/common_time.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <ctime>

char* QvCommonTime_timestamp(char* pText, std::size_t size)
{
    if (pText == nullptr || size == 0) {
        return pText;
    }
    const std::time_t now = std::time(nullptr);
    std::tm parts = {};
    gmtime_r(&now, &parts);
    // strftime leaves nothing usable where the room is too small, so a cut text needs the whole one first.
    std::array<char, 32> whole = {};
    const std::size_t length = std::strftime(whole.data(), whole.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    const std::size_t kept = std::min(length, size - 1);
    std::memcpy(pText, whole.data(), kept);
    pText[kept] = '\0';
    return pText;
}
