#pragma once

// Results go to standard output, findings and talk to standard error.

#include <cstdio>
#include <string>
#include <string_view>

#include "options.h"

namespace qv::tools {

/// Whether somebody looks on as a stream is written.
bool isTerminal(FILE* pStream);

/// Whether a stream shows colours: a terminal, and nobody said NO_COLOR.
bool isColoured(FILE* pStream);

/// Writes to standard output; a failure is kept for the end.
bool printBytes(std::string_view bytes);

/// Brings all results out. Where that fails the status becomes 1, with one line; without one where the reader of a pipe
/// has gone away.
ExitStatus finishOutput(ExitStatus status);

/// A line on standard error that begins with the program's name.
void complain(const std::string& line);

/// From here on nothing is said but what is refused.
void beQuiet();

/// A complaint about what is done all the same; and a line that tells what was done. None of both when quiet.
void warn(const std::string& line);
void say(const std::string& line);

/// A text in quotes as JSON writes it. Bytes that are no UTF-8 become the sign for that.
std::string jsonText(const std::string& text);

/// A text without signs that a terminal would obey.
std::string plainText(std::string text);

} // namespace qv::tools
