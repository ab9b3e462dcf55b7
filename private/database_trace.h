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

/// The same at Warning, for a step that fails and doesn't stop the walk.
void traceWarning(const Place& place, int status);

/// A member could not be read or written and the walk goes on: writes "(key) text(status)" at Debug.
void traceMember(const Place& place, const char* pKey, int status);

} // namespace qv::database

#define QV_HERE (::qv::database::Place{__FILE__, __LINE__, __func__})

/// Traces a failing status at the place of the call and yields it.
#define QV_FAIL(status) (::qv::database::traceFailure(QV_HERE, (status)))

/// Makes the call; a failing status is traced at this line and returned.
#define QV_TRY(call) QV_TRY_AS(__func__, call)

/// The same in a helper, for the operation whose step this is.
#define QV_TRY_AS(function, call)                                                                                      \
    do {                                                                                                               \
        const int status_ = (call);                                                                                    \
        if (status_ != 0) {                                                                                            \
            return ::qv::database::traceFailure({__FILE__, __LINE__, (function)}, status_);                            \
        }                                                                                                              \
    } while (false)
