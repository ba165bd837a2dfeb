/** @file
 * The drawing library: charts as pictures, through flat functions that C and every language with a C
 * binding can call. A chart is created, dressed and filled by calls, and CBaseChart_makeChart2 turns it
 * into the bytes of a bitmap file.
 *
 *     const double data[] = {25, 18, 15};
 *     const char* labels[] = {"Labour", "Licences", "Taxes"};
 *     PieChart* pie = CPieChart_create(360, 300, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
 *     BaseChart* chart = PieChart2BaseChart(pie);
 *     const char* bytes;
 *     int length;
 *     CPieChart_setPieSize(pie, 180, 150, 100);
 *     CPieChart_setData(pie, data, 3, labels, 3);
 *     if (CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length)) { ... }
 *     CBaseChart_destroy(chart);
 *
 * Conventions of all functions, told here once:
 *
 * Handles. Each kind of object has its own opaque type. A handle of a derived kind is turned into its base
 * kind by a cast function (XYChart2BaseChart), never by a cast of the language; the functions of the base
 * kind take the result. A null handle, or one of the wrong kind, makes a setter do nothing, a getter return
 * null, 0 or false, and an out-parameter null or 0.
 *
 * Ownership. The caller destroys, once each: a chart (CBaseChart_destroy, which also ends every handle that
 * came from it: axes, layers, data sets, text boxes, its draw area), a RanTable, an ArrayMath. Everything
 * else is borrowed from its chart. Texts and arrays that a function gives out stay valid until the chart or
 * table that gave them is destroyed. Everything passed in is copied: the caller may free it at once.
 *
 * Arrays are a pointer and a count of elements. A null pointer, or a count of 0 or below, is no elements.
 *
 * Texts are UTF-8 and end with a zero byte; bytes that are no UTF-8 show as the replacement character. A
 * null or empty text means no text, and for a font or a format the default.
 *
 * Fonts are named by file: "name.ttf", "name.ttc|2" for a further face of a collection, or a path; or by the
 * style words "normal", "bold", "italic", "boldItalic", which stand for the default fonts of the chart. A
 * file that cannot be found gives a sans serif face. Paths are for the functions that take a font: a tag in
 * a text names faces of the system's font folders only, since texts may come from anywhere. Font sizes are in
 * points, 1 to 1000; 8 where a size is not above 0.
 *
 * Texts may carry markup in tags of an angle bracket and an asterisk: "<*font=bold,size=12,color=FF0000*>",
 * "<*underline=1*>", "<*sub*>", "<*super*>", and "<*br*>" for a new line; a tag that holds a slash alone goes
 * back to the state before the last of these.
 *
 * Formats are texts with fields in braces, as "{dataSetName}: {value|2,.}": decimals, then the thousand
 * separator, then the decimal point, then the sign. "G" is the shortest form. Letters of dates give a date:
 * "{value|yyyy-mm-dd hh:nn:ss}". A tab gives a list of texts, the first for 0: "{value|\tlow\tmiddle\thigh}",
 * with a backslash before a brace, tab or backslash in them. A field with an unknown name stays as it stands.
 *
 * Colours are int values 0xAARRGGBB in which AA is transparency: 0x00 opaque, 0xff fully transparent. The
 * values 0xffff0000 + n are the entries of the palette, n from 0 to 39 (CHART_BACKGROUND_COLOR and on).
 * CHART_DEFAULT_COLOR (-1) is the default of the place it is used in, or keeps the colour set before. The
 * pattern and metal functions give further values, tokens that can be used wherever a colour fills an area.
 *
 * Effects are int values for the border and lighting of boxes, bars and pictures: the number of pixels of a
 * raised border, negative for a depressed one, 0 for flat, or a value of CChart_softLighting or
 * CChart_glassEffect.
 *
 * Coordinates and lengths are pixels from the top left corner of the chart, x to the right, y downward.
 * Angles are degrees; those of text turn it counter-clockwise, those of pies, meters and polar charts run
 * clockwise from the top. Times are chart times: seconds since 1 January of year 1 (CChart_chartTime).
 *
 * Values. CHART_NO_VALUE and NaN are gaps in data. Infinities, sizes and counts beyond reason are limited.
 * No argument makes a function crash. A picture without area or over 16384 pixels a side is not made.
 *
 * Threads. A chart, a table or an array object is used by one thread at a time; different ones may be used
 * by different threads at once. Texts need the application object of the toolkit: a host that has none gets
 * one from the first function that makes a chart, on the thread that calls it. Dialogs of the editors open
 * only on that thread, so a host that shows them makes its first chart, or opens its first dialog, on the
 * thread of its windows. Once the process ends (exit has begun), functions do nothing, as with a null handle.
 *
 * Memory. No function throws. One that memory does not suffice for does nothing and returns null, 0 or false;
 * a picture is then false and no bytes.
 */
#ifndef CHARTDRAW_SURFACE_H
#define CHARTDRAW_SURFACE_H

#include <stdbool.h>

#if defined(_WIN32)
#if defined(CHARTDRAW_BUILD)
#define CHARTDRAW_API __declspec(dllexport)
#elif defined(CHARTDRAW_ROOM) /* in or beside the library, as the linker finds it */
#define CHARTDRAW_API
#else
#define CHARTDRAW_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define CHARTDRAW_API __attribute__((visibility("default")))
#else
#define CHARTDRAW_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Handles -------------------------------------------------------------------------------------- */

typedef struct BaseChart BaseChart;       /**< any chart */
typedef struct XYChart XYChart;           /**< chart with x and y axes */
typedef struct PieChart PieChart;         /**< pie or donut */
typedef struct PolarChart PolarChart;     /**< chart of angle and radius */
typedef struct MultiChart MultiChart;     /**< several charts on one picture */
typedef struct BaseMeter BaseMeter;       /**< any meter */
typedef struct AngularMeter AngularMeter; /**< meter with a round scale */
typedef struct LinearMeter LinearMeter;   /**< meter with a straight scale */

typedef struct PlotArea PlotArea;       /**< the area of an XY chart in which the layers stand */
typedef struct Axis Axis;               /**< an axis of an XY chart, or the radial one of a polar chart */
typedef struct AngularAxis AngularAxis; /**< the round axis of a polar chart */
typedef struct Mark Mark;               /**< a labelled line across the plot area at a value of an axis */

typedef struct Layer Layer;                       /**< any layer of an XY chart */
typedef struct BarLayer BarLayer;                 /**< bars */
typedef struct LineLayer LineLayer;               /**< lines and scattered symbols */
typedef struct SplineLayer SplineLayer;           /**< smooth curves through the points */
typedef struct StepLineLayer StepLineLayer;       /**< lines that go in steps */
typedef struct AreaLayer AreaLayer;               /**< filled areas */
typedef struct InterLineLayer InterLineLayer;     /**< the area between two lines */
typedef struct BaseBoxLayer BaseBoxLayer;         /**< any layer of one box a row */
typedef struct BoxWhiskerLayer BoxWhiskerLayer;   /**< boxes, with whiskers if wanted */
typedef struct HLOCLayer HLOCLayer;               /**< price bars with ticks for open and close */
typedef struct CandleStickLayer CandleStickLayer; /**< price candles */
typedef struct DataSet DataSet;                   /**< one named series of a layer */

typedef struct PolarLayer PolarLayer;                     /**< any layer of a polar chart */
typedef struct PolarLineLayer PolarLineLayer;             /**< a line */
typedef struct PolarSplineLineLayer PolarSplineLineLayer; /**< a smooth curve */
typedef struct PolarAreaLayer PolarAreaLayer;             /**< a filled area */
typedef struct PolarSplineAreaLayer PolarSplineAreaLayer; /**< a filled area with a smooth border */

typedef struct Sector Sector;             /**< one sector of a pie */
typedef struct MeterPointer MeterPointer; /**< a pointer of a meter */

typedef struct DrawObj DrawObj;     /**< anything that is drawn */
typedef struct Box Box;             /**< a box with background, edge and effect */
typedef struct TextBox TextBox;     /**< a text in a box */
typedef struct LegendBox LegendBox; /**< the legend of a chart */
typedef struct Line Line;           /**< a line */
typedef struct DrawArea DrawArea;   /**< a picture in memory */

typedef struct RanTable RanTable;   /**< random numbers for sample data */
typedef struct ArrayMath ArrayMath; /**< a series being calculated with */

/* ---- Constants ------------------------------------------------------------------------------------ */

