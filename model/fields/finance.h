#pragma once
// The fields of finance charts.

#include "model/fields/field.h"
#include <charteditors/finance_chart.h>

namespace model {

template <>
struct FieldsOf<CFinanceChart> {
    static constexpr std::tuple table = {Field{"order", &CFinanceChart::m_order, words::pane},
                                         Field{"mainHeight", &CFinanceChart::m_mainHeight},
                                         Field{"showSma", &CFinanceChart::m_showSma},
                                         Field{"smaPeriod", &CFinanceChart::m_smaPeriod},
                                         Field{"smaColor", &CFinanceChart::m_smaColor},
                                         Field{"showHloc", &CFinanceChart::m_showHloc},
                                         Field{"hlocUpColor", &CFinanceChart::m_hlocUpColor},
                                         Field{"hlocDownColor", &CFinanceChart::m_hlocDownColor},
                                         Field{"showBollingerBand", &CFinanceChart::m_showBollingerBand},
                                         Field{"bbPeriod", &CFinanceChart::m_bbPeriod},
                                         Field{"bbBandWidth", &CFinanceChart::m_bbBandWidth},
                                         Field{"bbFillColor", &CFinanceChart::m_bbFillColor},
                                         Field{"bbLineColor", &CFinanceChart::m_bbLineColor},
                                         Field{"showVolBars", &CFinanceChart::m_showVolBars},
                                         Field{"volBarsHeight", &CFinanceChart::m_volBarsHeight},
                                         Field{"volUpColor", &CFinanceChart::m_volUpColor},
                                         Field{"volDownColor", &CFinanceChart::m_volDownColor},
                                         Field{"volFlatColor", &CFinanceChart::m_volFlatColor},
                                         Field{"showCandleStick", &CFinanceChart::m_showCandleStick},
                                         Field{"candleUpColor", &CFinanceChart::m_candleUpColor},
                                         Field{"candleDownColor", &CFinanceChart::m_candleDownColor},
                                         Field{"showDonchianChannel", &CFinanceChart::m_showDonchianChannel},
                                         Field{"dcPeriod", &CFinanceChart::m_dcPeriod},
                                         Field{"dcFillColor", &CFinanceChart::m_dcFillColor},
                                         Field{"dcLineColor", &CFinanceChart::m_dcLineColor},
                                         Field{"showRsi", &CFinanceChart::m_showRsi},
                                         Field{"rsiHeight", &CFinanceChart::m_rsiHeight},
                                         Field{"rsiPeriod", &CFinanceChart::m_rsiPeriod},
                                         Field{"rsiRange", &CFinanceChart::m_rsiRange},
                                         Field{"rsiColor", &CFinanceChart::m_rsiColor},
                                         Field{"rsiUpColor", &CFinanceChart::m_rsiUpColor},
                                         Field{"rsiDownColor", &CFinanceChart::m_rsiDownColor},
                                         Field{"showMomentum", &CFinanceChart::m_showMomentum},
                                         Field{"momentumHeight", &CFinanceChart::m_momentumHeight},
                                         Field{"momentumPeriod", &CFinanceChart::m_momentumPeriod},
                                         Field{"momentumColor", &CFinanceChart::m_momentumColor},
                                         Field{"showSlowStochastic", &CFinanceChart::m_showSlowStochastic},
                                         Field{"ssHeight", &CFinanceChart::m_ssHeight},
                                         Field{"ssPeriod1", &CFinanceChart::m_ssPeriod1},
                                         Field{"ssPeriod2", &CFinanceChart::m_ssPeriod2},
                                         Field{"ssColor1", &CFinanceChart::m_ssColor1},
                                         Field{"ssColor2", &CFinanceChart::m_ssColor2},
                                         Field{"showMacd", &CFinanceChart::m_showMacd},
                                         Field{"macdHeight", &CFinanceChart::m_macdHeight},
                                         Field{"macdPeriod1", &CFinanceChart::m_macdPeriod1},
                                         Field{"macdPeriod2", &CFinanceChart::m_macdPeriod2},
                                         Field{"macdPeriod3", &CFinanceChart::m_macdPeriod3},
                                         Field{"macdIndicatorColor", &CFinanceChart::m_macdIndicatorColor},
                                         Field{"macdSignalColor", &CFinanceChart::m_macdSignalColor},
                                         Field{"macdDivergentColor", &CFinanceChart::m_macdDivergentColor}};
};

} // namespace model
