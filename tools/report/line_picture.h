#pragma once

// Lines over an axis, as SVG.

#include <cstddef>
#include <string>
#include <vector>

namespace qv::tools::page {

/// One line. Places are in the order of their x.
struct Line {
    std::vector<double> x;
    std::vector<double> y;
    std::size_t side = 0; ///< which file it is of: 0 or 1
    double gain = 0;      ///< what it belongs to; 0 where it belongs to no gain
    std::string name;     ///< is shown where the mouse rests
};

struct LinePicture {
    std::string label; ///< for whoever doesn't see the picture
    bool isOverGain = false;
    bool fadesWithGain = false; ///< one line a gain: paler for greater ones
    std::vector<Line> lines;
};

/// The picture. One over gains has a cursor that the page's script moves, and says with data-low and data-high which
/// powers of two its axis spans.
std::string svgOf(const LinePicture& picture);

} // namespace qv::tools::page
