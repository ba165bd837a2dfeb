#pragma once
// A page, written as a table: groups and rows in reading order, one line a property. The form makes the
// controls and their labels, holds the mirrors, limits and rounds, commits changes to the model and tells of
// them. A page is a CDialog that has a form.
//
//     m_form.Group("LineWidth");
//     m_form.Integer("AxisWidth:", meter.m_axisWidth).Step(1).Floor(0);
//     m_form.Group("Scale");
//     m_form.Real("LowerLimit:", meter.m_lowerLimit).Step(10);
//     m_form.Done();

#include "editors/framework/form_rows.h"
#include "editors/framework/list_editor.h"
#include "platform/widgets/dialog.h"

#include <functional>
#include <memory>
#include <vector>

class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLayout;
class QVBoxLayout;

class CForm final : public CDialogControls {
public:
    /// `notify` is what every committed change ends with.
    CForm(CDialog& page, std::function<void()> notify);
    /// A hosted page: every committed change ends with a message to the dialog that hosts it.
    CForm(CDialog& page, QWidget& owner);
    CForm(const CForm&) = delete;
    CForm& operator=(const CForm&) = delete;
    ~CForm();

    // What stands where. Rows go into the current part of the current group, groups into the current column,
    // columns into the current band. The groups of a band end at one height.
    void Band();   ///< A new row of columns below.
    void Column(); ///< A new column at the right.
    QGroupBox* Group(const char* caption);
    void Part(); ///< Further rows of the group stand beside those so far.

    CIntegerRow& Integer(const char* label, CBinding<std::int32_t> field);
    CRealRow& Real(const char* label, CBinding<double> field);
    CCheckRow& Check(const char* label, CBinding<bool> field);
    /// A drop-down list; row n stores n unless mapped.
    CComboRow& Combo(const char* label, CBinding<std::int32_t> field, std::vector<const char*> texts);
    CComboRow& Alignment(const char* label, CBinding<std::int32_t> field);
    CComboRow& Side(const char* label, CBinding<std::int32_t> field);
    CRadioRow& Radio(CBinding<std::int32_t> field, std::vector<const char*> texts);
    CTextRow& Text(const char* label, CBinding<CChartString> field);
    CTextRow& Lines(const char* label, CBinding<CChartString> field); ///< takes Enter as a line break
    /// A list of ready-made formats for a text row.
    void Formats(CTextRow& row, const std::vector<const char*>& texts);
    /// A field (a colour, font, image or effect) with its label; `label` may be null.
    template <class T>
    CFieldRow<T>& Field(const char* label, CBinding<typename T::Value> value) {
        return Make<CFieldRow<T>>(label, std::move(value), static_cast<int>(m_rows.size()) + 1);
    }
    /// A list with "Add" and "Delete". `caption` is a format with the row's number and, if it has a %s, a
    /// text.
    template <class Container>
    CListEditor<Container>& List(Container& items, const char* caption, const char* noneSelected) {
        auto list = std::make_unique<CListEditor<Container>>(*this, items, caption, noneSelected);
        CListEditor<Container>& result = *list;
        AddList(std::move(list));
        return result;
    }
    /// Any other control of the page, spanning the group.
    void Place(QWidget* widget);

    /// Ends the table: model into mirrors, mirrors into controls, letters for Alt, lists filled. The form
    /// takes all of the page, unless the page has a layout by then.
    void Done();
    /// What the form stands in, for a page that has more than the form.
    QLayout* Layout() const;

    // What the page asks for.
    bool Exchange(bool read) override;
    bool CommitFocused() override;
    void FieldChanged(int key) override;

    // For rows and lists.
    CDialog& Page() { return m_page; }
    /// Reads and validates; on failure puts the last good values back and selects the offending text.
    bool UpdateDataSafe();
    void Notify() { m_notify(); }
    /// Model into mirrors and controls, for the rows that follow an item of a list, or for all.
    void Show(bool itemsOnly);

private:
    template <class Row, class... Args>
    Row& Make(const char* label, Args&&... args) {
        auto made = std::make_unique<Row>(*this, std::forward<Args>(args)...);
        Row& row = *made;
        AddRow(std::move(made), label, row.Control());
        return row;
    }
    void AddRow(std::unique_ptr<CFormRow> row, const char* label, QWidget* control);
    void AddList(std::unique_ptr<CListBase> list);
    /// What was added last takes the height that is left.
    void Grow();

    CDialog& m_page;
    std::function<void()> m_notify;
    std::vector<std::unique_ptr<CFormRow>> m_rows;
    std::vector<std::unique_ptr<CListBase>> m_lists;
    QVBoxLayout* m_bands;
    QHBoxLayout* m_columns = nullptr; ///< of the current band
    QVBoxLayout* m_column = nullptr;
    QHBoxLayout* m_parts = nullptr; ///< of the current group
    QGridLayout* m_group = nullptr; ///< the current part of it
    bool m_grows = false;
    std::vector<std::function<void()>> m_formats;
    CFormRow* m_bad = nullptr; ///< the row that could not be read
    bool m_complaining = false;
};
