// Units.h: lengths, colours, fonts and flags as the windows of the game have them.
#pragma once

#include <cstdint>
#include <string_view>

namespace malvone {

// Lengths on windows, in single precision. 15 twips are one pixel of the design; a binding for a
// finer screen draws it with more pixels of the screen.
using Twips = float;
inline constexpr Twips kTwipsPerPixel = 15.0F;

// 16-bit flags, as in the game's records and state.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;

// A 24-bit colour with red in its low byte, so 255 is red.
using Colour = std::int32_t;

// The colour that is written #RRGGBB.
constexpr Colour Rgb(std::uint32_t rrggbb)
{
    return static_cast<Colour>(((rrggbb & 0xFFU) << 16U) | (rrggbb & 0xFF00U) |
                               ((rrggbb >> 16U) & 0xFFU));
}

enum class Alignment { Left, Centre };

enum class Pointer { Default, Hand };

// A font by its family and its size in points at 96 dpi. It grows with the window, never with the
// desktop's text size.
struct Font
{
    std::string_view Name = "Arial";
    float Size = 9.75F;
    bool Bold = false;

    friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace malvone
