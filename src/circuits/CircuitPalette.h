#pragma once

#include <array>
#include <cstddef>

namespace veldmark {

// The colours of circuits: sRGB, opaque, components from 0 to 1.
struct CircuitPalette {
    struct Color {
        double red;
        double green;
        double blue;
        friend bool operator==(const Color &, const Color &) = default;
    };

    static constexpr std::array<Color, 8> colors{{
        {0.62, 0.50, 1.00},
        {0.25, 0.80, 0.86},
        {1.00, 0.46, 0.64},
        {1.00, 0.67, 0.30},
        {0.38, 0.62, 1.00},
        {0.38, 0.86, 0.54},
        {0.96, 0.86, 0.38},
        {0.86, 0.52, 0.96},
    }};

    // The colour of the circuit at `index` of the list; the colours repeat from the ninth on.
    static constexpr Color color(std::size_t index) { return colors[index % colors.size()]; }
};

} // namespace veldmark
