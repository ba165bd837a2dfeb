#include "editors/framework/text_rows.h"

#include "editors/framework/conventions.h"
#include "editors/framework/form.h"
#include "platform/widgets/quiet_combo.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

const char* const kNoFormat = "---------------------------------";

/// An edit of a few lines. Tab leaves it, as it leaves every other control.
class CLinesEdit : public QPlainTextEdit {
public:
    explicit CLinesEdit(QWidget* parent) : QPlainTextEdit(parent) {
        setTabChangesFocus(true);
        setLineWrapMode(NoWrap);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    QSize sizeHint() const override {
        constexpr int kLines = 3;
        const int extra = 2 * frameWidth() + 2 * static_cast<int>(document()->documentMargin());
        return {fontMetrics().averageCharWidth() * 20, fontMetrics().lineSpacing() * kLines + extra};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace

CTextRow::CTextRow(CForm& form, CBinding<QString> field, bool multiLine) : CValueRow(form, std::move(field)) {
    if (multiLine)
        m_lines = new CLinesEdit(&form.Page());
    else
        m_line = new QLineEdit(&form.Page());
    Watch(Control());
}

QWidget* CTextRow::Control() const {
    return m_lines != nullptr ? static_cast<QWidget*>(m_lines) : m_line;
}

void CTextRow::WhenTyped(const std::function<void()>& typed) {
    if (m_lines != nullptr)
        QObject::connect(m_lines, &QPlainTextEdit::textChanged, m_lines, typed);
    else
        QObject::connect(m_line, &QLineEdit::textChanged, m_line, typed);
}

QString CTextRow::ControlText() const {
    return m_lines != nullptr ? m_lines->toPlainText() : m_line->text();
}

void CTextRow::Load() {
    CValueRow::Load();
    if (m_lines != nullptr)
        m_mirror = FromEditText(m_mirror);
    Settle();
}

bool CTextRow::Exchange(bool read) {
    if (read) {
        m_mirror = ControlText();
        return true;
    }
    if (ControlText() != m_mirror) { // only then: it would move the caret
        if (m_lines != nullptr)
            m_lines->setPlainText(m_mirror);
        else
            m_line->setText(m_mirror);
    }
    Written();
    return true;
}

void CTextRow::Take(const QString& text) {
    m_mirror = text;
    Settle();
    Form().Page().UpdateData(false);
    StoreAndTell();
}

void CTextRow::Put(const QString& text) {
    m_mirror = text;
    Settle();
    Exchange(false);
    Store();
}

CFormatRow::CFormatRow(CForm& form, const std::vector<const char*>& texts)
    : CFormRow(form), m_box(new CQuietCombo(&form.Page())) {
    m_box->addItem(QString::fromUtf8(kNoFormat));
    for (const char* text : texts)
        m_box->addItem(QString::fromUtf8(text));
}

CFormatRow& CFormatRow::For(CTextRow& text) {
    m_text = &text;
    text.WhenTyped([this] { m_box->setCurrentIndex(0); });
    QObject::connect(m_box, &QComboBox::activated, m_box, [this](int row) {
        if (row > 0) {
            m_text->Take(m_box->itemText(row));
            m_box->setCurrentIndex(row);
        }
    });
    return *this;
}

QWidget* CFormatRow::Control() const {
    return m_box;
}

void CFormatRow::Loaded() {
    m_box->setCurrentIndex(std::max(m_box->findText(m_text->Mirror(), Qt::MatchStartsWith), 0));
}

void CFormatRow::Put(const QString& text) {
    m_text->Put(text);
    Loaded();
}
