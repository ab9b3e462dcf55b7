// Each call by which the database asks a sibling or the C library for something, refused in turn: every place in the code
// from which one comes, at its first time. An operation then says so, or goes on without; and the next time it is done as
// ever. What a refusal leaves allocated on purpose is a matter of tests/endurance, which look at memory alone.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <new>
#include <set>
#include <tuple>

#include <qv_common_c/qv_common.h>
#include <qv_database_c/database_access.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/protocol_calibration.h>
#include <qv_initialization/qv_initialization.h>

#include "database/made_up_forms.h"
#include "database/test_support.h"

using namespace qv::database;
using namespace qv::test;
namespace fs = std::filesystem;

namespace {

constexpr int kRefusal = 5;

/// A call, by the place that it comes from and how often one came from there before.
struct Call {
    void* pPlace;
    std::size_t index;
    bool operator==(const Call&) const = default;
};

/// Counts the calls from each place, and refuses one.
struct Gate {
    bool isOpen = true;
    Call refused{};
    bool wasLookup = false;               ///< takes no memory, so that nobody has to say what is left out
    std::map<void*, std::size_t> numbers; ///< of calls, by place
    std::set<void*> each;                 ///< places at which each call is refused, not just the first

    bool refuses(void* pPlace, bool isEach = false, bool isLookup = false)
    {
        if (isOpen) {
            return false;
        }
        if (isEach) {
            each.insert(pPlace);
        }
        const bool isIt = refused == Call{pPlace, numbers[pPlace]++};
        wasLookup = isIt ? isLookup : wasLookup;
        return isIt;
    }

