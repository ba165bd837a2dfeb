#pragma once
// The pages of the layer dialog, one for each kind. Each holds the layer that it edits: the nine are the
// working copies of the dialog.

#include "editors/framework/form.h"

#include <charteditors/xy_layer.h>

class CBarLayerPage : public CDialog {
public:
    explicit CBarLayerPage(QWidget& owner);
    CXYBarLayer m_layer;

private:
    CForm m_form;
};

class CLineLayerPage : public CDialog {
public:
    explicit CLineLayerPage(QWidget& owner);
    CXYLineLayer m_layer;

private:
    CForm m_form;
};

class CScatterLayerPage : public CDialog {
public:
    explicit CScatterLayerPage(QWidget& owner);
    CXYScatterLayer m_layer;

private:
    CForm m_form;
};

class CAreaLayerPage : public CDialog {
public:
    explicit CAreaLayerPage(QWidget& owner);
    CXYAreaLayer m_layer;

private:
    CForm m_form;
};

class CBoxWhiskerLayerPage : public CDialog {
public:
    explicit CBoxWhiskerLayerPage(QWidget& owner);
    CXYBoxWhiskerLayer m_layer;

private:
    CForm m_form;
};

class CBoxLayerPage : public CDialog {
public:
    explicit CBoxLayerPage(QWidget& owner);
    CXYBoxLayer m_layer;

private:
    CForm m_form;
};

class CHLOCLayerPage : public CDialog {
public:
    explicit CHLOCLayerPage(QWidget& owner);
    CXYHLOCLayer m_layer;

private:
    CForm m_form;
};

class CGanttLayerPage : public CDialog {
public:
    explicit CGanttLayerPage(QWidget& owner);
    CXYGanttLayer m_layer;

private:
    CForm m_form;
};

class CCandleStickLayerPage : public CDialog {
public:
    explicit CCandleStickLayerPage(QWidget& owner);
    CXYCandleStickLayer m_layer;

private:
    CForm m_form;
};
