#pragma once
// Alignment codes: where a thing stands in or beside another, as the digits of a number pad.

namespace chartdraw {

enum Alignment {
    BottomLeft = 1,
    BottomCenter = 2,
    BottomRight = 3,
    Left = 4,
    Center = 5,
    Right = 6,
    TopLeft = 7,
    TopCenter = 8,
    TopRight = 9,
    TopLeft2 = 10,  ///< At the left side, level with the top.
    TopRight2 = 11, ///< At the right side, level with the top.
    BottomLeft2 = 12,
    BottomRight2 = 13,
};

/// -1, 0, 1 for the left, centre and right column of the code; an unknown code reads as Center.
int horizontalOf(int alignment);
/// -1, 0, 1 for the top, middle and bottom row.
int verticalOf(int alignment);

} // namespace chartdraw
