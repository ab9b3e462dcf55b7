/// @file
/// The database for C++17 and later, as a thin cover of qv_database.h: a handle that closes itself, records that are
/// asked for by their type, and failures that can't be overlooked.
///
///     qv::Database database;
///     database.load("imx477.json");
///     database.get<QvDatabase2DNoiseReduction_5_2_t>().strength = 48;
///     database.save("changed.json");
///
/// The key is known from the type, so a record can't be taken for another one. All that an operation answers with
/// another status than 0 becomes a qv::Error. Programs link with qv_database_c and, for the texts of errors, with
/// qv_common_c.
#ifndef QV_DATABASE_C_QV_DATABASE_HPP
#define QV_DATABASE_C_QV_DATABASE_HPP

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>

#include <qv_common_c/common_error.h>
#include <qv_database_c/database_keys.hpp>
#include <qv_database_c/qv_database.h>

namespace qv {

/// An operation that failed.
class Error : public std::runtime_error {
public:
    /// An operation, as words for a person, and its status.
    Error(const std::string& operation, int status)
        : std::runtime_error(operation + ": " + QvCommonError_text(status) + " (" + std::to_string(status) + ")"),
          status_(status)
    {
    }

    /// The number of QvCommonError_t that the operation answered with.
    int status() const noexcept { return status_; }

private:
    int status_;
};

/// An open database. With it go its records, and the array of registers that a load leaves in category DUMP. It can be
/// moved and not copied; one that was moved from or closed answers everything with status 13.
class Database {
public:
    /// Opens a database with all records at their defaults. The library prints two lines through hTracer at Info,
    /// which go to standard error unless the program has opened hTracer otherwise.
    explicit Database(QvDatabaseOpenParam_t param = {})
    {
        const int status = QvDatabase_open(&param, &handle_);
        if (status != 0) {
            static_cast<void>(QvDatabase_close(&handle_));
            throw Error("open a database", status);
        }
    }
    /// Closes the database. A failure can't be told; see close().
    ~Database() { release(); }

    /// Takes the database over; the other one is left closed.
    Database(Database&& other) noexcept : handle_(std::exchange(other.handle_, 0)) {}
    /// Closes its own database and takes the other one over, which is left closed.
    Database& operator=(Database&& other) noexcept
    {
        if (this != &other) {
            release();
            handle_ = std::exchange(other.handle_, 0);
        }
        return *this;
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// The record of a category, by its type. The reference stays good until the database is closed, also through
    /// loads, resets and moves.
    template <class Record>
    Record& get()
    {
        return *find<Record>();
    }
    /// The same of a constant database, to be read alone.
    template <class Record>
    const Record& get() const
    {
        return *find<Record>();
    }

    /// See QvDatabase_load: the end of the name decides the form.
    void load(const std::string& filename) { check("load " + filename, QvDatabase_load(handle_, filename.c_str())); }
    /// See QvDatabase_save: the file is replaced at once or not at all.
    void save(const std::string& filename) { check("save " + filename, QvDatabase_save(handle_, filename.c_str())); }
    /// See QvDatabase_metaLoad.
    void metaLoad(const std::string& filename)
    {
        check("load metadata " + filename, QvDatabase_metaLoad(handle_, filename.c_str()));
    }
    /// See QvDatabase_metaSave.
    void metaSave(const std::string& filename)
    {
        check("save metadata " + filename, QvDatabase_metaSave(handle_, filename.c_str()));
    }
    /// See QvDatabase_reset, which leaves 21 categories as they are.
    void reset() { check("reset", QvDatabase_reset(handle_)); }
    /// See QvDatabase_info.
    void info() const { check("info", QvDatabase_info(handle_)); }
    /// Closes the database now, for who wants to hear of a failure; the destructor keeps silent about it.
    void close()
    {
        freeRegisters();
        check("close the database", QvDatabase_close(&handle_));
    }

    /// For calls of the C interface; stays this object's.
    QvDatabaseHandle_t handle() const noexcept { return handle_; }

private:
    static void check(const std::string& operation, int status)
    {
        if (status != 0) {
            throw Error(operation, status);
        }
    }

    void release() noexcept
    {
        if (handle_ != 0) {
            freeRegisters();
            static_cast<void>(QvDatabase_close(&handle_));
            handle_ = 0;
        }
    }

    /// The registers of category DUMP, which a load leaves to the program.
    void freeRegisters() noexcept
    {
        void* pRecord = nullptr;
        if (handle_ != 0 && QvDatabase_query(handle_, keyOf<QvDatabaseDump_t>, &pRecord) == 0 && pRecord != nullptr) {
            auto* pDump = static_cast<QvDatabaseDump_t*>(pRecord);
            std::free(pDump->pRegisters);
            pDump->pRegisters = nullptr;
        }
    }

    template <class Record>
    Record* find() const
    {
        static_assert(keyOf<Record> != nullptr, "no category of the database holds a record of this type");
        void* pRecord = nullptr;
        check(keyOf<Record>, QvDatabase_query(handle_, keyOf<Record>, &pRecord));
        return static_cast<Record*>(pRecord);
    }

    QvDatabaseHandle_t handle_ = 0;
};

} // namespace qv

#endif