/** A missing value in a data series. */
#define CHART_NO_VALUE 1.7E+308

#define CHART_TRANSPARENT ((int)0xff000000)      /**< nothing drawn */
#define CHART_PALETTE ((int)0xffff0000)          /**< with entry n added: that palette entry, n 0 to 39 */
#define CHART_BACKGROUND_COLOR ((int)0xffff0000) /**< palette entry 0 */
#define CHART_LINE_COLOR ((int)0xffff0001)       /**< palette entry 1 */
#define CHART_TEXT_COLOR ((int)0xffff0002)       /**< palette entry 2 */
#define CHART_DATA_COLOR ((int)0xffff0008)       /**< palette entry 8, the first of the series colours */
#define CHART_DEFAULT_COLOR (-1)                 /**< the default, or the value already set */

/** Where something stands. TOP_LEFT2 is at the left side, level with the top, and the other 2 forms likewise.
 */
enum {
    CHART_BOTTOM_LEFT = 1,
    CHART_BOTTOM = 2,
    CHART_BOTTOM_RIGHT = 3,
    CHART_LEFT = 4,
    CHART_CENTER = 5,
    CHART_RIGHT = 6,
    CHART_TOP_LEFT = 7,
    CHART_TOP = 8,
    CHART_TOP_RIGHT = 9,
    CHART_TOP_LEFT2 = 10,
    CHART_TOP_RIGHT2 = 11,
    CHART_BOTTOM_LEFT2 = 12,
    CHART_BOTTOM_RIGHT2 = 13
};

/** How the data sets of a bar or area layer go together. */
enum {
    CHART_COMBINE_OVERLAY = 0,
    CHART_COMBINE_STACK = 1,
    CHART_COMBINE_SIDE = 3,
    CHART_COMBINE_PERCENTAGE = 4
};

/** Outlines of bars. */
enum {
    CHART_NO_SHAPE = 0,
    CHART_SQUARE_SHAPE = 1,
    CHART_DIAMOND_SHAPE = 2,
    CHART_TRIANGLE_SHAPE = 3,
    CHART_RIGHT_TRIANGLE_SHAPE = 4,
    CHART_LEFT_TRIANGLE_SHAPE = 5,
    CHART_INVERTED_TRIANGLE_SHAPE = 6,
    CHART_CIRCLE_SHAPE = 7,
    CHART_CIRCLE_SHAPE_NO_SHADING = 10
};

/** Symbols at data points. A size is the side of a square; diamonds and triangles have the square's area. */
enum {
    CHART_NO_SYMBOL = 0,
    CHART_SQUARE_SYMBOL = 1,
    CHART_DIAMOND_SYMBOL = 2,
    CHART_TRIANGLE_SYMBOL = 3,
    CHART_RIGHT_TRIANGLE_SYMBOL = 4,
    CHART_LEFT_TRIANGLE_SYMBOL = 5,
    CHART_INVERTED_TRIANGLE_SYMBOL = 6,
    CHART_CIRCLE_SYMBOL = 7,
    CHART_CROSS_SYMBOL = 8,
    CHART_CROSS2_SYMBOL = 9
};

/** Shapes of meter pointers. */
enum {
    CHART_DIAMOND_POINTER = 0,
    CHART_TRIANGULAR_POINTER = 1,
    CHART_ARROW_POINTER = 2,
    CHART_ARROW_POINTER2 = 3,
    CHART_LINE_POINTER = 4,
    CHART_PENCIL_POINTER = 5
};

/** Which labels of an axis pass a filter. */
enum {
    CHART_START_OF_HOUR = 1,
    CHART_START_OF_DAY = 2,
    CHART_START_OF_WEEK = 3,
    CHART_START_OF_MONTH = 4,
    CHART_START_OF_YEAR = 5,
    CHART_REGULAR_SPACING = 6,
    CHART_ALL_PASS = 7,
    CHART_NONE_PASS = 8
};

/** Further codes, each named with the function that takes it. */
enum {
    CHART_FORMAT_BMP = 4,     /**< CBaseChart_makeChart2: a bitmap file */
    CHART_SCALE_UNIT = 65536, /**< CBaseChart_makeChart2: the scale of a picture at natural size */
    CHART_GLARE_REDUCED = 2,  /**< CChart_glassEffect */
    CHART_GLARE_NORMAL = 3,   /**< CChart_glassEffect */
    CHART_ORIGIN_XY = 3,      /**< CXYChart_setAxisAtOrigin: both axes through the origin */
    CHART_SYMMETRIC_XY = 5,   /**< CXYChart_setAxisAtOrigin: both axes symmetric about 0 */
    CHART_UP_DOWN = 2,        /**< CHLOCLayer_setColorMethod: by the close before */
    CHART_SCALE_PIXELS = 0,   /**< the symbol scale functions */
    CHART_SIDE_LAYOUT = 0,    /**< CPieChart_setLabelLayout: in two columns */
    CHART_CIRCLE_LAYOUT = 1   /**< CPieChart_setLabelLayout: around the pie */
};

/* ---- Charts --------------------------------------------------------------------------------------- */

/**
 * Creators. width and height: pixels, 1 to 16384 (a size outside makes a chart that gives no picture until
 * CBaseChart_setSize). background: of the picture; -1 is CHART_BACKGROUND_COLOR. edge: of its border; -1 is
 * CHART_TRANSPARENT. effect: of its border. The caller owns the result and ends it with CBaseChart_destroy.
 * Null only where memory does not suffice.
 */
CHARTDRAW_API XYChart* CXYChart_create(int width, int height, int background, int edge, int effect);
/** A pie chart; see CXYChart_create. Without CPieChart_setPieSize the pie fills the picture. */
CHARTDRAW_API PieChart* CPieChart_create(int width, int height, int background, int edge, int effect);
/** A polar chart; see CXYChart_create. */
CHARTDRAW_API PolarChart* CPolarChart_create(int width, int height, int background, int edge, int effect);
/** A meter with a round scale; see CXYChart_create. */
CHARTDRAW_API AngularMeter* CAngularMeter_create(int width, int height, int background, int edge, int effect);
/** A meter with a straight scale; see CXYChart_create. */
CHARTDRAW_API LinearMeter* CLinearMeter_create(int width, int height, int background, int edge, int effect);
/** A picture that holds other charts; see CXYChart_create. */
CHARTDRAW_API MultiChart* CMultiChart_create(int width, int height, int background, int edge, int effect);

/**
 * Puts a chart on the picture, its top left corner at (x, y), over those added before; one that is there
 * already moves. The chart stays the caller's and is drawn as it is when the picture is made, its background
 * included; where that shows through, so do the charts below. A chart that is destroyed is no longer shown.
 * Null, this chart itself, one that shows it, and one that would stand more than 16 deep are ignored.
 */
CHARTDRAW_API void CMultiChart_addChart(MultiChart* multi, int x, int y, BaseChart* chart);
/**
 * Names the added chart that speaks for the whole: a legend of the multi chart lists its keys, unless that
 * chart shows a legend itself. Default: the first one added. A chart that was not added is ignored.
 */
CHARTDRAW_API void CMultiChart_setMainChart(MultiChart* multi, BaseChart* chart);

/** Ends a chart and every handle obtained from it. Null is ignored. */
CHARTDRAW_API void CBaseChart_destroy(BaseChart* chart);
/** Size of the picture in pixels, 1 to 16384 a side. */
CHARTDRAW_API void CBaseChart_setSize(BaseChart* chart, int width, int height);
/** Background, border and border effect of the picture, as given to the creators. */
CHARTDRAW_API void CBaseChart_setBackground(BaseChart* chart, int background, int edge, int effect);
/**
 * An image file (PNG, JPEG, GIF, BMP, WBMP) over the background, placed by an alignment code; another code
 * is CHART_CENTER. An image that cannot be read, or a null or empty name, is none.
 */
CHARTDRAW_API void CBaseChart_setBgImage(BaseChart* chart, const char* imageFile, int alignment);
/**
 * Rounds the corners of the picture. exterior: colour outside the frame. r1 to r4: radius in pixels, top
 * left, top right, bottom right, bottom left; below 0 is as r1, and r1 below 0 is 10. Limited to half the
 * picture. Default: no frame.
 */
CHARTDRAW_API void CBaseChart_setRoundedFrame(BaseChart* chart, int exterior, int r1, int r2, int r3, int r4);
/** The faces behind the four style words in this chart. A null or empty name keeps the one in force. */
CHARTDRAW_API void CBaseChart_setDefaultFonts(BaseChart* chart, const char* normal, const char* bold,
                                              const char* italic, const char* boldItalic);
