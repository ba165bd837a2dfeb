#pragma once
// What all charts are: a picture of a size with a background, titles, texts, lines, a legend, fonts and
// colours. A kind of chart derives from it and draws its body; everything that it hands out belongs to it.

#include "engine/chart/draw_obj.h"
#include "engine/chart/legend.h"
#include "engine/chart/text_room.h"
#include "engine/chart/title.h"

#include <QByteArray>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace chartdraw {

/// The pixels of a chart: its size, and an image that was loaded into it.
class DrawArea : public Object {
public:
    static constexpr Kind kKind = Kind::DrawArea;

    explicit DrawArea(Chart& chart) : Object(Kind::DrawArea), m_chart(chart) {}

    /// Reads an image file; the area then has the image's size and shows it. False leaves all as it was.
    bool load(const std::string& path);
    QSize size() const;
    const QImage& image() const { return m_image; }
    void changed() override;

private:
    Chart& m_chart;
    QImage m_image;
};

class Chart : public Object {
public:
    static constexpr Kind kKind = Kind::BaseChart;

    ~Chart() override;

    int width() const { return m_width; }
    int height() const { return m_height; }
    const FontSet& fonts() const { return m_fonts; }
    ColourTable& colours() { return m_colours; }
    const ColourTable& colours() const { return m_colours; }

    void setSize(int width, int height);
    void setBackground(Colour background, Colour edge, int effect);
    void setBackgroundImage(std::string path, int alignment);
    void setRoundedFrame(Colour exterior, const Corners& corners);
    void setDefaultFonts(FontSet fonts);
    /// Text mode: 0 without, 1 with, 2 as the library thinks best.
    void setAntiAlias(bool shapes, int textMode);

    TextBox* addTitle(int alignment, std::string text, const TextLook& look, bool strip);
    TextBox* addText(std::string text, const TextLook& look, QPoint at, int alignment);
    Line* addLine(QPoint from, QPoint to, Colour colour, int width);
    /// One legend a chart: a second call moves it.
    LegendBox* addLegend(QPoint at, bool vertical, const TextLook& look);
    LegendBox* legend() const { return m_legend; }
    DrawArea* drawArea() { return &m_drawArea; }
    /// A text that lives as long as the chart; equal texts are kept once.
    const char* keepText(std::string text);

    /// Makes an object that belongs to the chart and is drawn by whoever asked for it.
    template <class T, class... Args>
    T* own(Args&&... args) {
        auto made = std::make_unique<T>(std::forward<Args>(args)...);
        T* result = made.get();
        m_owned.push_back(std::move(made));
        return result;
    }

    /// Marks the picture stale, here and in every chart that shows this one.
    void changed() override;

    /// The picture as a 24-bit bitmap file, drawn `scale` times as large as the chart is; false and no bytes
    /// when it has no area or is too large. The bytes stay valid until the next picture is made; without a
    /// change in between they are the same.
    bool makePicture(double scale, const char** data, int* length);

    /// Draws the whole chart at the canvas's origin.
    void draw(Canvas& canvas);

    /// Keys of the named data sets or sectors, in order.
    virtual void collectKeys(std::vector<LegendKey>& keys) const;
    /// Where texts stand on the picture that is being made.
    TextRoom& textRoom() { return m_textRoom; }
    /// Whether data may cover pixels of `box`: a legend there is given a ground.
    virtual bool hasDataIn(const QRect& box) const;

    /// A chart shown inside another one tells it of changes and of its end.
    void addHost(Chart* host);
    void removeHost(Chart* host);
    /// Whether `other` is this chart or shows it, directly or through others.
    bool isShownIn(const Chart* other) const;
    /// How many charts stand above one another: this one and the deepest of those that it shows, or the
    /// highest of those that show it.
    int levelsBelow() const;
    int levelsAbove() const;
    bool hasSeveralHosts() const { return m_hosts.size() > 1; }

protected:
    static bool meets(const QRectF& box, const QRectF& ellipse);
    Chart(Kind kind, int width, int height, Colour background, Colour edge, int effect);

    /// The plot of the kind: everything between the background and the titles.
    virtual void drawBody(Canvas& canvas);
    /// What must lie above everything else (the pointers of a meter).
    virtual void drawTop(Canvas& canvas);
    /// A chart that was shown here is going away.
    virtual void hostedEnds(Chart* chart);
    /// The charts shown here.
    virtual std::vector<Chart*> shownCharts() const { return {}; }
    /// To be called for each chart shown here when this one is drawn: the next change is told again.
    static void drawnIn(Chart& chart) { chart.m_hostsTold = false; }

private:
    QByteArray drawnPicture(double scale);
    void drawBackground(Canvas& canvas);

    int m_width, m_height;
    Colour m_background, m_edge;
    int m_effect;
    std::string m_imagePath;
    int m_imageAlignment = Center;
    bool m_rounded = false;
    Colour m_exterior = kTransparent;
    Corners m_corners = {};
    bool m_smoothShapes = true;

    FontSet m_fonts;
    ColourTable m_colours;
    DrawArea m_drawArea;
    std::vector<std::unique_ptr<Object>> m_owned;
    std::vector<Title*> m_titles;
    std::vector<DrawObj*> m_objects; ///< free texts and lines, in the order they were added
    LegendBox* m_legend = nullptr;
    std::vector<Chart*> m_hosts;
    std::set<std::string, std::less<>> m_texts;
    TextRoom m_textRoom{QSize()};

    bool m_stale = true;
    bool m_hostsTold = false; ///< of a change since one of them was drawn
    QByteArray m_picture;
    double m_pictureScale = 1;
};

} // namespace chartdraw
