#include "model/src/value_class.h"
#include <charteditors/finance_chart.h>

CFinanceChart::CFinanceChart() {
    constexpr unsigned bandFill = 0xC06666FF; // mostly transparent, so that the prices show through
    constexpr unsigned bandLine = 0x9999FF;
    m_smaColor.m_color = 0x663300;
    m_hlocUpColor.m_color = 0x8000;
    m_hlocDownColor.m_color = 0xFF0000;
    m_bbFillColor.m_color = bandFill;
    m_bbLineColor.m_color = bandLine;
    m_volUpColor.m_color = 0x99FF99;
    m_volDownColor.m_color = 0xFF9999;
    m_volFlatColor.m_color = 0x808080;
    m_candleUpColor.m_color = 0xFF00;
    m_candleDownColor.m_color = 0xFF0000;
    m_dcFillColor.m_color = bandFill;
    m_dcLineColor.m_color = bandLine;
    m_rsiColor.m_color = 0x800080;
    m_rsiUpColor.m_color = 0xFF0000;
    m_rsiDownColor.m_color = 0xFF;
    m_momentumColor.m_color = 0xFF;
    m_ssColor1.m_color = 0x6060;
    m_ssColor2.m_color = 0x606000;
    m_macdIndicatorColor.m_color = 0xFF;
    m_macdSignalColor.m_color = 0xFF00FF;
    m_macdDivergentColor.m_color = 0x8000;
}
DEFINE_VALUE_CLASS(CFinanceChart)
