#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <qv_common_c/common_tracer.h>

namespace qv::test {

/// A line that a library traced: level and text with prefix, without the line end.
struct TraceLine {
    QvCommonTracerLevel_t level;
    std::string text;
};

/// Catches all traces from its making to its end.
class Traces {
public:
    explicit Traces(QvCommonTracerLevel_t level = QvCommonTracerLevel_Debug)
    {
        QvCommonTracerOpenParam_t param{};
        param.level = level;
        param.pUserData = &lines_;
        param.pWrite = [](void* pUserData, QvCommonTracerLevel_t lineLevel, const char* pText, std::size_t length) {
            static_cast<std::vector<TraceLine>*>(pUserData)->push_back({lineLevel, std::string(pText, length)});
            return 0;
        };
        EXPECT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
    }
    ~Traces() { EXPECT_EQ(QvCommonTracer_close(&hTracer), 0); }
    Traces(const Traces&) = delete;
    Traces& operator=(const Traces&) = delete;

    const std::vector<TraceLine>& lines() const { return lines_; }
    /// How many lines of a level hold a text.
    std::size_t count(QvCommonTracerLevel_t level, const std::string& text = "") const
    {
        return static_cast<std::size_t>(std::ranges::count_if(lines_, [&](const TraceLine& line) {
            return line.level == level && line.text.find(text) != std::string::npos;
        }));
    }
    void clear() { lines_.clear(); }
    /// The lines so far, each with its end; none is left.
    std::string take()
    {
        std::string text;
        for (const TraceLine& line : lines_) {
            text += line.text + "\n";
        }
        lines_.clear();
        return text;
    }

private:
    std::vector<TraceLine> lines_;
};

} // namespace qv::test
