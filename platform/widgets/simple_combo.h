#pragma once
// A combo box whose list is always open: an edit above a list. Text typed into the edit selects the first row
// that begins with it, or none. The parts go by the name of the whole.

#include <QWidget>

class QLineEdit;
class QListWidget;

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

    QListWidget* List() const { return m_list; }
    QLineEdit* Edit() const { return m_edit; }

signals:
    /// A person has chosen another row, or none (-1).
    void SelectionChanged(int row);
    void DoubleClicked(int row);

private:
    void ShowTextOf(int row);

    QLineEdit* m_edit;
    QListWidget* m_list;
};
