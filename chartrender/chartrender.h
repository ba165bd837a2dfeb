#pragma once

/// @file
/// Finished charts as pictures: the look from the value model, the data from the host.
///
///     const double values[] = {25, 18, 15};
///     const char* labels[] = {"Labour", "Licences", "Taxes"};
///     CChartPicture picture;
///     if (RenderPieChart(pie, layout, {values, labels, 3}, ChartPictureFormat::Png, picture) ==
///         ChartRenderResult::Ok)
///         picture.Save("costs.png");
///
/// What the editors preview is what is rendered here. Texts are narrow, in the locale's encoding, as those of
/// the model. Nothing throws. Different threads may render at once.

#include <charteditors/chart_layout.h>
#include <charteditors/pie_chart.h>
#include <cstddef>

#if defined(_WIN32)
#if defined(CHARTRENDER_BUILD)
#define CHARTRENDER_API __declspec(dllexport)
#else
#define CHARTRENDER_API __declspec(dllimport)
#endif
#else
#define CHARTRENDER_API __attribute__((visibility("default")))
#endif

/// How rendering went. With every other result than Ok the picture is empty.
enum class ChartRenderResult {
    Ok,
    BadData,  ///< A negative count, or no values where the count says there are.
    NoPicture ///< The layout's width or height is below 1 or above 16384 pixels, or there is no memory.
};

enum class ChartPictureFormat {
    Bmp, ///< 24 bits a pixel.
    Png
};

/// The bytes of a picture file; empty at first.
class CHARTRENDER_API CChartPicture {
public:
    CChartPicture();
    ~CChartPicture();
    CChartPicture(const CChartPicture&) = delete;
    CChartPicture& operator=(const CChartPicture&) = delete;

    bool Empty() const;
    const unsigned char* Data() const; ///< Good until the next rendering into this picture; null if empty.
    std::size_t Size() const;          ///< In bytes.

    /// Writes the file, in the place of an old one. False for an empty picture, or if the file cannot be
    /// written whole; an old one then stays as it was.
    bool Save(const char* path) const;

private:
    friend struct CChartPictureAccess;
    void* m_bytes; // the library's own buffer, null while empty
};

/// The data of a pie. The arrays stay the host's, and are only read during the call.
struct CPieChartData {
    const double* values;      ///< One for each sector. Negative values and NaN have no sector.
    const char* const* labels; ///< As many; null, also for one of them, is the name of the model's sector.
    int count;                 ///< Of the values; colours and names of model sectors beyond it are not used.
};

/// Renders a pie of the host's data into `picture`. Sectors beyond those of the model have the default
/// colours.
CHARTRENDER_API ChartRenderResult RenderPieChart(const CPieChart& chart, const CChartLayout& layout,
                                                 const CPieChartData& data, ChartPictureFormat format,
                                                 CChartPicture& picture);
