// What the controls of the whole pie do beyond reaching their fields.

#include "tests/editors/pie/pie.h"

using namespace pie_test;

TEST(PieControls, AWideAngleNeedsAShadow) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Click("Shadow3D");
        person.Type("Angle", "120");
        person.Leave();
        EXPECT_EQ(person.TextOf("Angle"), "120");
        person.Ok();
    }));
    EXPECT_TRUE(pie.m_shadow3D);
    EXPECT_EQ(pie.m_angle3D, 120);
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        EXPECT_EQ(person.TextOf("Angle"), "120");
        person.Click("Shadow3D");
        EXPECT_EQ(person.TextOf("Angle"), "90");
        person.Ok();
    }));
    EXPECT_FALSE(pie.m_shadow3D);
    EXPECT_EQ(pie.m_angle3D, 90);
}

TEST(PieControls, TextThatIsNoNumberIsRefused) {
    CPieChart pie;
    pie.m_startAngle = 12.5;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        const QImage before = person.Preview();
        person.Type("StartAngle", "abc");
        ExpectBox("PieChart", "\"StartAngle\" must be a number.", [&] { person.Leave(); });
        EXPECT_EQ(person.TextOf("StartAngle"), "12.5");
        EXPECT_EQ(person.Find<QAbstractSpinBox>("StartAngle").findChild<QLineEdit*>()->selectedText(),
                  "12.5");
        EXPECT_EQ(person.Preview(), before);
        person.Ok();
    }));
    EXPECT_EQ(pie.m_startAngle, 12.5);
}

TEST(PieControls, ASignDoesNotGetIntoALength) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Give("Depth", "-5");
        EXPECT_EQ(person.TextOf("Depth"), "5");
        person.Ok();
    }));
    EXPECT_EQ(pie.m_depth3D, 5);
}
