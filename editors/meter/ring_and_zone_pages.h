#pragma once
// The pages that one of the meters has: rings and zones. Changes go into the meter at once and are told to
// `owner`.

#include "editors/framework/form.h"

#include <charteditors/meters.h>

/// The rings of an angular meter.
class CAngularRingPage : public CDialog {
public:
    CAngularRingPage(CAngularRings& rings, QWidget& owner);

private:
    CForm m_form;
};

/// The zones of an angular meter.
class CAngularZonePage : public CDialog {
public:
    CAngularZonePage(CMeterZoneAngulars& zones, QWidget& owner);

private:
    CForm m_form;
};

/// The zones of a linear meter, each with a text.
class CLinearZonePage : public CDialog {
public:
    CLinearZonePage(CMeterZoneLinears& zones, QWidget& owner);

private:
    CForm m_form;
};
