#include <qv_json_c/json_walk.h>

#include <algorithm>
#include <exception>

#include "text_walker.h"
#include <qv_common_c/common_error.h>

using namespace qv::json;

int QvJsonReader_walk(QvJsonReaderHandle_t handle, const char* pBegin, const char* pEnd, QvJsonWalkVisit_t pVisit,
                      void* pUserData)
{
    if (handle == 0 || pBegin == nullptr || pEnd == nullptr || pEnd < pBegin || pVisit == nullptr) {
        return QvCommonError_BadArgument;
    }
    try {
        return TextWalker(pBegin, pEnd, pVisit, pUserData).walk();
    } catch (const std::exception&) {
        return QvCommonError_OutOfMemory;
    }
}

int QvJsonReader_place(const char* pBegin, const char* pEnd, size_t offset, size_t* pLine, size_t* pColumn)
{
    if (pBegin == nullptr || pEnd == nullptr || pEnd < pBegin || offset > static_cast<size_t>(pEnd - pBegin)) {
        return QvCommonError_BadArgument;
    }
    const char* pPlace = pBegin + offset;
    const char* pLineBegin = pPlace;
    while (pLineBegin != pBegin && pLineBegin[-1] != '\n') {
        --pLineBegin;
    }
    if (pLine != nullptr) {
        *pLine = 1 + static_cast<size_t>(std::count(pBegin, pLineBegin, '\n'));
    }
    if (pColumn != nullptr) {
        // The second and later bytes of a UTF-8 sequence are no column of their own.
        *pColumn =
            1 + static_cast<size_t>(std::count_if(pLineBegin, pPlace, [](char c) { return (c & 0xC0) != 0x80; }));
    }
    return QvCommonError_Success;
}
