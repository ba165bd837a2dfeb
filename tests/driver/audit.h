#pragma once
// What every window of the editors owes to those who use it: names for all that takes the focus, nothing cut
// off, Tab in reading order, letters for Alt.

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace audit {
inline std::string Describe(const QWidget& widget) {
    return std::string(widget.metaObject()->className()) + " \"" + widget.objectName().toStdString() + '"';
}

/// Of radio buttons, the Tab key goes to the one that is on.
inline bool IsOtherChoice(const QWidget& widget) {
    const auto* radio = qobject_cast<const QRadioButton*>(&widget);
    return radio != nullptr && !radio->isChecked();
}

/// The widgets of `window` that show and that the keyboard reaches.
inline std::vector<QWidget*> Focusable(QWidget& window) {
    std::vector<QWidget*> found;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisibleTo(&window) && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
            widget->focusProxy() == nullptr && !IsOtherChoice(*widget))
            found.push_back(widget);
    return found;
}

inline void EveryControlHasAName(QWidget& window) {
    for (const QWidget* widget : Focusable(window)) {
        if (qstrcmp(widget->metaObject()->className(), "QTabBar") != 0) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << Describe(*widget);
            EXPECT_FALSE(widget->objectName().isEmpty()) << Describe(*widget);
        }
    }
    for (const QGroupBox* box : window.findChildren<QGroupBox*>())
        EXPECT_FALSE(box->objectName().isEmpty()) << box->title().toStdString();
}

inline void NothingIsCutOff(QWidget& window) {
    const bool fixed = window.minimumSize() == window.maximumSize();
    EXPECT_TRUE(!fixed || window.size() == window.sizeHint()) << Describe(window);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) continue;
        const bool hasText = qobject_cast<const QLabel*>(widget) != nullptr ||
                             qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<const QComboBox*>(widget) != nullptr ||
                             qobject_cast<const QGroupBox*>(widget) != nullptr || widget->inherits("QAbstractSpinBox");
        // A text that may be of any length gives up its width of its own will.
        const bool wide = widget->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored;
        if (hasText && widget->minimumWidth() != widget->maximumWidth()) {
            EXPECT_TRUE(!wide || widget->width() >= widget->sizeHint().width())
                << Describe(*widget) << ' ' << widget->width() << " < " << widget->sizeHint().width();
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << Describe(*widget);
        }
        if (const auto* bar = qobject_cast<const QTabBar*>(widget)) // else it scrolls
            EXPECT_GE(bar->width(), bar->sizeHint().width()) << Describe(*widget);
        const auto* button = qobject_cast<const QPushButton*>(widget);
        if (button != nullptr && widget->minimumWidth() == widget->maximumWidth())
            EXPECT_GT(widget->width(), widget->fontMetrics().horizontalAdvance(button->text()) + 4)
                << Describe(*widget);
        const QWidget* parent = widget->parentWidget();
        if (!widget->isWindow() && !parent->inherits("QAbstractScrollArea") && !parent->inherits("QAbstractItemView") &&
            parent->objectName() != "qt_scrollarea_viewport") {
            EXPECT_TRUE(parent->rect().contains(widget->geometry()))
                << Describe(*widget) << " in " << Describe(*parent);
        }
    }
}

/// A dialog that is smaller than the smallest screen has room for all of its pages.
inline void NothingScrolls(QWidget& window) {
    for (const QScrollArea* room : window.findChildren<QScrollArea*>())
        if (room->isVisible()) {
            EXPECT_TRUE(window.height() > 700 || !room->verticalScrollBar()->isVisible()) << Describe(window);
            EXPECT_TRUE(window.width() > 1340 || !room->horizontalScrollBar()->isVisible()) << Describe(window);
        }
}

inline bool HasText(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return (label != nullptr && !label->text().isEmpty()) || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr || widget.inherits("QAbstractSpinBox") ||
           widget.inherits("QAbstractItemView") || widget.inherits("QPlainTextEdit") || widget.inherits("QTabBar");
}

/// No two controls that show a text lie over each other, as far as they can be seen.
inline void NoTextsOverlap(QWidget& window) {
    std::vector<std::pair<const QWidget*, QRect>> texts;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisibleTo(&window) && HasText(*widget)) {
            const QRect seen = widget->visibleRegion().boundingRect();
            texts.emplace_back(widget, seen.translated(widget->mapTo(&window, QPoint())));
        }
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const auto& [one, where] = texts[i];
            const auto& [other, place] = texts[j];
            EXPECT_TRUE(!where.intersects(place) || one->isAncestorOf(other) || other->isAncestorOf(one))
                << Describe(*one) << " lies over " << Describe(*other);
        }
}

