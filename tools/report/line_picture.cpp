#include "line_picture.h"

#include <algorithm>
#include <cmath>

#include "html.h"

namespace qv::tools::page {
namespace {

// In units of the picture, ten to what is a pixel at its natural size.
constexpr double kLeft = 420;
constexpr double kRight = 3140;
constexpr double kTop = 60;
constexpr double kBottom = 1480;

struct Axis {
    double low = 0;
    double high = 1;

    void take(double value)
    {
        if (std::isfinite(value)) {
            low = isEmpty ? value : std::min(low, value);
            high = isEmpty ? value : std::max(high, value);
            isEmpty = false;
        }
    }
    /// A single value gets an axis around it.
    void widen()
    {
        if (isEmpty || low == high) {
            const double around = isEmpty || low == 0 ? 1 : std::abs(low) / 2;
            low = isEmpty ? 0 : low - around;
            high = isEmpty ? 1 : high + around;
        }
    }
    bool isEmpty = true;
};

/// Steps of 1, 2 or 5 times a power of ten, some four of them.
double stepOf(const Axis& axis)
{
    const double rough = (axis.high - axis.low) / 4;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    const double part = rough / power;
    return power * (part < 1.5 ? 1 : part < 3.5 ? 2 : part < 7.5 ? 5 : 10);
}

std::string whole(double number)
{
    return std::to_string(std::lround(number));
}

class Drawing {
public:
    explicit Drawing(const LinePicture& picture) : picture_(picture)
    {
        for (const Line& line : picture.lines) {
            for (std::size_t i = 0; i < line.x.size(); ++i) {
                x_.take(xOf(line.x[i]));
                y_.take(line.y[i]);
                gains_.take(line.gain);
            }
        }
        x_.widen();
        y_.widen();
    }

    std::string draw()
    {
        text_ = R"(<svg viewBox="0 0 3200 1700" role="img" aria-label=")" + escaped(picture_.label) + '"';
        if (picture_.isOverGain) {
            text_ += " data-low=\"" + shortNumber(x_.low) + "\" data-high=\"" + shortNumber(x_.high) + '"';
        }
        text_ += '>';
        drawAxes();
        for (const Line& line : picture_.lines) {
            drawLine(line);
        }
        if (picture_.isOverGain) {
            text_ += "<path class=\"cursor\" d=\"M" + whole(kLeft) + ' ' + whole(kTop) + 'V' + whole(kBottom) + "\"/>";
        }
        return text_ + "</svg>";
    }

private:
    double xOf(double value) const { return picture_.isOverGain ? std::log2(value) : value; }
    double across(double value) const { return kLeft + (value - x_.low) / (x_.high - x_.low) * (kRight - kLeft); }
    double up(double value) const { return kBottom - (value - y_.low) / (y_.high - y_.low) * (kBottom - kTop); }

    void drawAxes()
    {
        std::string lines;
        const double step = stepOf(y_);
        for (double at = std::ceil(y_.low / step) * step; at <= y_.high + step * 1e-9; at += step) {
            lines += 'M' + whole(kLeft) + ' ' + whole(up(at)) + 'H' + whole(kRight);
            text_ += "<text class=\"y\" x=\"380\" y=\"" + whole(up(at) + 40) + "\">" +
                     axisNumber(std::abs(at) < step * 1e-9 ? 0 : at) + "</text>";
        }
        const double stepX = picture_.isOverGain ? std::max(1.0, std::ceil((x_.high - x_.low) / 7)) : stepOf(x_);
        for (double at = std::ceil(x_.low / stepX) * stepX; at <= x_.high + stepX * 1e-9; at += stepX) {
            lines += 'M' + whole(across(at)) + ' ' + whole(kTop) + 'V' + whole(kBottom);
            text_ += "<text class=\"x\" x=\"" + whole(std::min(across(at), kRight - 90)) + "\" y=\"1620\">" +
                     axisNumber(picture_.isOverGain ? std::exp2(at) : at) + "</text>";
        }
        text_ += "<path class=\"axis\" d=\"" + lines + "\"/>";
    }

    void drawLine(const Line& line)
    {
        const std::string points = pathOf(line);
        if (points.empty()) {
            return;
        }
        text_ += std::string("<path class=\"") + (line.side == 0 ? "a" : "b") + '"';
        if (picture_.fadesWithGain) {
            const double range = std::log2(gains_.high) - std::log2(gains_.low);
            const double part = range > 0 ? (std::log2(line.gain) - std::log2(gains_.low)) / range : 0;
            text_ += " data-gain=\"" + shortNumber(line.gain) + "\" opacity=\"" +
                     shortNumber(std::round((1 - part * 0.75) * 100) / 100) + '"';
        }
        text_ += " d=\"" + points + "\">" + (line.name.empty() ? "" : "<title>" + escaped(line.name) + "</title>") +
                 "</path>";
    }

    /// The points as steps from one to the next, which takes half the room of their places.
    std::string pathOf(const Line& line) const
    {
        std::string points;
        long lastX = 0;
        long lastY = 0;
        for (std::size_t i = 0; i < line.x.size(); ++i) {
            if (!std::isfinite(line.y[i]) || !std::isfinite(xOf(line.x[i]))) {
                continue;
            }
            const long x = std::lround(across(xOf(line.x[i])));
            const long y = std::lround(up(line.y[i]));
            points += points.empty() ? 'M' : 'l';
            points += std::to_string(x - lastX) + (y < lastY ? "" : " ") + std::to_string(y - lastY);
            lastX = x;
            lastY = y;
        }
        // A single point has no length, and is seen by its round ends.
        return points.empty() || points.find('l') != std::string::npos ? points : points + "h0";
    }

    const LinePicture& picture_;
    Axis x_;
    Axis y_;
    Axis gains_;
    std::string text_;
};

} // namespace

std::string svgOf(const LinePicture& picture)
{
    return Drawing(picture).draw();
}

} // namespace qv::tools::page
