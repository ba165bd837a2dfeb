// What all dialogs look like: whole, on a small screen, at small and large fonts, and in a dark palette.

#include "tests/driver/audit.h"
#include "tests/driver/dialogs.h"

using namespace driver;

namespace {
struct Setting {
    double points;
    bool dark;
};

class Looks : public testing::TestWithParam<Setting> {
protected:
    void SetUp() override {
        NeedApplication();
        m_usual = QApplication::palette();
        if (GetParam().dark) QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2b, 0x2b, 0x2b)));
    }
    void TearDown() override { QApplication::setPalette(m_usual); }

private:
    QPalette m_usual;
};
INSTANTIATE_TEST_SUITE_P(Settings, Looks, testing::Values(Setting{8, false}, Setting{12, false}, Setting{9, true}));

TEST_P(Looks, OfEveryDialogAreWhole) {
    AtFont(
        GetParam().points,
        [] {
            for (const Dialog& dialog : AllDialogs())
                dialog.visit([&](Person& person) {
                    SCOPED_TRACE(dialog.name);
                    const QWidget& window = person.Window();
                    EXPECT_LE(window.width(), 1366);
                    EXPECT_LE(window.height(), 768 - 30);
                    const auto* preview = window.findChild<QWidget*>(QStringLiteral("Preview"));
                    if (dialog.own && preview != nullptr && window.width() < 1350) // where the screen is not full
                        EXPECT_GE(preview->width() * 3 + 20, window.width());      // its margins
                    OnEachPage(
                        person,
                        [&](const QString& tab) {
                            SCOPED_TRACE(qPrintable(tab));
                            if (dialog.own) audit::Everything(person.Window());
                            audit::NothingIsCutOff(person.Window());
                            audit::NoTextsOverlap(person.Window());
                            KeepPicture(person, QStringLiteral("%1-%2-%3%4")
                                                    .arg(QString::fromStdString(dialog.name), tab)
                                                    .arg(GetParam().points)
                                                    .arg(GetParam().dark ? "-dark" : ""));
                        });
                });
        });
}
} // namespace
