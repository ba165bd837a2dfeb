#include "example.h"
#include "prices.h"

#include <algorithm>

namespace {

/// Reads its prices from a text as any host does: 500 days, of which the first feed the indicators.
class FinanceExample : public LookExample<CFinanceChart> {
public:
    FinanceExample()
        : LookExample(2, 640, 480, QStringLiteral("A share that does not exist"),
                      QStringLiteral("Daily prices, a walk at random")) {
        m_layout.m_financeWidth = 640;
        m_look.m_mainHeight = 240;
        m_look.m_showHloc = false;
        m_look.m_showCandleStick = true;
        m_look.m_candleUpColor.m_color = 0x3E9A5F;
        m_look.m_candleDownColor.m_color = 0xC94F43;
        m_look.m_showSma = true;
        m_look.m_smaPeriod = 20;
        m_look.m_smaColor.m_color = 0x2F5D8A;
        m_look.m_showBollingerBand = true;
        m_look.m_bbFillColor.m_color = 0xD05B94C0;
        m_look.m_bbLineColor.m_color = 0x9CC3DD;
        m_look.m_showVolBars = true;
        m_look.m_volBarsHeight = 60;
        m_look.m_showRsi = true;
        m_look.m_showMacd = true;
        m_data = std::get<Prices>(Understand(ReadCsv(PricesAsCsv(WalkPrices(kDays)))).data);
    }

    const char* Name() const override { return "Finance chart"; }
    const char* File() const override { return "finance"; }
    bool Edit() override { return ShowFinanceChartWnd(m_look, m_layout); }

    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        constexpr int kShown = 120; // days that candles of this width have room for
        const auto count = static_cast<int>(m_data.dates.size());
        CFinanceChartData data;
        data.dates = m_data.dates.data();
        data.open = m_data.open.data();
        data.high = m_data.high.data();
        data.low = m_data.low.data();
        data.close = m_data.close.data();
        data.volume = m_data.volume.empty() ? nullptr : m_data.volume.data();
        data.count = count;
        data.leadingRows = std::max(0, count - kShown);
        return RenderFinanceChart(m_look, m_layout, data, format, picture);
    }

    bool Take(const ChartData& data, const QString& title) override {
        const auto* prices = std::get_if<Prices>(&data);
        if (prices == nullptr)
            return false;
        m_data = *prices;
        SetTitle(title);
        return true;
    }

private:
    static constexpr int kDays = 500;

    Prices m_data;
};

} // namespace

std::unique_ptr<Example> MakeFinanceExample() {
    return std::make_unique<FinanceExample>();
}
