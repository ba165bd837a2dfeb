#pragma once
// The window of the host: the kinds of chart at the left, the finished chart with the host's numbers beside.

#include "charts.h"

#include <QMainWindow>

class QLabel;
class QListWidget;
class QPushButton;

class HostWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit HostWindow(const Charts& charts);

    /// Shows the numbers of a file; for a bad one, says what is wrong and keeps those that it has.
    void OpenData(const QString& path);
    /// Opens the editor of the kind that is shown.
    void Edit();
    /// Writes the chart that is shown as a picture; the name decides whether PNG or BMP.
    void SavePicture(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakeMenu();
    QWidget* MakeKinds();
    QWidget* MakeChart();
    void AskForData();
    void AskForPicture();
    void ShowChart();
    void Complain(const QString& text);
    const ChartKind& Kind() const;

    Charts m_charts;
    QListWidget* m_kinds = nullptr;
    QLabel* m_picture = nullptr;
};
