// Random records through two forms, one after the other. What must arrive follows from the catalog: the fields that each
// form writes and reads, as far as its lists are counted, with floats as near as six digits say.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>

#include <gtest/gtest.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_exposure_control_2.h>
#include <qv_database_c/database_meta_driver.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_setting.h>

#include "catalog_tree.h"
#include "database/test_support.h"
#include "endurance/setting.h"

using namespace qv::test;
namespace fs = std::filesystem;

namespace {

using Random = std::mt19937_64;
using Document = QvDatabaseCatalogDocument_t;
using qv::tools::elementsOf;
using qv::tools::FieldNode;

/// A category as one document carries it.
struct Carried {
    QvDatabaseCatalogCategory_t category;
    std::vector<FieldNode> fields;
};

const std::vector<Carried>& documentOf(Document document)
{
    static std::map<Document, std::vector<Carried>> documents;
    std::vector<Carried>& all = documents[document];
    if (all.empty()) {
        for (const QvDatabaseCatalogCategory_t& category : qv::tools::categoriesOf(document)) {
            all.push_back({category, qv::tools::fieldsOf(document, category)});
        }
    }
    return all;
}

std::uint64_t counterOf(const QvDatabaseCatalogField_t& field, const char* pRecord)
{
    std::uint64_t number = 0;
    std::memcpy(&number, pRecord + field.counterOffset, field.counterWidth);
    return number;
}

// ---------------------------------------------------------------------------------------------------- what is carried

/// A number by way of six decimals, which the C library writes and reads.
template <class Number>
Number throughText(Number value)
{
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), "%.6f", static_cast<double>(value));
    return sizeof value == sizeof(float) ? static_cast<Number>(std::strtof(text.data(), nullptr))
                                         : static_cast<Number>(std::strtod(text.data(), nullptr));
}

/// A float of a section, written without its fraction, and as far as 64 bits go.
float throughWhole(float value)
{
    constexpr float kLimit = 9223372036854775808.0F;
    if (value >= kLimit) {
        return kLimit;
    }
    return value < -kLimit ? -kLimit : std::trunc(value) + 0.0F;
}

template <class Number>
void carryNumber(Number (*through)(Number), const char* pFrom, char* pTo)
{
    Number value = 0;
    std::memcpy(&value, pFrom, sizeof value);
    value = through(value);
    std::memcpy(pTo, &value, sizeof value);
}

class Carrier {
public:
    Carrier(Document document, const QvDatabaseCatalogCategory_t& category)
        : isSection_(document == QvDatabaseCatalogDocument_Initialization),
          isClass_(document == QvDatabaseCatalogDocument_Simulator), category_(category)
    {
    }

    /// Stores what arrives of a record in another one.
    void carry(const std::vector<FieldNode>& fields, const char* pFrom, char* pTo) const
    {
        for (const FieldNode& node : fields) {
            const QvDatabaseCatalogField_t& field = node.field;
            if (field.direction != QvDatabaseCatalogDirection_Both || field.count == QvDatabaseCatalogCount_Heap) {
                continue;
            }
            // Where two fields have one key, a document holds the last of them.
            const auto last = std::ranges::find_if(fields.rbegin(), fields.rend(), [&](const FieldNode& other) {
                return std::strcmp(other.field.pKey, field.pKey) == 0;
            });
            const char* pSource = pFrom + last->field.offset;
            if (field.element == QvDatabaseCatalogElement_Record) {
                const std::size_t number = carriedNumber(field, pFrom, pTo);
                for (std::size_t i = 0; i < number; ++i) {
                    carry(node.fields, pSource + i * field.width, pTo + field.offset + i * field.width);
                }
                continue;
            }
            for (std::size_t i = 0; i < elementsOf(field); ++i) {
                carryElement(field, pSource + i * field.width, pTo + field.offset + i * field.width);
            }
        }
    }

private:
    static std::size_t carriedNumber(const QvDatabaseCatalogField_t& field, const char* pFrom, char* pTo)
    {
        if (field.counterWidth == 0) {
            return elementsOf(field);
        }
        std::uint64_t number = counterOf(field, pFrom);
        std::memcpy(pTo + field.counterOffset, &number, field.counterWidth);
        if (std::strcmp(field.pCounter, "bnrNumber") == 0) { // read as far as the list of black levels goes
            number = std::min<std::uint64_t>(number,
                                             reinterpret_cast<const QvDatabaseCalibrationSensor_t*>(pFrom)->blsNumber);
        }
        return number;
    }

