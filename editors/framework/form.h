#pragma once
// A page, written as a table: groups and rows in reading order, one line a property. The form makes the
// controls and their labels, holds the mirrors, limits and rounds, commits changes to the model and tells of
// them. A page is a CDialog that has a form and fills it in its constructor; the model is loaded when the
// page starts, each time that its dialog is opened.
//
//     m_form.Group("LineWidth");
//     m_form.Integer("AxisWidth:", meter.m_axisWidth).Step(1).Floor(0);
//     m_form.Group("Scale");
//     m_form.Real("LowerLimit:", meter.m_lowerLimit).Step(10);
//
// A list and the values of its selected item:
//
//     auto& texts = m_form.List(meter.m_texts, "Text %d ( %s )", LoadChartString(ChartText::SelectText));
//     m_form.Lines("Text:", texts.Caption(&CChartTextBox::m_text));
//     m_form.Integer("X:", texts[&CChartTextBox::m_x]).Step(10);

#include "editors/framework/choice_rows.h"
#include "editors/framework/date_row.h"
#include "editors/framework/field_row.h"
#include "editors/framework/list_editor.h"
#include "editors/framework/number_rows.h"
#include "editors/framework/object_list.h"
#include "editors/framework/text_rows.h"
#include "platform/widgets/dialog.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class CSimpleCombo;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLayout;
class QPushButton;
class QVBoxLayout;

/// A place of a page that edits a member of the model.
struct CSpot {
    QWidget* control = nullptr;
    CMember member{};
    CFormRow* row = nullptr;   ///< null for a list or a button
    CListBase* list = nullptr; ///< the list itself, or the one whose item the row shows
    int item = -1;             ///< of the list
};

class CForm final : public CDialogControls {
public:
    using Click = std::function<void()>;

    /// `notify` is what every committed change ends with.
    CForm(CDialog& page, std::function<void()> notify);
    /// A hosted page: every committed change ends with a message to the dialog that hosts it.
    CForm(CDialog& page, QWidget& owner);
    CForm(const CForm&) = delete;
    CForm& operator=(const CForm&) = delete;
    ~CForm();

    // What stands where. Rows go into the current part of the current group, groups into the current column,
    // columns into the current band. The columns of a band end at one height. A row without a label, null, is
    // known by the name of its group; a field without one stands beside the number before it.
    void Band();   ///< A new row of columns below.
    void Column(); ///< A new column at the right.
    QGroupBox* Group(const char* caption);
    void Part();     ///< Further rows of the group stand beside those so far.
    void EndGroup(); ///< Further rows stand in no group.
    void Tight();    ///< The rows of groups from here on stand closer, for a page of many.

    CIntegerRow& Integer(const char* label, CBinding<std::int32_t> field);
    CRealRow& Real(const char* label, CBinding<double> field);
    CCheckRow& Check(const char* label, CBinding<bool> field);
    /// A drop-down list; row n stores n unless it names a code.
    CComboRow& Combo(const char* label, CBinding<std::int32_t> field, std::vector<CChoice> choices);
    CComboRow& Alignment(const char* label, CBinding<std::int32_t> field);
    CComboRow& Side(const char* label, CBinding<std::int32_t> field);
    CRadioRow& Radio(CBinding<std::int32_t> field, std::vector<CChoice> choices);
    CRadioRow& Radio(const char* label, CBinding<std::int32_t> field, std::vector<CChoice> choices);
    CDateRow& Date(const char* label, CBinding<QDate> field);
    CTextRow& Text(const char* label, CBinding<QString> field);
    CTextRow& Lines(const char* label, CBinding<QString> field); ///< takes Enter as a line break
    /// A list of ready-made formats; it stands before or after the text it is for.
    CFormatRow& Formats(const char* label, const std::vector<const char*>& texts);
    /// A field: a colour, font, image or effect.
    template <class T>
    CFieldRow<T>& Field(const char* label, CBinding<typename T::Value> value) {
        return Make<CFieldRow<T>>(label, std::move(value), static_cast<int>(m_rows.size()) + 1);
    }
    /// A row of a kind that only one page has.
    template <class Row, class... Args>
    Row& Make(const char* label, Args&&... args) {
        auto made = std::make_unique<Row>(*this, std::forward<Args>(args)...);
        Row& row = *made;
        row.SetLabel(AddRow(label, *row.Control()));
        m_rows.push_back(std::move(made));
        return row;
    }
    /// A list with "Add" and "Delete". `caption` is a format with the row's number and, if it has a %s, a
    /// text; `noneSelected` what "Delete" says while no row is selected.
    template <class Container>
    CListEditor<Container>& List(Container& items, const char* caption, const char* noneSelected) {
        return Keep(
            std::make_unique<CListEditor<Container>>(*this, List(caption), items, caption, noneSelected));
    }
    /// A list of objects that are edited in a dialog of their own; see object_list.h.
    CObjectList& Objects(CObjects objects, const char* noneSelected);
    /// A list that the page keeps itself. Named by its group, else by the plural of the first word of
    /// `caption`.
    CSimpleCombo& List(const char* caption);
    /// A row of buttons.
    std::vector<QPushButton*> Buttons(const std::vector<std::pair<const char*, Click>>& buttons);
    /// Any other control of the page; without a label it takes the whole width.
    void Place(const char* label, QWidget& control);
    /// The rows as a part of something larger, for a page that has more than the form: the form takes all of
    /// a page that has no layout when it starts.
    QLayout* Layout() const;

