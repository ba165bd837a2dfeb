#pragma once

/// @file
/// Everything that a host may use: the value classes that describe the look of a chart, and the editors.

#include <charteditors/chart_layout.h>
#include <charteditors/editors.h>
#include <charteditors/finance_chart.h>
#include <charteditors/meters.h>
#include <charteditors/pie_chart.h>
#include <charteditors/polar_chart.h>
#include <charteditors/xy_chart.h>
