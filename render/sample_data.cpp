#include "render/sample_data.h"
#include "resources/string_table.h"
#include <algorithm>
#include <cmath>
#include <functional>

std::span<const double> CRandomTable::Column(int column) const {
    const double* data = nullptr;
    int count = 0;
    CRanTable_getCol(m_table, column, &data, &count);
    return {data, static_cast<std::size_t>(count)};
}

CRoundedData::CRoundedData(const CRandomTable& table, int column) {
    for (const double value : table.Column(column))
        m_values.push_back(std::floor(value + 0.5));
}

void CRoundedData::SortDown() {
    std::sort(m_values.begin(), m_values.end(), std::greater());
}

std::string FormatChartString(int number, int value) {
    std::string text = LoadChartString(number);
    if (const auto place = text.find("%d"); place != std::string::npos)
        text.replace(place, 2, std::to_string(value));
    return text;
}

std::vector<const char*> TextPointers(const std::vector<std::string>& texts) {
    std::vector<const char*> pointers;
    for (const std::string& text : texts)
        pointers.push_back(text.c_str());
    return pointers;
}
