#include "editors/font/font_dlg.h"

#include "editors/font/font_catalogue.h"
#include "editors/framework/editor_frame.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/narrow_text.h"
#include "platform/rounding.h"
#include "platform/widgets/complaint.h"
#include "resources/string_table.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

namespace {

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

/// The first row that begins with a text, whatever its case; -1 for none.
int RowWithPrefix(const QListWidget& list, const QString& text) {
    for (int i = 0; i < list.count(); ++i)
        if (list.item(i)->text().startsWith(text, Qt::CaseInsensitive))
            return i;
    return -1;
}

/// The selected row's item, or null. The current row is another thing: a list that gets the focus makes its
/// first row the current one.
const QListWidgetItem* SelectedIn(const QListWidget& list) {
    return list.selectedItems().value(0);
}

/// Selects a row without the list telling of it.
void SelectQuietly(QListWidget& list, int row) {
    const QSignalBlocker quiet(list);
    list.setCurrentRow(row);
    if (row >= 0)
        list.scrollToItem(list.item(row));
}

void Name(QWidget& control, const char* name) {
    control.setObjectName(QString::fromUtf8(name));
    control.setAccessibleName(control.objectName());
}

/// A column of a label, an edit and the list of what can stand in it.
QVBoxLayout* Column(QLabel* label, QLineEdit* edit, QListWidget* list) {
    label->setBuddy(edit);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(label);
    column->addWidget(edit);
    column->addWidget(list, 1);
    return column;
}

} // namespace

CFontDlg::CFontDlg()
    : CDialog(QStringLiteral("Select Font")), m_preview(new CChartPreviewView(this)),
      m_faceEdit(new QLineEdit(this)), m_faces(new QListWidget(this)), m_sizeEdit(new QLineEdit(this)),
      m_sizes(new QListWidget(this)) {
    NameParts();
    const auto takeFace = [this] { TakeFace(); };
    const auto takeSize = [this] { TakeSize(); };
    connect(m_faces, &QListWidget::itemSelectionChanged, this, takeFace);
    connect(m_sizes, &QListWidget::itemSelectionChanged, this, takeSize);
    // A click on the selected row counts too: the edit may hold something else that begins like it.
    connect(m_faces, &QListWidget::itemClicked, this, takeFace);
    connect(m_sizes, &QListWidget::itemClicked, this, takeSize);
    connect(m_faceEdit, &QLineEdit::textEdited, this, [this] {
        if (UpdateData(true))
            SelectFaceByPrefix();
    });
    m_faceEdit->installEventFilter(this);
    m_sizeEdit->installEventFilter(this);
}

void CFontDlg::NameParts() {
    Name(*m_faceEdit, "Font");
    Name(*m_faces, "Fonts");
    Name(*m_sizeEdit, "Size");
    Name(*m_sizes, "Sizes");
    Name(*m_preview, "Sample");
    m_preview->setFocusPolicy(Qt::NoFocus);

    const int letter = fontMetrics().averageCharWidth();
    const int line = fontMetrics().height();
    m_faces->setMinimumSize(letter * 36, line * 9);
    m_sizes->setFixedWidth(letter * 12);
    m_sizeEdit->setFixedWidth(letter * 12);
    m_preview->setFixedHeight(line * 6);
}

