// The protocol of the entry functions, with a dialog that answers by itself.

#include "editors/entry/run_editor.h"
#include "tests/expect.h"
#include <QApplication>
#include <charteditors/charteditors.h>
#include <clocale>
#include <stdexcept>

namespace {
/// Edits a layout by widening it; answers with what the test has set.
class AnsweringDialog {
public:
    static inline int answer = 0;
    static inline bool throws = false;
    static inline int alive = 0;

    AnsweringDialog() { alive++; }
    ~AnsweringDialog() { alive--; }
    void SetObject(const CChartLayout& layout) { m_copy = layout; }
    int DoModal() {
        EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
        m_copy.m_width = 777;
        m_copy.m_titles.push_back({});
        if (throws) throw std::runtime_error("in the dialog");
        return answer;
    }
    const CChartLayout& GetObject() const { return m_copy; }

private:
    CChartLayout m_copy;
};
} // namespace

TEST(Entry, WritesBackOnOkOnly) {
    ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    for (int answer : {0, 2, -1, 1}) {
        AnsweringDialog::answer = answer;
        CChartLayout layout;
        EXPECT_EQ(entry::RunEditor<AnsweringDialog>(layout), answer == 1) << answer;
        EXPECT_EQS((layout.m_width, answer == 1 ? 777 : 500), (layout.m_titles.size(), answer == 1 ? 1 : 0));
    }
    EXPECT_EQ(AnsweringDialog::alive, 0);
    EXPECT_NE(qobject_cast<QApplication*>(QCoreApplication::instance()), nullptr) << "made at first need";
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C") << "the host's locale is its own";
}

TEST(Entry, PutsEverythingBackWhenAnExceptionPasses) {
    CChartLayout layout;
    entry::RunEditor<AnsweringDialog>(layout); // so that there is an application object
    QGuiApplication::setQuitOnLastWindowClosed(true);
    AnsweringDialog::throws = true;
    layout = CChartLayout();
    EXPECT_THROW(entry::RunEditor<AnsweringDialog>(layout), std::runtime_error);
    AnsweringDialog::throws = false;
    EXPECT_EQS((layout.m_width, 500), (AnsweringDialog::alive, 0), (QGuiApplication::quitOnLastWindowClosed(), true));
}
