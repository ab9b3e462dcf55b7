#include <qv_database_c/qv_database.hpp>

#include <type_traits>

#include "test_support.h"

using namespace qv::test;

namespace {

static_assert(!std::is_copy_constructible_v<qv::Database> && !std::is_copy_assignable_v<qv::Database>);
static_assert(std::is_nothrow_move_constructible_v<qv::Database> && std::is_nothrow_move_assignable_v<qv::Database>);

/// What an operation fails with; 0 and an empty text where it doesn't.
template <class Operation>
std::pair<int, std::string> failureOf(Operation operation)
{
    try {
        operation();
    } catch (const qv::Error& error) {
        return {error.status(), error.what()};
    }
    return {};
}

TEST(DatabaseClass, AFileComesBackAndMetadataToo)
{
    const Traces traces;
    const TemporaryFolder folder;
    const std::string file = (folder / "all.json").string();
    const std::string meta = (folder / "frame.json").string();
    qv::Database database;
    database.get<QvDatabase2DNoiseReduction_5_2_t>().strength = 48;
    database.get<QvDatabaseMeta_t>().chipId = 7;
    database.save(file);
    database.metaSave(meta);
    database.get<QvDatabaseMeta_t>().chipId = 8;
    database.reset();
    EXPECT_EQ(database.get<QvDatabase2DNoiseReduction_5_2_t>().strength, 0);

    qv::Database other;
    other.load(file);
    other.metaLoad(meta);
    other.info();
    EXPECT_EQ(other.get<QvDatabase2DNoiseReduction_5_2_t>().strength, 48);
    EXPECT_EQ(other.get<QvDatabaseMeta_t>().chipId, 7U);
}

TEST(DatabaseClass, EveryFailureIsAnErrorWithItsStatus)
{
    const Traces traces;
    qv::Database database;
    EXPECT_EQ(failureOf([&] { database.load("/nowhere/all.json"); }),
              (std::pair{3, std::string{"load /nowhere/all.json: "} + QvCommonError_text(3) + " (3)"}));
    EXPECT_EQ(failureOf([&] { database.save("/nowhere/all.json"); }).first, 3);
    EXPECT_EQ(failureOf([&] { database.metaLoad("/nowhere/meta.json"); }).first, 3);
    EXPECT_EQ(failureOf([&] { database.metaSave("/nowhere/meta.json"); }).first, 3);
    database.close();
    EXPECT_EQ(failureOf([&] { database.get<QvDatabaseMisc_t>(); }).first, 13);
    EXPECT_EQ(failureOf([&] { database.reset(); }).first, 13);
    EXPECT_EQ(failureOf([&] { database.info(); }).first, 13);
    EXPECT_EQ(failureOf([&] { database.close(); }).first, 13);
}

TEST(DatabaseClass, AMoveTakesTheDatabaseAlongAndClosesNothingTwice)
{
    const Traces traces;
    qv::Database first;
    void* pMisc = nullptr;
    ASSERT_EQ(QvDatabase_query(first.handle(), "MISC", &pMisc), 0);
    EXPECT_EQ(&first.get<QvDatabaseMisc_t>(), pMisc);
    const qv::Database second = std::move(first);
    EXPECT_EQ(first.handle(), 0U);
    EXPECT_EQ(&second.get<QvDatabaseMisc_t>(), pMisc);
    static_assert(std::is_same_v<decltype(second.get<QvDatabaseMisc_t>()), const QvDatabaseMisc_t&>);
    qv::Database third;
    qv::Database fourth;
    const QvDatabaseHandle_t handle = fourth.handle();
    third = std::move(fourth);
    EXPECT_EQ(fourth.handle(), 0U);
    EXPECT_EQ(third.handle(), handle);
}

} // namespace
