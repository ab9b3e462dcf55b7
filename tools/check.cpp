#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "check_document.h"
#include "check_image.h"
#include "commands.h"
#include "output.h"
#include "session.h"

namespace qv::tools {
namespace {

/// The library's own version is what the record of a fresh database holds.
void checkVersion(const DocumentFields& fields, const Options& options, DocumentCheck& check)
{
    const std::vector<NodeIndex> texts = check.versionTexts();
    Tracing tracing(options);
    Session session(tracing);
    if (texts.empty() || !session.open()) {
        return;
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
}

/// False where the file could not be checked, which has been told.
bool checkFile(const std::string& name, const Options& options, const PathTree& tree, Findings& findings)
{
    Input input;
    if (!readInput(name, options, input)) {
        return false;
    }
    if (input.form == Form::CalibrationText) {
        complain(input.shown() + ": a plain calibration text can't be checked");
        return false;
    }
    if (input.form == Form::Image) {
        checkImage(input.bytes.view(), tree, findings);
        findings.print(input.shown(), nullptr, options.asJson);
        return true;
    }
    Document document;
    if (!document.read(input.bytes.view(), input.form)) {
        return false;
    }
    const DocumentFields fields(document);
    DocumentCheck check(fields, tree, findings);
    check.run();
    checkVersion(fields, options, check);
    if (options.showsMissing) {
        check.findMissing();
    }
    findings.print(input.shown(), &document, options.asJson);
    return true;
}

} // namespace

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
        if (!checkFile(name, options, tree, findings)) {
            status = kTrouble;
        } else if (status == kDone && (findings.count(Severity::Error) > 0 ||
                                       (options.isStrict && findings.count(Severity::Warning) > 0))) {
            status = kFound;
        }
    }
    return status;
}

} // namespace qv::tools
