#pragma once
// A place for what edits that scrolls where a screen is too small for it. Where there is room it is nowhere
// to be seen.

#include <QScrollArea>

class CScrollRoom : public QScrollArea {
public:
    /// `content` belongs to the room. It never becomes smaller than its natural size: it scrolls instead.
    explicit CScrollRoom(QWidget* content);
    /// As above, for a layout.
    explicit CScrollRoom(QLayout* content);

    /// Takes the natural size of the content again, when fonts or pages have changed. `low` says that it will
    /// scroll up and down, which takes the width of a scroll bar.
    void Measure(bool low);
    void MeasureAgain() { Measure(m_low); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool m_low = false;
};
