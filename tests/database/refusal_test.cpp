// Each call by which the database asks a sibling or the C library for something, refused in turn: every place in the code
// from which one comes, at its first time. An operation then says so, or goes on without; and the next time it is done as
// ever. What a refusal leaves allocated on purpose is a matter of tests/endurance, which look at memory alone.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <tuple>

#include <qv_common_c/qv_common.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>
#include <qv_database_c/database_tuning.h>
#include <qv_database_c/protocol_calibration.h>
#include <qv_database_c/protocol_simulator_codecs.h>
#include <qv_initialization/qv_initialization.h>

#include "database/test_support.h"

using namespace qv::test;
namespace fs = std::filesystem;

namespace {

constexpr int kRefusal = 5;

/// The places that calls came from, and which of them is refused once.
struct Gate {
    bool isOpen = true;
    std::vector<void*> places;
    void* pRefused = nullptr;
    bool wasLookup = false; ///< what was refused takes no memory, so that nobody has to say what is left out for it

    bool refuses(void* pPlace, bool isLookup = false)
    {
        if (isOpen) {
            return false;
        }
        if (std::ranges::find(places, pPlace) == places.end()) {
            places.push_back(pPlace);
        }
        const bool isIt = pPlace == pRefused;
        pRefused = isIt ? nullptr : pRefused;
        wasLookup = isIt ? isLookup : wasLookup;
        return isIt;
    }
};
Gate gate;

template <std::size_t kIndex, class F>
struct ArgumentOf;
template <std::size_t kIndex, class R, class... A>
struct ArgumentOf<kIndex, R(A...)> {
    using Type = std::tuple_element_t<kIndex, std::tuple<A...>>;
};

} // namespace

#define QV_A(name, index) ArgumentOf<index, decltype(name)>::Type
#define QV_GATE(name, parameters, arguments)                                                                           \
    extern "C" decltype(name) __real_##name;                                                                           \
    extern "C" [[gnu::visibility("default")]] int __wrap_##name parameters                                             \
    {                                                                                                                  \
        return gate.refuses(__builtin_return_address(0)) ? kRefusal : __real_##name arguments;                         \
    }
#define QV_LOOKUP3(name)                                                                                               \
    extern "C" decltype(name) __real_##name;                                                                           \
    extern "C" [[gnu::visibility("default")]] int __wrap_##name(QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c)     \
    {                                                                                                                  \
        return gate.refuses(__builtin_return_address(0), true) ? kRefusal : __real_##name(a, b, c);                    \
    }
#define QV_GATE1(name) QV_GATE(name, (QV_A(name, 0) a), (a))
#define QV_GATE2(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b), (a, b))
#define QV_GATE3(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c), (a, b, c))
#define QV_GATE4(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c, QV_A(name, 3) d), (a, b, c, d))

// The linker wants them visible, since libraries call the same operations; those calls are none of the gate's.
#include "refusable.inc"

extern "C" {
decltype(malloc) __real_malloc, __wrap_malloc;
decltype(std::calloc) __real_calloc, __wrap_calloc;
decltype(std::realloc) __real_realloc, __wrap_realloc;
decltype(strdup) __real_strdup, __wrap_strdup;
void* __real__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag);

void* __wrap_malloc(std::size_t size) noexcept
{
    return gate.refuses(__builtin_return_address(0)) ? nullptr : __real_malloc(size);
}
void* __wrap_calloc(std::size_t number, std::size_t size) noexcept
{
    return gate.refuses(__builtin_return_address(0)) ? nullptr : __real_calloc(number, size);
}
void* __wrap_realloc(void* pBlock, std::size_t size) noexcept
{
    return gate.refuses(__builtin_return_address(0)) ? nullptr : __real_realloc(pBlock, size);
}
char* __wrap_strdup(const char* pText) noexcept
{
    return gate.refuses(__builtin_return_address(0)) ? nullptr : __real_strdup(pText);
}
void* __wrap__ZnamRKSt9nothrow_t(std::size_t size, const std::nothrow_t& tag)
{
    return gate.refuses(__builtin_return_address(0)) ? nullptr : __real__ZnamRKSt9nothrow_t(size, tag);
}
}

namespace {

class Refusals : public testing::Test {
protected:
    Refusals() { reopen(); }
    ~Refusals() override { EXPECT_EQ(close(), 0); }

