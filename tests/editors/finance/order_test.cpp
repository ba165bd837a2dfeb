#include "tests/driver/editor.h"

using namespace driver;

namespace {
std::vector<int> OrderOf(const CFinanceChart& chart) { return {std::begin(chart.m_order), std::end(chart.m_order)}; }

struct Order {
    Person& person;
    QListWidget& list = person.Find<QListWidget>("Order list");

    QStringList Rows() const {
        QStringList rows;
        for (int i = 0; i < list.count(); ++i) rows += list.item(i)->text();
        return rows;
    }
    void Select(int row) const {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
    void Press(const char* button) const { person.Click(person.Button("Order", button)); }
    int Selected() const { return list.selectedItems().isEmpty() ? -1 : list.currentRow(); }
    QString Page() const {
        const auto* bar = person.Window().findChild<QTabBar*>();
        return Read(bar->tabText(bar->currentIndex()));
    }
};

CFinanceChart ChartOf(std::initializer_list<int> order) {
    CFinanceChart chart;
    std::copy(order.begin(), order.end(), chart.m_order);
    chart.m_showRsi = true;
    return chart;
}

TEST(FinanceOrder, ButtonsExchangeNeighboursAndTheEnds) {
    CFinanceChart chart = ChartOf({0, 1, 2, 3, 4});
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        const Order order{person};
        EXPECT_EQ(order.Rows(), QStringList({"MainChart", "RSI", "Momentum", "SlowStochastic", "MACD"}));
        EXPECT_EQ(order.Selected(), -1);
        const QImage before = person.Preview();
        order.Select(1);
        order.Press("^");
        EXPECT_EQ(order.Rows(), QStringList({"RSI", "MainChart", "Momentum", "SlowStochastic", "MACD"}));
        EXPECT_EQ(order.Selected(), 0);
        EXPECT_NE(person.Preview(), before);
        order.Press("^"); // the ends change places, the others stay
        EXPECT_EQ(order.Rows(), QStringList({"MACD", "MainChart", "Momentum", "SlowStochastic", "RSI"}));
        EXPECT_EQ(order.Selected(), 4);
        order.Press("v");
        EXPECT_EQ(order.Selected(), 0);
        order.Press("v");
        EXPECT_EQ(order.Selected(), 1);
        person.Ok();
    }));
    EXPECT_EQ(OrderOf(chart), std::vector({0, 1, 2, 3, 4}));
}

TEST(FinanceOrder, JumpsToThePageOfThePaneAndWarnsWithoutOne) {
    CFinanceChart chart = ChartOf({4, 0, 2, 1, 3});
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        const Order order{person};
        ExpectBox("Warning", "Select anyone.", [&] { order.Press("v"); });
        EXPECT_EQS((order.Selected(), 0), (order.Page(), "MainChart"));
        order.Press(">");
        EXPECT_EQ(order.Page(), "MACD");
        const QPoint third = order.list.visualItemRect(order.list.item(2)).center();
        order.Select(2);
        QTest::mouseDClick(order.list.viewport(), Qt::LeftButton, {}, third);
        EXPECT_EQ(order.Page(), "Momentum");
        person.Ok();
    }));
    EXPECT_EQ(OrderOf(chart), std::vector({4, 0, 2, 1, 3}));
}

TEST(FinanceOrder, WhatIsNoPaneHasNoRowAndKeepsItsPlace) {
    CFinanceChart chart = ChartOf({7, 1, -1, 0, 4});
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        const Order order{person};
        EXPECT_EQ(order.Rows(), QStringList({"RSI", "MainChart", "MACD"}));
        order.Select(0);
        order.Press("v");
        person.Ok();
    }));
    EXPECT_EQ(OrderOf(chart), std::vector({7, 0, -1, 1, 4}));
}
} // namespace
