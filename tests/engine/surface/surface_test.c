/* The surface from plain C: the header compiles, the operations link, a picture holds what was drawn. */

#include <chartdraw/surface.h>

#include <string.h>

/* The pixel of column x and row y from the top, in a bitmap file of 200 x 150, as 0xRRGGBB. */
static int pixelAt(const char* bytes, int x, int y) {
    const unsigned char* at = (const unsigned char*)bytes + 54 + ((149 - y) * 200 + x) * 3;
    return at[2] << 16 | at[1] << 8 | at[0];
}

int main(void) {
    const double values[] = {1, 1, CHART_NO_VALUE};
    const char* labels[] = {"right", "left", "none"};
    PieChart* pie = CPieChart_create(200, 150, 0xffffff, CHART_TRANSPARENT, 0);
    CPieChart_setPieSize(pie, 100, 75, 50);
    CPieChart_setData(pie, values, 3, labels, 3);
    CPieChart_setLabelFormat(pie, " ");
    CSector_setColor(CPieChart_sector(pie, 0), 0xff0000, -1, -1);
    const char* bytes = NULL;
    int length = 0;
    const bool made = CBaseChart_makeChart2(PieChart2BaseChart(pie), CHART_FORMAT_BMP, &bytes, &length);
    const bool right = made && length == 54 + 200 * 150 * 3 && memcmp(bytes, "BM", 2) == 0 &&
                       pixelAt(bytes, 130, 75) == 0xff0000 && pixelAt(bytes, 160, 75) == 0xffffff;
    CBaseChart_destroy(PieChart2BaseChart(pie));
    return right ? 0 : 1;
}
