#pragma once

// The plain text of a calibration tool: keys with lists in brackets.

#include <string>
#include <vector>

#include "files.h"
#include "session.h"

namespace qv::tools {

/// Lays colour and shading over their records. Refused in one line where the text holds neither; a warning tells of one
/// that it doesn't hold whole. The categories that were set go behind `keys`.
bool loadCalibrationText(Session& session, Input& input, std::vector<std::string>& keys);

/// Lays the list behind each KEY over its PATH, for settings PATH=KEY. All numbers are tested; a refusal is told in one
/// line. The paths that were set go behind `paths`.
bool loadCalibrationLists(Session& session, Input& input, const std::vector<std::string>& settings,
                          std::vector<std::string>& paths);

} // namespace qv::tools
