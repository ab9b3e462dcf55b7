#include <qv_common_c/common_convert.h>

#include <cstddef>
#include <cstring>

namespace {

template <typename Element>
void store(void* pData, std::size_t index, ssize_t value)
{
    const auto element = static_cast<Element>(value);
    std::memcpy(static_cast<char*>(pData) + index * sizeof(Element), &element, sizeof(Element));
}

template <typename Element>
Element load(const void* pData, std::size_t index)
{
    Element element = 0;
    std::memcpy(&element, static_cast<const char*>(pData) + index * sizeof(Element), sizeof(Element));
    return element;
}

template <typename Signed, typename Unsigned>
int64_t extend(bool isSigned, const void* pData, std::size_t index)
{
    return isSigned ? static_cast<int64_t>(load<Signed>(pData, index))
                    : static_cast<int64_t>(load<Unsigned>(pData, index));
}

} // namespace

void QvCommonConvert_integer2Binary(void* pData, std::size_t stride, std::size_t index, ssize_t value)
{
    if (pData == nullptr) {
        return;
    }
    switch (stride) {
    case 1:
        store<uint8_t>(pData, index, value);
        break;
    case 2:
        store<uint16_t>(pData, index, value);
        break;
    case 4:
        store<uint32_t>(pData, index, value);
        break;
    case 8:
        store<uint64_t>(pData, index, value);
        break;
    default:
        break;
    }
}

int64_t QvCommonConvert_integer2Binary_(bool isSigned, void* pData, std::size_t stride, std::size_t index)
{
    if (pData == nullptr) {
        return 0;
    }
    switch (stride) {
    case 1:
        return extend<int8_t, uint8_t>(isSigned, pData, index);
    case 2:
        return extend<int16_t, uint16_t>(isSigned, pData, index);
    case 4:
        return extend<int32_t, uint32_t>(isSigned, pData, index);
    case 8:
        return load<int64_t>(pData, index);
    default:
        return 0;
    }
}

double QvCommonConvert_float2Double(float value)
{
    return value;
}
