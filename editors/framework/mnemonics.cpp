#include "editors/framework/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSet>
#include <QWidget>

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

template <class Control>
void Mark(Control* control, QSet<QChar>& taken) {
    QString text = control->text();
    const qsizetype marked = text.indexOf(u'&');
    if (marked >= 0 && marked + 1 < text.size()) {
        taken.insert(text[marked + 1].toLower());
        return;
    }
    const qsizetype at = Choose(text, taken);
    if (at >= 0) {
        taken.insert(text[at].toLower());
        control->setText(text.insert(at, u'&'));
    }
}

} // namespace

void AssignMnemonics(QWidget& page) {
    QSet<QChar> taken;
    for (QWidget* widget : page.findChildren<QWidget*>()) {
        if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr) {
            Mark(label, taken);
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            if (!button->text().isEmpty() && button->text() != QStringLiteral("...")) {
                Mark(button, taken);
            }
        }
    }
}
