// Prints the first schedule of the automatic 2D noise reduction of a tuning document: how strength follows the gain.
//
//     example_schedule imx477.json

#include <cstdio>
#include <exception>

#include <qv_database_c/qv_database.hpp>

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    try {
        qv::Database database;
        database.load(argv[1]);
        const auto& noise = database.get<QvDatabaseAuto2DNoiseReduction_5_2_t>();
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
