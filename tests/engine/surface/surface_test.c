/* The surface from plain C: a picture of known content, numbers, and what handles that are none give. */

#include <chartdraw/surface.h>

#include <stdio.h>
#include <string.h>

static int failures = 0;

#define CHECK(condition)                                                                                     \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                  \
            ++failures;                                                                                      \
        }                                                                                                    \
    } while (0)

/* A little-endian number of a bitmap file. */
static int numberAt(const char* bytes, int offset, int size) {
    unsigned number = 0;
    for (int i = size; i-- > 0;)
        number = number << 8 | (unsigned char)bytes[offset + i];
    return (int)number;
}

/* The pixel of column x and row y from the top as 0xRRGGBB. */
static int pixelAt(const char* bytes, int x, int y) {
    const int width = numberAt(bytes, 18, 4), height = numberAt(bytes, 22, 4);
    const int stride = (width * 3 + 3) / 4 * 4;
    return numberAt(bytes, numberAt(bytes, 10, 4) + (height - 1 - y) * stride + x * 3, 3);
}

/* Offsets and meanings by the layout of the bitmap file format: file header 14 bytes, info header 40. */
static void checkBitmap(const char* bytes, int length, int width, int height) {
    const int stride = (width * 3 + 3) / 4 * 4;
    CHECK(length == 54 + stride * height);
    CHECK(memcmp(bytes, "BM", 2) == 0);
    CHECK(numberAt(bytes, 2, 4) == length);
    CHECK(numberAt(bytes, 10, 4) == 54);
    CHECK(numberAt(bytes, 14, 4) == 40);
    CHECK(numberAt(bytes, 18, 4) == width);
    CHECK(numberAt(bytes, 22, 4) == height);
    CHECK(numberAt(bytes, 26, 2) == 1);
    CHECK(numberAt(bytes, 28, 2) == 24);
    CHECK(numberAt(bytes, 30, 4) == 0);
}

static void drawsAPie(void) {
    const double values[] = {1, 1, CHART_NO_VALUE};
    const char* labels[] = {"right", "left", "none"};
    PieChart* pie = CPieChart_create(201, 150, 0xffffff, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    CPieChart_setPieSize(pie, 100, 75, 50);
    CPieChart_setData(pie, values, 3, labels, 3);
    CPieChart_setLabelFormat(pie, " ");
    CSector_setColor(CPieChart_sector(pie, 0), 0xff0000, -1, -1);
    CSector_setColor(CPieChart_sector(pie, 1), 0x0000ff, -1, -1);
    CHECK(CPieChart_sector(pie, 3) == NULL);

    const char* bytes = NULL;
    int length = 0;
    CHECK(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length));
    checkBitmap(bytes, length, 201, 150);
    CHECK(pixelAt(bytes, 130, 75) == 0xff0000); /* the first half runs clockwise from the top */
    CHECK(pixelAt(bytes, 70, 75) == 0x0000ff);
    CHECK(pixelAt(bytes, 3, 3) == 0xffffff);
    CHECK(pixelAt(bytes, 160, 75) == 0xffffff); /* beyond the radius */

    const char* again = NULL;
    CHECK(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &again, &length) && again == bytes);

    CSector_setColor(CPieChart_sector(pie, 0), 0x00ff00, -1, -1);
    CBaseChart_setSize(chart, 203, 151); /* rows of 609 bytes, padded by 3 */
    CHECK(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length));
    checkBitmap(bytes, length, 203, 151);
    CHECK(pixelAt(bytes, 130, 75) == 0x00ff00);
    CBaseChart_destroy(chart);
}

static void givesNoPictureWithoutASize(void) {
    const int sizes[][2] = {{0, 100}, {100, 0}, {-5, 100}, {20000, 10}, {10, 16385}};
    for (size_t i = 0; i < sizeof sizes / sizeof sizes[0]; ++i) {
        BaseChart* chart =
            PieChart2BaseChart(CPieChart_create(sizes[i][0], sizes[i][1], 0xffffff, CHART_TRANSPARENT, 0));
        const char* bytes = "";
        int length = 1;
        CHECK(chart != NULL);
        CHECK(!CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length));
        CHECK(bytes == NULL && length == 0);
        CBaseChart_setSize(chart, 10, 10);
        CHECK(!CBaseChart_makeChart2(chart, CHART_FORMAT_BMP + 1, &bytes, &length));
        CHECK(CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, NULL, NULL));
        CBaseChart_destroy(chart);
    }
}

static void countsInSeries(void) {
    const double* data = NULL;
    int count = 0;
    RanTable* table = CRanTable_create(9, 2, 4);
    CRanTable_setDateCol(table, 0, CChart_chartTime(2002, 9, 6, 0, 0, 0), 86400, true);
    CRanTable_getCol(table, 0, &data, &count);
    CHECK(count == 4 && CChart_getChartYMD(data[1]) == 20020909); /* from a Friday to the Monday */

    const double closes[] = {4, 6, 5, 9};
    ArrayMath* change = CArrayMath_create(closes, 4);
    CArrayMath_delta(change, 1);
    CArrayMath_result(change, &data, &count);
    CHECK(count == 4 && data[0] == CHART_NO_VALUE && data[1] == 2 && data[2] == -1 && data[3] == 4);
    CHECK(CArrayMath_max(change) == 4);
    ArrayMath* rises = CArrayMath_create(closes, 4);
    CArrayMath_selectGTZ(rises, data, count, 0);
    CArrayMath_result(rises, &data, &count);
    CHECK(data[0] == CHART_NO_VALUE && data[1] == 6 && data[2] == 0 && data[3] == 9);

    /* A handle of one kind in place of another is as good as none. */
    CRanTable_setCol((RanTable*)(void*)change, 0, 1, 2);
    CHECK(CArrayMath_max((ArrayMath*)(void*)table) == 0);
    CArrayMath_result((ArrayMath*)(void*)table, &data, &count);
    CHECK(data == NULL && count == 0);
    CBaseChart_destroy((BaseChart*)(void*)table);
    CRanTable_destroy((RanTable*)(void*)change);
    CHECK(CArrayMath_max(change) == 4);

    CRanTable_getCol(table, 2, &data, &count);
    CHECK(data == NULL && count == 0);
    CArrayMath_destroy(rises);
    CArrayMath_destroy(change);
    CRanTable_destroy(table);
}

int main(void) {
    drawsAPie();
    givesNoPictureWithoutASize();
    countsInSeries();
    return failures > 0;
}
