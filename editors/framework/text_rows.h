#pragma once
// Rows for texts, and the list of ready-made formats that goes with one.

#include "editors/framework/form_rows.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

class CTextRow : public CValueRow<CTextRow, QString, CEditRow> {
public:
    CTextRow(CForm& form, CBinding<QString> field, bool multiLine);

    QWidget* Control() const override;
    void Load() override;
    bool Exchange(bool read) override;

    /// Takes a ready-made text as a commit does: stores it and tells.
    void Take(const QString& text);
    /// Stores a text and shows it; tells nobody.
    void Put(const QString& text);
    const QString& Mirror() const { return m_mirror; }
    /// Calls `typed` whenever the text that shows changes.
    void WhenTyped(const std::function<void()>& typed);

protected:
    QString ControlText() const override;

private:
    QLineEdit* m_line = nullptr;
    QPlainTextEdit* m_lines = nullptr; ///< instead of m_line
};

/// A drop-down list of ready-made formats for a text. Its first row stands for none of them.
class CFormatRow : public CFormRow {
public:
    CFormatRow(CForm& form, const std::vector<const char*>& texts);

    /// The text that the formats are for. To be said once, before the page starts.
    CFormatRow& For(CTextRow& text);

    QWidget* Control() const override;
    const void* Owner() const override { return m_text->Owner(); }
    /// Selects the first row that begins with the text that stands in the edit.
    void Loaded() override;
    /// Stores a text, shows it and selects its row; tells nobody.
    void Put(const QString& text);

private:
    QComboBox* m_box;
    CTextRow* m_text = nullptr;
};
