#include "engine/xy/data_set.h"

#include "engine/chart/chart.h"

#include <algorithm>
#include <utility>

namespace chartdraw {

DataSet::DataSet(Chart& chart, Numbers data, Colour colour, std::string name)
    : Part(Kind::DataSet, chart), m_data(std::move(data)), m_colour(colour), m_name(std::move(name)) {}

Colour DataSet::edge(Colour layerBorder) const {
    return orDefault(m_edge, orDefault(layerBorder, kTransparent));
}

void DataSet::setName(std::string name) {
    m_name = std::move(name);
}

void DataSet::setColours(Colour data, Colour edge, Colour shadow, Colour shadowEdge) {
    m_colour = orDefault(data, m_colour);
    m_edge = edge;
    m_shadow = shadow;
    m_shadowEdge = shadowEdge;
}

void DataSet::setSymbol(const DataSymbol& symbol) {
    m_symbol = symbol;
    m_symbol.size = std::clamp(symbol.size, 0, kMaxSymbolSize);
    m_symbol.lineWidth = std::clamp(symbol.lineWidth, 0, kMaxSymbolSize);
}

} // namespace chartdraw