/**
 * Smooth edges. shapes: of lines and areas. textMode: 0 none, 1 always, 2 as suits the size; another value
 * is 2. Default: true, 2.
 */
CHARTDRAW_API void CBaseChart_setAntiAlias(BaseChart* chart, bool shapes, int textMode);

/**
 * A title at the top, in a box of the chart's width; titles at one place stack from the edge inwards. font:
 * null is "bold". size: points, not above 0 is 12. Colours: -1 is CHART_TEXT_COLOR for the font and
 * CHART_TRANSPARENT for background and edge. The box belongs to the chart.
 */
CHARTDRAW_API TextBox* CBaseChart_addTitle(BaseChart* chart, const char* title, const char* font, double size,
                                           int fontColor, int background, int edge);
/** As CBaseChart_addTitle, at a place given by an alignment code; another code is CHART_TOP. */
CHARTDRAW_API TextBox* CBaseChart_addTitle2(BaseChart* chart, int alignment, const char* title,
                                            const char* font, double size, int fontColor, int background,
                                            int edge);
/**
 * A text whose point named by alignment stands at (x, y): CHART_TOP_LEFT puts the top left corner there;
 * another code is that. font: null is "normal". size: points. fontColor: -1 is CHART_TEXT_COLOR. angle:
 * degrees counter-clockwise. vertical: characters one below the other. The box belongs to the chart.
 */
CHARTDRAW_API TextBox* CBaseChart_addText(BaseChart* chart, int x, int y, const char* text, const char* font,
                                          double size, int fontColor, int alignment, double angle,
                                          bool vertical);
/** A line over the chart. color: -1 is CHART_LINE_COLOR. width: pixels, below 1 draws none. */
CHARTDRAW_API Line* CBaseChart_addLine(BaseChart* chart, int x1, int y1, int x2, int y2, int color,
                                       int width);
/**
 * The legend, its top left corner at (x, y); a second call moves and restyles the same legend. vertical: one
 * key a line, else keys flow and wrap within the chart. font: null is "normal". size: points. Its text, set
 * with CTextBox_setText, is the format of the keys, "{dataSetName}" by default. It belongs to the chart.
 */
CHARTDRAW_API LegendBox* CBaseChart_addLegend(BaseChart* chart, int x, int y, bool vertical, const char* font,
                                              double size);
/** The legend of the chart; null before CBaseChart_addLegend. */
CHARTDRAW_API LegendBox* CBaseChart_getLegend(BaseChart* chart);
/** The chart's picture area, which belongs to it and has the size of the chart. */
CHARTDRAW_API DrawArea* CBaseChart_getDrawArea(BaseChart* chart);
/**
 * Draws the chart and gives the picture as a file image. format: CHART_FORMAT_BMP, a bitmap file of 24 bits
 * a pixel, rows bottom up and padded to 4 bytes, the 14-byte file header included. For screens of fine
 * pixels, CHART_FORMAT_BMP + 256 * scale draws all of the chart, lines, texts and symbols, larger or smaller:
 * scale is in parts of CHART_SCALE_UNIT, 1 to 127 times it. What the chart says of itself keeps its pixels.
 * data: the bytes, which belong to the chart and stay until the next change of it. length: their number. Both
 * may be null. A call without a change since the last one draws nothing anew. False, null and 0 where there
 * is no picture: another format, no area, over 16384 pixels a side.
 */
CHARTDRAW_API bool CBaseChart_makeChart2(BaseChart* chart, int format, const char** data, int* length);
/**
 * A fill that repeats a pattern of pixels. pixels: count colours, row by row from the top, count / height a
 * row. startX, startY: where in the picture a tile begins. The result is for this chart, and charts shown in
 * it, and ends with it; CHART_TRANSPARENT where there is no full row, height is below 1 or the chart is null.
 */
CHARTDRAW_API int CBaseChart_patternColor(BaseChart* chart, const int* pixels, int count, int height,
                                          int startX, int startY);
/** As CBaseChart_patternColor, from an image file; CHART_TRANSPARENT where it cannot be read. */
CHARTDRAW_API int CBaseChart_patternColor2(BaseChart* chart, const char* imageFile, int startX, int startY);
/**
 * A value as text. format: either what stands after the bar of a field ("2,.", "G", "yyyy-mm-dd") or a whole
 * format with "{value}"; null is the shortest form. CHART_NO_VALUE and NaN give an empty text, as a null
 * chart does. The text belongs to the chart.
 */
CHARTDRAW_API const char* CBaseChart_formatValue(BaseChart* chart, double value, const char* format);

/* ---- Free functions ------------------------------------------------------------------------------- */

/**
 * The chart time of a date and time of the Gregorian calendar: seconds since 1 January of year 1. Parts out
 * of range roll on: month 13 is January of the next year, day 0 the last of the month before, second -1 the
 * end of the minute before. The result is limited to years 1 to 9999.
 */
CHARTDRAW_API double CChart_chartTime(int year, int month, int day, int hour, int minute, int second);
/** The date of a chart time as year * 10000 + month * 100 + day, limited to years 1 to 9999. NaN is in
 * year 1. */
CHARTDRAW_API int CChart_getChartYMD(double time);
/**
 * A label filter for CAxis_setMultiFormat. type: CHART_START_OF_HOUR to CHART_NONE_PASS; another is
 * CHART_NONE_PASS. labelStep: every n-th of those that pass, 1 to 4095. initialMargin: the part of a period,
 * 0 to 1 in steps of 0.0001, by which the first label of the axis may miss the start and still pass. The
 * result is never 0 to 7; those bare numbers are filters too, of type 1 to 8 with step 1 and no margin.
 */
CHARTDRAW_API int CChart_encodeFilter(int type, int labelStep, double initialMargin);
/**
 * A fill like brushed metal. base: its colour, -1 is CHART_BACKGROUND_COLOR. angle: degrees of the bands. The
 * result serves every chart and is never freed; one colour and angle always give the same.
 */
CHARTDRAW_API int CChart_metalColor(int base, int angle);
/**
 * Lighting that falls off softly. direction: the side the light comes from, CHART_LEFT, CHART_RIGHT,
 * CHART_TOP or CHART_BOTTOM; another is CHART_TOP. effect:
 * pixels of the lit rim, 0 automatic, its sign dropped.
 */
CHARTDRAW_API int CChart_softLighting(int direction, int effect);
/** As CChart_softLighting with a glare. glareSize: CHART_GLARE_REDUCED or CHART_GLARE_NORMAL (any other). */
CHARTDRAW_API int CChart_glassEffect(int glareSize, int direction, int effect);

/* ---- XY chart ------------------------------------------------------------------------------------- */

/**
 * The plot area: top left corner and size in pixels, and its colours. background, alternate: -1 is
 * CHART_TRANSPARENT, and an alternate colour of -1 is as the background. edge: -1 is CHART_LINE_COLOR.
 * Grids: of the major ticks; -1 is a light grey for the horizontal and CHART_TRANSPARENT for the vertical.
 * A negative size is 0. There is one plot area, and it belongs to the chart.
 */
CHARTDRAW_API PlotArea* CXYChart_setPlotArea(XYChart* chart, int x, int y, int width, int height,
                                             int background, int alternate, int edge, int horizontalGrid,
                                             int verticalGrid);
/** The x axis, at the bottom; the same on each call. It belongs to the chart, as all axes do. */
CHARTDRAW_API Axis* CXYChart_xAxis(XYChart* chart);
/** The y axis, on the left; the same on each call. */
CHARTDRAW_API Axis* CXYChart_yAxis(XYChart* chart);
/** The second x axis, at the top; the same on each call, shown from the first call on. */
CHARTDRAW_API Axis* CXYChart_xAxis2(XYChart* chart);
/** The second y axis, on the right; the same on each call, shown from the first call on. */
CHARTDRAW_API Axis* CXYChart_yAxis2(XYChart* chart);
/**
 * A further axis. alignment: CHART_LEFT or CHART_RIGHT for a y axis, CHART_TOP or CHART_BOTTOM for an x
 * axis; another is CHART_LEFT. offset: pixels outwards from that side of the plot area.
 */
