#pragma once
// A combo box whose list is always open: an edit above a list. Text typed into the edit means nothing; no row
// is selected then. Tab goes to the list. The parts go by the name of the whole.

#include <QWidget>

class QLineEdit;
class QListWidget;
class QImage;

class CSimpleCombo : public QWidget {
    Q_OBJECT
public:
    explicit CSimpleCombo(QWidget* parent = nullptr);

    void Clear();
    int Count() const;
    void Add(const QString& text);
    void Insert(int row, const QString& text);
    void Delete(int row);
    QString Text(int row) const;

    int Selected() const; ///< -1 for none
    /// Selects a row, or none for -1, and shows its text in the edit. Sends no signal.
    void Select(int row);

    /// A small picture at the left of a row, of that size.
    void SetSwatch(int row, const QImage& image);
    QSize SwatchSize() const;

    QListWidget* List() const { return m_list; }
    QLineEdit* Edit() const { return m_edit; }

signals:
    /// A person has chosen another row, or none (-1).
    void SelectionChanged(int row);
    void DoubleClicked(int row);
    void DeletePressed();            ///< the Delete key, in the list
    void MovePressed(int direction); ///< Alt and the up (-1) or down (1) arrow, in the list

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowTextOf(int row);

    QLineEdit* m_edit;
    QListWidget* m_list;
};
