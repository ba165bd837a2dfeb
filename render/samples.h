#pragma once
// What the pickers show: a colour, a font, an image file.

#include "render/chart_preview.h"

/// The routine of PreviewColor: the colour over a chequer board, so that its transparency shows. Paints at
/// once and leaves no picture.
void DrawColorSample(CChartPreview& view);

/// The routine of PreviewFont: the name of the face, in it. Paints at once and leaves no picture.
void DrawFontSample(CChartPreview& view);

/// The routine of PreviewImage. A picture of the image's size, in fit mode; an empty one of the pane's size,
/// in scroll mode, if the file cannot be read.
void DrawImageSample(CChartPreview& view);