CHARTDRAW_API Axis* CXYChart_addAxis(XYChart* chart, int alignment, int offset);
/** Exchanges the axes: x runs upwards and y to the right, bars lie. Default: false. */
CHARTDRAW_API void CXYChart_swapXY(XYChart* chart, bool swap);
/**
 * Moves axes into the plot area. originMode: 1 the x axis stands at y 0, 2 the y axis at x 0, 3 both, 0 none
 * (default). flags: 1 the x axis is symmetric about 0, 4 the y axis is, 5 both. Other bits are ignored.
 */
CHARTDRAW_API void CXYChart_setAxisAtOrigin(XYChart* chart, int originMode, int flags);
/** The y axis stands on the right and the second one on the left. Default: false. */
CHARTDRAW_API void CXYChart_setYAxisOnRight(XYChart* chart, bool right);
/** Shows only the rows from start on, at most length of them. Default: all rows. Negative counts as 0. */
CHARTDRAW_API void CXYChart_setTrimData(XYChart* chart, int start, int length);

/**
 * Bars of one data set. data: a value a row. color: -1 is the next series colour of the palette. name: in the
 * legend; null or empty is no key. depth: pixels of 3D, 0 flat. Layers belong to the chart and are drawn in
 * the order in which they were added.
 */
CHARTDRAW_API BarLayer* CXYChart_addBarLayer(XYChart* chart, const double* data, int count, int color,
                                             const char* name, int depth);
/** Bars of several data sets, to be added. combine: a CHART_COMBINE code, another is CHART_COMBINE_SIDE. */
CHARTDRAW_API BarLayer* CXYChart_addBarLayer2(XYChart* chart, int combine, int depth);
/** Lines of one data set, as CXYChart_addBarLayer; the x values are the rows or those of CLayer_setXData. */
CHARTDRAW_API LineLayer* CXYChart_addLineLayer(XYChart* chart, const double* data, int count, int color,
                                               const char* name, int depth);
/** A smooth curve through the points; see CXYChart_addBarLayer. */
CHARTDRAW_API SplineLayer* CXYChart_addSplineLayer(XYChart* chart, const double* data, int count, int color,
                                                   const char* name);
/** A line that keeps each value until the next row; see CXYChart_addBarLayer. */
CHARTDRAW_API StepLineLayer* CXYChart_addStepLineLayer(XYChart* chart, const double* data, int count,
                                                       int color, const char* name);
/** Areas of several data sets, to be added. combine: CHART_COMBINE_STACK (any other) or _PERCENTAGE. */
CHARTDRAW_API AreaLayer* CXYChart_addAreaLayer2(XYChart* chart, int combine, int depth);
/**
 * Symbols at points. x, y: as many points as the shorter has. symbol: a symbol code. size: pixels. fill: -1
 * is the next series colour. edge: -1 is CHART_LINE_COLOR, or below 9 pixels a darker shade of the fill.
 */
CHARTDRAW_API LineLayer* CXYChart_addScatterLayer(XYChart* chart, const double* x, int xCount,
                                                  const double* y, int yCount, const char* name, int symbol,
                                                  int size, int fill, int edge);
/**
 * A box a row between top and bottom, whiskers to maximum and minimum, a line at the middle. Each array may
 * be empty, and that part is then not drawn. fill: -1 is the next series colour. whisker, edge: -1 is
 * CHART_LINE_COLOR.
 */
CHARTDRAW_API BoxWhiskerLayer* CXYChart_addBoxWhiskerLayer(XYChart* chart, const double* top, int topCount,
                                                           const double* bottom, int bottomCount,
                                                           const double* maximum, int maximumCount,
                                                           const double* minimum, int minimumCount,
                                                           const double* middle, int middleCount, int fill,
                                                           int whisker, int edge);
/** A box a row between top and bottom; see CXYChart_addBarLayer. */
CHARTDRAW_API BoxWhiskerLayer* CXYChart_addBoxLayer(XYChart* chart, const double* top, int topCount,
                                                    const double* bottom, int bottomCount, int color,
                                                    const char* name);
/** Price bars. A row without high or low is a gap, one without open or close lacks that tick. */
CHARTDRAW_API HLOCLayer* CXYChart_addHLOCLayer(XYChart* chart, const double* high, int highCount,
                                               const double* low, int lowCount, const double* open,
                                               int openCount, const double* close, int closeCount, int color);
/** Price candles. rise: body where close is at least open, -1 is white. fall: else, -1 is black. */
CHARTDRAW_API CandleStickLayer* CXYChart_addCandleStickLayer(XYChart* chart, const double* high,
                                                             int highCount, const double* low, int lowCount,
                                                             const double* open, int openCount,
                                                             const double* close, int closeCount, int rise,
                                                             int fall, int edge);
/**
 * Fills between two lines, each from CLineLayer_getLine or CMark_getLine of this chart. above: where the
 * first is above the second. below: else; -1 is the same as above. Null where a line is of another kind.
 */
CHARTDRAW_API InterLineLayer* CXYChart_addInterLineLayer(XYChart* chart, Line* first, Line* second, int above,
                                                         int below);

/** Colours of the plot area, as given to CXYChart_setPlotArea. */
CHARTDRAW_API void CPlotArea_setBackground(PlotArea* area, int background, int alternate, int edge);
/** An image file in the plot area, placed as by CBaseChart_setBgImage. */
CHARTDRAW_API void CPlotArea_setBackground2(PlotArea* area, const char* imageFile, int alignment);
/** Backgrounds of the quadrants about the origin: q1 right above, then counter-clockwise. -1 keeps. */
CHARTDRAW_API void CPlotArea_set4QBgColor(PlotArea* area, int q1, int q2, int q3, int q4, int edge);
/** Colours of the grid lines. The minor ones are CHART_TRANSPARENT by default. -1 keeps. */
CHARTDRAW_API void CPlotArea_setGridColor(PlotArea* area, int majorHorizontal, int majorVertical,
                                          int minorHorizontal, int minorVertical);
/** Widths of the grid lines in pixels, 1 by default; below 1 draws none. */
CHARTDRAW_API void CPlotArea_setGridWidth(PlotArea* area, int majorHorizontal, int majorVertical,
                                          int minorHorizontal, int minorVertical);

/* ---- Axes ----------------------------------------------------------------------------------------- */

/** Runs the axis the other way. Default: false. */
CHARTDRAW_API void CAxis_setReverse(Axis* axis, bool reverse);
/** Width of the axis line and ticks in pixels, 1 by default; below 1 draws none. */
CHARTDRAW_API void CAxis_setWidth(Axis* axis, int width);
/** Colours: CHART_LINE_COLOR and CHART_TEXT_COLOR by default, ticks as the axis. -1 keeps. */
CHARTDRAW_API void CAxis_setColors(Axis* axis, int axisColor, int label, int title, int tick);
/** Pixels left free at the upper and the lower end of the scale. Default: 0; negative counts as 0. */
CHARTDRAW_API void CAxis_setMargin(Axis* axis, int top, int bottom);
/** Half a row free at each end of a label axis. Default: as the layers need it, true for bars and boxes. */
CHARTDRAW_API void CAxis_setIndent(Axis* axis, bool indent);
/**
 * On a label axis every majorStep-th row has a label and a major tick, from row majorOffset on; every
 * minorStep-th a minor tick. Default: 1, 0 (none), 0, 0. Below 1 is the default.
 */
CHARTDRAW_API void CAxis_setLabelStep(Axis* axis, int majorStep, int minorStep, int majorOffset,
                                      int minorOffset);
/** Lengths of the ticks in pixels, 4 and 2 by default; negative ticks point inwards. */
CHARTDRAW_API void CAxis_setTickLength2(Axis* axis, int major, int minor);
/** Wanted pixels between ticks of automatic scales. Below 1 is the default, for minor ticks none. */
CHARTDRAW_API void CAxis_setTickDensity(Axis* axis, int majorSpacing, int minorSpacing);
/**
 * Scale from the data (the default). topExtension, bottomExtension: parts of the range, 0 to 1, kept free
 * beyond the data; 0.1 by default. zeroAffinity: 0 to 1, how far the data may be from 0, as part of the
 * largest value, for the scale to start there; 1 always. By default 0 on axes, 0.8 on the radial one of
 * polar charts; bars and areas start at 0 whatever it is.
 */
CHARTDRAW_API void CAxis_setAutoScale(Axis* axis, double topExtension, double bottomExtension,
                                      double zeroAffinity);
/**
 * Linear scale from lower to upper. Increments: between ticks; majorIncrement not above 0 is automatic,
 * minorIncrement not above 0 is none. Limits that are equal or no numbers make the scale automatic; limits
 * in the other order are exchanged.
 */
