#pragma once
// The small buttons of the strip: a sign or a text, without a frame until the pointer or the focus is there.

#include <QAbstractButton>

class CStripButton : public QAbstractButton {
public:
    enum Sign { Undo, Redo, Changes, Before, Search };

    /// `name` is what a screen reader says.
    CStripButton(Sign sign, const QString& name, QWidget* parent);

    /// A text behind the sign. It has no letter for Alt.
    void SetCaption(const QString& caption);
    const QString& Caption() const { return m_caption; }
    /// Room for a caption of that length.
    void SetWidestCaption(const QString& caption);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    int Side() const { return fontMetrics().height() + 8; }

    Sign m_sign;
    QString m_caption;
    QString m_widest;
};
