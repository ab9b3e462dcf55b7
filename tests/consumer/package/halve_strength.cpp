// Loads a document, halves a value and saves it; then tries to load what isn't there.
//
//     halve_strength IN OUT

#include <cstdint>
#include <iostream>

#include <qv_common_c/common_tracer.h>
#include <qv_database_c/qv_database.hpp>

int main(int argc, char* argv[])
{
    QvCommonTracerOpenParam_t tracer{};
    tracer.level = QvCommonTracerLevel_Sum; // errors come as exceptions
    if (argc != 3 || QvCommonTracer_open(&tracer, &hTracer) != 0) {
        return 2;
    }
    qv::Database database;
    database.load(argv[1]);
    auto& noise = database.get<QvDatabase2DNoiseReduction_5_2_t>();
    noise.strength = static_cast<std::uint8_t>(noise.strength / 2);
    std::cout << "strength " << int{noise.strength} << '\n';
    database.save(argv[2]);
    try {
        database.load("/nowhere/set.json");
    } catch (const qv::Error& error) {
        std::cout << "status " << error.status() << '\n';
    }
    return 0;
}