CHARTDRAW_API void CAxis_setLinearScale(Axis* axis, double lower, double upper, double majorIncrement,
                                        double minorIncrement);
/** Linear scale from the data. format: of the labels; null keeps. */
CHARTDRAW_API void CAxis_setLinearScale3(Axis* axis, const char* format);
/** Logarithmic scale from the data; values not above 0 are not shown. format: of the labels; null keeps. */
CHARTDRAW_API void CAxis_setLogScale3(Axis* axis, const char* format);
/** As CAxis_setLinearScale with chart times and seconds; ticks fall on calendar borders. */
CHARTDRAW_API void CAxis_setDateScale(Axis* axis, double lower, double upper, double majorIncrement,
                                      double minorIncrement);
/** The title. font: null is "bold". size: points. color: -1 is that of CAxis_setColors. */
CHARTDRAW_API TextBox* CAxis_setTitle(Axis* axis, const char* title, const char* font, double size,
                                      int color);
/** Where the title stands along the axis, by alignment code; gap: pixels to the labels, 6 by default. */
CHARTDRAW_API void CAxis_setTitlePos(Axis* axis, int alignment, int gap);
/** Looks of the labels; the box stands for each of them. color: -1 is that of CAxis_setColors. */
CHARTDRAW_API TextBox* CAxis_setLabelStyle(Axis* axis, const char* font, double size, int color,
                                           double angle);
/** Format of the labels: "{value}", or "{label}", shows what they would be without one. */
CHARTDRAW_API void CAxis_setLabelFormat(Axis* axis, const char* format);
/**
 * Makes a label axis, a row a value, the values (often chart times) being shown by format; null shows dates
 * or numbers. Rows with names have the values 0, 1, 2... and a format that lists the names:
 * "{value|\tA\tB\tC}".
 */
CHARTDRAW_API TextBox* CAxis_setLabels2(Axis* axis, const double* values, int count, const char* format);
/**
 * Two formats for the labels of a label or date axis: format1 for those that pass filter1, format2 for others
 * that pass filter2, no label for the rest. Filters: of CChart_encodeFilter. labelSpan: rows from one label
 * to the next at least, 1 and above. promoteFirst: the first label shown takes format1 though it does not
 * pass filter1. The format "-" gives a tick without text. Two filters that pass nothing change nothing.
 * Replaces all filters set before.
 */
CHARTDRAW_API void CAxis_setMultiFormat(Axis* axis, int filter1, const char* format1, int filter2,
                                        const char* format2, int labelSpan, bool promoteFirst);
/** Adds one more filter, for labels that pass none of those set before; see CAxis_setMultiFormat. */
CHARTDRAW_API void CAxis_setMultiFormat2(Axis* axis, int filter, const char* format, int labelSpan,
                                         bool promoteFirst);
/** A line across the plot area at a value, with a label beside the axis. color: -1 is CHART_LINE_COLOR. */
CHARTDRAW_API Mark* CAxis_addMark(Axis* axis, double value, int color, const char* label, const char* font,
                                  double size);
/** Colours the plot area from start to end, in either order, under grid and layers. */
CHARTDRAW_API void CAxis_addZone(Axis* axis, double start, double end, int color);
/** Takes scale, labels, ticks and looks from another axis, which may be of another chart. */
CHARTDRAW_API void CAxis_copyAxis(Axis* axis, Axis* source);
/**
 * Ties the scale to that of another axis of the chart: value here = slope * value there + intercept. A slope
 * of 0 or no number, and a ring of axes, are ignored.
 */
CHARTDRAW_API void CAxis_syncAxis(Axis* axis, Axis* other, double slope, double intercept);
/** The line of a mark, for CXYChart_addInterLineLayer. */
CHARTDRAW_API Line* CMark_getLine(Mark* mark);

/* ---- Layers and data sets ------------------------------------------------------------------------- */

/** One more series. color: -1 is the next series colour. name: in the legend; null or empty is no key. */
CHARTDRAW_API DataSet* CLayer_addDataSet(Layer* layer, const double* data, int count, int color,
                                         const char* name);
/** The series at an index from 0; null past the end. */
CHARTDRAW_API DataSet* CLayer_getDataSet(Layer* layer, int index);
/** Depth in pixels, -1 automatic, 0 flat, at most the longer side of the picture; zGap: pixels between this
 * layer and the next behind. */
CHARTDRAW_API void CLayer_set3D(Layer* layer, int depth, int zGap);
/** Width of the lines in pixels; below 1 draws none. By default 1; of line layers 2, where they have no more
 * points than the picture has columns. */
CHARTDRAW_API void CLayer_setLineWidth(Layer* layer, int width);
/** Border of bars, boxes and areas. color: -1 keeps. effect: of the border or the whole body. */
CHARTDRAW_API void CLayer_setBorderColor(Layer* layer, int color, int effect);
/** The x value of each row, any order; a missing or non-finite one leaves out the row. Default: 0, 1, 2... */
CHARTDRAW_API void CLayer_setXData(Layer* layer, const double* data, int count);
/** The y axis that the layer belongs to, an axis of its chart. Default: the first. */
CHARTDRAW_API void CLayer_setUseYAxis(Layer* layer, Axis* axis);
/** True: the layer belongs to the second y axis; false: to the first. */
CHARTDRAW_API void CLayer_setUseYAxis2(Layer* layer, bool second);
/** Shows a label at each value and gives its looks. color: -1 is CHART_TEXT_COLOR. */
CHARTDRAW_API TextBox* CLayer_setDataLabelStyle(Layer* layer, const char* font, double size, int color,
                                                double angle);
/** Format of the data labels, "{value}" by default. Shown only with CLayer_setDataLabelStyle. */
CHARTDRAW_API void CLayer_setDataLabelFormat(Layer* layer, const char* format);
/** As CLayer_setDataLabelStyle, one label for the sum of each stack of bars. */
CHARTDRAW_API TextBox* CLayer_setAggregateLabelStyle(Layer* layer, const char* font, double size, int color,
                                                     double angle);
/** Format of the labels of sums, "{value}" by default. Shown only with CLayer_setAggregateLabelStyle. */
CHARTDRAW_API void CLayer_setAggregateLabelFormat(Layer* layer, const char* format);
/** Link, query and further attributes for image maps. A picture shows none of it. */
CHARTDRAW_API void CLayer_setHTMLImageMap(Layer* layer, const char* url, const char* query,
                                          const char* extraAttributes);

/** Name in legend and labels; null or empty is none, and no key. */
CHARTDRAW_API void CDataSet_setDataName(DataSet* dataSet, const char* name);
/** Colours of the series, its edge and its 3D sides. -1 is the default, each following from the data colour.
 */
CHARTDRAW_API void CDataSet_setDataColor(DataSet* dataSet, int data, int edge, int shadow, int shadowEdge);
/** Symbol at each point. size: pixels. fill: -1 is the data colour; edge: -1 as the fill. lineWidth: pixels.
 */
CHARTDRAW_API void CDataSet_setDataSymbol(DataSet* dataSet, int symbol, int size, int fill, int edge,
                                          int lineWidth);
/** Outline of the bars of one data set (-1: all) and one row (-1: all). Another code is CHART_NO_SHAPE. */
CHARTDRAW_API void CBarLayer_setBarShape(BarLayer* layer, int shape, int dataGroup, int dataItem);
/** How far bars side by side overlap, 0 to 1, and whether the first of them stands in front. */
CHARTDRAW_API void CBarLayer_setOverlapRatio(BarLayer* layer, double ratio, bool firstOnTop);
/**
 * Space between the bars of two rows, and of one row, as parts of the room that the bars have: 0 to 1.
 * Default: 0.2 and 0. A negative subGap overlaps.
 */
CHARTDRAW_API void CBarLayer_setBarGap(BarLayer* layer, double gap, double subGap);
/** The line of a data set, for CXYChart_addInterLineLayer; null for an index without a data set. */
CHARTDRAW_API Line* CLineLayer_getLine(LineLayer* layer, int dataSet);
/**
 * Symbol sizes by row, in x and in y; an empty array is as the other one. Types: CHART_SCALE_PIXELS; another
 * is taken as that. Both empty: the size of CDataSet_setDataSymbol.
 */
CHARTDRAW_API void CLineLayer_setSymbolScale(LineLayer* layer, const double* xScale, int xCount,
                                             int xScaleType, const double* yScale, int yCount,
                                             int yScaleType);
