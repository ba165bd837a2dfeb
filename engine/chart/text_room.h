#pragma once
// Which parts of a picture texts have taken: one for each picture that is being made. What a caller places
// (titles, texts, the legend) is entered first; the texts that a chart places itself look for room between.

#include <QPolygonF>
#include <QRectF>
#include <QSize>
#include <vector>

namespace chartdraw {

class TextRoom {
public:
    explicit TextRoom(QSize picture);

    /// Enters a text wherever it stands.
    void reserve(const QPolygonF& outline);
    /// Enters a text that lies in the picture and on no other one, give or take a pixel; false: it has to go.
    bool claim(const QPolygonF& outline);
    bool claim(const QRectF& box) { return claim(QPolygonF(box)); }
    /// Whether a text could be claimed there.
    bool hasRoom(const QPolygonF& outline) const;
    /// The boxes of all texts entered so far.
    std::vector<QRectF> boxes() const;

    /// The same to the nearest two pixels, for labels of data, of which there may be thousands.
    bool isFree(const QRectF& box) const;
    void take(const QRectF& box);

private:
    struct Text {
        QPolygonF outline;
        QRectF bounds; ///< without what others may touch
        bool upright;
    };
    static Text textOf(const QPolygonF& outline);
    QRect cells(const QRectF& box) const;
    std::size_t cell(int x, int y) const;

    QRectF m_picture;
    QSize m_size;              ///< in cells
    std::vector<bool> m_taken; ///< cells, row by row
    std::vector<Text> m_texts;
};

} // namespace chartdraw
