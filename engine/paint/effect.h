#pragma once
// The raised effect: one int that is a plain border width (positive raised, negative depressed, 0 flat) or a
// token of soft lighting or glass, with its direction and size inside.

namespace chartdraw {

constexpr int kMaxEffectSize = 200; ///< Pixels; larger borders and rims are limited to it.

struct Effect {
    enum class Type { Flat, Border, SoftLighting, Glass };
    Type type = Type::Flat;
    int size = 0; ///< Border: pixels, negative depressed. Lighting and glass: width of the rim, 0 automatic.
    int direction = 8; ///< The side the light comes from: 4 left, 6 right, 8 top, 2 bottom.
    int glare = 0;     ///< Glass: 2 reduced, 3 normal.

    /// Any int has a meaning: what is no token of the two functions below is a border width.
    static Effect decode(int value);
};

/// The token of soft lighting. A direction other than 4, 6 and 2 is top; the size's sign is dropped.
int softLighting(int direction, int size);
/// The token of glass. A glare other than 2 is the normal one; direction and size as above.
int glassEffect(int glare, int direction, int size);

} // namespace chartdraw