    int open()
    {
        handle_ = 0; // what a failed one leaves is lost
        QvDatabaseOpenParam_t param{};
        return QvDatabase_open(&param, &handle_);
    }
    int close()
    {
        void* pData = nullptr;
        if (handle_ != 0 && QvDatabase_query(handle_, "DUMP", &pData) == 0) {
            std::free(static_cast<QvDatabaseDump_t*>(pData)->pRegisters); // the application's own
        }
        return QvDatabase_close(&handle_);
    }
    void reopen() { ASSERT_EQ(open(), 0); }

    QvDatabaseSettingProtocol_t& protocol() const
    {
        void* pData = nullptr;
        EXPECT_EQ(QvDatabase_query(handle_, "ST", &pData), 0);
        return static_cast<QvDatabaseSetting_t*>(pData)->protocol;
    }

    int runWith(void* pRefused, const std::function<int()>& operation)
    {
        gate.pRefused = pRefused;
        gate.isOpen = false;
        const int status = operation();
        gate.isOpen = true;
        return status;
    }

    struct Operation {
        std::function<int()> run;
        std::vector<int> statuses{};                             ///< of a failure, beside the refusal's own
        std::function<std::string()> result = [] { return ""; }; ///< the same after each success
        std::function<void()> prepare = [] {};                   ///< comes before
        bool keepsResult = false;                                ///< a failure leaves the result as it was
    };

    void refuseEach(const std::string& name, const Operation& operation)
    {
        gate.places.clear();
        operation.prepare();
        const int good = runWith(nullptr, operation.run);
        const std::string result = operation.result();
        const std::vector<void*> places = gate.places;
        EXPECT_FALSE(places.empty()) << name;
        for (void* pPlace : places) {
            operation.prepare();
            const int status = runWith(pPlace, operation.run);
            EXPECT_TRUE(status == good || status == kRefusal ||
                        std::ranges::find(operation.statuses, status) != operation.statuses.end())
                << name << " gives " << status << " where " << pPlace << " is refused";
            EXPECT_TRUE(!operation.keepsResult || gate.wasLookup || operation.result() == result)
                << name << " gives " << status << " and something else where " << pPlace << " is refused";
            operation.prepare();
            EXPECT_EQ(runWith(nullptr, operation.run), good) << name << " once more behind " << pPlace;
            EXPECT_TRUE(operation.result() == result) << name << " once more behind " << pPlace;
        }
    }

    /// All records but those that hold addresses.
    std::string records() const
    {
        std::string text;
        for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
            void* pData = nullptr;
            const std::string key = pCategory->pKey;
            EXPECT_EQ(QvDatabase_query(handle_, pCategory->pKey, &pData), 0);
            text.append(static_cast<const char*>(pData), key == "RAM" || key == "DUMP" ? 0 : pCategory->size);
        }
        return text;
    }

    /// A file but for the date of a text.
    static std::string undated(const fs::path& file)
    {
        std::string text = readFile(file);
        const std::size_t date = text.find("\"exportDate\"");
        return date == std::string::npos ? text : text.erase(date, text.find('\n', date) - date);
    }

    Traces traces_{QvCommonTracerLevel_Error};
    TemporaryFolder folder_;
    QvDatabaseHandle_t handle_ = 0;
};

TEST_F(Refusals, OfOpeningAndClosing)
{
    EXPECT_EQ(close(), 0);
    refuseEach("open", {.run = [this] { return open(); }, .statuses = {13}});
    refuseEach("close", {.run = [this] { return QvDatabase_close(&handle_); },
                         .statuses = {13},
                         .prepare = [this] { ASSERT_EQ(open(), 0); }});
    reopen();
}

TEST_F(Refusals, OfLoads)
{
    const std::string document = readFile(sample("imx477.json"));
    const fs::path simulator = folder_ / "simulator.json";
    ASSERT_EQ(QvDatabase_load(handle_, sample("imx477.json").c_str()), 0);
    protocol() = QvDatabaseSettingProtocol_Simulator;
    for (const fs::path& file : {simulator, folder_ / "all.ini", folder_ / "all.bin"}) {
        ASSERT_EQ(QvDatabase_save(handle_, file.c_str()), 0);
    }
    writeFile(folder_ / "tag.json", "<calibration>");
    writeFile(folder_ / "odd.json",
              R"({"version": {"versionNumber": "x"}, "root": [{"classname": 5}, 5], "header": 1})");
    writeFile(folder_ / "meta.json", R"({"root": {"metadata": {"frame_index": 5}}})");
    const auto load = [this](const fs::path& file) {
        refuseEach(file.filename(), {.run = [&] { return QvDatabase_load(handle_, file.c_str()); },
                                     .statuses = {13},
                                     .result = [this] { return records(); }});
    };
    load(sample("imx477.json"));
    for (const char* pName : {"simulator.json", "all.ini", "all.bin", "tag.json", "odd.json"}) {
        load(folder_ / pName);
    }
    refuseEach("meta", {.run = [this] { return QvDatabase_metaLoad(handle_, (folder_ / "meta.json").c_str()); },
                        .statuses = {13},
                        .result = [this] { return records(); }});
}

