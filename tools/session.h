#pragma once

#include <string>

#include <qv_database_c/qv_database.h>

#include "options.h"
#include "traces.h"

namespace qv::tools {

/// The tracer and a database, both released at the end.
class Session {
public:
    explicit Session(const Options& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    QvDatabaseHandle_t handle() const { return handle_; }

    bool open();
    /// Tells a failure in one line: what it was about, the status, and the place in the file where the library named
    /// it.
    bool check(const std::string& what, int status);
    /// From here on the library's lines at Info are no results.
    void hideInfo() { traces_.showsInfo = false; }
    bool load(const std::string& name);
    bool setProtocol(bool isSimulator);

private:
    Traces traces_;
    QvDatabaseHandle_t handle_ = 0;
};

} // namespace qv::tools
