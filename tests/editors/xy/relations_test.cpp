// Axes and layers name each other. Random sequences of adding, copying, moving, retyping and deleting them,
// with OK and Cancel at each level, against a plain model of what should be there.

#include "tests/editors/xy/charts.h"

using namespace driver;

namespace {

/// What an axis follows: a kind, and for kind 16 the id of an additional axis, 0 for none.
struct Follows {
    int kind = 0, id = 0;
};
struct PlainAxis {
    int id = 0; ///< its offset
    Follows follows;
};
struct PlainLayer {
    int type = 0;
    std::string name;
    Follows stands{2, 0};
};
struct Plain {
    Follows x2{1, 0}, y2{2, 0};
    std::vector<PlainAxis> axes;
    std::vector<PlainLayer> layers;

    PlainAxis& Axis(int row) { return axes[static_cast<std::size_t>(row)]; }
    PlainLayer& Layer(int row) { return layers[static_cast<std::size_t>(row)]; }
    int RowOf(int id) const {
        const auto found = std::find_if(axes.begin(), axes.end(), [id](auto& axis) { return axis.id == id; });
        return found == axes.end() ? -1 : static_cast<int>(found - axes.begin());
    }
    /// An axis is gone: who named it names none.
    void Forget(int id) {
        const auto forget = [id](Follows& follows) { follows.id = follows.id == id ? 0 : follows.id; };
        forget(x2);
        forget(y2);
        for (PlainAxis& axis : axes) forget(axis.follows);
        for (PlainLayer& layer : layers) forget(layer.stands);
    }
};

/// Runs `cause`, which opens a dialog, and acts in it.
void InDialog(const std::function<void()>& cause, const std::function<void(QWidget&)>& act) {
    QTimer::singleShot(0, [&act] { act(*QApplication::activeModalWidget()); });
    cause();
}

class Sequence {
public:
    Sequence(unsigned seed, int& nextId) : m_random(seed), m_nextId(nextId) {}

    /// Opens the editor of `chart`, which is as `plain` says, acts, and leaves it by OK or Cancel.
    void Run(CXYChart& chart, Plain& plain) {
        m_plain = plain;
        const bool ok = Below(4) != 0;
        bool told = false;
        InDialog([&] { told = ShowXYChartWnd(chart, CChartLayout()); },
                 [&](QWidget& window) {
                     m_window = &window;
                     for (int left = 4 + Below(10); left > 0 && !testing::Test::HasFailure(); --left) Act();
                     Button("", ok ? "OK" : "Cancel").click();
                 });
        EXPECT_EQ(told, ok);
        if (ok) plain = m_plain;
    }

private:
    int Below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }

    QWidget& Group(QWidget& window, const QString& caption) const {
        for (auto* box : window.findChildren<QGroupBox*>())
            if (Read(box->title()) == caption) return *box;
        return window;
    }
    QAbstractButton& Button(QWidget& window, const QString& group, const QString& text) const {
        for (auto* button : Group(window, group).findChildren<QAbstractButton*>())
            if (Read(button->text()) == text) return *button;
        throw std::runtime_error("no button " + text.toStdString());
    }
    QAbstractButton& Button(const QString& group, const QString& text) const { return Button(*m_window, group, text); }
    QListWidget& List(const QString& group) const { return *Group(*m_window, group).findChild<QListWidget*>(); }
    static void Choose(QComboBox& box, int row) {
        box.setCurrentIndex(row);
        emit box.activated(row);
    }
    static void Write(QWidget& window, const char* name, const QString& text) {
        QWidget* control = nullptr;
        for (auto* found : window.findChildren<QWidget*>(QString::fromUtf8(name)))
            if (control == nullptr || Person::GroupOf(*found).isEmpty()) // a page has a name of its own too
                control = found;
        auto* edit = qobject_cast<QLineEdit*>(control);
        control->setFocus();
        (edit != nullptr ? edit : control->findChild<QLineEdit*>())->setText(text);
        QTest::keyClick(control, Qt::Key_Return);
    }

    void Act() {
        const auto axes = static_cast<int>(m_plain.axes.size());
        const auto layers = static_cast<int>(m_plain.layers.size());
        const int act = Below(10);
        if (act == 0)
            AddAxis();
        else if (act == 1)
            FollowIn(Below(2) == 0 ? "X2" : "Y2");
        else if (act == 4)
            EditLayer(-1);
        else if (act < 4 && axes > 0)
            act == 2 ? ModifyAxis(Below(axes)) : DeleteAxis(Below(axes));
        else if (act > 4 && layers > 0)
            ActOnLayer(Below(layers), layers);
        Compare();
    }