/// Tab goes on in the columns of a page from the top down, and from left to right in a line: never to a
/// control that stands above in the same column.
inline void TabFollowsReading(QWidget& window) {
    QWidget* last = nullptr;
    const auto order = Focusable(window);
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (std::find(order.begin(), order.end(), next) == order.end()) continue;
        if (last != nullptr) {
            const QRect from(last->mapTo(&window, QPoint()), last->size());
            const QRect to(next->mapTo(&window, QPoint()), next->size());
            const bool below = to.top() > from.top();
            const bool right = to.left() > from.left();
            // The preview comes when all that edits has been passed, the strip at the very end.
            const bool strip = next->parentWidget()->objectName() == "Strip";
            EXPECT_TRUE(below || right || next->accessibleName() == "Preview" || strip)
                << Describe(*last) << " -> " << Describe(*next);
        }
        last = next;
    }
}

/// The key reaches each of them, whatever stands between.
inline void TabReachesEveryControl(QWidget& window) {
    const auto controls = Focusable(window);
    std::set<const QWidget*> missed(controls.begin(), controls.end());
    for (std::size_t i = 0; i < 2 * controls.size(); ++i) {
        if (window.focusWidget() != nullptr) missed.erase(window.focusWidget());
        QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Tab);
    }
    for (const QWidget* widget : missed) ADD_FAILURE() << "Tab does not reach " << Describe(*widget);
}

/// No two letters of what shows at once are the same, and what has none finds all of its own in use.
inline void LettersAreUnique(QWidget& window) {
    QString letters;
    QStringList without;
    const auto take = [&](const QString& text, const QWidget& widget) {
        const qsizetype at = text.indexOf(u'&');
        if (at >= 0) {
            EXPECT_FALSE(letters.contains(text[at + 1], Qt::CaseInsensitive)) << Describe(widget) << text.toStdString();
            letters += text[at + 1];
        } else if (text.contains(QRegularExpression(QStringLiteral("\\w"))) && text != "OK" && text != "Cancel") {
            without += text;
        }
    };
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
            take(label->text(), *label);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            take(button->text(), *button);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i) take(tabs->tabText(i), *tabs);
    }
    for (const QString& text : without)
        for (const QChar letter : text)
            EXPECT_TRUE(letters.isEmpty() || !letter.isLetterOrNumber() ||
                        letters.contains(letter, Qt::CaseInsensitive))
                << '"' << text.toStdString() << "\" could have " << QString(letter).toStdString();
}

/// How far two colours are apart for the eye: 1 to 21.
inline double Contrast(const QColor& one, const QColor& other) {
    const auto light = [](const QColor& color) {
        const auto part = [](float level) {
            return level <= 0.04F ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
    };
    const auto [low, high] = std::minmax({light(one), light(other)});
    return (high + 0.05) / (low + 0.05);
}

/// The boxes of check boxes and radio buttons that are not on stand out from a dark page.
inline void BoxesAreSeen(QWidget& window) {
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        const bool round = qobject_cast<QRadioButton*>(button) != nullptr;
        const bool isBox = round || qobject_cast<QCheckBox*>(button) != nullptr;
        const QColor page = button->palette().color(QPalette::Window);
        if (!isBox || !button->isVisible() || !button->isEnabled() || button->isChecked() || page.lightness() > 128)
            continue;
        QStyleOptionButton option;
        option.initFrom(button);
        const QRect box = button->style()->subElementRect(
            round ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button);
        const QImage shown = button->grab(box).toImage();
        double most = 1;
        for (int x = 0; x < shown.width(); ++x) // across the middle: both sides of the outline
            most = std::max(most, Contrast(shown.pixelColor(x, shown.height() / 2), page));
        EXPECT_GT(most, 3) << Describe(*button);
    }
}

/// A number tells its unit and its range while the mouse rests on it.
inline void NumbersHaveTips(QWidget& window) {
    for (const QAbstractSpinBox* number : window.findChildren<QAbstractSpinBox*>())
        if (number->isVisible()) EXPECT_FALSE(number->toolTip().isEmpty()) << Describe(*number);
}

inline void Everything(QWidget& window) {
    EveryControlHasAName(window);
    NothingIsCutOff(window);
    NothingScrolls(window);
    NoTextsOverlap(window);
    TabFollowsReading(window);
    TabReachesEveryControl(window);
    LettersAreUnique(window);
    BoxesAreSeen(window);
    NumbersHaveTips(window);
}
} // namespace audit
