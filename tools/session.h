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
    /// The same with what a file holds.
    bool openWith(const std::string& name, const Options& options, Input& input);
    /// Tells a failure in one line: what it was about, the status, and why, in other words than the library's where
    /// there are some.
    bool check(const std::string& what, int status, const std::string& reason = "");
    /// Drops what the library traced of a failure that is told in other words.
    void forgetTraces() { traces_.firstError.clear(); }
    /// Reads what a file holds into the records. A failure is told in one line, and so is a version that isn't ours.
    bool load(Input& input);
    /// Writes the records as a file of that form, or to standard output.
    bool save(const std::string& name, Form form);
    /// The same for frame metadata, in either of its forms and in the one of the protocol.
    bool loadMeta(Input& input);
    bool saveMeta(const std::string& name);
    bool setProtocol(const std::string& name);

    /// The record of a category; null for a key that there is none of.
    void* record(const char* pKey) const;

private:
    /// What a save writes where it isn't told a file name that it takes.
    template <typename Save>
    bool saveBeside(const std::string& name, Form form, Save save);
    std::string version() const;

    Traces& traces_;
    QvDatabaseHandle_t handle_ = 0;
    std::string ownVersion_;
};

} // namespace qv::tools