    /// In the dialog of an axis: perhaps follows another one. `own` cannot be followed.
    Follows FollowSomething(QWidget& window, Follows before, const QString& own) {
        const int pick = Below(6);
        if (pick == 0) return before;
        auto& box = *window.findChild<QComboBox*>(QStringLiteral("Additional"));
        EXPECT_EQ(box.count(), static_cast<int>(m_plain.axes.size()));
        EXPECT_EQ(box.currentIndex(), before.kind == 16 ? m_plain.RowOf(before.id) : -1);
        if (pick == 5 && box.count() > 0) {
            const int row = Below(box.count());
            Choose(box, row);
            return {16, m_plain.Axis(row).id};
        }
        const QString names[] = {"X", "Y", "X2", "Y2"};
        const int target = Below(4);
        auto& button = Button(window, "SyncAxis", names[target]);
        EXPECT_EQ(button.isEnabled(), names[target] != own);
        if (names[target] == own) return before;
        button.click();
        return {1 << target, 0};
    }
    bool Leave(QWidget& window) {
        const bool ok = Below(3) != 0;
        Button(window, "", ok ? "OK" : "Cancel").click();
        return ok;
    }

    void AddAxis() {
        PlainAxis axis{m_nextId++, {}};
        InDialog([&] { Button("Additional", "Add...").click(); },
                 [&](QWidget& window) {
                     Write(window, "Offset", QString::number(axis.id));
                     axis.follows = FollowSomething(window, axis.follows, {});
                     if (Leave(window)) m_plain.axes.push_back(axis);
                 });
    }
    /// Opens a dialog by a button and perhaps lets what it edits follow something else.
    void FollowBy(QAbstractButton& button, Follows& follows, const QString& own) {
        InDialog([&] { button.click(); },
                 [&](QWidget& window) {
                     const Follows now = FollowSomething(window, follows, own);
                     if (Leave(window)) follows = now;
                 });
    }
    void FollowIn(const QString& axis) { // "X2" or "Y2"
        FollowBy(Button("Secondary " + axis.left(1) + " Axis (" + axis + ")", axis + " Axis ..."),
                 axis == "X2" ? m_plain.x2 : m_plain.y2, axis);
    }
    void ModifyAxis(int row) {
        List("Additional").setCurrentRow(row);
        FollowBy(Button("Additional", "Modify..."), m_plain.Axis(row).follows, {});
    }
    void DeleteAxis(int row) {
        List("Additional").setCurrentRow(row);
        Button("Additional", "Delete").click();
        const int id = m_plain.Axis(row).id;
        m_plain.axes.erase(m_plain.axes.begin() + row);
        m_plain.Forget(id);
    }

    /// A new layer for row -1.
    void EditLayer(int row) {
        PlainLayer layer = row < 0 ? PlainLayer() : m_plain.Layer(row);
        const PlainLayer before = layer;
        InDialog([&] { Button("Layer", row < 0 ? "Add..." : "Modify...").click(); },
                 [&](QWidget& window) {
                     for (int times = Below(3); times > 0; --times) {
                         layer.type = Below(9);
                         Choose(*window.findChild<QComboBox*>(QStringLiteral("Layer Type")), layer.type);
                     }
                     if (Below(2) == 0) {
                         layer.name = "n" + std::to_string(m_nextId++);
                         Write(window, "Name", QString::fromStdString(layer.name));
                     }
                     // All but the name belongs to the kind.
                     layer.stands = layer.type == before.type ? before.stands : Follows{2, 0};
                     if (!Leave(window)) return;
                     if (row < 0)
                         m_plain.layers.push_back(layer);
                     else
                         m_plain.Layer(row) = layer;
                 });
    }
    void ActOnLayer(int row, int count) {
        List("Layer").setCurrentRow(row);
        PlainLayer& layer = m_plain.Layer(row);
        if (const int act = Below(8); act == 0) {
            Button("Layer", "Copy").click();
            m_plain.layers.push_back(PlainLayer(layer));
        } else if (act == 1) {
            Button("Layer", "Delete").click();
            m_plain.layers.erase(m_plain.layers.begin() + row);
        } else if (act < 4) {
            Button("Layer", act == 2 ? "^" : "v").click();
            std::swap(layer, m_plain.Layer((row + (act == 2 ? count - 1 : 1)) % count));
        } else if (act == 4) {
            Button("Layer Y Axis", Below(2) == 0 ? "Y" : "Y2").click();
            layer.stands = {Button("Layer Y Axis", "Y").isChecked() ? 2 : 8, 0};
        } else if (act > 5) {
            EditLayer(row);
        } else if (!m_plain.axes.empty()) {
            const int axis = Below(static_cast<int>(m_plain.axes.size()));
            Choose(*Group(*m_window, "Layer Y Axis").findChild<QComboBox*>(), axis);
            layer.stands = {16, m_plain.Axis(axis).id};
        }
    }

