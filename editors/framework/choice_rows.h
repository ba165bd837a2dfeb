#pragma once
// Rows to choose by a click: check boxes, drop-down lists and radio buttons.

#include "editors/framework/choices.h"
#include "editors/framework/form_rows.h"

#include <QStringList>
#include <cstdint>

class QButtonGroup;
class QCheckBox;
class QComboBox;

class CCheckRow : public CValueRow<CCheckRow, bool> {
public:
    CCheckRow(CForm& form, CBinding<bool> field, const char* text);

    /// The page shows it unchecked at first, whatever the model holds.
    CCheckRow& NotLoaded();

    QWidget* Control() const override;
    void Load() override;
    bool Store() override {
        m_loaded = true;
        return CValueRow::Store();
    }
    bool Exchange(bool read) override;

private:
    void Show(bool on);

    QCheckBox* m_box;
    bool m_loaded = true;
};

/// A drop-down list. The mirror is the code.
class CComboRow : public CValueRow<CComboRow, std::int32_t> {
public:
    CComboRow(CForm& form, CBinding<std::int32_t> field, std::vector<CChoice> choices);

    /// The row that shows for a code that is not in the list. None if not said.
    CComboRow& Otherwise(int row);
    /// Rows that are known only at run time, asked for at every load. Row n stores n.
    CComboRow& RowsFrom(std::function<QStringList()> rows);

    QWidget* Control() const override;
    void Load() override;
    bool Exchange(bool read) override;

protected:
    QString Shown(const std::int32_t& code) const override;

private:
    CChoices m_choices;
    QComboBox* m_box;
    std::function<QStringList()> m_rowsFrom;
    int m_otherwise = -1;
};

/// Radio buttons in a row, one of them on; none for a code of no button.
class CRadioRow : public CValueRow<CRadioRow, std::int32_t> {
public:
    CRadioRow(CForm& form, CBinding<std::int32_t> field, std::vector<CChoice> choices);

    enum State { Live, Grey, GreyAndOff };
    /// How the button of a code stands: greyed ones cannot be chosen, and some are not on whatever is stored.
    CRadioRow& States(std::function<State(int code)> states);

    QWidget* Control() const override { return m_box; }
    bool Exchange(bool read) override;
    void ShowState() override;

protected:
    QString Shown(const std::int32_t& code) const override { return m_choices.TextOf(code); }

private:
    State StateOf(int code) const { return m_states ? m_states(code) : Live; }

    CChoices m_choices;
    std::function<State(int)> m_states;
    QWidget* m_box;
    QButtonGroup* m_buttons;
};