/** Space between the boxes of two rows as part of a row's room, 0 to 1. Default: 0.5, of candles 0.2. */
CHARTDRAW_API void CBaseBoxLayer_setDataGap(BaseBoxLayer* layer, double gap);
/** Width of the boxes in pixels instead of by the gap; below 1 goes back to the gap. */
CHARTDRAW_API void CBaseBoxLayer_setDataWidth(BaseBoxLayer* layer, int width);
/** A colour and a name for each box, each name a key of the legend; rows past the end repeat the colours. */
CHARTDRAW_API void CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer* layer, const int* colors, int colorCount,
                                                 const char* const* names, int nameCount);
/**
 * Colours price bars. method: CHART_UP_DOWN compares each close with the one before, another value colours
 * none. leadValue: the close before the first row, or -1.7E+308 for none.
 */
CHARTDRAW_API void CHLOCLayer_setColorMethod(HLOCLayer* layer, int method, int rise, int fall,
                                             double leadValue);

/* ---- Boxes and texts ------------------------------------------------------------------------------ */

/** Background, edge and effect. -1 keeps; all CHART_TRANSPARENT and flat unless the adder says otherwise. */
CHARTDRAW_API void CBox_setBackground(Box* box, int background, int edge, int effect);
/** Puts the top left corner at (x, y). Looks of many labels (of axes, layers) ignore it. */
CHARTDRAW_API void CBox_setPos(Box* box, int x, int y);
/** Size in pixels; 0 or below fits that side to the content. */
CHARTDRAW_API void CBox_setSize(Box* box, int width, int height);
/** Height in pixels as it will be drawn, also before the picture is made. */
CHARTDRAW_API int CBox_getHeight(Box* box);

/** The text, which may hold markup and line feeds; in a legend the format of the keys. */
CHARTDRAW_API void CTextBox_setText(TextBox* box, const char* text);
/** Turns the text by degrees counter-clockwise; vertical sets characters one below the other. */
CHARTDRAW_API void CTextBox_setFontAngle(TextBox* box, double angle, bool vertical);
/** Colour of the text; -1 keeps. */
CHARTDRAW_API void CTextBox_setFontColor(TextBox* box, int color);
/** Height of the font in points, and its width where it is to differ; width 0 or below: the same. */
CHARTDRAW_API void CTextBox_setFontSize(TextBox* box, double height, double width);
/** Font file or style word, and the face in a collection, from 0; a "|n" in the name goes before. */
CHARTDRAW_API void CTextBox_setFontStyle(TextBox* box, const char* font, int fontIndex);
/** Where the text stands in the box, by alignment code; another is ignored. For pie labels: at the sector. */
CHARTDRAW_API void CTextBox_setAlignment(TextBox* box, int alignment);
/** Height of the box in pixels; 0 or below fits it to the text. */
CHARTDRAW_API void CTextBox_setHeight(TextBox* box, int height);
/** Space between edge and text in pixels on all sides; below 0 counts as 0. */
CHARTDRAW_API void CTextBox_setMargin(TextBox* box, int margin);
/** As CTextBox_setMargin, side by side. */
CHARTDRAW_API void CTextBox_setMargin2(TextBox* box, int left, int right, int top, int bottom);
/**
 * A key of its own, after those of the series. text: shown as it stands. color: of the mark; -1 is
 * CHART_LINE_COLOR. lineWidth: above 0 a line, else a box. symbol: picture instead; null none.
 */
CHARTDRAW_API void CLegendBox_addKey(LegendBox* legend, const char* text, int color, int lineWidth,
                                     DrawArea* symbol);

/* ---- Pie ------------------------------------------------------------------------------------------ */

/** Centre and radius in pixels. A radius below 1 draws no pie. */
CHARTDRAW_API void CPieChart_setPieSize(PieChart* chart, int x, int y, int radius);
/**
 * A sector a value; negative values and gaps have none but keep their index. labels: missing ones are empty.
 */
CHARTDRAW_API void CPieChart_setData(PieChart* chart, const double* values, int count,
                                     const char* const* labels, int labelCount);
/** Format of the labels: {label}, {value}, {percent}, {sector}. Default: "{label}\n{percent|2}%". */
CHARTDRAW_API void CPieChart_setLabelFormat(PieChart* chart, const char* format);
/** Looks of the labels; the box stands for each of them. color: -1 is CHART_TEXT_COLOR. */
CHARTDRAW_API TextBox* CPieChart_setLabelStyle(PieChart* chart, const char* font, double size, int color);
/**
 * Places the labels. layout: CHART_CIRCLE_LAYOUT (default, any other) or CHART_SIDE_LAYOUT. position: pixels
 * from the rim; -1 is automatic, other negative ones are inside, which only the circle layout takes. top,
 * bottom: the rows between which side labels stand; -1 is automatic.
 */
CHARTDRAW_API void CPieChart_setLabelLayout(PieChart* chart, int layout, int position, int top, int bottom);
/** Edge of the sectors, fine white lines by default, and lines to the labels, CHART_LINE_COLOR. -1 keeps. */
CHARTDRAW_API void CPieChart_setLineColor(PieChart* chart, int edge, int joinLine);
/** Where the first sector begins, degrees clockwise from the top, and the way round. Default: 0, true. */
CHARTDRAW_API void CPieChart_setStartAngle(PieChart* chart, double angle, bool clockwise);
/**
 * 3D. depth: pixels, below 0 automatic. angle: degrees, -1 is 45. Without shadowMode the pie is tilted by it,
 * from 0, seen from above, to 90, seen from the side. With it the face stays round and the body lies aside,
 * to the right for 0 and below for 90; any angle is taken.
 */
CHARTDRAW_API void CPieChart_set3D(PieChart* chart, int depth, double angle, bool shadowMode);
/** Centre and the two radii of a ring, in either order: the larger is the outer. Pixels. */
CHARTDRAW_API void CPieChart_setDonutSize(PieChart* chart, int x, int y, int r, int r2);
/** The sector at an index from 0; null where there is no such value. It belongs to the chart. */
CHARTDRAW_API Sector* CPieChart_sector(PieChart* chart, int index);
/** Colours of one sector. -1 keeps: the series colours, and those of CPieChart_setLineColor. */
CHARTDRAW_API void CSector_setColor(Sector* sector, int fill, int edge, int joinLine);
/** Moves the sector outwards by pixels; -1 is automatic. */
CHARTDRAW_API void CSector_setExplode(Sector* sector, int distance);

/* ---- Meters --------------------------------------------------------------------------------------- */

/**
 * Scale and increments of its ticks. major: not above 0 is automatic, and only it has labels. minor, micro:
 * not above 0 is none. Increments too small to be read are taken wider. Limits that are equal or no numbers
 * are 0 to 100, which is the default; lower above upper runs the scale the other way.
 */
CHARTDRAW_API void CBaseMeter_setScale(BaseMeter* meter, double lower, double upper, double major,
                                       double minor, double micro);
/**
 * Looks of the labels; the box stands for each of them. color: -1 is CHART_TEXT_COLOR; axis line and ticks
 * follow it. Labels without room beside each other are left out.
 */
CHARTDRAW_API TextBox* CBaseMeter_setLabelStyle(BaseMeter* meter, const char* font, double size, int color,
                                                double angle);
/** Widths in pixels of the axis line and of the ticks; below 1 is none. Default: 0, 1, 1, 1. */
CHARTDRAW_API void CBaseMeter_setLineWidth(BaseMeter* meter, int axis, int majorTick, int minorTick,
                                           int microTick);
/**
 * A pointer at a value, limited to the scale; a value that is no number shows none. Pointers lie over
 * everything else, in the order in which they are added. color: -1 is CHART_LINE_COLOR. edge: -1 as color.
 */
CHARTDRAW_API MeterPointer* CBaseMeter_addPointer(BaseMeter* meter, double value, int color, int edge);
/**
 * shape: a pointer code, another is CHART_DIAMOND_POINTER. Ratios: to the usual length and width; not above 0
 * keeps, above 100 is 100. The usual length goes from the centre of a round scale to its circle, and across
 * the bar of a straight one, where the tip stays at the scale.
 */
CHARTDRAW_API void CMeterPointer_setShape(MeterPointer* pointer, int shape, double lengthRatio,
                                          double widthRatio);
/**
 * Centre and radius in pixels, and the angles of the scale's ends in degrees clockwise from the top; an end
 * below the start runs anticlockwise. Equal angles or more than a turn are a full turn. Default: -90 to 90 in
 * the middle of the picture. Ticks stand inside the circle, labels outside it and beyond rings whose border
 * they would lie on; where the picture has no room for them there, inside the ticks.
 */
