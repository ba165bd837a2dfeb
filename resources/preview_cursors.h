#pragma once

// The cursors of the preview pane, 32 by 32 pixels in black and white.

/// A cursor's picture and the pixel of it that points, counted from the top left corner.
struct CursorPicture {
    /// The middle of the picture, row by row: '#' black, 'o' white, anything else transparent. All rows are
    /// as long as there are rows; what is around is transparent.
    const char* const* rows;
    int side;
    int hotX;
    int hotY;
};

constexpr int cursorSide = 32; ///< pixels

extern const CursorPicture closedHandCursor; ///< while a picture is dragged
extern const CursorPicture openHandCursor;   ///< over a picture that can be dragged