    /// What shows, as the plain model says.
    void Compare() {
        static const char* const kTypes[] = {"Bar", "Line", "Scatter(Bubble)", "Area",       "BoxWhisker",
                                             "Box", "HLOC", "Gantt",           "CandleStick"};
        EXPECT_EQ(List("Additional").count(), std::ssize(m_plain.axes));
        QListWidget& list = List("Layer");
        ASSERT_EQ(list.count(), std::ssize(m_plain.layers));
        for (int row = 0; row < list.count(); ++row) {
            const PlainLayer& layer = m_plain.Layer(row);
            QString caption = QStringLiteral("Layer %1 ( %2 )").arg(row + 1).arg(kTypes[layer.type]);
            if (!layer.name.empty()) caption += " : (\"" + QString::fromStdString(layer.name) + "\")";
            EXPECT_EQ(list.item(row)->text().toStdString(), caption.toStdString());
        }
        const int row = list.currentRow();
        EXPECT_EQ(row < 0, m_plain.layers.empty());
        const Follows stands = row < 0 ? Follows{2, 0} : m_plain.Layer(row).stands;
        EXPECT_EQ(Button("Layer Y Axis", "Y").isChecked(), stands.kind == 2);
        EXPECT_EQ(Button("Layer Y Axis", "Y2").isChecked(), stands.kind == 8);
        auto& box = *Group(*m_window, "Layer Y Axis").findChild<QComboBox*>();
        EXPECT_EQ(box.count(), std::ssize(m_plain.axes));
        EXPECT_EQ(box.currentIndex(), stands.kind == 16 ? m_plain.RowOf(stands.id) : -1);
    }

    std::mt19937 m_random;
    int& m_nextId;
    Plain m_plain;
    QWidget* m_window = nullptr;
};

void ExpectFollows(const CXYChart& chart, const Plain& plain, int kind, const CXYChartAxis* axis,
                   const Follows& expected) {
    EXPECT_EQS((kind, expected.kind), (axis, chart.m_axes.GetSafeAxis(plain.RowOf(expected.id))));
}

void ExpectChart(const CXYChart& chart, Plain& plain) {
    ExpectFollows(chart, plain, chart.m_x2Axis.m_syncKind, chart.m_x2Axis.m_syncAxis, plain.x2);
    ExpectFollows(chart, plain, chart.m_y2Axis.m_syncKind, chart.m_y2Axis.m_syncAxis, plain.y2);
    ASSERT_EQ(chart.m_axes.GetAxisCount(), std::ssize(plain.axes));
    for (int i = 0; i < chart.m_axes.GetAxisCount(); ++i) {
        const CXYChartAxis& axis = *chart.m_axes.GetAxis(i);
        EXPECT_EQ(axis.m_offset, plain.Axis(i).id);
        ExpectFollows(chart, plain, axis.m_syncKind, axis.m_syncAxis, plain.Axis(i).follows);
    }
    ASSERT_EQ(chart.m_layers.GetLayerCount(), std::ssize(plain.layers));
    for (int i = 0; i < chart.m_layers.GetLayerCount(); ++i) {
        const CXYChartLayer& layer = *chart.m_layers.GetLayer(i);
        const PlainLayer& expected = plain.Layer(i);
        EXPECT_EQS((layer.GetType(), expected.type), (layer.m_name.data(), expected.name));
        ExpectFollows(chart, plain, layer.m_yAxisKind, layer.m_yAxis, expected.stands);
    }
}

} // namespace

TEST(XYRelations, HoldWhateverIsAddedMovedAndDeleted) {
    NeedApplication();
    const int sequences = std::max(40, qEnvironmentVariableIntValue("CHART_SEQUENCES"));
    CXYChart chart;
    Plain plain;
    int nextId = 1;
    for (int i = 0; i < sequences; ++i) {
        SCOPED_TRACE(i);
        if (plain.layers.size() > 12) { // small ones have more ends
            chart = CXYChart();
            plain = Plain();
        }
        Sequence(static_cast<unsigned>(i), nextId).Run(chart, plain);
        ExpectChart(chart, plain);
        ASSERT_FALSE(HasFailure());
    }
}
