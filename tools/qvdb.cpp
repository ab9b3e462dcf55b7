// qvdb: converts and shows database files. Thin, on the public interface alone.

#include <cstdio>
#include <cstring>

#include "commands.h"
#include "options.h"

using namespace qv::tools;

namespace {

constexpr const char* kUsage =
    "usage: qvdb convert IN... OUT [--protocol simulator|standard] [-v]\n"
    "       qvdb info [FILE...] [-v]\n"
    "       qvdb meta IN OUT [--protocol simulator|standard] [-v]\n"
    "       qvdb schema [tuning|simulator|calibration|meta]\n"
    "\n"
    "convert  loads the files in order and saves them as one: .json a text document, .ini an initialization\n"
    "         file, any other name a binary image\n"
    "info     loads the files and shows the calibration's summary and what each category came to\n"
    "meta     converts frame metadata between its two JSON forms\n"
    "schema   prints a JSON Schema, by which editors check a document: of that form, or of any text document\n"
    "\n"
    "--protocol  the JSON form to save: standard (a tuning document, the default) or simulator\n"
    "-v          shows what the library does, down to each member that a document lacks\n"
    "\n"
    "Exit status: 0 done, 1 the library refused, 2 usage.\n";

ExitStatus run(const Options& options)
{
    if (options.command == "convert" && options.files.size() >= 2) {
        return convert(options);
    }
    if (options.command == "meta" && options.files.size() == 2) {
        return meta(options);
    }
    if (options.command == "info") {
        return info(options);
    }
    if (options.command == "schema" && options.files.size() <= 1) {
        return schema(options);
    }
    return kUsageError;
}

} // namespace

int main(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::fputs(kUsage, stdout);
            return kDone;
        }
    }
    Options options;
    const ExitStatus status = readOptions(argc, argv, options) ? run(options) : kUsageError;
    if (status == kUsageError) {
        std::fputs(kUsage, stderr);
    }
    return status;
}
