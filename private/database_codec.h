#pragma once

// Records of any type behind one signature, for the lists of the containers.

#include <qv_json_c/json_value.h>

namespace qv::database {

/// Reads and writes one category in one kind of document.
struct Codec {
    const char* key; ///< the category
    int (*parse)(QvJsonValue_t* pValue, void* pRecord);
    int (*serialize)(void* pRecord, QvJsonValue_t* pValue);
};

template <class R>
R recordOf(int (*)(QvJsonValue_t*, R*));

/// The row of a pair of codecs; both must be for the same record.
template <auto kParse, auto kSerialize>
constexpr Codec codec(const char* pKey)
{
    using R = decltype(recordOf(kParse));
    return {pKey, [](QvJsonValue_t* pValue, void* pRecord) { return kParse(pValue, static_cast<R*>(pRecord)); },
            [](void* pRecord, QvJsonValue_t* pValue) { return kSerialize(static_cast<R*>(pRecord), pValue); }};
}

} // namespace qv::database

/// The row of the category `key` with the codecs `stem`_parse and `stem`_serialize.
#define QV_CODEC(key, stem) ::qv::database::codec<&stem##_parse, &stem##_serialize>(key)
