#pragma once
// The pages of the axis dialog. They write straight into its copy of the axis.

#include "editors/framework/form.h"

class CAxisDlg;
class CXYChartAxis;

/// Place, line and margins.
class CAxisGeneralPage : public CDialog {
public:
    explicit CAxisGeneralPage(CAxisDlg& dialog);

private:
    CForm m_form;
};

/// Steps, lengths, offsets and density of the ticks.
class CAxisTickPage : public CDialog {
public:
    explicit CAxisTickPage(CAxisDlg& dialog);

private:
    CForm m_form;
};

/// The kind of scale with the values of each kind, and the axis that this one follows.
class CAxisScalePage : public CDialog {
public:
    explicit CAxisScalePage(CAxisDlg& dialog);

private:
    void ScaleGroups(CXYChartAxis& axis);
    void SyncGroup(CAxisDlg& dialog);

    CForm m_form;
};

class CAxisTitlePage : public CDialog {
public:
    explicit CAxisTitlePage(CAxisDlg& dialog);

private:
    CForm m_form;
};

class CAxisLabelPage : public CDialog {
public:
    explicit CAxisLabelPage(CAxisDlg& dialog);

    /// Overwrites the label format, which follows the kind of scale.
    void SetFormat(const char* format);

private:
    CForm m_form;
    CFormatRow* m_formats;
};