    void carryElement(const QvDatabaseCatalogField_t& field, const char* pFrom, char* pTo) const
    {
        if (field.element == QvDatabaseCatalogElement_Text) {
            const bool isClassName =
                isClass_ && category_.pClassKey != nullptr && std::strcmp(field.pKey, category_.pClassKey) == 0;
            const char* pText = isClassName ? category_.pClass : pFrom;
            if (isSection_) {
                std::strcpy(pTo, pText); // the rest of the field stays
            } else {
                std::strncpy(pTo, pText, field.width);
            }
        } else if (field.element == QvDatabaseCatalogElement_Float &&
                   field.written != QvDatabaseCatalogElement_Integer) {
            carryNumber<float>(isSection_ ? throughWhole : throughText<float>, pFrom, pTo);
        } else if (field.element == QvDatabaseCatalogElement_Double) {
            carryNumber<double>(throughText<double>, pFrom, pTo);
        } else {
            std::memcpy(pTo, pFrom, field.width);
        }
    }

    bool isSection_;
    bool isClass_;
    const QvDatabaseCatalogCategory_t& category_;
};

// ------------------------------------------------------------------------------------------------------------ records

using Records = std::map<std::string, std::string>;

/// A copy of all records.
Records recordsOf(const Database& database)
{
    Records records;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        records[pCategory->pKey] = std::string(&database.record<char>(pCategory->pKey), pCategory->size);
    }
    return records;
}

enum class Form { Tuning, Simulator, Initialization, Image, Meta, MetaSimulator };
constexpr const char* kFilenames[] = {"tuning.json", "simulator.json", "sections.ini",
                                      "image.bin",   "meta.json",      "meta_simulator.json"};
constexpr unsigned kForms = std::size(kFilenames);

bool isMeta(Form form)
{
    return form == Form::Meta || form == Form::MetaSimulator;
}

bool isSimulator(Form form)
{
    return form == Form::Simulator || form == Form::MetaSimulator;
}

void carryDocument(Form form, Document document, const Records& from, Records& to)
{
    for (const Carried& carried : documentOf(document)) {
        const std::string key = carried.category.pKey;
        if (carried.category.isWritten && (key == "MT") == isMeta(form)) { // metadata has files of its own
            Carrier(document, carried.category).carry(carried.fields, from.at(key).data(), to[key].data());
        }
    }
}

/// What a database with default records holds after it has loaded the form of these.
Records expectedBehind(Form form, const Records& from, Records to)
{
    if (form == Form::Image) {
        for (const Carried& carried : documentOf(QvDatabaseCatalogDocument_Image)) {
            to[carried.category.pKey] = from.at(carried.category.pKey);
        }
        return to;
    }
    const Document document = form == Form::Tuning           ? QvDatabaseCatalogDocument_Tuning
                              : form == Form::Initialization ? QvDatabaseCatalogDocument_Initialization
                              : form == Form::Meta           ? QvDatabaseCatalogDocument_Meta
                                                             : QvDatabaseCatalogDocument_Simulator;
    if (form == Form::Initialization || isMeta(form)) {
        carryDocument(form, document, from, to);
        return to;
    }
    carryDocument(form, QvDatabaseCatalogDocument_Version, from, to);
    if (form == Form::Tuning) {
        to["EC_2"][offsetof(QvDatabaseExposureControl_2_t, isParse)] = 1; // tells that it was read
    }
    carryDocument(form, document, from, to);
    if (form == Form::Simulator) {
        // Both records have this key in one object, and MD is written last.
        to["MISC"][offsetof(QvDatabaseMisc_t, nrReloc)] = from.at("MD")[offsetof(QvDatabaseMetaDriver_t, nrReloc)];
    }
    to["CLB"].assign(to["CLB"].size(), 0);
    carryDocument(form, QvDatabaseCatalogDocument_Calibration, from, to);
    to["CLB"][offsetof(QvDatabaseCalibration_t, isLoaded)] = 1;
    return to;
}

// ------------------------------------------------------------------------------------------------------------- chance

float randomFloat(Random& random)
{
    switch (random() % 4) {
    case 0:
        return 0;
    case 1:
        return static_cast<float>(static_cast<std::int64_t>(random() % 2000001) - 1000000) / 1000;
    case 2:
        return static_cast<float>(random() % 1000) / 1e6F;
    default: {
        const auto bits = static_cast<std::uint32_t>(random());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return std::isfinite(value) ? value : -1;
    }
    }
}

void fillText(Random& random, char* pText, std::size_t width)
{
    constexpr std::string_view kCharacters = "abcXYZ019 _-./=[];#\"\\\t\n,:{}<\x01\x7F";
    const std::size_t length = random() % width;
    std::memset(pText, 0, width);
    for (std::size_t i = 0; i < length; ++i) {
        pText[i] = kCharacters[random() % kCharacters.size()];
    }
}

