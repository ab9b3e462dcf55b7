// Prints the first schedule of the automatic 2D noise reduction of a tuning document: how strength follows the gain.
//
//     example_schedule imx477.json

#include <cstdio>
#include <stdexcept>
#include <string>

#include <qv_common_c/common_error.h>
#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>
#include <qv_database_c/qv_database.h>

namespace {

void check(const std::string& what, int status)
{
    if (status != 0) {
        throw std::runtime_error(what + ": " + QvCommonError_text(status));
    }
}

/// An open database that closes itself; records are reached by their type.
class Database {
public:
    Database()
    {
        QvDatabaseOpenParam_t param{};
        check("open", QvDatabase_open(&param, &handle_));
    }
    ~Database() { QvDatabase_close(&handle_); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void load(const std::string& name) { check(name, QvDatabase_load(handle_, name.c_str())); }

    template <class Record>
    const Record& record(const char* pKey) const
    {
        void* pData = nullptr;
        check(pKey, QvDatabase_query(handle_, pKey, &pData));
        return *static_cast<const Record*>(pData);
    }

private:
    QvDatabaseHandle_t handle_ = 0;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    try {
        Database database;
        database.load(argv[1]);
        const auto& noise = database.record<QvDatabaseAuto2DNoiseReduction_5_2_t>("A2DNR_5_2");
        std::printf("%zu schedules\n", noise.tableNumber);
        if (noise.tableNumber > 0) {
            for (int i = 0; i < 20; ++i) {
                std::printf("gain %8.3f  strength %3d\n", static_cast<double>(noise.tables[0].gain[i]),
                            noise.tables[0].strength[i]);
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
