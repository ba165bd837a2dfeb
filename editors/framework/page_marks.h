#pragma once
// What is drawn over the controls of a page: a dot at each row that has changed, and a ring around the one
// that is being shown. It takes no room, no focus and no press.

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <vector>

class CPageMarks : public QWidget {
public:
    /// The marks of the page that `control` stands on; made at the first use, the page's.
    static CPageMarks& Of(QWidget& control);
    /// Those of all pages below `dialog` that have any.
    static std::vector<CPageMarks*> AllIn(const QWidget& dialog);

    /// Dots at the left of these, labels or controls.
    void SetDots(std::vector<QWidget*> anchors);
    /// A ring around a control, for a while.
    void Ring(QWidget& control);
    const QWidget* Ringed() const { return m_ringed; }
    bool HasDot(const QWidget& anchor) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit CPageMarks(QWidget& page);
    QRectF DotAt(const QWidget& anchor) const;
    QRect PlaceOf(const QWidget& control) const;

    std::vector<QPointer<QWidget>> m_dots;
    QPointer<QWidget> m_ringed;
    QTimer m_ringEnds;
};
