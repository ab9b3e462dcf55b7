#pragma once

// Values on a grid as a picture of coloured dots.

#include <cstddef>
#include <string>
#include <vector>

namespace qv::tools::page {

struct HeatMap {
    std::size_t rows = 0;
    std::size_t columns = 0;
    std::vector<double> values; ///< row by row
    double low = 0;             ///< value of the darkest colour
    double high = 1;
    bool isSigned = false; ///< colours on either side of zero, for differences
};

/// The picture as a data URL of a PNG; empty without memory for it.
std::string pngOf(const HeatMap& map);

/// A bar of the colours with both ends named.
std::string colourBar(double low, double high, bool isSigned);

/// Background of a number's cell among numbers up to `most`, blue below zero and orange above, as a CSS colour with some
/// of it shining through.
std::string cellColour(double value, double most);

} // namespace qv::tools::page
