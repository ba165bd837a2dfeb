#pragma once
// An edit for a number with a pair of arrows. The arrows, the up and down keys and the wheel are only a
// source of presses: the control never changes its text by itself.

#include <QAbstractSpinBox>

class CNumericEdit : public QAbstractSpinBox {
    Q_OBJECT
public:
    explicit CNumericEdit(QWidget* parent = nullptr);

    /// Refuses every character but digits, so that the number has no sign.
    void SetDigitsOnly();
    QString Text() const;
    /// Sets the text; the edit then counts as untouched.
    void SetText(const QString& text);
    /// Whether another text stands in the edit than SetText has put there.
    bool Touched() const;
    /// Selects all of the text and scrolls the caret into view.
    void SelectAll();
    /// Room for a text of so many digits.
    void SetDigits(int digits);

    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// One press of an arrow: +1 up, -1 down.
    void Pressed(int direction);

protected:
    StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_set; ///< by SetText
    int m_digits = 8;
};