QLayout* CFontDlg::LayOut() {
    auto* grid = new QGridLayout;
    grid->addLayout(Column(new QLabel(QStringLiteral("&Font:"), this), m_faceEdit, m_faces), 0, 0);
    grid->addLayout(Column(new QLabel(QStringLiteral("&Size:"), this), m_sizeEdit, m_sizes), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Sample:"), this), 1, 0, 1, 2);
    grid->addWidget(m_preview, 2, 0, 1, 2);
    return grid;
}

bool CFontDlg::OnInitDialog() {
    m_faceText = platform::NarrowToText(m_font.m_faceName.data());
    m_size = m_font.m_size;
    FillLists();
    if (m_body == nullptr)
        m_body = LayOut();
    OpenEditor(*this, {.body = m_body});
    const bool good = CDialog::OnInitDialog();
    SelectFaceByPrefix();
    return good;
}

void CFontDlg::FillLists() {
    QStringList faces{QString::fromUtf8(LoadChartString(ChartText::DefaultFace))};
    LoadFontCatalogue();
    for (const auto& [file, face] : g_fontFileToFace)
        faces += QString::fromStdString(platform::NarrowToUtf8(face));
    faces.sort(Qt::CaseInsensitive);
    const QSignalBlocker quietFaces(m_faces);
    m_faces->addItems(faces);
    m_faces->setCurrentRow(static_cast<int>(faces.lastIndexOf(m_faceText)));

    const QSignalBlocker quietSizes(m_sizes);
    for (const int size : kSizes) {
        m_sizes->addItem(QString::number(size));
        if (size == m_size)
            m_sizes->setCurrentRow(m_sizes->count() - 1);
    }
}

bool CFontDlg::DoDataExchange(bool read) {
    if (read) {
        bool good = false;
        const double size = m_sizeEdit->text().trimmed().toDouble(&good);
        if (!good || !std::isfinite(size))
            return false;
        m_faceText = m_faceEdit->text();
        m_size = std::clamp(RoundTo(size, 2), 1.0, 1000.0); // what can be drawn
        return true;
    }
    for (const auto& [edit, text] :
         {std::pair(m_faceEdit, m_faceText), std::pair(m_sizeEdit, QString::number(m_size, 'g', 15))}) {
        if (edit->text() != text)
            edit->setText(text);
        edit->setModified(false);
    }
    m_font.m_faceName = platform::TextToNarrow(m_faceText).c_str();
    m_font.m_fileName = GetFontFileName(m_font.m_faceName.data());
    m_font.m_size = m_size;
    m_preview->SetSampleFont(m_font);
    m_preview->RefreshPreview();
    return true;
}

bool CFontDlg::UpdateDataSafe(bool pressed) {
    if (UpdateData(true))
        return true;
    UpdateData(false);
    const auto select = [this] {
        m_sizeEdit->setFocus();
        m_sizeEdit->selectAll();
    };
    select();
    CComplaint::Raise(*this, QStringLiteral("\"Size\" must be a number."), select, pressed);
    return false;
}

void CFontDlg::SelectFaceByPrefix() {
    SelectQuietly(*m_faces, RowWithPrefix(*m_faces, m_faceText));
}

void CFontDlg::TakeFace() {
    if (const QListWidgetItem* item = SelectedIn(*m_faces)) {
        m_faceText = item->text();
        UpdateData(false);
    }
}

void CFontDlg::TakeSize() {
    if (const QListWidgetItem* item = SelectedIn(*m_sizes)) {
        m_size = item->text().toDouble();
        UpdateData(false);
    }
}

void CFontDlg::CommitFace(bool pressed) {
    if (!UpdateDataSafe(pressed))
        return;
    SelectFaceByPrefix();
    const QListWidgetItem* item = SelectedIn(*m_faces);
    m_faceText = item != nullptr ? item->text() : m_faces->item(0)->text();
    UpdateData(false);
}

void CFontDlg::CommitSize(bool pressed) {
    if (UpdateDataSafe(pressed)) {
        SelectQuietly(*m_sizes, RowWithPrefix(*m_sizes, QString::asprintf("%g", m_size)));
        UpdateData(false);
    }
}

void CFontDlg::OnOK() {
    if (focusWidget() == m_faceEdit) {
        CommitFace();
    } else if (focusWidget() == m_sizeEdit) {
        CommitSize();
        m_sizeEdit->selectAll();
    } else if (UpdateDataSafe()) {
        CDialog::OnOK();
    }
}

bool CFontDlg::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut)
        return false;
    watched->event(event); // first, since what follows can bring the focus back
    const auto* edit = static_cast<QLineEdit*>(watched);
    // A text that cannot be read yet waits for the return from a menu or another window.
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool pressed = reason == Qt::MouseFocusReason;
    if (edit->isModified() && reason != Qt::PopupFocusReason &&
        (reason != Qt::ActiveWindowFocusReason || UpdateData(true)))
        edit == m_faceEdit ? CommitFace(pressed) : CommitSize(pressed);
    return true;
}
