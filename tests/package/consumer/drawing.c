/* The drawing library from C. */
#include <chartdraw/surface.h>

int main(void) {
    /* One day is 86400 seconds, also over the end of a leap February. */
    const double end = CChart_chartTime(2024, 2, 29, 0, 0, 0);
    return CChart_chartTime(2024, 3, 1, 0, 0, 0) - end == 86400.0 ? 0 : 1;
}
