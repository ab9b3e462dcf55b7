#include <cstddef>
#include <cstdio>
#include <cstring>

#include <qv_database_c/qv_database.h>

#include "commands.h"
#include "session.h"

namespace qv::tools {

namespace {

/// One line a category: whether the files changed its record from the defaults that an open database begins with.
ExitStatus showCategories(Session& session)
{
    session.hideInfo(); // the second database would print its banner as well
    QvDatabaseHandle_t fresh = 0;
    QvDatabaseOpenParam_t param{};
    if (!session.check("open", QvDatabase_open(&param, &fresh))) {
        return kRefused;
    }
    std::printf("\n%-11s %8s  %-8s  %s\n", "category", "bytes", "state", "record");
    ExitStatus result = kDone;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        void* pLoaded = nullptr;
        void* pDefault = nullptr;
        if (!session.check(pCategory->pKey, QvDatabase_query(session.handle(), pCategory->pKey, &pLoaded)) ||
            !session.check(pCategory->pKey, QvDatabase_query(fresh, pCategory->pKey, &pDefault))) {
            result = kRefused;
            break;
        }
        const bool isRunTime = std::strcmp(pCategory->pKey, "RAM") == 0;
        const bool isDefault = std::memcmp(pLoaded, pDefault, pCategory->size) == 0;
        std::printf("%-11s %8zu  %-8s  %s\n", pCategory->pKey, pCategory->size,
                    isRunTime ? "run time" : (isDefault ? "default" : "changed"), pCategory->pRecord);
    }
    QvDatabase_close(&fresh);
    return result;
}

} // namespace

ExitStatus info(const Options& options)
{
    Session session(options);
    if (!session.open()) {
        return kRefused;
    }
    for (const std::string& name : options.files) {
        if (!session.load(name)) {
            return kRefused;
        }
    }
    if (!session.check("info", QvDatabase_info(session.handle()))) {
        return kRefused;
    }
    return showCategories(session);
}

} // namespace qv::tools
