#pragma once

// Results go to standard output, findings and talk to standard error.

#include <cstdio>
#include <string>

#include "options.h"

namespace qv::tools {

/// Whether somebody looks on as a stream is written.
bool isTerminal(FILE* pStream);

/// Whether a stream shows colours: a terminal, and nobody said NO_COLOR.
bool isColoured(FILE* pStream);

/// Brings all results out. Where that fails the status becomes 1, with one line; without one where the reader of a pipe
/// has gone away.
ExitStatus finishOutput(ExitStatus status);

/// A line on standard error that begins with the program's name.
void complain(const std::string& line);

/// A text in quotes as JSON writes it.
std::string jsonText(const std::string& text);

} // namespace qv::tools
