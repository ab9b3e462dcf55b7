#include <cstddef>
#include <cstdio>

#include <qv_database_c/qv_database.h>

#include "commands.h"
#include "session.h"

namespace qv::tools {

ExitStatus convert(const Options& options)
{
    Session session(options);
    if (!session.open() || !session.setProtocol(options.isSimulator)) {
        return kRefused;
    }
    const std::string& out = options.files.back();
    for (std::size_t i = 0; i + 1 < options.files.size(); ++i) {
        if (!session.load(options.files[i])) {
            return kRefused;
        }
        std::printf("loaded %s\n", options.files[i].c_str());
    }
    if (!session.check(out, QvDatabase_save(session.handle(), out.c_str()))) {
        return kRefused;
    }
    std::printf("saved %s\n", out.c_str());
    return kDone;
}

} // namespace qv::tools
