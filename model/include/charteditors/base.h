#pragma once

/// @file
/// What every header of the value model stands on: the export mark, the integer types, and the number codes
/// that the whole model shares.
///
/// **Colour value**: 32 bits, 0xAARRGGBB, where AA counts transparency: 0 is opaque, 0xFF fully transparent.
/// 0xFF000000 is the transparent colour; 0xFFFFFFFF leaves the choice to the drawing library.
///
/// **Alignment code**: a position in a box. 7 top left, 8 top centre, 9 top right, 4 left, 5 centre, 6 right,
/// 1 bottom left, 2 bottom centre, 3 bottom right, and outside the corners 10 top left, 11 top right,
/// 12 bottom left, 13 bottom right.
///
/// **Side code**: 4 left, 6 right, 8 top, 2 bottom.
///
/// **Angles** are in degrees: those of texts turn counter-clockwise, those of pies, meters and polar charts
/// run clockwise from straight up.
///
/// **Text**: narrow, zero-terminated, in the locale's encoding; see CChartString.
///
/// Every class owns what it holds and copies by value. Any of them may be made before an application object
/// exists. Different objects may be used on different threads; one object has no lock. When memory runs out,
/// std::bad_alloc leaves the library; no object is then left half made or pointing at what is gone.

#include <cstdint>

#if defined(_WIN32)
#if defined(CHARTEDITORS_BUILD)
#define CHARTEDITORS_API __declspec(dllexport)
#elif defined(CHARTEDITORS_ROOM) // in or beside the library, as the linker finds it
#define CHARTEDITORS_API
#else
#define CHARTEDITORS_API __declspec(dllimport)
#endif
#else
#define CHARTEDITORS_API __attribute__((visibility("default")))
#endif
