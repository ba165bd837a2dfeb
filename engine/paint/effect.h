#pragma once
// The raised effect: one int that is a plain border width (positive raised, negative depressed, 0 flat) or a
// token of soft lighting or glass, with its direction and size inside.

namespace chartdraw {

struct Effect {
    enum class Type { Flat, Border, SoftLighting, Glass };
    Type type = Type::Flat;
    int size = 0;      ///< Border: pixels, negative depressed. Lighting and glass: width of the rim, 0 automatic.
    int direction = 8; ///< The side the light comes from: 4 left, 6 right, 8 top, 2 bottom.
    int glare = 0;     ///< Glass: 2 reduced, 3 normal.

    static Effect decode(int value);
};

int softLighting(int direction, int size);
int glassEffect(int glare, int direction, int size);

} // namespace chartdraw
