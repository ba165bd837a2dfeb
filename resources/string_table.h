#pragma once

// The texts of the system, by number. Equal words in two places are two entries: they belong to different
// lists or captions, and may part ways in a translation. A format holds %d and %s in that order.

/// The text of that number, empty if there is none. Never null; lives as long as the library.
const char* LoadChartString(int number);
