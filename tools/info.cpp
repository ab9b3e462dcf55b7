#include <cstddef>
#include <cstdio>
#include <cstring>

#include <qv_database_c/qv_database.h>

#include "commands.h"
#include "session.h"

namespace qv::tools {

namespace {

/// One line a category: whether the files changed its record from the defaults that an open database begins with.
ExitStatus showCategories(Session& session, Tracing& tracing)
{
    tracing.traces().showsInfo = false; // the second database would print its banner as well
    Session fresh(tracing);
    if (!fresh.open()) {
        return kRefused;
    }
    std::printf("\n%-11s %8s  %-8s  %s\n", "category", "bytes", "state", "record");
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const bool isRunTime = std::strcmp(pCategory->pKey, "RAM") == 0;
        const bool isDefault =
            std::memcmp(session.record(pCategory->pKey), fresh.record(pCategory->pKey), pCategory->size) == 0;
        std::printf("%-11s %8zu  %-8s  %s\n", pCategory->pKey, pCategory->size,
                    isRunTime ? "run time" : (isDefault ? "default" : "changed"), pCategory->pRecord);
    }
    return kDone;
}

} // namespace

ExitStatus info(const Options& options)
{
    Tracing tracing(options);
    Session session(tracing);
    if (!session.open()) {
        return kRefused;
    }
    for (const std::string& name : options.words) {
        Input input;
        if (!readInput(name, options, input) || !session.load(input)) {
            return kRefused;
        }
    }
    tracing.traces().showsInfo = true;
    if (!session.check("info", QvDatabase_info(session.handle()))) {
        return kRefused;
    }
    return showCategories(session, tracing);
}

} // namespace qv::tools
