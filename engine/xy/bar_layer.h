#pragma once
// Bars: side by side, over each other, or stacked.

#include "engine/xy/layer.h"

#include <map>
#include <span>
#include <utility>
#include <vector>

namespace chartdraw {

class DataLabels;

class BarLayer : public Layer {
public:
    static constexpr Kind kKind = Kind::BarLayer;

    enum class Combine : unsigned char { Overlay, Stack, Side, Percentage };

    BarLayer(XYChart& chart, Combine combine, int depth);

    /// A shape code; `dataSet` and `row` (before trimming) of -1 mean all of them. A later call goes before
    /// an earlier one.
    void setShape(int shape, int dataSet, int row);
    /// Bars side by side cover each other by this part of their width, 0 to 1.
    void setOverlap(double ratio, bool firstOnTop);
    /// Free parts: of a row's room, and of a bar's room within it (negative: they overlap).
    void setGap(double gap, double subGap);

    DataRange xRange() const override;
    DataRange yRange() const override;
    bool fillsRange() const override { return m_combine == Combine::Percentage; }
    bool needsZero() const override { return true; }
    bool wantsIndent() const override { return true; }
    void draw(Canvas& canvas, const PlotFrame& frame) override;
    void drawLabels(Canvas& canvas, const PlotFrame& frame) override;
    void collectKeys(std::vector<LegendKey>& keys) const override;

private:
    class Places;
    /// A bar, or a piece of a stack: values between which it stands.
    struct Piece {
        std::size_t set = 0;
        double from = 0, to = 0;
        double share = 0; ///< percent of its stack
    };
    bool stacked() const { return m_combine == Combine::Stack || m_combine == Combine::Percentage; }
    /// The pieces of a row, by data set.
    void piecesOf(std::size_t row, std::vector<Piece>& pieces) const;
    /// The first and the last pixel along y, from the base on; false where there is nothing to draw.
    static bool findSpan(const PlotFrame& frame, const Piece& piece, bool edged, int& from, int& to,
                         int& direction);
    void drawPiece(Canvas& canvas, const PlotFrame& frame, const Places& places, std::size_t row,
                   const Piece& piece) const;
    bool isEdged(const Canvas& canvas, const DataSet& set) const;
    /// The pieces of a row as they are drawn, the first below the others.
    void orderPieces(const PlotFrame& frame, std::vector<Piece>& pieces) const;
    /// Whether the bars are so narrow and plain that those of one pixel column hide one another whole.
    bool joinsColumns(const Canvas& canvas, const PlotFrame& frame, const Places& places) const;
    void drawColumns(Canvas& canvas, const PlotFrame& frame, const Places& places) const;
    void drawOnlySet(Canvas& canvas, const PlotFrame& frame, const Places& places) const;
    bool isHidden(const Piece& piece, std::span<const Piece> pieces) const;
    Colour groundOf(const Piece& piece, std::span<const Piece> pieces) const;
    void addBodies(DataLabels& labels, const PlotFrame& frame, const Places& places) const;
    void labelSums(DataLabels& labels, const PlotFrame& frame, const Places& places, std::size_t row,
                   std::span<const Piece> pieces) const;
    std::vector<std::size_t> drawingOrder(const PlotFrame& frame) const;
    int shapeOf(std::size_t set, std::size_t row) const;
    double sumOfSizes(std::size_t row) const;

    Combine m_combine;
    double m_gap = 0.2, m_subGap = 0;
    bool m_firstOnTop = false;
    std::map<std::pair<int, int>, int> m_shapes; ///< by data set and row; -1 is all
};

} // namespace chartdraw
