#include "host_window.h"

#include <QDoubleSpinBox>
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
#include <QSignalBlocker>
#include <QSlider>
#include <QStatusBar>
#include <algorithm>

namespace {

constexpr int kSliderSteps = 1000;

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

HostWindow::HostWindow() : m_examples(MakeExamples()) {
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
    statusBar()->showMessage(QStringLiteral(
        "Examples. Drop a CSV file for your own numbers: its columns tell the kind of chart; or a style."));
    ShowKind(0);
}

void HostWindow::MakeMenu() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("&Open data..."), QKeySequence::Open, this, &HostWindow::AskForData);
    file->addAction(QStringLiteral("&Save picture..."), QKeySequence::Save, this, &HostWindow::AskForPicture);
    file->addSeparator();
    file->addAction(QStringLiteral("Open s&tyle..."), this, &HostWindow::AskForStyle);
    file->addAction(QStringLiteral("Save st&yle..."), this, &HostWindow::AskForStyleFile);
    file->addSeparator();
    file->addAction(QStringLiteral("&Quit"), QKeySequence::Quit, this, &QWidget::close);
    QMenu* chart = menuBar()->addMenu(QStringLiteral("&Chart"));
    chart->addAction(QStringLiteral("&Edit chart..."), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                     &HostWindow::Edit);
    chart->addAction(QStringLiteral("Edit &layout..."), QKeySequence(Qt::CTRL | Qt::Key_L), this,
                     &HostWindow::EditLayout);
}

QWidget* HostWindow::MakeKinds() {
    m_kinds = new QListWidget(this);
    m_kinds->setAccessibleName(QStringLiteral("Kinds of chart"));
    for (const std::unique_ptr<Example>& example : m_examples)
        m_kinds->addItem(QString::fromUtf8(example->Name()));
    m_kinds->setFixedWidth(m_kinds->sizeHintForColumn(0) + 3 * m_kinds->fontMetrics().averageCharWidth());
    connect(m_kinds, &QListWidget::currentRowChanged, this, [this] {
        ShowDial();
        ShowChart();
    });
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
    scroll->setMinimumSize(660, 500); // most of the examples

    auto* edit = new QPushButton(QStringLiteral("&Edit chart..."), this);
    auto* layoutButton = new QPushButton(QStringLiteral("Edit &layout..."), this);
    auto* save = new QPushButton(QStringLiteral("Save &picture..."), this);
    edit->setDefault(true);
    connect(edit, &QPushButton::clicked, this, &HostWindow::Edit);
    connect(layoutButton, &QPushButton::clicked, this, &HostWindow::EditLayout);
    connect(save, &QPushButton::clicked, this, &HostWindow::AskForPicture);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeDial(), 1);
    buttons->addStretch();
    buttons->addWidget(edit);
    buttons->addWidget(layoutButton);
    buttons->addWidget(save);

    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll, 1);
    layout->addLayout(buttons);
    return side;
}

/// The value of a meter, as a slider and a number.
QWidget* HostWindow::MakeDial() {
    m_dial = new QWidget(this);
    auto* row = new QHBoxLayout(m_dial);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("&Value:"), m_dial);
    m_slider = new QSlider(Qt::Horizontal, m_dial);
    m_slider->setAccessibleName(QStringLiteral("Value"));
    m_slider->setRange(0, kSliderSteps);
    m_value = new QDoubleSpinBox(m_dial);
    m_value->setAccessibleName(QStringLiteral("Value"));
    m_value->setDecimals(1);
    label->setBuddy(m_value);
    row->addWidget(label);
    row->addWidget(m_slider, 1);
    row->addWidget(m_value);
    connect(m_slider, &QSlider::valueChanged, this, [this](int step) {
        const double share = static_cast<double>(step) / kSliderSteps;
        TakeDial(m_value->minimum() + share * (m_value->maximum() - m_value->minimum()));
    });
    connect(m_value, &QDoubleSpinBox::valueChanged, this, &HostWindow::TakeDial);
    return m_dial;
}

void HostWindow::ShowDial() {
    const std::optional<Dial> dial = Shown().GetDial();
    m_dial->setVisible(dial.has_value());
    if (!dial)
        return;
    const QSignalBlocker quietValue(m_value);
    const QSignalBlocker quietSlider(m_slider);
    m_value->setRange(dial->lowest, dial->highest);
    m_value->setValue(dial->value);
    const double range = dial->highest - dial->lowest;
    m_slider->setValue(range > 0 ? qRound((dial->value - dial->lowest) / range * kSliderSteps) : 0);
}

void HostWindow::TakeDial(double value) {
    Shown().SetDial(value);
    ShowDial();
    ShowChart();
}

