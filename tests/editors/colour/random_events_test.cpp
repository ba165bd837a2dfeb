#include "editors/colour/color_dlg.h"
#include "tests/driver/person.h"
#include "tests/driver/random_person.h"

class RandomEvents : public WidgetTest {};

TEST_F(RandomEvents, LeaveColourDialogsAliveAndTheirColoursLegal) {
    RandomPerson person(7);
    CChartColor color;
    int opened = 0;
    person.Use(RandomEventCount(), [&] {
        CColorDlg dialog;
        dialog.m_color = color;
        dialog.m_color.m_type = opened++ % 3;
        if (dialog.DoModal() == CDialog::kOK) {
            color = dialog.m_color;
            EXPECT_TRUE(color.m_type >= 0 && color.m_type <= 2);
            EXPECT_LE(color.m_direction, 360);
        }
        for (const CChartColor& custom : CCustomColorCtrl::Colors())
            EXPECT_TRUE(custom.m_type >= 0 && custom.m_type <= 2);
    });
    EXPECT_GT(opened, 1);
}
