#include <charteditors/chart_string.h>
#include <string>

namespace {

std::string& edit(void*& text) {
    if (!text)
        text = new std::string;
    return *static_cast<std::string*>(text);
}

const char* orEmpty(const char* text) {
    return text ? text : "";
}

} // namespace

CChartString::CChartString() : m_text(nullptr) {}

CChartString::CChartString(const CChartString& other) : CChartString() {
    *this = other;
}

CChartString::~CChartString() {
    delete static_cast<std::string*>(m_text);
}

CChartString& CChartString::operator=(const char* text) {
    text = orEmpty(text);
    if (m_text || *text)
        edit(m_text) = text;
    return *this;
}

CChartString& CChartString::operator=(const CChartString& other) {
    if (this != &other)
        *this = other.data();
    return *this;
}

CChartString& CChartString::operator+=(const char* text) {
    text = orEmpty(text);
    if (*text)
        edit(m_text) += text;
    return *this;
}

CChartString& CChartString::operator+=(const CChartString& other) {
    return *this += other.data();
}

const char* CChartString::data() const {
    return m_text ? static_cast<const std::string*>(m_text)->c_str() : "";
}

std::size_t CChartString::size() const {
    return m_text ? static_cast<const std::string*>(m_text)->size() : 0;
}

bool CChartString::empty() const {
    return size() == 0;
}
