#pragma once

namespace qv::database {

/// Where a trace line comes from: source path relative to the project, line, name of the function.
struct Place {
    const char* file;
    int line;
    const char* function;
};

/// An operation stopped: writes "text(status)" at Error and gives the status back, so that a return can be one line.
int traceFailure(const Place& place, int status);

/// A member could not be read or written and the walk goes on: writes "(key) text(status)" at Debug.
void traceMember(const Place& place, const char* pKey, int status);

} // namespace qv::database

#define QV_HERE (::qv::database::Place{__FILE__, __LINE__, __func__})

/// Traces a failing status at the place of the call and yields it.
#define QV_FAIL(status) (::qv::database::traceFailure(QV_HERE, (status)))
