#include "engine/text/alignment.h"

namespace chartdraw {

int horizontalOf(int alignment) {
    switch (alignment) {
    case BottomLeft:
    case Left:
    case TopLeft:
    case TopLeft2:
    case BottomLeft2:
        return -1;
    case BottomRight:
    case Right:
    case TopRight:
    case TopRight2:
    case BottomRight2:
        return 1;
    default:
        return 0;
    }
}

int verticalOf(int alignment) {
    switch (alignment) {
    case TopLeft:
    case TopCenter:
    case TopRight:
    case TopLeft2:
    case TopRight2:
        return -1;
    case BottomLeft:
    case BottomCenter:
    case BottomRight:
    case BottomLeft2:
    case BottomRight2:
        return 1;
    default:
        return 0;
    }
}

} // namespace chartdraw
