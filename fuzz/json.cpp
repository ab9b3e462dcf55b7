// JSON texts: another parser accepts and refuses the same ones and finds the same values in them, and what was read,
// written and read again is the same, comments included.

#include <cstring>

#include <qv_common_c/common_tracer.h>

#include "json_referee.h"
#include "support.h"

using namespace qv::fuzz;
using qv::test::Opinion;

namespace {

std::string lastTrace;

/// A text or a comment is the same bytes, or both are not there.
bool isSameText(const char* pOne, const char* pOther)
{
    return pOne == nullptr || pOther == nullptr ? pOne == pOther : std::strcmp(pOne, pOther) == 0;
}

/// The same values, with the numbers that a writer rounds left to their text.
bool isSame(const QvJsonValue_t& one, const QvJsonValue_t& other)
{
    if (one.type != other.type) {
        return false;
    }
    switch (one.type) {
    case QvJsonValueType_Boolean:
        return one.holder._bool == other.holder._bool;
    case QvJsonValueType_Integer:
        return one.holder.integer == other.holder.integer;
    case QvJsonValueType_String:
        return isSameText(one.holder.pChar, other.holder.pChar);
    case QvJsonValueType_Array:
        for (std::size_t i = 0; i < one.holder.pArray->number; ++i) {
            if (i >= other.holder.pArray->number ||
                !isSame(one.holder.pArray->pValues[i], other.holder.pArray->pValues[i])) {
                return false;
            }
        }
        return one.holder.pArray->number == other.holder.pArray->number;
    case QvJsonValueType_Object:
        for (std::size_t i = 0; i < one.holder.pObject->number; ++i) {
            if (i >= other.holder.pObject->number ||
                !isSameText(one.holder.pObject->pPairs[i].pKey, other.holder.pObject->pPairs[i].pKey) ||
                !isSame(*one.holder.pObject->pPairs[i].pValue, *other.holder.pObject->pPairs[i].pValue)) {
                return false;
            }
        }
        return one.holder.pObject->number == other.holder.pObject->number;
    default:
        return true;
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QvCommonTracerOpenParam_t param{};
    param.level = QvCommonTracerLevel_Error;
    param.pWrite = [](void*, QvCommonTracerLevel_t, const char* pText, size_t length) {
        lastTrace.assign(pText, length);
        return 0;
    };
    return QvCommonTracer_open(&param, &hTracer);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(pData), size);
    lastTrace.clear();
    const Tree tree = parseJson(text);
    const Opinion opinion = qv::test::opinionOf(text, tree.get());
    const bool isStricter = lastTrace.find("high half of a surrogate pair") != std::string::npos ||
                            lastTrace.find("nested") != std::string::npos;
    require(opinion == Opinion::Same || opinion == Opinion::None || (opinion == Opinion::Accepts && isStricter),
            "the referee says the same", text);
    require(lastTrace.empty() == (tree != nullptr), "a refused text leaves a trace", text);
    if (tree == nullptr) {
        return 0;
    }
    QvJsonWriterOpenParam_t param{6, 0, "  "};
    param.elementNumberPerLine = static_cast<std::uint32_t>(numberOf(text) % 4);
    const std::string written = writeJson(tree.get(), &param);
    const Tree again = parseJson(written);
    require(again != nullptr, "what is written can be read", written);
    require(isSame(*tree, *again), "what is written has the same values", written);
    requireSame(writeJson(again.get(), &param), written, "what is read and written again is the same");
    return 0;
}
