#include "heat_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include <png.h>

#include "html.h"

namespace qv::tools::page {
namespace {

using Colour = std::array<std::uint8_t, 3>;

/// Dark blue over green to yellow, where equal steps look equal, also to people who see no red or green: a polynomial of
/// the sixth degree for each channel.
Colour sequential(double part)
{
    constexpr double kTerms[7][3] = {{0.27773, 0.00541, 0.33410},   {0.10509, 1.40461, 1.38459},
                                     {-0.33086, 0.21485, 0.09510},  {-4.63423, -5.79910, -19.33244},
                                     {6.22827, 14.17993, 56.69055}, {4.77638, -13.74515, -65.35303},
                                     {-5.43546, 4.64585, 26.31244}};
    Colour colour;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        double value = 0;
        for (std::size_t i = 7; i-- > 0;) {
            value = value * part + kTerms[i][channel];
        }
        colour[channel] = static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
    }
    return colour;
}

/// Blue over white to orange.
Colour diverging(double part)
{
    constexpr double kEnds[2][3] = {{0, 92, 175}, {200, 82, 0}};
    const double away = std::abs(part - 0.5) * 2;
    Colour colour;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const double end = kEnds[part < 0.5 ? 0 : 1][channel];
        colour[channel] = static_cast<std::uint8_t>(std::lround(250 + (end - 250) * away));
    }
    return colour;
}

Colour colourOf(double part, bool isSigned)
{
    return isSigned ? diverging(part) : sequential(part);
}

std::string base64(const std::vector<std::uint8_t>& bytes)
{
    constexpr const char* kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t left = std::min<std::size_t>(bytes.size() - i, 3);
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            group = group << 8 | (k < left ? bytes[i + k] : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += k <= left ? kLetters[group >> (18 - 6 * k) & 63] : '=';
        }
    }
    return text;
}

} // namespace

std::string pngOf(const HeatMap& map)
{
    std::vector<std::uint8_t> pixels(map.rows * map.columns);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const double part = map.high > map.low ? (map.values[i] - map.low) / (map.high - map.low) : 0.5;
        pixels[i] = static_cast<std::uint8_t>(std::lround(std::isfinite(part) ? std::clamp(part, 0.0, 1.0) * 255 : 0));
    }
    std::array<std::uint8_t, 256 * 3> palette{};
    for (std::size_t i = 0; i < 256; ++i) {
        const Colour colour = colourOf(static_cast<double>(i) / 255, map.isSigned);
        std::copy(colour.begin(), colour.end(), palette.begin() + static_cast<std::ptrdiff_t>(3 * i));
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(map.columns);
    image.height = static_cast<png_uint_32>(map.rows);
    image.format = PNG_FORMAT_RGB_COLORMAP;
    image.colormap_entries = 256;
    std::vector<std::uint8_t> bytes(map.rows * map.columns + 4096);
    png_alloc_size_t size = bytes.size();
    if (png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, palette.data()) == 0) {
        return "";
    }
    bytes.resize(size);
    return "data:image/png;base64," + base64(bytes);
}

std::string colourBar(double low, double high, bool isSigned)
{
    std::string stops;
    for (std::size_t i = 0; i <= 8; ++i) {
        const Colour colour = colourOf(static_cast<double>(i) / 8, isSigned);
        char text[16];
        std::snprintf(text, sizeof text, ",#%02x%02x%02x", colour[0], colour[1], colour[2]);
        stops += text;
    }
    return "<div class=\"bar\"><span>" + shortNumber(low) + "</span><i style=\"background:linear-gradient(90deg" +
           stops + ")\"></i><span>" + shortNumber(high) + "</span></div>";
}

std::string cellColour(double value, double most)
{
    const double part = most > 0 && std::isfinite(value) ? std::min(std::abs(value) / most, 1.0) : 0;
    char text[48];
    std::snprintf(text, sizeof text, "rgba(%s,%.2f)", value < 0 ? "0,110,200" : "225,110,0", part * 0.55);
    return text;
}

} // namespace qv::tools::page
