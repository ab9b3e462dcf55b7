#pragma once

// The tracer and a database.

#include <string>

#include <qv_database_c/qv_database.h>

#include "files.h"
#include "options.h"
#include "traces.h"

namespace qv::tools {

/// The tracer, as long as it lives; it is the process's own.
class Tracing {
public:
    explicit Tracing(const Options& options);
    ~Tracing();
    Tracing(const Tracing&) = delete;
    Tracing& operator=(const Tracing&) = delete;

    Traces& traces() { return traces_; }

private:
    Traces traces_;
};

/// A database, closed at the end.
class Session {
public:
    explicit Session(Tracing& tracing) : traces_(tracing.traces()) {}
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    QvDatabaseHandle_t handle() const { return handle_; }

    bool open();
    /// Tells a failure in one line: what it was about, the status, and the place in the file where the library named
    /// it.
    bool check(const std::string& what, int status);
    /// Reads what a file holds into the records. A failure is told in one line.
    bool load(Input& input);
    /// Writes the records as a file of that form, or to standard output.
    bool save(const std::string& name, Form form);
    bool setProtocol(const std::string& name);

    /// The record of a category; null for a key that there is none of.
    void* record(const char* pKey) const;

private:
    Traces& traces_;
    QvDatabaseHandle_t handle_ = 0;
};

} // namespace qv::tools
