#pragma once

/// @file
/// Finished charts as pictures: the look from the value model, the data from the host.
///
///     const double values[] = {25, 18, 15};
///     const char* labels[] = {"Labour", "Licences", "Taxes"};
///     CChartPicture picture;
///     if (RenderPieChart(pie, layout, {values, labels, 3}, ChartPictureFormat::Png, picture) ==
///         ChartRenderResult::Ok)
///         picture.Save("costs.png");
///
/// What the editors preview is what is rendered here. Texts are narrow, in the locale's encoding, as those of
/// the model. Nothing throws. Different threads may render at once.

#include <chartrender/finance.h>
#include <chartrender/meter.h>
#include <chartrender/picture.h>
#include <chartrender/pie.h>
#include <chartrender/polar.h>
#include <chartrender/xy.h>