TEST_F(Refusals, OfSaves)
{
    ASSERT_EQ(QvDatabase_load(handle_, sample("imx477.json").c_str()), 0);
    void* pData = nullptr;
    ASSERT_EQ(QvDatabase_query(handle_, "SS", &pData), 0);
    std::memset(pData, 'x', sizeof(QvDatabaseSensor_t)); // texts without an end
    for (const auto form : {QvDatabaseSettingProtocol_Standard, QvDatabaseSettingProtocol_Simulator}) {
        protocol() = form;
        for (const char* pName : {"all.json", "all.ini", "all.bin", "meta"}) {
            const fs::path file = folder_ / pName;
            const auto save = std::strcmp(pName, "meta") == 0 ? &QvDatabase_metaSave : &QvDatabase_save;
            refuseEach(pName, {.run = [&] { return save(handle_, file.c_str()); },
                               .statuses = {13},
                               .result = [&] { return undated(file); },
                               .keepsResult = true});
        }
    }
    const auto pCalibration = std::make_unique<QvDatabaseCalibration_t>();
    refuseEach("calibration image", {.run = [&] {
                   QvCommonBuffer_t buffer{};
                   const int status = QvDatabaseProtocolCalibrationBinary_serialize(pCalibration.get(), &buffer);
                   QvCommonBuffer_clear(&buffer);
                   return status;
               }});
    refuseEach("info", {.run = [this] { return QvDatabase_info(handle_); }, .statuses = {13}});
    refuseEach("reset", {.run = [this] { return QvDatabase_reset(handle_); }, .statuses = {13}});
}

TEST_F(Refusals, OfArgumentsThatAreMissing)
{
    const JsonValue value = parseJson("{}");
    QvCommonBuffer_t buffer{};
    std::size_t size = 0;
    auto pCalibration = std::make_unique<QvDatabaseCalibration_t>();
    const int statuses[] = {
        QvDatabase_load(0, "x"),
        QvDatabase_load(handle_, nullptr),
        QvDatabase_save(0, "x"),
        QvDatabase_save(handle_, nullptr),
        QvDatabase_metaLoad(0, "x"),
        QvDatabase_metaLoad(handle_, nullptr),
        QvDatabase_metaSave(0, "x"),
        QvDatabase_metaSave(handle_, nullptr),
        QvDatabaseText_parse(0, &buffer),
        QvDatabaseText_parse(handle_, nullptr),
        QvDatabaseText_serialize(0, &buffer),
        QvDatabaseText_serialize(handle_, nullptr),
        QvDatabaseTuning_parse(0, value.get()),
        QvDatabaseTuning_parse(handle_, nullptr),
        QvDatabaseTuning_serialize(0, value.get()),
        QvDatabaseTuning_serialize(handle_, nullptr),
        QvDatabaseProtocolSimulator_parse(0, value.get()),
        QvDatabaseProtocolSimulator_parse(handle_, nullptr),
        QvDatabaseProtocolSimulator_serialize(0, value.get()),
        QvDatabaseProtocolSimulator_serialize(handle_, nullptr),
        QvDatabaseBinary_parse(0, &buffer),
        QvDatabaseBinary_serialize(0, nullptr, &size),
        QvDatabaseProtocolCalibration_parse(nullptr, pCalibration.get()),
        QvDatabaseProtocolCalibration_parse("{}", nullptr),
        QvDatabaseProtocolCalibrationBinary_parse(nullptr, pCalibration.get()),
        QvDatabaseProtocolCalibrationBinary_parse(&buffer, nullptr),
        QvDatabaseProtocolCalibrationBinary_serialize(nullptr, &buffer),
        QvDatabaseProtocolCalibrationBinary_serialize(pCalibration.get(), nullptr),
    };
    for (std::size_t i = 0; i < std::size(statuses); ++i) {
        EXPECT_EQ(statuses[i], 13) << "call " << i;
    }
}

} // namespace
