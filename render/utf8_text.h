#pragma once
// The model's narrow text on its way to the drawing library, which takes UTF-8.

#include <charteditors/chart_string.h>
#include <string>

/// One text argument of a call. It is to live until the call returns, as a temporary in the call does.
class CUtf8Text {
public:
    /// Null stays null.
    explicit CUtf8Text(const char* narrow);
    explicit CUtf8Text(const CChartString& narrow) : CUtf8Text(narrow.data()) {}
    CUtf8Text(const CUtf8Text&) = delete;
    CUtf8Text& operator=(const CUtf8Text&) = delete;

    operator const char*() const { return m_isNull ? nullptr : m_text.c_str(); }

private:
    std::string m_text;
    bool m_isNull;
};
