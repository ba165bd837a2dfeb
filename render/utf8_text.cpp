#include "render/utf8_text.h"
#include "platform/narrow_text.h"

CUtf8Text::CUtf8Text(const char* narrow)
    : m_text(narrow ? platform::NarrowToUtf8(narrow) : std::string()), m_isNull(!narrow) {}