CHARTDRAW_API void CAngularMeter_setMeter(AngularMeter* meter, int x, int y, int radius, double startAngle,
                                          double endAngle);
/** A full ring between two radii in pixels, in either order. -1 is CHART_TRANSPARENT for the edge. */
CHARTDRAW_API void CAngularMeter_addRing(AngularMeter* meter, int startRadius, int endRadius, int fill,
                                         int edge);
/** Colours the sector between two values of the scale, over the rings. edge: -1 as the fill. */
CHARTDRAW_API void CAngularMeter_addZone2(AngularMeter* meter, double start, double end, int fill, int edge);
/**
 * The bar of the meter in pixels. axisPosition: its side at which ticks and labels stand: CHART_LEFT or
 * CHART_RIGHT makes it upright, CHART_TOP or CHART_BOTTOM lying; another is CHART_LEFT. The lower limit is
 * below or at the left; reverse: above or at the right.
 */
CHARTDRAW_API void CLinearMeter_setMeter(LinearMeter* meter, int left, int top, int width, int height,
                                         int axisPosition, bool reverse);
/**
 * Colours the bar between two values. label: in the zone, off the pointers if it can; beside the bar where it
 * has no room in the zone. Null or empty is none. The box gives its looks.
 */
CHARTDRAW_API TextBox* CLinearMeter_addZone(LinearMeter* meter, double start, double end, int color,
                                            const char* label);

/* ---- Polar ---------------------------------------------------------------------------------------- */

/**
 * Centre and radius in pixels. Colours: -1 is CHART_TRANSPARENT. edgeWidth: pixels. Default: in the middle of
 * the picture, no background and no edge.
 */
CHARTDRAW_API void CPolarChart_setPlotArea(PolarChart* chart, int x, int y, int radius, int background,
                                           int edge, int edgeWidth);
/** Two colours that alternate from ring to ring, or from sector to sector for false. -1: as background. */
CHARTDRAW_API void CPolarChart_setPlotAreaBg(PolarChart* chart, int first, int second, bool alternateRings);
/** Colours and widths (pixels, below 1: none) of the rings and of the spokes. -1 keeps; light grey, 1. */
CHARTDRAW_API void CPolarChart_setGridColor(PolarChart* chart, int radial, int radialWidth, int angular,
                                            int angularWidth);
/**
 * polygon: rings, plot area and zones are polygons with corners at the spokes. onTop: grid over the layers.
 * Default: false, true.
 */
CHARTDRAW_API void CPolarChart_setGridStyle(PolarChart* chart, bool polygon, bool onTop);
/** The round axis; the same on each call. It belongs to the chart. */
CHARTDRAW_API AngularAxis* CPolarChart_angularAxis(PolarChart* chart);
/**
 * The axis from the centre upwards; the same on each call. It belongs to the chart. Values below its scale
 * are at the centre, values above it are cut off at the rim.
 */
CHARTDRAW_API Axis* CPolarChart_radialAxis(PolarChart* chart);
/**
 * A line through radius values. color: -1 is the next series colour. name: in the legend; null or empty is no
 * key. The angles are even steps of the axis (with labels, as many as those), or those of
 * CPolarLayer_setAngles.
 */
CHARTDRAW_API PolarLineLayer* CPolarChart_addLineLayer(PolarChart* chart, const double* data, int count,
                                                       int color, const char* name);
/** A smooth curve; see CPolarChart_addLineLayer. */
CHARTDRAW_API PolarSplineLineLayer* CPolarChart_addSplineLineLayer(PolarChart* chart, const double* data,
                                                                   int count, int color, const char* name);
/** A filled area; see CPolarChart_addLineLayer. */
CHARTDRAW_API PolarAreaLayer* CPolarChart_addAreaLayer(PolarChart* chart, const double* data, int count,
                                                       int color, const char* name);
/** A filled area with a smooth border; see CPolarChart_addLineLayer. */
CHARTDRAW_API PolarSplineAreaLayer* CPolarChart_addSplineAreaLayer(PolarChart* chart, const double* data,
                                                                   int count, int color, const char* name);
/** The angle of each row in units of the angular axis, beyond whose ends it goes on round; rows past the end
 * of the array are left out. No angles: even steps. */
CHARTDRAW_API void CPolarLayer_setAngles(PolarLayer* layer, const double* angles, int count);
/** Shows a label at each value and gives its looks. color: -1 is CHART_TEXT_COLOR. */
CHARTDRAW_API TextBox* CPolarLayer_setDataLabelStyle(PolarLayer* layer, const char* font, double size,
                                                     int color, double angle);
/**
 * Format of the data labels: {value}, {angle}, {xLabel}, {dataSetName}, {dataItem}; "{value}" by default.
 * Shown only with CPolarLayer_setDataLabelStyle.
 */
CHARTDRAW_API void CPolarLayer_setDataLabelFormat(PolarLayer* layer, const char* format);
/** Symbol at each point; see CDataSet_setDataSymbol. */
CHARTDRAW_API void CPolarLayer_setDataSymbol(PolarLayer* layer, int symbol, int size, int fill, int edge,
                                             int lineWidth);
/** Width of the line or border in pixels, 1 by default; below 1 draws none. */
CHARTDRAW_API void CPolarLayer_setLineWidth(PolarLayer* layer, int width);
/** Symbol sizes by row; rows past the end have the usual one. scaleType: CHART_SCALE_PIXELS, as any other. */
CHARTDRAW_API void CPolarLayer_setSymbolScale(PolarLayer* layer, const double* scale, int count,
                                              int scaleType);
/** Joins the last point to the first. Default: true. */
CHARTDRAW_API void CPolarLineLayer_setCloseLoop(PolarLineLayer* layer, bool close);
/**
 * Scale of the whole turn, clockwise from the top; lower above upper runs it the other way. Increments not
 * above 0: major automatic, minor none. Limits that are equal or no numbers are the default, 0 to 360.
 */
CHARTDRAW_API void CAngularAxis_setLinearScale(AngularAxis* axis, double lower, double upper,
                                               double majorIncrement, double minorIncrement);
/** Texts at even steps around, from the top; one spoke each. No labels: the scale's numbers come back. */
CHARTDRAW_API void CAngularAxis_setLabels(AngularAxis* axis, const char* const* labels, int count);
/** Looks of the labels; the box stands for each of them. color: -1 is CHART_TEXT_COLOR. */
CHARTDRAW_API TextBox* CAngularAxis_setLabelStyle(AngularAxis* axis, const char* font, double size, int color,
                                                  double angle);
/** Colours the sector clockwise from one value of the axis to another. edge: -1 is CHART_TRANSPARENT. */
CHARTDRAW_API void CAngularAxis_addZone2(AngularAxis* axis, double start, double end, int fill, int edge);

/* ---- Random tables -------------------------------------------------------------------------------- */

/**
 * A table of random numbers for sample data, all 0 at first. One seed gives the same numbers on every
 * platform, and a column's numbers depend on the seed and the column alone, not on what was filled before.
 * columns: 0 to 1000. rows: 0 to 1000000; at most 10000000 cells, else fewer rows. The caller owns the table.
 */
CHARTDRAW_API RanTable* CRanTable_create(int seed, int columns, int rows);
/** Ends a table and the columns that it gave out. Null is ignored. */
CHARTDRAW_API void CRanTable_destroy(RanTable* table);
/**
 * Fills a column with values spread evenly over [minimum, maximum]; limits in the other order are exchanged,
 * and one that is NaN counts as the other. A column that is not there is ignored, here and below.
 */
CHARTDRAW_API void CRanTable_setCol(RanTable* table, int column, double minimum, double maximum);
/**
 * Fills a column with chart times from start on, step seconds apart. weekdaysOnly: Saturdays and Sundays are
 * passed over, a row on one of them moving on (back for a negative step) to the next weekday.
 */
CHARTDRAW_API void CRanTable_setDateCol(RanTable* table, int column, double start, double step,
                                        bool weekdaysOnly);
/**
 * Fills four columns with high, low, open and close prices: low <= open, close <= high in each row. The close
 * walks from start by steps between minimumDelta and maximumDelta, each row opens where the one before
 * closed, and all prices stay within [lower, upper]; an upper limit of 1E+308 is none. Limits and deltas in
 * the other order are exchanged, and a start outside the limits is moved to the nearer one.
 */
