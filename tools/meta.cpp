#include <cstdio>

#include <qv_database_c/qv_database.h>

#include "commands.h"
#include "session.h"

namespace qv::tools {

ExitStatus meta(const Options& options)
{
    Session session(options);
    if (!session.open() || !session.setProtocol(options.isSimulator)) {
        return kRefused;
    }
    const std::string& in = options.files[0];
    const std::string& out = options.files[1];
    if (!session.check(in, QvDatabase_metaLoad(session.handle(), in.c_str())) ||
        !session.check(out, QvDatabase_metaSave(session.handle(), out.c_str()))) {
        return kRefused;
    }
    std::printf("saved %s\n", out.c_str());
    return kDone;
}

} // namespace qv::tools
