#include <cstdio>

#include <qv_database_c/qv_database.h>

#include "commands.h"
#include "session.h"

namespace qv::tools {

ExitStatus meta(const Options& options)
{
    Tracing tracing(options);
    Session session(tracing);
    if (!session.open() || !session.setProtocol(options.protocol)) {
        return kRefused;
    }
    const std::string& in = options.words[0];
    const std::string& out = options.words[1];
    if (!session.check(in, QvDatabase_metaLoad(session.handle(), in.c_str())) ||
        !session.check(out, QvDatabase_metaSave(session.handle(), out.c_str()))) {
        return kRefused;
    }
    std::fprintf(stderr, "saved %s\n", out.c_str());
    return kDone;
}

} // namespace qv::tools
