#pragma once

/// @file
/// What rendering of any kind leaves: a result and a picture.

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
    BadData,  ///< The data break a rule of their structure, such as a negative count.
    NoPicture ///< The layout's width or height is below 1 or above 16384 pixels, or there is no memory.
};

/// The kind of picture file.
enum class ChartPictureFormat {
    Bmp, ///< 24 bits a pixel.
    Png  ///< 24 bits a pixel.
};

/// The bytes of a picture file; empty at first.
class CHARTRENDER_API CChartPicture {
public:
    CChartPicture();
    ~CChartPicture();
    CChartPicture(const CChartPicture&) = delete;
    CChartPicture& operator=(const CChartPicture&) = delete;

    bool Empty() const;                ///< Whether there is no picture.
    const unsigned char* Data() const; ///< Good until the next rendering into this picture; null if empty.
    std::size_t Size() const;          ///< In bytes.

    /// Writes the file, in the place of an old one. False for an empty picture, or if the file cannot be
    /// written whole; an old one then stays as it was.
    bool Save(const char* path) const;

private:
    friend struct CChartPictureAccess;
    void* m_bytes; // the library's own buffer, null while empty
};