Example& HostWindow::Shown() const {
    return *m_examples[static_cast<std::size_t>(std::max(m_kinds->currentRow(), 0))];
}

void HostWindow::ShowKind(int kind) {
    m_kinds->setCurrentRow(kind); // which shows it
}

void HostWindow::ShowChart() {
    CChartPicture picture;
    Shown().Render(ChartPictureFormat::Bmp, picture);
    QPixmap pixmap;
    pixmap.loadFromData(picture.Data(), static_cast<uint>(picture.Size()));
    m_picture->setPixmap(pixmap);
}

void HostWindow::Edit() {
    if (Shown().Edit()) {
        ShowDial();
        ShowChart();
    }
}

void HostWindow::EditLayout() {
    if (Shown().EditLayout())
        ShowChart();
}

bool HostWindow::OpenData(const QString& path, QString* error) {
    const CsvTable table = ReadCsvFile(path);
    Understood read = Understand(table);
    const QString name = QFileInfo(path).fileName();
    const auto taker = std::find_if(m_examples.begin(), m_examples.end(), [&](const auto& example) {
        return read.error.isEmpty() && example->Take(read.data, TitleOf(path));
    });
    if (read.error.isEmpty() && taker == m_examples.end())
        read.error = QStringLiteral("No chart here shows rows of several columns.");
    if (!read.error.isEmpty())
        return Refuse(path, read.error, error);
    const auto kind = static_cast<int>(taker - m_examples.begin());
    statusBar()->showMessage(QStringLiteral("%1: %2 rows").arg(name).arg(table.rows.size()));
    ShowKind(kind);
    ShowChart();
    return true;
}

bool HostWindow::OpenStyle(const QString& path, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refuse(path, file.errorString(), error);
    const QByteArray text = file.readAll();
    // The chart that is shown comes first: a layout suits each of them.
    std::vector<int> order{m_kinds->currentRow()};
    for (int kind = 0; kind < std::ssize(m_examples); ++kind)
        order.push_back(kind);
    CChartStyleText report;
    for (const int kind : order) {
        const ChartStyleResult result = m_examples[static_cast<std::size_t>(kind)]->ReadStyle(text, report);
        if (result == ChartStyleResult::OtherKind)
            continue;
        if (result != ChartStyleResult::Ok)
            break;
        const QString remark = QString::fromUtf8(report.Data()).section(u'\n', 0, 0);
        statusBar()->showMessage(QFileInfo(path).fileName() +
                                 (remark.isEmpty() ? QString() : QStringLiteral(": ") + remark));
        ShowKind(kind);
        ShowDial();
        ShowChart();
        return true;
    }
    return Refuse(path, QString::fromUtf8(report.Data()), error);
}

void HostWindow::SaveStyle(const QString& path) {
    CChartStyleText text;
    QFile file(path);
    if (!Shown().WriteStyle(text) || !file.open(QIODevice::WriteOnly) ||
        file.write(text.Data()) != static_cast<qint64>(text.Size()))
        Complain(QStringLiteral("The style cannot be written to %1.").arg(path));
}

bool HostWindow::Refuse(const QString& path, const QString& fault, QString* error) {
    if (error != nullptr)
        *error = fault;
    else
        Complain(QStringLiteral("%1\n\n%2").arg(QFileInfo(path).fileName(), fault));
    return false;
}

void HostWindow::SavePicture(const QString& path) {
    const bool bitmap = path.endsWith(QStringLiteral(".bmp"), Qt::CaseInsensitive);
    CChartPicture picture;
    Shown().Render(bitmap ? ChartPictureFormat::Bmp : ChartPictureFormat::Png, picture);
    if (!picture.Save(QFile::encodeName(path).constData()))
        Complain(QStringLiteral("The picture cannot be written to %1.").arg(path));
}

void HostWindow::AskForData() {
    const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("Open data"), QString(),
                                                      QStringLiteral("Rows and columns (*.csv *.tsv *.txt)"));
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

void HostWindow::AskForStyle() {
    const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("Open style"), QString(),
                                                      QStringLiteral("Chart styles (*.json)"));
    if (!path.isEmpty())
        OpenStyle(path);
}

void HostWindow::AskForStyleFile() {
    const QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save style"), QString::fromUtf8(Shown().File()) + QStringLiteral(".json"),
        QStringLiteral("Chart styles (*.json)"));
    if (!path.isEmpty())
        SaveStyle(path);
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
    const QString path = DraggedFile(event->mimeData());
    if (path.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive))
        OpenStyle(path);
    else
        OpenData(path);
}
