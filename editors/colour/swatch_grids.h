#pragma once
// The grids of swatches of the colour dialog: the fixed palettes, the custom colours, and those used lately.

#include "editors/colour/color_message.h"
#include "editors/colour/grid_geometry.h"

#include <charteditors/chart_color.h>

#include <QImage>
#include <QWidget>
#include <array>
#include <vector>

/// A grid of swatches. The pointer and the arrow keys move over the cells, a click, Space or Enter chooses. A
/// choice sends the owner, which was the parent when the grid was made, the message of a changed field.
class CSwatchGrid : public QWidget {
public:
    int Selected() const { return m_selected; } ///< index of a cell, -1 for none
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    CSwatchGrid(QWidget* parent, GridShape shape);

    /// False for a cell that is empty as yet.
    virtual bool HasCell(int /*index*/) const { return true; }
    virtual CChartColor CellColor(int index) const = 0;
    virtual void Choose(int index) = 0;
    void Tell(int message) const;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

    int m_selected = -1;

private:
    struct Cached {
        CChartColor color;
        QImage image;
    };
    const QImage& SwatchOf(int index, QSize size);
    void SetCursorCell(int index);
    QString CellText(int index) const;

    QWidget* m_owner;
    GridShape m_shape;
    int m_hover = -1;
    int m_cursor = 0; ///< the cell of the keyboard
    std::vector<Cached> m_cache;
};

/// 40 swatches of one of three palettes. A new choice sends 0.
class CColorPaletteCtrl : public CSwatchGrid {
public:
    explicit CColorPaletteCtrl(QWidget* parent);

    void SetPalette(int palette); ///< 0 to 2; others are ignored
    /// The colour value of the selected cell; none selected: 0.
    std::uint32_t GetSelectedColor() const;

protected:
    CChartColor CellColor(int index) const override;
    void Choose(int index) override;

private:
    int m_palette = 0;
};

/// The custom colours, which all colour dialogs of the process share. Any choice sends CustomChosen.
class CCustomColorCtrl : public CSwatchGrid {
public:
    static constexpr int kCount = 18;

    explicit CCustomColorCtrl(QWidget* parent);

    /// The custom colours, General white at first.
    static std::array<CChartColor, kCount>& Colors();
    /// Keeps a colour in the next cell, round about.
    void Keep(const CChartColor& color);

protected:
    CChartColor CellColor(int index) const override;
    void Choose(int index) override;

private:
    int m_nextSlot = 0;
};

/// The colours that the colour dialogs of the process have given last, the latest first. Any choice sends
/// RecentChosen.
class CRecentColorCtrl : public CSwatchGrid {
public:
    static constexpr int kCount = 8;

    explicit CRecentColorCtrl(QWidget* parent);

    static std::vector<CChartColor>& Colors();
    /// Puts a colour first; each is there once.
    static void Remember(const CChartColor& color);

protected:
    bool HasCell(int index) const override;
    CChartColor CellColor(int index) const override;
    void Choose(int index) override;
};
