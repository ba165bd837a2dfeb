#include "editors/framework/date_row.h"

#include "editors/framework/form.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

namespace {

/// Does not change under a wheel that only passes over it, and leaves Enter and Esc to the page.
class CQuietDate : public QDateEdit {
public:
    explicit CQuietDate(QWidget* parent) : QDateEdit(QDate::currentDate(), parent) {
        setFocusPolicy(Qt::StrongFocus);
        setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
        setCalendarPopup(true);
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QDateEdit::wheelEvent(event);
        else
            event->ignore();
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QDateEdit::mouseReleaseEvent(event);
        setSelectedSection(currentSection()); // so that what is typed replaces it
    }
    void keyPressEvent(QKeyEvent* event) override {
        const int key = event->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            interpretText(); // what is no date goes back to what was one
            event->ignore();
        } else if (event->matches(QKeySequence::SelectAll)) {
            setSelectedSection(YearSection); // a whole date can be typed from here
        } else if (key == Qt::Key_Slash || key == Qt::Key_Minus || key == Qt::Key_Period) {
            GoOn();
        } else {
            QDateEdit::keyPressEvent(event);
        }
    }

private:
    /// A separator: on to the next part of the date, unless a full year or month has gone on by itself.
    void GoOn() {
        if (lineEdit()->selectedText() != sectionText(currentSection())) {
            setCurrentSectionIndex(std::min(currentSectionIndex() + 1, sectionCount() - 1));
            setSelectedSection(currentSection());
        }
    }
};

} // namespace

CDateRow::CDateRow(CForm& form, CBinding<QDate> field)
    : CValueRow(form, std::move(field)), m_edit(new CQuietDate(&form.Page())) {
    QObject::connect(
        m_edit, &QDateEdit::dateChanged, m_edit, [this] { Chosen(); });
}

QWidget* CDateRow::Control() const {
    return m_edit;
}

bool CDateRow::Exchange(bool read) {
    const QSignalBlocker quiet(m_edit);
    if (read)
        m_mirror = m_edit->date();
    else if (m_mirror.isValid())
        m_edit->setDate(m_mirror);
    return true;
}
