#pragma once

// Files in their forms, and the two streams that go by the name of "-".

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include <qv_common_c/common_buffer.h>

#include "options.h"

namespace qv::tools {

enum class Form { Json, Ini, Image, CalibrationText };

/// Whether a name stands for standard input or output: "-", and the devices that are those.
bool isStream(const std::string& name);

/// Name of a form, as --from and --to take it.
const char* formName(Form form);

/// What a name stands for in a message.
std::string shownName(const std::string& name, bool isInput);

/// The form of a file: what the option says; for a stream JSON; else by the end of the name as the library does, with a
/// warning where the end is none of the known ones. An image for those.
Form formOf(const std::string& name, const std::string& option);

/// A buffer of the library that owns what it holds.
class Bytes {
public:
    Bytes() = default;
    ~Bytes() { QvCommonBuffer_clear(&buffer_); }
    Bytes(const Bytes&) = delete;
    Bytes& operator=(const Bytes&) = delete;
    Bytes(Bytes&& other) noexcept : buffer_(other.buffer_) { other.buffer_ = {}; }

    QvCommonBuffer_t* get() { return &buffer_; }
    std::string_view view() const { return {buffer_.pBegin == nullptr ? "" : buffer_.pBegin, buffer_.size}; }

private:
    QvCommonBuffer_t buffer_{};
};

/// One file to read.
struct Input {
    std::string name; ///< as it was typed
    Form form = Form::Json;
    Bytes bytes; ///< a zero byte follows them

    /// What it is called in messages.
    std::string shown() const { return shownName(name, true); }
};

/// Reads a file or standard input whole. A failure is told in one line.
bool readInput(const std::string& name, const Options& options, Input& input);

/// Writes a file, which is replaced at once or not at all, or standard output. A failure is told in one line, but for a
/// reader that went away.
bool writeOutput(const std::string& name, std::string_view bytes);

/// Whether two names lead to the same file.
bool isSameFile(const std::string& left, const std::string& right);

/// Whether a file may be written: one that was also read only with --force. A refusal is told in one line.
bool mayReplace(const std::string& name, std::span<const std::string> read, const Options& options);

} // namespace qv::tools