    /// Says that `control`, which is no row, edits that member: the button to a dialog of its own.
    void Edits(QWidget& control, CMember member) {
        m_others.push_back({.control = &control, .member = member});
    }

    // What the page asks for.
    void Start() override;
    bool Exchange(bool read) override;
    bool CommitFocused() override;
    void FieldChanged(int key) override;

    // For rows, lists and the page's own handlers.
    CDialog& Page() { return m_page; }
    /// Reads and validates. On failure the last good values come back, the offending text is selected and a
    /// complaint raised; `pressed` if a press of the mouse is the cause, which then has no other effect.
    bool UpdateDataSafe(bool pressed = false);
    void Notify() {
        m_notify();
        Committed();
    }
    /// What a change ends with that is told to nobody.
    void Committed();
    /// Model into all rows and lists, after it has changed from outside.
    void Reload();
    /// Calls `visit` for every place of the page that edits a member of the model: rows, those of lists once
    /// for each item, lists, and buttons to other dialogs.
    void EachSpot(const std::function<void(const CSpot&)>& visit) const;
    /// Calls `visit` for the control of every row.
    void EachControl(const std::function<void(const QWidget&)>& visit) const;
    /// The row whose control, or label, is `widget` or has it inside; null for none.
    CFormRow* RowOf(const QWidget& widget) const;
    /// Model into mirrors and controls, for the rows that follow a list or a CCurrent, or for all (null).
    void LoadRows(const void* owner);
    /// Greys what the values of the page say.
    void ShowStates();
    /// A text behind the control of a row that was just added.
    void PlaceBehind(QWidget& control, const char* text);
    /// The selected row of a list. With none: a warning, the first row is selected, and -1.
    int SelectedOrWarn(CSimpleCombo& list, const char* message);

private:
    template <class List>
    List& Keep(std::unique_ptr<List> list) {
        List& kept = *list;
        m_lists.push_back(std::move(list));
        return kept;
    }
    QWidget* AddRow(const char* label, QWidget& control);
    QString NameFor(const char* label) const;
    void BeginGroup(QWidget* box);
    /// What was added last takes the height that is left.
    void Grow();
    void AlignLabels() const;

    CDialog& m_page;
    std::function<void()> m_notify;
    std::vector<std::unique_ptr<CFormRow>> m_rows;
    std::vector<std::unique_ptr<CListBase>> m_lists;
    std::vector<CSpot> m_others; ///< buttons to other dialogs
    QVBoxLayout* m_bands;
    QHBoxLayout* m_columns = nullptr; ///< of the current band
    QVBoxLayout* m_column = nullptr;
    QWidget* m_group = nullptr;     ///< a box with a caption, or one without
    QHBoxLayout* m_parts = nullptr; ///< of the current group
    QGridLayout* m_part = nullptr;  ///< label, control, and what stands beside it
    bool m_grows = false;
    int m_gapsPerLine = 2;     ///< how many gaps between rows are as high as a line of text
    CFormRow* m_bad = nullptr; ///< the row that could not be read
};
