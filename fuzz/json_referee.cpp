#include "json_referee.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cfloat>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <rapidjson/document.h>

namespace qv::test {
namespace {

// Numbers come as they stand in the text; the C library tells their value.
constexpr unsigned kFlags =
    rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseCommentsFlag;

bool equalNumber(const QvJsonValue_t& ours, const char* pText)
{
    if (std::strpbrk(pText, ".eE") == nullptr) {
        errno = 0;
        const auto bits = *pText == '-' ? static_cast<uint64_t>(std::strtoll(pText, nullptr, 10))
                                        : static_cast<uint64_t>(std::strtoull(pText, nullptr, 10));
        if (errno == 0) {
            return ours.type == QvJsonValueType_Integer && static_cast<uint64_t>(ours.holder.integer) == bits;
        }
    }
    const double expected = std::clamp(std::strtod(pText, nullptr), -DBL_MAX, DBL_MAX);
    return ours.type == QvJsonValueType_Float &&
           std::bit_cast<uint64_t>(expected) == std::bit_cast<uint64_t>(ours.holder._float);
}

bool equal(const QvJsonValue_t& ours, const rapidjson::Value& theirs);

// The referee keeps doubled keys: the last one counts, in the order of the first ones.
bool equalMembers(const QvJsonValueObject_t& ours, const rapidjson::Value& theirs)
{
    size_t number = 0;
    for (auto member = theirs.MemberBegin(); member != theirs.MemberEnd(); ++member) {
        const auto isSame = [&](const auto& other) {
            return std::strcmp(other.name.GetString(), member->name.GetString()) == 0;
        };
        bool isFirst = true;
        for (auto other = theirs.MemberBegin(); other != member; ++other) {
            isFirst = isFirst && !isSame(*other);
        }
        if (!isFirst) {
            continue;
        }
        auto last = member;
        for (auto other = member; other != theirs.MemberEnd(); ++other) {
            last = isSame(*other) ? other : last;
        }
        if (number == ours.number || std::strcmp(ours.pPairs[number].pKey, member->name.GetString()) != 0 ||
            !equal(*ours.pPairs[number].pValue, last->value)) {
            return false;
        }
        ++number;
    }
    return number == ours.number;
}

bool equal(const QvJsonValue_t& ours, const rapidjson::Value& theirs)
{
    switch (ours.type) {
    case QvJsonValueType_Null:
        return theirs.IsNull();
    case QvJsonValueType_Boolean:
        return theirs.IsBool() && theirs.GetBool() == ours.holder._bool;
    case QvJsonValueType_Integer:
    case QvJsonValueType_Float:
        return theirs.IsString() && equalNumber(ours, theirs.GetString());
    case QvJsonValueType_String:
        return theirs.IsString() && std::strcmp(theirs.GetString(), ours.holder.pChar) == 0;
    case QvJsonValueType_Object:
        return theirs.IsObject() && equalMembers(*ours.holder.pObject, theirs);
    default:
        break;
    }
    if (!theirs.IsArray() || theirs.Size() != ours.holder.pArray->number) {
        return false;
    }
    for (rapidjson::SizeType index = 0; index < theirs.Size(); ++index) {
        if (!equal(ours.holder.pArray->pValues[index], theirs[index])) {
            return false;
        }
    }
    return true;
}

} // namespace

Opinion opinionOf(std::string_view text, const QvJsonValue_t* pOurs)
{
    rapidjson::Document theirs;
    theirs.Parse<kFlags>(text.data(), text.size());
    // Numbers beyond double saturate here. There a zero byte is the end of the text, and any part of a byte order mark
    // is passed over.
    const bool isMarkBroken =
        !text.empty() && std::strchr("\xEF\xBB\xBF", text.front()) != nullptr && !text.starts_with("\xEF\xBB\xBF");
    if (text.find('\0') != std::string_view::npos || isMarkBroken ||
        (theirs.HasParseError() && theirs.GetParseError() == rapidjson::kParseErrorNumberTooBig)) {
        return Opinion::None;
    }
    if (theirs.HasParseError()) {
        return pOurs == nullptr ? Opinion::Same : Opinion::Refuses;
    }
    if (pOurs == nullptr) {
        return Opinion::Accepts;
    }
    return equal(*pOurs, theirs) ? Opinion::Same : Opinion::OtherValues;
}

} // namespace qv::test