CHARTDRAW_API void CRanTable_setHLOCCols(RanTable* table, int firstColumn, double start, double minimumDelta,
                                         double maximumDelta, double lower, double upper);
/** The numbers of a column, which belong to the table; null and 0 for a column that is not there. */
CHARTDRAW_API void CRanTable_getCol(RanTable* table, int column, const double** data, int* count);

/* ---- Array maths ---------------------------------------------------------------------------------- */

/**
 * A copy of a series to calculate with, to be ended by the caller. All operations work in place, row by row,
 * and follow one rule: CHART_NO_VALUE (or NaN, or what cannot be calculated) in a row or in the history that
 * the row needs gives CHART_NO_VALUE; a second series that is shorter lacks its last rows.
 */
CHARTDRAW_API ArrayMath* CArrayMath_create(const double* data, int count);
/** Ends an object and the array that it gave out. Null is ignored. */
CHARTDRAW_API void CArrayMath_destroy(ArrayMath* array);
/** The series as it stands, which belongs to the object and changes with later operations. */
CHARTDRAW_API void CArrayMath_result(ArrayMath* array, const double** data, int* count);
/** a + b. */
CHARTDRAW_API void CArrayMath_add(ArrayMath* array, const double* data, int count);
/** a - b. */
CHARTDRAW_API void CArrayMath_sub(ArrayMath* array, const double* data, int count);
/** a * factor. */
CHARTDRAW_API void CArrayMath_mul2(ArrayMath* array, double factor);
/** a / divisor; a divisor of 0 leaves no values. */
CHARTDRAW_API void CArrayMath_div2(ArrayMath* array, double divisor);
/** a / b; zeroByZero where both are 0, CHART_NO_VALUE where b alone is. */
CHARTDRAW_API void CArrayMath_financeDiv(ArrayMath* array, const double* divisor, int count,
                                         double zeroByZero);
/** The absolute values. */
CHARTDRAW_API void CArrayMath_abs(ArrayMath* array);
/** Difference to the value offset rows before; the first offset rows have none. Below 1 counts as 1. */
CHARTDRAW_API void CArrayMath_delta(ArrayMath* array, int offset);
/**
 * Mean of the last interval rows, this one included; the first interval - 1 rows have none. An interval below
 * 1 counts as 1 here and in the moving operations below.
 */
CHARTDRAW_API void CArrayMath_movAvg(ArrayMath* array, int interval);
/** Largest of the last interval rows. */
CHARTDRAW_API void CArrayMath_movMax(ArrayMath* array, int interval);
/** Smallest of the last interval rows. */
CHARTDRAW_API void CArrayMath_movMin(ArrayMath* array, int interval);
/** Standard deviation of the last interval rows, in the population form (divided by interval). */
CHARTDRAW_API void CArrayMath_movStdDev(ArrayMath* array, int interval);
/**
 * Exponential moving average: average += smoothing * (value - average), from the first value on. A gap is a
 * gap in the result, and the average goes on after it. smoothing: limited to 0 to 1; NaN leaves no values.
 */
CHARTDRAW_API void CArrayMath_expAvg(ArrayMath* array, double smoothing);
/** The largest value; gaps are passed over, and 0 where there is none. */
CHARTDRAW_API double CArrayMath_max(ArrayMath* array);
/** a where b is above 0, else fill. An empty b: a is its own test. */
CHARTDRAW_API void CArrayMath_selectGTZ(ArrayMath* array, const double* data, int count, double fill);
/** a where b is below 0, else fill. An empty b: a is its own test. */
CHARTDRAW_API void CArrayMath_selectLTZ(ArrayMath* array, const double* data, int count, double fill);
/** a where b is 0, else fill. An empty b: a is its own test. */
CHARTDRAW_API void CArrayMath_selectEQZ(ArrayMath* array, const double* data, int count, double fill);

/* ---- Draw area ------------------------------------------------------------------------------------ */

/** Width in pixels. */
CHARTDRAW_API int CDrawArea_getWidth(DrawArea* area);
/** Height in pixels. */
CHARTDRAW_API int CDrawArea_getHeight(DrawArea* area);
/** Reads an image file, and takes its size; false, and no change, where it cannot be read. */
CHARTDRAW_API bool CDrawArea_load(DrawArea* area, const char* imageFile);
/** Ends an area that the caller made. One of CBaseChart_getDrawArea, the only kind that there is, ends with
 * its chart, and this is ignored. */
CHARTDRAW_API void CDrawArea_destroy(DrawArea* area);

/* ---- Casts: the same object as its base kind; null for null or another kind ------------------------- */

/** A XYChart as BaseChart. */
CHARTDRAW_API BaseChart* XYChart2BaseChart(XYChart* object);
/** A PieChart as BaseChart. */
CHARTDRAW_API BaseChart* PieChart2BaseChart(PieChart* object);
/** A PolarChart as BaseChart. */
CHARTDRAW_API BaseChart* PolarChart2BaseChart(PolarChart* object);
/** A MultiChart as BaseChart. */
CHARTDRAW_API BaseChart* MultiChart2BaseChart(MultiChart* object);
/** A BaseMeter as BaseChart. */
CHARTDRAW_API BaseChart* BaseMeter2BaseChart(BaseMeter* object);
/** A AngularMeter as BaseMeter. */
CHARTDRAW_API BaseMeter* AngularMeter2BaseMeter(AngularMeter* object);
/** A LinearMeter as BaseMeter. */
CHARTDRAW_API BaseMeter* LinearMeter2BaseMeter(LinearMeter* object);
/** A BarLayer as Layer. */
CHARTDRAW_API Layer* BarLayer2Layer(BarLayer* object);
/** A LineLayer as Layer. */
CHARTDRAW_API Layer* LineLayer2Layer(LineLayer* object);
/** A AreaLayer as Layer. */
CHARTDRAW_API Layer* AreaLayer2Layer(AreaLayer* object);
/** A InterLineLayer as Layer. */
CHARTDRAW_API Layer* InterLineLayer2Layer(InterLineLayer* object);
/** A BaseBoxLayer as Layer. */
CHARTDRAW_API Layer* BaseBoxLayer2Layer(BaseBoxLayer* object);
/** A SplineLayer as LineLayer. */
CHARTDRAW_API LineLayer* SplineLayer2LineLayer(SplineLayer* object);
/** A StepLineLayer as LineLayer. */
CHARTDRAW_API LineLayer* StepLineLayer2LineLayer(StepLineLayer* object);
/** A HLOCLayer as BaseBoxLayer. */
CHARTDRAW_API BaseBoxLayer* HLOCLayer2BaseBoxLayer(HLOCLayer* object);
/** A CandleStickLayer as BaseBoxLayer. */
CHARTDRAW_API BaseBoxLayer* CandleStickLayer2BaseBoxLayer(CandleStickLayer* object);
/** A BoxWhiskerLayer as BaseBoxLayer. */
CHARTDRAW_API BaseBoxLayer* BoxWhiskerLayer2BaseBoxLayer(BoxWhiskerLayer* object);
/** A PolarLineLayer as PolarLayer. */
CHARTDRAW_API PolarLayer* PolarLineLayer2PolarLayer(PolarLineLayer* object);
/** A PolarAreaLayer as PolarLayer. */
CHARTDRAW_API PolarLayer* PolarAreaLayer2PolarLayer(PolarAreaLayer* object);
/** A PolarSplineLineLayer as PolarLineLayer. */
CHARTDRAW_API PolarLineLayer* PolarSplineLineLayer2PolarLineLayer(PolarSplineLineLayer* object);
/** A PolarSplineAreaLayer as PolarAreaLayer. */
CHARTDRAW_API PolarAreaLayer* PolarSplineAreaLayer2PolarAreaLayer(PolarSplineAreaLayer* object);
/** A TextBox as Box. */
CHARTDRAW_API Box* TextBox2Box(TextBox* object);
/** A LegendBox as TextBox. */
CHARTDRAW_API TextBox* LegendBox2TextBox(LegendBox* object);
/** A Mark as TextBox. */
CHARTDRAW_API TextBox* Mark2TextBox(Mark* object);
/** A Box as DrawObj. */
CHARTDRAW_API DrawObj* Box2DrawObj(Box* object);
/** A Line as DrawObj. */
CHARTDRAW_API DrawObj* Line2DrawObj(Line* object);
/** A MeterPointer as DrawObj. */
CHARTDRAW_API DrawObj* MeterPointer2DrawObj(MeterPointer* object);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