    std::vector<Call> calls() const
    {
        std::vector<Call> all;
        for (const auto& [pPlace, number] : numbers) {
            for (std::size_t i = 0; i < (each.contains(pPlace) && number < 64 ? number : 1); ++i) {
                all.push_back({pPlace, i});
            }
        }
        return all;
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
#define QV_GATE(name, parameters, arguments, ...)                                                                      \
    extern "C" decltype(name) __real_##name;                                                                           \
    extern "C" [[gnu::visibility("default")]] int __wrap_##name parameters                                             \
    {                                                                                                                  \
        return gate.refuses(__builtin_return_address(0), __VA_ARGS__) ? kRefusal : __real_##name arguments;            \
    }
#define QV_GATE1(name) QV_GATE(name, (QV_A(name, 0) a), (a), false)
#define QV_GATE2(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b), (a, b), false)
#define QV_EACH2(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b), (a, b), true)
#define QV_GATE3(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c), (a, b, c), false)
#define QV_LOOKUP3(name) QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c), (a, b, c), true, true)
#define QV_GATE4(name)                                                                                                 \
    QV_GATE(name, (QV_A(name, 0) a, QV_A(name, 1) b, QV_A(name, 2) c, QV_A(name, 3) d), (a, b, c, d), false)

#ifdef QV_CONTRACT_SIBLINGS
#define QV_BEYOND1(name)
#define QV_BEYOND2(name)
#define QV_BEYOND3(name)
#define QV_BEYOND4(name)
#else
#define QV_BEYOND1(name) QV_GATE1(name)
#define QV_BEYOND2(name) QV_GATE2(name)
#define QV_BEYOND3(name) QV_GATE3(name)
#define QV_BEYOND4(name) QV_GATE4(name)
#endif

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

    static int runWith(const Call& refused, const std::function<int()>& operation)
    {
        gate.numbers.clear();
        gate.refused = refused;
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
        operation.prepare();
        const int good = runWith({}, operation.run);
        const std::string result = operation.result();
        const std::vector<Call> calls = gate.calls();
        EXPECT_FALSE(calls.empty()) << name;
        for (const Call& call : calls) {
            const std::string where = name + " where call " + std::to_string(call.index) + " from " +
                                      testing::PrintToString(call.pPlace) + " is refused";
            operation.prepare();
            const int status = runWith(call, operation.run);
            EXPECT_TRUE(status == good || status == kRefusal ||
                        std::ranges::find(operation.statuses, status) != operation.statuses.end())
                << where << " gives " << status;
            EXPECT_TRUE(!operation.keepsResult || gate.wasLookup || operation.result() == result)
                << where << " gives " << status << " and something else";
            if (call.index == 0 || gate.wasLookup) {
                operation.prepare();
                EXPECT_EQ(runWith({}, operation.run), good) << "once more behind " << where;
                EXPECT_TRUE(operation.result() == result) << "once more behind " << where;
            }
        }
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
    writeFile(folder_ / "empty.json", "");
    writeFile(folder_ / "odd.json",
              R"({"version": {"versionNumber": "x"}, "root": [{"classname": 5}, 5], "header": 1})");
    writeFile(folder_ / "meta.json", R"({"root": {"metadata": {"frame_index": 5}}})");
    const auto load = [this](const fs::path& file) {
        refuseEach(file.filename(), {.run = [&] { return QvDatabase_load(handle_, file.c_str()); },
                                     .statuses = {13},
                                     .result = [this] { return recordsOf(handle_); }});
    };
    load(sample("imx477.json"));
    for (const char* pName : {"simulator.json", "all.ini", "all.bin", "tag.json", "odd.json", "empty.json"}) {
        load(folder_ / pName);
    }
    const auto pCalibration = std::make_unique<QvDatabaseCalibration_t>();
    refuseEach("calibration text", {.run = [&] {
                   return QvDatabaseProtocolCalibration_parse(R"({"header": {"creator": "x"}})", pCalibration.get());
               }});
    refuseEach("meta", {.run = [this] { return QvDatabase_metaLoad(handle_, (folder_ / "meta.json").c_str()); },
                        .statuses = {13},
                        .result = [this] { return recordsOf(handle_); }});
}

TEST_F(Refusals, OfListsWithinLists)
{
    const lists::Lists one{{}, {}, 2, 1};
    const nested::Nested record{{one, one}, {one, one}, 2};
    JsonValue value;
    refuseEach("lists", {.run = [&] { return writeTable(nested::kTable, &record, value.get()); },
                         .prepare = [&] { value = parseJson("{}"); }});
    QvDatabaseRectangle_t rectangles[2] = {};
    const auto write = [](char* pData, QvJsonValue_t* pValue) {
        return QvDatabaseRectangle_serialize(reinterpret_cast<QvDatabaseRectangle_t*>(pData), pValue);
    };
    const auto writeAll = [&] {
        return QvDatabaseAccess_objects_(value.get(), rectangles, sizeof *rectangles, 2, "list", write);
    };
    refuseEach("objects", {.run = writeAll, .prepare = [&] { value = parseJson("{}"); }});
}

TEST_F(Refusals, OfSaves)
{
    ASSERT_EQ(QvDatabase_load(handle_, sample("imx477.json").c_str()), 0);
    void* pData = nullptr;
    ASSERT_EQ(QvDatabase_query(handle_, "SS", &pData), 0);
    std::memset(pData, 'x', sizeof(QvDatabaseSensor_t)); // texts without an end
    constexpr auto kStandard = QvDatabaseSettingProtocol_Standard;
    constexpr auto kSimulator = QvDatabaseSettingProtocol_Simulator;
    constexpr std::pair<QvDatabaseSettingProtocol_t, const char*> kForms[] = {
        {kStandard, "all.json"}, {kStandard, "all.ini"},   {kStandard, "all.bin"},
        {kStandard, "meta"},     {kSimulator, "all.json"}, {kSimulator, "meta"},
    };
    for (const auto& [form, pName] : kForms) {
        protocol() = form;
        const fs::path file = folder_ / pName;
        const auto save = std::strcmp(pName, "meta") == 0 ? &QvDatabase_metaSave : &QvDatabase_save;
        refuseEach(pName, {.run = [&] { return save(handle_, file.c_str()); },
                           .statuses = {13},
                           .result = [&] { return undated(readFile(file)); },
                           .keepsResult = true});
    }
    const auto pCalibration = std::make_unique<QvDatabaseCalibration_t>();
    const auto calibrationImage = [&] {
        QvCommonBuffer_t buffer{};
        const int status = QvDatabaseProtocolCalibrationBinary_serialize(pCalibration.get(), &buffer);
        QvCommonBuffer_clear(&buffer);
        return status;
    };
    refuseEach("calibration image", {.run = calibrationImage});
    std::string image(564730, 0);
    const auto imageInBuffer = [&] {
        QvCommonBuffer_t buffer{image.data(), 0, image.size(), nullptr, false};
        return QvDatabaseBinary_serialize(handle_, &buffer, nullptr);
    };
    refuseEach("image in a buffer", {.run = imageInBuffer, .statuses = {13}});
    refuseEach("info", {.run = [this] { return QvDatabase_info(handle_); }, .statuses = {13}});
    refuseEach("reset", {.run = [this] { return QvDatabase_reset(handle_); }, .statuses = {13}});
}

} // namespace
