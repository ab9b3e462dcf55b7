#pragma once

// Codecs of any record behind one signature each, for the registry.

#include <qv_initialization/initialization_section.h>
#include <qv_json_c/json_value.h>

#include "database_field.h"

namespace qv::database {

/// Reads and writes the record of a category in one kind of JSON document; null where the category isn't in it.
struct Codec {
    int (*parse)(QvJsonValue_t* pValue, void* pRecord) = nullptr;
    int (*serialize)(void* pRecord, QvJsonValue_t* pValue) = nullptr;
};

/// The same for a section of the initialization document.
struct SectionCodec {
    int (*parse)(QvInitializationSection_t* pSection, void* pRecord) = nullptr;
    int (*serialize)(void* pRecord, QvInitializationSection_t* pSection) = nullptr;
    const Table* pTable = nullptr; ///< the section's form, for who needs no section
};

template <class From, class R>
R codecRecord(int (*)(From*, R*));

/// A pair of codecs; both must be for the same record.
template <auto kParse, auto kSerialize>
constexpr Codec makeCodec()
{
    using R = decltype(codecRecord(kParse));
    return {[](QvJsonValue_t* pValue, void* pRecord) { return kParse(pValue, static_cast<R*>(pRecord)); },
            [](void* pRecord, QvJsonValue_t* pValue) { return kSerialize(static_cast<R*>(pRecord), pValue); }};
}

template <auto kParse, auto kSerialize>
constexpr SectionCodec makeSectionCodec(const TableOf<decltype(codecRecord(kParse))>& table)
{
    using R = decltype(codecRecord(kParse));
    return {
        [](QvInitializationSection_t* pSection, void* pRecord) { return kParse(pSection, static_cast<R*>(pRecord)); },
        [](void* pRecord, QvInitializationSection_t* pSection) {
            return kSerialize(static_cast<R*>(pRecord), pSection);
        },
        &table};
}

} // namespace qv::database

/// The codecs `stem`_parse and `stem`_serialize.
#define QV_CODEC(stem) (::qv::database::makeCodec<&stem##_parse, &stem##_serialize>())
