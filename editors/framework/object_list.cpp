#include "editors/framework/object_list.h"

#include "editors/framework/form.h"
#include "platform/widgets/simple_combo.h"

CObjectList::CObjectList(CForm& form, CSimpleCombo& combo, CObjects objects, const char* noneSelected)
    : CListBase(form, combo, noneSelected), m_objects(std::move(objects)) {
    QObject::connect(
        &combo, &CSimpleCombo::DoubleClicked, &combo, [this] { Modify(); });
    form.Buttons({{"Add...", [this] { Add(); }}, {"Delete", [this] { Remove(); }}, {"Modify...", [this] {
                                                                                        Modify();
                                                                                    }}});
    std::vector<std::pair<const char*, CForm::Click>> more;
    if (m_objects.copy)
        more.emplace_back("Copy", [this] { Copy(); });
    if (m_objects.exchange) {
        more.emplace_back(
            "^", [this] { Move(-1); });
        more.emplace_back("v", [this] { Move(1); });
    }
    if (m_objects.exchange)
        QObject::connect(&combo, &CSimpleCombo::MovePressed, &combo, [this](int way) { Move(way); });
    if (!more.empty())
        form.Buttons(more);
}

void CObjectList::Fill() {
    FillAndSelect(m_noneAtStart ? -1 : 0);
}

void CObjectList::Modify() {
    const int row = SelectedOrWarn();
    if (row >= 0 && m_objects.modify(row)) {
        RefreshCaption();
        Form().Notify();
    }
}

void CObjectList::Copy() {
    const int row = SelectedOrWarn();
    if (row >= 0) {
        m_objects.copy(row);
        ShowAppended();
    }
}

void CObjectList::Move(int direction) {
    const int row = SelectedOrWarn();
    const int count = Count();
    if (row < 0 || count < 2)
        return;
    const int place = (row + direction + count) % count;
    m_objects.exchange(row, place);
    FillAndSelect(place);
    Form().Notify();
}
