#include "editors/framework/mnemonics.h"

#include "platform/widgets/complaint.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QMap>
#include <QSet>
#include <QStackedWidget>
#include <QStringList>
#include <QTabBar>
#include <functional>
#include <vector>

namespace {

/// A text that wants a letter, and the place of the letter in it; -1 while it has none.
struct Caption {
    QString text;
    std::function<void(const QString&)> show;
    qsizetype marked = -1;
};

/// Gives each caption a letter of its own that is not in `taken`. Letters that begin a word are tried first;
/// a caption that finds all of its letters in use makes one that has another choice move to it.
class CLetters {
public:
    CLetters(std::vector<Caption>& captions, const QSet<QChar>& taken)
        : m_captions(captions), m_taken(taken) {
        for (std::size_t i = 0; i < captions.size(); ++i) {
            QSet<QChar> tried;
            Find(i, tried);
        }
    }

private:
    bool Find(std::size_t index, QSet<QChar>& tried) {
        const QString& text = m_captions[index].text;
        for (const bool wordsOnly : {true, false}) {
            for (qsizetype i = 0; i < text.size(); ++i) {
                const QChar letter = text[i].toLower();
                const bool begins = i == 0 || !text[i - 1].isLetterOrNumber() || text[i].isUpper();
                if (!letter.isLetterOrNumber() || begins != wordsOnly || m_taken.contains(letter) ||
                    tried.contains(letter))
                    continue;
                tried.insert(letter);
                const auto owner = m_owners.constFind(letter);
                if (owner == m_owners.cend() || Find(owner.value(), tried)) {
                    m_owners[letter] = index;
                    m_captions[index].marked = i;
                    return true;
                }
            }
        }
        return false;
    }

    std::vector<Caption>& m_captions;
    const QSet<QChar>& m_taken;
    QMap<QChar, std::size_t> m_owners;
};

void Collect(QWidget& widget, std::vector<Caption>& captions) {
    static const QStringList plain{QString(), QStringLiteral("..."), QStringLiteral("OK"),
                                   QStringLiteral("Cancel")};
    if (auto* label = qobject_cast<QLabel*>(&widget); label != nullptr && label->buddy() != nullptr) {
        captions.push_back({label->text(), [label](const QString& text) { label->setText(text); }});
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget);
               button != nullptr && !plain.contains(button->text())) {
        captions.push_back({button->text(), [button](const QString& text) { button->setText(text); }});
    } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            captions.push_back(
                {tabs->tabText(i), [tabs, i](const QString& text) { tabs->setTabText(i, text); }});
        }
    }
}

/// What shows at all times below `parent`, and the stacks of pages that show one at a time.
void CollectBelow(QWidget& parent, std::vector<Caption>& captions, std::vector<QStackedWidget*>& stacks) {
    for (QWidget* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (auto* stack = qobject_cast<QStackedWidget*>(child)) {
            stacks.push_back(stack);
        } else {
            Collect(*child, captions);
            CollectBelow(*child, captions, stacks);
        }
    }
}

void MarkPage(QWidget& page, QSet<QChar> taken) {
    std::vector<Caption> captions;
    std::vector<QStackedWidget*> stacks;
    if (auto* pages = qobject_cast<QStackedWidget*>(&page)) // several pages under one tab
        stacks.push_back(pages);
    else
        CollectBelow(page, captions, stacks);

    const auto hasLetter = [&taken](const Caption& caption) {
        const qsizetype at = caption.text.indexOf(u'&') + 1;
        if (at > 0 && at < caption.text.size())
            taken.insert(caption.text[at].toLower());
        return at > 0;
    };
    std::erase_if(captions, hasLetter);
    const CLetters letters(captions, taken);
    for (Caption& caption : captions) {
        if (caption.marked >= 0) {
            taken.insert(caption.text[caption.marked].toLower());
            caption.show(caption.text.insert(caption.marked, u'&'));
        }
    }
    for (const QStackedWidget* stack : stacks)
        for (int i = 0; i < stack->count(); ++i)
            MarkPage(*stack->widget(i), taken);
}

/// A letter holds its button down for a moment before the click: where the focused edit cannot commit, it
/// does not even begin.
class CCommitFirst : public QObject {
public:
    using QObject::QObject;
    void Watch(const QWidget& dialog) {
        for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
            button->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        return event->type() == QEvent::Shortcut && !TakeFocus(*static_cast<QWidget*>(watched));
    }
};

} // namespace

void AssignMnemonics(QWidget& dialog) {
    MarkPage(dialog, {});
    CCommitFirst* first = nullptr;
    for (QObject* child : dialog.children())
        if (auto* known = dynamic_cast<CCommitFirst*>(child))
            first = known;
    if (first == nullptr)
        first = new CCommitFirst(&dialog);
    first->Watch(dialog);
}