void fillElement(Random& random, const QvDatabaseCatalogField_t& field, char* pData)
{
    const std::uint64_t bits = random();
    const float value = randomFloat(random);
    const double wide = static_cast<double>(value);
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        *pData = static_cast<char>(bits % 2);
        break;
    case QvDatabaseCatalogElement_Integer:
        std::memcpy(pData, &bits, field.width);
        break;
    case QvDatabaseCatalogElement_Float:
        std::memcpy(pData, &value, sizeof value);
        break;
    case QvDatabaseCatalogElement_Double:
        std::memcpy(pData, &wide, sizeof wide);
        break;
    case QvDatabaseCatalogElement_Text:
        fillText(random, pData, field.width);
        break;
    default:
        break;
    }
}

void fill(Random& random, const std::vector<FieldNode>& fields, char* pRecord)
{
    for (const FieldNode& node : fields) {
        for (std::size_t i = 0; i < elementsOf(node.field); ++i) {
            char* pData = pRecord + node.field.offset + i * node.field.width;
            if (node.field.element == QvDatabaseCatalogElement_Record) {
                fill(random, node.fields, pData);
            } else {
                fillElement(random, node.field, pData);
            }
        }
    }
}

/// Gives the counters of lists a number that the lists hold, mostly a small one.
void fillCounters(Random& random, const std::vector<FieldNode>& fields, char* pRecord)
{
    for (const FieldNode& node : fields) {
        const QvDatabaseCatalogField_t& field = node.field;
        if (field.element != QvDatabaseCatalogElement_Record || field.count == QvDatabaseCatalogCount_Heap) {
            continue;
        }
        if (field.counterWidth != 0) {
            const std::uint64_t most =
                random() % 8 == 0 ? field.extents[0] : std::min<std::size_t>(field.extents[0], 2);
            const std::uint64_t number = random() % (most + 1);
            std::memcpy(pRecord + field.counterOffset, &number, field.counterWidth);
        }
        for (std::size_t i = 0; i < elementsOf(field); ++i) {
            fillCounters(random, node.fields, pRecord + field.offset + i * field.width);
        }
    }
}

void fillDatabase(Random& random, const Database& database)
{
    for (const Carried& carried : documentOf(QvDatabaseCatalogDocument_Memory)) {
        const std::string key = carried.category.pKey;
        if (key != "RAM" && key != "DUMP") {
            fill(random, carried.fields, &database.record<char>(carried.category.pKey));
        }
    }
    for (const Document document : {QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Simulator,
                                    QvDatabaseCatalogDocument_Calibration}) {
        for (const Carried& carried : documentOf(document)) {
            fillCounters(random, carried.fields, &database.record<char>(carried.category.pKey));
        }
    }
}

// -------------------------------------------------------------------------------------------------------------- tests

/// The category and the byte in which records differ; empty for none.
std::string differenceOf(const Records& found, const Records& expected)
{
    std::string text;
    for (const auto& [key, bytes] : expected) {
        if (key == "RAM" || key == "DUMP" || key == "ST" || found.at(key) == bytes) {
            continue;
        }
        const auto at =
            static_cast<std::size_t>(std::ranges::mismatch(found.at(key), bytes).in1 - found.at(key).begin());
        text += key + " at byte " + std::to_string(at) + " is " + std::to_string(found.at(key)[at]) + ", not " +
                std::to_string(bytes[at]) + "; ";
    }
    return text;
}

class RoundTrip : public testing::Test {
protected:
    /// Saves, loads into a new database, compares; gives the new one.
    std::unique_ptr<Database> pass(Form form, const Database& from)
    {
        const fs::path file = folder_ / kFilenames[static_cast<std::size_t>(form)];
        from.record<QvDatabaseSetting_t>("ST").protocol =
            isSimulator(form) ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
        EXPECT_EQ((isMeta(form) ? QvDatabase_metaSave : QvDatabase_save)(from.handle(), file.c_str()), 0);
        auto pTo = std::make_unique<Database>();
        const Records expected = expectedBehind(form, recordsOf(from), recordsOf(*pTo));
        EXPECT_EQ((isMeta(form) ? QvDatabase_metaLoad : QvDatabase_load)(pTo->handle(), file.c_str()), 0);
        EXPECT_EQ(differenceOf(recordsOf(*pTo), expected), "") << file.filename();
        return pTo;
    }

    TemporaryFolder folder_;
};

TEST_F(RoundTrip, TwoFormsKeepWhatBothCarry)
{
    const Traces traces(QvCommonTracerLevel_Error);
    const unsigned seeds = isNight() ? 36000 : 360;
    for (unsigned seed = 0; seed < seeds && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Random random(seed);
        const Database first;
        fillDatabase(random, first);
        const auto pSecond = pass(static_cast<Form>(seed % kForms), first);
        pass(static_cast<Form>(seed / kForms % kForms), *pSecond);
    }
    EXPECT_EQ(traces.lines().size(), 0U);
}

} // namespace
