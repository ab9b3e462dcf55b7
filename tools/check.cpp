#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "check_document.h"
#include "check_file.h"
#include "check_image.h"
#include "commands.h"
#include "output.h"
#include "session.h"

namespace qv::tools {
namespace {

/// The library's own version is what the record of a fresh database holds. False where there can be none.
bool checkVersion(const DocumentFields& fields, const Options& options, DocumentCheck& check)
{
    const std::vector<NodeIndex> texts = check.versionTexts();
    if (texts.empty()) {
        return true;
    }
    Tracing tracing(options);
    Session session(tracing);
    if (!session.open()) {
        return false;
    }
    for (const NodeIndex node : texts) {
        const Bound& bound = fields[node];
        const char* pOurs = static_cast<const char*>(session.record(fields.key(bound))) + bound.offset;
        const std::string ours(pOurs, strnlen(pOurs, bound.pField->field.width));
        if (fields.document().string(node) != ours) {
            check.add(Fault::Version, node,
                      "was saved by version " + std::string(fields.document().string(node)) + "; this is " + ours);
        }
    }
    return true;
}

} // namespace

bool findFaults(const Input& input, const Options& options, const PathTree& tree, Document& document,
                Findings& findings)
{
    if (input.form == Form::CalibrationText) {
        complain(input.shown() + ": a plain calibration text can't be checked");
        return false;
    }
    if (input.form == Form::Image) {
        checkImage(input.bytes.view(), tree, findings);
        return true;
    }
    if (!document.read(input.bytes.view(), input.form)) {
        return false;
    }
    const DocumentFields fields(document);
    DocumentCheck check(fields, tree, findings);
    check.run();
    if (!checkVersion(fields, options, check)) {
        return false;
    }
    if (options.showsMissing) {
        check.findMissing();
    }
    return true;
}

ExitStatus check(const Options& options)
{
    std::vector<bool> isDisabled;
    ExitStatus status = kDone;
    if (!readDisabled(options, isDisabled, status)) {
        return status;
    }
    const PathTree tree(options.names == "simulator");
    for (const std::string& name : options.words) {
        Findings findings(isDisabled);
        Document document;
        Input input;
        if (!readInput(name, options, input) || !findFaults(input, options, tree, document, findings)) {
            status = kTrouble;
            continue;
        }
        findings.print(input.shown(), input.form == Form::Image ? nullptr : &document, options.asJson);
        if (status == kDone &&
            (findings.count(Severity::Error) > 0 || (options.isStrict && findings.count(Severity::Warning) > 0))) {
            status = kFound;
        }
    }
    return status;
}

} // namespace qv::tools
