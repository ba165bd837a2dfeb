#include "prices.h"

#include <QDate>
#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr double kDay = 86400; // seconds

/// Between -1 and 1, most of them near 0. The generator's numbers are the same everywhere, those of the
/// distributions of the standard library are not.
double Jitter(std::mt19937& random) {
    double sum = 0;
    for (int i = 0; i < 4; ++i)
        sum += static_cast<double>(random()) / 4294967296.0;
    return sum / 2 - 1;
}

double Cents(double price) {
    return std::round(price * 100) / 100;
}

} // namespace

Prices WalkPrices(int days) {
    std::mt19937 random(2023);
    Prices prices;
    double last = 84;
    QDate day(2023, 1, 2);
    for (int i = 0; i < days; ++i) {
        const double calm = 1 + 0.8 * std::sin(i / 47.0); // quiet and wild months
        const double open = last * (1 + 0.008 * calm * Jitter(random));
        const double close = open * (1 + 0.035 * calm * Jitter(random) + 0.0007 + 0.002 * std::sin(i / 61.0));
        const double reach = open * 0.012 * calm;
        prices.dates.push_back(static_cast<double>(QDate(1, 1, 1).daysTo(day)) * kDay);
        prices.open.push_back(Cents(open));
        prices.close.push_back(Cents(close));
        prices.high.push_back(Cents(std::max(open, close) + reach * std::abs(Jitter(random))));
        prices.low.push_back(Cents(std::min(open, close) - reach * std::abs(Jitter(random))));
        prices.volume.push_back(
            std::round(90000 * (1 + 18 * std::abs(close / open - 1)) * (1 + 0.5 * Jitter(random))));
        last = close;
        day = day.addDays(day.dayOfWeek() == Qt::Friday ? 3 : 1);
    }
    return prices;
}

QByteArray PricesAsCsv(const Prices& prices) {
    QByteArray text = "date,open,high,low,close,volume\n";
    for (std::size_t i = 0; i < prices.dates.size(); ++i) {
        text += QDate(1, 1, 1)
                    .addDays(static_cast<qint64>(prices.dates[i] / kDay))
                    .toString(Qt::ISODate)
                    .toLatin1();
        for (const double price : {prices.open[i], prices.high[i], prices.low[i], prices.close[i]})
            text += ',' + QByteArray::number(price, 'f', 2);
        text += ',' + QByteArray::number(prices.volume.empty() ? 0 : prices.volume[i], 'f', 0) + '\n';
    }
    return text;
}
