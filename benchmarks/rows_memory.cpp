// Peak memory of a load and a save, each the first one of a new database, so that what a reader keeps counts too.
#include "rows.h"

namespace qv::benchmark {

void memoryRows(Report& report, const Document& document)
{
    Database loaded;
    const std::size_t load = peakOf([&] { loaded.load(document.json); });
    report.add("peak memory of a load", "size of the text", 5, document.name, load, document.text.size());

    Database saved(document.json);
    const std::string output = document.output + ".json";
    const std::size_t save = peakOf([&] { saved.save(output); });
    report.add("peak memory of a save", "size of the text", 5, document.name, save, readFile(output).size());
}

} // namespace qv::benchmark
