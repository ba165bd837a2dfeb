#pragma once
// Prices that nobody has paid: a walk at random, the same on every computer.

#include "data.h"

/// Trading days from Monday, 2 January 2023, on, without Saturdays and Sundays.
Prices WalkPrices(int days);

/// The same as a text that ReadCsv reads: date, open, high, low, close, volume.
QByteArray PricesAsCsv(const Prices& prices);
