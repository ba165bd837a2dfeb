#include "editors/framework/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSet>
#include <QStackedWidget>
#include <QStringList>
#include <QTabBar>
#include <vector>

namespace {

/// The place of the letter to mark: the first free one that begins a word, else any free one; -1 for none.
qsizetype Choose(const QString& text, const QSet<QChar>& taken) {
    for (const bool wordsOnly : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !text[i - 1].isLetterOrNumber() || text[i].isUpper();
            if (text[i].isLetterOrNumber() && (begins || !wordsOnly) && !taken.contains(text[i].toLower())) {
                return i;
            }
        }
    }
    return -1;
}

/// The text with its letter marked, if there is one for it.
QString Marked(QString text, QSet<QChar>& taken) {
    qsizetype at = text.indexOf(u'&');
    if (at < 0) {
        at = Choose(text, taken);
        if (at >= 0) {
            text.insert(at, u'&');
        }
    }
    if (at >= 0 && at + 1 < text.size()) {
        taken.insert(text[at + 1].toLower());
    }
    return text;
}

void Mark(QWidget& widget, QSet<QChar>& taken) {
    static const QStringList plain{QString(), QStringLiteral("..."), QStringLiteral("OK"),
                                   QStringLiteral("Cancel")};
    if (auto* label = qobject_cast<QLabel*>(&widget); label != nullptr && label->buddy() != nullptr) {
        label->setText(Marked(label->text(), taken));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget);
               button != nullptr && !plain.contains(button->text())) {
        button->setText(Marked(button->text(), taken));
    } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setTabText(i, Marked(tabs->tabText(i), taken));
        }
    }
}

/// Marks what shows at all times first, and then each of the pages with what is left.
void MarkBelow(QWidget& parent, QSet<QChar>& taken, std::vector<QStackedWidget*>& stacks) {
    for (QWidget* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (auto* stack = qobject_cast<QStackedWidget*>(child)) {
            stacks.push_back(stack);
        } else {
            Mark(*child, taken);
            MarkBelow(*child, taken, stacks);
        }
    }
}

void MarkPage(QWidget& page, QSet<QChar> taken) {
    std::vector<QStackedWidget*> stacks;
    MarkBelow(page, taken, stacks);
    for (const QStackedWidget* stack : stacks) {
        for (int i = 0; i < stack->count(); ++i) {
            MarkPage(*stack->widget(i), taken);
        }
    }
}

} // namespace

void AssignMnemonics(QWidget& dialog) {
    MarkPage(dialog, {});
}
