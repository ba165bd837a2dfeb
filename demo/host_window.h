#pragma once
// The window of the host: the kinds of chart at the left, the finished chart with the host's numbers beside.

#include "example.h"

#include <QMainWindow>

class QAction;
class QDoubleSpinBox;
class QLabel;
class QListWidget;
class QSlider;

class HostWindow : public QMainWindow {
    Q_OBJECT
public:
    HostWindow();

    Examples& Charts() { return m_examples; }
    void ShowKind(int kind);
    /// Shows the numbers of a file, as the kind that its columns tell; for a bad one, says what was not
    /// understood and keeps what it has. False, with `error`, if it is given, in the place of a box.
    bool OpenData(const QString& path, QString* error = nullptr);
    /// Takes the look of a file, for the kind of chart that it tells, and shows it; the same for a bad one.
    bool OpenStyle(const QString& path, QString* error = nullptr);
    /// Writes the look of the chart that is shown.
    void SaveStyle(const QString& path);
    /// Opens the editor of the kind that is shown, or that of its layout.
    void Edit();
    void EditLayout();
    /// Writes the chart that is shown as a picture; the name decides whether PNG or BMP.
    void SavePicture(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void MakeMenu();
    QWidget* MakeKinds();
    QWidget* MakeChart();
    QWidget* MakeDial();
    void AskForData();
    void AskForPicture();
    void AskForStyle();
    void AskForStyleFile();
    bool Refuse(const QString& path, const QString& fault, QString* error);
    void ShowChart();
    void ShowDial();
    void TakeDial(double value);
    void Complain(const QString& text);
    Example& Shown() const;

    Examples m_examples;
    QListWidget* m_kinds = nullptr;
    QLabel* m_picture = nullptr;
    QWidget* m_dial = nullptr;
    QSlider* m_slider = nullptr;
    QDoubleSpinBox* m_value = nullptr;
};
