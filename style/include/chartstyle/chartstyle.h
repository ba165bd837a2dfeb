#pragma once

/// @file
/// The look of a chart as a text, to be kept in a file, sent or put on the clipboard.
///
///     CChartStyleText text, report;
///     WriteChartStyle(pie, &layout, text);
///     ReadChartStyle(text.Data(), text.Size(), otherPie, &otherLayout, report);
///
/// The text is JSON in UTF-8: `{"chartStyle":1,"kind":"pie","chart":{...},"layout":{...}}`. Keys are the
/// names of the fields without m_, in the order of the headers. Codes are words where they have one ("top",
/// "stack"), else numbers; colour values are "0xAARRGGBB"; numbers that JSON does not know are "nan", "inf",
/// "-inf" and "-0". A list is an array; an axis that is named by a layer or an axis is its index in the
/// chart's axes, or null.
///
/// A text need not be whole: what it does not name stays as it is, so that a short text is a patch. A list
/// that it names is replaced, and the items start with their defaults. A layer needs its "type".
///
/// Nothing throws. Different objects may be read and written on different threads at once.

#include <charteditors/charteditors.h>
#include <cstddef>

#if defined(CHARTSTYLE_ROOM) // inside another library
#define CHARTSTYLE_API
#elif defined(_WIN32)
#if defined(CHARTSTYLE_BUILD)
#define CHARTSTYLE_API __declspec(dllexport)
#else
#define CHARTSTYLE_API __declspec(dllimport)
#endif
#else
#define CHARTSTYLE_API __attribute__((visibility("default")))
#endif

/// What a text describes.
enum class ChartStyleKind { None, Layout, XY, Pie, Finance, Polar, AngularMeter, LinearMeter };

/// How reading went. With every other result than Ok nothing has changed.
enum class ChartStyleResult {
    Ok,      ///< The report names what was passed over: keys that are unknown, a version that is newer.
    BadText, ///< No style, or a value of the wrong type or out of range: the report names line and path. Also
             ///< a text of over 16 MB, nested deeper than 32, or with a list of over 10,000 items; or no
             ///< memory.
    OtherKind, ///< A style of another kind of chart.
};

/// A text that the library has made, UTF-8; empty at first.
class CHARTSTYLE_API CChartStyleText {
public:
    CChartStyleText();
    ~CChartStyleText();
    CChartStyleText(const CChartStyleText&) = delete;
    CChartStyleText& operator=(const CChartStyleText&) = delete;

    const char* Data() const; ///< Zero-terminated, never null. Good until the text is next made.
    std::size_t Size() const; ///< In bytes, without the zero.

private:
    friend struct CChartStyleAccess;
    void* m_bytes; // the library's own buffer, null while empty
};

/// The kind of a text, None if it is no style.
CHARTSTYLE_API ChartStyleKind ChartStyleKindOf(const char* text, std::size_t size);

/// For each kind of chart three functions:
///
/// - WriteChartStyle writes all fields of `chart` and, unless it is null, of `layout`. False if memory runs
/// out; the
///   text is then empty.
/// - ReadChartStyle takes what `text` says. A null `layout` leaves the text's layout out. `report` gets a
/// line for
///   each remark, "line 3: chart.sectors[1].color: unknown".
/// - MergeChartStyle writes like WriteChartStyle but keeps what `old` holds beyond the known keys, so that a
/// text of
///   a newer version loses nothing. An `old` that is no style counts as an empty one.
#define CHARTSTYLE_KIND(Chart)                                                                               \
    CHARTSTYLE_API bool WriteChartStyle(const Chart& chart, const CChartLayout* layout,                      \
                                        CChartStyleText& text);                                              \
    CHARTSTYLE_API ChartStyleResult ReadChartStyle(const char* text, std::size_t size, Chart& chart,         \
                                                   CChartLayout* layout, CChartStyleText& report);           \
    CHARTSTYLE_API bool MergeChartStyle(const char* old, std::size_t size, const Chart& chart,               \
                                        const CChartLayout* layout, CChartStyleText& text)

CHARTSTYLE_KIND(CXYChart);
CHARTSTYLE_KIND(CPieChart);
CHARTSTYLE_KIND(CFinanceChart);
CHARTSTYLE_KIND(CPolarChart);
CHARTSTYLE_KIND(CAngularMeter);
CHARTSTYLE_KIND(CLinearMeter);

#undef CHARTSTYLE_KIND

/// A layout alone: the kind "layout".
CHARTSTYLE_API bool WriteChartStyle(const CChartLayout& layout, CChartStyleText& text);
/// Takes the layout of a text of any kind.
CHARTSTYLE_API ChartStyleResult ReadChartStyle(const char* text, std::size_t size, CChartLayout& layout,
                                               CChartStyleText& report);
/// The layout alone, over what `old` holds.
CHARTSTYLE_API bool MergeChartStyle(const char* old, std::size_t size, const CChartLayout& layout,
                                    CChartStyleText& text);
