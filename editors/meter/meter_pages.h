#pragma once
// The pages that both meters have. What differs between the two is told by the constructor. Changes go into
// the meter at once and are told to `owner`.

#include "editors/framework/form.h"

#include <charteditors/meters.h>
#include <functional>

/// Line widths and the scale of a CAngularMeter or a CLinearMeter. The axis of a linear meter has no width.
class CMeterGeneralPage : public CDialog {
public:
    template <class Meter>
    CMeterGeneralPage(Meter& meter, QWidget& owner);

private:
    CForm m_form;
};

/// The pointers. `fillLabel` names the fill colour; `fresh` is what "Add" appends.
class CMeterPointerPage : public CDialog {
public:
    CMeterPointerPage(CMeterPointers& pointers, QWidget& owner, const char* fillLabel,
                      const CMeterPointer& fresh);

private:
    CForm m_form;
};

/// The free texts. `fresh` makes what "Add" appends.
class CMeterTextPage : public CDialog {
public:
    CMeterTextPage(CChartTextBoxs& texts, QWidget& owner, std::function<CChartTextBox()> fresh);

private:
    CForm m_form;
};

/// The look of the labels at the scale.
class CMeterLabelPage : public CDialog {
public:
    CMeterLabelPage(bool& use, CMeterLabelStyle& style, QWidget& owner);

private:
    CForm m_form;
};
