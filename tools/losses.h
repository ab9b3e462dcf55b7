#pragma once

// What a form does not carry.

#include <span>
#include <string>
#include <vector>

#include "files.h"
#include "session.h"

namespace qv::tools {

/// What files of these forms may have set, differs from what an open database begins with, and is not in a file of the
/// form written: a category's name where all of it is lost, else its fields. One item a category, in the order of
/// registration.
std::vector<std::string> lossesOf(const Session& session, Tracing& tracing, std::span<const Form> read, Form written,
                                  bool isSimulator);

} // namespace qv::tools
