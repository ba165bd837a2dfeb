#pragma once
// One series of a layer: its numbers, its name and its looks.

#include "engine/chart/data_symbol.h"
#include "engine/chart/part.h"
#include "engine/scale/numbers.h"

#include <span>
#include <string>

namespace chartdraw {

/// Colours are resolved: the functions below never give kDefaultColour.
class DataSet : public Part {
public:
    static constexpr Kind kKind = Kind::DataSet;

    /// `colour` may be a literal, a palette entry or a token, not -1 (Layer::addDataSet sees to that).
    DataSet(Chart& chart, Numbers data, Colour colour, std::string name);

    /// All rows, before trimming; a gap is what isValue() refuses.
    const Numbers& data() const { return m_data; }
    /// The range of the rows [begin, end).
    DataRange range(std::size_t begin, std::size_t end) const { return m_data.range(begin, end); }
    const std::string& name() const { return m_name; }

    Colour colour() const { return m_colour; }
    /// Edge of bars, areas and boxes: what was set here, else `layerBorder` (the layer's border colour) where
    /// that is not -1, else none.
    Colour edge(Colour layerBorder = kDefaultColour) const;
    /// Sides of a 3D body: what was set, else -1: the layer darkens the data colour.
    Colour shadow() const { return m_shadow; }
    Colour shadowEdge() const { return m_shadowEdge; }

    const DataSymbol& symbol() const { return m_symbol; }

    void setName(std::string name);
    /// -1 for the data colour keeps it; for the others it is their default.
    void setColours(Colour data, Colour edge, Colour shadow, Colour shadowEdge);
    void setSymbol(const DataSymbol& symbol);

private:
    Numbers m_data;
    Colour m_colour;
    Colour m_edge = kDefaultColour, m_shadow = kDefaultColour, m_shadowEdge = kDefaultColour;
    std::string m_name;
    DataSymbol m_symbol;
};

} // namespace chartdraw
