#include "editors/colour/image_file_dlg.h"

#include "editors/preview/chart_preview_view.h"
#include "platform/narrow_text.h"
#include "platform/widgets/dialog.h"
#include "resources/string_table.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace {

CChartString ModelPath(const QString& path) {
    CChartString text;
    text = platform::TextToNarrow(path).c_str();
    return text;
}

/// The text holds names and patterns in turn, each followed by a bar. The dialog takes the pattern from the
/// last brackets of a filter, and does not show them.
QStringList NameFilters() {
    const QStringList parts =
        QString::fromUtf8(LoadChartString(ChartText::ImageFilter)).split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString pattern = parts[i + 1];
        if (pattern == QStringLiteral("*.*"))
            pattern = QStringLiteral("*"); // a file needs no dot in its name
        filters += QStringLiteral("%1 (%2)").arg(parts[i], pattern.replace(u';', u' '));
    }
    return filters;
}

} // namespace

CImageFileDlg::CImageFileDlg() : m_preview(new CChartPreviewView(this)) {
    setOptions(DontUseNativeDialog | HideNameFilterDetails);
    setFileMode(ExistingFile);
    setViewMode(List);
    setWindowTitle(QString::fromUtf8(LoadChartString(ChartText::SelectImageFile)));
    setObjectName(windowTitle());
    setNameFilters(NameFilters());
    PlacePreview();
    TidyUp();
    connect(this, &QFileDialog::currentChanged, this, [this](const QString& path) {
        if (QFileInfo(path).isFile()) {
            m_preview->SetSampleImage(ModelPath(path));
            m_preview->RefreshPreview();
        }
    });
}

void CImageFileDlg::PlacePreview() {
    m_preview->setObjectName(QStringLiteral("Preview"));
    m_preview->setAccessibleName(QStringLiteral("Preview"));
    m_preview->setFocusPolicy(Qt::NoFocus);
    m_preview->SetSampleImage({}); // an empty picture until a file is selected
    const int line = fontMetrics().height();
    m_preview->setMinimumSize(line * 12, line * 12);
    auto* pane = new QWidget(this);
    auto* labelled = new QVBoxLayout(pane);
    labelled->setContentsMargins(0, 0, 0, 0);
    labelled->addWidget(new QLabel(QStringLiteral("Preview:"), pane));
    labelled->addWidget(m_preview, 1);
    // Beside the list of files and the rows below it, where the toolkit's own dialog keeps them in a grid.
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
        const int column = grid->columnCount();
        grid->addWidget(pane, 0, column, grid->rowCount(), 1);
        grid->setColumnStretch(1, 2); // the files
        grid->setColumnStretch(column, 1);
    } else {
        layout()->addWidget(pane);
    }
    resize(QSize(line * 48, line * 26).boundedTo(screen()->availableSize() * 9 / 10));
}

/// The toolkit's own parts, known by their names: nothing of them is cut off, and what makes folders goes.
void CImageFileDlg::TidyUp() {
    if (auto* kinds = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))) {
        kinds->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        kinds->setMinimumWidth(kinds->sizeHint().width());
    }
    if (auto* places = findChild<QListView*>(QStringLiteral("sidebar"))) {
        int width = 0;
        for (int row = 0; row < places->model()->rowCount(); ++row)
            width = std::max(width, places->sizeHintForIndex(places->model()->index(row, 0)).width());
        places->setMinimumWidth(width + 2 * places->frameWidth() + fontMetrics().averageCharWidth() * 2);
    }
    if (auto* newFolder = findChild<QWidget*>(QStringLiteral("newFolderButton")))
        newFolder->hide();
    for (QAction* action : findChildren<QAction*>(QStringLiteral("qt_new_folder_action"))) {
        action->setEnabled(false);
        action->setVisible(false);
    }
}

void CImageFileDlg::SetInitialFile(const CChartString& path) {
    if (path.empty())
        return;
    const QFileInfo file(platform::NarrowToText(path.data()));
    if (file.dir().exists())
        setDirectory(file.dir());
    selectFile(file.fileName());
    m_preview->SetSampleImage(path);
    m_preview->RefreshPreview();
}

int CImageFileDlg::DoModal() {
    if (QWidget* active = QApplication::activeWindow(); active != nullptr && active != this)
        setParent(active, windowFlags());
    const int result = exec();
    setParent(nullptr);
    return result == Accepted ? CDialog::kOK : CDialog::kCancel;
}

CChartString CImageFileDlg::GetPathName() const {
    return ModelPath(selectedFiles().value(0));
}
