#pragma once

/// @file
/// The text type of the value model.

#include <charteditors/base.h>
#include <cstddef>

/// A byte string: narrow text in the locale's encoding, or UTF-8 where the locale names none. It is turned
/// into UTF-8 only on its way to the drawing library. It never holds a zero byte.
class CHARTEDITORS_API CChartString {
public:
    CChartString(); ///< Empty; allocates nothing.
    CChartString(const CChartString& other);
    ~CChartString();

    /// Replaces the contents by a copy of `text` up to its first zero byte; null counts as empty. `text` may
    /// point into this string. Throws std::length_error when the length cannot be represented.
    CChartString& operator=(const char* text);
    CChartString& operator=(const CChartString& other);

    /// Appends a copy of `text`, with the rules of assignment.
    CChartString& operator+=(const char* text);
    CChartString& operator+=(const CChartString& other);

    /// The zero-terminated text, never null. Good until the string is next changed or destroyed.
    const char* data() const;
    std::size_t size() const; ///< Length in bytes.
    bool empty() const;       ///< Whether the length is 0.

private:
    void* m_text; // the library's own string, null until there is a text
};
