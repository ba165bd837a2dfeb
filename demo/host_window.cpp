#include "host_window.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>

namespace {

/// The file of a drag that brings one file; empty for any other.
QString DraggedFile(const QMimeData* mime) {
    const QList<QUrl> urls = mime->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

/// How much of a file's name a title has room for.
QString TitleOf(const QString& path) {
    constexpr int kMost = 60;
    const QString name = QFileInfo(path).completeBaseName();
    return name.size() > kMost ? name.left(kMost) + QStringLiteral("...") : name;
}

} // namespace

HostWindow::HostWindow(const Charts& charts) : m_charts(charts) {
    setWindowTitle(QStringLiteral("Chart editors"));
    setAcceptDrops(true);
    MakeMenu();
    auto* body = new QWidget(this);
    auto* sides = new QHBoxLayout(body);
    sides->setContentsMargins(12, 12, 12, 12);
    sides->setSpacing(12);
    sides->addWidget(MakeKinds());
    sides->addWidget(MakeChart(), 1);
    setCentralWidget(body);
    statusBar()->showMessage(
        QStringLiteral("An example. Drop a CSV file of labels and values for your own."));
    ShowChart();
}

void HostWindow::MakeMenu() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("&Open data..."), QKeySequence::Open, this, &HostWindow::AskForData);
    file->addAction(QStringLiteral("&Save picture..."), QKeySequence::Save, this, &HostWindow::AskForPicture);
    file->addSeparator();
    file->addAction(QStringLiteral("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    QMenu* chart = menuBar()->addMenu(QStringLiteral("&Chart"));
    chart->addAction(QStringLiteral("&Edit..."), QKeySequence(Qt::CTRL | Qt::Key_E), this, &HostWindow::Edit);
}

QWidget* HostWindow::MakeKinds() {
    m_kinds = new QListWidget(this);
    m_kinds->setAccessibleName(QStringLiteral("Kinds of chart"));
    for (const ChartKind& kind : ChartKinds()) {
        const QString name = QString::fromUtf8(kind.name);
        const bool ready = kind.edit != nullptr;
        auto* item = new QListWidgetItem(ready ? name : name + QStringLiteral(" (no editor yet)"), m_kinds);
        item->setFlags(ready ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    }
    m_kinds->setFixedWidth(m_kinds->sizeHintForColumn(0) + 3 * m_kinds->fontMetrics().averageCharWidth());
    m_kinds->setCurrentRow(0);
    connect(m_kinds, &QListWidget::currentRowChanged, this, &HostWindow::ShowChart);
    connect(m_kinds, &QListWidget::itemActivated, this, &HostWindow::Edit);
    return m_kinds;
}

QWidget* HostWindow::MakeChart() {
    m_picture = new QLabel(this);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setAccessibleName(QStringLiteral("Chart"));
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(m_picture);
    scroll->setWidgetResizable(true);
    scroll->setBackgroundRole(QPalette::Base);
    scroll->setMinimumSize(m_charts.layout.m_width + 2 * scroll->frameWidth(),
                           m_charts.layout.m_height + 2 * scroll->frameWidth());

    auto* edit = new QPushButton(QStringLiteral("&Edit chart..."), this);
    auto* save = new QPushButton(QStringLiteral("Save &picture..."), this);
    edit->setDefault(true);
    connect(edit, &QPushButton::clicked, this, &HostWindow::Edit);
    connect(save, &QPushButton::clicked, this, &HostWindow::AskForPicture);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(edit);
    buttons->addWidget(save);

    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll, 1);
    layout->addLayout(buttons);
    return side;
}

const ChartKind& HostWindow::Kind() const {
    return ChartKinds()[static_cast<std::size_t>(std::max(m_kinds->currentRow(), 0))];
}

void HostWindow::ShowChart() {
    CChartPicture picture;
    Kind().render(m_charts, ChartPictureFormat::Bmp, picture);
    QPixmap pixmap;
    pixmap.loadFromData(picture.Data(), static_cast<uint>(picture.Size()));
    m_picture->setPixmap(pixmap);
}

void HostWindow::Edit() {
    if (Kind().edit(m_charts))
        ShowChart();
}

void HostWindow::OpenData(const QString& path) {
    const CsvResult read = ReadCsvFile(path);
    const QString name = QFileInfo(path).fileName();
    if (!read.error.isEmpty()) {
        Complain(QStringLiteral("%1\n\n%2").arg(name, read.error));
        return;
    }
    ShowData(m_charts, read.data, TitleOf(path));
    statusBar()->showMessage(QStringLiteral("%1: %2 values").arg(name).arg(read.data.values.size()));
    ShowChart();
}

void HostWindow::SavePicture(const QString& path) {
    const bool bitmap = path.endsWith(QStringLiteral(".bmp"), Qt::CaseInsensitive);
    CChartPicture picture;
    Kind().render(m_charts, bitmap ? ChartPictureFormat::Bmp : ChartPictureFormat::Png, picture);
    if (!picture.Save(QFile::encodeName(path).constData()))
        Complain(QStringLiteral("The picture cannot be written to %1.").arg(path));
}

void HostWindow::AskForData() {
    const QString path =
        QFileDialog::getOpenFileName(this, QStringLiteral("Open data"), QString(),
                                     QStringLiteral("Labels and values (*.csv *.tsv *.txt)"));
    if (!path.isEmpty())
        OpenData(path);
}

void HostWindow::AskForPicture() {
    const QString path =
        QFileDialog::getSaveFileName(this, QStringLiteral("Save picture"), QStringLiteral("chart.png"),
                                     QStringLiteral("PNG pictures (*.png);;Bitmaps (*.bmp)"));
    if (!path.isEmpty())
        SavePicture(path);
}

void HostWindow::Complain(const QString& text) {
    QMessageBox::warning(this, windowTitle(), text);
}

void HostWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void HostWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    OpenData(DraggedFile(event->mimeData()));
}
